#include "judge.h"

#include "actionlog.h"
#include "look.h"
#include "registryworld.h"
#include "world.h"

#include <QApplication>
#include <QHash>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;
using eyes::describe;

namespace {

constexpr int betweenLooks = 25; ///< actions; nobody has confirmed a deletion meanwhile

const QString runKey = u"hkcu\\software\\microsoft\\windows\\currentversion\\run\\"_s;

QString joined(const QStringList &list)
{
    return list.isEmpty() ? u"nothing"_s : list.mid(0, 5).join(u" | "_s);
}

QStringList without(const QStringList &list, const QStringList &others)
{
    const QSet<QString> set(others.begin(), others.end());
    QStringList rest;
    std::copy_if(list.begin(), list.end(), std::back_inserter(rest),
                 [&set](const QString &text) { return !set.contains(text); });
    return rest;
}

} // namespace

Judge::Judge(const QList<PageProbe *> &probes, World *world, RegistryWorld *registry)
    : m_probes(probes)
    , m_world(world)
    , m_registry(registry)
{
    for (const PageProbe *probe : probes)
        m_ticks.append(probe->ticks());
}

void Judge::expectFrom(const Action &action)
{
    if (action.probe && action.probe->name() == "startup"_L1
        && action.effect != Action::Effect::None)
        m_isStartListTouched = true;
    if (!action.isConfirmation)
        return;
    m_isConfirmed = true;
    if (action.chosen.isEmpty())
        return;
    if (action.chosen.constFirst().startsWith("HK"_L1))
        m_entries += action.chosen;
    else
        m_files += m_world->entriesAt(action.chosen);
}

void Judge::judge(const Action &action, bool isIdle)
{
    judgeFocus(action);
    QList<Ticks> now;
    for (const PageProbe *probe : std::as_const(m_probes))
        now.append(probe->ticks());
    judgeBeginning(isIdle);
    if (isIdle) {
        judgeScrolling(action);
        if (m_isConfirmed || m_judged % betweenLooks == 0)
            judgeFiles();
        judgeRegistry();
        const bool isForeseen = m_isSure && action.effect != Action::Effect::Unknown;
        for (qsizetype i = 0; i < now.size() && isForeseen; ++i)
            judgeTicks(action, m_probes.at(i), m_ticks.at(i), now.at(i));
        if (const auto *box = qobject_cast<const QMessageBox *>(QApplication::activeModalWidget()))
            judgeMessage(box);
        m_isConfirmed = false;
        m_isInterrupted = false;
        m_isStartListTouched = false;
        m_files.clear();
        m_entries.clear();
    }
    m_isSure = isIdle;
    m_ticks = now;
    ++m_judged;
}

// Every deletion begins with a confirmation, and a confirmation begins one, unless more is asked.
void Judge::judgeBeginning(bool isIdle)
{
    int begun = 0;
    for (const PageProbe *probe : std::as_const(m_probes))
        begun += probe->deletions();
    expect(begun == m_deletionCount || m_isConfirmed,
           [] { return u"a deletion began that nobody has confirmed"_s; });
    m_deletionCount = begun;
    if (!isIdle)
        return;
    if (m_isConfirmed && begun == m_settledCount) {
        expect(m_isInterrupted || QApplication::activeModalWidget(),
               [] { return u"what was confirmed did not begin"_s; });
        m_isConfirmed = false;
        m_files.clear();
        m_entries.clear();
    }
    m_settledCount = begun;
}

void Judge::judgeTicks(const Action &action, const PageProbe *probe, const Ticks &was,
                       const Ticks &is)
{
    if (was.listing != is.listing || was.keys.isEmpty())
        return;
    const bool isMeant = action.probe == probe && action.effect != Action::Effect::None;
    const int first = action.row.first;
    const int end = isMeant ? first + action.row.count : first;
    const bool wereAll = isMeant
        && std::all_of(was.values.cbegin() + first, was.values.cbegin() + end,
                       [](bool value) { return value; });
    const bool hasGone = is.keys.size() != was.keys.size();
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; hasGone && i < is.keys.size(); ++i)
        places.insert(is.keys.at(i), i);
    for (int i = 0; i < was.keys.size(); ++i) {
        const qsizetype place = hasGone ? places.value(was.keys.at(i), -1) : i;
        const auto tell = [&](const QString &what) {
            return u"%1: record %2, %3, %4"_s.arg(probe->name(), QString::number(i), was.keys.at(i),
                                                  what);
        };
        expect(place >= 0 || m_isConfirmed, [&] { return tell(u"is no longer listed"_s); });
        if (place < 0)
            continue;
        const bool hasChanged = was.values.at(i) != is.values.at(place);
        m_tickCount += hasChanged ? 1 : 0;
        if (!isMeant || i < first || i >= end) {
            const bool isTied = isMeant && probe->isTied(first, i);
            expect(!hasChanged || isTied,
                   [&] { return tell(u"was ticked or unticked by a click on something else"_s); });
        } else if (action.effect == Action::Effect::Exact) {
            const bool isExpected = action.row.meaning == Row::Meaning::All
                ? is.values.at(place) != wereAll
                : hasChanged;
            expect(isExpected, [&] { return tell(u"did not take the click on its box"_s); });
        }
    }
}

void Judge::judgeFocus(const Action &action) const
{
    const QWidget *focus = QApplication::focusWidget();
    if (focus) {
        expect(focus->isVisible() && focus->isEnabled(),
               [&] { return u"the focus is on %1, hidden or disabled"_s.arg(describe(focus)); });
        expect(!action.isTab || focus == action.focusBefore || !eyes::visibleRect(focus).isEmpty(),
               [&] { return u"the focus went to %1, out of sight"_s.arg(describe(focus)); });
    }
    if (!action.keepsFocus || !action.focusBefore || !m_isSure)
        return;
    expect(focus == action.focusBefore
               && focus->property("filePath").toString() == action.focusPath,
           [&] {
               return u"the focus was moved from %1 to %2"_s.arg(describe(action.focusBefore),
                                                                 describe(focus));
           });
}

void Judge::judgeScrolling(const Action &action) const
{
    if (!action.bar || !m_isSure)
        return;
    const int moved = (action.bar->value() - action.valueBefore) * action.direction;
    const bool isAtEnd = action.bar->value()
        == (action.direction > 0 ? action.bar->maximum() : action.bar->minimum());
    expect(moved > 0 || (moved == 0 && isAtEnd), [&] {
        return u"the wheel moved the list from %1 to %2 of %3"_s.arg(
            QString::number(action.valueBefore), QString::number(action.bar->value()),
            QString::number(action.bar->maximum()));
    });
}

void Judge::judgeFiles()
{
    const QStringList gone = m_world->lookForGone();
    m_lastGone = gone.size();
    m_deletedCount += static_cast<int>(gone.size());
    const QStringList stray = without(gone, m_files);
    expect(stray.isEmpty(), [&] {
        return u"deleted, though %1: %2"_s.arg(
            m_isConfirmed ? u"not ticked"_s : u"nothing was confirmed"_s, joined(stray));
    });
    const QStringList left = without(m_files, gone);
    expect(
        m_isInterrupted
            || std::all_of(left.begin(), left.end(),
                           [this](const QString &path) { return m_world->resistsDeletion(path); }),
        [&] { return u"ticked and confirmed, but not deleted: %1"_s.arg(joined(left)); });
}

void Judge::judgeRegistry()
{
    const RegistryState &now = m_registry->state();
    const RegistryState &before = m_registry->accepted();
    const QStringList lost = RegistryWorld::lost(before, now);
    const QStringList added = RegistryWorld::lost(now, before);
    if (lost.isEmpty() && added.isEmpty() && m_entries.isEmpty())
        return;
    if (m_isStartListTouched) {
        judgeStartList(lost, added);
    } else {
        const QStringList meant =
            RegistryWorld::lost(before, m_registry->without(before, m_entries));
        const QStringList stray = without(lost, meant);
        expect(stray.isEmpty() && added.isEmpty(), [&] {
            return u"the registry lost %1 and got %2"_s.arg(joined(stray), joined(added));
        });
        const QStringList left = without(meant, lost);
        expect(m_isInterrupted || left.isEmpty(),
               [&] { return u"ticked and confirmed, but not removed: %1"_s.arg(joined(left)); });
        m_deletedCount += static_cast<int>(lost.size());
    }
    m_registry->accept();
}

// A click adds one program or takes one out; a program of the same name gives way.
void Judge::judgeStartList(const QStringList &lost, const QStringList &added) const
{
    const auto isEntry = [](const QString &name) { return name.startsWith(runKey); };
    expect(
        lost.size() <= 1 && added.size() <= 1 && std::all_of(lost.begin(), lost.end(), isEntry)
            && std::all_of(added.begin(), added.end(), isEntry)
            && (lost.isEmpty() || added.isEmpty() || lost == added),
        [&] { return u"the start-up list lost %1 and got %2"_s.arg(joined(lost), joined(added)); });
}

// What is asked before a deletion, and told after it, is about what is ticked.
void Judge::judgeMessage(const QMessageBox *box) const
{
    static const QRegularExpression number(u"\\b(?:the selected|clean|Deleted) (\\d+) "_s);
    const QRegularExpressionMatch match = number.match(box->text());
    if (!match.hasMatch())
        return;
    const bool isQuestion = box->windowTitle().startsWith("Confirm"_L1);
    if (!isQuestion && !m_isConfirmed)
        return; // it stood there before
    qsizetype expected = m_lastGone;
    if (isQuestion) {
        for (const PageProbe *probe : m_probes) {
            if (probe->page()->isVisible())
                expected = probe->chosen().size();
        }
    }
    expect(match.captured(1).toLongLong() == expected,
           [&] { return u"\"%1\" is said of %2"_s.arg(box->text(), QString::number(expected)); });
}

void Judge::compareFully()
{
    judgeFiles();
    judgeRegistry();
    m_world->compareFully();
}
