#pragma once

#include "listedfolders.h"
#include "treewalk.h"

#include <QString>

#include <functional>

namespace platform {

/// One file that a walk found.
struct WalkedFile {
    QString name; ///< without its folder
    QString path; ///< absolute, with forward slashes
    qint64 size = 0; ///< bytes; of a link its own, which is what its removal frees
};

using FileVisitor = std::function<void(WalkedFile &&file)>;

/// Lists the files that walkTree() meets, on this thread. Each folder from which a file is listed
/// is recorded in @p listed.
WalkReport walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit,
                     ListedFolders *listed = nullptr);

} // namespace platform
