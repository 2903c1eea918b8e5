#include "filesync.h"

#include "unix/openfolder.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

bool writeToDisk(QFileDevice &file, const QByteArray &bytes, QString &error)
{
    errno = 0;
    // Some file systems do not support fsync().
    if (file.write(bytes) == bytes.size() && file.flush()
        && (::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP))
        return true;
    // If the disk became full in the middle of the write, QFileDevice has no error text.
    const int code = errno;
    error = code != 0 ? qt_error_string(code) : file.errorString();
    return false;
}

bool syncFolder(const QString &folder, QString &error)
{
    const UniqueFd fd(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.isValid() && (::fsync(fd.get()) == 0 || errno == EINVAL || errno == ENOTSUP))
        return true;
    error = qt_error_string(errno);
    return false;
}

} // namespace platform
