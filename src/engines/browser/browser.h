#pragma once

#include <QList>
#include <QString>

struct CleanCategory;

/// A browser that can be cleaned, and whether it is here.
struct Browser {
    /// The browser's place in the list of those that are known. The values are fixed: pages keep
    /// them in a property.
    enum Type { Chrome = 0, Edge = 1, Firefox = 2, Opera = 3, Brave = 4 };

    int type = Chrome;
    QString id; ///< what its category ids begin with, such as "google_chrome"
    QString name; ///< for people, translated
    QString dataRoot; ///< where its profiles lie, absolute; need not exist
    QString processName; ///< in lower case
    bool installed = false;
    bool selected = true; ///< set by the page, see BrowserCleaner::setBrowserEnabled()
};

namespace browsers {

/// Where programs keep a user's data; absolute.
struct DataFolders {
    QString local;
    QString roaming;
};

/// Those of the user who runs the program.
[[nodiscard]] DataFolders dataFolders();

/// The five browsers in their fixed order, with what the system says of them now.
[[nodiscard]] QList<Browser> detect(const DataFolders &folders);

/// Whether a user who writes @p name means @p browser: by its id ("google_chrome"), its name
/// ("Google Chrome") or a word of that ("chrome").
[[nodiscard]] bool isCalled(const Browser &browser, const QString &name);

/// The icon of the browser that @p name names in any case, such as "browser-chrome"; "browser" for
/// any other name.
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

/// The profile folders of a Chromium browser, absolute and link-free, in the order in which they
/// are scanned. A folder that is a link is left out, with a warning in the log.
[[nodiscard]] QStringList chromiumProfiles(const QString &dataRoot);

/// Where Firefox keeps what belongs to no profile; empty when there is no such folder.
[[nodiscard]] QString firefoxRoot(const DataFolders &folders);

/// Firefox's profile folders, each once: those that profiles.ini names, then those below the
/// roaming and the local profiles folder. What the file names may lie anywhere and is resolved; a
/// link below a profiles folder that it does not name is left out.
[[nodiscard]] QStringList firefoxProfiles(const DataFolders &folders);

} // namespace browsers
