#pragma once

#include <QLatin1StringView>

class QSettings;

/// The options that the settings keep: switches, each under a key and with a default.
///
/// They are read and written by these functions alone: an INI file gives back the group "general",
/// whose name has a meaning of its own there, as "General", which is another one where capitals
/// count.
namespace options {

struct Option {
    QLatin1StringView key;
    bool defaultValue = false; ///< where the settings do not have the key
};

/// Start with the session.
inline constexpr Option autoStart{QLatin1StringView("general/autoStart"), false};
/// Closing the window hides it, and the program stays in the tray.
inline constexpr Option minimizeToTray{QLatin1StringView("general/minimizeToTray"), false};
/// Ask before a clean.
inline constexpr Option confirmClean{QLatin1StringView("clean/confirmClean"), true};
/// Kept for the user; a registry clean always asks for its backup.
inline constexpr Option backupRegistry{QLatin1StringView("clean/backupRegistry"), true};

/// The code of the language, a text that is empty by default. Alone in a store of its own:
/// QSettings(appinfo::organisation, appinfo::name).
inline constexpr QLatin1StringView language("language");

[[nodiscard]] bool isOn(const QSettings &settings, const Option &option);
void set(QSettings &settings, const Option &option, bool on);

} // namespace options
