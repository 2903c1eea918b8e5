#include "browser.h"

#include "entry.h"
#include "folderlister.h"
#include "inifile.h"
#include "logger.h"
#include "namefilter.h"
#include "protectedplaces.h"
#include "registry.h"
#include "registrykeys.h"
#include "rulefolders.h"
#include "scanresult.h"
#include "walklog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace browsers {

namespace {

// The member of DataFolders that a path starts from.
enum class DataFolder { Local, Roaming };

/// One known browser: a row of the table below.
struct Description {
    const char *name = nullptr; ///< as in the uninstall lists; the id is made from it
    DataFolder folder = DataFolder::Local;
    QLatin1StringView root; ///< below the data folder
    QLatin1StringView process;
    QLatin1StringView icon; ///< the end of the icon's name: a word of the browser's name
};

// The known browsers. Their order is that of Browser::Type, of a scan and of the page.
constexpr std::array descriptions{
    Description{QT_TRANSLATE_NOOP("BrowserCleaner", "Google Chrome"), DataFolder::Local,
                "Google/Chrome/User Data"_L1, "chrome.exe"_L1, "chrome"_L1},
    Description{QT_TRANSLATE_NOOP("BrowserCleaner", "Microsoft Edge"), DataFolder::Local,
                "Microsoft/Edge/User Data"_L1, "msedge.exe"_L1, "edge"_L1},
    Description{QT_TRANSLATE_NOOP("BrowserCleaner", "Mozilla Firefox"), DataFolder::Roaming,
                "Mozilla/Firefox/Profiles"_L1, "firefox.exe"_L1, "firefox"_L1},
    Description{QT_TRANSLATE_NOOP("BrowserCleaner", "Opera"), DataFolder::Roaming,
                "Opera Software/Opera Stable"_L1, "opera.exe"_L1, "opera"_L1},
    Description{QT_TRANSLATE_NOOP("BrowserCleaner", "Brave"), DataFolder::Local,
                "BraveSoftware/Brave-Browser/User Data"_L1, "brave.exe"_L1, "brave"_L1},
};

// This browser has an icon but is not cleaned.
constexpr QLatin1StringView iconOnlyBrowser = "safari"_L1;

constexpr qint64 maxProfilesIniSize = 1'048'576;

// The path of @p relative in a data folder; empty when it cannot be used. Links on the way to the
// data folder are the user's wish and are followed. Links below the data folder are not.
QString locateIn(const DataFolders &folders, DataFolder folder, const QString &relative)
{
    const QString base = folder == DataFolder::Local ? folders.local : folders.roaming;
    QString problem;
    const QString path = platform::locate(base, relative, &problem);
    if (!problem.isEmpty())
        logSkipped(base + u'/' + relative, problem);
    return path;
}

// The browser's data root. If it cannot be located, the path where it would be.
QString dataRoot(const DataFolders &folders, const Description &browser)
{
    const QString located = locateIn(folders, browser.folder, browser.root);
    if (!located.isEmpty())
        return located;
    return (browser.folder == DataFolder::Local ? folders.local : folders.roaming) + u'/'
        + browser.root;
}

/// The names of the installed programs. The first call reads them from the registry.
class InstalledPrograms
{
public:
    bool hasNameContaining(const QString &text)
    {
        if (!m_names)
            m_names = read();
        return std::any_of(m_names->begin(), m_names->end(), [&text](const QString &name) {
            return name.contains(text, Qt::CaseInsensitive);
        });
    }

private:
    static QStringList read()
    {
        const platform::Registry registry;
        QStringList names;
        for (const auto &[hive, list] : registrykeys::uninstallLists()) {
            for (const QString &program : registry.subkeys(hive, list))
                names.append(registry.text(hive, list + u'\\' + program, u"DisplayName"_s));
        }
        return names;
    }

    std::optional<QStringList> m_names;
};

// Whether the browser has data, which makes it count as installed. Its folder may be a link; a scan
// then skips it.
bool hasData(const DataFolders &folders, int type, const QString &dataRoot)
{
    const auto isFolder = [](const QString &path) {
        if (path.isEmpty())
            return false;
        const platform::Entry entry = platform::inspect(path);
        if (entry.kind == platform::EntryKind::Other)
            logSkipped(path, entry);
        return QFileInfo(path).isDir();
    };
    if (type != Browser::Firefox)
        return isFolder(dataRoot);
    return QFileInfo::exists(
               locateIn(folders, DataFolder::Roaming, u"Mozilla/Firefox/profiles.ini"_s))
        || isFolder(dataRoot)
        || isFolder(locateIn(folders, DataFolder::Local, u"Mozilla/Firefox/Profiles"_s));
}

/// The subfolders directly in @p folder, sorted by name, without links and hidden folders.
QStringList subfolders(const QString &folder, const QStringList &nameFilters = {})
{
    const platform::FolderListing listing = platform::FolderLister().list(folder);
    if (!listing.error.isEmpty() && !listing.isMissing)
        logUnreadable(folder, listing.error);
    const platform::NameFilter filter(nameFilters);
    QStringList paths;
    for (const platform::ListedEntry &entry : listing.entries) {
        const bool isFolder = entry.kind == platform::ListedKind::Folder
            || entry.kind == platform::ListedKind::FolderLink;
        const QString path = folder + u'/' + entry.name;
        if (isFolder && !entry.isHidden && filter.matches(entry.name) && isScannable(path))
            paths.append(path);
    }
    paths.sort();
    return paths;
}

QByteArray readProfilesIni(const QString &path)
{
    QFile file(path);
    // Opening a pipe would block until another program writes into it.
    if (!QFileInfo(path).isFile())
        return {};
    if (!file.open(QIODevice::ReadOnly)) {
        Logger::instance().warning(u"Cannot read file: %1 - %2"_s.arg(path, file.errorString()));
        return {};
    }
    return file.read(maxProfilesIniSize);
}

/// The profile folder that a group of profiles.ini names, with links resolved. Empty when it names
/// none.
QString profileFolder(const IniGroup &group, const QString &root)
{
    const QString path = group.values.value(u"path"_s);
    if (path.isEmpty() || path.contains(QChar::Null))
        return {};
    if (group.values.value(u"isrelative"_s) != "1"_L1)
        return platform::locate(path, {});
    const QString located = platform::locate(root, path);
    return platform::locate(located.isEmpty() ? root + u'/' + path : located, {});
}

QString makeId(const QString &name)
{
    return name.toLower().replace(u' ', u'_');
}

/// The id of the browser that @p categoryId begins with; empty when it is none of the table.
QString browserIdOf(const QString &categoryId)
{
    for (const Description &description : descriptions) {
        const QString id = makeId(QString::fromLatin1(description.name));
        if (categoryId.startsWith(id))
            return id;
    }
    return {};
}

} // namespace

DataFolders dataFolders()
{
    // The roaming folder is always AppData/Roaming in the home folder, even if the environment
    // names another one.
    const QString roaming = platform::locate(platform::homeFolder(), u"AppData/Roaming"_s);
    return {platform::localDataFolder(),
            roaming.isEmpty() ? platform::homeFolder() + "/AppData/Roaming"_L1 : roaming};
}

QList<Browser> detect(const DataFolders &folders)
{
    InstalledPrograms programs;
    QList<Browser> list;
    for (const Description &description : descriptions) {
        Browser browser;
        const QString name = QString::fromLatin1(description.name);
        browser.type = static_cast<int>(list.size());
        browser.id = makeId(name);
        browser.name = QCoreApplication::translate("BrowserCleaner", description.name);
        browser.dataRoot = dataRoot(folders, description);
        browser.processName = description.process;
        browser.installed =
            hasData(folders, browser.type, browser.dataRoot) || programs.hasNameContaining(name);
        list.append(browser);
    }
    return list;
}

bool isCalled(const Browser &browser, const QString &name)
{
    const QString id = makeId(name);
    return browser.id == id || browser.id.split(u'_').contains(id);
}

QString iconName(const QString &name)
{
    for (const Description &description : descriptions) {
        if (name.contains(description.icon, Qt::CaseInsensitive))
            return "browser-"_L1 + description.icon;
    }
    if (name.contains(iconOnlyBrowser, Qt::CaseInsensitive))
        return "browser-"_L1 + iconOnlyBrowser;
    return u"browser"_s;
}

CategoryOrigin originOf(const CleanCategory &category)
{
    CategoryOrigin origin{category.browserId, category.ruleId, category.ruleName};
    if (origin.browserId.isEmpty())
        origin.browserId = browserIdOf(category.id);
    if (origin.ruleId.isEmpty()) {
        const QString prefix = origin.browserId.isEmpty() ? QString() : origin.browserId + u'_';
        origin.ruleId =
            category.id.startsWith(prefix) ? category.id.sliced(prefix.size()) : category.id;
    }
    if (origin.ruleName.isEmpty()) {
        const QLatin1StringView separator = " - "_L1;
        const qsizetype end = category.name.indexOf(separator);
        origin.ruleName = end < 0 ? category.name : category.name.sliced(end + separator.size());
    }
    return origin;
}

QStringList chromiumProfiles(const QString &dataRoot)
{
    if (!isScannable(dataRoot))
        return {};
    QStringList profiles;
    if (const QString defaultProfile = platform::locate(dataRoot, u"Default"_s);
        isScannable(defaultProfile))
        profiles.append(defaultProfile);
    return profiles + subfolders(dataRoot, {u"Profile *"_s});
}

QString firefoxRoot(const DataFolders &folders)
{
    const QString root = locateIn(folders, DataFolder::Roaming, u"Mozilla/Firefox"_s);
    return isScannable(root) ? root : QString();
}

QStringList firefoxProfiles(const DataFolders &folders)
{
    QStringList profiles;
    const auto add = [&profiles](const QString &path) {
        if (!profiles.contains(path))
            profiles.append(path);
    };
    const QString root = firefoxRoot(folders);
    if (!root.isEmpty()) {
        const QString ini = platform::locate(root, u"profiles.ini"_s);
        const QList<IniGroup> groups = parseIni(readProfilesIni(ini));
        for (const IniGroup &group : groups) {
            if (!group.name.startsWith("Profile"_L1) && !group.name.startsWith("Install"_L1))
                continue;
            const QString path = profileFolder(group, root);
            if (!isScannable(path))
                continue;
            if (platform::holdsProtectedPlace(path)) {
                Logger::instance().warning(u"Skipped Firefox profile: %1 holds more"_s.arg(path));
                continue;
            }
            add(path);
            Logger::instance().info(u"Found Firefox profile: %1"_s.arg(path));
        }
    }
    for (const DataFolder data : {DataFolder::Roaming, DataFolder::Local}) {
        const QString folder = locateIn(folders, data, u"Mozilla/Firefox/Profiles"_s);
        if (!isScannable(folder))
            continue;
        const QStringList found = subfolders(folder);
        for (const QString &path : found)
            add(path);
    }
    return profiles;
}

} // namespace browsers
