#include "filewalk.h"

#include "namefilter.h"
#include "openfolder_unix.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <memory>
#include <system_error>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace platform {

namespace {

// Large enough that a folder of a thousand files needs one call, small enough to stay in the cache.
constexpr std::size_t bufferSize = 65'536;

QString reasonOf(int error)
{
    return QString::fromStdString(std::generic_category().message(error));
}

/// Walks one tree, without recursion. Folders still to be read are kept as paths, so that the
/// breadth of the tree is not bound by the number of files a process may hold open; of the way down
/// to the current folder the deepest part is held open, so that each is opened from its parent.
class Walk
{
public:
    Walk(const WalkOptions &options, const FileVisitor &visit)
        : m_options(options)
        , m_filter(options.nameFilters)
        , m_visit(visit)
        , m_buffer(std::make_unique_for_overwrite<char[]>(bufferSize))
    {
    }

    WalkReport run(const QString &root)
    {
        const UniqueFd rootFd = openFolder(QFile::encodeName(root));
        FileStatus status{};
        if (!rootFd.isValid() || ::fstat(rootFd.get(), &status) != 0) {
            if (errno != ENOENT)
                addFailure(root, errno);
            return std::move(m_report);
        }
        m_device = status.st_dev;
        m_rootFd = rootFd.get();
        m_rootPath = root.endsWith(u'/') ? root.chopped(1) : root;
        m_pending.push_back({{}, m_rootPath, 0});
        while (!m_pending.empty() && !isStopped()) {
            const Folder folder = std::move(m_pending.back());
            m_pending.pop_back();
            readFolder(folder);
        }
        return std::move(m_report);
    }

private:
    static constexpr std::size_t levelsHeldOpen = 64;

    struct Folder {
        QByteArray name; ///< as the file system spells it
        QString path;
        std::size_t depth; ///< 0 for the root
    };

    bool isStopped() const
    {
        return m_options.stopRequested && m_options.stopRequested->load(std::memory_order_relaxed);
    }

    void addFailure(const QString &path, int error)
    {
        if (++m_report.failureCount <= WalkReport::maximumFailures)
            m_report.failures.append({path, reasonOf(error)});
    }

    // Subfolders are read right after their folder and before its siblings, so the levels above the
    // current one are its ancestors.
    UniqueFd open(const Folder &folder)
    {
        if (folder.depth == 0)
            return openFolderBelow(m_rootFd, {}, Mounts::Stay);
        m_levels.resize(folder.depth);
        UniqueFd &parent = m_levels.back();
        if (!parent.isValid()) {
            const QString path = folder.path.left(folder.path.lastIndexOf(u'/'));
            const QString relative = path.mid(m_rootPath.size() + 1);
            parent = openFolderBelow(m_rootFd, QFile::encodeName(relative), Mounts::Stay);
        }
        return parent.isValid() ? openFolderBelow(parent.get(), folder.name, Mounts::Stay)
                                : UniqueFd();
    }

    void keepOpen(UniqueFd fd)
    {
        m_levels.push_back(std::move(fd));
        if (m_levels.size() > levelsHeldOpen)
            m_levels[m_levels.size() - levelsHeldOpen - 1].reset();
    }

    void readFolder(const Folder &folder)
    {
        UniqueFd fd = open(folder);
        FileStatus status{};
        if (!fd.isValid() || ::fstat(fd.get(), &status) != 0) {
            // Gone, turned into a link or a mount point since its parent was read: nothing of ours.
            if (errno != ENOENT && errno != ELOOP && errno != EXDEV && errno != ENOTDIR)
                addFailure(folder.path, errno);
            return;
        }
        if (status.st_dev != m_device)
            return;

        const std::size_t firstSubfolder = m_pending.size();
        while (!isStopped()) {
            const ssize_t length = ::getdents64(fd.get(), m_buffer.get(), bufferSize);
            if (length < 0)
                addFailure(folder.path, errno);
            if (length <= 0)
                break;
            for (ssize_t offset = 0; offset < length;) {
                if (isStopped())
                    return;
                const auto *entry = reinterpret_cast<const dirent64 *>(m_buffer.get() + offset);
                offset += entry->d_reclen;
                readEntry(fd.get(), folder, *entry);
            }
        }
        // The last one pushed is read first; reversed, subfolders come in the order of their
        // parent's listing.
        std::reverse(m_pending.begin() + static_cast<std::ptrdiff_t>(firstSubfolder),
                     m_pending.end());
        if (m_pending.size() > firstSubfolder)
            keepOpen(std::move(fd));
    }

    void readEntry(int folderFd, const Folder &folder, const dirent64 &entry)
    {
        // A leading dot is what hides an entry here; it also covers "." and "..".
        if (entry.d_name[0] == '.')
            return;
        unsigned char type = entry.d_type;
        if (type == DT_UNKNOWN)
            type = typeOf(folderFd, entry.d_name);
        if (type == DT_DIR) {
            if (m_options.recursive)
                addSubfolder(folder, entry.d_name);
        } else if (type == DT_REG || type == DT_LNK) {
            readFile(folderFd, folder, entry.d_name, type == DT_LNK);
        }
    }

    static unsigned char typeOf(int folderFd, const char *name)
    {
        FileStatus status{};
        if (::fstatat(folderFd, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return DT_UNKNOWN;
        return static_cast<unsigned char>(IFTODT(status.st_mode));
    }

    void addSubfolder(const Folder &folder, const char *name)
    {
        if (!QUtf8StringView(name).isValidUtf8())
            return;
        m_pending.push_back({name, joined(folder.path, QString::fromUtf8(name)), folder.depth + 1});
    }

    void readFile(int folderFd, const Folder &folder, const char *name, bool isLink)
    {
        const QUtf8StringView encoded(name);
        if (!encoded.isValidUtf8())
            return;
        QString decoded = encoded.toString();
        if (!m_filter.matches(decoded))
            return;
        struct statx status = {};
        const int flags = (isLink ? 0 : AT_SYMLINK_NOFOLLOW) | AT_NO_AUTOMOUNT;
        if (::statx(folderFd, name, flags, STATX_TYPE | STATX_SIZE, &status) != 0
            || !S_ISREG(status.stx_mode)) {
            return;
        }
        // A single file can be a mount point as well; a link's target may lie anywhere.
        if (!isLink && (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0)
            return;
        QString path = joined(folder.path, decoded);
        m_visit({std::move(decoded), std::move(path), static_cast<qint64>(status.stx_size)});
    }

    static QString joined(const QString &folder, const QString &name)
    {
        QString path;
        path.reserve(folder.size() + 1 + name.size());
        path += folder;
        path += u'/';
        path += name;
        return path;
    }

    const WalkOptions &m_options;
    const NameFilter m_filter;
    const FileVisitor &m_visit;
    const std::unique_ptr<char[]> m_buffer;
    int m_rootFd = -1;
    QString m_rootPath;
    std::vector<Folder> m_pending;
    std::vector<UniqueFd> m_levels; ///< the way down to the current folder, by depth
    dev_t m_device = 0;
    WalkReport m_report;
};

} // namespace

Entry inspect(const QString &path)
{
    const SplitPath split = splitPath(path);
    if (split.folder.isEmpty())
        return {};
    if (split.name.isEmpty())
        return {path == u'/' ? EntryKind::Folder : EntryKind::Missing, 0};
    const UniqueFd folder = openFolder(split.folder);
    if (!folder.isValid()) {
        if (errno == ELOOP)
            return {EntryKind::Link, 0};
        return {errno == ENOENT || errno == ENOTDIR ? EntryKind::Missing : EntryKind::Other, 0};
    }
    FileStatus status{};
    if (::fstatat(folder.get(), split.name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return {errno == ENOENT ? EntryKind::Missing : EntryKind::Other, 0};
    if (S_ISREG(status.st_mode))
        return {EntryKind::File, static_cast<qint64>(status.st_size)};
    if (S_ISDIR(status.st_mode))
        return {EntryKind::Folder, 0};
    return {S_ISLNK(status.st_mode) ? EntryKind::Link : EntryKind::Other, 0};
}

WalkReport walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit)
{
    return Walk(options, visit).run(root);
}

} // namespace platform
