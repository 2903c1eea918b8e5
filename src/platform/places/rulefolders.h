#pragma once

#include <QString>
#include <QStringList>

namespace platform {

// The folders that the rules' placeholders stand for, with forward slashes. On Windows they come
// from the environment and the standard paths. Elsewhere each is the environment variable of the
// same name where it is set (TMPDIR for the temporary folder), else the matching folder of the Wine
// prefix, else the desktop's own; a folder that has no counterpart there is what it is called on
// Windows and then does not exist.

[[nodiscard]] QString temporaryFolder();
[[nodiscard]] QString localDataFolder(); ///< %LOCALAPPDATA%
[[nodiscard]] QString roamingDataFolder(); ///< %APPDATA%, without anything of this program's
[[nodiscard]] QString homeFolder(); ///< %USERPROFILE%
[[nodiscard]] QString programDataFolder(); ///< %PROGRAMDATA%; empty when unset
[[nodiscard]] QString windowsFolder(); ///< %WINDIR%
[[nodiscard]] QString systemDrive(); ///< %SYSTEMDRIVE%, on Windows a bare drive such as "C:"

/// The folder below which the program's settings files lie.
[[nodiscard]] QString settingsFolder();

/// Where a rule's location lies in this file system.
///
/// @p base is a folder that the environment names: links in it are its owner's wish and are
/// resolved. @p relative is what the rule appends; it is not resolved, so that a link planted there
/// leads nowhere. Below a Wine prefix names are found without regard to case, and "C:" leads
/// through the prefix's drives. Returns an absolute path with forward slashes; empty when @p base
/// does not exist or is not absolute, or when @p relative holds "..". Where that may be for another
/// reason than that nothing is there, such as a folder that must not be looked into, @p problem,
/// for people, says which.
[[nodiscard]] QString locate(const QString &base, const QString &relative,
                             QString *problem = nullptr);

} // namespace platform
