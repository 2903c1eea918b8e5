#include "entry.h"

#include "unix/openfolder.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace platform {

Entry inspect(const QString &path)
{
    const auto failure = [](int error) {
        if (error == ELOOP)
            return Entry{EntryKind::Link, 0, {}, {}};
        return error == ENOENT || error == ENOTDIR
            ? Entry()
            : Entry{EntryKind::Other, 0, reasonOf(error), {}};
    };
    const SplitPath split = splitPath(path);
    if (split.folder.isEmpty())
        return {};
    if (split.name.isEmpty())
        return {path == u'/' ? EntryKind::Folder : EntryKind::Missing, 0, {}, {}};
    const UniqueFd folder = openFolder(split.folder, Access::PassThrough);
    FileStatus status{};
    if (!folder.isValid()
        || ::fstatat(folder.get(), split.name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return failure(errno);
    if (S_ISREG(status.st_mode))
        return {EntryKind::File, static_cast<qint64>(status.st_size), {}, idOf(folder.get())};
    if (S_ISDIR(status.st_mode))
        return {EntryKind::Folder, 0, {}, {}};
    return {S_ISLNK(status.st_mode) ? EntryKind::Link : EntryKind::Other, 0, {}, {}};
}

} // namespace platform
