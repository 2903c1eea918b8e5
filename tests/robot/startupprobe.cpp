#include "startupprobe.h"

#include "checks.h"
#include "registryworld.h"
#include "startuppage.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;
using checks::child;

namespace {

constexpr int rowSearchX = 200; ///< pixels from the left edge of the list

} // namespace

StartupProbe::StartupProbe(StartupPage *page, const RegistryWorld *registry)
    : m_page(page)
    , m_registry(registry)
    , m_loading(child(page, u"loadingPanel"_s))
    , m_area(child<QAbstractScrollArea>(page, u"startupScrollArea"_s))
    , m_search(child<QLineEdit>(page, u"searchEdit"_s))
    , m_counts(child<QLabel>(page, u"countsLabel"_s))
{
}

QString StartupProbe::name() const
{
    return u"startup"_s;
}

QWidget *StartupProbe::page() const
{
    return m_page;
}

QStringList StartupProbe::controls() const
{
    return {u"searchEdit"_s, u"searchEdit"_s, u"searchEdit"_s, u"searchEdit"_s, u"refreshBtn"_s};
}

bool StartupProbe::hasLoaded() const
{
    return m_counts->text().contains(u'·');
}

// The page adds its cards a few at a time.
bool StartupProbe::isBusy() const
{
    if (!m_loading->isHidden())
        return true;
    return hasLoaded()
        && m_area->viewport()->findChildren<QWidget *>(u"startupCard"_s).size() < expectedCount();
}

int StartupProbe::expectedCount() const
{
    const QString wanted = m_search->text().toLower();
    const auto &programs = m_registry->programs();
    return static_cast<int>(std::count_if(programs.cbegin(), programs.cend(),
                                          [&wanted](const RegistryWorld::Program &program) {
                                              return program.name.toLower().contains(wanted)
                                                  || program.path.toLower().contains(wanted);
                                          }));
}

QAbstractScrollArea *StartupProbe::list() const
{
    return hasLoaded() ? m_area : nullptr;
}

Ticks StartupProbe::ticks() const
{
    Ticks ticks;
    const auto list = m_registry->startList();
    for (const RegistryWorld::Program &program : m_registry->programs()) {
        ticks.keys.append(program.path);
        ticks.values.append(list.contains(program.path.toLower()));
    }
    return ticks;
}

QList<Row> StartupProbe::visibleRows() const
{
    if (!hasLoaded())
        return {};
    const auto &programs = m_registry->programs();
    const QList<bool> ticked = ticks().values;
    const QList<QWidget *> seen = eyes::findRows(m_area, rowSearchX, {u"startupCard"_s});
    expect(seen.isEmpty() == (expectedCount() == 0),
           [&] { return u"%1 cards are seen"_s.arg(seen.size()); });
    QList<Row> rows;
    for (QWidget *card : seen) {
        auto *box = card->findChild<QCheckBox *>();
        const QString path = card->property("appExePath").toString();
        const auto program = std::find_if(
            programs.cbegin(), programs.cend(),
            [&path](const RegistryWorld::Program &other) { return other.path == path; });
        expect(program != programs.cend(), [&] { return u"%1 is no program"_s.arg(path); });
        checks::compare(u"the program of the box"_s, box->property("exePath").toString(), path);
        checks::checkText(card, u"appName"_s, program->name);
        const auto number = static_cast<int>(program - programs.cbegin());
        expect(std::none_of(rows.cbegin(), rows.cend(),
                            [number](const Row &row) { return row.first == number; }),
               [&] { return u"%1 is shown twice"_s.arg(path); });
        checks::checkBox(box, ticked.at(number) ? 1 : 0, 1);
        const auto *status = card->findChild<QWidget *>(u"statusLabel"_s);
        expect(status->isHidden() != ticked.at(number),
               [&] { return u"the status of %1 is not that of its box"_s.arg(path); });
        rows.append({card, Row::Meaning::Box, number, 1, box, eyes::visibleRect(card)});
    }
    return rows;
}

std::optional<Row> StartupProbe::rowWith(const QWidget *box) const
{
    const qsizetype number = ticks().keys.indexOf(box->property("exePath").toString());
    if (number < 0)
        return std::nullopt;
    return Row{nullptr, Row::Meaning::Box, static_cast<int>(number), 1, nullptr, {}};
}

// The Run key has one value per name; the case of letters does not count.
bool StartupProbe::canAffect(int record, int other) const
{
    const auto &programs = m_registry->programs();
    return programs.at(record).name.toLower() == programs.at(other).name.toLower();
}

void StartupProbe::check()
{
    if (!hasLoaded() || isBusy())
        return;
    const QList<bool> ticked = ticks().values;
    checks::compare(u"the counts"_s, m_counts->text(),
                    u"%1 programs · %2 startup items"_s.arg(QString::number(ticked.size()),
                                                            QString::number(ticked.count(true))));
    const auto cards = m_area->viewport()->findChildren<QWidget *>(u"startupCard"_s).size();
    expect(cards == expectedCount(), [&] {
        return u"%1 cards stand for %2 programs"_s.arg(QString::number(cards),
                                                       QString::number(expectedCount()));
    });
}
