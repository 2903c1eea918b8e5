#pragma once

#include <QByteArray>
#include <QString>

/// What every command says and how it ends.
namespace cli {

enum ExitStatus { Success = 0, SomeFailed = 1, WrongUse = 2 };

/// Every exit status with what it means, for the help.
[[nodiscard]] QString exitStatusHelp();

void complain(const QString &text);

/// Writes a whole report; false when it did not get out, for instance because the disk is full.
[[nodiscard]] bool print(const QByteArray &report);

/// Tells on standard error why the command does not go on; returns WrongUse.
ExitStatus refuse(const QString &message);

/// Prints the report and returns @p status, or refuses because it could not be written.
[[nodiscard]] ExitStatus finish(const QByteArray &report, ExitStatus status);

} // namespace cli
