#pragma once

#include "entry.h"

#include <QByteArray>
#include <QString>

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace platform {

/// The system's status of an entry. An alias, because the function stat() hides the type stat.
using FileStatus = struct stat;

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
