#include "entry.h"

namespace platform {

QString joinedPath(const QString &folder, const QString &name)
{
    QString path;
    path.reserve(folder.size() + 1 + name.size());
    path += folder;
    if (!folder.endsWith(u'/')) // only the root of a file system ends in a slash
        path += u'/';
    path += name;
    return path;
}

QString folderOf(const QString &path)
{
    return path.left(qMax<qsizetype>(path.lastIndexOf(u'/'), 0));
}

} // namespace platform
