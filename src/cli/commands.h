#pragma once

#include "invocation.h"
#include "output.h"

#include <QLatin1StringView>

#include <span>

/// The two tables that define the command line: the options and the commands.
namespace cli {

/// One row of the table of options.
struct OptionInfo {
    Option option = {};
    QLatin1StringView name; ///< without the dashes
    QLatin1StringView value; ///< its name in the help; empty when the option has no value
    QLatin1StringView help; ///< the names of the commands that accept it are put before it
};

/// How many arguments may follow the name of a command.
struct ArgumentCount {
    qsizetype minimum = 0;
    qsizetype maximum = 0;
};

/// The line of a command in the help. Neighbouring commands with the same form, such as "scan
/// ENGINE", share one line.
struct CommandHelp {
    QLatin1StringView form;
    QLatin1StringView text;
};

/// One row of the table of commands.
struct Command {
    QLatin1StringView name; ///< one or two words; no name is the beginning of another
    CommandHelp help;
    ArgumentCount arguments;
    Options options; ///< that it accepts; any other option is refused
    ExitStatus (*run)(const Invocation &invocation) = nullptr;
};

[[nodiscard]] std::span<const OptionInfo> options();
[[nodiscard]] std::span<const Command> commands();

} // namespace cli
