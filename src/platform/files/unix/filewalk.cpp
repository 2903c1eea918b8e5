#include "filewalk_p.h"

#include "namefilter.h"
#include "unix/dosattributes.h"
#include "unix/folderreader.h"
#include "unix/openfolder.h"

#include <QFile>
#include <QSet>

#include <cerrno>
#include <climits>
#include <deque>
#include <memory>
#include <thread>
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

/// The root of the walk or a folder behind a link: from here down no link is passed.
struct Base {
    SharedFd fd;
    QString path;
};

/// A folder with subfolders still to be read.
struct Level {
    std::shared_ptr<const Base> base;
    QString path;
    dev_t device;
    SharedFd fd; ///< belongs to OpenLevels
};

struct Folder {
    QString path;
    std::shared_ptr<Level> parent;
};

struct Link {
    QString path;
    EntryId target;
};

/// Keeps the levels open that were entered last, so that each folder is opened from its parent;
/// not all of them, since a tree may be deeper than the number of files that a process may hold
/// open. Any walker's thread.
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

/// The folders that have been read. Any walker's thread.
class VisitedFolders final
{
    Q_DISABLE_COPY_MOVE(VisitedFolders)
public:
    VisitedFolders() = default;

    /// False when @p id was there before.
    [[nodiscard]] bool insert(const EntryId &id)
    {
        const std::lock_guard lock(m_mutex);
        const qsizetype before = m_ids.size();
        m_ids.insert(id);
        return m_ids.size() > before;
    }

    [[nodiscard]] bool contains(const EntryId &id)
    {
        const std::lock_guard lock(m_mutex);
        return m_ids.contains(id);
    }

private:
    std::mutex m_mutex;
    QSet<EntryId> m_ids;
};

/// What the walkers of one walk share.
struct Shared {
    explicit Shared(const WalkOptions &walkOptions)
        : options(walkOptions)
        , queue(walkOptions.stopRequested)
    {
    }

    const WalkOptions &options;
    WalkQueue<Folder, Link> queue;
    OpenLevels levels;
    VisitedFolders visited;
    SharedReport report;
    const DosAttributes attributes;
    dev_t device = 0; ///< of the root
    bool hasOneWalker = true;
};

// What the kernel tells of itself in the form of files takes no room on any disk; one such file
// claims to be larger than all of them together.
bool holdsNoFiles(int fd)
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

/// The path of an open folder, whatever way led to it; empty when the system does not tell.
QString realPath(int fd)
{
    QByteArray buffer(PATH_MAX, Qt::Uninitialized);
    const QByteArray entry = "/proc/self/fd/" + QByteArray::number(fd);
    const ssize_t length = ::readlink(entry.constData(), buffer.data(), PATH_MAX);
    if (length <= 0 || length == PATH_MAX)
        return {};
    buffer.truncate(length);
    return QUtf8StringView(buffer).isValidUtf8() ? QFile::decodeName(buffer) : QString();
}

/// One of the walkers of a walk, without recursion. Folders still to be read are kept as paths, so
/// that the breadth of the tree is not bound by the number of files a process may hold open.
class Walker
{
public:
    Walker(Shared &shared, TreeVisitor &visitor)
        : m_shared(shared)
        , m_filter(shared.options.nameFilters)
        , m_visitor(visitor)
        , m_reader(shared.options.stopRequested)
    {
    }

    void run()
    {
        m_shared.queue.process([this](auto work) { read(work); });
    }

    /// Opens the root of the walk; nothing for one that cannot be walked.
    [[nodiscard]] SharedFd openRoot(const QString &root)
    {
        const bool isFollowed = isEverywhere() && root.startsWith(u'/');
        auto fd = std::make_shared<const UniqueFd>(
            isFollowed ? openFollowed(root) : openFolder(QFile::encodeName(root)));
        FileStatus status{};
        if (!fd->isValid() || ::fstat(fd->get(), &status) != 0) {
            if (errno != ENOENT)
                addFailure(root, errno);
            return nullptr;
        }
        m_shared.device = status.st_dev;
        return fd;
    }

    void readRoot(const QString &root, const SharedFd &fd)
    {
        FileStatus status{};
        if (::fstat(fd->get(), &status) == 0)
            readBase(root, fd, status);
    }

private:
    bool isEverywhere() const { return m_shared.options.reach == Reach::Everywhere; }
    Mounts mounts() const { return isEverywhere() ? Mounts::Cross : Mounts::Stay; }

    void addFailure(const QString &path, int error)
    {
        m_shared.report.addFailure(path, reasonOf(error));
    }

    // Gone, turned into a link or a mount point since its parent was read: nothing of ours.
    void addFailureUnlessChanged(const QString &path, int error)
    {
        if (error != ENOENT && error != ELOOP && error != EXDEV && error != ENOTDIR)
            addFailure(path, error);
    }

    static UniqueFd openFollowed(const QString &path)
    {
        return UniqueFd(
            ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }

    void read(const Link &link)
    {
        if (m_shared.visited.contains(link.target))
            return;
        const auto fd = std::make_shared<const UniqueFd>(openFollowed(link.path));
        FileStatus status{};
        if (!fd->isValid() || ::fstat(fd->get(), &status) != 0)
            addFailureUnlessChanged(link.path, errno);
        else if (status.st_dev == m_shared.device || !holdsNoFiles(fd->get()))
            readBase(link.path, fd, status);
    }

    void readBase(const QString &path, const SharedFd &fd, const FileStatus &status)
    {
        if (isEverywhere()) {
            if (!m_shared.visited.insert(idOf(status)))
                return;
            if (const QString target = realPath(fd->get()); !target.isEmpty() && target != path)
                m_shared.report.addFollowed({path, target});
        }
        readFolder(path, std::make_shared<const Base>(Base{fd, path}), fd, idOf(status));
    }

    void read(const Folder &folder)
    {
        const auto fd = std::make_shared<const UniqueFd>(open(folder));
        FileStatus status{};
        if (!fd->isValid() || ::fstat(fd->get(), &status) != 0) {
            addFailureUnlessChanged(folder.path, errno);
            return;
        }
        if (isEverywhere()) {
            const bool isMounted = status.st_dev != folder.parent->device;
            if ((isMounted && holdsNoFiles(fd->get())) || !m_shared.visited.insert(idOf(status)))
                return;
        } else if (status.st_dev != m_shared.device) {
            return;
        }
        readFolder(folder.path, folder.parent->base, fd, idOf(status));
    }

    // From its parent, which is opened from the base when it is not open any more.
    UniqueFd open(const Folder &folder)
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

    void readFolder(const QString &path, const std::shared_ptr<const Base> &base,
                    const SharedFd &fd, const EntryId &id)
    {
        m_folder = WalkedFolder(path, id);
        const bool isAsked = m_visitor.enterFolder(path) == TreeVisitor::Wanted::SizesAndTimes;
        m_mayBeHidden = m_shared.attributes.mayBeIn(path);
        std::shared_ptr<Level> level;
        m_reader.begin(fd->get());
        while (const dirent64 *entry = m_reader.next()) {
            readEntry(fd->get(), path, *entry, isAsked);
            if (!m_subfolders.empty() && !m_subfolders.back().parent) {
                if (!level) {
                    level = std::make_shared<Level>(Level{base, path, id.volume, nullptr});
                    m_shared.levels.keep(level, fd);
                }
                m_subfolders.back().parent = level;
            }
            if (!m_shared.hasOneWalker && m_reader.isBufferRead())
                m_shared.queue.add(m_subfolders); // somebody may be waiting for them
        }
        if (m_reader.error() != 0)
            addFailure(path, m_reader.error());
        m_shared.queue.add(m_subfolders);
    }

    void readEntry(int folderFd, const QString &folder, const dirent64 &entry, bool isAsked)
    {
        // A leading dot is what hides an entry here.
        if (entry.d_name[0] == '.')
            return;
        const QUtf8StringView name(entry.d_name);
        const unsigned char type = m_reader.typeOf(entry);
        if (type == DT_REG) {
            if (name.isValidUtf8() && isMatch(name) && isShown(folderFd, entry.d_name))
                readFile(folderFd, entry.d_name, isAsked);
        } else if (type == DT_DIR) {
            if (m_shared.options.recursive && name.isValidUtf8() && isShown(folderFd, entry.d_name))
                m_subfolders.push_back({joinedPath(folder, name.toString()), nullptr});
        } else if (type == DT_LNK) {
            if (name.isValidUtf8() && (isEverywhere() || isMatch(name))
                && isShown(folderFd, entry.d_name))
                readLink(folderFd, folder, entry.d_name);
        }
    }

    bool isShown(int folderFd, const char *name) const
    {
        return !m_mayBeHidden || !DosAttributes::areHidden(folderFd, name);
    }

    bool isMatch(QUtf8StringView name) const
    {
        return m_filter.matchesEverything() || m_filter.matches(name.toString());
    }

    static constexpr unsigned fileMask = STATX_TYPE | STATX_INO | STATX_SIZE | STATX_MTIME;

    void readFile(int folderFd, const char *name, bool isAsked)
    {
        if (!isAsked) {
            m_visitor.meetFile({QUtf8StringView(name), 0, 0, false, 0, &m_folder});
            return;
        }
        struct statx status = {};
        constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
        if (::statx(folderFd, name, flags, fileMask, &status) != 0 || !S_ISREG(status.stx_mode))
            return;
        // A single file can be a mount point as well.
        if (!isEverywhere() && (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0)
            return;
        meet(name, status);
    }

    void readLink(int folderFd, const QString &folder, const char *name)
    {
        struct statx status = {};
        if (::statx(folderFd, name, AT_NO_AUTOMOUNT, fileMask, &status) != 0)
            return;
        if (S_ISREG(status.stx_mode)) {
            // What would go is the link.
            if (isMatch(name)
                && ::statx(folderFd, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, fileMask, &status)
                    == 0)
                meet(name, status);
        } else if (S_ISDIR(status.stx_mode) && isEverywhere() && m_shared.options.recursive) {
            const EntryId target{makedev(status.stx_dev_major, status.stx_dev_minor),
                                 status.stx_ino};
            if (!m_shared.visited.contains(target))
                m_shared.queue.addLink({joinedPath(folder, QString::fromUtf8(name)), target});
        }
    }

    void meet(const char *name, const struct statx &status)
    {
        const qint64 modified =
            qint64(status.stx_mtime.tv_sec) * 1000 + qint64(status.stx_mtime.tv_nsec) / 1'000'000;
        m_visitor.meetFile({QUtf8StringView(name), static_cast<qint64>(status.stx_size), modified,
                            S_ISLNK(status.stx_mode), status.stx_ino, &m_folder});
    }

    Shared &m_shared;
    const NameFilter m_filter;
    TreeVisitor &m_visitor;
    FolderReader m_reader;
    std::vector<Folder> m_subfolders; ///< of the folder that is being read
    WalkedFolder m_folder; ///< that is being read
    bool m_mayBeHidden = false; ///< what is in it, though it has no dot in front
};

} // namespace

EntryId WalkedFolder::id() const
{
    return m_id;
}

WalkReport walkTree(const QString &root, const WalkOptions &options,
                    const QList<TreeVisitor *> &visitors)
{
    Shared shared(options);
    shared.hasOneWalker = visitors.size() == 1;
    Walker first(shared, *visitors.constFirst());
    const QString path = root.size() > 1 && root.endsWith(u'/') ? root.chopped(1) : root;
    if (const SharedFd fd = first.openRoot(path)) {
        std::vector<std::jthread> others;
        shared.queue.begin();
        for (TreeVisitor *visitor : visitors.sliced(1))
            others.emplace_back([&shared, visitor] { Walker(shared, *visitor).run(); });
        first.readRoot(path, fd);
        shared.queue.end();
        first.run();
    }
    return shared.report.take();
}

} // namespace platform
