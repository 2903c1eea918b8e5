#pragma once

#include "action.h"

#include <QList>

class QMessageBox;
class RegistryWorld;
class World;

/// Checks the results of each action: ticks, deletions, focus, scrolling and message boxes. Ends
/// the program with a failure when one is wrong. Owned by the Robot; GUI thread only.
class Judge final
{
    Q_DISABLE_COPY_MOVE(Judge)
public:
    Judge(const QList<PageProbe *> &probes, World *world, RegistryWorld *registry);

    /// Stores what @p action will do. Call it after the action was sent and before it has effects.
    void expectEffects(const Action &action);
    /// Checks the results of @p action. @p isIdle: all work that it started has ended. Without it
    /// only the rules that hold at any time are checked.
    void judge(const Action &action, bool isIdle);
    /// Notes that a confirmed deletion may stop before its end.
    void noteInterruption() { m_isInterrupted = true; }
    /// Checks everything, including the content of every file.
    void compareFully();

    // How much was checked.
    [[nodiscard]] int tickCount() const { return m_tickCount; }
    [[nodiscard]] int deletionCount() const { return m_deletionCount; }
    [[nodiscard]] int deletedCount() const { return m_deletedCount; }

private:
    void judgeDeletionStart(bool isIdle);
    void judgeTicks(const Action &action, const PageProbe *probe, const Ticks &before,
                    const Ticks &after);
    void judgeFocus(const Action &action) const;
    void judgeScrolling(const Action &action) const;
    void judgeFiles();
    void judgeRegistry();
    void judgeStartList(const QStringList &lost, const QStringList &added) const;
    void judgeMessage(const QMessageBox *box) const;

    QList<PageProbe *> m_probes;
    World *m_world;
    RegistryWorld *m_registry;
    QList<Ticks> m_ticks; ///< of each probe, after the last action
    int m_judgedActions = 0;
    // Since the last time that no work was running:
    bool m_isConfirmed = false;
    bool m_isInterrupted = false;
    bool m_isStartListTouched = false;
    QStringList m_files; ///< whose deletion was confirmed
    QStringList m_entries; ///< registry entries whose deletion was confirmed
    // After the last action:
    bool m_wasIdle = true;
    qsizetype m_lastDeletedCount = 0; ///< files of the last deletion
    int m_tickCount = 0;
    int m_deletionCount = 0;
    /// m_deletionCount at the last time that no work was running.
    int m_idleDeletionCount = 0;
    int m_deletedCount = 0;
};
