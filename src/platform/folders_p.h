#pragma once

#include <QString>
#include <QStringList>

// What the two halves of folders.h share.
namespace platform {

/// @p path without links, "." and ".."; empty when it is not absolute or does not exist.
[[nodiscard]] QString canonicalPath(const QString &path);

/// Folders that are more than clutter taken whole, while some of what lies in them may be; entries
/// may be empty or missing.
[[nodiscard]] QStringList protectedFolders();

/// Folders that are never clutter, with everything below; entries may be empty or missing.
[[nodiscard]] QStringList protectedTrees();

/// Whether a canonicalPath() is the top of the file system, of a drive, a share or a volume.
[[nodiscard]] bool isTop(const QString &path);

/// How the file system compares names.
[[nodiscard]] Qt::CaseSensitivity pathCase();

} // namespace platform
