#pragma once

#include "invocation.h"
#include "output.h"

namespace cli {

/// "restore FILE": puts the registry entries of a backup back.
[[nodiscard]] ExitStatus restore(const Invocation &invocation);

} // namespace cli
