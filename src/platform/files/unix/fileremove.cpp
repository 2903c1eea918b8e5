#include "fileremove.h"

#include "expectedfolders_p.h"
#include "unix/folderreader.h"
#include "unix/openfolder.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <cerrno>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

using Status = FileRemover::Status;
using Outcome = FileRemover::Outcome;

Outcome failure(int error, bool wasFolder = false)
{
    return {Status::Failed, wasFolder, reasonOf(error)};
}

bool isFolderAt(int folder, const char *name)
{
    FileStatus status{};
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

/// Whether the entry @p name is still the file that was listed.
bool isListedFile(int folder, const char *name, const FileRemover::ListedFile &listed)
{
    FileStatus status{};
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return true; // the removal reports the error
    return S_ISLNK(status.st_mode) == listed.isLink && (listed.isLink || S_ISREG(status.st_mode))
        && (listed.number == 0 || listed.number == status.st_ino);
}

/// Checks that an open folder is still at its path. An open folder stays usable when somebody moves
/// it, and its entries would be removed at the new place. The check is repeated after a number of
/// entries and after a short time. A FileRemover owns one for the folder of its entries, a
/// FolderRemoval one for its levels.
class PlaceGuard
{
public:
    /// To be called before each removal from the open @p folder. @p path returns the path of that
    /// folder.
    template<class Path>
    [[nodiscard]] bool isInPlace(int folder, const Path &path)
    {
        if (--m_entriesUntilCheck >= 0 && now() - m_lastCheck < recheckInterval)
            return true;
        restartInterval();
        const UniqueFd there = openFolder(path(), Access::PassThrough);
        return there.isValid() && idOf(folder) == idOf(there.get());
    }
    /// Tells that the folder was opened by its path just now.
    void restartInterval()
    {
        m_entriesUntilCheck = entriesPerCheck - 1;
        m_lastCheck = now();
    }

private:
    static constexpr int entriesPerCheck = 32;
    static constexpr qint64 recheckInterval = 5'000'000; // nanoseconds

    static qint64 now()
    {
        timespec time{};
        ::clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
        return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
    }

    int m_entriesUntilCheck = 0;
    qint64 m_lastCheck = 0;
};

/// Empties and removes one folder, level by level without recursion. Lives on the stack of
/// FileRemover::remove(). Only the deepest levels are held open. A higher level is opened again
/// when the work returns to it, without following links, from the removed folder down.
class FolderRemoval
{
public:
    /// Removes the folder @p name of the open folder @p parent, whose path is @p parentPath.
    FolderRemoval(ExpectedFolders &folders, int parent, const QByteArray &parentPath,
                  const QByteArray &name, const std::atomic_bool *stopRequested)
        : m_folders(folders)
        , m_parent(parent)
        , m_parentPath(parentPath)
        , m_name(name)
        , m_stopRequested(stopRequested)
        , m_reader(stopRequested)
    {
    }

    Outcome run()
    {
        const Outcome outcome = removeAll();
        if (outcome.status != FileRemover::Status::Removed) {
            restoreMode(m_top);
            for (const Level &level : m_levels)
                restoreMode(level);
        }
        return outcome;
    }

private:
    static constexpr std::size_t maximumOpenLevels = 64;

    /// A folder on the way down to the current one.
    struct Level {
        UniqueFd fd;
        EntryId id;
        QByteArray name; ///< its name in the parent level; empty for the removed folder itself
        std::vector<QByteArray> subfolders; ///< still to be removed
        std::optional<mode_t> mode; ///< its permissions before they were changed
    };

    Outcome removeAll()
    {
        m_root = openFolderBelow(m_parent, m_name, Mounts::Stay);
        if (!m_root.isValid())
            return failure(errno, true);
        const QString path = QFile::decodeName(rootPath());
        if (m_folders.isRemoved(path))
            return {Status::NotFound, false, {}};
        const EntryId id = idOf(m_root.get());
        if (!m_folders.accept(path, id))
            return {Status::Replaced, true, {}};
        if (!enter(openFolderBelow(m_root.get(), {}, Mounts::Stay), {}))
            return failure(m_error, true);
        while (!m_levels.empty() && !isStopped() && !m_wasMoved)
            step();
        if (isStopped())
            return failure(ECANCELED, true);
        if (m_wasMoved || m_hasReplacedFolder)
            return {Status::Replaced, true, {}};
        if (m_error == 0 && ::unlinkat(m_parent, m_name.constData(), AT_REMOVEDIR) != 0)
            keepFirstError(errno);
        if (m_error == 0)
            m_folders.noteRemoved(id);
        return m_error == 0 ? Outcome{Status::Removed, true, {}} : failure(m_error, true);
    }

    bool isStopped() const { return m_stopRequested && m_stopRequested->load(); }

    void keepFirstError(int error)
    {
        if (m_error == 0)
            m_error = error;
    }

    // To be called before each removal in the level. Once a folder was moved nothing else is
    // removed.
    bool isInPlace(const Level &level)
    {
        if (m_wasMoved || m_guard.isInPlace(level.fd.get(), [&] { return pathOf(level); }))
            return !m_wasMoved;
        m_wasMoved = true;
        return false;
    }

    QByteArray rootPath() const
    {
        return (m_parentPath == "/" ? QByteArray() : m_parentPath) + '/' + m_name;
    }

    // The path of the deepest level, or of a level that is about to be the deepest.
    QByteArray pathOf(const Level &level) const
    {
        QByteArray path = rootPath();
        for (std::size_t i = 1; i < m_levels.size(); ++i)
            path += '/' + m_levels[i].name;
        const bool isOnStack = !m_levels.empty() && &m_levels.back() == &level;
        return isOnStack || level.name.isEmpty() ? path : path + '/' + level.name;
    }

    // Removes everything in the folder except its subfolders. Then pushes the folder with its
    // subfolders on the stack.
    bool enter(UniqueFd fd, const QByteArray &name)
    {
        if (!fd.isValid()) {
            keepFirstError(errno);
            return false;
        }
        Level level{std::move(fd), {}, name, {}, {}};
        level.id = idOf(level.fd.get());
        if (!name.isEmpty() && m_folders.hasListedFolders()
            && m_folders.differsFromListed(QFile::decodeName(pathOf(level)), level.id)) {
            m_hasReplacedFolder = true;
            return false;
        }
        if (!removeEntries(level)) {
            restoreMode(level);
            return false;
        }
        m_levels.push_back(std::move(level));
        if (m_levels.size() > maximumOpenLevels)
            m_levels[m_levels.size() - maximumOpenLevels - 1].fd.reset();
        return true;
    }

    bool removeEntries(Level &level)
    {
        m_reader.begin(level.fd.get());
        while (const dirent64 *entry = m_wasMoved ? nullptr : m_reader.next())
            removeEntry(level, *entry);
        if (m_reader.error() != 0)
            keepFirstError(m_reader.error());
        return m_reader.error() == 0;
    }

    void removeEntry(Level &level, const dirent64 &entry)
    {
        const int fd = level.fd.get();
        if (m_reader.typeOf(entry) == DT_DIR) {
            level.subfolders.emplace_back(entry.d_name);
        } else if (isInPlace(level) && ::unlinkat(fd, entry.d_name, 0) != 0 && errno != ENOENT) {
            // When a whole folder is removed, a read-only folder inside does not keep its entries.
            const int error = errno;
            if (error != EACCES || !makeWritable(level) || ::unlinkat(fd, entry.d_name, 0) != 0)
                keepFirstError(error);
        }
    }

    static bool makeWritable(Level &level)
    {
        FileStatus status{};
        if (::fstat(level.fd.get(), &status) != 0 || (status.st_mode & S_IWUSR) != 0
            || ::fchmod(level.fd.get(), (status.st_mode & 07777) | S_IRWXU) != 0)
            return false;
        level.mode = status.st_mode & 07777;
        return true;
    }

    // A folder that stays keeps its permissions.
    static void restoreMode(const Level &level)
    {
        if (level.mode && level.fd.isValid())
            ::fchmod(level.fd.get(), *level.mode);
    }

    void step()
    {
        Level &level = m_levels.back();
        if (!level.fd.isValid() && !reopen()) {
            m_levels.pop_back();
            return;
        }
        if (level.subfolders.empty()) {
            leaveLevel();
            return;
        }
        const QByteArray name = std::move(level.subfolders.back());
        level.subfolders.pop_back();
        const int fd = level.fd.get();
        UniqueFd subfolder = openFolderBelow(fd, name, Mounts::Stay);
        if (!subfolder.isValid() && (errno == ELOOP || errno == ENOTDIR)) {
            // The subfolder was replaced by something else after its parent was read. That is
            // removed as what it is.
            if (isInPlace(level) && ::unlinkat(fd, name.constData(), 0) != 0 && errno != ENOENT)
                keepFirstError(errno);
            return;
        }
        if (!subfolder.isValid() && errno == ENOENT)
            return; // another program has removed it
        enter(std::move(subfolder), name);
    }

    // The deepest level is empty. Returns to its parent and removes it from there.
    void leaveLevel()
    {
        Level left = std::move(m_levels.back());
        m_levels.pop_back();
        if (m_levels.empty())
            m_top = std::move(left);
        else if (!removeEmpty(left, m_levels.back()))
            restoreMode(left);
    }

    bool removeEmpty(const Level &level, Level &parent)
    {
        if ((!parent.fd.isValid() && !reopen()) || !isInPlace(parent))
            return false;
        const int fd = parent.fd.get();
        int error = 0;
        if (::unlinkat(fd, level.name.constData(), AT_REMOVEDIR) != 0)
            error = errno;
        if (error == EACCES && makeWritable(parent)
            && ::unlinkat(fd, level.name.constData(), AT_REMOVEDIR) == 0)
            error = 0;
        if (error == 0)
            m_folders.noteRemoved(level.id);
        else if (error != ENOENT)
            keepFirstError(error);
        return error == 0 || error == ENOENT;
    }

    // Opens the deepest levels again, at most maximumOpenLevels. The first is opened from the
    // removed folder down, every other one from its parent.
    bool reopen()
    {
        const std::size_t count = m_levels.size();
        const std::size_t first = count > maximumOpenLevels ? count - maximumOpenLevels : 0;
        QByteArray path;
        for (std::size_t i = 1; i <= first; ++i)
            path += (i == 1 ? QByteArray() : QByteArray("/")) + m_levels[i].name;
        m_levels[first].fd = openFolderBelow(m_root.get(), path, Mounts::Stay);
        for (std::size_t i = first + 1; i < count && m_levels[i - 1].fd.isValid(); ++i) {
            m_levels[i].fd =
                openFolderBelow(m_levels[i - 1].fd.get(), m_levels[i].name, Mounts::Stay);
        }
        const Level &deepest = m_levels.back();
        if (!deepest.fd.isValid())
            keepFirstError(errno);
        else if (idOf(deepest.fd.get()) != deepest.id)
            m_wasMoved = true;
        return deepest.fd.isValid() && !m_wasMoved;
    }

    ExpectedFolders &m_folders;
    const int m_parent;
    const QByteArray m_parentPath;
    const QByteArray m_name;
    const std::atomic_bool *const m_stopRequested;
    FolderReader m_reader;
    UniqueFd m_root;
    std::vector<Level> m_levels;
    Level m_top; ///< the removed folder itself, once it is empty
    PlaceGuard m_guard;
    bool m_wasMoved = false;
    bool m_hasReplacedFolder = false; ///< a folder inside was replaced; the new one stays
    int m_error = 0;
};

} // namespace

/// The folder of the last entry, kept open for the next one.
class FileRemover::Private
{
public:
    // Opens the folder of the next entry. The folder that is open already is used again if it is
    // still at its path. On failure returns the outcome for the entry.
    std::optional<Outcome> openParent(const QByteArray &path)
    {
        if (isOpen(path) && guard.isInPlace(fd.get(), [&] { return path; }))
            return {};
        fd.reset();
        const QString name = QFile::decodeName(path);
        if (folders.isRemoved(name))
            return Outcome{Status::NotFound, false, {}};
        UniqueFd found = openFolder(path, Access::PassThrough);
        if (!found.isValid() && errno != ENOENT)
            return failure(errno);
        if (!found.isValid())
            return Outcome{
                folders.idOf(name).isKnown() ? Status::Replaced : Status::NotFound, false, {}};
        if (!folders.accept(name, idOf(found.get())))
            return Outcome{Status::Replaced, false, {}};
        fd = std::move(found);
        folder = path;
        guard.restartInterval();
        return {};
    }
    [[nodiscard]] bool isOpen(const QByteArray &path) const
    {
        return fd.isValid() && folder == path;
    }

    ExpectedFolders folders;
    QByteArray folder;
    UniqueFd fd;
    PlaceGuard guard;
};

FileRemover::FileRemover()
    : d(std::make_unique<Private>())
{
}

FileRemover::~FileRemover() = default;

void FileRemover::setListed(const ListedFolders *listed)
{
    d->folders.setListed(listed);
}

FileRemover::Outcome FileRemover::removeFile(const QString &path,
                                             const std::optional<ListedFile> &listed)
{
    const SplitPath split = splitPath(path);
    if (split.name.isEmpty())
        return failure(EINVAL);

    // The open folder may have been removed and made again under the same name. Then it is opened
    // once more.
    const bool wasOpen = d->isOpen(split.folder);
    int error = ENOENT;
    for (int attempts = wasOpen ? 2 : 1; attempts > 0 && error == ENOENT; --attempts) {
        if (const std::optional<Outcome> outcome = d->openParent(split.folder))
            return *outcome;
        if (listed && !isListedFile(d->fd.get(), split.name.constData(), *listed))
            return {Status::Replaced, isFolderAt(d->fd.get(), split.name.constData()), {}};
        if (::unlinkat(d->fd.get(), split.name.constData(), 0) == 0)
            return {Status::Removed, false, {}};
        error = errno;
        if (error == ENOENT)
            d->fd.reset();
    }
    if (error == ENOENT)
        return {Status::NotFound, false, {}};
    return failure(error, isFolderAt(d->fd.get(), split.name.constData()));
}

FileRemover::Outcome FileRemover::remove(const QString &path, const std::atomic_bool *stopRequested)
{
    const Outcome outcome = removeFile(path);
    if (!outcome.wasFolder)
        return outcome;
    const SplitPath split = splitPath(path);
    return FolderRemoval(d->folders, d->fd.get(), split.folder, split.name, stopRequested).run();
}

} // namespace platform
