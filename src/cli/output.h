#pragma once

#include "invocation.h"
#include "jsonwriter.h"
#include "readfailures.h"

#include <QString>

#include <functional>

class QTextStream;

/// What all commands share: their output and their exit status.
namespace cli {

/// The exit status of the program; exitStatusHelp() has the meanings.
enum ExitStatus {
    Success = 0,
    SomeFailed = 1,
    WrongUse = 2,
    LibraryMissing = 126, ///< set by systemlibraries.cpp, before there is a command
    HungUp = 129,
    Interrupted = 130,
    Terminated = 143
};

/// Every exit status with what gives it, one a line, for the help.
[[nodiscard]] QString exitStatusHelp();

/// Writes @p text to standard error.
void writeError(const QString &text);

/// Writes to standard error why the command stops. Returns WrongUse.
ExitStatus refuse(const QString &message);

/// Prints @p text to standard output. If it cannot be written, for example on a full disk, the
/// command is refused.
[[nodiscard]] ExitStatus printText(const QString &text);

/// Writes the members of a report's JSON object.
using JsonReport = std::function<void(JsonWriter &)>;
/// Writes a report for people.
using TextReport = std::function<void(QTextStream &)>;

/// How a run ended.
struct RunEnd {
    platform::ReadFailures incomplete; ///< what it could not read
    bool isCancelled = false; ///< by a request to end the program
};

/// Prints the result of a run that ended like @p end: one JSON object with --json, otherwise text.
/// Both are written as they grow, so a long report takes no memory. The JSON object gets the
/// members "incomplete", an array of {where, reason}, "incompleteCount" and "cancelled". The text
/// says both as well. What could not be read also goes to standard error.
///
/// Returns the status of the request to end if the run was cancelled, WrongUse if the result could
/// not be written, SomeFailed if something could not be read, else @p status.
[[nodiscard]] ExitStatus printRun(const Invocation &invocation, const RunEnd &end,
                                  const JsonReport &asJson, const TextReport &asText,
                                  ExitStatus status = Success);

/// The tick box before a line of a list, followed by a blank.
[[nodiscard]] QString tickMark(Qt::CheckState state);

} // namespace cli
