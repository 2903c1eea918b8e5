#include "walker_p.h"

#include "windows/folderreader.h"
#include "windows/openentry.h"

#include <QSet>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// FILETIME counts ticks of 100 nanoseconds since 1601.
qint64 millisecondsSince1970(const FILETIME &time)
{
    const quint64 ticks = (static_cast<quint64>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    return (static_cast<qint64>(ticks) - 116'444'736'000'000'000) / 10'000;
}

/// The root of the walk or the target of a link. Below it no link is followed.
struct Base {
    QString path; ///< as in the paths of its files
    QString target; ///< the folder's own path, without links
};

/// A subfolder that waits in the queue.
struct Folder {
    QString path;
    std::shared_ptr<const Base> base;
};

/// A link to a folder that waits in the queue.
struct Link {
    QString path;
};

/// Identifies a folder, whichever path leads to it. Path and id are both compared, because some
/// file systems have no file numbers and some paths cannot be resolved.
struct FolderIdentity {
    QString path; ///< without links
    EntryId id; ///< unknown on file systems without file numbers
};

FolderIdentity identityOf(const UniqueHandle &folder, const QString &path)
{
    FolderIdentity identity{path, idOf(folder)};
    if (const QString target = plainPath(finalPath(folder, PathForm::Drive)); !target.isEmpty())
        identity.path =
            target.endsWith(u'/') && !target.endsWith(":/"_L1) ? target.chopped(1) : target;
    return identity;
}

/// The folders where the walk starts: its root and the targets of links. The walk owns it, and
/// every walker's thread uses it.
class Bases final
{
    Q_DISABLE_COPY_MOVE(Bases)
public:
    Bases() = default;

    /// Returns false if the folder was inserted before, or is walked anyway because it is below a
    /// base.
    [[nodiscard]] bool insert(const FolderIdentity &folder)
    {
        const std::lock_guard lock(m_mutex);
        if ((folder.id.isKnown() && m_ids.contains(folder.id)) || isWalked(folder.path))
            return false;
        m_paths.insert(folder.path);
        if (folder.id.isKnown())
            m_ids.insert(folder.id);
        m_hasSeveral = m_paths.size() > 1;
        return true;
    }

    /// Whether the folder at a link-free path below a base is itself a base.
    [[nodiscard]] bool contains(const QString &path)
    {
        if (!m_hasSeveral)
            return false;
        const std::lock_guard lock(m_mutex);
        return m_paths.contains(path);
    }
    [[nodiscard]] bool hasSeveral() const { return m_hasSeveral; }

private:
    // Looks for a base above the folder. A hidden folder in between means that the walk does not
    // reach it.
    [[nodiscard]] bool isWalked(QString path) const
    {
        for (;;) {
            if (m_paths.contains(path))
                return true;
            const DWORD attributes =
                ::GetFileAttributesW(reinterpret_cast<const wchar_t *>(extendedPath(path).utf16()));
            const qsizetype slash = path.lastIndexOf(u'/', -2);
            if (attributes == INVALID_FILE_ATTRIBUTES || isHidden(attributes) || slash < 2)
                return false;
            path.truncate(slash);
            if (path.endsWith(u':'))
                path += u'/';
        }
    }

    std::mutex m_mutex;
    QSet<QString> m_paths;
    QSet<EntryId> m_ids;
    std::atomic_bool m_hasSeveral = false;
};

/// The folder that a walker reads. The walker owns it and uses it on its thread.
class OpenFolder
{
public:
    OpenFolder(Folder folder, SharedReport &report)
        : m_folder(std::move(folder))
        , m_report(report)
    {
    }

    const QString &path() const { return m_folder.path; }
    static EntryId id() { return {}; } // a listing does not tell it
    QString source() const { return extendedPath(m_folder.path); }

    // A folder that was removed after its parent was read is no failure, nor is an empty drive.
    static QString failureText(DWORD error)
    {
        return error == ERROR_SUCCESS || isMissing(error) ? QString() : reasonOf(error);
    }
    static bool shouldShareSubfolders(const FolderReader &, std::size_t count)
    {
        return count >= 64;
    }

    static QStringView nameOf(const WIN32_FIND_DATAW &entry) { return {entry.cFileName}; }

    static WalkedKind kindOf(const WIN32_FIND_DATAW &entry, const FolderReader &)
    {
        switch (natureOf(entry)) {
        case EntryNature::File:
            return WalkedKind::File;
        case EntryNature::Folder:
            return WalkedKind::Folder;
        case EntryNature::FileLink:
        case EntryNature::FolderLink:
            return WalkedKind::Link;
        case EntryNature::Special:
            break;
        }
        return WalkedKind::Nothing;
    }

    static bool isShown(const WIN32_FIND_DATAW &entry) { return !isHidden(entry.dwFileAttributes); }

    Folder subfolderAt(const WIN32_FIND_DATAW &entry) const
    {
        return {pathAt(entry), m_folder.base};
    }

    // Size and time come with the name, even if they are not wanted. For a link they are its own.
    std::optional<VisitedFile> fileAt(const WIN32_FIND_DATAW &entry, bool isLink,
                                      TreeVisitor::Wanted) const
    {
        if (isLink) {
            const std::optional<bool> isFile = leadsToFile(extendedPath(pathAt(entry)));
            if (!isFile)
                m_report.addFailure(pathAt(entry), reasonOf(::GetLastError()));
            if (!isFile.value_or(false))
                return {};
        }
        return VisitedFile{
            nameOf(entry), sizeOf(entry), millisecondsSince1970(entry.ftLastWriteTime), isLink, 0,
            nullptr};
    }

    /// The target's kind according to the link itself.
    struct Target {
        WalkedKind kind;
    };

    static Target targetOf(const WIN32_FIND_DATAW &link)
    {
        return {natureOf(link) == EntryNature::FolderLink ? WalkedKind::Folder : WalkedKind::File};
    }

    Link linkAt(const WIN32_FIND_DATAW &link, const Target &) const { return {pathAt(link)}; }

private:
    QString pathAt(const WIN32_FIND_DATAW &entry) const
    {
        return joinedPath(m_folder.path, nameOf(entry).toString());
    }

    Folder m_folder;
    SharedReport &m_report;
};

/// The system's part of a walk, see Walker. Lives in the Walk; all walkers' threads use it. If a
/// folder is replaced by a link during the walk, the target's contents may be listed. The check of
/// FileRemover keeps them from being removed.
class WindowsWalk final
{
    Q_DISABLE_COPY_MOVE(WindowsWalk)
public:
    using Folder = platform::Folder;
    using Link = platform::Link;
    using OpenFolder = platform::OpenFolder;
    using Reader = FolderReader;

    WindowsWalk(const WalkOptions &options, SharedReport &report)
        : m_options(options)
        , m_report(report)
    {
    }

    std::optional<OpenFolder> openRoot(const QString &root)
    {
        QString top = root.size() > 1 && root.endsWith(u'/') ? root.chopped(1) : root;
        // A drive without its slash means the current folder of that drive.
        if (top.endsWith(u':'))
            top += u'/';
        const QString extended = extendedPath(top);
        // A path that is not absolute is refused: a bare pattern would list the current drive.
        if (extended.isEmpty()) {
            addFailure(root, ERROR_INVALID_NAME);
            return {};
        }
        const bool isLink = inspect(top).kind == EntryKind::Link;
        if (m_options.reach != Reach::Everywhere) {
            if (!isLink)
                return OpenFolder({top, nullptr}, m_report);
            addFailure(root, linkInPathError);
            return {};
        }
        const UniqueHandle folder = openFollowed(root, extended);
        if (!folder.isValid())
            return {};
        const FolderIdentity identity = identityOf(folder, top);
        return baseAt(isLink ? identity.path : top, identity);
    }

    std::optional<OpenFolder> open(const Folder &folder)
    {
        if (m_bases.hasSeveral() && folder.path != folder.base->path) {
            const QString relative =
                folder.path.mid(joinedPath(folder.base->path, QString()).size());
            if (m_bases.contains(joinedPath(folder.base->target, relative)))
                return {};
        }
        return OpenFolder(folder, m_report);
    }

    std::optional<OpenFolder> open(const Link &link)
    {
        const UniqueHandle target = openFollowed(link.path, extendedPath(link.path));
        if (!target.isValid())
            return {};
        const std::optional<EntryAttributes> attributes = attributesOf(target);
        if (!attributes)
            addFailure(link.path, ::GetLastError());
        if (!attributes || attributes->nature != EntryNature::Folder)
            return {};
        const FolderIdentity identity = identityOf(target, link.path);
        return baseAt(identity.path, identity);
    }

private:
    void addFailure(const QString &path, DWORD error)
    {
        m_report.addFailure(path, reasonOf(error));
    }

    UniqueHandle openFollowed(const QString &path, const QString &extended)
    {
        UniqueHandle handle = openEntry(extended, FILE_READ_ATTRIBUTES, Links::Follow);
        if (!handle.isValid() && !isMissing(::GetLastError()))
            addFailure(path, ::GetLastError());
        return handle;
    }

    // Makes the root, or the target of a link, a new base.
    std::optional<OpenFolder> baseAt(const QString &path, const FolderIdentity &identity)
    {
        if (!m_bases.insert(identity))
            return {};
        return OpenFolder({path, std::make_shared<const Base>(Base{path, identity.path})},
                          m_report);
    }

    const WalkOptions &m_options;
    SharedReport &m_report;
    Bases m_bases;
};

} // namespace

// A listing does not tell the id, so this is one more system call per folder. Most folders have no
// wanted file, so the id is looked up only when it is asked for.
EntryId WalkedFolder::id() const
{
    if (!m_id.isKnown())
        m_id = idOfFolder(m_path);
    return m_id;
}

WalkReport walkTree(const QString &root, const WalkOptions &options,
                    const QList<TreeVisitor *> &visitors)
{
    return walkTreeWith<WindowsWalk>(root, options, visitors);
}

} // namespace platform
