#pragma once

#include <QSet>
#include <QString>

namespace platform {

/// The names of the programs that are running, such as "chrome.exe", in lower case and without
/// their folders. Programs whose name may not be read are left out.
[[nodiscard]] QSet<QString> runningPrograms();

} // namespace platform
