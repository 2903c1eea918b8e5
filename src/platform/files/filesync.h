#pragma once

class QByteArray;
class QFileDevice;
class QString;

namespace platform {

/// Writes @p bytes to the open @p file and waits until they are on the disk. On failure @p error
/// says why.
[[nodiscard]] bool writeToDisk(QFileDevice &file, const QByteArray &bytes, QString &error);

/// Waits until the names in @p folder are on the disk, for instance after a rename into it. On
/// failure @p error says why.
[[nodiscard]] bool syncFolder(const QString &folder, QString &error);

} // namespace platform
