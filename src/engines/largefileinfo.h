#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

/// One large file that a scan found.
struct LargeFileInfo {
    QString path; ///< absolute, with forward slashes
    QString name; ///< with its extension
    QString directory; ///< absolute path of its folder
    qint64 size = 0; ///< bytes
    QDateTime modified;
    QString type; ///< "video", "audio", "archive", "image", "document" or "other"
};

Q_DECLARE_METATYPE(LargeFileInfo)

/// The type of a file of this name, by what follows the last dot, ignoring case.
[[nodiscard]] QString largeFileType(const QString &name);
