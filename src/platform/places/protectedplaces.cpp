#include "protectedplaces.h"
#include "protectedplaces_p.h"

#include "placenotes_p.h"
#include "rulefolders.h"
#include "rulefolders_p.h"

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
    for (const RelativePlace &place : places) {
        if (isClosed(base)) {
            list.append({base + u'/' + place.path, place.extent});
            continue;
        }
        QString problem;
        list.append({locate(base, place.path, &problem), place.extent});
        if (!problem.isEmpty())
            placenotes::add(base + u'/' + place.path, problem);
    }
}

// The user's own profile and the other profiles beside it.
void addProfiles(QList<ProtectedPlace> &list)
{
    list.append({homeFolder(), Extent::Itself});
    addPlaces(list, homeFolder(), belowProfile);
    for (const QString &parent : {locate(systemDrive(), u"Users"_s), u"/home"_s}) {
        if (parent.isEmpty())
            continue;
        for (const QString &name : profileNames(parent))
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

// What cannot be read for it is noted: the list may then lack places.
QList<ProtectedPlace> protectedPlaces()
{
    const placenotes::Watch watch;
    QList<ProtectedPlace> list = systemPlaces();
    // The toolkit would ask for the same files, and wait there for ever if one is a pipe.
    if (watch.sawFailure())
        return list;
    addPlaces(list, windowsFolder(), belowWindows);
    addPlaces(list, systemDrive(), belowDrive);
    addProfiles(list);
    addPersonalFolders(list);
    for (const QString &folder : {localDataFolder(), roamingDataFolder(), programDataFolder()})
        list.append({folder, Extent::Itself});
    for (ProtectedPlace &place : list)
        place.path = reachablePath(place.path);
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

} // namespace

ProtectedPlaces::ProtectedPlaces() = default;
ProtectedPlaces::~ProtectedPlaces() = default;

bool ProtectedPlaces::isProtected(const QString &path, bool includesTreeContents)
{
    QString problem;
    const QString root = canonicalPath(path, &problem);
    if (!problem.isEmpty())
        placenotes::add(path, problem);
    if (root.isEmpty() || isRoot(root))
        return true;
    if (!m_places) {
        const placenotes::Watch watch;
        m_places = protectedPlaces();
        m_isComplete = !watch.sawFailure();
    }
    // The path may be one of the places that could not be found.
    if (!m_isComplete)
        return true;
    return std::any_of(m_places->cbegin(), m_places->cend(), [&](const ProtectedPlace &place) {
        return isProtectedBy(root, place)
            || (includesTreeContents && place.extent == Extent::Tree && isInside(root, place.path));
    });
}

bool ProtectedPlaces::isProtectedRoot(const QString &path)
{
    return isProtected(path, true);
}

bool ProtectedPlaces::holdsProtectedPlace(const QString &path)
{
    return isProtected(path, false);
}

} // namespace platform
