// Calls a function that is loaded by its first call, as the two programs do it. The argument says
// which: one of a library that there is not ("library"), one that the library lacks ("function"),
// or one that there is ("present"). With "careless" it loads the library that a second argument
// names, and searches as Windows does for any program.
#include <windows.h>

#include <cstring>

extern "C" {
__declspec(dllimport) int functionOfNoLibrary();
__declspec(dllimport) int functionThatVersionLacks();
}

int main(int argc, char *argv[])
{
    const char *which = argc > 1 ? argv[1] : "";
    if (std::strcmp(which, "library") == 0)
        return functionOfNoLibrary();
    if (std::strcmp(which, "function") == 0)
        return functionThatVersionLacks();
    if (std::strcmp(which, "careless") == 0)
        return ::LoadLibraryA(argv[2]) ? 0 : 1;
    wchar_t language[100];
    return ::VerLanguageNameW(0x0409, language, 100) > 0 ? 0 : 1;
}
