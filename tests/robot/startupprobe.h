#pragma once

#include "pageprobe.h"

class QLabel;
class QLineEdit;
class RegistryWorld;
class StartupPage;

/// Checks the start-up page. Its ticks must be those of the registry's Run key.
class StartupProbe final : public PageProbe
{
    Q_DISABLE_COPY_MOVE(StartupProbe)
public:
    StartupProbe(StartupPage *page, const RegistryWorld *registry);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QWidget *page() const override;
    [[nodiscard]] QStringList controls() const override;
    [[nodiscard]] bool isBusy() const override;
    [[nodiscard]] QAbstractScrollArea *list() const override;
    [[nodiscard]] Ticks ticks() const override;
    [[nodiscard]] QList<Row> visibleRows() const override;
    [[nodiscard]] std::optional<Row> rowWith(const QWidget *box) const override;
    [[nodiscard]] bool canAffect(int record, int other) const override;
    void check() override;

private:
    [[nodiscard]] bool hasLoaded() const;
    [[nodiscard]] int expectedCount() const;

    StartupPage *m_page;
    const RegistryWorld *m_registry;
    QWidget *m_loading;
    QAbstractScrollArea *m_area;
    QLineEdit *m_search;
    QLabel *m_counts;
};
