#pragma once

#include "resultwidget.h"

#include <QList>
#include <QString>

class BrowserSubItem;
class QCheckBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// The results of one browser: a header with a tri-state check box and, when expanded, a row for
/// each kind of data. The list of BrowserPage owns it. GUI thread.
class BrowserGroupWidget final : public ResultWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserGroupWidget)
public:
    /// @p name is the title and also selects the icon.
    explicit BrowserGroupWidget(const QString &name, QWidget *parent = nullptr);

    /// Appends a row for @p category, a record inside the result of the engine.
    void addCategory(CleanCategory *category);
    /// Excludes all rows from a clean, or includes them again with their former check states.
    void setIncluded(bool included);
    [[nodiscard]] qsizetype subItemCount() const { return m_subItems.size(); }

    [[nodiscard]] QList<QWidget *> focusChain() const override;
    [[nodiscard]] Selection selection() const override;
    void setShowSizes(bool show) override;

    /// The icon for the browser @p name in any case. An unknown browser gets a generic icon.
    [[nodiscard]] static QString iconPath(const QString &name);

protected:
    void showExpanded(bool expanded) override;

private:
    void buildHeader(const QString &name);
    void onHeaderChanged(int state);
    void showCheckState();
    void showCount();

    QWidget *m_header;
    QWidget *m_content;
    QVBoxLayout *m_contentLayout;
    QLabel *m_count = nullptr;
    QCheckBox *m_checkBox = nullptr;
    QPushButton *m_expandButton = nullptr;
    QList<BrowserSubItem *> m_subItems;
    bool m_showSizes = true;
};
