#include "interrupt.h"

#include <windows.h>

namespace platform::interrupt {

namespace {

// The statuses that a shell on other systems reports for SIGINT and SIGTERM.
constexpr int interruptedStatus = 130;
constexpr int terminatedStatus = 143;

std::atomic_bool isCatching = false;
std::atomic_bool requested = false;
std::atomic_int firstStatus = 0;

// The system calls it on a thread of its own.
BOOL WINAPI onRequest(DWORD event)
{
    if (!isCatching)
        return FALSE;
    const bool isKey = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    const int status = isKey ? interruptedStatus : terminatedStatus;
    int none = 0;
    if (!firstStatus.compare_exchange_strong(none, status))
        ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(status));
    requested = true;
    // When the console or the session closes, the system ends the process as soon as this function
    // returns. It waits a few seconds for that.
    if (!isKey)
        ::Sleep(INFINITE);
    return TRUE;
}

} // namespace

void catchRequests()
{
    isCatching = true;
    ::SetConsoleCtrlHandler(onRequest, TRUE);
}

void releaseRequests()
{
    // The system holds a lock while the function that waits for the end runs. To take the function
    // from the system's list would need the same lock.
    isCatching = false;
}

const std::atomic_bool &isRequested()
{
    return requested;
}

int exitStatus()
{
    return firstStatus;
}

} // namespace platform::interrupt
