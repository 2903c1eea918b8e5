#pragma once

#include "focuskeeper.h"

#include <QWidget>

class DashboardResultsPanel;
class DashboardStartPanel;
class QStackedWidget;

/// The home page with the one-click scan. It does not use any engine: it sends requests to the main
/// window by signals, and the main window calls it to show progress and results. MainWindow owns
/// it. GUI thread.
class DashboardPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardPage)
public:
    explicit DashboardPage(QWidget *parent = nullptr);

    /// Enters or leaves the scanning state.
    void setScanning(bool scanning);
    /// Shows the progress of the scan. A value above 100 percent is shown unchanged.
    void updateProgress(int percent, const QString &currentPath);
    /// Moves the sign that tells that the scan goes on.
    void showActivity();
    /// Shows the results panel, which then stays. Sizes are in bytes.
    void showResults(qint64 junkSize, qint64 browserSize, int registryCount);

    [[nodiscard]] bool hasResults() const { return m_hasResults; }
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void onScanClicked();
    void onCleanClicked();
    void onJunkCardClicked();
    void onBrowserCardClicked();
    void onRegistryCardClicked();

Q_SIGNALS:
    void scanRequested();
    void cleanRequested();
    void navigateToPage(int pageId);

private:
    QStackedWidget *m_panels;
    DashboardStartPanel *m_start;
    DashboardResultsPanel *m_results;
    FocusKeeper m_focus;
    bool m_hasResults = false;
};
