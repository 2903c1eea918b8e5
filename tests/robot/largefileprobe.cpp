#include "largefileprobe.h"

#include "checks.h"
#include "largefileadapter.h"
#include "largefilepage.h"
#include "largefilescanner.h"
#include "scanprogressdialog.h"
#include "world.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using checks::child;

namespace {

constexpr int rowSearchX = 200; ///< pixels from the left edge of the list

} // namespace

LargeFileProbe::LargeFileProbe(LargeFilePage *page, const World *world)
    : m_page(page)
    , m_world(world)
    , m_area(child<QAbstractScrollArea>(page, u"fileCardList"_s))
    , m_results(child(page, u"resultsView"_s))
    , m_sizes(child<QComboBox>(page, u"sizeCombo"_s))
{
    const LargeFileScanner *scanner = page->scanner();
    connect(scanner, &LargeFileScanner::scanStarted, this, &LargeFileProbe::storeScanOptions);
    largefileadapter::connectDeletion(page, this, [this] { ++m_deletions; });
    connect(scanner, &LargeFileScanner::scanFinished, this, [this](int count) {
        ++m_listing;
        m_hasNewListing = count > 0; // without results the page shows no list
        if (count == 0)
            checkNothingIsMissing({});
    });
}

QString LargeFileProbe::name() const
{
    return u"large"_s;
}

QWidget *LargeFileProbe::page() const
{
    return m_page;
}

QStringList LargeFileProbe::controls() const
{
    return {u"deleteBtn"_s, u"deleteBtn"_s, u"deleteBtn"_s, u"backBtn"_s};
}

QStringList LargeFileProbe::startControls() const
{
    return {u"startScanBtn"_s, u"startScanBtn"_s, u"startScanBtn"_s, u"driveCard"_s,
            u"sizeCombo"_s};
}

bool LargeFileProbe::isBusy() const
{
    const auto dialogs = m_page->findChildren<ScanProgressDialog *>();
    // The results stay locked until the page has removed the deleted files from its list.
    return largefileadapter::isBusy(m_page) || !m_results->isEnabled()
        || std::any_of(dialogs.begin(), dialogs.end(),
                       [](const QWidget *dialog) { return dialog->isVisible(); });
}

QAbstractScrollArea *LargeFileProbe::list() const
{
    return m_results->isHidden() ? nullptr : m_area;
}

Ticks LargeFileProbe::ticks() const
{
    Ticks ticks{m_listing, {}, largefileadapter::ticks(m_page)};
    const QList<LargeFileInfo> files = largefileadapter::files(m_page);
    for (const LargeFileInfo &file : files)
        ticks.keys.append(file.path);
    return ticks;
}

QStringList LargeFileProbe::chosen() const
{
    const Ticks now = ticks();
    QStringList paths;
    for (qsizetype i = 0; i < now.keys.size(); ++i) {
        if (now.values.at(i))
            paths.append(now.keys.at(i));
    }
    return paths;
}

QList<Row> LargeFileProbe::visibleRows() const
{
    if (!list())
        return {};
    const QList<LargeFileInfo> files = largefileadapter::files(m_page);
    const QList<bool> ticks = largefileadapter::ticks(m_page);
    const QList<QWidget *> seen = eyes::findRows(m_area, rowSearchX, {u"fileCard"_s});
    const int top = eyes::visibleRect(m_area->viewport()).top();
    expect(seen.isEmpty() == files.isEmpty(), [&] {
        return u"%1 cards are seen of %2"_s.arg(QString::number(seen.size()),
                                                QString::number(files.size()));
    });
    QList<Row> rows;
    for (QWidget *card : seen) {
        const QRect rect = eyes::visibleRect(card);
        const int number = rows.isEmpty() ? largefileadapter::rowAt(m_area, rect.top() - top)
                                          : rows.constLast().first + 1;
        expect(number < files.size()
                   && number == largefileadapter::rowAt(m_area, rect.bottom() - top),
               [&] {
                   return u"%1 stands where row %2 belongs"_s.arg(eyes::describe(card),
                                                                  QString::number(number));
               });
        const LargeFileInfo &file = files.at(number);
        checks::checkText(card, u"fileName"_s, file.name);
        checks::checkText(card, u"fileFolder"_s, file.directory);
        checks::checkText(card, u"sizeBadge"_s, checks::sizeText(file.size));
        auto *box = card->findChild<QCheckBox *>();
        for (const QWidget *widget : {card, static_cast<QWidget *>(box)})
            checks::compare(u"the path of row %1"_s.arg(number),
                            widget->property("filePath").toString(), file.path);
        checks::checkBox(box, ticks.at(number) ? 1 : 0, 1);
        rows.append({card, Row::Meaning::Box, number, 1, box, rect});
    }
    // A card that is in none of these rows must not be visible.
    const auto cards = m_area->viewport()->findChildren<QWidget *>(u"fileCard"_s);
    for (const QWidget *card : cards)
        expect(!eyes::visibleRect(card).intersects(eyes::visibleRect(m_area->viewport()))
                   || std::any_of(seen.begin(), seen.end(),
                                  [card](const QWidget *other) { return other == card; }),
               [&] { return u"%1 lies under another one"_s.arg(eyes::describe(card)); });
    return rows;
}

std::optional<Row> LargeFileProbe::rowWith(const QWidget *box) const
{
    const QString path = box->property("filePath").toString();
    const qsizetype number = path.isEmpty() ? -1 : ticks().keys.indexOf(path);
    if (number < 0 || !list())
        return std::nullopt;
    return Row{nullptr, Row::Meaning::Box, static_cast<int>(number), 1, nullptr, {}};
}

void LargeFileProbe::check()
{
    if (isBusy() || !list())
        return;
    const QList<LargeFileInfo> files = largefileadapter::files(m_page);
    const QList<bool> ticks = largefileadapter::ticks(m_page);
    qint64 all = 0;
    qint64 size = 0;
    int count = 0;
    for (qsizetype i = 0; i < files.size(); ++i) {
        all += files.at(i).size;
        if (!ticks.at(i))
            continue;
        size += files.at(i).size;
        ++count;
    }
    checks::compare(u"the summary"_s, child<QLabel>(m_page, u"summaryLabel"_s)->text(),
                    u"Found %1 large files, total %2"_s.arg(QString::number(files.size()),
                                                            checks::sizeText(all)));
    checks::compare(
        u"the selection"_s, child<QLabel>(m_page, u"selectedLabel"_s)->text(),
        u"Selected: %1 files (%2)"_s.arg(QString::number(count), checks::sizeText(size)));
    expect(child<QPushButton>(m_page, u"deleteBtn"_s)->isEnabled() == (count > 0),
           [&] { return u"the button to delete does not know that %1 are ticked"_s.arg(count); });
    if (m_hasNewListing)
        checkListing();
}

void LargeFileProbe::storeScanOptions()
{
    ++m_listing;
    m_hasNewListing = false;
    const QString size = m_sizes->currentText();
    m_minimumSize =
        size.section(u' ', 0, 0).toLongLong() * (size.endsWith("GB"_L1) ? 1 << 30 : 1 << 20);
    m_drives.clear();
    const auto cards = m_page->findChildren<QWidget *>(u"driveCard"_s);
    for (qsizetype i = 0; i < cards.size(); ++i) {
        if (cards.at(i)->findChild<QCheckBox *>()->isChecked())
            m_drives.append(m_world->drives().at(i));
    }
}

void LargeFileProbe::checkListing()
{
    m_hasNewListing = false;
    const QList<LargeFileInfo> files = largefileadapter::files(m_page);
    QStringList paths;
    for (const LargeFileInfo &file : files) {
        expect(paths.isEmpty() || file.size <= files.at(paths.size() - 1).size,
               [&] { return u"%1 does not stand in the order of sizes"_s.arg(file.path); });
        const QFileInfo info(file.path);
        const QString real = QFileInfo(info.path()).canonicalFilePath() + u'/' + file.name;
        expect(m_world->mayBeListed(World::Owner::Large, real),
               [&] { return u"%1 is listed"_s.arg(file.path); });
        expect(file.size == info.size() && file.size >= m_minimumSize,
               [&] { return u"%1 is listed with a wrong size"_s.arg(file.path); });
        paths.append(file.path);
    }
    checkNothingIsMissing(paths);
}

void LargeFileProbe::checkNothingIsMissing(const QStringList &listed) const
{
    const QStringList expected = m_world->expectedPaths(World::Owner::Large, m_minimumSize);
    for (const QString &path : expected) {
        const bool isScanned =
            std::any_of(m_drives.cbegin(), m_drives.cend(),
                        [&path](const QString &drive) { return path.startsWith(drive + u'/'); });
        expect(!isScanned || listed.contains(path),
               [&] { return u"%1 is not listed"_s.arg(path); });
    }
}
