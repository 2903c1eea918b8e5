#include "unix/openfolder.h"

#include "unix/folderreader.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
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

} // namespace

bool isRefused(const QByteArray &path, int mode)
{
    return ::faccessat(AT_FDCWD, path.constData(), mode, AT_EACCESS) != 0 && errno == EACCES;
}

namespace {

// The target of a link in a folder with a link-free path. Empty on failure, with errno.
QByteArray linkTarget(const QByteArray &folder, const QByteArray &name)
{
    const QByteArray target = readLink(folder + '/' + name);
    return target.isEmpty() || target.startsWith('/') ? target : folder + '/' + target;
}

// reachablePath() with an errno on failure. Follows at most @p links links by itself.
QByteArray reach(const QByteArray &path, int links)
{
    const std::unique_ptr<char, decltype(&std::free)> target(::realpath(path.constData(), nullptr),
                                                             &std::free);
    if (target)
        return target.get();
    if (errno != EACCES || links == 0)
        return {};
    const SplitPath parts = splitPath(QFile::decodeName(path));
    if (parts.name.isEmpty()) {
        errno = EACCES;
        return {};
    }
    const QByteArray folder = reach(parts.folder, links);
    if (folder.isEmpty())
        return {};
    if (isRefused(folder, X_OK))
        return folder + '/' + parts.name;
    const QByteArray next = linkTarget(folder, parts.name);
    return next.isEmpty() ? QByteArray() : reach(next, links - 1);
}

// The kernel's number of the mount that an open folder is in. The device tells less: a folder can
// be mounted a second time within its own file system. Nothing when the kernel does not tell it,
// with the reason in errno.
std::optional<quint64> mountOf(int folder)
{
    struct statx status {
    };
    if (::statx(folder, "", AT_EMPTY_PATH, STATX_MNT_ID, &status) == 0
        && (status.stx_mask & STATX_MNT_ID) != 0)
        return status.stx_mnt_id;
    // Before Linux 5.8. The line is "mnt_id:" and the number.
    const QByteArray path = "/proc/self/fdinfo/" + QByteArray::number(folder);
    const UniqueFd file(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    std::array<char, 256> text{};
    const ssize_t length =
        file.isValid() ? ::read(file.get(), text.data(), text.size() - 1) : ssize_t(-1);
    if (length < 0)
        return {};
    const char *const line = std::strstr(text.data(), "mnt_id:");
    if (!line) {
        errno = ENOTSUP;
        return {};
    }
    return std::strtoull(line + std::strlen("mnt_id:"), nullptr, 10);
}

// For kernels and sandboxes without openat2.
UniqueFd openStepByStep(int base, const QByteArray &relative, Mounts mounts, Access access)
{
    QByteArrayList components = relative.split('/');
    components.removeAll(QByteArray());
    if (components.isEmpty() || components.contains("..")) {
        errno = EINVAL;
        return {};
    }
    std::optional<quint64> mount;
    if (mounts == Mounts::Stay) {
        mount = mountOf(base);
        if (!mount)
            return {};
    }
    UniqueFd current;
    for (qsizetype i = 0; i < components.size(); ++i) {
        const Access stepAccess = i + 1 == components.size() ? access : Access::PassThrough;
        current = openComponent(i == 0 ? base : current.get(), components.at(i), stepAccess);
        if (!current.isValid())
            return {};
        if (!mount)
            continue;
        const std::optional<quint64> found = mountOf(current.get());
        if (!found)
            return {};
        if (found != mount) {
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
    if (!root.isValid())
        return {};
    qsizetype begin = 0;
    while (begin < path.size() && path.at(begin) == '/')
        ++begin;
    return openFolderBelow(root.get(), path.mid(begin), Mounts::Cross, access);
}

QByteArray readLink(const QByteArray &path)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const ssize_t length = ::readlink(path.constData(), target.data(), PATH_MAX);
    if (length == PATH_MAX)
        errno = ENAMETOOLONG; // it may be cut off
    target.truncate(length == PATH_MAX ? 0 : qMax<ssize_t>(length, 0));
    return target;
}

std::optional<QStringList> namesInFolder(const QString &path, QString &error)
{
    const UniqueFd folder(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isValid()) {
        error = reasonOf(errno);
        return {};
    }
    QStringList names;
    FolderReader reader(nullptr);
    reader.begin(folder.get());
    while (const dirent64 *entry = reader.next()) {
        if (const QUtf8StringView name(entry->d_name); name.isValidUtf8())
            names.append(name.toString());
    }
    if (reader.error() != 0) {
        error = reasonOf(reader.error());
        return {};
    }
    names.sort();
    return names;
}

QString pathWithoutLinks(const QString &path, QString &error)
{
    if (!path.startsWith(u'/'))
        return {};
    const std::unique_ptr<char, decltype(&std::free)> target(
        ::realpath(QFile::encodeName(path).constData(), nullptr), &std::free);
    if (target)
        return QFile::decodeName(target.get());
    if (!meansMissing(errno))
        error = reasonOf(errno);
    return {};
}

QString reachablePath(const QString &path, QString &error)
{
    constexpr int longestChain = 40; // of links, as in the kernel
    if (!path.startsWith(u'/'))
        return {};
    const QByteArray target = reach(QFile::encodeName(path), longestChain);
    if (target.isEmpty() && !meansMissing(errno))
        error = reasonOf(errno);
    return QFile::decodeName(target);
}

std::optional<FileStatus> examineFile(const QString &path, QString &error)
{
    const QByteArray encoded = QFile::encodeName(path);
    FileStatus status{};
    if (::stat(encoded.constData(), &status) == 0)
        return status;
    const int reason = errno;
    if (!meansMissing(reason) || ::lstat(encoded.constData(), &status) == 0)
        error = reasonOf(reason);
    return {};
}

bool meansMissing(int error)
{
    return error == ENOENT || error == ENOTDIR || error == ELOOP;
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
