#pragma once

#include "namefilter.h"
#include "sidebyside.h"
#include "treewalk.h"
#include "walkqueue_p.h"

#include <iterator>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>
#include <vector>

// The part of a walk that all systems share. It decides which entries are listed, which visitor is
// called, and how the walkers share the work. A class System supplies the rest, see Walker.
namespace platform {

/// The report of a walk. All its walkers write it, each on its own thread. The Walk owns it.
class SharedReport final
{
    Q_DISABLE_COPY_MOVE(SharedReport)
public:
    SharedReport() = default;

    void addFailure(const QString &path, const QString &reason)
    {
        const std::lock_guard lock(m_mutex);
        Failed &failed = m_failed[reason];
        if (!failed.places.insert(path).second)
            return;
        ++failed.count;
        constexpr auto most = static_cast<std::size_t>(ReadFailures::maximumPlaces);
        if (failed.places.size() > most)
            failed.places.erase(std::prev(failed.places.end()));
    }

    void addFollowed(const FollowedLink &link)
    {
        const std::lock_guard lock(m_mutex);
        m_report.followed.append(link);
    }

    /// The report. To be called when all walkers are done.
    [[nodiscard]] WalkReport take()
    {
        for (const auto &[reason, failed] : m_failed)
            m_report.failures.add(ReadFailures::Group{
                reason, {failed.places.begin(), failed.places.end()}, failed.count});
        return std::move(m_report);
    }

private:
    /// What failed for one reason. The kept places are the first by name: several walkers meet them
    /// in another order each time.
    struct Failed {
        std::set<QString> places;
        qint64 count = 0;
    };

    std::mutex m_mutex;
    WalkReport m_report;
    std::map<QString, Failed> m_failed; ///< by reason
};

/// How a walk treats an entry of a folder.
enum class WalkedKind {
    Nothing, ///< never listed
    File,
    Folder,
    Link, ///< its target is looked up only when it matters
};

/// What the walkers of one walk share. Lives on the stack of walkTree(). Queue, report and system
/// are safe to use from every walker's thread.
template<class System>
struct Walk {
    Walk(const WalkOptions &walkOptions, qsizetype walkers)
        : options(walkOptions)
        , queue(walkOptions.watch.stopRequested)
        , system(walkOptions, report)
        , hasOneWalker(walkers == 1)
    {
    }

    /// A subfolder that waits in the queue.
    struct Waiting {
        typename System::Folder folder;
        FolderPlace *place = nullptr;
    };

    using Queue = WalkQueue<Waiting, typename System::Link>;

    const WalkOptions &options;
    Queue queue;
    SharedReport report;
    System system;
    const bool hasOneWalker;
};

/// One of the walkers of a walk. It works on its own thread and calls its own visitor. There is no
/// recursion: the queue holds the folders that are still to be read.
///
/// The System is the system's part of the walk. All walkers use the one object at the same time:
/// - System::Folder and System::Link describe a folder, or a link to one, that waits in the queue.
/// - openRoot(path), open(Folder) and open(Link) return the System::OpenFolder to read. They return
///   nothing for a folder that is not to be read, and report what failed.
///
/// An OpenFolder belongs to the walker that reads it:
/// - path() and id() identify it.
/// - source() is what a System::Reader reads.
/// - failureText(error) describes an error of that reader for people. It is empty if the error is
///   no failure.
/// - nameOf(entry) and kindOf(entry, reader) describe an entry.
/// - isShown(entry) is called last, and only for entries that are wanted otherwise.
/// - fileAt(entry, isLink, wanted) is what the visitor gets. It returns nothing if there is no
///   file.
/// - subfolderAt(entry) describes a subfolder for the queue.
/// - targetOf(entry) tells where a link leads. linkAt(entry, target) describes a link to a folder
///   for the queue.
/// - shouldShareSubfolders(reader, count) tells whether @c count subfolders go to the queue before
///   the folder is read to its end.
template<class System>
class Walker final
{
    Q_DISABLE_COPY_MOVE(Walker)
public:
    using OpenFolder = typename System::OpenFolder;
    using Waiting = typename Walk<System>::Waiting;
    using Position = typename Walk<System>::Queue::Position;

    Walker(Walk<System> &walk, TreeVisitor &visitor)
        : m_walk(walk)
        , m_filter(walk.options.nameFilters)
        , m_visitor(visitor)
        , m_reader(walk.options.watch.stopRequested)
    {
    }

    /// Reads the folders in the queue until all walkers are done.
    void run()
    {
        m_walk.queue.process(
            [this](const auto &waiting, Position position) { this->open(waiting, position); });
    }

    void read(OpenFolder &folder, Position position, FolderPlace *place = nullptr)
    {
        m_folder = WalkedFolder(folder.path(), folder.id(), place);
        m_wanted = m_visitor.enterFolder(m_folder);
        m_walk.options.watch.noteActivity();
        m_reader.begin(folder.source());
        for (int count = 1; const auto *entry = m_reader.next(); ++count) {
            m_walk.options.watch.noteEntry(count);
            readEntry(folder, *entry);
            // Another walker may be waiting for these subfolders.
            if (!m_walk.hasOneWalker && folder.shouldShareSubfolders(m_reader, m_subfolders.size()))
                m_walk.queue.add(position, m_subfolders);
        }
        if (const QString reason = folder.failureText(m_reader.error()); !reason.isEmpty())
            m_walk.report.addFailure(folder.path(), reason);
        m_walk.queue.add(position, m_subfolders);
        m_visitor.leaveFolder();
    }

private:
    void open(const Waiting &waiting, Position position)
    {
        if (std::optional<OpenFolder> folder = m_walk.system.open(waiting.folder))
            read(*folder, position, waiting.place);
        else
            m_visitor.skipFolder(waiting.place);
    }

    void open(const typename System::Link &link, Position position)
    {
        if (std::optional<OpenFolder> folder = m_walk.system.open(link))
            read(*folder, position);
    }

    [[nodiscard]] bool isEverywhere() const { return m_walk.options.reach == Reach::Everywhere; }

    template<class Entry>
    void readEntry(OpenFolder &folder, const Entry &entry)
    {
        switch (folder.kindOf(entry, m_reader)) {
        case WalkedKind::Nothing:
            return;
        case WalkedKind::File:
            if (m_filter.matches(folder.nameOf(entry)) && folder.isShown(entry))
                visit(folder, entry, false);
            return;
        case WalkedKind::Folder:
            if (m_walk.options.recursive && folder.isShown(entry))
                m_subfolders.push_back({folder.subfolderAt(entry), m_visitor.addSubfolder()});
            return;
        case WalkedKind::Link:
            readLink(folder, entry);
            return;
        }
    }

    // A link to a file is listed as a link. A link to a folder is never listed, but may be
    // followed.
    template<class Entry>
    void readLink(OpenFolder &folder, const Entry &entry)
    {
        const bool isMatch = m_filter.matches(folder.nameOf(entry));
        const bool isFollowed = isEverywhere() && m_walk.options.recursive;
        if ((!isMatch && !isFollowed) || !folder.isShown(entry))
            return;
        const auto target = folder.targetOf(entry);
        if (target.kind == WalkedKind::File && isMatch)
            visit(folder, entry, true);
        else if (target.kind == WalkedKind::Folder && isFollowed)
            m_walk.queue.addLink(folder.linkAt(entry, target));
    }

    template<class Entry>
    void visit(OpenFolder &folder, const Entry &entry, bool isLink)
    {
        if (std::optional<VisitedFile> file = folder.fileAt(entry, isLink, m_wanted)) {
            file->folder = &m_folder;
            m_visitor.visitFile(*file);
        }
    }

    Walk<System> &m_walk;
    const NameFilter m_filter;
    TreeVisitor &m_visitor;
    typename System::Reader m_reader;
    WalkedFolder m_folder; ///< the folder that is being read
    /// for the files of m_folder
    TreeVisitor::Wanted m_wanted = TreeVisitor::Wanted::SizesAndTimes;
    /// the subfolders of m_folder that are not in the queue yet
    std::vector<Waiting> m_subfolders;
};

/// walkTree() for one system.
template<class System>
WalkReport walkTreeWith(const QString &root, const WalkOptions &options,
                        const QList<TreeVisitor *> &visitors)
{
    Walk<System> walk(options, visitors.size());
    if (std::optional<typename System::OpenFolder> rootFolder = walk.system.openRoot(root)) {
        const auto position = walk.queue.beginRoot();
        runSideBySide(static_cast<int>(visitors.size()), [&](int number) {
            Walker<System> walker(walk, *visitors.at(number));
            if (number == 0) {
                walker.read(*rootFolder, position);
                walk.queue.endRoot(position);
            }
            walker.run();
        });
    }
    return walk.report.take();
}

} // namespace platform
