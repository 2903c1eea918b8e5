#include "robot.h"

#include "actionlog.h"
#include "dice.h"
#include "mainwindow.h"
#include "registryworld.h"
#include "world.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Idle passes of the event loop after which all effects of an action have arrived.
constexpr int neededPasses = 4;
constexpr int paintInterval = 20; ///< actions
/// Actions after which the memory must not grow much any more.
constexpr int warmUpActions = 1000;
constexpr int memoryCheckInterval = 1000; ///< actions
constexpr int maxMemoryGrowth = 100; ///< mebibytes
/// Below this share of an owner's files the world is refilled.
constexpr int minPercentRemaining = 60;

/// Resident memory of the process; 0 on a system that does not report it.
int usedMebibytes()
{
    QFile status(u"/proc/self/statm"_s);
    constexpr int pagesPerMebibyte = 256;
    return status.open(QIODevice::ReadOnly)
        ? status.readAll().split(' ').at(1).toInt() / pagesPerMebibyte
        : 0;
}

} // namespace

Robot::Robot(const Options &options, MainWindow *window, const QList<PageProbe *> &probes,
             World *world, RegistryWorld *registry)
    : m_options(options)
    , m_probes(probes)
    , m_world(world)
    , m_registry(registry)
    , m_player(window, probes, options.page)
    , m_judge(probes, world, registry)
    , m_seed(options.seed << 4)
{
    for (const PageProbe *probe : probes) { // each page gets its own sequence of actions
        if (probe->name() < options.page)
            ++m_seed;
    }
    connect(&m_timer, &QTimer::timeout, this, &Robot::step);
}

bool Robot::isIdle() const
{
    return std::none_of(m_probes.begin(), m_probes.end(),
                        [](const PageProbe *probe) { return probe->isBusy(); });
}

void Robot::step()
{
    const bool isIdleNow = isIdle() && !Hands::hasPendingEvents();
    m_idlePasses = isIdleNow ? m_idlePasses + 1 : 0;
    const bool isWaitOver = !isIdleNow && m_maxBusyPasses > 0 && ++m_busyPasses > m_maxBusyPasses;
    if (m_idlePasses < neededPasses && !isWaitOver)
        return;
    if (Hands::activateSomeWindow()) {
        m_idlePasses = 0;
        return;
    }
    if (m_actionNumber > 0) {
        m_judge.judge(m_action, isIdleNow);
        for (PageProbe *probe : std::as_const(m_probes))
            probe->check();
    }
    if (!isIdleNow)
        m_judge.noteInterruption();
    if (m_actionNumber % paintInterval == 0)
        m_paintThrottle.paint();
    const QWidget *dialog = QApplication::activeModalWidget();
    if (isIdleNow && dialog && dialog->objectName() == "itemDetailDialog"_L1)
        m_player.currentProbe()->checkDetails(dialog);
    m_rows = isIdleNow ? m_player.currentProbe()->visibleRows() : QList<Row>();
    if (m_actionNumber < m_options.actions)
        act();
    else
        end();
}

void Robot::act()
{
    ++m_actionNumber;
    // Each action has its own dice: the numbers that one action uses do not change the next one.
    Dice dice(m_seed << 32 | static_cast<quint64>(m_actionNumber));
    ActionLog &log = ActionLog::instance();
    log.begin(m_actionNumber);
    if (m_actionNumber == warmUpActions)
        m_memoryAfterWarmUp = usedMebibytes();
    else if (m_actionNumber > warmUpActions && m_actionNumber % memoryCheckInterval == 0)
        expect(usedMebibytes() <= m_memoryAfterWarmUp + maxMemoryGrowth, [this] {
            return u"the memory has grown from %1 to %2 MiB"_s.arg(
                QString::number(m_memoryAfterWarmUp), QString::number(usedMebibytes()));
        });
    // No refill while a message box reports a run: its results are not compared yet.
    const bool isRefilled = isIdle() && !Hands::hasPendingEvents()
        && !QApplication::activeModalWidget() && dice.chance(5);
    if (isRefilled)
        refill();
    m_action = m_player.act(dice, m_rows);
    log.describe(isRefilled ? m_action.text + u" (all is made anew)"_s : m_action.text);
    log.printLine();
    m_judge.expectEffects(m_action);
    m_idlePasses = 0;
    m_busyPasses = 0;
    m_maxBusyPasses = dice.chance(8) ? dice.between(1, 6) : 0;
}

// Refills only below a limit, so that pages with few results are tested too.
void Robot::refill()
{
    constexpr std::array owners{World::Owner::Junk, World::Owner::Browser, World::Owner::Large};
    const bool isRefillNeeded =
        std::any_of(owners.begin(), owners.end(), [this](World::Owner owner) {
            return m_world->percentRemaining(owner) < minPercentRemaining;
        });
    if (isRefillNeeded)
        m_world->refill();
    m_registry->refill();
    m_registry->acceptState();
}

void Robot::end()
{
    m_idlePasses = 0;
    m_maxBusyPasses = 0;
    m_action = {};
    m_action.effect = Action::Effect::Unknown;
    ActionLog::instance().describe(u"closing what is open"_s);
    if (m_player.closeTopWindow() || !isIdle())
        return;
    m_timer.stop();
    m_judge.compareFully();
    Q_EMIT finished();
}
