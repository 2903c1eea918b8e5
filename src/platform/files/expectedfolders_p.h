#pragma once

#include "listedfolders.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace platform {

/// Which folder belongs at a path, as far as one remover knows: the one that was listed there, else
/// the one that it has met there first. On the remover's thread.
class ExpectedFolders final
{
    Q_DISABLE_COPY_MOVE(ExpectedFolders)
public:
    ExpectedFolders() = default;

    void setListed(const ListedFolders *listed) { m_listed = listed; }

    /// Unknown when the folder at @p path was neither listed nor met.
    [[nodiscard]] EntryId idOf(const QString &path) const
    {
        const EntryId listed = m_listed ? m_listed->idOf(path) : EntryId();
        return listed.isKnown() ? listed : m_visited.value(path);
    }

    /// Whether the folder that belongs at @p path is one that this remover has removed: whatever
    /// stands there now, what was listed in it is gone.
    [[nodiscard]] bool isRemoved(const QString &path) const
    {
        return !m_removed.isEmpty() && m_removed.contains(idOf(path));
    }

    /// Whether the folder @p id, found at @p path, belongs there; from now on it does where none
    /// did before.
    [[nodiscard]] bool accept(const QString &path, const EntryId &id)
    {
        const EntryId expected = idOf(path);
        if (expected.isKnown())
            return expected == id;
        m_removed.remove(id); // its number has been given to a new folder
        m_visited.insert(path, id);
        return true;
    }

    /// Whether another folder than @p id was listed at @p path. One that is inside a folder which
    /// is removed whole need not have been listed.
    [[nodiscard]] bool differsFromListed(const QString &path, const EntryId &id) const
    {
        const EntryId listed = m_listed ? m_listed->idOf(path) : EntryId();
        return listed.isKnown() && listed != id;
    }
    [[nodiscard]] bool hasListedFolders() const { return m_listed != nullptr; }

    void noteRemoved(const EntryId &id)
    {
        if (id.isKnown())
            m_removed.insert(id);
    }

private:
    const ListedFolders *m_listed = nullptr;
    QHash<QString, EntryId> m_visited;
    QSet<EntryId> m_removed; ///< folders
};

} // namespace platform
