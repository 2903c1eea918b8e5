#include "entrywalk.h"

#include "entry.h"
#include "folderlister.h"

#include <utility>
#include <vector>

namespace platform {

namespace {

/// One call of walkEntries(). Lives on its stack and its thread. There is no recursion: each open
/// folder keeps its listing until all of it is visited.
///
/// On Windows folders are read by their path. If a folder becomes a link during the walk, the
/// target's contents may be listed. The check of FileRemover keeps them from being removed.
class EntryWalk
{
public:
    EntryWalk(EntryVisitor &visitor, const RunWatch &watch, ListedFolders *listed)
        : m_visitor(visitor)
        , m_watch(watch)
        , m_listed(listed)
    {
    }

    ReadFailures run(const QString &root)
    {
        const Entry entry = inspect(root);
        if (!entry.error.isEmpty())
            m_failures.add(root, entry.error);
        if (entry.kind != EntryKind::Folder)
            return std::move(m_failures);
        FolderListing listing = m_lister.list(root, m_watch);
        noteFailure(root, listing);
        m_device = listing.device;
        record(root, listing);
        m_visitor.visitListing(listing.entries, true);
        m_open.push_back(
            {root.endsWith(u'/') ? root.chopped(1) : root, std::move(listing.entries), 0, 0, true});
        while (!m_watch.isStopped()) {
            if (m_open.back().next < m_open.back().entries.size())
                step();
            else if (m_open.size() > 1)
                leaveFolder();
            else
                break;
        }
        return std::move(m_failures);
    }

private:
    /// A folder on the way down to the current one, with the entries that are still to be visited.
    struct Folder {
        QString path;
        std::vector<ListedEntry> entries;
        std::size_t next;
        qint64 size;
        bool isShown; ///< neither hidden itself nor inside a hidden folder
    };

    void noteFailure(const QString &path, const FolderListing &listing)
    {
        // A folder that was removed after its parent was read is no failure.
        if (listing.error.isEmpty() || listing.isMissing)
            return;
        m_failures.add(path, listing.error);
    }

    void record(const QString &path, const FolderListing &listing)
    {
        if (m_listed)
            m_listed->add(path, listing.id);
    }

    void step()
    {
        Folder &folder = m_open.back();
        ListedEntry entry = std::move(folder.entries[folder.next++]);
        m_watch.noteEntry(static_cast<int>(folder.next));
        const bool isShown = folder.isShown && !entry.isHidden;
        if (entry.kind == ListedKind::File)
            folder.size += entry.size;
        const bool isFolder =
            entry.kind == ListedKind::Folder || entry.kind == ListedKind::FolderLink;
        if (!isShown && entry.kind != ListedKind::Folder)
            return;
        const QString path = joinedPath(folder.path, entry.name);
        if (isShown)
            m_visitor.visitEntry({std::move(entry.name), path, entry.size, isFolder});
        if (entry.kind == ListedKind::Folder)
            enterFolder(path, isShown);
        else if (isFolder)
            m_visitor.leaveFolder(0, false);
    }

    // Adds to m_open, which invalidates references into it.
    void enterFolder(const QString &path, bool isShown)
    {
        FolderListing listing = m_lister.list(path, m_watch);
        noteFailure(path, listing);
        if (listing.isMissing || listing.device != m_device) {
            if (isShown)
                m_visitor.leaveFolder(0, false);
            return;
        }
        if (isShown)
            record(path, listing);
        m_visitor.visitListing(listing.entries, isShown);
        m_open.push_back({path, std::move(listing.entries), 0, 0, isShown});
    }

    void leaveFolder()
    {
        const qint64 size = m_open.back().size;
        const bool isShown = m_open.back().isShown;
        m_open.pop_back();
        m_open.back().size += size;
        if (isShown)
            m_visitor.leaveFolder(size, true);
    }

    EntryVisitor &m_visitor;
    const RunWatch m_watch;
    ListedFolders *m_listed;
    const FolderLister m_lister;
    std::vector<Folder> m_open; ///< from the root down to the current folder
    quint64 m_device = 0;
    ReadFailures m_failures;
};

} // namespace

void EntryVisitor::visitListing(const std::vector<ListedEntry> &, bool) { }

ReadFailures walkEntries(const QString &root, EntryVisitor &visitor, const RunWatch &watch,
                         ListedFolders *listed)
{
    return EntryWalk(visitor, watch, listed).run(root);
}

} // namespace platform
