#include "rulefolders.h"
#include "rulefolders_p.h"

#include "unix/wineprefix.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The environment variable counts first, then the prefix's folder, then the desktop's folder.
QString firstSet(const char *variable, const QString &inPrefix, const QString &desktopFolder)
{
    const QString fromEnvironment = qEnvironmentVariable(variable);
    if (!fromEnvironment.isEmpty())
        return QDir::fromNativeSeparators(fromEnvironment).replace(u'\\', u'/');
    return inPrefix.isEmpty() ? desktopFolder : inPrefix;
}

QString prefixFolder(const QString &base, const QString &relative)
{
    return base.isEmpty() ? QString() : wineprefix::matchCase(base, relative);
}

bool startsWithDrive(const QString &path)
{
    return path.size() >= 2 && path.at(1) == u':' && path.at(0).isLetter()
        && (path.size() == 2 || path.at(2) == u'/');
}

} // namespace

QString temporaryFolder()
{
    return firstSet("TMPDIR", wineprefix::temporaryFolder(), QDir::tempPath());
}

QString localDataFolder()
{
    return firstSet("LOCALAPPDATA", prefixFolder(wineprefix::userFolder(), u"AppData/Local"_s),
                    QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString roamingDataFolder()
{
    return firstSet("APPDATA", prefixFolder(wineprefix::userFolder(), u"AppData/Roaming"_s),
                    QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString homeFolder()
{
    return firstSet("USERPROFILE", wineprefix::userFolder(), QDir::homePath());
}

QString programDataFolder()
{
    return firstSet("PROGRAMDATA", prefixFolder(wineprefix::systemDrive(), u"ProgramData"_s), {});
}

QString windowsFolder()
{
    return firstSet("WINDIR", prefixFolder(wineprefix::systemDrive(), u"windows"_s),
                    u"C:/Windows"_s);
}

QString systemDrive()
{
    return firstSet("SYSTEMDRIVE", wineprefix::systemDrive(), u"C:"_s);
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

QString problemWith(const QString &path)
{
    struct stat data {
    };
    if (!QDir::isAbsolutePath(path) || ::stat(QFile::encodeName(path).constData(), &data) == 0
        || errno == ENOENT || errno == ENOTDIR)
        return {};
    return qt_error_string(errno);
}

QString canonicalPath(const QString &path)
{
    return QDir::isAbsolutePath(path) ? QFileInfo(path).canonicalFilePath() : QString();
}

QString settingsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
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
