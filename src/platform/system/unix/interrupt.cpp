#include "interrupt.h"

#include <array>
#include <utility>

#include <csignal>
#include <unistd.h>

namespace platform::interrupt {

namespace {

/// A signal that asks the program to end.
struct EndSignal {
    int number = 0;
    bool isCaught = false;
};

std::array<EndSignal, 3> endSignals{EndSignal{SIGINT}, EndSignal{SIGTERM}, EndSignal{SIGHUP}};

std::atomic_bool requested = false;
std::atomic_bool isUserWaiting = false;
std::atomic_int firstSignal = 0;
static_assert(std::atomic_int::is_always_lock_free); // a signal handler may use no lock

// Shells and session managers send SIGHUP right before or after another signal, and the kernel
// sends another when a terminal is closed. So it is never a second request.
void onSignal(int number)
{
    int none = 0;
    firstSignal.compare_exchange_strong(none, number);
    if (number != SIGHUP && isUserWaiting.exchange(true))
        ::_exit(128 + number);
    requested = true;
}

} // namespace

// A program that was started with nohup goes on without its terminal, and one that a script put
// into the background is not meant by the Ctrl+C for the script.
void catchRequests()
{
    for (EndSignal &signal : endSignals) {
        struct sigaction action = {};
        if (::sigaction(signal.number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = onSignal;
        // The first of two is noted first, also if both have come before the handler runs.
        for (const EndSignal &other : endSignals)
            ::sigaddset(&action.sa_mask, other.number);
        action.sa_flags = SA_RESTART;
        signal.isCaught = ::sigaction(signal.number, &action, nullptr) == 0;
    }
}

void releaseRequests()
{
    for (EndSignal &signal : endSignals) {
        if (std::exchange(signal.isCaught, false))
            std::signal(signal.number, SIG_DFL);
    }
}

const std::atomic_bool &isRequested()
{
    return requested;
}

int exitStatus()
{
    const int number = firstSignal;
    return number == 0 ? 0 : 128 + number;
}

} // namespace platform::interrupt
