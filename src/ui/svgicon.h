#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

/// Draws the SVG resource at @p path into a transparent pixmap. @p size is in logical pixels, @p
/// ratio is the device pixel ratio. With a @p tint, every pixel that is not fully transparent takes
/// the red, green and blue of the tint and keeps its own alpha. A missing or invalid resource gives
/// a null pixmap.
[[nodiscard]] QPixmap svgPixmap(const QString &path, QSize size, qreal ratio,
                                std::optional<QColor> tint = std::nullopt);
