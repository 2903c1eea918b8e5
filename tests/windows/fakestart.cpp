#include "fakestart.h"

#include <windows.h>

namespace {

bool isActive = false;
QString lastProgram;
QString lastCommand;

BOOL WINAPI createProcess(LPCWSTR program, LPWSTR command, LPSECURITY_ATTRIBUTES process,
                          LPSECURITY_ATTRIBUTES thread, BOOL inherit, DWORD flags,
                          LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW startup,
                          LPPROCESS_INFORMATION information)
{
    if (isActive) {
        lastProgram = program ? QString::fromWCharArray(program) : QString();
        lastCommand = QString::fromWCharArray(command);
        *information = {};
        return TRUE;
    }
    static const auto systemFunction =
        reinterpret_cast<decltype(&createProcess)>(reinterpret_cast<void *>(
            ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "CreateProcessW")));
    return systemFunction(program, command, process, thread, inherit, flags, environment, folder,
                          startup, information);
}

} // namespace

// The linker takes this entry of the program's import table instead of the system's.
extern "C" {
extern decltype(&createProcess) const importedCreateProcess asm("__imp_CreateProcessW");
decltype(&createProcess) const importedCreateProcess = createProcess;
}

FakeStart::FakeStart()
{
    lastProgram.clear();
    lastCommand.clear();
    isActive = true;
}

FakeStart::~FakeStart()
{
    isActive = false;
}

QString FakeStart::program() const
{
    return lastProgram;
}

QString FakeStart::command() const
{
    return lastCommand;
}
