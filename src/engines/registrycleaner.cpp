#include "registrycleaner.h"

#include "filewalk.h"
#include "logger.h"
#include "registrybackup.h"
#include "windowspaths.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;

namespace {

const QString currentVersion = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"_s;
const QString appPaths = currentVersion + "App Paths"_L1;
const QString uninstall = currentVersion + "Uninstall"_L1;
const QString sharedDlls = currentVersion + "SharedDLLs"_L1;
const QString runKey = currentVersion + "Run"_L1;
const QString runOnceKey = currentVersion + "RunOnce"_L1;
const QString fonts = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"_s;
const QString muiCache =
    u"SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"_s;

constexpr int examinedClasses = 1000; ///< the key may hold many thousands

// In this order; a placeholder is written exactly so.
constexpr std::array placeholderVariables{
    std::pair("%SystemRoot%"_L1, "SYSTEMROOT"_L1),
    std::pair("%ProgramFiles%"_L1, "PROGRAMFILES"_L1),
    std::pair("%ProgramFiles(x86)%"_L1, "PROGRAMFILES(X86)"_L1),
    std::pair("%WinDir%"_L1, "WINDIR"_L1),
    std::pair("%UserProfile%"_L1, "USERPROFILE"_L1),
    std::pair("%LocalAppData%"_L1, "LOCALAPPDATA"_L1),
    std::pair("%AppData%"_L1, "APPDATA"_L1),
    std::pair("%CommonProgramFiles%"_L1, "COMMONPROGRAMFILES"_L1),
    std::pair("%CommonProgramFiles(x86)%"_L1, "COMMONPROGRAMFILES(X86)"_L1),
    std::pair("%SystemDrive%"_L1, "SYSTEMDRIVE"_L1),
    std::pair("%HomeDrive%"_L1, "HOMEDRIVE"_L1),
    std::pair("%HomePath%"_L1, "HOMEPATH"_L1),
    std::pair("%Temp%"_L1, "TEMP"_L1),
    std::pair("%Tmp%"_L1, "TMP"_L1),
};

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

// What stands between a leading quote and the next one; everything when there are not two.
QString quotedPart(const QString &text)
{
    if (!text.startsWith(u'"'))
        return text;
    const qsizetype end = text.indexOf(u'"', 1);
    return end > 0 ? text.mid(1, end - 1) : text;
}

QString fileName(const QString &path)
{
    return path.mid(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
}

CleanItem makeItem(const QString &name, const QString &path, const QString &description,
                   const QString &root, const QString &key)
{
    CleanItem item(name, path, 0);
    item.description = description;
    item.registryRoot = root;
    item.registryKey = key;
    return item;
}

const QString machineHive = u"HKEY_LOCAL_MACHINE"_s;
const QString userHive = u"HKEY_CURRENT_USER"_s;
const QString classesHive = u"HKEY_CLASSES_ROOT"_s;

Hive hiveOf(const QString &root)
{
    if (root == machineHive || root == "HKLM"_L1)
        return Hive::LocalMachine;
    if (root == userHive || root == "HKCU"_L1)
        return Hive::CurrentUser;
    return Hive::ClassesRoot;
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

RegistryCleaner::RegistryCleaner(QObject *parent)
    : CleanEngine(parent)
{
    const auto add = [this](const QString &id, const QString &name, const QString &description,
                            int level, bool checked = true) {
        m_categories.append({id, name, description, {}, {}, level, checked});
    };
    add(u"invalid_software"_s, tr("Invalid Software Paths"),
        tr("Registry entries pointing to non-existent locations"), LowRisk);
    add(u"invalid_file_assoc"_s, tr("Invalid File Associations"),
        tr("File associations pointing to missing programs"), LowRisk);
    add(u"invalid_com"_s, tr("Invalid COM/ActiveX"),
        tr("Invalid COM components and ActiveX controls"), MediumRisk);
    add(u"invalid_fonts"_s, tr("Invalid Font References"),
        tr("Registry entries pointing to non-existent font files"), LowRisk);
    add(u"invalid_startup"_s, tr("Invalid Startup Items"),
        tr("Startup items pointing to non-existent programs"), MediumRisk);
    add(u"invalid_shared_dll"_s, tr("Invalid Shared DLLs"),
        tr("References to non-existent shared DLL files"), MediumRisk, false);
    add(u"mui_cache"_s, tr("MUI Cache"), tr("Application MUI cache data"), LowRisk);
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
    return pathExists(text, readPlaceholders());
}

QList<RegistryCleaner::Placeholder> RegistryCleaner::readPlaceholders()
{
    QList<Placeholder> list;
    for (const auto &[placeholder, variable] : placeholderVariables)
        list.emplaceBack(placeholder, platform::windowsVariable(variable));
    return list;
}

bool RegistryCleaner::pathExists(const QString &text, const QList<Placeholder> &placeholders)
{
    if (text.isEmpty())
        return false;
    QString path = text;
    if (path.startsWith(u'"') && path.endsWith(u'"')) {
        path.remove(0, 1);
        path.chop(1);
    }
    if (path.startsWith(u'%') && path.size() < 4)
        return true; // too short to hold a placeholder
    for (const auto &[placeholder, value] : placeholders)
        path.replace(placeholder, value);
    if (path.contains(u'%'))
        return true;
    const QString local = platform::localPath(path);
    // Of a shortcut the file information would tell whether its target exists.
    if (local.endsWith(".lnk"_L1, Qt::CaseInsensitive))
        return platform::inspect(QFileInfo(local).absoluteFilePath()).kind
            != platform::EntryKind::Missing;
    return QFileInfo::exists(local);
}

QString RegistryCleaner::programPath(const QString &command)
{
    if (command.startsWith(u'"'))
        return quotedPart(command);
    const qsizetype end = command.indexOf(u' ');
    return end > 0 ? command.first(end) : command;
}

void RegistryCleaner::doScan()
{
    Logger::instance().info(u"Starting registry scan..."_s);
    const std::array steps{
        std::pair(&RegistryCleaner::checkSoftware, tr("Scanning invalid software paths...")),
        std::pair(&RegistryCleaner::checkFileAssociations,
                  tr("Scanning invalid file associations...")),
        std::pair(&RegistryCleaner::checkCom, tr("Scanning invalid COM components...")),
        std::pair(&RegistryCleaner::checkFonts, tr("Scanning invalid font references...")),
        std::pair(&RegistryCleaner::checkStartup, tr("Scanning invalid startup items...")),
        std::pair(&RegistryCleaner::checkSharedDlls, tr("Scanning invalid shared DLLs...")),
        std::pair(&RegistryCleaner::checkMuiCache, tr("Scanning MUI cache...")),
    };
    m_placeholders = readPlaceholders();
    const Registry registry;
    for (size_t i = 0; i < steps.size(); ++i) {
        Q_EMIT scanProgress(static_cast<int>(i) + 1, static_cast<int>(steps.size()),
                            steps[i].second);
        if (!isStopRequested())
            runCheck(m_categories.at(static_cast<qsizetype>(i)), steps[i].first, registry);
    }
    if (isStopRequested()) {
        setState(State::Cancelled);
        return;
    }
    result().scanTime = QDateTime::currentDateTime();
    Logger::instance().info(u"Registry scan finished. Found %1 items"_s.arg(result().totalCount()));
}

void RegistryCleaner::runCheck(const Category &category, Check check, const Registry &registry)
{
    CleanCategory found(category.id, category.name, category.description);
    found.checked = category.checked;
    found.riskLevel = category.level;
    (this->*check)(registry, found.items);
    if (!found.items.isEmpty() && !isStopRequested())
        result().categories.append(std::move(found));
}

void RegistryCleaner::checkSoftware(const Registry &registry, QList<CleanItem> &items)
{
    checkAppPaths(registry, items);
    checkUninstall(registry, items);
}

void RegistryCleaner::checkAppPaths(const Registry &registry, QList<CleanItem> &items)
{
    for (const QString &name : registry.subkeys(Hive::LocalMachine, appPaths)) {
        if (isStopRequested())
            return;
        const QString key = appPaths + u'\\' + name;
        const QString value = registry.text(Hive::LocalMachine, key, {});
        if (!value.isEmpty() && !exists(value))
            items.append(
                makeItem(name, "HKLM\\"_L1 + key, tr("Path: %1").arg(value), machineHive, key));
    }
}

void RegistryCleaner::checkUninstall(const Registry &registry, QList<CleanItem> &items)
{
    for (const QString &name : registry.subkeys(Hive::LocalMachine, uninstall)) {
        if (isStopRequested())
            return;
        const QString key = uninstall + u'\\' + name;
        const auto text = [&](const QString &value) {
            return registry.text(Hive::LocalMachine, key, value);
        };
        const QString location = text(u"InstallLocation"_s);
        const QString command = text(u"UninstallString"_s);
        const bool isInvalid = (!location.isEmpty() && !exists(location))
            || (!command.isEmpty() && !exists(quotedPart(command)));
        if (!isInvalid)
            continue;
        const QString displayName = text(u"DisplayName"_s);
        items.append(makeItem(displayName.isEmpty() ? name : displayName, "HKLM\\"_L1 + key, {},
                              machineHive, key));
    }
}

void RegistryCleaner::checkFileAssociations(const Registry &registry, QList<CleanItem> &items)
{
    for (const QString &extension : registry.subkeys(Hive::ClassesRoot, {})) {
        if (isStopRequested())
            return;
        if (!extension.startsWith(u'.') || isProtectedExtension(extension.toLower()))
            continue;
        const QString type = registry.text(Hive::ClassesRoot, extension, {});
        if (type.isEmpty() || isProtectedClass(type.toLower()))
            continue;
        const QString command =
            registry.text(Hive::ClassesRoot, type + "\\shell\\open\\command"_L1, {});
        if (!command.isEmpty() && !exists(programPath(command)))
            items.append(makeItem(extension + " -> "_L1 + type, "HKCR\\"_L1 + extension,
                                  tr("Command: %1").arg(command), classesHive, extension));
    }
}

void RegistryCleaner::checkCom(const Registry &registry, QList<CleanItem> &items)
{
    int count = 0;
    for (const QString &id : registry.subkeys(Hive::ClassesRoot, u"CLSID"_s)) {
        if (isStopRequested() || ++count > examinedClasses)
            return;
        const QString key = "CLSID\\"_L1 + id;
        const auto add = [&](const QString &description) {
            const QString name = registry.text(Hive::ClassesRoot, key, {});
            items.append(makeItem(name.isEmpty() ? id : name, "HKCR\\"_L1 + key, description,
                                  classesHive, key));
        };
        const QString library = registry.text(Hive::ClassesRoot, key + "\\InprocServer32"_L1, {});
        if (!library.isEmpty() && !exists(library))
            add(tr("DLL: %1").arg(library));
        const QString server = registry.text(Hive::ClassesRoot, key + "\\LocalServer32"_L1, {});
        if (!server.isEmpty() && !exists(quotedPart(server)))
            add(tr("EXE: %1").arg(server));
    }
}

void RegistryCleaner::checkFonts(const Registry &registry, QList<CleanItem> &items)
{
    const QString folder = platform::windowsVariable(u"WINDIR"_s) + "\\Fonts"_L1;
    for (const QString &name : registry.valueNames(Hive::LocalMachine, fonts)) {
        if (isStopRequested())
            return;
        QString file = registry.text(Hive::LocalMachine, fonts, name);
        if (file.isEmpty())
            continue;
        if (!file.contains(u'\\') && !file.contains(u'/'))
            file = folder + u'\\' + file;
        if (!exists(file))
            items.append(makeItem(name, "HKLM\\"_L1 + fonts, tr("Font file: %1").arg(file),
                                  machineHive, fonts + u'\\' + name));
    }
}

void RegistryCleaner::checkStartup(const Registry &registry, QList<CleanItem> &items)
{
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        const QString label = hive == Hive::LocalMachine ? u"HKLM"_s : u"HKCU"_s;
        for (const QString &key : {runKey, runOnceKey}) {
            for (const QString &name : registry.valueNames(hive, key)) {
                if (isStopRequested())
                    return;
                const QString command = registry.text(hive, key, name);
                if (!command.isEmpty() && !exists(programPath(command)))
                    items.append(makeItem(name, label + u'\\' + key, tr("Command: %1").arg(command),
                                          label, key + u'\\' + name));
            }
        }
    }
}

void RegistryCleaner::checkSharedDlls(const Registry &registry, QList<CleanItem> &items)
{
    for (const QString &name : registry.valueNames(Hive::LocalMachine, sharedDlls)) {
        if (isStopRequested())
            return;
        if (!exists(name))
            items.append(makeItem(fileName(name), "HKLM\\"_L1 + sharedDlls,
                                  tr("DLL path: %1").arg(name), machineHive,
                                  sharedDlls + u'\\' + name));
    }
}

void RegistryCleaner::checkMuiCache(const Registry &registry, QList<CleanItem> &items)
{
    for (const QString &name : registry.valueNames(Hive::CurrentUser, muiCache)) {
        if (isStopRequested())
            return;
        const qsizetype dot = name.lastIndexOf(u'.');
        const bool hasSuffix =
            name.endsWith(".FriendlyAppName"_L1) || name.endsWith(".ApplicationCompany"_L1);
        const QString path = dot > 0 && hasSuffix ? name.first(dot) : name;
        if (!exists(path))
            items.append(makeItem(fileName(path), "HKCU\\"_L1 + muiCache, name, userHive,
                                  muiCache + u'\\' + name));
    }
}

void RegistryCleaner::doClean()
{
    Logger::instance().info(u"Starting registry clean..."_s);
    Registry registry;
    backUp(registry);

    const int total = selection().checkedCount();
    int index = 0;
    QStringList removed;
    for (const CleanCategory &category : selection().categories) {
        for (const CleanItem &item : category.items) {
            if (isStopRequested()) {
                const int count = saveChanges(registry, removed);
                endClean(State::Cancelled);
                Q_EMIT cleanFinished(0, count);
                return;
            }
            Q_EMIT cleanProgress(++index, total, 0);
            const QString entry = item.registryRoot + u'\\' + item.registryKey;
            QString reason;
            if (removeEntry(registry, item, reason))
                removed.append(entry);
            else if (!removed.contains(entry)) // a class may stand in the list twice
                addFailure({entry, reason});
        }
    }
    const int count = saveChanges(registry, removed);
    endClean(State::Finished);
    Q_EMIT cleanFinished(0, count);
    Logger::instance().info(u"Registry clean finished. Cleaned %1 items"_s.arg(count));
}

void RegistryCleaner::backUp(const Registry &registry)
{
    m_backupFailed = false;
    if (m_backupPath.isEmpty()) {
        Logger::instance().info(u"Registry backup skipped (no backup path specified)"_s);
        return;
    }
    Logger::instance().info("Creating registry backup to: "_L1 + m_backupPath);
    const QString text = RegistryBackup::text(selection(), registry, QDateTime::currentDateTime());
    QString error;
    if (RegistryBackup::write(m_backupPath, text, error)) {
        Logger::instance().info("Registry backup created: "_L1 + m_backupPath);
        Logger::instance().info(u"Registry backup created successfully"_s);
        return;
    }
    m_backupFailed = true;
    Logger::instance().error(u"Failed to create registry backup"_s);
    Logger::instance().error(u"%1 - %2"_s.arg(m_backupPath, error));
}

bool RegistryCleaner::removeEntry(Registry &registry, const CleanItem &item, QString &reason)
{
    const Hive hive = hiveOf(item.registryRoot);
    const QString &key = item.registryKey;
    const auto deleteKey = [&] {
        const bool isDone = registry.deleteTree(hive, key) || registry.deleteKey(hive, key);
        if (!isDone)
            reason = registry.errorString();
        return isDone;
    };
    const qsizetype separator = key.lastIndexOf(u'\\');
    if (separator < 0) {
        if (deleteKey())
            return true;
        Logger::instance().error(
            u"Failed to delete registry key: %1\\%2"_s.arg(item.registryRoot, key));
        return false;
    }
    const QString parent = key.first(separator);
    const bool isListed = isBelowValueList(key);
    if (isListed && !isValueList(parent)) {
        reason = tr("Its name cannot be told from a path");
        return false;
    }
    if (registry.deleteValue(hive, parent, key.mid(separator + 1)))
        return true;
    reason = registry.errorString();
    return !isListed && deleteKey();
}

int RegistryCleaner::saveChanges(Registry &registry, const QStringList &removed)
{
    if (removed.isEmpty() || registry.save())
        return static_cast<int>(removed.size());
    Logger::instance().error("Failed to save the registry: "_L1 + registry.errorString());
    for (const QString &entry : removed)
        addFailure({entry, registry.errorString()});
    return 0;
}
