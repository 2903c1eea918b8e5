#pragma once

#include "basepage.h"

#include <QHash>
#include <QList>
#include <QPointer>

class BrowserCleaner;
class BrowserGroupWidget;
class QCheckBox;
class QLabel;

/// The page of the browser cleaner: a bar to choose the browsers, and the results by browser.
/// MainWindow owns it. GUI thread.
class BrowserPage final : public BasePage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserPage)
public:
    explicit BrowserPage(QWidget *parent = nullptr);

    void retranslateUi() override;

protected:
    [[nodiscard]] QList<ResultWidget *> makeResultWidgets(QList<CleanCategory> &categories,
                                                          QWidget *parent) override;

private:
    void buildSelectionBar();
    void onBrowserToggled(bool checked);
    void setBrowserIncluded(int type, bool included);

    BrowserCleaner *m_cleaner;
    QLabel *m_selectLabel = nullptr;
    QList<QCheckBox *> m_browserBoxes;
    QHash<QString, QPointer<BrowserGroupWidget>> m_groups; ///< by the browser's id
};
