#pragma once

#include <QString>
#include <QStringList>

// What the two halves of folders.h share.
namespace platform {

/// @p path without links, "." and ".."; empty when it is not absolute or does not exist.
[[nodiscard]] QString canonicalPath(const QString &path);

/// The folders that isProtectedRoot() guards; entries may be empty or missing.
[[nodiscard]] QStringList protectedFolders();

/// How the file system compares names.
[[nodiscard]] Qt::CaseSensitivity pathCase();

} // namespace platform
