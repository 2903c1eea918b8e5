#include "protectedplaces_p.h"

#include "placenotes_p.h"
#include "rulefolders_p.h"
#include "windows/folderreader.h"

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

QStringList profileNames(const QString &parent)
{
    QStringList names;
    const QString extended = extendedPath(parent);
    // Without a folder the current drive would be listed.
    if (extended.isEmpty())
        return {};
    FolderReader reader(nullptr);
    reader.begin(extended);
    while (const WIN32_FIND_DATAW *entry = reader.next()) {
        if ((entry->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            names.append(QString::fromWCharArray(entry->cFileName));
    }
    const DWORD error = reader.error();
    if (error != ERROR_SUCCESS && error != ERROR_ACCESS_DENIED && !isMissing(error))
        placenotes::add(parent, reasonOf(error));
    return names;
}

bool isClosed(const QString &)
{
    return false; // names are found without listing
}

QString reachablePath(const QString &path)
{
    QString problem;
    const QString target = canonicalPath(path, &problem);
    if (problem.isEmpty())
        return target;
    if (!openEntry(extendedPath(path), FILE_READ_ATTRIBUTES, Links::Follow).isValid()
        && ::GetLastError() == ERROR_ACCESS_DENIED)
        return path;
    placenotes::add(path, problem);
    return {};
}

} // namespace platform
