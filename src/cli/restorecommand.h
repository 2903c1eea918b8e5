#pragma once

#include <QString>

namespace cli {

/// "restore FILE": puts the registry entries of a backup back; returns the exit status.
[[nodiscard]] int runRestore(const QString &path, bool asJson);

} // namespace cli
