#pragma once

#include "invocation.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>

/// What all commands share: their output and their exit status.
namespace cli {

/// The exit status of the program; exitStatusHelp() has the meanings.
enum ExitStatus { Success = 0, SomeFailed = 1, WrongUse = 2 };

/// Every exit status with what it means, for the help.
[[nodiscard]] QString exitStatusHelp();

/// Writes @p text to standard error.
void writeError(const QString &text);

/// Writes to standard error why the command stops. Returns WrongUse.
ExitStatus refuse(const QString &message);

/// Prints the result of the command: one JSON object with --json, otherwise text. Returns
/// @p status. If the output cannot be written, for example on a full disk, it is refused.
[[nodiscard]] ExitStatus printReport(const Invocation &invocation,
                                     const std::function<QJsonObject()> &asJson,
                                     const std::function<QString()> &asText,
                                     ExitStatus status = Success);

/// The tick box before a line of a list, followed by a blank.
[[nodiscard]] QString tickMark(Qt::CheckState state);

/// An array of asObject(entry) for each entry of @p list.
template<typename List, typename AsObject>
[[nodiscard]] QJsonArray jsonArray(const List &list, AsObject asObject)
{
    QJsonArray array;
    for (const auto &entry : list)
        array.append(asObject(entry));
    return array;
}

} // namespace cli
