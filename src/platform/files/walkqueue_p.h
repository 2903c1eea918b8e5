#pragma once

#include <QtGlobal>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <iterator>
#include <list>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

/// The folders that the walkers of one walk still have to read. walkTree() owns it, and every
/// walker's thread uses it.
///
/// The walkers take the folders in the order in which a single one reads them: the subfolders of a
/// folder before everything that waits behind it. That keeps the queue short, and little of what
/// they find has to wait for its turn. A link is read only when the queue holds no folder and no
/// walker is busy. By then each folder below the root has been read by its own path.
template<class Folder, class Link>
class WalkQueue final
{
    Q_DISABLE_COPY_MOVE(WalkQueue)

    /// An entry without a value stands for a folder that is being read.
    using Folders = std::list<std::optional<Folder>>;

public:
    /// The place of a folder that is being read.
    using Position = typename Folders::iterator;

    explicit WalkQueue(const std::atomic_bool *stopRequested)
        : m_stopRequested(stopRequested)
    {
    }

    /// Moves @p folders into the queue and leaves the list empty. They are subfolders of the folder
    /// at @p position, and are read in their order, after those that were added before.
    void add(Position position, std::vector<Folder> &folders)
    {
        if (folders.empty())
            return;
        Folders added(std::make_move_iterator(folders.begin()),
                      std::make_move_iterator(folders.end()));
        folders.clear();
        const std::lock_guard lock(m_mutex);
        m_folders.splice(position, added);
        m_changed.notify_all();
    }

    void addLink(Link link)
    {
        const std::lock_guard lock(m_mutex);
        m_links.push_back(std::move(link));
    }

    /// The first walker calls these before and after it reads the root, which is not in the queue.
    /// In between, the other walkers wait for its subfolders instead of ending.
    [[nodiscard]] Position beginRoot()
    {
        const std::lock_guard lock(m_mutex);
        ++m_busyWalkers;
        return m_folders.emplace(m_folders.end());
    }
    void endRoot(Position position)
    {
        const std::lock_guard lock(m_mutex);
        endReading(position);
    }

    /// Calls @p read with one folder or link after the other and its position. Ends when the queue
    /// is empty and no walker is busy, or when the walk is stopped.
    template<class Read>
    void process(const Read &read)
    {
        std::unique_lock lock(m_mutex);
        while (!isStopped()) {
            const auto first = std::find_if(m_folders.begin(), m_folders.end(),
                                            [](const auto &folder) { return folder.has_value(); });
            if (first != m_folders.end()) {
                Folder folder = std::move(first->value());
                first->reset();
                run(lock, read, std::move(folder), first);
            } else if (m_busyWalkers > 0) {
                m_changed.wait(lock);
            } else if (!m_links.empty()) {
                Link link = std::move(m_links.back());
                m_links.pop_back();
                run(lock, read, std::move(link), m_folders.emplace(m_folders.end()));
            } else {
                break;
            }
        }
        m_changed.notify_all();
    }

private:
    bool isStopped() const
    {
        return m_stopRequested && m_stopRequested->load(std::memory_order_relaxed);
    }

    template<class Read, class Work>
    void run(std::unique_lock<std::mutex> &lock, const Read &read, Work work, Position position)
    {
        ++m_busyWalkers;
        lock.unlock();
        read(std::move(work), position);
        lock.lock();
        endReading(position);
    }

    void endReading(Position position)
    {
        m_folders.erase(position);
        if (--m_busyWalkers == 0)
            m_changed.notify_all();
    }

    const std::atomic_bool *const m_stopRequested;
    std::mutex m_mutex; ///< guards the members below
    std::condition_variable m_changed;
    Folders m_folders;
    std::vector<Link> m_links;
    int m_busyWalkers = 0; ///< walkers that are reading
};

} // namespace platform
