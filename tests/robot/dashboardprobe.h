#pragma once

#include "pageprobe.h"

#include <QObject>

#include <optional>

class DashboardPage;
class FullScan;

/// Checks the dashboard. The page has no list; its figures must be those of the last full scan.
class DashboardProbe final : public QObject, public PageProbe
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardProbe)
public:
    DashboardProbe(DashboardPage *page, const FullScan *scan);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QWidget *page() const override;
    [[nodiscard]] QStringList controls() const override;
    [[nodiscard]] QAbstractScrollArea *list() const override { return nullptr; }
    void check() override;

private:
    void updateFigures();

    DashboardPage *m_page;
    /// The texts that must be shown; empty before the first scan.
    QStringList m_figures;
};
