#pragma once

#include <QString>

namespace platform {

/// The kinds of drives that the program treats differently.
enum class DriveKind { Fixed, Removable, Optical };

/// The kind of the drive that holds the volume with the root @p root ("C:/", "/media/disk"). Fixed
/// when the kind is unknown.
[[nodiscard]] DriveKind driveKind(const QString &root);

} // namespace platform
