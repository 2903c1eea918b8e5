#include "protectedplaces_p.h"

#include "placenotes_p.h"
#include "rulefolders_p.h"
#include "unix/openfolder.h"
#include "unix/wineprefix.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

QList<ProtectedPlace> systemPlaces()
{
    using Extent = ProtectedPlace::Extent;
    QList<ProtectedPlace> list{
        {u"/usr"_s, Extent::Tree}, // from here on: the system itself
        {u"/etc"_s, Extent::Tree},
        {u"/bin"_s, Extent::Tree},
        {u"/sbin"_s, Extent::Tree},
        {u"/lib"_s, Extent::Tree},
        {u"/lib32"_s, Extent::Tree},
        {u"/lib64"_s, Extent::Tree},
        {u"/libx32"_s, Extent::Tree},
        {u"/boot"_s, Extent::Tree},
        {u"/dev"_s, Extent::Tree}, // from here on: state of the kernel that looks like files
        {u"/proc"_s, Extent::Tree},
        {u"/sys"_s, Extent::Tree},
        {u"/run"_s, Extent::Itself}, // the state of running programs
        {u"/opt"_s, Extent::Children}, // programs
        {u"/snap"_s, Extent::Tree},
        {u"/srv"_s, Extent::Children}, // the files of servers
        {u"/var"_s, Extent::Itself},
        {u"/var/lib"_s, Extent::Children}, // data of programs: databases, packages, machines
        {u"/var/log"_s, Extent::Itself},
        {u"/var/mail"_s, Extent::Tree},
        {u"/var/spool"_s, Extent::Itself}, // waiting mail and print jobs
        {u"/var/www"_s, Extent::Children},
        {u"/home"_s, Extent::Children}, // the homes of all users
        {u"/root"_s, Extent::Itself},
        {u"/mnt"_s, Extent::Children}, // from here on: other disks
        {u"/media"_s, Extent::Grandchildren},
        {u"/run/media"_s, Extent::Grandchildren},
        {QDir::homePath(), Extent::Itself},
        {QDir::homePath() + "/.local"_L1, Extent::Children},
        {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), Extent::Itself},
        {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), Extent::Itself},
    };
    // The prefix's drives are protected wherever they lead, and so is the prefix itself.
    for (const QString &drive : wineprefix::drives())
        list.append({drive, Extent::Itself});
    list.append({wineprefix::folder(), Extent::Itself});
    for (const QString &folder : wineprefix::personalFolders())
        list.append({folder, Extent::Itself});
    ReadFailures failures;
    checkUserFolders(failures);
    for (const ReadFailure &failure : failures.kept())
        placenotes::add(failure.where, failure.reason);
    return list;
}

QStringList profileNames(const QString &parent)
{
    const QString folder = reachablePath(parent);
    if (folder.isEmpty())
        return {};
    QString error;
    const std::optional<QStringList> names = namesInFolder(folder, error);
    // Some systems let nobody list the homes.
    if (!names && !isClosed(folder))
        placenotes::add(folder, error);
    return names.value_or(QStringList());
}

bool isClosed(const QString &folder)
{
    return isRefused(QFile::encodeName(folder), R_OK);
}

QString reachablePath(const QString &path)
{
    QString error;
    const QString target = reachablePath(path, error);
    if (!error.isEmpty())
        placenotes::add(path, error);
    return target;
}

} // namespace platform
