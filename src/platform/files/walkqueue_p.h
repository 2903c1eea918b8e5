#pragma once

#include <QtGlobal>

#include <atomic>
#include <condition_variable>
#include <iterator>
#include <mutex>
#include <utility>
#include <vector>

namespace platform {

/// The folders that the walkers of one walk still have to read. Any walker's thread.
///
/// The folders that were added last are read first, which keeps the queue short. Links are read
/// when nothing else waits and no walker can add anything: by then each folder that can be reached
/// by its own path has been read by that path. walkTree() owns the queue of a walk.
template<class Folder, class Link>
class WalkQueue final
{
    Q_DISABLE_COPY_MOVE(WalkQueue)
public:
    explicit WalkQueue(const std::atomic_bool *stopRequested)
        : m_stopRequested(stopRequested)
    {
    }

    /// Takes over @p folders, which come next and in their order, and leaves the list empty.
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

    /// The first walker reads the root, which never was in this queue, between begin() and end():
    /// meanwhile the others do not end, but wait for the subfolders that it will add.
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

    /// Has @p read called with one folder or link after the other until none is left or the walk is
    /// stopped.
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
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    std::vector<Folder> m_folders;
    std::vector<Link> m_links;
    int m_busyWalkers = 0; ///< walkers that are reading
};

} // namespace platform
