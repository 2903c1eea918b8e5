#include "registrycleaner.h"

#include "itemhive.h"
#include "logger.h"
#include "pathcheck.h"
#include "registrybackup.h"
#include "registrykeys.h"
#include "windowspaths.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <set>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;

namespace {

const QString appPaths = registrykeys::currentVersion + "App Paths"_L1;
const QString uninstall = registrykeys::currentVersion + "Uninstall"_L1;
const QString sharedDlls = registrykeys::currentVersion + "SharedDLLs"_L1;
const QString runKey = registrykeys::currentVersion + "Run"_L1;
const QString runOnceKey = registrykeys::currentVersion + "RunOnce"_L1;
const QString fonts = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"_s;
const QString muiCache =
    u"SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"_s;

constexpr int examinedClasses = 1000; ///< the key may hold many thousands

// Types that Windows itself looks after, in lower case.
bool isProtectedExtension(const QString &extension)
{
    static const QSet<QString> extensions{
        u".bat"_s,  u".cmd"_s, u".com"_s, u".exe"_s, u".msi"_s,  u".msc"_s, u".msp"_s, u".msu"_s,
        u".reg"_s,  u".scr"_s, u".pif"_s, u".lnk"_s, u".url"_s,  u".ini"_s, u".inf"_s, u".dll"_s,
        u".sys"_s,  u".drv"_s, u".cpl"_s, u".ocx"_s, u".txt"_s,  u".log"_s, u".xml"_s, u".htm"_s,
        u".html"_s, u".rtf"_s, u".csv"_s, u".bmp"_s, u".ico"_s,  u".cur"_s, u".ani"_s, u".jpg"_s,
        u".jpeg"_s, u".png"_s, u".gif"_s, u".tif"_s, u".tiff"_s, u".wav"_s, u".mid"_s, u".midi"_s,
        u".mp3"_s,  u".wma"_s, u".avi"_s, u".wmv"_s, u".mp4"_s,  u".zip"_s, u".cab"_s, u".7z"_s,
        u".rar"_s,  u".hlp"_s, u".chm"_s, u".ttf"_s, u".otf"_s,  u".fon"_s, u".js"_s,  u".vbs"_s,
        u".ps1"_s,  u".wsf"_s, u".wsh"_s, u".blg"_s, u".dqy"_s,  u".oqy"_s, u".rqy"_s, u".iqy"_s,
    };
    return extensions.contains(extension);
}

// The classes of such types. They are looked up in lower case, so that "InternetShortcut" never
// protects anything; it stays as it always was.
bool isProtectedClass(const QString &name)
{
    static const QSet<QString> classes{
        u"batfile"_s,  u"cmdfile"_s, u"comfile"_s,  u"exefile"_s,          u"msipackage"_s,
        u"scrfile"_s,  u"piffile"_s, u"lnkfile"_s,  u"InternetShortcut"_s, u"inifile"_s,
        u"inffile"_s,  u"regfile"_s, u"dllfile"_s,  u"txtfile"_s,          u"xmlfile"_s,
        u"htmlfile"_s, u"rtffile"_s, u"jpegfile"_s, u"pngfile"_s,          u"giffile"_s,
        u"bmpfile"_s,  u"icofile"_s, u"wmafile"_s,  u"wmvfile"_s,          u"mp3file"_s,
        u"avifile"_s,  u"zipfile"_s, u"cabfile"_s,  u"fonfile"_s,          u"ttffile"_s,
        u"otffile"_s,  u"jsfile"_s,  u"vbsfile"_s,  u"wshfile"_s,          u"wsf_auto_file"_s,
    };
    return classes.contains(name);
}

QString fileName(const QString &path)
{
    return path.mid(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
}

CleanItem makeItem(RegistryEntry entry, const QString &name, const QString &description, Hive hive,
                   const QString &key)
{
    CleanItem item(name, platform::shortHiveName(hive) + u'\\' + key, 0);
    item.registryEntry = entry;
    item.description = description;
    item.registryRoot = platform::hiveName(hive);
    item.registryKey = key;
    return item;
}

CleanItem keyItem(const QString &name, const QString &description, Hive hive, const QString &key)
{
    return makeItem(RegistryEntry::Key, name, description, hive, key);
}

// Of a value the location that is shown is its key's.
CleanItem valueItem(const QString &name, const QString &description, Hive hive, const QString &key,
                    const QString &value)
{
    CleanItem item = makeItem(RegistryEntry::Value, name, description, hive, key);
    item.registryKey += u'\\' + value;
    return item;
}

// Keys whose entries the scans list value by value. What a value's name makes of such a key's path
// may be the path of a key below it, or, without a name, of the key itself: neither was shown.
bool isBelowValueList(const QString &keyPath)
{
    static const QStringList lists{fonts, runKey, runOnceKey, sharedDlls, muiCache};
    return std::any_of(lists.begin(), lists.end(), [&keyPath](const QString &list) {
        return keyPath.startsWith(list + u'\\', Qt::CaseInsensitive);
    });
}

bool isValueList(const QString &key)
{
    return isBelowValueList(key + u'\\') && !isBelowValueList(key);
}

} // namespace

/// What the checks of one scan share.
struct RegistryCleaner::Scan {
    explicit Scan(const Registry &opened)
        : registry(opened)
        , paths(opened)
    {
    }

    const Registry &registry;
    PathCheck paths;
    QList<CleanItem> items{}; ///< of the check that runs
};

/// The key or value that an item stands for, in the one hive that has it.
struct RegistryCleaner::Place {
    Hive hive;
    QString path; ///< empty for what is no class

    [[nodiscard]] bool operator<(const Place &other) const
    {
        return std::tie(hive, path) < std::tie(other.hive, other.path);
    }

    [[nodiscard]] static Place of(const CleanItem &item)
    {
        const ItemHive hive = ItemHive::forClean(item);
        // Without a name it would be the key that holds all classes.
        const bool isNoClass = hive.isClass() && !Registry::isKeyPath(item.registryKey);
        return {hive.stored, isNoClass ? QString() : hive.storedPath(item.registryKey)};
    }
};

/// An entry that was removed, until that is saved.
struct RegistryCleaner::Unsaved {
    Hive hive;
    QString entry; ///< for people
};

RegistryCleaner::RegistryCleaner(QObject *parent)
    : CleanEngine(parent)
{
    const auto add = [this](Check check, const QString &id, const QString &name,
                            const QString &description, int level, bool checked = true) {
        m_categories.append({check, id, name, description, {}, {}, level, checked});
    };
    add(&RegistryCleaner::checkSoftware, u"invalid_software"_s, tr("Invalid Software Paths"),
        tr("Registry entries pointing to non-existent locations"), LowRisk);
    add(&RegistryCleaner::checkFileAssociations, u"invalid_file_assoc"_s,
        tr("Invalid File Associations"), tr("File associations pointing to missing programs"),
        LowRisk);
    add(&RegistryCleaner::checkCom, u"invalid_com"_s, tr("Invalid COM/ActiveX"),
        tr("Invalid COM components and ActiveX controls"), MediumRisk);
    add(&RegistryCleaner::checkFonts, u"invalid_fonts"_s, tr("Invalid Font References"),
        tr("Registry entries pointing to non-existent font files"), LowRisk);
    add(&RegistryCleaner::checkStartup, u"invalid_startup"_s, tr("Invalid Startup Items"),
        tr("Startup items pointing to non-existent programs"), MediumRisk);
    add(&RegistryCleaner::checkSharedDlls, u"invalid_shared_dll"_s, tr("Invalid Shared DLLs"),
        tr("References to non-existent shared DLL files"), MediumRisk, false);
    add(&RegistryCleaner::checkMuiCache, u"mui_cache"_s, tr("MUI Cache"),
        tr("Application MUI cache data"), LowRisk);
}

RegistryCleaner::~RegistryCleaner()
{
    stopAndWait();
}

QStringList RegistryCleaner::categoryIds() const
{
    QStringList ids;
    for (const Category &category : m_categories)
        ids.append(category.id);
    return ids;
}

bool RegistryCleaner::pathExists(const QString &text)
{
    return PathCheck(Registry()).exists(text);
}

void RegistryCleaner::doScan()
{
    Logger::instance().info(u"Starting registry scan..."_s);
    const QStringList texts{
        tr("Scanning invalid software paths..."),
        tr("Scanning invalid file associations..."),
        tr("Scanning invalid COM components..."),
        tr("Scanning invalid font references..."),
        tr("Scanning invalid startup items..."),
        tr("Scanning invalid shared DLLs..."),
        tr("Scanning MUI cache..."),
    };
    const Registry registry;
    Scan scan(registry);
    const int count = static_cast<int>(m_categories.size());
    for (int i = 0; i < count; ++i) {
        Q_EMIT scanProgress(i + 1, count, texts.at(i));
        if (!isStopRequested())
            runCheck(m_categories.at(i), scan);
    }
    if (isStopRequested()) {
        setState(State::Cancelled);
        return;
    }
    result().scanTime = QDateTime::currentDateTime();
    Logger::instance().info(u"Registry scan finished. Found %1 items"_s.arg(result().totalCount()));
}

void RegistryCleaner::runCheck(const Category &category, Scan &scan)
{
    CleanCategory found(category.id, category.name, category.description);
    found.checked = category.checked;
    found.riskLevel = category.level;
    (this->*category.check)(scan);
    found.items = std::exchange(scan.items, {});
    if (!found.items.isEmpty() && !isStopRequested())
        result().categories.append(std::move(found));
}

void RegistryCleaner::checkSoftware(Scan &scan)
{
    checkAppPaths(scan);
    checkUninstall(scan);
}

void RegistryCleaner::checkAppPaths(Scan &scan)
{
    for (const QString &name : scan.registry.subkeys(Hive::LocalMachine, appPaths)) {
        if (isStopRequested())
            return;
        const QString key = appPaths + u'\\' + name;
        const QString value = scan.registry.text(Hive::LocalMachine, key, {});
        if (!value.isEmpty() && !scan.paths.exists(value))
            scan.items.append(keyItem(name, tr("Path: %1").arg(value), Hive::LocalMachine, key));
    }
}

void RegistryCleaner::checkUninstall(Scan &scan)
{
    for (const QString &name : scan.registry.subkeys(Hive::LocalMachine, uninstall)) {
        if (isStopRequested())
            return;
        const QString key = uninstall + u'\\' + name;
        const auto text = [&](const QString &value) {
            return scan.registry.text(Hive::LocalMachine, key, value);
        };
        const QString location = text(u"InstallLocation"_s);
        const QString command = text(u"UninstallString"_s);
        const bool isInvalid = (!location.isEmpty() && !scan.paths.exists(location))
            || (!command.isEmpty() && !scan.paths.exists(PathCheck::quotedPart(command)));
        if (!isInvalid)
            continue;
        const QString displayName = text(u"DisplayName"_s);
        scan.items.append(
            keyItem(displayName.isEmpty() ? name : displayName, {}, Hive::LocalMachine, key));
    }
}

void RegistryCleaner::checkFileAssociations(Scan &scan)
{
    for (const QString &extension : scan.registry.subkeys(Hive::ClassesRoot, {})) {
        if (isStopRequested())
            return;
        if (!extension.startsWith(u'.') || isProtectedExtension(extension.toLower()))
            continue;
        const Registry::ClassText type = scan.registry.classText(extension, {});
        if (type.text.isEmpty() || isProtectedClass(type.text.toLower()))
            continue;
        const QString command =
            scan.registry.classText(type.text + "\\shell\\open\\command"_L1, {}).text;
        if (command.isEmpty() || scan.paths.exists(PathCheck::programPath(command)))
            continue;
        scan.items.append(keyItem(extension + " -> "_L1 + type.text, tr("Command: %1").arg(command),
                                  Hive::ClassesRoot, extension));
        scan.items.last().isUserClass = type.hive == Hive::CurrentUser;
    }
}

void RegistryCleaner::checkCom(Scan &scan)
{
    int count = 0;
    for (const QString &id : scan.registry.subkeys(Hive::ClassesRoot, u"CLSID"_s)) {
        if (isStopRequested() || ++count > examinedClasses)
            return;
        const QString key = "CLSID\\"_L1 + id;
        const auto add = [&](const QString &description, Hive hive) {
            const QString name = scan.registry.classText(key, {}).text;
            scan.items.append(
                keyItem(name.isEmpty() ? id : name, description, Hive::ClassesRoot, key));
            scan.items.last().isUserClass = hive == Hive::CurrentUser;
        };
        const auto [library, libraryHive] =
            scan.registry.classText(key + "\\InprocServer32"_L1, {});
        if (!library.isEmpty() && !scan.paths.exists(library))
            add(tr("DLL: %1").arg(library), libraryHive);
        const auto [server, serverHive] = scan.registry.classText(key + "\\LocalServer32"_L1, {});
        if (!server.isEmpty() && !scan.paths.exists(PathCheck::quotedPart(server)))
            add(tr("EXE: %1").arg(server), serverHive);
    }
}

void RegistryCleaner::checkFonts(Scan &scan)
{
    const std::optional<QString> windows = platform::windowsVariable(u"WINDIR"_s);
    for (const QString &name : scan.registry.valueNames(Hive::LocalMachine, fonts)) {
        if (isStopRequested())
            return;
        QString file = scan.registry.text(Hive::LocalMachine, fonts, name);
        if (file.isEmpty())
            continue;
        if (!file.contains(u'\\') && !file.contains(u'/')) {
            if (!windows)
                continue;
            file = *windows + "\\Fonts\\"_L1 + file;
        }
        if (!scan.paths.exists(file))
            scan.items.append(
                valueItem(name, tr("Font file: %1").arg(file), Hive::LocalMachine, fonts, name));
    }
}

void RegistryCleaner::checkStartup(Scan &scan)
{
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        for (const QString &key : {runKey, runOnceKey}) {
            for (const QString &name : scan.registry.valueNames(hive, key)) {
                if (isStopRequested())
                    return;
                const QString command = scan.registry.text(hive, key, name);
                if (command.isEmpty() || scan.paths.exists(PathCheck::programPath(command)))
                    continue;
                scan.items.append(valueItem(name, tr("Command: %1").arg(command), hive, key, name));
                scan.items.last().registryRoot = platform::shortHiveName(hive);
            }
        }
    }
}

void RegistryCleaner::checkSharedDlls(Scan &scan)
{
    for (const QString &name : scan.registry.valueNames(Hive::LocalMachine, sharedDlls)) {
        if (isStopRequested())
            return;
        if (!scan.paths.exists(name))
            scan.items.append(valueItem(fileName(name), tr("DLL path: %1").arg(name),
                                        Hive::LocalMachine, sharedDlls, name));
    }
}

void RegistryCleaner::checkMuiCache(Scan &scan)
{
    for (const QString &name : scan.registry.valueNames(Hive::CurrentUser, muiCache)) {
        if (isStopRequested())
            return;
        const qsizetype dot = name.lastIndexOf(u'.');
        const bool hasSuffix =
            name.endsWith(".FriendlyAppName"_L1) || name.endsWith(".ApplicationCompany"_L1);
        const QString path = dot > 0 && hasSuffix ? name.first(dot) : name;
        if (!scan.paths.exists(path))
            scan.items.append(valueItem(fileName(path), name, Hive::CurrentUser, muiCache, name));
    }
}

void RegistryCleaner::doClean()
{
    Logger::instance().info(u"Starting registry clean..."_s);
    Registry registry;
    const std::set<Place> listed = findAgain(registry);
    const auto hasChanged = [&listed](const CleanItem &item) {
        return item.registryEntry != RegistryEntry::Unknown && !listed.contains(Place::of(item));
    };
    ScanResult due = selection();
    for (CleanCategory &category : due.categories)
        category.items.removeIf(hasChanged);
    backUp(due, registry);

    QList<Unsaved> removals;
    std::set<Place> gone;
    CleanTotals totals = cleanSelection([&](const CleanItem &item) -> Removal {
        const Place place = Place::of(item);
        if (gone.contains(place)) // a class may stand in the list twice
            return {Removal::NotCounted, 0, {}};
        const QString entry = item.registryRoot + u'\\' + item.registryKey;
        QString reason = tr("It has changed since the scan");
        if (hasChanged(item) || !removeEntry(registry, item, reason))
            return {Removal::Failed, 0, {entry, reason}};
        removals.append({place.hive, entry});
        gone.insert(place);
        return {};
    });
    totals.cleaned = saveChanges(registry, removals);
    reportClean(totals);
    if (!totals.isStopped)
        Logger::instance().info(u"Registry clean finished. Cleaned %1 items"_s.arg(totals.cleaned));
}

// What is not what it was would be another entry than the one that was shown.
std::set<RegistryCleaner::Place> RegistryCleaner::findAgain(const Registry &registry)
{
    std::set<Place> found;
    Scan scan(registry);
    const QList<CleanCategory> &chosen = selection().categories;
    for (const Category &category : std::as_const(m_categories)) {
        const auto isSame = [&category](const CleanCategory &other) {
            return other.id == category.id;
        };
        if (std::any_of(chosen.begin(), chosen.end(), isSame))
            (this->*category.check)(scan);
    }
    for (const CleanItem &item : std::as_const(scan.items))
        found.insert(Place::of(item));
    return found;
}

void RegistryCleaner::backUp(const ScanResult &due, const Registry &registry)
{
    m_backupError.reset();
    if (m_backupPath.isEmpty()) {
        Logger::instance().info(u"Registry backup skipped (no backup path specified)"_s);
        return;
    }
    if (due.checkedCount() == 0 && QFileInfo::exists(m_backupPath)) {
        // The last backup is worth more than an empty one.
        Logger::instance().info(u"Registry backup skipped (nothing to remove)"_s);
        return;
    }
    Logger::instance().info("Creating registry backup to: "_L1 + m_backupPath);
    const QString text = RegistryBackup::text(due, registry, QDateTime::currentDateTime());
    QString error;
    if (RegistryBackup::write(m_backupPath, text, error)) {
        Logger::instance().info("Registry backup created: "_L1 + m_backupPath);
        Logger::instance().info(u"Registry backup created successfully"_s);
        return;
    }
    m_backupError = error;
    Logger::instance().error(u"Failed to create registry backup"_s);
    Logger::instance().error(u"%1 - %2"_s.arg(m_backupPath, error));
}

bool RegistryCleaner::removeEntry(Registry &registry, const CleanItem &item, QString &reason)
{
    const auto [hive, path] = Place::of(item);
    const auto deleteKey = [&registry, &reason, hive = hive, &path = path] {
        const bool isDone = registry.deleteTree(hive, path) || registry.deleteKey(hive, path);
        if (!isDone)
            reason = registry.errorString();
        return isDone;
    };
    if (!item.registryKey.contains(u'\\')) {
        if (deleteKey())
            return true;
        Logger::instance().error(
            u"Failed to delete registry key: %1\\%2"_s.arg(item.registryRoot, item.registryKey));
        return false;
    }
    const qsizetype separator = path.lastIndexOf(u'\\');
    const QString parent = path.left(separator);
    const bool isListed = isBelowValueList(path);
    if (path.isEmpty() || (isListed && !isValueList(parent))) {
        reason = tr("Its name cannot be told from a path");
        return false;
    }
    if (item.registryEntry != RegistryEntry::Key) {
        if (registry.deleteValue(hive, parent, path.mid(separator + 1)))
            return true;
        reason = registry.errorString();
    }
    return !isListed && item.registryEntry != RegistryEntry::Value && deleteKey();
}

int RegistryCleaner::saveChanges(Registry &registry, const QList<Unsaved> &removals)
{
    if (removals.isEmpty())
        return 0;
    if (!registry.save())
        Logger::instance().error("Failed to save the registry: "_L1 + registry.errorString());
    int count = 0;
    for (const Unsaved &removal : removals) {
        if (registry.isSaved(removal.hive))
            ++count;
        else
            addFailure({removal.entry, registry.errorString()});
    }
    return count;
}
