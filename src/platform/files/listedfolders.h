#pragma once

#include "entry.h"

#include <QHash>
#include <QString>

#include <mutex>

namespace platform {

/// Records which folder was at each path when a scan listed its contents. A clean gives it to the
/// FileRemover, which then refuses another folder at the same path. A path alone does not tell that
/// the folder was replaced or mounted over. The engine of the scan owns it. Any thread.
class ListedFolders final
{
    Q_DISABLE_COPY_MOVE(ListedFolders)
public:
    ListedFolders() = default;

    /// Records that the folder @p id is at @p path. An unknown @p id is ignored. If two listings
    /// find different folders at one @p path, idOf() then returns an id that no folder has.
    void add(const QString &path, const EntryId &id);
    /// The id of the folder that was recorded at @p path, else an unknown id.
    [[nodiscard]] EntryId idOf(const QString &path) const;
    void clear();

private:
    mutable std::mutex m_mutex;
    QHash<QString, EntryId> m_ids;
};

} // namespace platform
