#include <windows.h>

#include <cstdio>

// What every program calls instead of exit(), main()'s return included (the linker sees to it).
//
// exit() destroys the objects of the C++ run-time library, one of which takes a lock to give up its
// thread-local storage. A thread that ends at that very moment holds the lock for reading, and on a
// busy machine its release does not wake the waiter: the program has done everything and never
// ends. A worker that has just posted its result, or Qt Test's watchdog, is such a thread. What is
// to be written is written by then, and the system takes back the rest.
extern "C" [[noreturn]] void __wrap_exit(int code)
{
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(code));
    __builtin_unreachable();
}
