#pragma once

#include "pageprobe.h"

#include <QObject>
#include <QPointer>

#include <functional>

class BasePage;
class QLabel;
class QPushButton;
struct CleanCategory;
struct CleanItem;

/// Checks the page of a CleanEngine, which lists items by category: junk files and the registry.
class ResultProbe : public QObject, public PageProbe
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResultProbe)
public:
    /// Compares the keys of the listed items with what the scan should list.
    using ListingCheck = std::function<void(const QStringList &)>;

    ResultProbe(const QString &name, BasePage *page, const ListingCheck &checkListing);

    [[nodiscard]] QString name() const override { return m_name; }
    [[nodiscard]] QWidget *page() const override;
    [[nodiscard]] QStringList controls() const override;
    [[nodiscard]] QStringList startControls() const override;
    [[nodiscard]] bool isBusy() const override;
    [[nodiscard]] QAbstractScrollArea *list() const override;
    [[nodiscard]] Ticks ticks() const override;
    [[nodiscard]] QList<Row> visibleRows() const override;
    [[nodiscard]] std::optional<Row> rowWith(const QWidget *box) const override;
    void check() override;
    void checkDetails(const QWidget *dialog) const override;
    [[nodiscard]] int deletions() const override { return m_deletions; }
    [[nodiscard]] QStringList chosen() const override;

protected:
    [[nodiscard]] const QList<CleanCategory> &categories() const;
    /// Whether the page shows a list of the engine's records.
    [[nodiscard]] bool hasList() const;
    /// A unique name of the item.
    [[nodiscard]] static QString keyOf(const CleanItem &item);

    /// The rows of the whole list, in order.
    [[nodiscard]] virtual QList<Row> allRows() const;
    /// Compares the drawn texts and box of a row with its records.
    virtual void checkRow(const Row &row) const;
    [[nodiscard]] virtual QStringList rowNames() const;

private:
    void checkHeader(const Row &row) const;
    void checkItem(const Row &row) const;
    void checkListing();

    QString m_name;
    BasePage *m_page;
    ListingCheck m_checkListing;
    QWidget *m_emptyState;
    QAbstractScrollArea *m_area;
    int m_listing = 0;
    int m_deletions = 0;
    bool m_isScanning = false;
    bool m_isCleaning = false;
    bool m_hasFigures = false; ///< the page shows numbers and not "--"
    bool m_hasNewListing = false; ///< a scan has ended since the last check
};

/// Checks the browser page, which groups the categories by browser.
class BrowserProbe final : public ResultProbe
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserProbe)
public:
    using ResultProbe::ResultProbe;

    [[nodiscard]] QStringList controls() const override;
    [[nodiscard]] std::optional<Row> rowWith(const QWidget *box) const override;
    void check() override;

protected:
    [[nodiscard]] QList<Row> allRows() const override;
    void checkRow(const Row &row) const override;
    [[nodiscard]] QStringList rowNames() const override;
};
