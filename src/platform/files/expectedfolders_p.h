#pragma once

#include "listedfolders.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace platform {

/// Tells one remover which folder it expects at a path: the folder that was listed there, else the
/// first one that the remover visited there. A FileRemover owns one and uses it on its thread.
class ExpectedFolders final
{
    Q_DISABLE_COPY_MOVE(ExpectedFolders)
public:
    ExpectedFolders() = default;

    void setListed(const ListedFolders *listed) { m_listed = listed; }

    /// The id of the expected folder. Unknown when no folder was listed or visited at @p path.
    [[nodiscard]] EntryId idOf(const QString &path) const
    {
        const EntryId listed = m_listed ? m_listed->idOf(path) : EntryId();
        return listed.isKnown() ? listed : m_visited.value(path);
    }

    /// Whether this remover has removed the folder that is expected at @p path. Then its listed
    /// contents are removed too, even if a new folder has come to that path.
    [[nodiscard]] bool isRemoved(const QString &path) const
    {
        return !m_removed.isEmpty() && m_removed.contains(idOf(path));
    }

    /// Whether the folder @p id, found at @p path, is the expected one. If none is expected yet,
    /// the folder is expected there from now on.
    [[nodiscard]] bool accept(const QString &path, const EntryId &id)
    {
        const EntryId expected = idOf(path);
        if (expected.isKnown())
            return expected == id;
        m_removed.remove(id); // the file system has given its number to a new folder
        m_visited.insert(path, id);
        return true;
    }

    /// Whether another folder than @p id was listed at @p path. It is false for a folder that was
    /// not listed. Inside a folder that is removed whole that is allowed.
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
    QSet<EntryId> m_removed; ///< the folders that this remover has removed
};

} // namespace platform
