#pragma once

#include "drives.h"

namespace platform {

/// driveKind(), read from @p blockDevices instead of /sys/dev/block: a folder with a link for each
/// block device, named "major:minor", that leads to the kernel's folder about it.
[[nodiscard]] DriveKind driveKind(const QString &root, const QString &blockDevices);

} // namespace platform
