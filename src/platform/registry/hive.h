#pragma once

#include <QString>

#include <optional>

namespace platform {

/// The hives that the program uses. ClassesRoot merges the user's classes with the machine's. It is
/// only read: each change names the hive that it is made in.
enum class Hive { LocalMachine, CurrentUser, ClassesRoot };

/// The full name, such as "HKEY_LOCAL_MACHINE".
[[nodiscard]] QString hiveName(Hive hive);

/// The short name that is shown before a path, such as "HKLM".
[[nodiscard]] QString shortHiveName(Hive hive);

/// The hive with the full or short name @p name, in exactly this spelling. Nothing for any other
/// text.
[[nodiscard]] std::optional<Hive> hiveNamed(const QString &name);

/// A full path such as "HKEY_CURRENT_USER\\Software", split into its hive and its key.
struct HivePath {
    Hive hive;
    QString key;
};

/// Splits @p path. Nothing when it does not begin with a hive's full name and a backslash.
[[nodiscard]] std::optional<HivePath> hivePath(const QString &path);

} // namespace platform
