#pragma once

#include "invocation.h"
#include "output.h"

/// The commands "startup list", "startup enable NAME" and "startup disable NAME".
namespace cli {

[[nodiscard]] ExitStatus listStartup(const Invocation &invocation);
[[nodiscard]] ExitStatus enableStartup(const Invocation &invocation);
[[nodiscard]] ExitStatus disableStartup(const Invocation &invocation);

} // namespace cli
