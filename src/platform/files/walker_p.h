#pragma once

#include "namefilter.h"
#include "treewalk.h"
#include "walkqueue_p.h"

#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

// What a walk is on every system: which entries it lists, who is told of them, and how its walkers
// share the work. What differs is handed in as a class System, see Walker.
namespace platform {

/// The report of a walk, written by all its walkers.
class SharedReport final
{
    Q_DISABLE_COPY_MOVE(SharedReport)
public:
    SharedReport() = default;

    void addFailure(const QString &path, const QString &reason)
    {
        const std::lock_guard lock(m_mutex);
        m_report.addFailure(path, reason);
    }

    void addFollowed(const FollowedLink &link)
    {
        const std::lock_guard lock(m_mutex);
        m_report.followed.append(link);
    }

    /// The report, once all walkers are done.
    [[nodiscard]] WalkReport take() { return std::move(m_report); }

private:
    std::mutex m_mutex;
    WalkReport m_report;
};

/// What an entry of a folder is to a walk.
enum class WalkedKind {
    Nothing, ///< not listed, whatever the options say
    File,
    Folder,
    Link, ///< where it leads is looked up when somebody wants to know
};

/// What the walkers of one walk share. Lives on the stack of walkTree().
template<class System>
struct Walk {
    Walk(const WalkOptions &walkOptions, qsizetype walkers)
        : options(walkOptions)
        , queue(walkOptions.stopRequested)
        , system(walkOptions, report)
        , hasOneWalker(walkers == 1)
    {
    }

    const WalkOptions &options;
    WalkQueue<typename System::Folder, typename System::Link> queue;
    SharedReport report;
    System system;
    const bool hasOneWalker;
};

/// One of the walkers of a walk, on its own thread. Without recursion: folders that still have to
/// be read wait in the queue.
///
/// The system's part of the walk is one object, which all walkers use at once:
/// - System::Folder and System::Link are a folder and a link to one that wait in the queue;
/// - openRoot(path), open(Folder) and open(Link) give the System::OpenFolder to be read, or nothing
///   for one that is not, and report what failed.
/// An OpenFolder belongs to the walker that reads it:
/// - path(), id(); source(), which a System::Reader takes; failureText(error) of that reader, for
///   people, and empty for what is no failure;
/// - nameOf(entry), kindOf(entry, reader) and isShown(entry), of which the last is asked only about
///   what is wanted otherwise;
/// - fileAt(entry, isLink, wanted) is what the visitor is told; nothing for what is no file;
/// - subfolderAt(entry); targetOf(entry) of a link, and linkAt(entry, target) of one to a folder;
/// - shouldShareSubfolders(reader, count): whether @c count subfolders go to the queue before all
/// is read.
template<class System>
class Walker final
{
    Q_DISABLE_COPY_MOVE(Walker)
public:
    using OpenFolder = typename System::OpenFolder;

    Walker(Walk<System> &walk, TreeVisitor &visitor)
        : m_walk(walk)
        , m_filter(walk.options.nameFilters)
        , m_visitor(visitor)
        , m_reader(walk.options.stopRequested)
    {
    }

    /// Reads what waits in the queue until all walkers are done.
    void run()
    {
        m_walk.queue.process([this](const auto &waiting) {
            if (std::optional<OpenFolder> folder = m_walk.system.open(waiting))
                read(*folder);
        });
    }

    void read(OpenFolder &folder)
    {
        m_folder = WalkedFolder(folder.path(), folder.id());
        m_wanted = m_visitor.enterFolder(folder.path());
        m_reader.begin(folder.source());
        while (const auto *entry = m_reader.next()) {
            readEntry(folder, *entry);
            // Another walker may be waiting for them.
            if (!m_walk.hasOneWalker && folder.shouldShareSubfolders(m_reader, m_subfolders.size()))
                m_walk.queue.add(m_subfolders);
        }
        if (const QString reason = folder.failureText(m_reader.error()); !reason.isEmpty())
            m_walk.report.addFailure(folder.path(), reason);
        m_walk.queue.add(m_subfolders);
    }

private:
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
                m_subfolders.push_back(folder.subfolderAt(entry));
            return;
        case WalkedKind::Link:
            readLink(folder, entry);
            return;
        }
    }

    // A link to a file is listed as a link; one to a folder is entered at most.
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
    WalkedFolder m_folder; ///< that is being read
    TreeVisitor::Wanted m_wanted = TreeVisitor::Wanted::SizesAndTimes; ///< of that folder
    std::vector<typename System::Folder> m_subfolders; ///< of that folder
};

/// walkTree() by the means of one system.
template<class System>
WalkReport walkTreeWith(const QString &root, const WalkOptions &options,
                        const QList<TreeVisitor *> &visitors)
{
    Walk<System> walk(options, visitors.size());
    if (std::optional<typename System::OpenFolder> rootFolder = walk.system.openRoot(root)) {
        Walker<System> first(walk, *visitors.constFirst());
        std::vector<std::jthread> others;
        walk.queue.beginRoot();
        for (TreeVisitor *visitor : visitors.sliced(1))
            others.emplace_back([&walk, visitor] { Walker<System>(walk, *visitor).run(); });
        first.read(*rootFolder);
        walk.queue.endRoot();
        first.run();
    }
    return walk.report.take();
}

} // namespace platform
