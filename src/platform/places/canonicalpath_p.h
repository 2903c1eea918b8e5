#pragma once

#include <QString>
#include <QStringList>

// What the two halves of rulefolders.h and the table of protected places share.
namespace platform {

/// @p path without links, "." and ".."; empty when it is not absolute or does not exist.
[[nodiscard]] QString canonicalPath(const QString &path);

/// Why the system does not say what @p path leads to; empty when it does, or when nothing is there.
[[nodiscard]] QString problemWith(const QString &path);

/// Whether a canonicalPath() is the top of the file system, of a drive, a share or a volume.
[[nodiscard]] bool isTop(const QString &path);

/// How the file system compares names.
[[nodiscard]] Qt::CaseSensitivity pathCase();

} // namespace platform
