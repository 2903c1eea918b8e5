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

// The file system has the name in its journal when the call that made it returns.
bool syncFolder(const QString &, QString &)
{
    return true;
}

} // namespace platform
