#pragma once

#include "pageprobe.h"

#include <QObject>

class LargeFilePage;
class QComboBox;
class World;

/// Checks the large-file page against its records and against the files of the World.
class LargeFileProbe final : public QObject, public PageProbe
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileProbe)
public:
    LargeFileProbe(LargeFilePage *page, const World *world);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QWidget *page() const override;
    [[nodiscard]] QStringList controls() const override;
    [[nodiscard]] QStringList startControls() const override;
    [[nodiscard]] bool isBusy() const override;
    [[nodiscard]] QAbstractScrollArea *list() const override;
    [[nodiscard]] Ticks ticks() const override;
    [[nodiscard]] QList<Row> visibleRows() const override;
    [[nodiscard]] std::optional<Row> rowWith(const QWidget *box) const override;
    void check() override;
    [[nodiscard]] int deletions() const override { return m_deletions; }
    [[nodiscard]] QStringList chosen() const override;

private:
    void storeScanOptions();
    void checkListing();
    void checkNothingIsMissing(const QStringList &listed) const;

    LargeFilePage *m_page;
    const World *m_world;
    QAbstractScrollArea *m_area;
    QWidget *m_results;
    QComboBox *m_sizes;
    // Options of the last scan:
    qint64 m_minimumSize = 0; ///< bytes
    QStringList m_drives;
    int m_listing = 0;
    int m_deletions = 0;
    bool m_hasNewListing = false; ///< a scan has ended since the last check
};
