#pragma once

#include "entry.h"

#include <QHash>
#include <QString>

#include <mutex>

namespace platform {

/// Which folder stood at each path when a scan listed what is in it. A clean holds the remover to
/// that: a path alone does not tell that another folder, or what is mounted there, has taken the
/// place of the one that was looked at. Any thread.
class ListedFolders final
{
    Q_DISABLE_COPY_MOVE(ListedFolders)
public:
    ListedFolders() = default;

    /// A folder whose @p id is unknown is not recorded. Where two listings met different folders at
    /// one @p path, none is the right one from then on.
    void add(const QString &path, const EntryId &id);
    /// Unknown for a path that was not recorded.
    [[nodiscard]] EntryId idOf(const QString &path) const;
    void clear();

private:
    mutable std::mutex m_mutex;
    QHash<QString, EntryId> m_ids;
};

} // namespace platform
