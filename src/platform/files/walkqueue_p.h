#pragma once

#include <QtGlobal>

#include <atomic>
#include <condition_variable>
#include <iterator>
#include <mutex>
#include <utility>
#include <vector>

namespace platform {

/// The folders that the walkers of one walk still have to read. walkTree() owns it, and every
/// walker's thread uses it.
///
/// The folders that were added last are read first, which keeps the queue short. A link is read
/// only when the queue holds no folder and no walker is busy. By then each folder below the root
/// has been read by its own path.
template<class Folder, class Link>
class WalkQueue final
{
    Q_DISABLE_COPY_MOVE(WalkQueue)
public:
    explicit WalkQueue(const std::atomic_bool *stopRequested)
        : m_stopRequested(stopRequested)
    {
    }

    /// Moves @p folders into the queue and leaves the list empty. They are read next, in their
    /// order.
    void add(std::vector<Folder> &folders)
    {
        if (folders.empty())
            return;
        const std::lock_guard lock(m_mutex);
        m_folders.insert(m_folders.end(), std::make_move_iterator(folders.rbegin()),
                         std::make_move_iterator(folders.rend()));
        folders.clear();
        m_changed.notify_all();
    }

    void addLink(Link link)
    {
        const std::lock_guard lock(m_mutex);
        m_links.push_back(std::move(link));
    }

    /// The first walker calls these before and after it reads the root, which is not in the queue.
    /// In between, the other walkers wait for its subfolders instead of ending.
    void beginRoot()
    {
        const std::lock_guard lock(m_mutex);
        ++m_busyWalkers;
    }
    void endRoot()
    {
        const std::lock_guard lock(m_mutex);
        endReading();
    }

    /// Calls @p read with one folder or link after the other. Ends when the queue is empty and no
    /// walker is busy, or when the walk is stopped.
    template<class Read>
    void process(const Read &read)
    {
        std::unique_lock lock(m_mutex);
        while (!isStopped()) {
            if (!m_folders.empty()) {
                Folder folder = std::move(m_folders.back());
                m_folders.pop_back();
                run(lock, read, std::move(folder));
            } else if (m_busyWalkers > 0) {
                m_changed.wait(lock);
            } else if (!m_links.empty()) {
                Link link = std::move(m_links.back());
                m_links.pop_back();
                run(lock, read, std::move(link));
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
    void run(std::unique_lock<std::mutex> &lock, const Read &read, Work work)
    {
        ++m_busyWalkers;
        lock.unlock();
        read(std::move(work));
        lock.lock();
        endReading();
    }

    void endReading()
    {
        if (--m_busyWalkers == 0)
            m_changed.notify_all();
    }

    const std::atomic_bool *const m_stopRequested;
    std::mutex m_mutex; ///< guards the members below
    std::condition_variable m_changed;
    std::vector<Folder> m_folders;
    std::vector<Link> m_links;
    int m_busyWalkers = 0; ///< walkers that are reading
};

} // namespace platform
