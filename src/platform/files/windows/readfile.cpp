#include "readfile.h"

#include <QFile>

#include <windows.h>

namespace platform {

std::optional<QByteArray> readFile(const QString &path, qint64 maximumSize, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    if (file.isSequential() || file.size() > maximumSize) {
        error = qt_error_string(file.isSequential() ? ERROR_BAD_FILE_TYPE : ERROR_FILE_TOO_LARGE);
        return std::nullopt;
    }
    const qint64 size = file.size();
    QByteArray content = file.read(size);
    if (file.error() == QFileDevice::NoError && content.size() == size)
        return content;
    error = file.error() == QFileDevice::NoError ? qt_error_string(ERROR_HANDLE_EOF)
                                                 : file.errorString();
    return std::nullopt;
}

} // namespace platform
