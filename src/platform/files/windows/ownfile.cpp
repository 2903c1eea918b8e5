#include "ownfile.h"

#include "entry.h"
#include "filesync.h"
#include "windows/openentry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace platform {

bool openForAppending(const QString &path, QFile &file, QString &error)
{
    const QString extended = extendedPath(path);
    HANDLE handle = ::CreateFileW(reinterpret_cast<const wchar_t *>(extended.utf16()),
                                  FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        error = qt_error_string();
        return false;
    }
    UniqueHandle owner(handle);
    BY_HANDLE_FILE_INFORMATION info{};
    const bool isFile = ::GetFileType(handle) == FILE_TYPE_DISK
        && ::GetFileInformationByHandle(handle, &info) && info.nNumberOfLinks <= 1
        && (info.dwFileAttributes & (FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY)) == 0;
    if (!isFile) {
        error = qt_error_string(ERROR_ACCESS_DENIED);
        return false;
    }
    // From here on the descriptor owns the handle.
    const int fd = ::_open_osfhandle(reinterpret_cast<intptr_t>(owner.release()), _O_APPEND);
    if (fd != -1
        && file.open(fd, QIODevice::Append | QIODevice::Text, QFileDevice::AutoCloseHandle))
        return true;
    error = file.errorString();
    if (fd != -1)
        ::_close(fd);
    return false;
}

bool isOwnFile(const QString &)
{
    return true;
}

bool makePrivateFolder(const QString &path, QString &error)
{
    if (QDir().mkpath(path))
        return true;
    error = qt_error_string();
    return false;
}

void makePrivateFile(const QString &) { }

bool replaceFile(const QString &path, const QByteArray &bytes,
                 const std::function<QString()> &findProblem, QString &error)
{
    // QSaveFile would replace the target of a link.
    if (inspect(path).kind == EntryKind::Link) {
        error = qt_error_string(ERROR_ACCESS_DENIED);
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        error = file.errorString();
        return false;
    }
    if (!writeToDisk(file, bytes, error))
        return false;
    error = findProblem();
    if (!error.isEmpty())
        return false;
    if (!file.commit()) {
        error = file.errorString();
        return false;
    }
    return syncFolder(QFileInfo(path).absolutePath(), error);
}

} // namespace platform
