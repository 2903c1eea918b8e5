#include "rulefolders.h"
#include "rulefolders_p.h"

#include "placenotes_p.h"
#include "windows/openentry.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString fromEnvironment(const char *variable, const QString &defaultFolder = {})
{
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? defaultFolder : QDir::fromNativeSeparators(value);
}

// The spelling of an entry's name in its folder. It can differ in case, or be the long form of a
// short name. Nothing is opened for it. Empty when there is no such entry.
QString storedName(const QString &extended)
{
    WIN32_FIND_DATAW data{};
    const HANDLE search =
        ::FindFirstFileExW(reinterpret_cast<const wchar_t *>(extended.utf16()), FindExInfoBasic,
                           &data, FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE)
        return {};
    ::FindClose(search);
    return QString::fromWCharArray(data.cFileName);
}

bool hasWildcard(const QString &name)
{
    return std::any_of(name.begin(), name.end(), [](QChar c) { return "*?<>\""_L1.contains(c); });
}

} // namespace

QString temporaryFolder()
{
    return QDir::tempPath();
}

QString localDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString roamingDataFolder()
{
    // This is the only standard location below the roaming folder.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    for (const QString &own :
         {QCoreApplication::applicationName(), QCoreApplication::organizationName()}) {
        if (!own.isEmpty() && folder.endsWith(u'/' + own))
            folder.chop(own.size() + 1);
    }
    return folder;
}

QString homeFolder()
{
    return QDir::homePath();
}

QString programDataFolder()
{
    return fromEnvironment("PROGRAMDATA");
}

QString windowsFolder()
{
    return fromEnvironment("WINDIR", u"C:/Windows"_s);
}

QString systemDrive()
{
    return fromEnvironment("SYSTEMDRIVE", u"C:"_s);
}

// The environment names the folders. What is noted concerns the protected places.
ReadFailures folderFailures()
{
    return placenotes::take();
}

// There is no such file.
void checkUserFolders(ReadFailures &) { }

QString desktopFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

QString settingsFolder()
{
    return roamingDataFolder();
}

QString settingsKey()
{
    return u"HKEY_CURRENT_USER\\Software"_s;
}

// A drive without a slash means its root here. For the system it would be the drive's current
// folder.
QString localFolder(const QString &path)
{
    QString folder = QDir::fromNativeSeparators(path);
    if (folder.size() == 2 && folder.at(1) == u':')
        folder += u'/';
    const QString cleaned = QDir::cleanPath(folder);
    return extendedPath(cleaned).isEmpty() ? QString() : cleaned;
}

QString storedPath(const QString &folder, const QStringList &names, QString *)
{
    QString path = folder;
    bool exists = true;
    for (const QString &name : names) {
        if (!path.endsWith(u'/'))
            path += u'/';
        const QString stored =
            exists && !hasWildcard(name) ? storedName(extendedPath(path + name)) : QString();
        exists = !stored.isEmpty();
        path += exists ? stored : name;
    }
    return path;
}

QString canonicalPath(const QString &path, QString *problem)
{
    const QString extended = extendedPath(path);
    if (extended.isEmpty())
        return {};
    const UniqueHandle entry = openEntry(extended, FILE_READ_ATTRIBUTES, Links::Follow);
    if (!entry.isValid()) {
        if (problem && !isMissing(::GetLastError()))
            *problem = reasonOf(::GetLastError());
        return {};
    }
    const QString canonical = finalPath(entry, PathForm::Drive);
    // The system may know a volume by a name that cannot begin a path.
    if (!canonical.isEmpty() && openEntry(canonical, FILE_READ_ATTRIBUTES, Links::Follow).isValid())
        return plainPath(canonical);
    if (problem)
        *problem = reasonOf(::GetLastError());
    return {};
}

bool isRoot(const QString &path)
{
    const QString extended = extendedPath(path);
    return extended.size() == rootLength(extended);
}

Qt::CaseSensitivity pathCase()
{
    return Qt::CaseInsensitive;
}

} // namespace platform
