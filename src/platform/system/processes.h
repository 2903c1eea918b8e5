#pragma once

#include <QSet>
#include <QString>

namespace platform {

/// The names of all running programs, such as "chrome.exe", in lower case and without their
/// folders. A program is left out if its name may not be read.
[[nodiscard]] QSet<QString> runningPrograms();

} // namespace platform
