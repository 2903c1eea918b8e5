#pragma once

#include "pageprobe.h"

#include <QObject>

#include <optional>

class DashboardPage;
class FullScan;

/// The dashboard. It lists nothing, but its figures are those of its last scan.
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
    QStringList m_figures; ///< as they must be shown; none before the first scan
};
