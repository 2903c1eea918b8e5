#pragma once

#include "registry.h"

/// Writes and removes single text values of the registry: those that start a program with the
/// session, this program or another one, and the uninstall lists.
///
/// On Windows this is the only place that writes with QSettings, which has several traps. QSettings
/// creates a key when it is merely opened. It treats slashes as backslashes and gives texts that
/// begin with "@" another meaning. It clears a whole key for an empty name. When it removes a value
/// it also removes the key of the same name. Therefore the key is created separately and first.
/// Names and texts that QSettings would change are written exactly by other means, and what was
/// written is read back. Reading and removing do not use QSettings, for the same reasons.
namespace platform::registrysettings {

/// Writes @p text as the value @p name of @p key and waits until it is stored. The key is created
/// if it is missing. On failure the key is as before and @p error says why, for people. An empty
/// name is refused.
[[nodiscard]] bool setText(Hive hive, const QString &key, const QString &name, const QString &text,
                           QString &error);

/// Removes the values @p names of @p key and waits until that is stored. An empty name means the
/// default value. A missing value is no failure. After a failure some of the values may be removed.
[[nodiscard]] bool remove(Hive hive, const QString &key, const QStringList &names, QString &error);

} // namespace platform::registrysettings
