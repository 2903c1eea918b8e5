#include "wineprefix_unix.h"

#include "registry_p.h"
#include "registryfile_unix.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform::wineprefix {

namespace {

QString existing(const QString &path)
{
    return QFileInfo(path).isDir() ? path : QString();
}

QString userName()
{
    const QString name = qEnvironmentVariable("USER");
    if (!name.isEmpty())
        return name;
    const passwd *entry = ::getpwuid(::getuid());
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString();
}

// A text value of the user's environment, from the registry file of the prefix.
QString environmentValue(const QString &name)
{
    QFile file(folder() + "/user.reg"_L1);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const std::optional<RegistryFile> registry = RegistryFile::parse(file.readAll());
    const RegistryFile::Key key = registry ? registry->find(u"Environment"_s) : RegistryFile::none;
    const auto value = key == RegistryFile::none ? std::nullopt : registry->value(key, name);
    return value ? registryText(*value) : QString();
}

} // namespace

QString folder()
{
    QString path = qEnvironmentVariable("WINEPREFIX");
    if (path.isEmpty())
        path = QDir::homePath() + "/.wine"_L1;
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() || existing(canonical + "/drive_c"_L1).isEmpty() ? QString()
                                                                                : canonical;
}

QString systemDrive()
{
    const QString prefix = folder();
    return prefix.isEmpty() ? QString() : QFileInfo(prefix + "/drive_c"_L1).canonicalFilePath();
}

QString userFolder()
{
    const QString drive = systemDrive();
    if (drive.isEmpty())
        return {};
    const QString users = matchCase(drive, u"users"_s);
    const QString own = existing(matchCase(users, userName()));
    if (!own.isEmpty() && own != users)
        return own;
    // A prefix that somebody else made: only one profile beside the public one leaves no doubt.
    QStringList profiles = QDir(users).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    profiles.removeIf(
        [](const QString &name) { return name.compare("Public"_L1, Qt::CaseInsensitive) == 0; });
    return profiles.size() == 1 ? users + u'/' + profiles.constFirst() : QString();
}

QString temporaryFolder()
{
    const QString user = userFolder();
    if (user.isEmpty())
        return {};
    const QString otherwise = matchCase(user, u"AppData/Local/Temp"_s);
    QString path = environmentValue(u"TMP"_s);
    if (path.isEmpty())
        path = environmentValue(u"TEMP"_s);
    path.replace("%USERPROFILE%"_L1, user, Qt::CaseInsensitive);
    path.replace(u'\\', u'/');
    if (path.startsWith(user))
        return path;
    if (path.size() < 3 || path.at(1) != u':' || path.contains(u'%'))
        return otherwise;
    const QString top = drive(path.at(0));
    return top.isEmpty() ? otherwise : matchCase(top, path.mid(2));
}

QString drive(QChar letter)
{
    const QString prefix = folder();
    if (prefix.isEmpty())
        return {};
    return QFileInfo(prefix + "/dosdevices/"_L1 + letter.toLower() + u':').canonicalFilePath();
}

QString matchCase(const QString &base, const QString &relative)
{
    QString path = base;
    const QStringList names = relative.split(u'/', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const QString exact = path + u'/' + name;
        const QFileInfo info(exact);
        QString found = name;
        if (!info.exists() && !info.isSymLink()) {
            const QStringList entries = QDir(path).entryList(QDir::AllEntries | QDir::Hidden
                                                             | QDir::System | QDir::NoDotAndDotDot);
            for (const QString &entry : entries) {
                if (entry.compare(name, Qt::CaseInsensitive) == 0) {
                    found = entry;
                    break;
                }
            }
        }
        path += u'/' + found;
    }
    return path;
}

} // namespace platform::wineprefix
