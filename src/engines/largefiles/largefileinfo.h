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
    quint64 number = 0; ///< the file's number on its file system; 0 when unknown
    bool isLink = false; ///< the entry is a link to a file
};

Q_DECLARE_METATYPE(LargeFileInfo)

/// The type of a file with this @p name. The part after the last dot decides; case is ignored.
[[nodiscard]] QString largeFileType(const QString &name);
