#include "svgicon.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

// Changes the colour of each pixel and keeps its alpha. The format stores colours and alpha
// separately, so the shape does not change.
void recolour(QImage &image, const QColor &tint)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(line[x]);
            if (alpha > 0)
                line[x] = qRgba(tint.red(), tint.green(), tint.blue(), alpha);
        }
    }
}

} // namespace

QPixmap svgPixmap(const QString &path, QSize size, qreal ratio, std::optional<QColor> tint)
{
    if (path.isEmpty() || !QFile::exists(path))
        return {};
    // A list has the same icon in each row.
    const QString key = u"svg %1 %2x%3 %4 %5"_s.arg(
        path, QString::number(size.width()), QString::number(size.height()), QString::number(ratio),
        tint ? tint->name(QColor::HexArgb) : QString());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QSvgRenderer renderer(path);
    if (!renderer.isValid())
        return {};
    QImage image(size * ratio, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    if (tint)
        recolour(image, *tint);
    image.setDevicePixelRatio(ratio);
    pixmap = QPixmap::fromImage(std::move(image));
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}
