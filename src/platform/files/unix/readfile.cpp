#include "readfile.h"

#include "unix/openfolder.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace platform {

std::optional<QByteArray> readFile(const QString &path, qint64 maximumSize, QString &error)
{
    const auto fail = [&error](int number) {
        error = reasonOf(number);
        return std::nullopt;
    };
    // Without O_NONBLOCK, opening a pipe waits for its writer.
    const UniqueFd fd(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    FileStatus status{};
    if (!fd.isValid() || ::fstat(fd.get(), &status) != 0)
        return fail(errno);
    if (!S_ISREG(status.st_mode)) {
        error = u"it is no ordinary file"_s;
        return std::nullopt;
    }
    if (status.st_size > maximumSize)
        return fail(EFBIG);
    QByteArray content(status.st_size, Qt::Uninitialized);
    qsizetype size = 0;
    while (size < content.size()) {
        const ssize_t count = ::read(fd.get(), content.data() + size,
                                     static_cast<std::size_t>(content.size() - size));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return fail(errno);
        if (count == 0)
            return fail(EIO); // it became shorter meanwhile
        size += count;
    }
    return content;
}

} // namespace platform
