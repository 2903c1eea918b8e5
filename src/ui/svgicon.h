#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <optional>

/// The SVG resource at @p path, drawn into a transparent pixmap of @p size logical pixels for the
/// device pixel ratio
/// @p ratio. With a @p tint every pixel that is not fully transparent takes its red, green and blue
/// and keeps its own alpha. A resource that is missing or no SVG gives a null pixmap.
[[nodiscard]] QPixmap svgPixmap(const QString &path, QSize size, qreal ratio,
                                std::optional<QColor> tint = std::nullopt);
