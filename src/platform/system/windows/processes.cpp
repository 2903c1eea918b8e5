#include "processes.h"

#include <windows.h>

#include <tlhelp32.h>

namespace platform {

std::optional<QSet<QString>> runningPrograms()
{
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE)
        return {};
    QSet<QString> names;
    PROCESSENTRY32W process{};
    process.dwSize = sizeof process;
    for (BOOL found = ::Process32FirstW(snapshot, &process); found;
         found = ::Process32NextW(snapshot, &process))
        names.insert(QString::fromWCharArray(process.szExeFile).toLower());
    ::CloseHandle(snapshot);
    // This process is always among them.
    return names.isEmpty() ? std::nullopt : std::optional(names);
}

} // namespace platform
