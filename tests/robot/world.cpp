#include "world.h"

#include "actionlog.h"
#include "rulefolders.h"
#include "testhome.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kibibyte = 1'024;
constexpr qint64 mebibyte = 1'048'576;
constexpr qint64 gibibyte = 1'073'741'824;

/// An unusual file name: long, with special characters or in another script. Unique per number.
QString oddName(int number, const QString &suffix)
{
    const QString n = QString::number(number);
    switch (number % 9) {
    case 0:
        return u"file %1"_s.arg(n) + suffix;
    case 1:
        return QString(180, QChar(u'a' + number % 26)) + n + QString(30, u'z') + suffix;
    case 2:
        return u"文件 🎉 %1"_s.arg(n) + suffix;
#ifdef Q_OS_UNIX
    case 3:
        return u"line\nbreak\t%1"_s.arg(n) + suffix;
    case 4:
        return u"%1 back\\slash \"quoted\" <b>bold<br>"_s.arg(n) + suffix;
#endif
    case 5:
        return u"  leading blanks %1"_s.arg(n) + suffix;
    case 6:
        return u"100% %1 %2 &amp; &file "_s + n + suffix;
    case 7:
        return u"עברית \u202e%1"_s.arg(n) + suffix;
    default:
        return u"dots...%1..end"_s.arg(n) + suffix;
    }
}

} // namespace

World::World(const TestHome &home)
    : m_home(home.path())
{
    for (const char *variable : {"TMPDIR", "TEMP", "TMP"})
        home.setFolderVariable(variable, u"Temp"_s);
    home.setFolderVariable("WINDIR", u"Windows"_s);
    home.setFolderVariable("LOCALAPPDATA", u"Local"_s);
    home.setFolderVariable("SYSTEMDRIVE", u"Drive"_s);
    home.setFolderVariable("PROGRAMDATA", u"ProgramData"_s);
    home.setFolderVariable("USERPROFILE", u"User"_s);
    home.folder(u"home/Desktop"_s);
    planFence();
    planJunk();
    planBrowsers();
    planLargeFiles();
    for (qsizetype i = 0; i < m_entries.size(); ++i)
        m_indexes.insert(m_entries.at(i).path, i);
    m_stamps.resize(m_entries.size());
    refill();
}

// A write-protected file could not be removed with the test's home.
World::~World()
{
    for (const Entry &entry : std::as_const(m_entries)) {
        if (entry.kind == Kind::ReadOnlyFile)
            QFile::setPermissions(entry.path, QFile::ReadOwner | QFile::WriteOwner);
    }
}

void World::checkFolders() const
{
    for (const QString &folder :
         {platform::temporaryFolder(), platform::localDataFolder(), platform::roamingDataFolder(),
          platform::homeFolder(), platform::programDataFolder(), platform::windowsFolder(),
          platform::systemDrive()})
        expect(QDir::fromNativeSeparators(folder).startsWith(m_home + u'/', Qt::CaseInsensitive),
               [&] { return u"%1 is not the test's"_s.arg(folder); });
}

void World::add(Owner owner, const QString &path, qint64 size, Kind kind, const QString &target)
{
    m_entries.append({m_home + u'/' + path, owner, kind, size,
                      target.isEmpty() ? QString() : m_home + u'/' + target});
}

// Files around the trees that no scan may list.
void World::planFence()
{
    using enum Owner;
    add(Nobody, u"Fence/plain.txt"_s);
    add(Nobody, u"Fence/Temp/looks like junk.tmp"_s);
    add(Nobody, u"Fence/target of a link.tmp"_s);
    add(Nobody, u"Fence/target of a hard link.tmp"_s);
    add(Nobody, u"Fence/a folder/below.tmp"_s);
    add(Nobody, u"Fence/large target.mkv"_s, 900 * mebibyte + 1);
    for (const QString &path :
         {u"Drive/note.txt"_s, u"Drive/Users/data.doc"_s, u"Windows/explorer.exe"_s,
          u"Windows/System32/kernel32.dll"_s, u"Windows/Prefetch/layout.ini"_s,
          u"Windows/Logs/CBS/keep.txt"_s, u"Windows/INF/driver.inf"_s, u"Local/Programs/app.exe"_s,
          u"Local/Microsoft/Windows/Explorer/settings.db"_s, u"ProgramData/Product/data.bin"_s,
          u"User/Documents/letter.doc"_s, u"User/AppData/Roaming/Product/config.xml"_s})
        add(Nobody, path);
}

void World::planJunk()
{
    using enum Owner;
    for (int i = 0; i < 36; ++i) {
        const QString folder = i % 3 == 0 ? u"Temp"_s
            : i % 3 == 1                  ? u"Temp/folder %1"_s.arg(i / 9)
                                          : u"Temp/文件夹/deep/%1"_s.arg(i / 12);
        add(Junk, folder + u'/' + oddName(i, u".tmp"_s), qint64(i) * i * 977 * kibibyte / 7);
    }
    add(Junk, u"Temp/empty.tmp"_s, 0);
    add(Junk, u"Temp/read-only.tmp"_s, 4'096, Kind::ReadOnlyFile);
    add(Junk, u"Temp/hard link.tmp"_s, 0, Kind::HardLink, u"Fence/target of a hard link.tmp"_s);
    add(Nobody, u"Temp/.hidden.tmp"_s);
    add(Nobody, u"Temp/.hidden folder/file.tmp"_s);
#ifdef Q_OS_UNIX
    add(Junk, u"Temp/link to a file.tmp"_s, 0, Kind::Link, u"Fence/target of a link.tmp"_s);
    m_entries.last().isOptional = true;
    add(Nobody, u"Temp/link to a folder"_s, 0, Kind::Link, u"Fence/a folder"_s);
    add(Nobody, u"Temp/broken link"_s, 0, Kind::Link, u"Fence/nothing"_s);
#endif
    for (int i = 0; i < 23; ++i) // two rules list these
        add(Junk, u"Windows/Logs/CBS/CBS %1.log"_s.arg(i), 9'001 + i * 731);
    for (int i = 0; i < 11; ++i) // one more than a category shows at once
        add(Junk, u"Windows/Prefetch/PROGRAM%1.pf"_s.arg(i), 20'011 + i);
    add(Junk, u"Windows/MEMORY.DMP"_s, 734'003'211);
    add(Junk, u"Windows/Minidump/small.dmp"_s, 262'147);
    add(Junk, u"Drive/top.dmp"_s, 5 * gibibyte);
    add(Nobody, u"Drive/Users/deep.dmp"_s);
    add(Junk, u"Windows/Temp/setup.log"_s, 77);
    add(Junk, u"Windows/SoftwareDistribution/Download/update.cab"_s, 48'000'001);
    add(Junk, u"Windows/Installer/$PatchCache$/Managed/patch.msp"_s, 1'500'003);
    add(Junk, u"Drive/Windows.old/system32/old.dll"_s, 20'000'003);
    add(Junk, u"Drive/Windows.old/Users/old.doc"_s, 20'003);
    add(Junk, u"Local/D3DSCache/f1/shader.bin"_s, 1'200'007);
    add(Junk, u"Local/Microsoft/Windows/Explorer/thumbcache_256.db"_s, 5'000'011);
    add(Junk, u"ProgramData/Microsoft/Windows/WER/Report 工作/report.wer"_s, 13'007);
}

void World::planChromium(const QString &profile, bool hasManyFiles)
{
    using enum Owner;
    int size = 1'009;
    for (const QString &name :
         {u"Cache/Cache_Data/data_0"_s, u"Cache/Cache_Data/页面 🎉.bin"_s, u"Code Cache/js/index"_s,
          u"GPUCache/data_1"_s, u"Favicons"_s, u"Cookies"_s, u"History"_s, u"Web Data"_s,
          u"Local Storage/leveldb/000003.log"_s, u"Current Session"_s})
        add(Browser, profile + u'/' + name, size += 70'001);
    for (const QString &name : {u"Bookmarks"_s, u"Login Data"_s, u"Preferences"_s,
                                u"Extensions/abc/1.0_0/manifest.json"_s})
        add(Nobody, profile + u'/' + name);
    if (!hasManyFiles)
        return;
    for (int i = 0; i < 60; ++i) // more than a batch of the list of details
        add(Browser, profile + "/Service Worker/CacheStorage/"_L1 + oddName(i, u".bin"_s),
            311 + qint64(i) * i * 97);
}

void World::planBrowsers()
{
    using enum Owner;
    planChromium(u"Local/Google/Chrome/User Data/Default"_s, true);
    planChromium(u"Local/Google/Chrome/User Data/Profile 工作"_s, false);
    add(Nobody, u"Local/Google/Chrome/User Data/Local State"_s);
    planChromium(u"Local/Microsoft/Edge/User Data/Default"_s, false);
    const QString roaming = u"User/AppData/Roaming/"_s;
    planChromium(roaming + "Opera Software/Opera Stable/Default"_L1, false);
    const QString firefox = roaming + "Mozilla/Firefox/"_L1;
    const QString profile = "Mozilla/Firefox/Profiles/ab12.default/"_L1;
    int size = 503;
    for (const QString &name : {u"cookies.sqlite"_s, u"places.sqlite"_s, u"favicons.sqlite"_s,
                                u"formhistory.sqlite"_s, u"sessionstore-backups/recovery.jsonlz4"_s,
                                u"storage/default/https+++www.example.com/ls/data.sqlite"_s})
        add(Browser, roaming + profile + name, size += 40'009);
    for (const QString &name : {u"logins.json"_s, u"key4.db"_s, u"bookmarkbackups/b.jsonlz4"_s,
                                u"storage/permanent/chrome/idb/2.sqlite"_s})
        add(Nobody, roaming + profile + name);
    for (const QString &name : {u"cache2/entries/0A1B"_s, u"thumbnails/0.png"_s})
        add(Browser, u"Local/"_s + profile + name, size += 90'001);
    add(Browser, firefox + "Crash Reports/pending/1.dmp"_L1, 70'003);
    add(Nobody, firefox + "notes.txt"_L1);
}

void World::planLargeFiles()
{
    using enum Owner;
    m_drives = {m_home + "/Big/One"_L1, m_home + "/Big/Two"_L1, m_home + "/Big/Missing"_L1};
    static const QStringList suffixes{u".mkv"_s, u".flac"_s, u".zip"_s,
                                      u".psd"_s, u".pdf"_s,  u""_s};
    for (int i = 0; i < 56; ++i) {
        const QString folder = i % 4 == 0 ? u"Big/One"_s
            : i % 4 == 1                  ? u"Big/One/folder %1"_s.arg(i / 8)
            : i % 4 == 2
            ? u"Big/One/a folder with a rather long name/文件夹/and one below it/%1"_s.arg(i / 16)
            : u"Big/Two"_s;
        add(Large, folder + u'/' + oddName(i, suffixes.at(i % suffixes.size())),
            (51 + 19 * qint64(i)) * mebibyte + i * 4'321);
    }
    add(Large, u"Big/One/exactly 50 MB.bin"_s, 50 * mebibyte);
    add(Large, u"Big/One/a byte less.bin"_s, 50 * mebibyte - 1);
    add(Large, u"Big/One/exactly one gibibyte.bin"_s, gibibyte);
    add(Large, u"Big/One/one more.bin"_s, gibibyte + 1);
    add(Large, u"Big/One/read-only.bin"_s, 222 * mebibyte + 7, Kind::ReadOnlyFile);
    add(Nobody, u"Big/One/small.txt"_s);
    add(Nobody, u"Big/One/.hidden.mkv"_s, 700 * mebibyte + 3);
    add(Nobody, u"Big/One/.hidden/below.mkv"_s, 700 * mebibyte + 5);
    add(Nobody, u"Big/One/$Recycle.Bin/dropped.mkv"_s, 700 * mebibyte + 9);
    add(Nobody, u"Big/Two/System Volume Information/restore.dat"_s, 700 * mebibyte + 11);
#ifdef Q_OS_UNIX
    add(Large, u"Elsewhere/reached through a link.mkv"_s, 333 * mebibyte + 13);
    m_entries.last().isOptional = true; // a scan lists it under the path of the link
    add(Nobody, u"Elsewhere/small.txt"_s);
    add(Nobody, u"Big/Two/link to a folder"_s, 0, Kind::Link, u"Elsewhere"_s);
    add(Large, u"Big/Two/link to a file.mkv"_s, 900 * mebibyte + 1, Kind::Link,
        u"Fence/large target.mkv"_s);
    m_entries.last().isOptional = true;
#endif
}

void World::make(const Entry &entry) const
{
    QDir().mkpath(QFileInfo(entry.path).path());
    if (entry.kind == Kind::Link) {
        expect(QFile::link(entry.target, entry.path),
               [&] { return u"%1 cannot be made"_s.arg(entry.path); });
        return;
    }
    if (entry.kind == Kind::HardLink) {
        std::filesystem::create_hard_link(entry.target.toStdWString(), entry.path.toStdWString());
        return;
    }
    QFile file(entry.path);
    const bool isWritten = file.open(QIODevice::WriteOnly)
        && (entry.owner == Owner::Nobody && entry.size == 0
                ? file.write(file.fileName().toUtf8()) > 0
                : file.resize(entry.size));
    expect(isWritten, [&] { return u"%1 cannot be made"_s.arg(entry.path); });
    file.close();
    if (entry.kind == Kind::ReadOnlyFile)
        file.setPermissions(QFile::ReadOwner);
#ifdef Q_OS_WIN
    // On Windows a dot hides nothing.
    if (const qsizetype dot = entry.path.indexOf("/."_L1); dot > 0) {
        const qsizetype end = entry.path.indexOf(u'/', dot + 1);
        const QString hidden = end < 0 ? entry.path : entry.path.first(end);
        ::SetFileAttributesW(reinterpret_cast<const wchar_t *>(hidden.utf16()),
                             FILE_ATTRIBUTE_HIDDEN);
    }
#endif
}

void World::refill()
{
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        const Entry &entry = m_entries.at(i);
        if (m_stamps.at(i).exists)
            continue;
        make(entry);
        m_stamps[i] = stampOf(entry.path);
    }
}

int World::percentRemaining(Owner owner) const
{
    int all = 0;
    int existing = 0;
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).owner != owner)
            continue;
        ++all;
        existing += m_stamps.at(i).exists ? 1 : 0;
    }
    return existing * 100 / all;
}

QStringList World::expectedPaths(Owner owner, qint64 minimumSize) const
{
    QStringList paths;
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        const Entry &entry = m_entries.at(i);
        if (entry.owner == owner && m_stamps.at(i).exists && !entry.isOptional
            && entry.size >= minimumSize)
            paths.append(entry.path);
    }
    return paths;
}

bool World::mayBeListed(Owner owner, const QString &path) const
{
    const auto index = m_indexes.constFind(path);
    if (index != m_indexes.cend())
        return m_entries.at(*index).owner == owner;
    // A scan of browsers lists a folder and its files. All that is in the folder is deleted with
    // it.
    if (owner != Owner::Browser || !QFileInfo(path).isDir())
        return false;
    const QString folder = path + u'/';
    return std::all_of(m_entries.cbegin(), m_entries.cend(), [&](const Entry &entry) {
        return entry.owner == owner || !entry.path.startsWith(folder);
    });
}

World::Stamp World::stampOf(const QString &path)
{
    Stamp stamp;
#ifdef Q_OS_UNIX
    struct stat data {
    };
    if (::lstat(QFile::encodeName(path).constData(), &data) != 0)
        return stamp;
    stamp.exists = true;
    stamp.type = S_ISLNK(data.st_mode) ? 'l' : S_ISDIR(data.st_mode) ? 'd' : 'f';
    stamp.size = data.st_size;
    stamp.modified = data.st_mtim.tv_sec * 1'000'000'000LL + data.st_mtim.tv_nsec;
    stamp.mode = static_cast<int>(data.st_mode);
#else
    const QString exact = "\\\\?\\"_L1 + QDir::toNativeSeparators(path);
    WIN32_FILE_ATTRIBUTE_DATA data{};
    stamp.exists = ::GetFileAttributesExW(reinterpret_cast<const wchar_t *>(exact.utf16()),
                                          GetFileExInfoStandard, &data);
    if (!stamp.exists)
        return stamp;
    const bool isFolder = data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY;
    stamp.type = isFolder ? 'd' : 'f';
    stamp.size = qint64(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    stamp.modified =
        qint64(data.ftLastWriteTime.dwHighDateTime) << 32 | data.ftLastWriteTime.dwLowDateTime;
    stamp.mode = static_cast<int>(data.dwFileAttributes);
#endif
    return stamp;
}

QStringList World::findDeleted()
{
    QStringList deleted;
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        Stamp &before = m_stamps[i];
        const QString &path = m_entries.at(i).path;
        const Stamp now = stampOf(path);
        if (now == before)
            continue;
        if (before.exists && !now.exists) {
            deleted.append(path);
            before = now;
            continue;
        }
        ActionLog::instance().fail(u"%1 is not as it was"_s.arg(path));
    }
    return deleted;
}

QStringList World::entriesAt(const QStringList &paths) const
{
    QStringList found;
    for (const QString &path : paths) {
        const QFileInfo info(path);
        if (info.isDir() && !info.isSymLink()) {
            const QString folder = path + u'/';
            for (qsizetype i = 0; i < m_entries.size(); ++i) {
                if (m_stamps.at(i).exists && m_entries.at(i).path.startsWith(folder))
                    found.append(m_entries.at(i).path);
            }
            continue;
        }
        // A path may lead through a link: find the real folder of the file.
        const QString folder = QFileInfo(info.path()).canonicalFilePath();
        const QString real = folder + path.mid(info.path().size());
        const auto index = m_indexes.constFind(real);
        expect(index != m_indexes.cend(), [&] { return u"%1 is unknown"_s.arg(path); });
        if (m_stamps.at(*index).exists)
            found.append(real);
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

bool World::resistsDeletion(const QString &path) const
{
#ifdef Q_OS_UNIX
    Q_UNUSED(path)
    return false; // only the permissions of the folder count
#else
    const auto index = m_indexes.constFind(path);
    return index != m_indexes.cend() && m_entries.at(*index).kind == Kind::ReadOnlyFile;
#endif
}

void World::compareFully() const
{
    // The program may change its own data and the files of the registry.
    static const QStringList changingFolders{u"config"_s, u"data"_s, u"cache"_s, u"home"_s,
                                             u"prefix"_s};
    const QStringList tops = QDir(m_home).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &top : tops) {
        if (changingFolders.contains(top))
            continue;
        QDirIterator it(m_home + u'/' + top,
                        QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            expect(path.contains("/Norvak/"_L1) || m_indexes.contains(path),
                   [&] { return u"%1 is new"_s.arg(path); });
        }
    }
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        const Entry &entry = m_entries.at(i);
        expect(stampOf(entry.path) == m_stamps.at(i),
               [&] { return u"%1 is not as it was"_s.arg(entry.path); });
        if (entry.owner != Owner::Nobody || entry.size > 0 || entry.kind != Kind::File)
            continue;
        QFile file(entry.path);
        expect(file.open(QIODevice::ReadOnly) && file.readAll() == entry.path.toUtf8(),
               [&] { return u"%1 does not hold what it held"_s.arg(entry.path); });
    }
}
