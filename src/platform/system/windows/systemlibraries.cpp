// How the two programs find the libraries of the system.
//
// Windows loads what a program imports before main(), and looks beside the program first. Only the
// libraries that it keeps as known come from the system folder in any case. A library that was
// planted beside the program would run with the rights of the user. So:
//
// - The programs import kernel32 and msvcrt, which Windows keeps as known. All other libraries are
//   loaded by the first call of one of their functions, here, and from the system folder alone.
// - The load configuration tells Windows to look for imports in the system folder alone.
//
// cmake/WindowsProgram.cmake makes the import libraries that call this file.

#include <windows.h>
// This header needs the one above.
#include <delayimp.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" const char __ImageBase;

namespace {

constexpr UINT exitStatus = 126;
constexpr std::size_t longestMessage = 400;

/// What an address in a delay-import table stands for. They are relative to the program's start.
template<typename T>
T *at(std::uint64_t address)
{
    return reinterpret_cast<T *>(reinterpret_cast<std::uintptr_t>(&__ImageBase) + address);
}

/// Ends the program. The caller of a function that there is not cannot go on: it expects a result.
[[noreturn]] void giveUp(const char *library, const char *function)
{
    std::array<char, longestMessage> message{};
    const auto append = [&message](const char *text) {
        std::strncat(message.data(), text, message.size() - std::strlen(message.data()) - 1);
    };
    append("The system library ");
    append(library);
    append(function ? " lacks the function " : " cannot be loaded");
    append(function ? function : "");
    append(".\r\n");
    const HANDLE output = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD written = 0;
    if (output && output != INVALID_HANDLE_VALUE) {
        ::WriteFile(output, message.data(), static_cast<DWORD>(std::strlen(message.data())),
                    &written, nullptr);
    } else {
        // A program with windows has no such output. This shows a message of the system.
        ::FatalAppExitA(0, message.data());
    }
    // Destructors might need the library that is missing.
    ::TerminateProcess(::GetCurrentProcess(), exitStatus);
    std::abort();
}

constexpr IMAGE_LOAD_CONFIG_DIRECTORY64 loadConfiguration()
{
    IMAGE_LOAD_CONFIG_DIRECTORY64 configuration{};
    configuration.Size = sizeof configuration;
    // The compiler's headers do not name the field yet. It is DependentLoadFlags.
    configuration.Reserved1 = LOAD_LIBRARY_SEARCH_SYSTEM32;
    return configuration;
}

} // namespace

/// The delay-import libraries call this by the name that the linker's tools fix. It finds the
/// function and stores its address, so that the next call goes there directly. Threads may do so at
/// the same time: each stores the same address. It may run before main().
///
/// The caller saves the integer arguments of the function, not those in floating-point registers:
/// no function that takes such an argument may be imported late.
extern "C" FARPROC WINAPI __delayLoadHelper2(PCImgDelayDescr table, FARPROC *slot)
{
    const DWORD lastError = ::GetLastError();
    const char *library = at<char>(table->rvaDLLName);
    const HMODULE module = ::LoadLibraryExA(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (!module)
        giveUp(library, nullptr);
    // The names are in a table of the same order as the addresses.
    const auto index = slot - at<FARPROC>(table->rvaIAT);
    const IMAGE_THUNK_DATA &entry = at<IMAGE_THUNK_DATA>(table->rvaINT)[index];
    const char *name = at<IMAGE_IMPORT_BY_NAME>(entry.u1.AddressOfData)->Name;
    const FARPROC function = ::GetProcAddress(module, name);
    if (!function)
        giveUp(library, name);
    *slot = function;
    // Callers look at the error of their call, which may leave it alone when it succeeds.
    ::SetLastError(lastError);
    return function;
}

/// The linker does not know it: scripts/finish-exe.py finds its section and enters it in the
/// program's header.
extern "C" {
[[gnu::section(".loadcfg")]] extern constexpr IMAGE_LOAD_CONFIG_DIRECTORY64 _load_config_used =
    loadConfiguration();
}
