#pragma once

#include "invocation.h"
#include "output.h"

/// The commands "scan ENGINE" and "clean ENGINE".
namespace cli {

[[nodiscard]] ExitStatus scanJunk(const Invocation &invocation);
[[nodiscard]] ExitStatus scanBrowser(const Invocation &invocation);
[[nodiscard]] ExitStatus scanRegistry(const Invocation &invocation);

[[nodiscard]] ExitStatus cleanJunk(const Invocation &invocation);
[[nodiscard]] ExitStatus cleanBrowser(const Invocation &invocation);
[[nodiscard]] ExitStatus cleanRegistry(const Invocation &invocation);

} // namespace cli
