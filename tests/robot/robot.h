#pragma once

#include "judge.h"
#include "paintthrottle.h"
#include "player.h"

#include <QObject>
#include <QTimer>

class RegistryWorld;
class World;

/// Plays a number of actions, one after the other. main() owns it; GUI thread only.
///
/// A timer drives it, so that it also runs in the nested event loops of dialogs.
class Robot final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Robot)
public:
    /// The options of the command line.
    struct Options {
        quint64 seed = 1;
        int actions = 2000;
        QString page; ///< name of the page to stay on; empty for all pages
        bool isTraced = false;
    };

    Robot(const Options &options, MainWindow *window, const QList<PageProbe *> &probes,
          World *world, RegistryWorld *registry);

    void start() { m_timer.start(0); }
    [[nodiscard]] const Judge &judge() const { return m_judge; }

Q_SIGNALS:
    void finished();

private:
    void step();
    void act();
    void end();
    [[nodiscard]] bool isIdle() const;
    void refill();

    Options m_options;
    QList<PageProbe *> m_probes;
    World *m_world;
    RegistryWorld *m_registry;
    PaintThrottle m_paintThrottle;
    Player m_player;
    Judge m_judge;
    quint64 m_seed;
    QTimer m_timer;
    Action m_action;
    QList<Row> m_rows;
    int m_actionNumber = 0;
    int m_memoryAfterWarmUp = 0; ///< mebibytes
    // Passes of the event loop since the last action:
    int m_idlePasses = 0; ///< the last passes in a row in which no work was running
    int m_busyPasses = 0;
    int m_maxBusyPasses = 0; ///< the robot waits for no more of them; 0 for any number
};
