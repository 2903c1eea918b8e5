#pragma once

#include "invocation.h"
#include "output.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace cli {

struct Command;

/// What a command line asks for: a command, or a text such as the help. A refused line has neither.
struct ParsedLine {
    const Command *command = nullptr;
    Invocation invocation{{}, {}}; ///< for the command
    std::optional<QString> text; ///< to be printed instead of running a command
    QString refusal; ///< why the line is refused
};

/// Reads the command line by the tables of commands.h. What is not in the tables is refused.
/// Nothing is run or printed. The first of @p arguments is the name of the program.
[[nodiscard]] ParsedLine parseCommandLine(const QStringList &arguments);

/// Does what the command line asks for.
[[nodiscard]] ExitStatus runCommandLine(const QStringList &arguments);

} // namespace cli
