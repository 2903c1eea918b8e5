#include "resultprobe.h"

#include "application.h"
#include "basepage.h"
#include "browsergroupwidget.h"
#include "browsersubitem.h"
#include "categorywidget.h"
#include "checks.h"
#include "cleanengine.h"
#include "cleanitemwidget.h"
#include "registryworld.h"
#include "text.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using checks::child;
using eyes::describe;
using State = CleanEngine::State;

namespace {

constexpr int rowSearchX = 60; ///< pixels from the left edge of the list

bool isTicked(const CleanCategory &category, const CleanItem &item)
{
    return category.checked && item.checked;
}

int tickedCount(const CleanCategory &category)
{
    return static_cast<int>(
        std::count_if(category.items.cbegin(), category.items.cend(),
                      [&](const CleanItem &item) { return isTicked(category, item); }));
}

qint64 tickedSize(const CleanCategory &category)
{
    qint64 size = 0;
    for (const CleanItem &item : category.items)
        size += isTicked(category, item) ? item.size : 0;
    return size;
}

} // namespace

ResultProbe::ResultProbe(const QString &name, BasePage *page, const ListingCheck &checkListing)
    : m_name(name)
    , m_page(page)
    , m_checkListing(checkListing)
    , m_emptyState(child(page, u"emptyState"_s))
    , m_area(child<QAbstractScrollArea>(page, u"contentScrollArea"_s))
{
    const CleanEngine *engine = page->engine();
    // A run has ended when the page has shown its end. The engine's state changes earlier.
    connect(engine, &CleanEngine::stateChanged, this, [this](State state) {
        if (state == State::Scanning) {
            ++m_listing;
            m_hasFigures = false;
            m_hasNewListing = false; // replaced before it was checked
        }
        m_isScanning = state == State::Scanning || (state != State::Cancelled && m_isScanning);
        m_isCleaning = state == State::Cleaning || m_isCleaning;
        m_deletions += state == State::Cleaning ? 1 : 0;
    });
    connect(page, &BasePage::cleanFinished, this, [this] {
        ++m_listing;
        m_isCleaning = false;
        m_hasFigures = false;
    });
    connect(page, &BasePage::scanFinished, this, [this] {
        ++m_listing;
        m_isScanning = false;
        m_hasNewListing = true;
        m_hasFigures = true;
    });
}

QWidget *ResultProbe::page() const
{
    return m_page;
}

QStringList ResultProbe::controls() const
{
    return {u"scanBtn"_s, u"cleanBtn"_s, u"cleanBtn"_s};
}

QStringList ResultProbe::startControls() const
{
    return {u"scanBtn"_s};
}

bool ResultProbe::isBusy() const
{
    const State state = m_page->engine()->state();
    return state == State::Scanning || state == State::Cleaning || m_isScanning || m_isCleaning;
}

bool ResultProbe::hasList() const
{
    return m_emptyState->isHidden();
}

QAbstractScrollArea *ResultProbe::list() const
{
    return hasList() ? m_area : nullptr;
}

// While a scan runs, its thread owns the records and the page shows no list.
const QList<CleanCategory> &ResultProbe::categories() const
{
    static const QList<CleanCategory> noCategories;
    return hasList() ? std::as_const(*m_page->engine()).result().categories : noCategories;
}

QString ResultProbe::keyOf(const CleanItem &item)
{
    if (item.registryRoot.isEmpty())
        return item.path;
    return item.registryRoot + (item.isUserClass ? RegistryWorld::userSuffix : QString()) + u'\\'
        + item.registryKey;
}

Ticks ResultProbe::ticks() const
{
    Ticks ticks{m_listing, {}, {}};
    for (const CleanCategory &category : categories()) {
        for (const CleanItem &item : category.items) {
            ticks.keys.append(item.path);
            ticks.values.append(isTicked(category, item));
        }
    }
    return ticks;
}

QStringList ResultProbe::chosen() const
{
    QStringList keys;
    for (const CleanCategory &category : categories()) {
        for (const CleanItem &item : category.items) {
            if (isTicked(category, item))
                keys.append(keyOf(item));
        }
    }
    return keys;
}

QStringList ResultProbe::rowNames() const
{
    return {u"categoryHeader"_s, u"cleanItemWidget"_s, u"loadMoreBtn"_s};
}

QList<Row> ResultProbe::allRows() const
{
    QList<Row> rows;
    int first = 0;
    auto category = categories().cbegin();
    const auto widgets = m_area->findChildren<CategoryWidget *>();
    expect(widgets.size() == categories().size(), [&] {
        return u"%1 categories are shown as %2"_s.arg(QString::number(categories().size()),
                                                      QString::number(widgets.size()));
    });
    for (const CategoryWidget *widget : widgets) {
        auto *header = child(widget, u"categoryHeader"_s);
        const int count = static_cast<int>(category->items.size());
        rows.append({header, Row::Meaning::All, first, count, child(header, u"categoryCheck"_s)});
        if (widget->isExpanded()) {
            auto *content = child(widget, u"categoryContent"_s);
            const auto items =
                content->findChildren<CleanItemWidget *>(QString(), Qt::FindDirectChildrenOnly);
            for (int i = 0; i < items.size(); ++i)
                rows.append(
                    {items.at(i), Row::Meaning::Anywhere, first + i, 1, items.at(i)->focusProxy()});
            const qsizetype remaining = count - items.size();
            auto *more = content->findChild<QPushButton *>(u"loadMoreBtn"_s);
            expect(remaining == 0
                       ? !more || more->isHidden()
                       : more && more->text() == u"Load more (%1 remaining)"_s.arg(remaining),
                   [&] {
                       return u"%1 rows remain, and there is %2"_s.arg(QString::number(remaining),
                                                                       describe(more));
                   });
            if (remaining > 0)
                rows.append({more});
        }
        first += count;
        ++category;
    }
    return rows;
}

QList<Row> ResultProbe::visibleRows() const
{
    if (!hasList())
        return {};
    const QList<Row> all = allRows();
    const QList<QWidget *> seen = eyes::findRows(m_area, rowSearchX, rowNames());
    const auto find = [&all](const QWidget *widget) {
        return std::find_if(all.cbegin(), all.cend(),
                            [widget](const Row &row) { return row.widget == widget; });
    };
    QList<Row> rows;
    auto next = seen.isEmpty() ? all.cend() : find(seen.constFirst());
    const QScrollBar *bar = m_area->verticalScrollBar();
    expect(!seen.isEmpty() || all.isEmpty(), [] { return u"the list shows no row"_s; });
    expect(bar->value() > 0 || next == all.cbegin(),
           [] { return u"the first row of the list is not at its top"_s; });
    for (QWidget *widget : seen) {
        expect(next != all.cend() && next->widget == widget,
               [&] { return u"%1 does not follow the row above it"_s.arg(describe(widget)); });
        Row row = *next++;
        row.rect = eyes::visibleRect(widget);
        checkRow(row);
        rows.append(row);
    }
    expect(bar->value() < bar->maximum() || next == all.cend(),
           [] { return u"the last row of the list is not at its end"_s; });
    return rows;
}

std::optional<Row> ResultProbe::rowWith(const QWidget *box) const
{
    if (!hasList() || !qobject_cast<const QCheckBox *>(box))
        return std::nullopt;
    const QList<Row> all = allRows();
    const auto row = std::find_if(all.cbegin(), all.cend(),
                                  [box](const Row &other) { return other.box == box; });
    return row == all.cend() ? std::nullopt : std::optional(*row);
}

void ResultProbe::checkRow(const Row &row) const
{
    if (row.meaning == Row::Meaning::All)
        checkHeader(row);
    else if (row.meaning == Row::Meaning::Anywhere)
        checkItem(row);
}

void ResultProbe::checkHeader(const Row &row) const
{
    int first = 0;
    auto category = categories().cbegin();
    while (first != row.first)
        first += static_cast<int>((category++)->items.size());
    const auto labels = row.widget->findChildren<QLabel *>(Qt::FindDirectChildrenOnly);
    expect(std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel *label) {
                           return label->text() == category->name && eyes::isDrawn(label);
                       })
               || !eyes::isDrawn(row.box),
           [&] { return u"a header does not say \"%1\""_s.arg(category->name); });
    checks::checkText(row.widget, u"itemCount"_s, u"%1 items"_s.arg(row.count));
    if (m_page->showsSizes())
        checks::checkText(row.widget, u"categorySize"_s, checks::sizeText(tickedSize(*category)));
    checks::checkBox(row.box, tickedCount(*category), row.count);
}

void ResultProbe::checkItem(const Row &row) const
{
    int first = 0;
    auto category = categories().cbegin();
    while (first + category->items.size() <= row.first)
        first += static_cast<int>((category++)->items.size());
    const CleanItem &item = category->items.at(row.first - first);
    checks::checkText(row.widget, u"itemName"_s, item.name);
    checks::checkText(row.widget, u"itemPath"_s, item.path);
    if (m_page->showsSizes())
        checks::checkText(row.widget, u"itemSize"_s, checks::sizeText(item.size));
    checks::checkBox(row.box, isTicked(*category, item) ? 1 : 0, 1);
}

void ResultProbe::check()
{
    qint64 size = 0;
    int count = 0;
    for (const CleanCategory &category : categories()) {
        size += tickedSize(category);
        count += tickedCount(category);
    }
    const QString selection = child<QLabel>(m_page, u"selectionLabel"_s)->text();
    const QString statistic = child<QLabel>(m_page, u"statisticValue"_s)->text();
    if (!m_hasFigures) {
        checks::compare(u"the selection"_s, selection,
                        m_page->showsSizes() ? u"Selected: --"_s : u"选中: --"_s);
        checks::compare(u"the statistic"_s, statistic, u"--"_s);
    } else if (m_page->showsSizes()) {
        checks::compare(
            u"the selection"_s, selection,
            u"Selected: %1 items, %2"_s.arg(QString::number(count), checks::sizeText(size)));
        checks::compare(u"the statistic"_s, statistic, checks::sizeText(size));
    } else {
        checks::compare(u"the selection"_s, selection, u"Selected: %1 items"_s.arg(count));
        checks::compare(u"the statistic"_s, statistic, u"%1 items"_s.arg(count));
    }
    const bool isEnabled = child<QPushButton>(m_page, u"cleanBtn"_s)->isEnabled();
    expect(isBusy() || isEnabled == (count > 0), [&] {
        return u"with %1 ticked the clean button is %2"_s.arg(
            QString::number(count), isEnabled ? u"enabled"_s : u"disabled"_s);
    });
    expect(isBusy() || child<QPushButton>(m_page, u"scanBtn"_s)->isEnabled(),
           [] { return u"the scan button is still disabled"_s; });
    if (m_hasNewListing)
        checkListing();
}

void ResultProbe::checkDetails(const QWidget *dialog) const
{
    const QString title = child<QLabel>(dialog, u"detailTitle"_s)->text();
    const auto category = std::find_if(
        categories().cbegin(), categories().cend(),
        [&title](const CleanCategory &other) { return singleLine(other.name) == title; });
    expect(category != categories().cend(),
           [&] { return u"details of \"%1\" are shown, which is not listed"_s.arg(title); });
    const auto *area = child<QAbstractScrollArea>(dialog, u"detailScrollArea"_s);
    const auto all = child(dialog, u"detailList"_s)->findChildren<QWidget *>(u"detailItem"_s);
    const QList<QWidget *> seen = eyes::findRows(area, rowSearchX, {u"detailItem"_s});
    expect(!seen.isEmpty(), [] { return u"the details show no row"_s; });
    qsizetype number = all.indexOf(seen.constFirst());
    for (const QWidget *row : seen) {
        expect(number < all.size() && all.at(number) == row,
               [&] { return u"%1 does not follow the row above it"_s.arg(describe(row)); });
        const CleanItem &item = category->items.at(number++);
        checks::checkText(row, u"itemName"_s, item.name);
        if (item.registryRoot.isEmpty())
            checks::checkText(row, u"itemSize"_s, checks::sizeText(item.size));
        else if (!item.description.isEmpty())
            checks::checkText(row, u"itemDescription"_s, item.description);
    }
    const QScrollBar *bar = area->verticalScrollBar();
    expect(bar->value() < bar->maximum() || number == category->items.size(),
           [] { return u"the details end before the last item"_s; });
}

void ResultProbe::checkListing()
{
    m_hasNewListing = false;
    QStringList keys;
    for (const CleanCategory &category : categories()) {
        for (const CleanItem &item : category.items)
            keys.append(keyOf(item));
    }
    m_checkListing(keys);
}

QStringList BrowserProbe::controls() const
{
    return {u"scanBtn"_s, u"cleanBtn"_s, u"cleanBtn"_s, u"browserSelectionBar"_s};
}

// A box in the selection bar acts on all items of its browser.
std::optional<Row> BrowserProbe::rowWith(const QWidget *box) const
{
    const auto *checkBox = qobject_cast<const QCheckBox *>(box);
    if (!checkBox || !checkBox->property("browserType").isValid())
        return ResultProbe::rowWith(box);
    Row row{nullptr, Row::Meaning::All, -1, 0, nullptr};
    int first = 0;
    for (const CleanCategory &category : categories()) {
        const int count = static_cast<int>(category.items.size());
        if (category.name.startsWith(checkBox->text() + " - "_L1)) {
            row.first = row.first < 0 ? first : row.first;
            row.count += count;
        }
        first += count;
    }
    return row.count > 0 ? std::optional(row) : std::nullopt;
}

void BrowserProbe::check()
{
    ResultProbe::check();
    const auto boxes = child(page(), u"browserSelectionBar"_s)->findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes) {
        for (const CleanCategory &category : categories())
            expect(box->isChecked() || tickedCount(category) == 0
                       || !category.name.startsWith(box->text() + " - "_L1),
                   [&] { return u"%1 is left out but ticked"_s.arg(category.name); });
    }
}

QStringList BrowserProbe::rowNames() const
{
    return {u"browserGroupHeader"_s, u"browserSubItem"_s};
}

QList<Row> BrowserProbe::allRows() const
{
    QList<Row> rows;
    int first = 0;
    auto category = categories().cbegin();
    const auto groups = list()->findChildren<BrowserGroupWidget *>();
    for (const BrowserGroupWidget *group : groups) {
        auto *header = child(group, u"browserGroupHeader"_s);
        const qsizetype place = rows.size();
        rows.append({header, Row::Meaning::All, first, 0, child(header, u"browserCheck"_s)});
        const auto subItems = group->findChildren<BrowserSubItem *>();
        for (BrowserSubItem *subItem : subItems) {
            expect(category != categories().cend(),
                   [] { return u"more kinds of data are shown than were found"_s; });
            const int count = static_cast<int>(category->items.size());
            if (group->isExpanded())
                rows.append(
                    {subItem, Row::Meaning::All, first, count, child(subItem, u"subItemCheck"_s)});
            first += count;
            rows[place].count += count;
            ++category;
        }
    }
    expect(category == categories().cend(), [] { return u"not all kinds of data are shown"_s; });
    return rows;
}

void BrowserProbe::checkRow(const Row &row) const
{
    int first = 0;
    auto category = categories().cbegin();
    while (first != row.first)
        first += static_cast<int>((category++)->items.size());
    if (row.widget->objectName() == "browserSubItem"_L1) {
        checks::checkText(row.widget, u"subItemName"_s, category->name.section(u" - "_s, 1));
        checks::checkText(row.widget, u"subItemCount"_s, u"%1 items"_s.arg(row.count));
        checks::checkText(row.widget, u"subItemSize"_s, checks::sizeText(category->totalSize()));
        checks::checkBox(row.box, tickedCount(*category), row.count);
        return;
    }
    checks::checkText(row.widget, u"browserName"_s, category->name.section(u" - "_s, 0, 0));
    checks::checkText(row.widget, u"browserItemCount"_s, u"%1 items"_s.arg(row.count));
    int ticked = 0;
    for (; first < row.first + row.count; ++category) {
        ticked += tickedCount(*category);
        first += static_cast<int>(category->items.size());
    }
    checks::checkBox(row.box, ticked, row.count);
}
