#include "folders.h"

#include "folders_p.h"

#include <QDir>

#include <algorithm>

namespace platform {

bool isProtectedRoot(const QString &path)
{
    const QString root = canonicalPath(path);
    if (root.isEmpty() || QDir(root).isRoot())
        return true;
    const QString rootWithSlash = root + u'/';
    const QStringList folders = protectedFolders();
    return std::any_of(folders.begin(), folders.end(), [&](const QString &folder) {
        const QString canonical = canonicalPath(folder);
        return canonical.compare(root, pathCase()) == 0
            || canonical.startsWith(rootWithSlash, pathCase());
    });
}

} // namespace platform
