#pragma once

#include <QLatin1StringView>

class QSettings;

/// The on/off options in the settings. Each has a key and a default value.
///
/// They must be read and written with these functions only. In an INI file the group name "general"
/// has a special meaning: it is read back as "General". Where the case of key names counts, that is
/// another group.
namespace options {

/// One on/off option of the settings.
struct Option {
    QLatin1StringView key;
    bool defaultValue = false; ///< used when the settings do not have the key
};

/// Start with the session.
inline constexpr Option autoStart{QLatin1StringView("general/autoStart"), false};
/// Closing the window hides it, and the program stays in the tray.
inline constexpr Option minimizeToTray{QLatin1StringView("general/minimizeToTray"), false};
/// Ask before a clean.
inline constexpr Option confirmClean{QLatin1StringView("clean/confirmClean"), true};
/// Stored for the user without further effect: a registry clean always asks for its backup.
inline constexpr Option backupRegistry{QLatin1StringView("clean/backupRegistry"), true};

/// The language code, a text that is empty by default. It is the only key of a separate store:
/// QSettings(appinfo::organisation, appinfo::name).
inline constexpr QLatin1StringView language("language");

[[nodiscard]] bool isOn(const QSettings &settings, const Option &option);
void set(QSettings &settings, const Option &option, bool on);
/// Writes what has been set to the settings file. Returns whether everything is in it now.
[[nodiscard]] bool save(const QSettings &settings);

} // namespace options
