#pragma once

#include "startupmanager.h"

#include <QFileIconProvider>
#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QScrollArea;
class QVBoxLayout;

/// The page of the start-up programs. Each installed program has a check box for its start-up
/// entry. MainWindow owns it. GUI thread.
///
/// The list loads after the page has been shown and painted for the first time.
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
    QList<StartupApp> m_apps; ///< in the order of the list
    qsizetype m_programCount = 0;
    QList<StartupApp> m_pendingApps; ///< match the search and have no card yet
    QFileIconProvider m_icons;
    QTimer m_cardTimer; ///< creates the remaining cards
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
