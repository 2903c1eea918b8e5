#pragma once

#include "readfailures.h"

#include <QString>
#include <QStringList>

namespace platform {

// The folders of the placeholders in the rules, with forward slashes. On Windows they come from the
// environment and the standard paths. On Linux the first of these counts:
// - the environment variable of the same name (TMPDIR for the temporary folder);
// - the matching folder of the Wine prefix;
// - the desktop's own folder.
//
// A folder without a counterpart on Linux has its Windows name there and does not exist.

// A folder that cannot be determined because something could not be read is empty.

[[nodiscard]] QString temporaryFolder();
[[nodiscard]] QString localDataFolder(); ///< %LOCALAPPDATA%
[[nodiscard]] QString roamingDataFolder(); ///< %APPDATA%, without this program's own subfolders
[[nodiscard]] QString homeFolder(); ///< %USERPROFILE%
[[nodiscard]] QString programDataFolder(); ///< %PROGRAMDATA%; empty when unset
[[nodiscard]] QString windowsFolder(); ///< %WINDIR%
[[nodiscard]] QString systemDrive(); ///< %SYSTEMDRIVE%, on Windows a bare drive such as "C:"

/// What could not be read to find the folders above. Without it a folder may be missing there, or
/// may be another one than the system's. Reads the system now.
[[nodiscard]] ReadFailures folderFailures();

/// The folder of the user's desktop. The home while the system's settings cannot be read.
[[nodiscard]] QString desktopFolder();

/// The folder that contains the program's settings files.
[[nodiscard]] QString settingsFolder();

/// The registry key that contains the keys of programs with settings in the registry. Empty where
/// settings are in files only.
[[nodiscard]] QString settingsKey();

/// Turns a rule's location into a path of this file system.
///
/// @p base is a folder that the environment names. Its links are resolved, because its owner has
/// chosen them. @p relative is the part that the rule appends. It is not resolved, so that a
/// planted link leads nowhere. Below a Wine prefix names are found regardless of case, and "C:"
/// leads through the prefix's drives.
///
/// Returns an absolute path with forward slashes. The result is empty when @p base does not exist
/// or is not absolute, or when @p relative contains ".." or ".". If the reason may be something
/// else than a missing folder, @p problem tells it, for people. An example is a folder that may not
/// be read.
[[nodiscard]] QString locate(const QString &base, const QString &relative,
                             QString *problem = nullptr);
/// The same. A problem is added to @p failures.
[[nodiscard]] QString locate(const QString &base, const QString &relative, ReadFailures &failures);

} // namespace platform
