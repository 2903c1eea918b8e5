#include "unix/wineprefix.h"

#include "placenotes_p.h"
#include "registry_p.h"
#include "unix/openfolder.h"
#include "unix/registryfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>

#include <array>
#include <cerrno>
#include <optional>
#include <tuple>
#include <utility>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform::wineprefix {

namespace {

// Whether there is a folder. If that cannot be determined, it is noted.
bool isFolder(const QString &path)
{
    struct stat status {
    };
    if (::stat(QFile::encodeName(path).constData(), &status) == 0)
        return S_ISDIR(status.st_mode);
    if (!meansMissing(errno))
        placenotes::add(path, reasonOf(errno));
    return false;
}

// The path without links. If it cannot be determined, the caller learns of it or it is noted.
QString resolved(const QString &path, QString *problem = nullptr)
{
    QString error;
    const QString target = pathWithoutLinks(path, error);
    if (!error.isEmpty()) {
        if (problem)
            *problem = error;
        else
            placenotes::add(path, error);
    }
    return target;
}

QString driveLink(const QString &prefix, QChar letter)
{
    return prefix + "/dosdevices/"_L1 + letter.toLower() + u':';
}

QString userName()
{
    const QString name = qEnvironmentVariable("USER");
    if (!name.isEmpty())
        return name;
    const passwd *entry = ::getpwuid(::getuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString();
}

const QString environmentKey = u"Environment"_s;
const QString machineEnvironmentKey =
    u"System\\CurrentControlSet\\Control\\Session Manager\\Environment"_s;
constexpr std::array environmentNames{"TEMP"_L1, "TMP"_L1};

// The keys of the user's hive that name the folders of personal files. The second holds the values
// of the first, expanded when they were last used.
const std::array folderKeys{
    u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders"_s,
    u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"_s};
constexpr std::array folderNames{
    "Desktop"_L1,
    "Personal"_L1, // documents
    "My Pictures"_L1,
    "My Music"_L1,
    "My Video"_L1,
    "Favorites"_L1,
    "{374DE290-123F-4565-9164-39C4925E467B}"_L1, // downloads
    // The names that newer programs use for documents, pictures, music, videos, downloads.
    "{F42EE2D3-909F-4907-8871-4C22FC0BF756}"_L1,
    "{0DDD015D-B06C-45D5-8C4C-F59713854639}"_L1,
    "{A0C69A99-21C8-4671-8703-7934162FCF1D}"_L1,
    "{35286A68-3C57-41A1-BBB1-0EAE73D76C95}"_L1,
    "{7D83EE9B-2244-4E70-B1F5-5393042AF1E4}"_L1,
};

// Identifies a text of the registry.
using KeyAndName = std::pair<QString, QString>;

template<class Keys, class Names>
QList<KeyAndName> combine(const Keys &keys, const Names &names)
{
    QList<KeyAndName> entries;
    for (const QString &key : keys) {
        for (const QLatin1StringView name : names)
            entries.append({key, name});
    }
    return entries;
}

/// The texts of one hive's file that name folders. They are needed very often, so the file is read
/// again only when it has changed. A static object; any thread.
class HiveTexts
{
public:
    HiveTexts(QLatin1StringView hive, const QList<KeyAndName> &entries)
        : m_hive(hive)
        , m_entries(entries)
    {
    }

    QString text(const QString &key, const QString &name)
    {
        const QMutexLocker locker(&m_mutex);
        update();
        return m_isPathKnown ? m_texts.value({key, name}) : QString();
    }

    /// Why the file cannot be read; empty when it can, and when there is none.
    QString error()
    {
        const QMutexLocker locker(&m_mutex);
        update();
        return m_error;
    }

    QString path() const { return folder() + m_hive; }

private:
    using Stamp = std::tuple<QByteArray, dev_t, ino_t, off_t, time_t, long>;

    void update()
    {
        const placenotes::Watch watch;
        const QString file = path();
        if (watch.sawFailure()) {
            // It is another path than that of the file. What is known of the file stays known.
            m_isPathKnown = false;
            return;
        }
        m_isPathKnown = true;
        const QByteArray encoded = QFile::encodeName(file);
        struct stat status {
        };
        const bool exists = ::stat(encoded.constData(), &status) == 0;
        const Stamp stamp{encoded,        status.st_dev,         status.st_ino,
                          status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
        if (exists && m_stamp == stamp) {
            if (!m_error.isEmpty())
                placenotes::add(file, m_error);
            return;
        }
        m_texts.clear();
        bool isDamaged = false;
        const std::optional<RegistryFile> registry = RegistryFile::read(file, m_error, &isDamaged);
        // A failure of the system may be over soon, a damaged file stays so until it changes.
        m_stamp = m_error.isEmpty() || isDamaged ? std::optional(stamp) : std::nullopt;
        for (const auto &[key, name] : m_entries) {
            const RegistryFile::Key found = registry ? registry->find(key) : RegistryFile::none;
            if (found == RegistryFile::none)
                continue;
            if (registry->hasUnreadableValues(found))
                m_error = RegistryTexts::tr("It is damaged");
            if (const std::optional<RegistryValue> value = registry->value(found, name))
                m_texts.insert({key, name}, registryText(*value));
        }
        if (!m_error.isEmpty())
            placenotes::add(file, m_error);
    }

    const QString m_hive;
    const QList<KeyAndName> m_entries;
    QMutex m_mutex;
    std::optional<Stamp> m_stamp;
    bool m_isPathKnown = false;
    QHash<KeyAndName, QString> m_texts;
    QString m_error;
};

HiveTexts &userTexts()
{
    static HiveTexts texts("/user.reg"_L1,
                           combine(QStringList{environmentKey}, environmentNames)
                               + combine(folderKeys, folderNames));
    return texts;
}

HiveTexts &machineTexts()
{
    static HiveTexts texts("/system.reg"_L1,
                           combine(QStringList{machineEnvironmentKey}, environmentNames));
    return texts;
}

// A variable that the prefix's registry defines: the user's value, else the machine's.
QString environmentValue(const QString &name)
{
    const QString text = userTexts().text(environmentKey, name);
    return text.isEmpty() ? machineTexts().text(machineEnvironmentKey, name) : text;
}

bool isRegistryReadable()
{
    return folder().isEmpty()
        || (userTexts().error().isEmpty() && machineTexts().error().isEmpty());
}

// The Windows name of a folder below the C: drive; empty for other folders.
QString windowsPath(const QString &folder)
{
    const QString drive = systemDrive();
    if (drive.isEmpty() || !(folder + u'/').startsWith(drive + u'/'))
        return {};
    return "C:"_L1 + folder.mid(drive.size()).replace(u'/', u'\\');
}

// The variables that Wine sets for each program.
std::optional<QString> fixedVariable(const QString &name)
{
    static const QHash<QString, QString> values{
        {u"SYSTEMROOT"_s, u"C:\\windows"_s},
        {u"WINDIR"_s, u"C:\\windows"_s},
        {u"PROGRAMFILES"_s, u"C:\\Program Files"_s},
        {u"PROGRAMFILES(X86)"_s, u"C:\\Program Files (x86)"_s},
        {u"COMMONPROGRAMFILES"_s, u"C:\\Program Files\\Common Files"_s},
        {u"COMMONPROGRAMFILES(X86)"_s, u"C:\\Program Files (x86)\\Common Files"_s},
        {u"PROGRAMDATA"_s, u"C:\\ProgramData"_s},
        {u"PUBLIC"_s, u"C:\\users\\Public"_s},
        {u"SYSTEMDRIVE"_s, u"C:"_s},
        {u"HOMEDRIVE"_s, u"C:"_s},
    };
    const auto value = values.constFind(name);
    return value == values.cend() ? std::nullopt : std::optional(*value);
}

std::optional<QString> userVariable(const QString &name)
{
    const QString user = windowsPath(userFolder());
    if (user.isEmpty())
        return {};
    if (name == "USERPROFILE"_L1)
        return user;
    if (name == "HOMEPATH"_L1)
        return user.mid(2);
    if (name == "LOCALAPPDATA"_L1)
        return user + "\\AppData\\Local"_L1;
    if (name == "APPDATA"_L1)
        return user + "\\AppData\\Roaming"_L1;
    return {};
}

// The text with its variables replaced; nothing when one of them is unknown.
std::optional<QString> expanded(const QString &text)
{
    QString result;
    qsizetype position = 0;
    for (;;) {
        const qsizetype begin = text.indexOf(u'%', position);
        const qsizetype end = begin < 0 ? -1 : text.indexOf(u'%', begin + 1);
        if (end < 0)
            return result + text.mid(position);
        const QString name = text.mid(begin + 1, end - begin - 1).toUpper();
        const std::optional<QString> fixed = fixedVariable(name);
        const std::optional<QString> value = fixed ? fixed : userVariable(name);
        if (!value)
            return {};
        result += text.mid(position, begin - position) + *value;
        position = end + 1;
    }
}

} // namespace

QString requestedFolder()
{
    const QString path = qEnvironmentVariable("WINEPREFIX");
    return path.isEmpty() ? QDir::homePath() + "/.wine"_L1 : path;
}

QString folder(QString *problem)
{
    const QString prefix = resolved(requestedFolder(), problem);
    // With the separator, a file is not found.
    return prefix.isEmpty() || resolved(prefix + "/drive_c/"_L1, problem).isEmpty() ? QString()
                                                                                    : prefix;
}

void checkFolders()
{
    (void)isRegistryReadable();
    (void)userFolder();
}

QString systemDrive()
{
    const QString prefix = folder();
    return prefix.isEmpty() ? QString() : resolved(prefix + "/drive_c"_L1);
}

QString userFolder()
{
    const QString drive = systemDrive();
    if (drive.isEmpty())
        return {};
    const QString users = matchCase(drive, u"users"_s);
    if (const QString own = matchCase(users, userName()); own != users && isFolder(own))
        return own;
    // Another user made the prefix. The profile is clear if there is only one beside the public
    // one.
    QString error;
    QStringList profiles = namesInFolder(users, error).value_or(QStringList());
    if (!error.isEmpty() && isFolder(users))
        placenotes::add(users, error);
    profiles.removeIf([&users](const QString &name) {
        return name.compare("Public"_L1, Qt::CaseInsensitive) == 0 || name.startsWith(u'.')
            || !isFolder(users + u'/' + name);
    });
    return profiles.size() == 1 ? users + u'/' + profiles.constFirst() : QString();
}

std::optional<QString> variable(const QString &name)
{
    if (folder().isEmpty())
        return {};
    if (name == "TEMP"_L1 || name == "TMP"_L1) {
        if (!isRegistryReadable())
            return {}; // it may name another folder than the default one
        const QString inRegistry = environmentValue(name);
        return expanded(inRegistry.isEmpty() ? u"%LOCALAPPDATA%\\Temp"_s : inRegistry);
    }
    const std::optional<QString> fixed = fixedVariable(name);
    return fixed ? fixed : userVariable(name);
}

QString temporaryFolder()
{
    // The order in which Windows looks at them.
    for (const QString &name : {u"TMP"_s, u"TEMP"_s}) {
        const std::optional<QString> path = variable(name);
        if (const QString local = path ? localPath(*path) : QString(); !local.isEmpty())
            return local;
    }
    if (!isRegistryReadable())
        return {};
    const std::optional<QString> defaultFolder = expanded(u"%LOCALAPPDATA%\\Temp"_s);
    return defaultFolder ? localPath(*defaultFolder) : QString();
}

QString localPath(const QString &windowsPath)
{
    QString path = windowsPath;
    path.replace(u'\\', u'/');
    const bool hasDrive = path.size() >= 3 && path.at(1) == u':' && path.at(2) == u'/';
    const QString top = hasDrive ? drive(path.at(0)) : QString();
    return top.isEmpty() ? QString() : matchCase(top, path.mid(2));
}

QStringList personalFolders()
{
    QStringList folders;
    for (const auto &[key, name] : combine(folderKeys, folderNames)) {
        const std::optional<QString> path = expanded(userTexts().text(key, name));
        if (const QString local = path ? localPath(*path) : QString(); !local.isEmpty())
            folders.append(local);
    }
    return folders;
}

QString drive(QChar letter, QString *problem)
{
    const QString prefix = folder(problem);
    if (prefix.isEmpty())
        return {};
    return resolved(driveLink(prefix, letter), problem);
}

QStringList drives()
{
    const QString prefix = folder();
    if (prefix.isEmpty())
        return {};
    QStringList folders;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const QString link = driveLink(prefix, QLatin1Char(letter));
        QString error;
        if (const QString target = reachablePath(link, error); !target.isEmpty())
            folders.append(target);
        if (!error.isEmpty())
            placenotes::add(link, error);
    }
    return folders;
}

QString matchCase(const QString &base, const QString &relative, QString *problem)
{
    QString path = base;
    const QStringList names = relative.split(u'/', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const QString exact = path + u'/' + name;
        const QFileInfo info(exact);
        QString found = name;
        if (!info.exists() && !info.isSymLink()) {
            QString error;
            const QStringList entries = namesInFolder(path, error).value_or(QStringList());
            for (const QString &entry : entries) {
                if (entry.compare(name, Qt::CaseInsensitive) == 0) {
                    found = entry;
                    break;
                }
            }
            if (!error.isEmpty() && isFolder(path)) {
                placenotes::add(path, error);
                if (problem)
                    *problem = error;
            }
        }
        path += u'/' + found;
    }
    return path;
}

} // namespace platform::wineprefix
