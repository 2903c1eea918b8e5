#pragma once

#include <QString>

#include <optional>

namespace platform {

/// ClassesRoot is the view that merges the user's classes with the machine's: it can be read, but
/// every change names the hive that it means.
enum class Hive { LocalMachine, CurrentUser, ClassesRoot };

/// The name in full, such as "HKEY_LOCAL_MACHINE".
[[nodiscard]] QString hiveName(Hive hive);

/// The name as it is shown before a path, such as "HKLM".
[[nodiscard]] QString shortHiveName(Hive hive);

/// The hive that @p name means, in full or short, in exactly this spelling; nothing for any other
/// text.
[[nodiscard]] std::optional<Hive> hiveNamed(const QString &name);

/// The hive that a full path such as "HKEY_CURRENT_USER\\Software" begins with, and what is below
/// it.
struct HivePath {
    Hive hive;
    QString key;
};

/// @p path taken apart; nothing when it does not begin with a hive's name in full and a backslash.
[[nodiscard]] std::optional<HivePath> hivePath(const QString &path);

} // namespace platform
