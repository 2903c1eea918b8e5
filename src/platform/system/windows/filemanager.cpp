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
    // The full path is used, because the current folder can contain another program of that name.
    const QString folder = systemFolder();
    if (folder.isEmpty())
        return false;
    QProcess explorer;
    explorer.setProgram(folder + "\\explorer.exe"_L1);
    // Explorer parses its command line itself. A comma ends a path that is not in quotes, and
    // QProcess adds quotes only for blanks. A path cannot contain a quote.
    explorer.setNativeArguments("/select, \""_L1 + QDir::toNativeSeparators(path) + u'"');
    return explorer.startDetached();
}

} // namespace platform
