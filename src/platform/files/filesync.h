#pragma once

class QByteArray;
class QFileDevice;
class QString;

namespace platform {

/// Writes @p bytes to the open @p file and waits until they are on the disk. If that fails, @p
/// error says why.
[[nodiscard]] bool writeToDisk(QFileDevice &file, const QByteArray &bytes, QString &error);

/// Waits until the names in @p folder are on the disk, for instance after a file was renamed into
/// it.
[[nodiscard]] bool syncFolder(const QString &folder, QString &error);

} // namespace platform
