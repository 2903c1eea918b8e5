#pragma once

#include "action.h"

#include <QList>

class QMessageBox;
class RegistryWorld;
class World;

/// Says whether what came of an action was right: ticks, deletions, focus, scrolling and what is
/// shown. Fails when it was not.
class Judge final
{
    Q_DISABLE_COPY_MOVE(Judge)
public:
    Judge(const QList<PageProbe *> &probes, World *world, RegistryWorld *registry);

    /// Takes notice of a action that is under way but has had no effect yet.
    void expectEffects(const Action &action);
    /// Compares what it has led to. @p isIdle tells that everything it began is over; otherwise
    /// only what must always hold is looked at.
    void judge(const Action &action, bool isIdle);
    /// Notes that what was confirmed may not be done to its end.
    void noteInterruption() { m_isInterrupted = true; }
    /// Looks at everything, into every file too.
    void compareFully();

    // How much there was to judge.
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
    QList<Ticks> m_ticks; ///< after the last action, by probe
    int m_judgedActions = 0;
    // Since nothing was at work for the last time:
    bool m_isConfirmed = false;
    bool m_isInterrupted = false;
    bool m_isStartListTouched = false;
    bool m_wasIdle = true; ///< it still holds
    QStringList m_files; ///< whose deletion was confirmed
    QStringList m_entries; ///< the same of the registry
    qsizetype m_lastDeletedCount = 0; ///< files of the last deletion
    int m_tickCount = 0;
    int m_deletionCount = 0;
    int m_idleDeletionCount = 0; ///< the same when nothing was at work for the last time
    int m_deletedCount = 0;
};
