#pragma once

#include <QString>

namespace platform {

/// Shows the existing file at @p path in the system's file manager, selected where the file manager
/// can do that. Starts a detached process; false when it could not be started.
[[nodiscard]] bool revealFile(const QString &path);

} // namespace platform
