#pragma once

#include <QString>

namespace cli {

/// "startup list", "startup enable NAME" and "startup disable NAME"; returns the exit status.
[[nodiscard]] int runStartup(const QString &action, const QString &name, bool asJson);

} // namespace cli
