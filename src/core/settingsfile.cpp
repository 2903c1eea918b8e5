#include "settingsfile.h"

#include "appinfo.h"
#include "ownfile.h"
#include "rulefolders.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxSettingsFileSize = 1'048'576; // bytes
constexpr int maxNames = 100;

bool isFree(const QString &path)
{
    const QFileInfo info(path);
    return !info.exists() && !info.isSymLink();
}

bool isSound(const QString &path)
{
    const QFileInfo info(path);
    return isFree(path)
        || (info.isFile() && !info.isSymLink() && info.size() <= maxSettingsFileSize
            && platform::isOwnFile(path));
}

/// The first path with @p suffix, or with a number behind it, that is @p suitable. Empty when none
/// is.
QString otherPath(const QString &path, const QString &suffix, bool (*suitable)(const QString &))
{
    for (int number = 1; number <= maxNames; ++number) {
        const QString candidate =
            path + suffix + (number == 1 ? QString() : QString::number(number));
        if (suitable(candidate))
            return candidate;
    }
    return {};
}

/// Makes room at @p path. Returns whether what is there now can be opened.
bool setAsideIfDamaged(const QString &path, QStringList &problems)
{
    if (isSound(path))
        return true;
    const QString damagedPath = otherPath(path, u".damaged"_s, isFree);
    if (!damagedPath.isEmpty() && QFile::rename(path, damagedPath)) {
        problems.append("Unusable settings were set aside: "_L1 + damagedPath);
        return true;
    }
    problems.append("Unusable settings could not be set aside: "_L1 + path);
    return false;
}

/// Makes room at @p path and for its lock, and makes a missing file. Returns whether it can be
/// opened.
bool prepare(const QString &path, QStringList &problems)
{
    const bool isFileSound = setAsideIfDamaged(path, problems);
    // The toolkit reads the lock of another program, too.
    const bool isLockSound = setAsideIfDamaged(path + ".lock"_L1, problems);
    if (isFileSound)
        platform::makePrivateFile(path);
    return isFileSound && isLockSound;
}

/// A path that can be opened: that of @p fileName in the organisation's folder if possible.
QString preparedPath(const QString &fileName, QStringList &problems)
{
    const QString folder = platform::settingsFolder() + u'/' + appinfo::organisation;
    QString path = folder + u'/' + fileName;
    QString error;
    if (!platform::makePrivateFolder(folder, error))
        problems.append("The folder of the settings cannot be made: "_L1 + folder + u' ' + error);
    if (!prepare(path, problems)) {
        // The next start takes the same one.
        path = otherPath(path, u".new"_s, isSound);
        platform::makePrivateFile(path);
    }
    for (const QString &problem : std::as_const(problems))
        qWarning().noquote() << problem;
    return path;
}

} // namespace

namespace settingsfile {

std::unique_ptr<QSettings> openOptions(QStringList &problems)
{
    return std::make_unique<QSettings>(preparedPath(appinfo::name + ".ini"_L1, problems),
                                       QSettings::IniFormat);
}

std::unique_ptr<QSettings> openLanguage()
{
    const QString key = platform::settingsKey();
    QStringList problems;
    const QString place = key.isEmpty()
        ? preparedPath(appinfo::name + ".conf"_L1, problems)
        : key + u'\\' + appinfo::organisation + u'\\' + appinfo::name;
    return std::make_unique<QSettings>(place, QSettings::NativeFormat);
}

bool makeRoom(const QSettings &settings, QStringList &problems)
{
    return settings.format() != QSettings::IniFormat || prepare(settings.fileName(), problems);
}

} // namespace settingsfile
