#include "svgicon.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

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
    return QPixmap::fromImage(std::move(image));
}
