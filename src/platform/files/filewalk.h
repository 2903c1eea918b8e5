#pragma once

#include "listedfolders.h"
#include "treewalk.h"

#include <QString>

#include <functional>

namespace platform {

/// One file that walkFiles() has found. A value that the visitor takes over.
struct WalkedFile {
    QString name; ///< without its folder
    QString path; ///< absolute, with forward slashes
    qint64 size = 0; ///< bytes; for a link its own size, which its removal frees
};

using FileVisitor = std::function<void(WalkedFile &&file)>;

/// Lists the files that walkTree() visits, with several walkers, but in the order of a single one.
/// Calls @p visit on any thread, though never twice at once. @p listed receives each folder from
/// which a file is listed. Returns what could not be read; that does not end the walk.
ReadFailures walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit,
                       ListedFolders *listed = nullptr);

} // namespace platform
