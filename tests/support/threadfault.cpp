#include "threadfault.h"

#include <QtGlobal>

#include <atomic>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>

#include <dlfcn.h>
#include <pthread.h>
#endif

namespace {

std::atomic_int faults = 0;

} // namespace

ThreadFault::ThreadFault()
{
    ++faults;
}

ThreadFault::~ThreadFault()
{
    --faults;
}

#ifdef Q_OS_WIN

namespace {

HANDLE WINAPI createThread(LPSECURITY_ATTRIBUTES attributes, SIZE_T stack,
                           LPTHREAD_START_ROUTINE start, LPVOID argument, DWORD flags, LPDWORD id)
{
    if (faults > 0) {
        ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    using Function = decltype(&createThread);
    static const auto real = reinterpret_cast<Function>(reinterpret_cast<void *>(
        ::GetProcAddress(::GetModuleHandleW(L"kernel32"), "CreateThread")));
    return real(attributes, stack, start, argument, flags, id);
}

} // namespace

// The toolkit calls the system through this pointer, which the linker takes from here.
extern decltype(&createThread) const importedCreateThread asm("__imp_CreateThread");
decltype(&createThread) const importedCreateThread = &createThread;

#else

// The program's own function comes before that of the library.
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes,
                              void *(*start)(void *), void *argument)
{
    if (faults > 0)
        return EAGAIN;
    static const auto real =
        reinterpret_cast<decltype(&::pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
    return real(thread, attributes, start, argument);
}

#endif
