#include "browser.h"

#include "entry.h"
#include "folderlister.h"
#include "inifile.h"
#include "logger.h"
#include "namefilter.h"
#include "protectedplaces.h"
#include "readfile.h"
#include "registry.h"
#include "registrykeys.h"
#include "rulefolders.h"
#include "scanlog.h"
#include "scanresult.h"

#include <QCoreApplication>
#include <QDir>
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
QString locateIn(const DataFolders &folders, DataFolder folder, const QString &relative,
                 platform::ReadFailures &failures)
{
    return platform::locate(folder == DataFolder::Local ? folders.local : folders.roaming, relative,
                            failures);
}

// The browser's data root. If it cannot be located, the path where it would be; empty if the data
// folder is not known.
QString dataRoot(const DataFolders &folders, const Description &browser,
                 platform::ReadFailures &failures)
{
    const QString located = locateIn(folders, browser.folder, browser.root, failures);
    const QString &base = browser.folder == DataFolder::Local ? folders.local : folders.roaming;
    if (!located.isEmpty() || base.isEmpty())
        return located;
    return base + u'/' + browser.root;
}

/// The names of the installed programs. The first call reads them from the registry.
class InstalledPrograms
{
public:
    explicit InstalledPrograms(platform::ReadFailures &failures)
        : m_failures(failures)
    {
    }

    bool hasNameContaining(const QString &text)
    {
        if (!m_names)
            m_names = read();
        return std::any_of(m_names->begin(), m_names->end(), [&text](const QString &name) {
            return name.contains(text, Qt::CaseInsensitive);
        });
    }

private:
    QStringList read() const
    {
        const platform::Registry registry;
        QStringList names;
        for (const auto &[hive, list] : registrykeys::uninstallLists()) {
            for (const QString &program : registry.subkeys(hive, list))
                names.append(registry.text(hive, list + u'\\' + program, u"DisplayName"_s));
        }
        m_failures.add(registry.readFailures());
        return names;
    }

    platform::ReadFailures &m_failures;
    std::optional<QStringList> m_names;
};

// Whether the browser has data, which makes it count as installed. Its folder may be a link; a scan
// then skips it. Data that cannot be examined may be there.
bool hasData(const DataFolders &folders, int type, const QString &dataRoot)
{
    platform::ReadFailures failures;
    const auto mayBeFolder = [&failures](const QString &path) {
        if (path.isEmpty())
            return false;
        const platform::Entry entry = platform::inspect(path);
        noteSkipped(path, entry, failures);
        return entry.kind == platform::EntryKind::Folder || QFileInfo(path).isDir();
    };
    const auto locate = [&](DataFolder folder, const QString &relative) {
        return locateIn(folders, folder, relative, failures);
    };
    const bool isThere = type != Browser::Firefox
        ? mayBeFolder(dataRoot)
        : platform::inspect(locate(DataFolder::Roaming, u"Mozilla/Firefox/profiles.ini"_s)).kind
                != platform::EntryKind::Missing
            || mayBeFolder(dataRoot)
            || mayBeFolder(locate(DataFolder::Local, u"Mozilla/Firefox/Profiles"_s));
    return isThere || !failures.isEmpty();
}

/// The subfolders directly in @p folder, sorted by name, without links and hidden folders.
QStringList subfolders(const QString &folder, platform::ReadFailures &failures,
                       const QStringList &nameFilters = {})
{
    const platform::FolderListing listing = platform::FolderLister().list(folder);
    if (!listing.error.isEmpty() && !listing.isMissing)
        failures.add(folder, listing.error);
    const platform::NameFilter filter(nameFilters);
    QStringList paths;
    for (const platform::ListedEntry &entry : listing.entries) {
        const bool isFolder = entry.kind == platform::ListedKind::Folder
            || entry.kind == platform::ListedKind::FolderLink;
        const QString path = folder + u'/' + entry.name;
        if (isFolder && !entry.isHidden && filter.matches(entry.name)
            && isScannable(path, failures))
            paths.append(path);
    }
    paths.sort();
    return paths;
}

QByteArray readProfilesIni(const QString &path, platform::ReadFailures &failures)
{
    if (platform::inspect(path).kind == platform::EntryKind::Missing)
        return {};
    QString error;
    const std::optional<QByteArray> content = platform::readFile(path, maxProfilesIniSize, error);
    if (!content)
        failures.add(path, error);
    return content.value_or(QByteArray());
}

/// The profile folder that a group of profiles.ini names, with links resolved. Empty when it names
/// none.
QString profileFolder(const IniGroup &group, const QString &root, platform::ReadFailures &failures)
{
    const QString path = group.values.value(u"path"_s);
    if (path.isEmpty() || path.contains(QChar::Null))
        return {};
    if (group.values.value(u"isrelative"_s) != "1"_L1)
        return platform::locate(path, {}, failures);
    // A path with ".." in it is not located, but may lead to a profile all the same.
    const QString located = platform::locate(root, path);
    return platform::locate(located.isEmpty() ? root + u'/' + path : located, {}, failures);
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
    const QString home = platform::homeFolder();
    QString roaming = platform::locate(home, u"AppData/Roaming"_s);
    if (roaming.isEmpty() && !home.isEmpty())
        roaming = home + "/AppData/Roaming"_L1;
    return {platform::localDataFolder(), roaming};
}

QList<Browser> detect(const DataFolders &folders, platform::ReadFailures &failures)
{
    InstalledPrograms programs(failures);
    QList<Browser> list;
    for (const Description &description : descriptions) {
        Browser browser;
        const QString name = QString::fromLatin1(description.name);
        browser.type = static_cast<int>(list.size());
        browser.id = makeId(name);
        browser.name = QCoreApplication::translate("BrowserCleaner", description.name);
        platform::ReadFailures ignored; // a scan meets them again and reports them
        browser.dataRoot = dataRoot(folders, description, ignored);
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

QStringList chromiumProfiles(const QString &dataRoot, platform::ReadFailures &failures)
{
    if (!isScannable(dataRoot, failures))
        return {};
    QStringList profiles;
    if (const QString defaultProfile = platform::locate(dataRoot, u"Default"_s, failures);
        isScannable(defaultProfile, failures))
        profiles.append(defaultProfile);
    return profiles + subfolders(dataRoot, failures, {u"Profile *"_s});
}

QString firefoxRoot(const DataFolders &folders, platform::ReadFailures &failures)
{
    const QString root = locateIn(folders, DataFolder::Roaming, u"Mozilla/Firefox"_s, failures);
    return isScannable(root, failures) ? root : QString();
}

QStringList firefoxProfiles(const DataFolders &folders, platform::ProtectedPlaces &places,
                            platform::ReadFailures &failures)
{
    QStringList profiles;
    const auto add = [&profiles](const QString &path) {
        if (!profiles.contains(path))
            profiles.append(path);
    };
    const QString root = firefoxRoot(folders, failures);
    if (!root.isEmpty()) {
        const QString ini = platform::locate(root, u"profiles.ini"_s, failures);
        const QList<IniGroup> groups = parseIni(readProfilesIni(ini, failures));
        for (const IniGroup &group : groups) {
            if (!group.name.startsWith("Profile"_L1) && !group.name.startsWith("Install"_L1))
                continue;
            const QString path = profileFolder(group, root, failures);
            if (!isScannable(path, failures))
                continue;
            if (places.holdsProtectedPlace(path)) {
                Logger::instance().warning(
                    u"Skipped Firefox profile: %1 may hold more"_s.arg(path));
                continue;
            }
            add(path);
            Logger::instance().info(u"Found Firefox profile: %1"_s.arg(path));
        }
    }
    for (const DataFolder data : {DataFolder::Roaming, DataFolder::Local}) {
        const QString folder = locateIn(folders, data, u"Mozilla/Firefox/Profiles"_s, failures);
        if (!isScannable(folder, failures))
            continue;
        const QStringList found = subfolders(folder, failures);
        for (const QString &path : found)
            add(path);
    }
    return profiles;
}

} // namespace browsers
