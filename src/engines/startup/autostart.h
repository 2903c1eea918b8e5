#pragma once

#include <QString>

/// The entry that starts this program with the user's session.
namespace autostart {

/// The command that starts @p programPath: in native separators, and in quotes where a blank would
/// end it.
[[nodiscard]] QString command(const QString &programPath);

/// Writes or removes the entry of the program that runs. False when it could not be stored.
bool set(bool on);

} // namespace autostart
