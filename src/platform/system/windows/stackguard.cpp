// The number that the compiler's stack protection puts behind the local variables of a function,
// and what happens when it was overwritten.
//
// The compiler's run-time library has both. But before main() it asks the system's cryptography for
// the number. That loads libraries which look for others beside the program first, and a library
// that was planted there would run.

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr UINT exitStatus = 0xC0000409; // the system's own for an overrun of the stack

template<std::size_t size>
[[noreturn]] void endProcess(const char (&message)[size])
{
    // Nothing on the stack can be trusted any more, so nothing is cleaned up.
    const HANDLE output = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD written = 0;
    if (output && output != INVALID_HANDLE_VALUE)
        ::WriteFile(output, message, size - 1, &written, nullptr);
    ::TerminateProcess(::GetCurrentProcess(), exitStatus);
    std::abort();
}

// Spreads each bit over the whole number.
std::uint64_t mixed(std::uint64_t number)
{
    number ^= number >> 30;
    number *= 0xBF58476D1CE4E5B9;
    number ^= number >> 27;
    number *= 0x94D049BB133111EB;
    return number ^ (number >> 31);
}

} // namespace

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail()
{
    endProcess(
        "*** stack smashing detected ***: terminated\r\n"); // scripts/check-exe.sh looks for it
}

// For checked calls such as memcpy().
[[noreturn]] void __chk_fail()
{
    endProcess("*** buffer overflow detected ***: terminated\r\n");
}

// What an attacker from outside does not know of this process. A function that changes the number
// must not be protected by it.
[[gnu::constructor(101), gnu::optimize("no-stack-protector")]] void sweepwiseSetStackGuard()
{
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    LARGE_INTEGER ticks{};
    ::QueryPerformanceCounter(&ticks);
    const std::uint64_t sources[] = {
        (static_cast<std::uint64_t>(now.dwHighDateTime) << 32) | now.dwLowDateTime,
        static_cast<std::uint64_t>(ticks.QuadPart),
        (static_cast<std::uint64_t>(::GetCurrentProcessId()) << 32) | ::GetCurrentThreadId(),
        reinterpret_cast<std::uintptr_t>(&now), // the system places the stack at random
        reinterpret_cast<std::uintptr_t>(&__stack_chk_guard), // and the program
    };
    std::uint64_t number = 0;
    for (const std::uint64_t source : sources)
        number = mixed(number + 0x9E3779B97F4A7C15 + source);
    // A text that is too long ends at a zero, so it cannot repeat the number.
    __stack_chk_guard = number & ~std::uint64_t{0xFF};
}
}
