#include "protectedplaces.h"
#include "protectedplaces_p.h"

#include "rulefolders.h"
#include "rulefolders_p.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

using Extent = ProtectedPlace::Extent;

/// A row of the tables below: a protected place relative to a base folder.
struct RelativePlace {
    QLatin1StringView path;
    Extent extent = Extent::Itself;
};

constexpr std::array belowWindows{
    RelativePlace{""_L1, Extent::Itself},
    RelativePlace{"System32"_L1, Extent::Tree}, // the system and the machine's registry
    RelativePlace{"SysWOW64"_L1, Extent::Tree}, // the same for 32-bit programs
    RelativePlace{"WinSxS"_L1, Extent::Tree}, // the source for repairs of system files
    RelativePlace{"servicing"_L1, Extent::Tree}, // the files that install updates
    RelativePlace{"assembly"_L1, Extent::Tree}, // libraries that programs share
    RelativePlace{"Fonts"_L1, Extent::Tree}, // the fonts of all programs
    RelativePlace{"Installer"_L1, Extent::Itself}, // needed to uninstall programs
    RelativePlace{"SoftwareDistribution"_L1, Extent::Itself}, // the list of installed updates
};

constexpr std::array belowDrive{
    RelativePlace{""_L1, Extent::Itself},
    RelativePlace{"Users"_L1, Extent::Children}, // each profile
    RelativePlace{"Program Files"_L1, Extent::Tree}, // installed programs
    RelativePlace{"Program Files (x86)"_L1, Extent::Tree}, // the same, 32-bit
    RelativePlace{"ProgramData"_L1, Extent::Itself}, // data of programs for all users
    RelativePlace{"Boot"_L1, Extent::Tree}, // needed to start the system
    RelativePlace{"Recovery"_L1, Extent::Tree}, // needed to repair the system
    RelativePlace{"System Volume Information"_L1, Extent::Tree}, // restore points
};

// The temporary folder may be inside one of them, if its owner has chosen that.
constexpr std::array belowProfile{
    RelativePlace{"AppData"_L1, Extent::Children}, // data of programs for the user
    RelativePlace{"Desktop"_L1, Extent::Itself}, // from here on: the user's own files
    RelativePlace{"Documents"_L1, Extent::Itself},
    RelativePlace{"My Documents"_L1, Extent::Itself},
    RelativePlace{"Downloads"_L1, Extent::Itself},
    RelativePlace{"Pictures"_L1, Extent::Itself},
    RelativePlace{"Music"_L1, Extent::Itself},
    RelativePlace{"Videos"_L1, Extent::Itself},
    RelativePlace{"Saved Games"_L1, Extent::Itself},
    RelativePlace{"Favorites"_L1, Extent::Itself},
    RelativePlace{"Contacts"_L1, Extent::Itself},
    RelativePlace{"OneDrive"_L1, Extent::Itself},
};

QString withTrailingSlash(const QString &path)
{
    return path.endsWith(u'/') ? path : path + u'/';
}

template<class Places>
void addPlaces(QList<ProtectedPlace> &list, const QString &base, const Places &places)
{
    for (const RelativePlace &place : places)
        list.append({locate(base, place.path), place.extent});
}

// The user's own profile and the other profiles beside it.
void addProfiles(QList<ProtectedPlace> &list)
{
    list.append({homeFolder(), Extent::Itself});
    addPlaces(list, homeFolder(), belowProfile);
    for (const QString &parent : {locate(systemDrive(), u"Users"_s), u"/home"_s}) {
        if (parent.isEmpty())
            continue;
        const QStringList names = QDir(parent).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &name : names)
            addPlaces(list, withTrailingSlash(parent) + name, belowProfile);
    }
}

// The folders that the system's settings name for documents, pictures and other personal files.
void addPersonalFolders(QList<ProtectedPlace> &list)
{
    for (const QStandardPaths::StandardLocation location :
         {QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation,
          QStandardPaths::DownloadLocation, QStandardPaths::PicturesLocation,
          QStandardPaths::MusicLocation, QStandardPaths::MoviesLocation})
        list.append({QStandardPaths::writableLocation(location), Extent::Itself});
}

QList<ProtectedPlace> protectedPlaces()
{
    QList<ProtectedPlace> list = systemPlaces();
    addPlaces(list, windowsFolder(), belowWindows);
    addPlaces(list, systemDrive(), belowDrive);
    addProfiles(list);
    addPersonalFolders(list);
    for (const QString &folder : {localDataFolder(), roamingDataFolder(), programDataFolder()})
        list.append({folder, Extent::Itself});
    for (ProtectedPlace &place : list)
        place.path = canonicalPath(place.path);
    list.removeIf([](const ProtectedPlace &place) { return place.path.isEmpty(); });
    return list;
}

bool isInside(const QString &path, const QString &folder)
{
    return path.startsWith(withTrailingSlash(folder), pathCase());
}

bool isProtectedBy(const QString &path, const ProtectedPlace &place)
{
    if (path.compare(place.path, pathCase()) == 0 || isInside(place.path, path))
        return true;
    if (!isInside(path, place.path))
        return false;
    const auto depth =
        QStringView(path).sliced(withTrailingSlash(place.path).size()).count(u'/') + 1;
    return (place.extent == Extent::Children && depth == 1)
        || (place.extent == Extent::Grandchildren && depth <= 2);
}

bool isProtected(const QString &path, bool includesTreeContents)
{
    const QString root = canonicalPath(path);
    if (root.isEmpty() || isRoot(root))
        return true;
    const QList<ProtectedPlace> places = protectedPlaces();
    return std::any_of(places.begin(), places.end(), [&](const ProtectedPlace &place) {
        return isProtectedBy(root, place)
            || (includesTreeContents && place.extent == Extent::Tree && isInside(root, place.path));
    });
}

} // namespace

bool isProtectedRoot(const QString &path)
{
    return isProtected(path, true);
}

bool holdsProtectedPlace(const QString &path)
{
    return isProtected(path, false);
}

} // namespace platform
