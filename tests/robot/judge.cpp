#include "judge.h"

#include "actionlog.h"
#include "checks.h"
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

/// Actions between two checks of the files while no deletion is confirmed.
constexpr int fileCheckInterval = 25;

const QString runKey = u"hkcu\\software\\microsoft\\windows\\currentversion\\run\\"_s;

QString joinFirst(const QStringList &list)
{
    return list.isEmpty() ? u"nothing"_s : list.mid(0, 5).join(u" | "_s);
}

QStringList subtract(const QStringList &list, const QStringList &others)
{
    const QSet<QString> set(others.begin(), others.end());
    QStringList difference;
    std::copy_if(list.begin(), list.end(), std::back_inserter(difference),
                 [&set](const QString &text) { return !set.contains(text); });
    return difference;
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

void Judge::expectEffects(const Action &action)
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
    judgeDeletionStart(isIdle);
    if (isIdle) {
        judgeScrolling(action);
        if (m_isConfirmed || m_judgedActions % fileCheckInterval == 0)
            judgeFiles();
        judgeRegistry();
        const bool isPredictable = m_wasIdle && action.effect != Action::Effect::Unknown;
        for (qsizetype i = 0; i < now.size() && isPredictable; ++i)
            judgeTicks(action, m_probes.at(i), m_ticks.at(i), now.at(i));
        if (const auto *box = qobject_cast<const QMessageBox *>(QApplication::activeModalWidget()))
            judgeMessage(box);
        m_isConfirmed = false;
        m_isInterrupted = false;
        m_isStartListTouched = false;
        m_files.clear();
        m_entries.clear();
    }
    m_wasIdle = isIdle;
    m_ticks = now;
    ++m_judgedActions;
}

// A deletion starts only after a confirmation. A confirmation starts one, unless another question
// follows.
void Judge::judgeDeletionStart(bool isIdle)
{
    int startedCount = 0;
    for (const PageProbe *probe : std::as_const(m_probes))
        startedCount += probe->deletions();
    expect(startedCount == m_deletionCount || m_isConfirmed,
           [] { return u"a deletion began that nobody has confirmed"_s; });
    m_deletionCount = startedCount;
    if (!isIdle)
        return;
    if (m_isConfirmed && startedCount == m_idleDeletionCount) {
        expect(m_isInterrupted || QApplication::activeModalWidget(),
               [] { return u"what was confirmed did not begin"_s; });
        m_isConfirmed = false;
        m_files.clear();
        m_entries.clear();
    }
    m_idleDeletionCount = startedCount;
}

void Judge::judgeTicks(const Action &action, const PageProbe *probe, const Ticks &before,
                       const Ticks &after)
{
    if (before.listing != after.listing || before.keys.isEmpty())
        return;
    const bool hasTarget = action.probe == probe && action.effect != Action::Effect::None;
    const int first = action.row.first;
    const int end = hasTarget ? first + action.row.count : first;
    const bool wereAllTicked = hasTarget
        && std::all_of(before.values.cbegin() + first, before.values.cbegin() + end,
                       [](bool value) { return value; });
    const bool hasRemovals = after.keys.size() != before.keys.size();
    QHash<QString, qsizetype> newIndexes;
    for (qsizetype i = 0; hasRemovals && i < after.keys.size(); ++i)
        newIndexes.insert(after.keys.at(i), i);
    for (int i = 0; i < before.keys.size(); ++i) {
        const qsizetype newIndex = hasRemovals ? newIndexes.value(before.keys.at(i), -1) : i;
        const auto tell = [&](const QString &what) {
            return u"%1: record %2, %3, %4"_s.arg(probe->name(), QString::number(i),
                                                  before.keys.at(i), what);
        };
        expect(newIndex >= 0 || m_isConfirmed, [&] { return tell(u"is no longer listed"_s); });
        if (newIndex < 0)
            continue;
        const bool hasChanged = before.values.at(i) != after.values.at(newIndex);
        m_tickCount += hasChanged ? 1 : 0;
        if (!hasTarget || i < first || i >= end) {
            const bool canAffect = hasTarget && probe->canAffect(first, i);
            expect(!hasChanged || canAffect,
                   [&] { return tell(u"was ticked or unticked by a click on something else"_s); });
        } else if (action.effect == Action::Effect::Exact) {
            const bool isExpected = action.row.meaning == Row::Meaning::All
                ? after.values.at(newIndex) != wereAllTicked
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
    if (!action.keepsFocus || !action.focusBefore || !m_wasIdle)
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
    if (!action.bar || !m_wasIdle)
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
    const QStringList deleted = m_world->findDeleted();
    m_lastDeletedCount = deleted.size();
    m_deletedCount += static_cast<int>(deleted.size());
    const QStringList unexpected = subtract(deleted, m_files);
    expect(unexpected.isEmpty(), [&] {
        return u"deleted, though %1: %2"_s.arg(
            m_isConfirmed ? u"not ticked"_s : u"nothing was confirmed"_s, joinFirst(unexpected));
    });
    const QStringList remaining = subtract(m_files, deleted);
    expect(
        m_isInterrupted
            || std::all_of(remaining.begin(), remaining.end(),
                           [this](const QString &path) { return m_world->resistsDeletion(path); }),
        [&] { return u"ticked and confirmed, but not deleted: %1"_s.arg(joinFirst(remaining)); });
}

void Judge::judgeRegistry()
{
    const RegistryState &now = m_registry->state();
    const RegistryState &before = m_registry->acceptedState();
    const QStringList lost = RegistryWorld::findLost(before, now);
    const QStringList added = RegistryWorld::findLost(now, before);
    if (lost.isEmpty() && added.isEmpty() && m_entries.isEmpty())
        return;
    if (m_isStartListTouched) {
        judgeStartList(lost, added);
    } else {
        const QStringList expectedLost =
            RegistryWorld::findLost(before, m_registry->stateWithout(before, m_entries));
        const QStringList unexpected = subtract(lost, expectedLost);
        expect(unexpected.isEmpty() && added.isEmpty(), [&] {
            return u"the registry lost %1 and got %2"_s.arg(joinFirst(unexpected),
                                                            joinFirst(added));
        });
        const QStringList remaining = subtract(expectedLost, lost);
        expect(m_isInterrupted || remaining.isEmpty(), [&] {
            return u"ticked and confirmed, but not removed: %1"_s.arg(joinFirst(remaining));
        });
        m_deletedCount += static_cast<int>(lost.size());
    }
    m_registry->acceptState();
}

// A click adds one program or removes one. A program of the same name is replaced.
void Judge::judgeStartList(const QStringList &lost, const QStringList &added) const
{
    const auto isEntry = [](const QString &name) { return name.startsWith(runKey); };
    expect(lost.size() <= 1 && added.size() <= 1 && std::all_of(lost.begin(), lost.end(), isEntry)
               && std::all_of(added.begin(), added.end(), isEntry)
               && (lost.isEmpty() || added.isEmpty() || lost == added),
           [&] {
               return u"the start-up list lost %1 and got %2"_s.arg(joinFirst(lost),
                                                                    joinFirst(added));
           });
}

// The question before a deletion and the message after it must name the right number of files.
void Judge::judgeMessage(const QMessageBox *box) const
{
    static const QRegularExpression number(u"\\b(?:the selected|clean|Deleted) (\\d+) "_s);
    const QRegularExpressionMatch match = number.match(box->text());
    if (!match.hasMatch())
        return;
    const bool isQuestion = box->windowTitle().startsWith("Confirm"_L1);
    if (!isQuestion && !m_isConfirmed)
        return; // the box was already open before
    qsizetype expected = m_lastDeletedCount;
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
