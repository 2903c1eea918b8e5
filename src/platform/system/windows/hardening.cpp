#include "hardening.h"

#include <windows.h>

namespace platform {

void hardenProcess()
{
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    ::SetDllDirectoryW(L"");
}

} // namespace platform
