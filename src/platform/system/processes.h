#pragma once

#include <QSet>
#include <QString>

#include <optional>

namespace platform {

/// The names of all running programs, such as "chrome.exe", in lower case and without their
/// folders. A program is left out if its name may not be read. Nothing when the system does not
/// list them.
[[nodiscard]] std::optional<QSet<QString>> runningPrograms();

} // namespace platform
