#pragma once

#include <QString>

namespace platform {

/// Shows the existing file at @p path in the system's file manager. The file is selected if the
/// file manager supports that. Starts a detached process; false when it could not be started.
[[nodiscard]] bool revealFile(const QString &path);

} // namespace platform
