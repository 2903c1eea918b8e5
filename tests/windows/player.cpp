// The program that sample.nsi installs. Each start adds a line to C:\player.log.

#include <windows.h>

int main()
{
    const HANDLE log = ::CreateFileW(L"C:\\player.log", FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                     OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    const bool isDone = log != INVALID_HANDLE_VALUE
        && ::WriteFile(log, "started\r\n", 9, &written, nullptr) && ::CloseHandle(log);
    return isDone ? 0 : 1;
}
