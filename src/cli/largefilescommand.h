#pragma once

#include "invocation.h"
#include "output.h"

namespace cli {

/// "large-files PATH...": lists the files of a minimum size below the folders, largest first. The
/// size is a text such as "500", "64K", "100M" or "2G", in binary units; the default is 100 MiB.
[[nodiscard]] ExitStatus listLargeFiles(const Invocation &invocation);

} // namespace cli
