#pragma once

#include "output.h"

#include <QStringList>

namespace cli {

/// Reads the command line as the tables of commands.h lay it down, answers --help and --version,
/// which end the process, refuses what is not in the tables, and runs the command.
[[nodiscard]] ExitStatus runCommandLine(const QStringList &arguments);

} // namespace cli
