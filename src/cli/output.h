#pragma once

#include "invocation.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>

/// What every command says and how it ends.
namespace cli {

enum ExitStatus { Success = 0, SomeFailed = 1, WrongUse = 2 };

/// Every exit status with what it means, for the help.
[[nodiscard]] QString exitStatusHelp();

void writeError(const QString &text);

/// Tells on standard error why the command does not go on; returns WrongUse.
ExitStatus refuse(const QString &message);

/// Prints what the command found or did: as one JSON object with --json, else as text. Returns
/// @p status, or refuses when the report did not get out, for instance because the disk is full.
[[nodiscard]] ExitStatus printReport(const Invocation &invocation,
                                     const std::function<QJsonObject()> &asJson,
                                     const std::function<QString()> &asText,
                                     ExitStatus status = Success);

/// The box before a line of a list, with a blank after it.
[[nodiscard]] QString tickMark(Qt::CheckState state);

/// @p asObject of each in @p list.
template<typename List, typename AsObject>
[[nodiscard]] QJsonArray jsonArray(const List &list, AsObject asObject)
{
    QJsonArray array;
    for (const auto &entry : list)
        array.append(asObject(entry));
    return array;
}

} // namespace cli
