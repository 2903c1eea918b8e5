#pragma once

#include <QHash>
#include <QString>

// What stands at a path, and how paths are put together and taken apart.
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

/// What a path itself is, never what a link at it leads to.
enum class EntryKind {
    Missing, ///< nothing is there
    File, ///< a regular file
    Folder, ///< a real folder
    Link, ///< a symbolic link, junction or mount point; also a path that passes through one
    Other, ///< a pipe, socket, device, or something that cannot be looked at
};

struct Entry {
    EntryKind kind = EntryKind::Missing;
    qint64 size = 0; ///< bytes, for files only
    QString error; ///< for people; why it cannot be looked at, with EntryKind::Other
    EntryId folder; ///< the folder that holds it, for files only
};

/// Looks at the entry at an absolute path without following a link anywhere on the way.
[[nodiscard]] Entry inspect(const QString &path);

/// The path of the entry @p name of a folder.
[[nodiscard]] QString joinedPath(const QString &folder, const QString &name);

/// The path of the folder that holds the entry at @p path. The top of a file system comes without
/// its slash.
[[nodiscard]] QString folderOf(const QString &path);

} // namespace platform
