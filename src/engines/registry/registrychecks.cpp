#include "registrychecks.h"

#include "registrykeys.h"
#include "windowspaths.h"

#include <QSet>

#include <algorithm>

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

constexpr int maxExaminedClasses = 1000; ///< the key may hold many thousands

// File types that Windows itself manages, in lower case.
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

// The classes of these file types. @p name is in lower case, so "InternetShortcut" never matches: a
// shortcut whose program is missing is listed.
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

CleanItem makeKeyItem(const QString &name, const QString &description, Hive hive,
                      const QString &key)
{
    return makeItem(RegistryEntry::Key, name, description, hive, key);
}

// An item for a value. Its shown path is the path of its key.
CleanItem makeValueItem(const QString &name, const QString &description, Hive hive,
                        const QString &key, const QString &value)
{
    CleanItem item = makeItem(RegistryEntry::Value, name, description, hive, key);
    item.registryKey += u'\\' + value;
    return item;
}

} // namespace

RegistryChecks::RegistryChecks(const Registry &registry, const platform::RunWatch &watch)
    : m_registry(registry)
    , m_watch(watch)
    , m_paths(registry)
{
}

bool RegistryChecks::isBelowValueList(const QString &keyPath)
{
    static const QStringList lists{fonts, runKey, runOnceKey, sharedDlls, muiCache};
    return std::any_of(lists.begin(), lists.end(), [&keyPath](const QString &list) {
        return keyPath.startsWith(list + u'\\', Qt::CaseInsensitive);
    });
}

bool RegistryChecks::isValueList(const QString &key)
{
    return isBelowValueList(key + u'\\') && !isBelowValueList(key);
}

QList<CleanItem> RegistryChecks::findSoftware()
{
    QList<CleanItem> items;
    addAppPaths(items);
    addUninstallKeys(items);
    return items;
}

void RegistryChecks::addAppPaths(QList<CleanItem> &items)
{
    for (const QString &name : m_registry.subkeys(Hive::LocalMachine, appPaths)) {
        if (isStopped())
            return;
        const QString key = appPaths + u'\\' + name;
        const QString value = m_registry.text(Hive::LocalMachine, key, {});
        if (!value.isEmpty() && !m_paths.exists(value))
            items.append(makeKeyItem(name, tr("Path: %1").arg(value), Hive::LocalMachine, key));
    }
}

void RegistryChecks::addUninstallKeys(QList<CleanItem> &items)
{
    for (const QString &name : m_registry.subkeys(Hive::LocalMachine, uninstall)) {
        if (isStopped())
            return;
        const QString key = uninstall + u'\\' + name;
        const auto text = [&](const QString &value) {
            return m_registry.text(Hive::LocalMachine, key, value);
        };
        const QString location = text(u"InstallLocation"_s);
        const QString command = text(u"UninstallString"_s);
        const bool isInvalid = (!location.isEmpty() && !m_paths.exists(location))
            || (!command.isEmpty() && !m_paths.exists(PathCheck::quotedPart(command)));
        if (!isInvalid)
            continue;
        const QString displayName = text(u"DisplayName"_s);
        items.append(
            makeKeyItem(displayName.isEmpty() ? name : displayName, {}, Hive::LocalMachine, key));
    }
}

QList<CleanItem> RegistryChecks::findFileAssociations()
{
    QList<CleanItem> items;
    for (const QString &extension : m_registry.subkeys(Hive::ClassesRoot, {})) {
        if (isStopped())
            return items;
        if (!extension.startsWith(u'.') || isProtectedExtension(extension.toLower()))
            continue;
        const Registry::ClassText type = m_registry.classText(extension, {});
        if (type.text.isEmpty() || isProtectedClass(type.text.toLower()))
            continue;
        const QString command =
            m_registry.classText(type.text + "\\shell\\open\\command"_L1, {}).text;
        if (command.isEmpty() || m_paths.exists(PathCheck::programPath(command)))
            continue;
        items.append(makeKeyItem(extension + " -> "_L1 + type.text, tr("Command: %1").arg(command),
                                 Hive::ClassesRoot, extension));
        items.last().isUserClass = type.hive == Hive::CurrentUser;
    }
    return items;
}

QList<CleanItem> RegistryChecks::findCom()
{
    QList<CleanItem> items;
    int count = 0;
    for (const QString &id : m_registry.subkeys(Hive::ClassesRoot, u"CLSID"_s)) {
        if (isStopped() || ++count > maxExaminedClasses)
            return items;
        const QString key = "CLSID\\"_L1 + id;
        const auto add = [&](const QString &description, Hive hive) {
            const QString name = m_registry.classText(key, {}).text;
            items.append(
                makeKeyItem(name.isEmpty() ? id : name, description, Hive::ClassesRoot, key));
            items.last().isUserClass = hive == Hive::CurrentUser;
        };
        const auto [library, libraryHive] = m_registry.classText(key + "\\InprocServer32"_L1, {});
        if (!library.isEmpty() && !m_paths.exists(library))
            add(tr("DLL: %1").arg(library), libraryHive);
        const auto [server, serverHive] = m_registry.classText(key + "\\LocalServer32"_L1, {});
        if (!server.isEmpty() && !m_paths.exists(PathCheck::quotedPart(server)))
            add(tr("EXE: %1").arg(server), serverHive);
    }
    return items;
}

QList<CleanItem> RegistryChecks::findFonts()
{
    QList<CleanItem> items;
    const std::optional<QString> windows = platform::windowsVariable(u"WINDIR"_s);
    for (const QString &name : m_registry.valueNames(Hive::LocalMachine, fonts)) {
        if (isStopped())
            return items;
        QString file = m_registry.text(Hive::LocalMachine, fonts, name);
        if (file.isEmpty())
            continue;
        if (!file.contains(u'\\') && !file.contains(u'/')) {
            if (!windows)
                continue;
            file = *windows + "\\Fonts\\"_L1 + file;
        }
        if (!m_paths.exists(file))
            items.append(makeValueItem(name, tr("Font file: %1").arg(file), Hive::LocalMachine,
                                       fonts, name));
    }
    return items;
}

QList<CleanItem> RegistryChecks::findStartup()
{
    QList<CleanItem> items;
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        for (const QString &key : {runKey, runOnceKey}) {
            for (const QString &name : m_registry.valueNames(hive, key)) {
                if (isStopped())
                    return items;
                const QString command = m_registry.text(hive, key, name);
                if (command.isEmpty() || m_paths.exists(PathCheck::programPath(command)))
                    continue;
                items.append(makeValueItem(name, tr("Command: %1").arg(command), hive, key, name));
                items.last().registryRoot = platform::shortHiveName(hive);
            }
        }
    }
    return items;
}

QList<CleanItem> RegistryChecks::findSharedDlls()
{
    QList<CleanItem> items;
    for (const QString &name : m_registry.valueNames(Hive::LocalMachine, sharedDlls)) {
        if (isStopped())
            return items;
        if (!m_paths.exists(name))
            items.append(makeValueItem(fileName(name), tr("DLL path: %1").arg(name),
                                       Hive::LocalMachine, sharedDlls, name));
    }
    return items;
}

QList<CleanItem> RegistryChecks::findMuiCache()
{
    QList<CleanItem> items;
    for (const QString &name : m_registry.valueNames(Hive::CurrentUser, muiCache)) {
        if (isStopped())
            return items;
        const qsizetype dot = name.lastIndexOf(u'.');
        const bool hasSuffix =
            name.endsWith(".FriendlyAppName"_L1) || name.endsWith(".ApplicationCompany"_L1);
        const QString path = dot > 0 && hasSuffix ? name.first(dot) : name;
        if (!m_paths.exists(path))
            items.append(makeValueItem(fileName(path), name, Hive::CurrentUser, muiCache, name));
    }
    return items;
}
