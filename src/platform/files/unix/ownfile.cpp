#include "ownfile.h"

#include "filesync.h"
#include "unix/openfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

bool openForAppending(const QString &path, QFile &file, QString &error)
{
    // Without O_NONBLOCK, opening a pipe waits for its reader.
    UniqueFd fd(
        ::open(QFile::encodeName(path).constData(),
               O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
               S_IRUSR | S_IWUSR));
    FileStatus status{};
    if (!fd.isValid() || ::fstat(fd.get(), &status) != 0) {
        error = qt_error_string(errno);
        return false;
    }
    const bool isOurs =
        S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink <= 1;
    if (!isOurs) {
        error = qt_error_string(EPERM);
        return false;
    }
    if (!file.open(fd.get(), QIODevice::Append | QIODevice::Text, QFileDevice::AutoCloseHandle)) {
        error = file.errorString();
        return false;
    }
    fd.release();
    return true;
}

bool isOwnFile(const QString &path)
{
    FileStatus status{};
    return ::geteuid() == 0
        || (::lstat(QFile::encodeName(path).constData(), &status) == 0
            && status.st_uid == ::geteuid());
}

bool makePrivateFolder(const QString &path, QString &error)
{
    const QByteArray encoded = QFile::encodeName(QDir::cleanPath(QDir(path).absolutePath()));
    // The system tells of a folder that is there already, also where this user may make none.
    for (qsizetype end = 0; end < encoded.size();) {
        end = encoded.indexOf('/', end + 1);
        if (end < 0)
            end = encoded.size();
        const QByteArray folder = encoded.left(end);
        if (::mkdir(folder.constData(), S_IRWXU) == 0)
            continue;
        const int reason = errno;
        FileStatus status{};
        if (::stat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode))
            continue;
        error = qt_error_string(reason == EEXIST ? ENOTDIR : reason);
        return false;
    }
    return true;
}

void makePrivateFile(const QString &path)
{
    const UniqueFd fd(::open(QFile::encodeName(path).constData(),
                             O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                             S_IRUSR | S_IWUSR));
}

bool replaceFile(const QString &path, const QByteArray &bytes,
                 const std::function<QString()> &findProblem, QString &error)
{
    // A rename would replace a write-protected file too.
    if (::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) != 0
        && errno != ENOENT) {
        error = qt_error_string(errno);
        return false;
    }
    const QString folder = QFileInfo(path).absolutePath();
    // It is made for the user alone. QSaveFile would first make it for everybody.
    QTemporaryFile file(folder + "/.sweepwise-XXXXXX"_L1);
    if (!file.open()) {
        error = file.errorString();
        return false;
    }
    if (!writeToDisk(file, bytes, error))
        return false;
    error = findProblem();
    if (!error.isEmpty())
        return false;
    // A file without a name gets one when it is asked for.
    const QByteArray temporaryPath = QFile::encodeName(file.fileName());
    if (std::rename(temporaryPath.constData(), QFile::encodeName(path).constData()) != 0) {
        error = qt_error_string(errno);
        return false;
    }
    file.setAutoRemove(false);
    return syncFolder(folder, error);
}

} // namespace platform
