#pragma once

#include <QString>

namespace platform {

enum class DriveKind { Fixed, Removable, Optical };

/// What kind of drive the volume with the root @p root ("C:/", "/media/disk") lies on. What cannot
/// be told counts as fixed.
[[nodiscard]] DriveKind driveKind(const QString &root);

} // namespace platform
