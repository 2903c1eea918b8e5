#pragma once

#include "readfailures.h"

#include <QString>
#include <QStringList>

// What both parts of rulefolders.h and the table of protected places share.
namespace platform {

/// A folder from the environment as an absolute path of this file system. Links and dots stay in
/// it. Empty when it is not absolute.
[[nodiscard]] QString localFolder(const QString &path);

/// Appends at least one name of @p names to @p folder, a canonicalPath(). Where the file system or
/// the Wine prefix ignores case, the names get the spelling on the disk. Links are not resolved. @p
/// problem may be null. It tells that a folder in the path may not be read.
[[nodiscard]] QString storedPath(const QString &folder, const QStringList &names, QString *problem);

/// @p path without links, "." and "..". Empty when it is not absolute or does not exist. It is also
/// empty when the system cannot tell where it leads; then @p problem says why, for people.
[[nodiscard]] QString canonicalPath(const QString &path, QString *problem = nullptr);

/// Whether a canonicalPath() is the root of the file system, of a drive, a share or a volume.
[[nodiscard]] bool isRoot(const QString &path);

/// Why the file that names the user's folders cannot be read, in @p failures. The toolkit would ask
/// for the same file, and wait there for ever if it is a pipe. A missing file is no failure.
void checkUserFolders(ReadFailures &failures);

/// Whether the file system ignores case in names.
[[nodiscard]] Qt::CaseSensitivity pathCase();

} // namespace platform
