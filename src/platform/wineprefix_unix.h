#pragma once

#include <QString>

/// The Wine prefix that gives this system a C: drive and a registry: WINEPREFIX, else ~/.wine.
namespace platform::wineprefix {

/// The prefix folder without links; empty when there is none with a C: drive.
[[nodiscard]] QString folder();

/// The folder of the C: drive; empty without a prefix.
[[nodiscard]] QString systemDrive();

/// The user's profile folder on the C: drive; empty without a prefix or when it cannot be told.
[[nodiscard]] QString userFolder();

/// The temporary folder of the prefix's programs, as its registry names it; empty without a prefix.
[[nodiscard]] QString temporaryFolder();

/// Where the drive of @p letter leads, without links; empty when the prefix has no such drive.
[[nodiscard]] QString drive(QChar letter);

/// @p relative below the existing folder @p base with each name in the case that the disk has.
/// Names that are not there are kept as they were given.
[[nodiscard]] QString matchCase(const QString &base, const QString &relative);

} // namespace platform::wineprefix
