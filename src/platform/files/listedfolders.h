#pragma once

#include <QHash>
#include <QString>

#include <mutex>

namespace platform {

/// What tells an entry of a file system from all others, whatever path leads to it.
struct EntryId {
    quint64 volume = 0; ///< on Linux the device, on Windows the volume's serial number
    quint64 number = 0; ///< of the entry there; 0 where the system does not tell

    [[nodiscard]] bool isKnown() const { return number != 0; }

    friend bool operator==(const EntryId &, const EntryId &) = default;
    friend std::size_t qHash(const EntryId &id, std::size_t seed)
    {
        return qHashMulti(seed, id.volume, id.number);
    }
};

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

/// The path of the folder that holds the entry at @p path, in the form of a recorded one.
[[nodiscard]] QString folderOf(const QString &path);

} // namespace platform
