#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The Wine prefix, which provides the C: drive and the registry on this system. It is WINEPREFIX,
/// else ~/.wine.
///
/// What these functions cannot read is noted, see placenotes. They then tell less than they could.
namespace platform::wineprefix {

/// The folder that the environment names for the prefix, whether there is one or not.
[[nodiscard]] QString requestedFolder();

/// The prefix folder without links. Empty when there is no prefix with a C: drive, and when that
/// cannot be determined; then @p problem says why, for people.
[[nodiscard]] QString folder(QString *problem = nullptr);

/// Looks at what every folder is found from: the prefix, its users, its registry.
void checkFolders();

/// The folder of the C: drive; empty without a prefix.
[[nodiscard]] QString systemDrive();

/// The user's profile folder on the C: drive. Empty without a prefix, or when the user's folder is
/// not clear.
[[nodiscard]] QString userFolder();

/// The temporary folder of the prefix's programs, from its registry. Empty without a prefix, or
/// when it cannot be determined, for instance because the registry cannot be read.
[[nodiscard]] QString temporaryFolder();

/// The folders of documents, pictures and other personal files, from the prefix's registry. Folders
/// that the registry does not name are left out.
[[nodiscard]] QStringList personalFolders();

/// The environment variable @p name, in capitals, of the prefix's programs. Nothing without a
/// prefix, or when the prefix does not tell it.
[[nodiscard]] std::optional<QString> variable(const QString &name);

/// The target of the drive @p letter, without links. Empty when the prefix has no such drive, and
/// when its link cannot be read; then @p problem says why, for people.
[[nodiscard]] QString drive(QChar letter, QString *problem = nullptr);

/// The targets of the prefix's drives, each a reachablePath(). Drives that lead nowhere are left
/// out.
[[nodiscard]] QStringList drives();

/// The place of a path that begins with a drive, such as "C:\Temp". Names are found regardless of
/// case. Empty when the prefix has no such drive, and for every other path.
[[nodiscard]] QString localPath(const QString &windowsPath);

/// Appends @p relative to the existing folder @p base and gives each name the case that it has on
/// the disk. Missing names keep their spelling. A name may exist in another case inside a folder
/// that may not be listed. Then @p problem says so, for people.
[[nodiscard]] QString matchCase(const QString &base, const QString &relative,
                                QString *problem = nullptr);

} // namespace platform::wineprefix
