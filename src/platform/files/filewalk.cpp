#include "filewalk.h"

#include "entry.h"
#include "sidebyside.h"

#include <atomic>
#include <iterator>
#include <list>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace platform {

namespace {

/// Hands on what several walkers find, in the order in which a single one finds it: the files of a
/// folder before those of its subfolders, and one subfolder after the other. What is found too
/// early waits here. That is little, because the walkers take the folders that come first.
///
/// Lives on the stack of walkFiles(). Any thread. The visitor is never called twice at once.
class OrderedFiles final
{
    Q_DISABLE_COPY_MOVE(OrderedFiles)
public:
    struct Place;
    using Places = std::list<Place>;

    /// A folder of the walk, or the end of one.
    struct Place final : FolderPlace {
        Places::iterator self;
        Places::iterator end; ///< behind the subfolders; set when the folder is entered
        QString path;
        EntryId id; ///< set with the first file
        std::vector<WalkedFile> files; ///< that wait
        bool isRecorded = false; ///< in the listed folders
        bool isDone = false; ///< nothing will be added any more
    };

    OrderedFiles(const FileVisitor &visit, ListedFolders *listed,
                 const std::atomic_bool *stopRequested)
        : m_visit(visit)
        , m_listed(listed)
        , m_stopRequested(stopRequested)
        , m_root(insertBefore(m_places.end()))
    {
    }

    /// @p place is null for the root, which comes first, and for folders behind links, which come
    /// after everything else.
    [[nodiscard]] Place *enter(FolderPlace *place, const QString &path)
    {
        const std::lock_guard lock(m_mutex);
        Place *entered = place ? static_cast<Place *>(place) : std::exchange(m_root, nullptr);
        if (!entered)
            entered = insertBefore(m_places.end());
        entered->path = path;
        Place *end = insertBefore(std::next(entered->self));
        end->isDone = true;
        entered->end = end->self;
        return entered;
    }

    [[nodiscard]] Place *addSubfolder(const Place &folder)
    {
        const std::lock_guard lock(m_mutex);
        return insertBefore(folder.end);
    }

    /// Takes over @p files and leaves the list empty.
    void add(Place &folder, std::vector<WalkedFile> &files)
    {
        const std::lock_guard lock(m_mutex);
        std::move(files.begin(), files.end(), std::back_inserter(folder.files));
        files.clear();
        handOn();
    }

    /// Nothing will be added to the folder any more. Then @p place is no longer valid.
    void end(FolderPlace *place)
    {
        const std::lock_guard lock(m_mutex);
        static_cast<Place *>(place)->isDone = true;
        handOn();
    }

private:
    Place *insertBefore(Places::iterator next)
    {
        const auto place = m_places.emplace(next);
        place->self = place;
        return &*place;
    }

    void handOn()
    {
        while (!m_places.empty()) {
            handOn(m_places.front());
            if (!m_places.front().isDone)
                return;
            m_places.pop_front();
        }
    }

    void handOn(Place &place)
    {
        if (place.files.empty() || isStopped())
            return;
        if (m_listed && !place.isRecorded)
            m_listed->add(place.path, place.id);
        place.isRecorded = true;
        for (WalkedFile &file : place.files) {
            if (isStopped())
                return;
            m_visit(std::move(file));
        }
        place.files.clear();
    }

    [[nodiscard]] bool isStopped() const
    {
        return m_stopRequested && m_stopRequested->load(std::memory_order_relaxed);
    }

    const FileVisitor &m_visit;
    ListedFolders *const m_listed;
    const std::atomic_bool *const m_stopRequested; ///< may be null
    std::mutex m_mutex; ///< guards the members below
    Places m_places;
    Place *m_root; ///< null when it has been entered
};

/// Turns each file that one walker finds into a WalkedFile.
class Lister final : public TreeVisitor
{
    Q_DISABLE_COPY_MOVE(Lister)
public:
    explicit Lister(OrderedFiles &files)
        : m_files(files)
    {
    }

    [[nodiscard]] Wanted enterFolder(const WalkedFolder &folder) override
    {
        m_path = folder.path();
        m_place = m_files.enter(folder.place(), m_path);
        m_isIdKnown = false;
        return Wanted::SizesAndTimes;
    }

    void visitFile(const VisitedFile &file) override
    {
        if (!m_isIdKnown)
            m_place->id = file.folder->id();
        m_isIdKnown = true;
        QString name = file.name.toString();
        QString path = joinedPath(m_path, name);
        m_found.push_back({std::move(name), std::move(path), file.size});
        if (m_found.size() == filesPerBatch)
            m_files.add(*m_place, m_found);
    }

    void leaveFolder() override
    {
        m_files.add(*m_place, m_found);
        m_files.end(m_place);
    }

    [[nodiscard]] FolderPlace *addSubfolder() override { return m_files.addSubfolder(*m_place); }
    void skipFolder(FolderPlace *place) override { m_files.end(place); }

private:
    static constexpr std::size_t filesPerBatch = 256;

    OrderedFiles &m_files;
    OrderedFiles::Place *m_place = nullptr;
    QString m_path;
    bool m_isIdKnown = false;
    std::vector<WalkedFile> m_found;
};

} // namespace

ReadFailures walkFiles(const QString &root, const WalkOptions &options, const FileVisitor &visit,
                       ListedFolders *listed)
{
    OrderedFiles files(visit, listed, options.watch.stopRequested);
    std::vector<std::unique_ptr<Lister>> listers;
    QList<TreeVisitor *> walkers;
    const int count = options.recursive ? usefulWalkers() : 1;
    for (int i = 0; i < count; ++i)
        walkers.append(listers.emplace_back(std::make_unique<Lister>(files)).get());
    return walkTree(root, options, walkers).failures;
}

} // namespace platform
