#include "walker_p.h"

#include "unix/dosattributes.h"
#include "unix/folderreader.h"
#include "unix/openfolder.h"
#include "unix/visitedfolders.h"

#include <QFile>

#include <cerrno>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/sysmacros.h>

namespace platform {

namespace {

using SharedFd = std::shared_ptr<const UniqueFd>;

/// The root of the walk or a folder behind a link. Below it no link is followed.
struct Base {
    SharedFd fd;
    QString path;
};

/// A folder with subfolders that are still to be read.
struct Level {
    std::shared_ptr<const Base> base;
    QString path;
    dev_t device;
    SharedFd fd; ///< only OpenLevels reads and writes it
};

/// A subfolder that waits in the queue.
struct Folder {
    QString path;
    std::shared_ptr<Level> parent;
};

/// A link to a folder that waits in the queue.
struct Link {
    QString path;
    EntryId target;
};

/// Keeps the levels that were entered last open, so that each folder is opened from its parent. It
/// limits their number: a tree can be deeper than the number of files that a process may open. The
/// walk owns it, and every walker's thread uses it.
class OpenLevels final
{
    Q_DISABLE_COPY_MOVE(OpenLevels)
public:
    OpenLevels() = default;

    void keep(const std::shared_ptr<Level> &level, const SharedFd &fd)
    {
        const std::lock_guard lock(m_mutex);
        level->fd = fd;
        while (!m_levels.empty() && m_levels.back().expired())
            m_levels.pop_back();
        m_levels.push_back(level);
        if (m_levels.size() <= maximum)
            return;
        if (const std::shared_ptr<Level> oldest = m_levels.front().lock())
            oldest->fd.reset();
        m_levels.pop_front();
    }

    /// Null when the level is not kept open.
    [[nodiscard]] SharedFd fdOf(const Level &level)
    {
        const std::lock_guard lock(m_mutex);
        return level.fd;
    }

private:
    static constexpr std::size_t maximum = 64;

    std::mutex m_mutex;
    std::deque<std::weak_ptr<Level>> m_levels;
};

/// What all walkers of one walk share on Linux. The members are safe to use from every walker's
/// thread; the device is set before the walkers start.
struct Shared {
    const WalkOptions &options;
    SharedReport &report;
    OpenLevels levels = {};
    VisitedFolders visited = {};
    const DosAttributes attributes = {};
    dev_t device = 0; ///< the device of the root

    [[nodiscard]] bool isEverywhere() const { return options.reach == Reach::Everywhere; }
};

/// The folder that a walker reads. The walker owns it and uses it on its thread.
class OpenFolder
{
public:
    OpenFolder(Shared &shared, const QString &path, const SharedFd &fd, const EntryId &id,
               const std::shared_ptr<const Base> &base)
        : m_shared(shared)
        , m_path(path)
        , m_fd(fd)
        , m_id(id)
        , m_base(base)
        , m_canHoldHidden(shared.attributes.canApplyIn(path))
    {
    }

    const QString &path() const { return m_path; }
    EntryId id() const { return m_id; }
    int source() const { return m_fd->get(); }

    static QString failureText(int error) { return error != 0 ? reasonOf(error) : QString(); }
    static bool shouldShareSubfolders(const FolderReader &reader, std::size_t)
    {
        return reader.isBufferConsumed();
    }

    static QUtf8StringView nameOf(const dirent64 &entry) { return {entry.d_name}; }

    WalkedKind kindOf(const dirent64 &entry, const FolderReader &reader) const
    {
        // A leading dot hides an entry.
        if (entry.d_name[0] == '.' || !nameOf(entry).isValidUtf8())
            return WalkedKind::Nothing;
        const unsigned char type = reader.typeOf(entry);
        if (type == DT_UNKNOWN)
            addFailure(entry, errno);
        return kindOf(type);
    }

    bool isShown(const dirent64 &entry) const
    {
        if (!m_canHoldHidden)
            return true;
        const DosAttributes::Answer answer = DosAttributes::isHidden(m_fd->get(), entry.d_name);
        if (answer.error != 0)
            addFailure(entry, answer.error);
        return answer.error == 0 && !answer.isHidden;
    }

    Folder subfolderAt(const dirent64 &entry)
    {
        if (!m_level) {
            m_level = std::make_shared<Level>(Level{m_base, m_path, m_id.volume, nullptr});
            m_shared.levels.keep(m_level, m_fd);
        }
        return {joinedPath(m_path, nameOf(entry).toString()), m_level};
    }

    std::optional<VisitedFile> fileAt(const dirent64 &entry, bool isLink,
                                      TreeVisitor::Wanted wanted) const
    {
        VisitedFile file;
        file.name = nameOf(entry);
        if (!isLink && wanted == TreeVisitor::Wanted::Names)
            return file;
        struct statx status = {};
        if (!readStatus(entry, AT_SYMLINK_NOFOLLOW, status)) {
            addFailure(entry, errno);
            return {};
        }
        // A single file can be a mount point, too.
        const bool isMounted = (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
        if (!isLink && (!S_ISREG(status.stx_mode) || (isMounted && !m_shared.isEverywhere())))
            return {};
        file.size = static_cast<qint64>(status.stx_size);
        file.modified = status.stx_mtime.tv_sec * 1000 + status.stx_mtime.tv_nsec / 1'000'000;
        file.isLink = S_ISLNK(status.stx_mode);
        file.number = status.stx_ino;
        return file;
    }

    /// The target of a link.
    struct Target {
        WalkedKind kind = WalkedKind::Nothing;
        EntryId id;
    };

    Target targetOf(const dirent64 &link) const
    {
        struct statx status = {};
        if (!readStatus(link, 0, status)) {
            addFailure(link, errno);
            return {};
        }
        const EntryId id{makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino};
        const WalkedKind kind = kindOf(IFTODT(status.stx_mode));
        if (kind == WalkedKind::Folder && m_shared.visited.contains(id))
            return {};
        return {kind, id};
    }

    Link linkAt(const dirent64 &link, const Target &target) const
    {
        return {joinedPath(m_path, nameOf(link).toString()), target.id};
    }

private:
    static WalkedKind kindOf(unsigned type)
    {
        switch (type) {
        case DT_REG:
            return WalkedKind::File;
        case DT_DIR:
            return WalkedKind::Folder;
        case DT_LNK:
            return WalkedKind::Link;
        default:
            return WalkedKind::Nothing;
        }
    }

    // An entry that was removed after it was listed is no failure, nor is a link that leads
    // nowhere.
    void addFailure(const dirent64 &entry, int error) const
    {
        if (!meansMissing(error))
            m_shared.report.addFailure(joinedPath(m_path, nameOf(entry).toString()),
                                       reasonOf(error));
    }

    bool readStatus(const dirent64 &entry, int flags, struct statx &status) const
    {
        constexpr unsigned mask = STATX_TYPE | STATX_INO | STATX_SIZE | STATX_MTIME;
        return ::statx(m_fd->get(), entry.d_name, flags | AT_NO_AUTOMOUNT, mask, &status) == 0;
    }

    Shared &m_shared;
    QString m_path;
    SharedFd m_fd;
    EntryId m_id;
    std::shared_ptr<const Base> m_base;
    std::shared_ptr<Level> m_level; ///< made when the first subfolder is found
    bool m_canHoldHidden; ///< entries without a leading dot can be hidden by their DOS attributes
};

// Whether the folder belongs to a file system that shows the kernel's state as files. Such files
// take no room on a disk. One of them claims to be larger than all disks together.
bool isKernelFileSystem(int fd)
{
    struct statfs system = {};
    if (::fstatfs(fd, &system) != 0)
        return false;
    switch (static_cast<unsigned long>(system.f_type)) {
    case BINFMTFS_MAGIC:
    case BPF_FS_MAGIC:
    case CGROUP2_SUPER_MAGIC:
    case CGROUP_SUPER_MAGIC:
    case DEBUGFS_MAGIC:
    case DEVPTS_SUPER_MAGIC:
    case EFIVARFS_MAGIC:
    case NSFS_MAGIC:
    case PROC_SUPER_MAGIC:
    case PSTOREFS_MAGIC:
    case SECURITYFS_MAGIC:
    case SELINUX_MAGIC:
    case SYSFS_MAGIC:
    case TRACEFS_MAGIC:
        return true;
    default:
        return false;
    }
}

/// The link-free path of an open folder; empty when the system does not tell it.
QString realPath(int fd)
{
    const QByteArray path = readLink("/proc/self/fd/" + QByteArray::number(fd));
    return QUtf8StringView(path).isValidUtf8() ? QFile::decodeName(path) : QString();
}

/// The system's part of a walk, see Walker. Lives in the Walk; all walkers' threads use it. The
/// queue holds paths and no open folders, because a process may open only a limited number of
/// files.
class UnixWalk final
{
    Q_DISABLE_COPY_MOVE(UnixWalk)
public:
    using Folder = platform::Folder;
    using Link = platform::Link;
    using OpenFolder = platform::OpenFolder;
    using Reader = FolderReader;

    UnixWalk(const WalkOptions &options, SharedReport &report)
        : m_shared{options, report}
    {
    }

    std::optional<OpenFolder> openRoot(const QString &path)
    {
        const QString root = path.size() > 1 && path.endsWith(u'/') ? path.chopped(1) : path;
        const bool isFollowed = m_shared.isEverywhere() && root.startsWith(u'/');
        const auto fd = std::make_shared<const UniqueFd>(
            isFollowed ? openFollowed(root) : openFolder(QFile::encodeName(root)));
        FileStatus status{};
        if (!fd->isValid() || ::fstat(fd->get(), &status) != 0) {
            if (errno != ENOENT)
                addFailure(root, errno);
            return {};
        }
        m_shared.device = status.st_dev;
        return baseAt(root, fd, status);
    }

    std::optional<OpenFolder> open(const Link &link)
    {
        if (m_shared.visited.contains(link.target))
            return {};
        const auto fd = std::make_shared<const UniqueFd>(openFollowed(link.path));
        FileStatus status{};
        if (!fd->isValid() || ::fstat(fd->get(), &status) != 0) {
            addFailureUnlessChanged(link.path, errno);
            return {};
        }
        if (status.st_dev != m_shared.device && isKernelFileSystem(fd->get()))
            return {};
        return baseAt(link.path, fd, status);
    }

    std::optional<OpenFolder> open(const Folder &folder)
    {
        const auto fd = std::make_shared<const UniqueFd>(openFromParent(folder));
        FileStatus status{};
        if (!fd->isValid() || ::fstat(fd->get(), &status) != 0) {
            addFailureUnlessChanged(folder.path, errno);
            return {};
        }
        const EntryId id = idOf(status);
        if (m_shared.isEverywhere()) {
            const bool isMounted = status.st_dev != folder.parent->device;
            if ((isMounted && isKernelFileSystem(fd->get())) || !m_shared.visited.insert(id))
                return {};
        } else if (status.st_dev != m_shared.device) {
            return {};
        }
        return OpenFolder(m_shared, folder.path, fd, id, folder.parent->base);
    }

private:
    Mounts mounts() const { return m_shared.isEverywhere() ? Mounts::Cross : Mounts::Stay; }

    void addFailure(const QString &path, int error)
    {
        m_shared.report.addFailure(path, reasonOf(error));
    }

    // An entry that was removed, or replaced by a link or a mount point, after its parent was read
    // is no failure.
    void addFailureUnlessChanged(const QString &path, int error)
    {
        if (!meansMissing(error) && error != EXDEV)
            addFailure(path, error);
    }

    static UniqueFd openFollowed(const QString &path)
    {
        return UniqueFd(
            ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }

    // Makes the root, or a folder behind a link, a new base.
    std::optional<OpenFolder> baseAt(const QString &path, const SharedFd &fd,
                                     const FileStatus &status)
    {
        if (m_shared.isEverywhere()) {
            if (!m_shared.visited.insert(idOf(status)))
                return {};
            if (const QString target = realPath(fd->get()); !target.isEmpty() && target != path)
                m_shared.report.addFollowed({path, target});
        }
        return OpenFolder(m_shared, path, fd, idOf(status),
                          std::make_shared<const Base>(Base{fd, path}));
    }

    // Opens the parent from the base if it is not open any more.
    UniqueFd openFromParent(const Folder &folder)
    {
        Level &parent = *folder.parent;
        SharedFd fd = m_shared.levels.fdOf(parent);
        if (!fd) {
            const QString &base = parent.base->path;
            const QString relative =
                parent.path == base ? QString() : parent.path.mid(joinedPath(base, {}).size());
            fd = std::make_shared<const UniqueFd>(
                openFolderBelow(parent.base->fd->get(), QFile::encodeName(relative), mounts()));
            if (!fd->isValid())
                return {};
            m_shared.levels.keep(folder.parent, fd);
        }
        const QString name = folder.path.mid(joinedPath(parent.path, {}).size());
        return openFolderBelow(fd->get(), QFile::encodeName(name), mounts());
    }

    Shared m_shared;
};

} // namespace

EntryId WalkedFolder::id() const
{
    return m_id;
}

WalkReport walkTree(const QString &root, const WalkOptions &options,
                    const QList<TreeVisitor *> &visitors)
{
    return walkTreeWith<UnixWalk>(root, options, visitors);
}

} // namespace platform
