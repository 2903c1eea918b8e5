#pragma once

#include "registry.h"

/// Where this program itself writes into the registry: single text values, such as those that start
/// a program with the session.
///
/// The one place that writes through the settings class of the user interface library on Windows,
/// which takes some care: it makes keys by merely being opened, takes slashes for backslashes,
/// gives texts that begin with "@" another meaning, clears a whole key for an empty name, and
/// removes with a value the keys of its name. Here the key is made first and by itself, names and
/// texts that it would change are written exactly by other means, and what was written is read
/// back. Reading and removing go past it for the same reasons.
namespace platform::registrysettings {

/// Writes @p text as the value @p name of @p key, which is made if need be, and waits until it is
/// stored. If that fails the key is as before and @p error, for people, says why. An empty name is
/// refused.
[[nodiscard]] bool setText(Hive hive, const QString &key, const QString &name, const QString &text,
                           QString &error);

/// Removes the values @p names of @p key, of which the empty one is the default value, and waits
/// until that is stored. True also where there was no such value. After a failure some may be gone.
[[nodiscard]] bool remove(Hive hive, const QString &key, const QStringList &names, QString &error);

} // namespace platform::registrysettings
