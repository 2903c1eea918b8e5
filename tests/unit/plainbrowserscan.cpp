#include "plainbrowserscan.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

qint64 sizeBelow(const QString &folder)
{
    qint64 size = 0;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        size += it.nextFileInfo().size();
    return size;
}

bool isDatabase(const QString &folder)
{
    const QDir dir(folder);
    const auto filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return !dir.entryList({u"CURRENT"_s}, filters).isEmpty()
        && !dir.entryList({u"MANIFEST-*"_s}, filters).isEmpty();
}

bool isExtension(const QString &folder)
{
    const auto filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return !QDir(folder).entryList({u"manifest.json"_s}, filters).isEmpty();
}

/// Whether @p path is or contains such a folder, or is in one at or below @p profile.
bool isInOrHolds(bool (*isSuchFolder)(const QString &), const QString &path, const QString &profile)
{
    for (QString folder = QFileInfo(path).path(); folder.size() >= profile.size();
         folder = QFileInfo(folder).path()) {
        if (isSuchFolder(folder))
            return true;
    }
    if (!QFileInfo(path).isDir())
        return false;
    QDirIterator it(path, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        if (isSuchFolder(it.next()))
            return true;
    }
    return isSuchFolder(path);
}

void add(CleanCategory &category, const QFileInfo &info, const BrowserRule &rule)
{
    const bool isFolder = info.isDir();
    CleanItem item(info.fileName(), info.filePath(),
                   isFolder ? sizeBelow(info.filePath()) : info.size());
    item.isDirectory = isFolder;
    item.checked = rule.defaultChecked;
    item.riskLevel = rule.riskLevel;
    category.items.append(item);
}

void scanChromiumProfile(const QString &profile, const BrowserRule &rule, CleanCategory &category)
{
    const QString folder = rule.subPath.isEmpty() ? profile : profile + u'/' + rule.subPath;
    if (!QDir(folder).exists())
        return;
    QDirIterator it(folder, rule.patterns.isEmpty() ? QStringList{u"*"_s} : rule.patterns,
                    QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        add(category, it.nextFileInfo(), rule);
        if (!rule.subPath.isEmpty())
            continue;
        CleanItem &item = category.items.last();
        const bool isOfDatabase = isInOrHolds(isDatabase, item.path, profile);
        if (!isOfDatabase && !isInOrHolds(isExtension, item.path, profile))
            continue;
        item.checked = false;
        item.riskLevel = HighRisk;
        item.description = isOfDatabase
            ? u"Holds part of a database: removing it loses data saved by the browser, "
              "websites or extensions"_s
            : u"Belongs to an extension, which does not work without all its files"_s;
    }
}

void scanFirefoxFolder(const QString &folder, const QStringList &patterns,
                       QDirIterator::IteratorFlag flag, const BrowserRule &rule,
                       CleanCategory &category)
{
    QDirIterator it(folder, patterns, QDir::Files, flag);
    while (it.hasNext())
        add(category, it.nextFileInfo(), rule);
}

QStringList plainFirefoxProfiles(const browsers::DataFolders &folders)
{
    QStringList profiles;
    const auto append = [&profiles](const QString &path) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        if (!canonical.isEmpty() && QFileInfo(canonical).isDir() && !profiles.contains(canonical))
            profiles.append(canonical);
    };
    const QString root = folders.roaming + "/Mozilla/Firefox/"_L1;
    QSettings ini(root + "profiles.ini"_L1, QSettings::IniFormat);
    const QStringList groups = ini.childGroups();
    for (const QString &group : groups) {
        if (!group.startsWith("Profile"_L1) && !group.startsWith("Install"_L1))
            continue;
        const QString path = ini.value(group + "/Path"_L1).toString();
        if (!path.isEmpty())
            append(ini.value(group + "/IsRelative"_L1).toInt() == 1 ? root + path : path);
    }
    for (const QString &base : {folders.roaming, folders.local}) {
        const QDir dir(base + "/Mozilla/Firefox/Profiles"_L1);
        const QStringList names = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &name : names)
            append(dir.filePath(name));
    }
    return profiles;
}

void scanFirefoxProfile(const QString &profile, const BrowserRule &rule, CleanCategory &category)
{
    const auto tree = [&](const QString &folder) {
        scanFirefoxFolder(profile + u'/' + folder, {}, QDirIterator::Subdirectories, rule,
                          category);
    };
    const auto top = [&](const QString &folder, const QStringList &patterns) {
        scanFirefoxFolder(folder.isEmpty() ? profile : profile + u'/' + folder, patterns,
                          QDirIterator::NoIteratorFlags, rule, category);
    };
    if (rule.id == "cache"_L1) {
        for (const QString &folder : {u"cache2/entries"_s, u"cache2"_s, u"Cache"_s}) {
            if (QDir(profile + u'/' + folder).exists()) {
                tree(folder);
                break;
            }
        }
    } else if (rule.id == "shader_cache"_L1) {
        tree(u"shader-cache"_s);
    } else if (rule.id == "local_storage"_L1 || rule.id == "indexeddb"_L1) {
        tree(u"storage/default"_s);
    } else if (rule.id == "thumbnails"_L1) {
        tree(u"thumbnails"_s);
    } else if (rule.id == "session"_L1) {
        const QStringList sessions{u"sessionstore.jsonlz4"_s, u"*.jsonlz4"_s};
        top({}, sessions);
        top(u"sessionstore-backups"_s, sessions);
    } else if (rule.id == "cookies"_L1) {
        top({}, {u"cookies.sqlite"_s, u"cookies.sqlite-wal"_s, u"cookies.sqlite-shm"_s});
    } else if (rule.id == "history"_L1) {
        top({}, {u"places.sqlite"_s, u"places.sqlite-wal"_s, u"places.sqlite-shm"_s});
    } else if (rule.id == "downloads"_L1) {
        top({}, {u"downloads.sqlite"_s, u"downloads.sqlite-wal"_s});
    } else if (rule.id == "form_data"_L1) {
        top({}, {u"formhistory.sqlite"_s, u"formhistory.sqlite-wal"_s});
    } else if (rule.id == "favicons"_L1) {
        top({}, {u"favicons.sqlite"_s, u"favicons.sqlite-wal"_s, u"favicons.sqlite-shm"_s});
    }
}

void scanFirefox(const BrowserRule &rule, const browsers::DataFolders &folders,
                 CleanCategory &category)
{
    const QString root = folders.roaming + "/Mozilla/Firefox"_L1;
    if (rule.id == "crash_reports"_L1)
        scanFirefoxFolder(root + "/Crash Reports"_L1, {u"*.dmp"_s, u"*.extra"_s},
                          QDirIterator::Subdirectories, rule, category);
    if (rule.id == "logs"_L1)
        scanFirefoxFolder(root, {u"update.log"_s, u"install.log"_s, u"*.log"_s},
                          QDirIterator::NoIteratorFlags, rule, category);
    const QStringList profiles = plainFirefoxProfiles(folders);
    for (const QString &profile : profiles)
        scanFirefoxProfile(profile, rule, category);
}

} // namespace

QList<CleanCategory> plainBrowserScan(const QList<Browser> &browsers,
                                      const QList<BrowserRule> &rules,
                                      const browsers::DataFolders &folders)
{
    QList<CleanCategory> categories;
    for (const Browser &browser : browsers) {
        if (!browser.installed)
            continue;
        for (const BrowserRule &rule : rules) {
            CleanCategory category(browser.id + u'_' + rule.id, browser.name + " - "_L1 + rule.name,
                                   rule.description);
            category.checked = rule.defaultChecked;
            if (browser.type == Browser::Firefox) {
                scanFirefox(rule, folders, category);
            } else {
                scanChromiumProfile(browser.dataRoot + "/Default"_L1, rule, category);
                const QStringList names =
                    QDir(browser.dataRoot)
                        .entryList({u"Profile *"_s}, QDir::Dirs | QDir::NoDotAndDotDot);
                for (const QString &name : names)
                    scanChromiumProfile(browser.dataRoot + u'/' + name, rule, category);
            }
            if (!category.items.isEmpty())
                categories.append(category);
        }
    }
    return categories;
}
