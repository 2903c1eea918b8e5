#pragma once

#include <QString>
#include <QStringList>

// What the two halves of rulefolders.h and the table of protected places share.
namespace platform {

/// A folder that the environment names as an absolute path of this file system, its links and dots
/// as they stand; empty when it is none.
[[nodiscard]] QString localFolder(const QString &path);

/// @p folder, a canonicalPath(), with @p names appended, which are at least one: spelled as they
/// are stored where the file system or the Wine prefix takes them in any case, and not resolved.
/// Empty when a folder on the way must not be looked into; @p problem, unless it is null, says so.
[[nodiscard]] QString storedPath(const QString &folder, const QStringList &names, QString *problem);

/// @p path without links, "." and ".."; empty when it is not absolute or does not exist.
[[nodiscard]] QString canonicalPath(const QString &path);

/// Why the system does not say what @p path leads to; empty when it does, or when nothing is there.
[[nodiscard]] QString problemWith(const QString &path);

/// Whether a canonicalPath() is the top of the file system, of a drive, a share or a volume.
[[nodiscard]] bool isRoot(const QString &path);

/// How the file system compares names.
[[nodiscard]] Qt::CaseSensitivity pathCase();

} // namespace platform
