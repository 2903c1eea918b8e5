#include "protectedplaces_p.h"

#include "unix/wineprefix.h"

#include <QDir>
#include <QStandardPaths>

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
        {u"/dev"_s, Extent::Tree}, // from here on: no files, but what the kernel shows as such
        {u"/proc"_s, Extent::Tree},
        {u"/sys"_s, Extent::Tree},
        {u"/run"_s, Extent::Itself}, // the state of what runs now
        {u"/opt"_s, Extent::Children}, // programs
        {u"/snap"_s, Extent::Tree},
        {u"/srv"_s, Extent::Children}, // what servers serve
        {u"/var"_s, Extent::Itself},
        {u"/var/lib"_s, Extent::Children}, // what programs keep: databases, packages, machines
        {u"/var/log"_s, Extent::Itself},
        {u"/var/mail"_s, Extent::Tree},
        {u"/var/spool"_s, Extent::Itself}, // mail and prints under way
        {u"/var/www"_s, Extent::Children},
        {u"/home"_s, Extent::Children}, // everybody's home
        {u"/root"_s, Extent::Itself},
        {u"/mnt"_s, Extent::Children}, // from here on: other disks
        {u"/media"_s, Extent::Grandchildren},
        {u"/run/media"_s, Extent::Grandchildren},
        {QDir::homePath(), Extent::Itself},
        {QDir::homePath() + "/.local"_L1, Extent::Children},
        {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), Extent::Itself},
        {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation), Extent::Itself},
    };
    // What the prefix calls a drive is one, wherever it leads; and the prefix itself.
    for (const QString &drive : wineprefix::drives())
        list.append({drive, Extent::Itself});
    list.append({wineprefix::folder(), Extent::Itself});
    for (const QString &folder : wineprefix::personalFolders())
        list.append({folder, Extent::Itself});
    return list;
}

} // namespace platform
