#pragma once

#include "entry.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace platform {

/// The system's status of an entry. An alias, because the function stat() hides the type stat.
using FileStatus = struct stat;

/// The status of the file at @p path, where a link leads to. Nothing when there is none, with an
/// empty @p error, and when it cannot be examined; then @p error says why, for people. A link that
/// leads nowhere cannot be examined: what it stands for may be on a disk that is not there now.
[[nodiscard]] std::optional<FileStatus> examineFile(const QString &path, QString &error);

[[nodiscard]] inline EntryId idOf(const FileStatus &status)
{
    return {status.st_dev, status.st_ino};
}
/// The id of an open folder; unknown when the system does not tell it.
[[nodiscard]] EntryId idOf(int folder);

/// Owns a file descriptor and closes it; -1 is none. It can be moved, not copied.
class UniqueFd
{
public:
    UniqueFd() = default;
    explicit UniqueFd(int fd)
        : m_fd(fd)
    {
    }
    UniqueFd(UniqueFd &&other) noexcept
        : m_fd(std::exchange(other.m_fd, -1))
    {
    }
    UniqueFd &operator=(UniqueFd &&other) noexcept
    {
        if (this != &other) {
            reset();
            m_fd = std::exchange(other.m_fd, -1);
        }
        return *this;
    }
    UniqueFd(const UniqueFd &) = delete;
    UniqueFd &operator=(const UniqueFd &) = delete;
    ~UniqueFd() { reset(); }

    [[nodiscard]] int get() const { return m_fd; }
    [[nodiscard]] bool isValid() const { return m_fd >= 0; }
    /// Gives the descriptor to the caller.
    int release() { return std::exchange(m_fd, -1); }
    void reset()
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
    }

private:
    int m_fd = -1;
};

/// Whether mount points below the base are crossed.
enum class Mounts { Cross, Stay };

/// What an open folder is used for. PassThrough is enough to examine or remove entries by name. It
/// needs no permission to list the folder.
enum class Access { Read, PassThrough };

/// Opens the folder at @p relative below the open folder @p base. No symbolic link is followed.
///
/// An empty path opens @p base again. Paths may exceed the length limit of a system call. On
/// failure the result is invalid and errno tells why: ELOOP for a link in the path, ENOTDIR for an
/// entry that is no folder, EXDEV for a mount point below @p base with Mounts::Stay.
[[nodiscard]] UniqueFd openFolderBelow(int base, const QByteArray &relative, Mounts mounts,
                                       Access access = Access::Read);

/// The same for an absolute path. Mount points are crossed.
[[nodiscard]] UniqueFd openFolder(const QByteArray &path, Access access = Access::Read);

/// What the link at @p path contains. Empty on failure, with errno.
[[nodiscard]] QByteArray readLink(const QByteArray &path);

/// The names of all entries of the folder at @p path, sorted. Links in the path are followed. Names
/// that cannot be decoded are left out. On failure returns nothing, and @p error says why.
[[nodiscard]] std::optional<QStringList> namesInFolder(const QString &path, QString &error);

/// The absolute @p path without links, "." and "..". Empty when it is not absolute or there is no
/// such entry. It is also empty when the system cannot tell where it leads; then @p error says why.
[[nodiscard]] QString pathWithoutLinks(const QString &path, QString &error);

/// The same. Behind a folder that this user may not enter, the names are kept as they are spelled.
[[nodiscard]] QString reachablePath(const QString &path, QString &error);

/// Whether this user lacks the right @p mode, as for access(), at a path.
[[nodiscard]] bool isRefused(const QByteArray &path, int mode);

/// Whether an errno means that there is nothing at a path, or nothing that counts: no such entry,
/// no folder on the way, or a link there.
[[nodiscard]] bool meansMissing(int error);

/// The system's text for an errno, for people.
[[nodiscard]] QString reasonOf(int error);

/// An absolute path split into its folder and the name of its last entry.
struct SplitPath {
    QByteArray folder; ///< the root "/", or a path without a slash at the end
    /// Empty when the path names no entry: it is relative, is the root, or contains "." or "..".
    QByteArray name;
};
[[nodiscard]] SplitPath splitPath(const QString &path);

} // namespace platform
