#include "folders.h"

#include "folders_p.h"

#include <QStandardPaths>

#include <algorithm>

namespace platform {

namespace {

// Where people keep what they made.
QStringList personalFolders()
{
    QStringList folders;
    for (const QStandardPaths::StandardLocation location :
         {QStandardPaths::DesktopLocation, QStandardPaths::DocumentsLocation,
          QStandardPaths::DownloadLocation, QStandardPaths::PicturesLocation,
          QStandardPaths::MusicLocation, QStandardPaths::MoviesLocation}) {
        folders.append(QStandardPaths::writableLocation(location));
    }
    return folders;
}

} // namespace

bool isProtectedRoot(const QString &path)
{
    const QString root = canonicalPath(path);
    if (root.isEmpty() || isTop(root))
        return true;
    const auto holds = [](const QString &outer, const QString &inner) {
        return outer.compare(inner, pathCase()) == 0 || inner.startsWith(outer + u'/', pathCase());
    };
    const QStringList trees = protectedTrees();
    const QStringList folders = protectedFolders() + trees + personalFolders();
    return std::any_of(folders.begin(), folders.end(),
                       [&](const QString &folder) { return holds(root, canonicalPath(folder)); })
        || std::any_of(trees.begin(), trees.end(), [&](const QString &tree) {
               const QString canonical = canonicalPath(tree);
               return !canonical.isEmpty() && holds(canonical, root);
           });
}

} // namespace platform
