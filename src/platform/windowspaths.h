#pragma once

#include <QString>

// What a path or variable of the Windows world means here. Elsewhere than on Windows it is the Wine
// prefix that answers.
namespace platform {

/// Where the Windows path @p path, such as "C:\Program Files\x.exe", lies in this file system; on
/// Windows the path itself. Names are matched to those on the disk without regard to case; what
/// does not exist keeps its name.
[[nodiscard]] QString localPath(const QString &path);

/// The environment variable @p name, in capitals, as a Windows program sees it; empty when unset.
[[nodiscard]] QString windowsVariable(const QString &name);

} // namespace platform
