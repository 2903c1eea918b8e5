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

/// A page of one of the three rule-driven engines, by category.
class ResultProbe : public QObject, public PageProbe
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResultProbe)
public:
    /// Compares what a scan has listed, given by the items' paths, with what there is to list.
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
    /// Whether the engine's records are those of a list that the page shows.
    [[nodiscard]] bool hasList() const;
    /// What tells an item from all others.
    [[nodiscard]] static QString keyOf(const CleanItem &item);

    /// The rows of the whole list, in order.
    [[nodiscard]] virtual QList<Row> allRows() const;
    /// Compares what is drawn of a row with its records.
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
    bool m_hasFigures = false; ///< even if they are naught
    bool m_hasNewListing = false; ///< listed since the last check
};

/// The page of the browsers, by browser.
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
