#pragma once

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

[[nodiscard]] QString temporaryFolder();
[[nodiscard]] QString localDataFolder(); ///< %LOCALAPPDATA%
[[nodiscard]] QString roamingDataFolder(); ///< %APPDATA%, without this program's own subfolders
[[nodiscard]] QString homeFolder(); ///< %USERPROFILE%
[[nodiscard]] QString programDataFolder(); ///< %PROGRAMDATA%; empty when unset
[[nodiscard]] QString windowsFolder(); ///< %WINDIR%
[[nodiscard]] QString systemDrive(); ///< %SYSTEMDRIVE%, on Windows a bare drive such as "C:"

/// The folder that contains the program's settings files.
[[nodiscard]] QString settingsFolder();

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

} // namespace platform
