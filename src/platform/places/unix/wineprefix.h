#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The Wine prefix that gives this system a C: drive and a registry: WINEPREFIX, else ~/.wine.
namespace platform::wineprefix {

/// The prefix folder without links; empty when there is none with a C: drive.
[[nodiscard]] QString folder();

/// The folder of the C: drive; empty without a prefix.
[[nodiscard]] QString systemDrive();

/// The user's profile folder on the C: drive; empty without a prefix or when it cannot be told.
[[nodiscard]] QString userFolder();

/// The temporary folder of the prefix's programs, as its registry names it; empty without a prefix
/// or when it cannot be told.
[[nodiscard]] QString temporaryFolder();

/// Where the prefix's registry says that its user keeps what people make: documents, pictures and
/// the like. Without what it does not tell.
[[nodiscard]] QStringList personalFolders();

/// The environment variable @p name, in capitals, of the prefix's programs; nothing without a
/// prefix or when the prefix does not tell.
[[nodiscard]] std::optional<QString> variable(const QString &name);

/// Where the drive of @p letter leads, without links; empty when the prefix has no such drive.
[[nodiscard]] QString drive(QChar letter);

/// Where each of the prefix's drives leads, without links; without those that lead nowhere.
[[nodiscard]] QStringList drives();

/// Where a path that begins with a drive, such as "C:\Temp", lies; names are found without regard
/// to case. Empty when the prefix has no such drive, and for every other path.
[[nodiscard]] QString localPath(const QString &windowsPath);

/// @p relative below the existing folder @p base with each name in the case that the disk has.
/// Names that are not there are kept as they were given. Where a folder may not be listed in which
/// a name might stand in other case, @p problem, for people, says so.
[[nodiscard]] QString matchCase(const QString &base, const QString &relative,
                                QString *problem = nullptr);

} // namespace platform::wineprefix
