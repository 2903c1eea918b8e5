#include "filemanager.h"

#include <QDir>
#include <QProcess>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString systemFolder()
{
    wchar_t buffer[MAX_PATH];
    const UINT length = ::GetWindowsDirectoryW(buffer, MAX_PATH);
    return length > 0 && length < MAX_PATH
        ? QString::fromWCharArray(buffer, static_cast<int>(length))
        : QString();
}

} // namespace

bool revealFile(const QString &path)
{
    // By its full path: a program of that name in the current folder is not the system's.
    const QString folder = systemFolder();
    if (folder.isEmpty())
        return false;
    QProcess explorer;
    explorer.setProgram(folder + "\\explorer.exe"_L1);
    // Explorer reads its command line itself and takes a comma for the end of a path unless the
    // path is in quotes, which QProcess would set for blanks alone. A path cannot hold a quote.
    explorer.setNativeArguments("/select, \""_L1 + QDir::toNativeSeparators(path) + u'"');
    return explorer.startDetached();
}

} // namespace platform
