#include "filewalk_p.h"

#include "namefilter.h"
#include "windows/folderreader.h"
#include "windows/openentry.h"

#include <QSet>

#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The system counts in steps of 100 nanoseconds from 1601 on.
qint64 millisecondsSince1970(const FILETIME &time)
{
    const quint64 steps = (static_cast<quint64>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    return (static_cast<qint64>(steps) - 116'444'736'000'000'000) / 10'000;
}

/// The root of the walk or a folder that a link leads to: from here down no link is passed.
struct Base {
    QString path; ///< as its files are listed
    QString target; ///< the same folder, link-free
};

struct Folder {
    QString path;
    std::shared_ptr<const Base> base;
};

struct Link {
    QString path;
};

/// What stands for a folder whatever path leads to it. Both are compared: not every file system
/// numbers its files, nor resolves every path.
struct FolderIdentity {
    QString path; ///< link-free
    EntryId id; ///< unknown where the file system numbers nothing
};

FolderIdentity identityOf(const UniqueHandle &folder, const QString &path)
{
    FolderIdentity identity{path, idOf(folder)};
    if (const QString target = plainPath(finalPath(folder, PathForm::Drive)); !target.isEmpty())
        identity.path =
            target.endsWith(u'/') && !target.endsWith(":/"_L1) ? target.chopped(1) : target;
    return identity;
}

/// The folders from which the walk goes down: its root and what links lead to. Any walker's thread.
class Bases final
{
    Q_DISABLE_COPY_MOVE(Bases)
public:
    Bases() = default;

    /// False when the folder was there before, or is walked anyhow because it lies below one.
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

    /// Whether the folder at this link-free path below a base is a base itself.
    [[nodiscard]] bool contains(const QString &path)
    {
        if (!m_hasSeveral)
            return false;
        const std::lock_guard lock(m_mutex);
        return m_paths.contains(path);
    }
    [[nodiscard]] bool hasSeveral() const { return m_hasSeveral; }

private:
    // Upwards from the folder to a base, unless what is hidden stands in between.
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

/// What the walkers of one walk share.
struct Shared {
    explicit Shared(const WalkOptions &walkOptions)
        : options(walkOptions)
        , queue(walkOptions.stopRequested)
    {
    }

    const WalkOptions &options;
    WalkQueue<Folder, Link> queue;
    Bases bases;
    SharedReport report;
    bool hasOneWalker = true;
};

/// One of the walkers of a walk. A folder that is exchanged for a link while the walk runs may have
/// what is behind it listed; the remover's own check keeps that from being removed.
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
        m_shared.queue.process([this](const auto &work) { read(work); });
    }

    /// The folder to start with; nothing for one that cannot be walked.
    [[nodiscard]] std::optional<Folder> openRoot(const QString &root)
    {
        QString top = root.size() > 1 && root.endsWith(u'/') ? root.chopped(1) : root;
        // Without its slash a drive would be whatever folder is current on it.
        if (top.endsWith(u':'))
            top += u'/';
        const QString extended = extendedPath(top);
        // What is no absolute path must not become one: a bare pattern lists the current drive.
        if (extended.isEmpty()) {
            addFailure(root, ERROR_INVALID_NAME);
            return {};
        }
        const bool isLink = inspect(top).kind == EntryKind::Link;
        if (!isEverywhere()) {
            if (!isLink)
                return Folder{top, nullptr};
            addFailure(root, linkOnTheWay);
            return {};
        }
        const UniqueHandle folder = openEntry(extended, FILE_READ_ATTRIBUTES, Links::Follow);
        if (!folder.isValid()) {
            if (!isMissing(::GetLastError()))
                addFailure(root, ::GetLastError());
            return {};
        }
        const FolderIdentity identity = identityOf(folder, top);
        if (isLink)
            top = identity.path;
        if (!m_shared.bases.insert(identity))
            return {};
        return Folder{top, std::make_shared<const Base>(Base{top, identity.path})};
    }

    void read(const Folder &folder)
    {
        if (m_shared.bases.hasSeveral() && folder.path != folder.base->path) {
            const QString relative =
                folder.path.mid(joinedPath(folder.base->path, QString()).size());
            if (m_shared.bases.contains(joinedPath(folder.base->target, relative)))
                return;
        }
        readFolder(folder);
    }

private:
    bool isEverywhere() const { return m_shared.options.reach == Reach::Everywhere; }

    void addFailure(const QString &path, DWORD error)
    {
        m_shared.report.addFailure(path, reasonOf(error));
    }

    void read(const Link &link)
    {
        const UniqueHandle target =
            openEntry(extendedPath(link.path), FILE_READ_ATTRIBUTES, Links::Follow);
        if (!target.isValid()) {
            if (!isMissing(::GetLastError()))
                addFailure(link.path, ::GetLastError());
            return;
        }
        const std::optional<EntryAttributes> attributes = attributesOf(target);
        if (!attributes || attributes->nature != EntryNature::Folder)
            return;
        const FolderIdentity identity = identityOf(target, link.path);
        if (m_shared.bases.insert(identity))
            readFolder(
                {identity.path, std::make_shared<const Base>(Base{identity.path, identity.path})});
    }

    void readFolder(const Folder &folder)
    {
        // The files' sizes and times come with their names, wanted or not.
        Q_UNUSED(m_visitor.enterFolder(folder.path))
        m_folder = WalkedFolder(folder.path);
        m_reader.begin(extendedPath(folder.path));
        while (const WIN32_FIND_DATAW *entry = m_reader.next()) {
            readEntry(folder, *entry);
            if (!m_shared.hasOneWalker && m_subfolders.size() >= subfoldersAtOnce)
                m_shared.queue.add(m_subfolders); // somebody may be waiting for them
        }
        // A folder that is gone since its parent was read is no failure, nor is an empty drive.
        if (m_reader.error() != ERROR_SUCCESS && !isMissing(m_reader.error()))
            addFailure(folder.path, m_reader.error());
        m_shared.queue.add(m_subfolders);
    }

    void readEntry(const Folder &folder, const WIN32_FIND_DATAW &entry)
    {
        if (isHidden(entry.dwFileAttributes))
            return;
        const QStringView name(entry.cFileName);
        switch (natureOf(entry)) {
        case EntryNature::Folder:
            if (m_shared.options.recursive)
                m_subfolders.push_back({joinedPath(folder.path, name.toString()), folder.base});
            return;
        case EntryNature::File:
            if (m_filter.matches(name))
                meet(name, entry, false);
            return;
        case EntryNature::FileLink:
            if (m_filter.matches(name)
                && leadsToFile(extendedPath(joinedPath(folder.path, name.toString()))))
                meet(name, entry, true);
            return;
        case EntryNature::FolderLink:
            if (isEverywhere() && m_shared.options.recursive)
                m_shared.queue.addLink({joinedPath(folder.path, name.toString())});
            return;
        case EntryNature::Special:
            return;
        }
    }

    // Of a link, too, these are its own size and time.
    void meet(QStringView name, const WIN32_FIND_DATAW &entry, bool isLink)
    {
        m_visitor.meetFile({name, sizeOf(entry), millisecondsSince1970(entry.ftLastWriteTime),
                            isLink, 0, &m_folder});
    }

    static constexpr std::size_t subfoldersAtOnce = 64;

    Shared &m_shared;
    const NameFilter m_filter;
    TreeVisitor &m_visitor;
    FolderReader m_reader;
    WalkedFolder m_folder; ///< that is being read
    std::vector<Folder> m_subfolders; ///< of that folder
};

} // namespace

// A listing does not tell: another look for each folder, of which most hold nothing that is wanted.
EntryId WalkedFolder::id() const
{
    if (!m_id.isKnown())
        m_id = idOfFolder(m_path);
    return m_id;
}

WalkReport walkTree(const QString &root, const WalkOptions &options,
                    const QList<TreeVisitor *> &visitors)
{
    Shared shared(options);
    shared.hasOneWalker = visitors.size() == 1;
    Walker first(shared, *visitors.constFirst());
    if (const std::optional<Folder> top = first.openRoot(root)) {
        std::vector<std::jthread> others;
        shared.queue.begin();
        for (TreeVisitor *visitor : visitors.sliced(1))
            others.emplace_back([&shared, visitor] { Walker(shared, *visitor).run(); });
        first.read(*top);
        shared.queue.end();
        first.run();
    }
    return shared.report.take();
}

} // namespace platform
