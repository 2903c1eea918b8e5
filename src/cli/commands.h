#pragma once

#include "invocation.h"
#include "output.h"

#include <QLatin1StringView>

#include <span>

/// The two tables that say all about the command line: the options and the commands.
namespace cli {

struct OptionInfo {
    Option option = {};
    QLatin1StringView name; ///< without the dashes
    QLatin1StringView value; ///< what the help calls it; empty when the option has none
    QLatin1StringView help; ///< which commands take it is added from their table
};

/// How many arguments may follow the name of a command.
struct ArgumentCount {
    qsizetype minimum = 0;
    qsizetype maximum = 0;
};

/// Commands that show the same form, such as "scan ENGINE", are one line of the help.
struct CommandHelp {
    QLatin1StringView form;
    QLatin1StringView text;
};

struct Command {
    QLatin1StringView name; ///< one or two words; none is the beginning of another's
    CommandHelp help;
    ArgumentCount arguments;
    Options options; ///< that go with it; any other one is refused
    ExitStatus (*run)(const Invocation &invocation) = nullptr;
};

[[nodiscard]] std::span<const OptionInfo> options();
[[nodiscard]] std::span<const Command> commands();

} // namespace cli
