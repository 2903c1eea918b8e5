#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

namespace platform {

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
};

/// Looks at the entry at an absolute path without following a link anywhere on the way.
[[nodiscard]] Entry inspect(const QString &path);

/// One file that a walk found.
struct WalkedFile {
    QString name; ///< without its folder
    QString path; ///< absolute, with forward slashes
    qint64 size = 0; ///< bytes; for a link to a file the size of its target
};

struct WalkOptions {
    QStringList nameFilters; ///< wildcards, ignoring case; an empty list takes every file
    bool recursive = true; ///< also walk the folders below
    const std::atomic_bool *stopRequested = nullptr; ///< looked at before every entry
};

struct WalkFailure {
    QString path;
    QString reason;
};

/// What could not be walked. A walk never gives up for one folder.
struct WalkReport {
    static constexpr int maximumFailures =
        20; ///< a tree full of closed doors must not fill the memory

    QList<WalkFailure> failures; ///< the first unreadable folders
    qint64 failureCount = 0; ///< all of them
};

using FileVisitor = std::function<void(WalkedFile &&file)>;

/// Lists the files of a folder, and of those below it unless told otherwise.
///
/// @p root is absolute and leads through no link, see inspect(); the caller resolves what it
/// trusts. What comes out equals QDirIterator's QDir::Files listing: neither hidden entries (on
/// Windows: nor system ones) nor what lies in hidden folders, no pipes, sockets, devices or
/// undecodable names, links to folders not entered, links to files listed. In addition a walk never
/// leaves the device of its root. Files of one folder arrive together, before those of its
/// subfolders; the order is otherwise the file system's.
WalkReport walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit);

} // namespace platform
