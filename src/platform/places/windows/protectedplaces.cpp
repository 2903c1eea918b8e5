#include "protectedplaces_p.h"

#include <QDir>

namespace platform {

// On Windows each drive is the root of a file system, so drives need no row here.
QList<ProtectedPlace> systemPlaces()
{
    using Extent = ProtectedPlace::Extent;
    QList<ProtectedPlace> list;
    for (const char *variable : {"USERPROFILE", "PUBLIC"})
        list.append({qEnvironmentVariable(variable), Extent::Itself});
    for (const char *variable : {"ProgramFiles", "ProgramW6432", "ProgramFiles(x86)"})
        list.append({qEnvironmentVariable(variable), Extent::Tree});
    for (ProtectedPlace &place : list)
        place.path = QDir::fromNativeSeparators(place.path);
    return list;
}

} // namespace platform
