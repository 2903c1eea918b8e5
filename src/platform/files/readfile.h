#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/// The whole contents of the file at @p path. Links in the path are followed. Only a regular file
/// is read: a pipe could make the program wait for ever. Nothing when the file cannot be read as a
/// whole or has more than @p maximumSize bytes; then @p error says why, for people.
[[nodiscard]] std::optional<QByteArray> readFile(const QString &path, qint64 maximumSize,
                                                 QString &error);

} // namespace platform
