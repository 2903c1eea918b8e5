#include "processes.h"

#include <windows.h>

#include <tlhelp32.h>

namespace platform {

QSet<QString> runningPrograms()
{
    QSet<QString> names;
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE)
        return names;
    PROCESSENTRY32W process{};
    process.dwSize = sizeof process;
    for (BOOL found = ::Process32FirstW(snapshot, &process); found;
         found = ::Process32NextW(snapshot, &process))
        names.insert(QString::fromWCharArray(process.szExeFile).toLower());
    ::CloseHandle(snapshot);
    return names;
}

} // namespace platform
