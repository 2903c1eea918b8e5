#pragma once

#include <QString>

/// The entry that starts this program with the user's session.
namespace autostart {

/// The command that starts @p programPath: with native separators, and in quotes when a blank in
/// the path would end it.
[[nodiscard]] QString command(const QString &programPath);

/// Writes or removes the entry of the running program. False when the change could not be stored;
/// the log has the reason.
bool set(bool on);

} // namespace autostart
