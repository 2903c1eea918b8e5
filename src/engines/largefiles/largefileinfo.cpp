#include "largefileinfo.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString largeFileType(const QString &name)
{
    static const QStringList video{u"mp4"_s, u"mkv"_s,  u"avi"_s, u"mov"_s,  u"wmv"_s,
                                   u"flv"_s, u"webm"_s, u"m4v"_s, u"mpeg"_s, u"mpg"_s};
    static const QStringList audio{u"mp3"_s, u"wav"_s, u"flac"_s, u"aac"_s,
                                   u"wma"_s, u"ogg"_s, u"m4a"_s};
    static const QStringList archive{u"zip"_s, u"rar"_s, u"7z"_s,  u"tar"_s,
                                     u"gz"_s,  u"bz2"_s, u"iso"_s, u"dmg"_s};
    static const QStringList image{u"jpg"_s, u"jpeg"_s, u"png"_s, u"gif"_s, u"bmp"_s,
                                   u"psd"_s, u"tiff"_s, u"raw"_s, u"svg"_s};
    static const QStringList document{u"pdf"_s,  u"doc"_s, u"docx"_s, u"xls"_s,
                                      u"xlsx"_s, u"ppt"_s, u"pptx"_s};

    const qsizetype dot = name.lastIndexOf(u'.');
    const QString suffix = dot < 0 ? QString() : name.mid(dot + 1).toLower();
    if (video.contains(suffix))
        return u"video"_s;
    if (audio.contains(suffix))
        return u"audio"_s;
    if (archive.contains(suffix))
        return u"archive"_s;
    if (image.contains(suffix))
        return u"image"_s;
    if (document.contains(suffix))
        return u"document"_s;
    return u"other"_s;
}
