#pragma once

#include "windowdrag.h"

#include <QList>
#include <QSystemTrayIcon>
#include <QWidget>

class DashboardPage;
class FullScan;
class NavButton;
class QMenu;
class QStackedWidget;
class QTranslator;
class SettingsDialog;
class TitleBar;

/// The main window: frameless, with a navigation column, a title bar, a stack of pages and a tray
/// icon. Application creates and owns it. GUI thread.
class MainWindow : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindow)
public:
    MainWindow();
    ~MainWindow() override;

    [[nodiscard]] int currentPage() const { return m_currentPage; }

public Q_SLOTS:
    void onNavButtonClicked(int index);
    void onMinimizeClicked();
    void onMaximizeClicked();
    void onCloseClicked();
    void onSettingsClicked();
    void onAboutClicked();
    void onHelpClicked();
    void onSupportClicked();
    /// A hook for statistics after a scan. It does nothing today.
    void updateStats();
    /// Starts a scan of all three engines. The dashboard shows its progress. While an engine
    /// cleans, a message is shown instead.
    void onDashboardScanRequested();
    /// Does nothing: the program cleans only what a page has listed, and the dashboard lists
    /// nothing.
    void onDashboardCleanRequested();
    void onDashboardNavigate(int pageId);
    void onTrayIconActivated(QSystemTrayIcon::ActivationReason reason);
    void onTrayShowWindow();
    void onTrayExit();
    void onLanguageChanged(QString language);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

    /// Whether the tray icon is visible and the desktop has a tray. Without them, the user could
    /// not bring a hidden window back.
    [[nodiscard]] virtual bool isTrayShown() const;
    virtual void showTrayMessage(const QString &title, const QString &text, int milliseconds);

private:
    void buildLayout();
    QWidget *buildLogo();
    void buildNavigation();
    void buildPages();
    void connectDashboard();
    void buildTray();
    void connectTitleBar();
    void applyStyleSheet();
    void switchToPage(int index);
    [[nodiscard]] bool isInside(const QWidget *part, QPoint position) const;

    QList<NavButton *> m_navButtons;
    TitleBar *m_titleBar = nullptr;
    QWidget *m_navWidget = nullptr;
    QStackedWidget *m_pageStack = nullptr;
    DashboardPage *m_dashboardPage = nullptr;
    SettingsDialog *m_settingsDialog = nullptr; ///< null until its first use
    FullScan *m_fullScan;
    QSystemTrayIcon *m_trayIcon = nullptr;
    QMenu *m_trayMenu = nullptr;
    QTranslator *m_translator = nullptr;
    WindowDrag m_drag{this};
    int m_currentPage = 0;
};
