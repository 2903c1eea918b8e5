#include "unix/openfolder.h"

#include <QFile>

#include <cerrno>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace platform {

namespace {

// The longest part of a path that one system call gets: below PATH_MAX, with room for the
// terminator.
constexpr qsizetype longestStep = 4000;

constexpr int flagsOf(Access access)
{
    return O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | (access == Access::Read ? O_RDONLY : O_PATH);
}

UniqueFd openWithKernelCheck(int base, const QByteArray &relative, Mounts mounts, Access access)
{
    open_how how{};
    // With O_NOFOLLOW a link at the end of the path would give ENOTDIR instead of ELOOP.
    how.flags = static_cast<decltype(how.flags)>(flagsOf(access) & ~O_NOFOLLOW);
    how.resolve = RESOLVE_NO_SYMLINKS | RESOLVE_BENEATH;
    if (mounts == Mounts::Stay)
        how.resolve |= RESOLVE_NO_XDEV;
    return UniqueFd(
        static_cast<int>(::syscall(SYS_openat2, base, relative.constData(), &how, sizeof how)));
}

UniqueFd openComponent(int base, const QByteArray &name, Access access)
{
    UniqueFd fd(::openat(base, name.constData(), flagsOf(access)));
    if (!fd.isValid() && errno == ENOTDIR) {
        FileStatus status{};
        const int found = ::fstatat(base, name.constData(), &status, AT_SYMLINK_NOFOLLOW);
        errno = found == 0 && S_ISLNK(status.st_mode) ? ELOOP : ENOTDIR;
    }
    return fd;
}

// For kernels and sandboxes without openat2.
UniqueFd openStepByStep(int base, const QByteArray &relative, Mounts mounts, Access access)
{
    QByteArrayList components = relative.split('/');
    components.removeAll(QByteArray());
    FileStatus baseStatus{};
    if (components.isEmpty() || components.contains("..") || ::fstat(base, &baseStatus) != 0) {
        errno = EINVAL;
        return {};
    }
    UniqueFd current;
    for (qsizetype i = 0; i < components.size(); ++i) {
        const Access stepAccess = i + 1 == components.size() ? access : Access::PassThrough;
        current = openComponent(i == 0 ? base : current.get(), components.at(i), stepAccess);
        FileStatus status{};
        if (!current.isValid() || ::fstat(current.get(), &status) != 0)
            return {};
        if (mounts == Mounts::Stay && status.st_dev != baseStatus.st_dev) {
            errno = EXDEV;
            return {};
        }
    }
    return current;
}

UniqueFd openStep(int base, const QByteArray &relative, Mounts mounts, Access access)
{
    UniqueFd fd = openWithKernelCheck(base, relative, mounts, access);
    if (fd.isValid() || (errno != ENOSYS && errno != EPERM))
        return fd;
    return openStepByStep(base, relative, mounts, access);
}

} // namespace

EntryId idOf(int folder)
{
    FileStatus status{};
    return ::fstat(folder, &status) == 0 ? idOf(status) : EntryId();
}

UniqueFd openFolderBelow(int base, const QByteArray &relative, Mounts mounts, Access access)
{
    if (relative.isEmpty())
        return UniqueFd(::openat(base, ".", flagsOf(access)));
    UniqueFd current;
    qsizetype begin = 0;
    for (;;) {
        const int from = current.isValid() ? current.get() : base;
        if (relative.size() - begin <= longestStep)
            return openStep(from, relative.mid(begin), mounts, access);
        const qsizetype end = relative.lastIndexOf('/', begin + longestStep);
        if (end <= begin) {
            errno = ENAMETOOLONG;
            return {};
        }
        current = openStep(from, relative.mid(begin, end - begin), mounts, Access::PassThrough);
        if (!current.isValid())
            return {};
        begin = end + 1;
    }
}

UniqueFd openFolder(const QByteArray &path, Access access)
{
    if (!path.startsWith('/')) {
        errno = EINVAL;
        return {};
    }
    const UniqueFd root(::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    qsizetype begin = 0;
    while (begin < path.size() && path.at(begin) == '/')
        ++begin;
    return openFolderBelow(root.get(), path.mid(begin), Mounts::Cross, access);
}

QString reasonOf(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

SplitPath splitPath(const QString &path)
{
    const QByteArray encoded = QFile::encodeName(path);
    if (!encoded.startsWith('/') || encoded.contains("/../") || encoded.contains("/./"))
        return {};
    const qsizetype slash = encoded.lastIndexOf('/');
    QByteArray name = encoded.mid(slash + 1);
    if (name == "." || name == "..")
        name.clear();
    return {encoded.left(qMax<qsizetype>(slash, 1)), name};
}

} // namespace platform
