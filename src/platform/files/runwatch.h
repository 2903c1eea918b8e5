#pragma once

#include <QtGlobal>

#include <atomic>

namespace platform {

/// How the owner of a long reading ends it and sees that it goes on. Both may be null, and must
/// outlive the reading. A value; any thread.
struct RunWatch {
    const std::atomic_bool *stopRequested = nullptr; ///< set to end the reading early
    /// Grows while the reading goes on: with each folder, and while a large one is read.
    std::atomic<qint64> *activity = nullptr;

    /// So many entries of a folder are read between two calls of noteActivity(): some milliseconds.
    static constexpr int entriesPerNote = 4096;

    [[nodiscard]] bool isStopped() const
    {
        return stopRequested && stopRequested->load(std::memory_order_relaxed);
    }
    void noteActivity() const
    {
        if (activity)
            activity->fetch_add(1, std::memory_order_relaxed);
    }
    /// The same for the entry @p number of a folder. The first one is 1.
    void noteEntry(int number) const
    {
        if (number % entriesPerNote == 0)
            noteActivity();
    }
};

} // namespace platform
