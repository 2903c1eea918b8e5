#include "filesync.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>

#include <io.h>
#include <windows.h>

namespace platform {

bool writeToDisk(QFileDevice &file, const QByteArray &bytes, QString &error)
{
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        error = file.errorString();
        return false;
    }
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(file.handle()));
    if (::FlushFileBuffers(handle))
        return true;
    error = qt_error_string();
    return false;
}

// The file system's journal has a name before the call that gave it returns.
bool syncFolder(const QString &, QString &)
{
    return true;
}

} // namespace platform
