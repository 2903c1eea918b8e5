#pragma once

#include "entry.h"

#include <QByteArray>
#include <QString>

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace platform {

/// What the system tells of an entry; the function of the same name hides its type.
using FileStatus = struct stat;

[[nodiscard]] inline EntryId idOf(const FileStatus &status)
{
    return {status.st_dev, status.st_ino};
}
/// Of an open folder; unknown when the system does not tell.
[[nodiscard]] EntryId idOf(int folder);

/// Owns a file descriptor; -1 is none.
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

enum class Mounts { Cross, Stay };

/// What an open folder is for. To look at what is in it by name, or to remove that, it needs only
/// be passed through, for which nobody has to be allowed to list it.
enum class Access { Read, PassThrough };

/// Opens the folder at @p relative below the open folder @p base, never through a symbolic link.
///
/// An empty path opens @p base anew. Paths may be longer than the system's limit for one call. On
/// failure the result is invalid and errno tells why: ELOOP for a link on the way, ENOTDIR for
/// something that is no folder, EXDEV for a mount point below @p base when told to stay.
[[nodiscard]] UniqueFd openFolderBelow(int base, const QByteArray &relative, Mounts mounts,
                                       Access access = Access::Read);

/// The same for an absolute path, from the root of the file system down; mount points are crossed.
[[nodiscard]] UniqueFd openFolder(const QByteArray &path, Access access = Access::Read);

/// What the system says of an errno, for people.
[[nodiscard]] QString reasonOf(int error);

/// An absolute path split into its folder and the name of its last entry.
struct SplitPath {
    QByteArray folder; ///< "/" or without a slash at the end
    /// Empty when the path names no entry: relative, the root, or with "." or "..".
    QByteArray name;
};
[[nodiscard]] SplitPath splitPath(const QString &path);

} // namespace platform
