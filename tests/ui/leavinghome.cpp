#include "leavinghome.h"

#include "appinfo.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largeFileSize = 53'000'000;

const QString run = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString uninstall =
    u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
const QString product = u"HKEY_CURRENT_USER\\Software\\Sweepwise Test"_s;

QByteArray contentOf(const QString &path)
{
    const QByteArray name = path.toUtf8() + '\n';
    return name.repeated(1 + static_cast<int>(qHash(name, 1) % 60));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isLarge(const QString &path)
{
    return path.endsWith(".mkv"_L1);
}

void makeFile(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    const QByteArray content = contentOf(path);
    bool isMade = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    if (isLarge(path))
        isMade = isMade && file.seek(largeFileSize - content.size())
            && file.write(content) == content.size();
    if (!isMade)
        qFatal("cannot make %s", qPrintable(path));
}

bool isWhole(const QString &path)
{
    const QByteArray content = contentOf(path);
    if (!isLarge(path))
        return readFile(path) == content;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() == largeFileSize
        && file.read(content.size()) == content && file.seek(largeFileSize - content.size())
        && file.readAll() == content;
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next());
    return files;
}

// On Windows settings, log and browser data are where the system wants them, and the home has no
// part in it.
#ifdef Q_OS_WIN
QString localData(const QString &)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString settingsFile(const QString &)
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, appinfo::organisation,
                     appinfo::name)
        .fileName();
}

QString logFolder(const QString &)
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/logs"_L1;
}
#else
QString localData(const QString &home)
{
    return home + "/Local"_L1;
}

QString settingsFile(const QString &home)
{
    return home + "/config/Norvak/Sweepwise.ini"_L1;
}

QString logFolder(const QString &home)
{
    return home + "/data/Norvak/Sweepwise/logs"_L1;
}
#endif

} // namespace

LeavingHome::LeavingHome(const QString &page)
    : m_profile(localData(path()) + "/Google/Chrome/User Data/Profile Sweepwise test"_L1)
{
    planFiles(page);
    if (page == "registry"_L1)
        planEntries();
    prepare();
    if (m_registry)
        m_keptLines = keptLines();
}

LeavingHome::~LeavingHome()
{
    QDir(m_profile).removeRecursively();
    QDir().rmpath(QFileInfo(m_profile).path());
}

void LeavingHome::keep(const QString &path)
{
    m_kept.append(QDir(m_home.path()).absoluteFilePath(path));
}

void LeavingHome::remove(const QString &path)
{
    m_removable.append(QDir(m_home.path()).absoluteFilePath(path));
}

void LeavingHome::planFiles(const QString &page)
{
    for (int i = 0; i < 10; ++i) {
        keep(u"Fence/Temp/file %1.tmp"_s.arg(i));
        keep(u"Drive/Users/data %1.doc"_s.arg(i));
        keep(u"User/Documents/letter %1.doc"_s.arg(i));
        keep(u"Windows/System32/library %1.dll"_s.arg(i));
    }
    if (page == "junk"_L1) {
        for (int i = 0; i < 300; ++i)
            remove(u"Temp/folder %1/文件 %2.tmp"_s.arg(i / 20).arg(i));
    } else if (page == "browser"_L1) {
        const QString profile = m_profile + u'/';
        for (const QString &name : {u"Bookmarks"_s, u"Preferences"_s, u"Login Data"_s,
                                    u"Extensions/abc/1.0_0/manifest.json"_s})
            keep(profile + name);
        for (int i = 0; i < 200; ++i) {
            remove(profile + u"Cache/Cache_Data/f_%1"_s.arg(i));
            remove(profile + u"Code Cache/js/%1/index"_s.arg(i));
        }
    } else if (page == "large"_L1) {
        for (int i = 0; i < 150; ++i)
            remove(u"Big/folder %1/film %2.mkv"_s.arg(i / 10).arg(i));
        keep(u"Big/small.txt"_s);
    }
}

void LeavingHome::planEntries()
{
    m_registry.emplace(m_home);
#ifdef Q_OS_UNIX
    keep(u"prefix/drive_c/windows/explorer.exe"_s);
#endif
    m_registry->addText(run, u"Sweepwise kept"_s, u"C:\\windows\\explorer.exe"_s);
    m_registry->addText(product, u"kept"_s, u"1"_s);
    for (int i = 0; i < 60; ++i)
        m_entries.append({u"#%1#"_s.arg(i), i % 2 == 0});
}

void LeavingHome::prepare()
{
    for (const QStringList *paths : {&m_kept, &m_removable}) {
        for (const QString &path : *paths) {
            if (!QFile::exists(path))
                makeFile(path);
        }
    }
    if (m_registry)
        makeEntries();
    QFile::remove(path() + "/backup.reg"_L1);
    const QDir logs(logFolder(path()));
    for (const QString &name : logs.entryList(QDir::Files))
        QFile::remove(logs.filePath(name));
    makeSettings();
}

void LeavingHome::makeEntries()
{
    for (Entry &entry : m_entries) {
        if (!entry.isMissing)
            continue;
        entry.isMissing = false;
        const QString path = "C:\\Gone\\"_L1 + entry.mark;
        if (entry.isKey) {
            const QString key = uninstall + "\\Sweepwise "_L1 + entry.mark;
            m_registry->addText(key, u"DisplayName"_s, "Product "_L1 + entry.mark);
            m_registry->addText(key, u"InstallLocation"_s, path);
        } else {
            m_registry->addText(run, "Sweepwise "_L1 + entry.mark, path + ".exe"_L1);
        }
    }
    m_registry->write();
}

// The window would hide in the tray. That must not keep the program from leaving.
void LeavingHome::makeSettings() const
{
    const QString path = settingsFile(m_home.path());
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)
        || file.write("[%General]\nminimizeToTray=true\n\n[test]\nkept=文字\n") < 0)
        qFatal("cannot write the settings");
}

QString LeavingHome::findDamage()
{
    for (const QString &damage :
         {fileDamage(), registryDamage(), backupDamage(), settingsDamage(), logDamage()}) {
        if (!damage.isEmpty())
            return damage;
    }
    return {};
}

QString LeavingHome::fileDamage()
{
    for (const QString &path : m_kept) {
        if (!isWhole(path))
            return path + " is damaged"_L1;
    }
    m_remaining = 0;
    for (const QString &path : m_removable) {
        if (!QFile::exists(path))
            continue;
        if (!isWhole(path))
            return path + " is neither whole nor gone"_L1;
        ++m_remaining;
    }
    static const QStringList allowed{u"backup.reg"_s,
                                     u"prefix/export.reg"_s,
                                     u"prefix/import.reg"_s,
                                     u"prefix/system.reg"_s,
                                     u"prefix/user.reg"_s,
                                     u"config/Norvak/Sweepwise.ini"_s,
                                     u"config/Norvak/Sweepwise.conf"_s};
    const QDir home(path());
    const QString logs = home.relativeFilePath(logFolder(path())) + u'/';
    for (const QString &found : filesBelow(path()) + filesBelow(m_profile)) {
        const QString name = home.relativeFilePath(found);
        const bool isExpected = m_kept.contains(found) || m_removable.contains(found)
            || allowed.contains(name) || name.startsWith("cache/"_L1) || name.startsWith(logs);
        if (!isExpected)
            return found + " is new"_L1;
    }
    return {};
}

QStringList LeavingHome::keptLines() const
{
    QStringList lines = m_registry->exported(run) + m_registry->exported(product);
    lines.removeIf([](const QString &line) { return line.contains(u'#'); });
    for (const char *hive : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"}) {
        const QString file = m_registry->file(QString::fromLatin1(hive));
        if (file.isEmpty())
            continue;
        const QByteArray content = readFile(file);
        lines.append(content.endsWith('\n') ? u"complete"_s : u"cut off"_s);
        lines.append(QString::fromUtf8(content.first(content.indexOf('\n'))));
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

QString LeavingHome::registryDamage()
{
    if (!m_registry)
        return {};
    const QStringList lines = m_registry->exported(run) + m_registry->exported(uninstall);
    for (Entry &entry : m_entries) {
        const qsizetype count = lines.filter(entry.mark).size();
        if (count != 0 && count != (entry.isKey ? 3 : 1))
            return u"registry entry %1 is half removed"_s.arg(entry.mark);
        entry.isMissing = count == 0;
        m_remaining += entry.isMissing ? 0 : 1;
    }
    const QStringList kept = keptLines();
    if (kept != m_keptLines)
        return "the rest of the registry has changed:\n"_L1 + kept.join(u'\n') + "\nbefore:\n"_L1
            + m_keptLines.join(u'\n');
    return {};
}

QString LeavingHome::backupDamage() const
{
    const QByteArray data = readFile(path() + "/backup.reg"_L1);
    const QString text(reinterpret_cast<const QChar *>(data.constData()), data.size() / 2);
    if (!data.isEmpty()
        && (data.size() % 2 != 0
            || !text.startsWith(u"\uFEFFWindows Registry Editor Version 5.00\r\n"_s)
            || !text.endsWith("\r\n"_L1)))
        return u"the backup is not whole"_s;
    for (const Entry &entry : m_entries) {
        if (entry.isMissing && !text.contains(entry.mark))
            return u"registry entry %1 was removed without a backup"_s.arg(entry.mark);
    }
    return {};
}

QString LeavingHome::settingsDamage() const
{
    const QString path = settingsFile(m_home.path());
    const QSettings settings(path, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError
        || !settings.value("General/minimizeToTray"_L1).toBool()
        || settings.value("test/kept"_L1).toString() != u"文字"_s)
        return "the settings are not whole: "_L1 + QString::fromUtf8(readFile(path));
    const QDir folder(QFileInfo(path).path());
    QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    names.removeAll(u"Sweepwise.conf"_s); // the language
    if (names != QStringList{QFileInfo(path).fileName()})
        return "beside the settings there is more: "_L1 + names.join(u' ');
    return {};
}

int LeavingHome::savedNumber() const
{
    return QSettings(settingsFile(path()), QSettings::IniFormat).value("test/leaving"_L1).toInt();
}

QStringList LeavingHome::logLines() const
{
    const QDir logs(logFolder(path()));
    QByteArray text;
    for (const QString &name : logs.entryList(QDir::Files))
        text += readFile(logs.filePath(name));
    return QString::fromUtf8(text).split(u'\n');
}

QString LeavingHome::logDamage() const
{
    static const QRegularExpression form(
        u"^(\\[[-: 0-9.]{23}\\] \\[(INFO|WARN|ERROR)\\] .+|=+|Sweepwise Log Started: .+|)$"_s);
    const QStringList lines = logLines();
    if (!lines.constLast().isEmpty())
        return "the log is cut off: "_L1 + lines.constLast();
    for (const QString &line : lines) {
        if (!form.match(line.chopped(line.endsWith(u'\r') ? 1 : 0)).hasMatch())
            return "the log has the line "_L1 + line;
    }
    return {};
}
