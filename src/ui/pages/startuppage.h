#pragma once

#include "startupmanager.h"

#include <QFileIconProvider>
#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QScrollArea;
class QVBoxLayout;

/// The page of the start-up programs: every installed program with a check box that makes it start
/// with the session or not. Loads when it is shown for the first time, after it has painted.
class StartupPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StartupPage)
public:
    explicit StartupPage(QWidget *parent = nullptr);

public Q_SLOTS:
    void onRefreshClicked();
    void onSearchChanged(QString text);
    void onItemToggled(bool checked);
    void refreshList();
    void doLoadApps();
    void updateLoadingAnimation();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLayout *buildHeader();
    QLayout *buildTools();
    QWidget *buildLoadingPanel();
    void startLoading();
    void addCards();
    void showCounts();
    void showStates();
    void showWarning(const QString &text);

    StartupManager m_manager;
    QList<StartupApp> m_apps; ///< sorted as they are shown
    qsizetype m_programCount = 0;
    QList<StartupApp> m_pendingApps; ///< chosen by the search and not yet a card
    QFileIconProvider m_icons;
    QTimer m_cardTimer; ///< makes the cards that are not seen at once
    QTimer m_loadingTimer;
    int m_loadingFrame = 0;
    bool m_hasLoaded = false;

    QLineEdit *m_search = nullptr;
    QLabel *m_counts = nullptr;
    QWidget *m_loadingPanel = nullptr;
    QLabel *m_loadingSymbol = nullptr;
    QScrollArea *m_scrollArea = nullptr;
    QVBoxLayout *m_list = nullptr;
};
