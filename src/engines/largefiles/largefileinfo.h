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
    quint64 number = 0; ///< of the file on its file system; 0 where the scan was not told
    bool isLink = false; ///< a link to a file
};

Q_DECLARE_METATYPE(LargeFileInfo)

/// The type of a file of this name, by what follows the last dot, ignoring case.
[[nodiscard]] QString largeFileType(const QString &name);
