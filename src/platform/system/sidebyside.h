#pragma once

#include <QThread>

#include <system_error>
#include <thread>
#include <vector>

namespace platform {

/// The number of threads that help to walk folders on this machine. More would only wait for each
/// other and for the disk.
[[nodiscard]] inline int usefulWalkers()
{
    constexpr int most = 2;
    return qBound(1, QThread::idealThreadCount(), most);
}

/// Calls @p work with 0 on this thread, and with each number from 1 to @p count - 1 on a thread of
/// its own. Returns when all calls have returned. If the system cannot make a thread, the calls
/// with the last numbers are left out: whoever is called must be able to do all the work. @p work
/// throws nothing: on the other threads that would end the program in any case.
template<class Work>
void runSideBySide(int count, const Work &work) noexcept
{
    std::vector<std::jthread> others;
    try {
        for (int number = 1; number < count; ++number)
            others.emplace_back([&work, number] { work(number); });
    } catch (const std::system_error &) {
        // Those that there are do all the work.
    }
    work(0);
}

} // namespace platform
