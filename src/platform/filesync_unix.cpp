#include "filesync.h"

#include <QByteArray>
#include <QFileDevice>

#include <cerrno>

#include <unistd.h>

namespace platform {

bool writeToDisk(QFileDevice &file, const QByteArray &bytes, QString &error)
{
    errno = 0;
    // Some file systems cannot be asked to sync.
    if (file.write(bytes) == bytes.size() && file.flush()
        && (::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP))
        return true;
    // When a part got onto the disk before it was full, the file has no word for it.
    const int code = errno;
    error = code != 0 ? qt_error_string(code) : file.errorString();
    return false;
}

} // namespace platform
