#pragma once

#include <QList>
#include <QString>

struct CleanCategory;

namespace platform {
class ProtectedPlaces;
class ReadFailures;
} // namespace platform

/// A browser that can be cleaned, and whether it is installed.
struct Browser {
    /// The browser's index in the list of known browsers. Pages store the value in a property, so
    /// it must not change.
    enum Type { Chrome = 0, Edge = 1, Firefox = 2, Opera = 3, Brave = 4 };

    int type = Chrome;
    QString id; ///< the start of its category ids, such as "google_chrome"
    QString name; ///< for people, translated
    QString dataRoot; ///< the folder of its profiles, absolute; may be missing
    QString processName; ///< in lower case
    bool installed = false;
    bool selected = true; ///< set by the page; see BrowserCleaner::setBrowserEnabled()
};

namespace browsers {

/// The folders where programs keep a user's data; absolute paths, empty when unknown.
struct DataFolders {
    QString local;
    QString roaming;
};

/// The folders of the user who runs the program.
[[nodiscard]] DataFolders dataFolders();

/// The five browsers in their fixed order. Their state is read from the system now. A browser whose
/// data cannot be examined counts as installed, so that a scan tries it and reports the failure.
/// @p failures gets what of the list of installed programs could not be read.
[[nodiscard]] QList<Browser> detect(const DataFolders &folders, platform::ReadFailures &failures);

/// Whether @p name means @p browser. It may be the id ("google_chrome"), the name ("Google Chrome")
/// or a word of the name ("chrome").
[[nodiscard]] bool isCalled(const Browser &browser, const QString &name);

/// The icon name of the browser that @p name contains, such as "browser-chrome". Case is ignored.
/// Any other name gives "browser".
[[nodiscard]] QString iconName(const QString &name);

/// The browser and the rule that a category of browser data comes from.
struct CategoryOrigin {
    QString browserId; ///< empty when the category belongs to none of the browsers
    QString ruleId; ///< the whole id of a category that has no browser
    QString ruleName; ///< without the browser's name
};

/// The origin that the fields of @p category name. An empty field is derived: the browser and the
/// rule from the category's id, such as "google_chrome_cookies", the rule's name from what follows
/// the first " - " of the category's name.
[[nodiscard]] CategoryOrigin originOf(const CleanCategory &category);

/// The profile folders of a Chromium browser in scan order. The paths are absolute and contain no
/// links. A folder that is a link is left out, with a warning in the log. What cannot be read is
/// added to @p failures.
[[nodiscard]] QStringList chromiumProfiles(const QString &dataRoot,
                                           platform::ReadFailures &failures);

/// The folder where Firefox keeps data that belongs to no profile. Empty when there is no such
/// folder. What cannot be read is added to @p failures.
[[nodiscard]] QString firefoxRoot(const DataFolders &folders, platform::ReadFailures &failures);

/// Firefox's profile folders, each once. First come those that profiles.ini names, then the
/// subfolders of the roaming and the local profiles folder. A path in profiles.ini may lead
/// anywhere; links in it are resolved. A link in a profiles folder is left out unless profiles.ini
/// names it. What cannot be read is added to @p failures.
[[nodiscard]] QStringList firefoxProfiles(const DataFolders &folders,
                                          platform::ProtectedPlaces &places,
                                          platform::ReadFailures &failures);

} // namespace browsers
