#pragma once

#include "output.h"

#include <QStringList>

namespace cli {

/// Reads the command line by the tables of commands.h and runs the command. What is not in the
/// tables is refused. --help, --help-all and --version end the process before any command runs.
[[nodiscard]] ExitStatus runCommandLine(const QStringList &arguments);

} // namespace cli
