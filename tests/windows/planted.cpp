// A library that notes that it ran: it makes an empty file beside itself, named after itself. It
// has no functions. Tests put copies of it beside the programs, named like libraries of the system.
#include <windows.h>

#include <string>

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void *)
{
    if (reason == DLL_PROCESS_ATTACH) {
        std::wstring path(MAX_PATH, L'\0');
        path.resize(::GetModuleFileNameW(library, path.data(), MAX_PATH));
        path += L".ran";
        ::CloseHandle(
            ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    return TRUE;
}
