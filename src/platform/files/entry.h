#pragma once

#include <QHash>
#include <QString>

// What an entry of a file system is, and how paths are joined and split.
namespace platform {

/// Identifies an entry of a file system, whichever path leads to it. A small value.
struct EntryId {
    quint64 volume = 0; ///< the device on Linux, the volume's serial number on Windows
    quint64 number = 0; ///< the entry's number on the volume; 0 when the system does not tell it

    [[nodiscard]] bool isKnown() const { return number != 0; }

    friend bool operator==(const EntryId &, const EntryId &) = default;
    friend std::size_t qHash(const EntryId &id, std::size_t seed)
    {
        return qHashMulti(seed, id.volume, id.number);
    }
};

/// The kind of the entry at a path. Links are not followed.
enum class EntryKind {
    Missing, ///< there is no entry
    File, ///< a regular file
    Folder, ///< a real folder
    Link, ///< a symbolic link, junction or mount point, or a path that passes through one
    Other, ///< a pipe, socket, device, or an entry that cannot be examined
};

/// What inspect() tells about a path. A small value.
struct Entry {
    EntryKind kind = EntryKind::Missing;
    qint64 size = 0; ///< bytes, for files only
    QString error; ///< why the entry cannot be examined, for people; set with EntryKind::Other
    EntryId folder; ///< the folder that holds the file; for files only
};

/// Examines the entry at an absolute path. Follows no link, neither on the way nor at the end.
[[nodiscard]] Entry inspect(const QString &path);

/// The path of the entry @p name in @p folder.
[[nodiscard]] QString joinedPath(const QString &folder, const QString &name);

/// The path of the folder that holds the entry at @p path. The root of a file system is returned
/// without its slash.
[[nodiscard]] QString folderOf(const QString &path);

} // namespace platform
