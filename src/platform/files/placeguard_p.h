#pragma once

#include "entry.h"

#include <chrono>

#ifdef Q_OS_LINUX
#include <time.h>
#endif

namespace platform {

/// Checks that an open folder is still at its path. An open folder stays usable when somebody moves
/// it, and its entries would be removed at the new place. The check is repeated after a number of
/// entries and after a short time. A FileRemover owns one for the folder of its entries, and the
/// removal of a folder owns one for its levels.
class PlaceGuard final
{
public:
    /// To be called before each removal from the open folder @p id. @p idAtPath returns the id of
    /// the folder that is at its path now.
    template<class IdAtPath>
    [[nodiscard]] bool isInPlace(const EntryId &id, const IdAtPath &idAtPath)
    {
        if (--m_entriesUntilCheck >= 0 && Clock::now() - m_lastCheck < recheckInterval)
            return true;
        restartInterval();
        const EntryId there = idAtPath();
        return there.isKnown() && there == id;
    }
    /// Tells that the folder was opened by its path just now.
    void restartInterval()
    {
        m_entriesUntilCheck = entriesPerCheck - 1;
        m_lastCheck = Clock::now();
    }

private:
#ifdef Q_OS_LINUX
    // It is asked once an entry, and this one costs a quarter of the other.
    struct Clock {
        using time_point = std::chrono::steady_clock::time_point;
        static time_point now()
        {
            timespec time{};
            ::clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
            return time_point(std::chrono::seconds(time.tv_sec)
                              + std::chrono::nanoseconds(time.tv_nsec));
        }
    };
#else
    using Clock = std::chrono::steady_clock;
#endif

    static constexpr int entriesPerCheck = 32;
    static constexpr std::chrono::milliseconds recheckInterval{5};

    int m_entriesUntilCheck = 0;
    Clock::time_point m_lastCheck;
};

} // namespace platform
