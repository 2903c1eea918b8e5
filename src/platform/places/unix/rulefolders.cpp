#include "rulefolders.h"
#include "rulefolders_p.h"

#include "placenotes_p.h"
#include "readfile.h"
#include "unix/openfolder.h"
#include "unix/wineprefix.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The environment variable counts first, then the folder @p relative in the prefix's folder, then
// the desktop's folder.
QString firstSet(const char *variable, QString (*inPrefix)(), const QString &relative,
                 const QString &desktopFolder)
{
    const QString fromEnvironment = qEnvironmentVariable(variable);
    if (!fromEnvironment.isEmpty())
        return QDir::fromNativeSeparators(fromEnvironment).replace(u'\\', u'/');
    const placenotes::Watch watch;
    wineprefix::checkFolders();
    const QString base = inPrefix();
    if (!base.isEmpty())
        return relative.isEmpty() ? base : wineprefix::matchCase(base, relative);
    // If the prefix has such a folder, the desktop's one is another.
    return watch.sawFailure() ? QString() : desktopFolder;
}

bool startsWithDrive(const QString &path)
{
    return path.size() >= 2 && path.at(1) == u':' && path.at(0).isLetter()
        && (path.size() == 2 || path.at(2) == u'/');
}

} // namespace

QString temporaryFolder()
{
    return firstSet("TMPDIR", wineprefix::temporaryFolder, {}, QDir::tempPath());
}

QString localDataFolder()
{
    return firstSet("LOCALAPPDATA", wineprefix::userFolder, u"AppData/Local"_s,
                    QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString roamingDataFolder()
{
    return firstSet("APPDATA", wineprefix::userFolder, u"AppData/Roaming"_s,
                    QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString homeFolder()
{
    return firstSet("USERPROFILE", wineprefix::userFolder, {}, QDir::homePath());
}

QString programDataFolder()
{
    return firstSet("PROGRAMDATA", wineprefix::systemDrive, u"ProgramData"_s, {});
}

QString windowsFolder()
{
    return firstSet("WINDIR", wineprefix::systemDrive, u"windows"_s, u"C:/Windows"_s);
}

QString systemDrive()
{
    return firstSet("SYSTEMDRIVE", wineprefix::systemDrive, {}, u"C:"_s);
}

ReadFailures folderFailures()
{
    wineprefix::checkFolders();
    return placenotes::take();
}

QString localFolder(const QString &path)
{
    const QString folder = QDir::fromNativeSeparators(path).replace(u'\\', u'/');
    if (!startsWithDrive(folder))
        return folder;
    const QString drive = wineprefix::drive(folder.at(0));
    return drive.isEmpty() ? QString() : wineprefix::matchCase(drive, folder.mid(2));
}

QString storedPath(const QString &folder, const QStringList &names, QString *problem)
{
    const QString prefix = wineprefix::folder();
    if (!prefix.isEmpty() && (folder + u'/').startsWith(prefix + u'/'))
        return wineprefix::matchCase(folder, names.join(u'/'), problem);
    return (folder == u'/' ? folder : folder + u'/') + names.join(u'/');
}

QString canonicalPath(const QString &path, QString *problem)
{
    QString error;
    const QString target = pathWithoutLinks(path, error);
    if (problem && !error.isEmpty())
        *problem = error;
    return target;
}

void checkUserFolders(ReadFailures &failures)
{
    constexpr qint64 maximumSize = 1 << 20; // bytes
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/user-dirs.dirs"_L1;
    QString error;
    const bool exists = !reachablePath(path, error).isEmpty();
    if (!error.isEmpty() || (exists && !readFile(path, maximumSize, error)))
        failures.add(path, error);
}

QString desktopFolder()
{
    ReadFailures failures;
    checkUserFolders(failures);
    return failures.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)
                              : QDir::homePath();
}

QString settingsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString settingsKey()
{
    return {};
}

bool isRoot(const QString &path)
{
    return path == u'/';
}

Qt::CaseSensitivity pathCase()
{
    return Qt::CaseSensitive;
}

} // namespace platform
