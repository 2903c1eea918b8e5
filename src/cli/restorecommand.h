#pragma once

#include "invocation.h"
#include "output.h"

namespace cli {

/// "restore FILE": restores the registry entries of a backup.
[[nodiscard]] ExitStatus restore(const Invocation &invocation);

} // namespace cli
