#pragma once

#include "focuskeeper.h"

#include <QWidget>

class DashboardResultsPanel;
class DashboardStartPanel;
class QStackedWidget;

/// The home page with the one-click scan. It drives no engine: it asks the main window by signals,
/// which calls back what there is to show.
class DashboardPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardPage)
public:
    explicit DashboardPage(QWidget *parent = nullptr);

    /// Enters or leaves the scanning state.
    void setScanning(bool scanning);
    /// Shows how far the scan has come. More than 100 percent is written as it is.
    void updateProgress(int percent, const QString &currentPath);
    /// Shows what was found, sizes in bytes, on the panel that stays from then on.
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
