#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

class QAbstractScrollArea;
class QWidget;

/// What a user sees of a window: for each pixel the widget that is on top there.
///
/// All functions run on the GUI thread and end the program when widgets lie over each other.
namespace eyes {

/// The part of @p widget that its parents do not cut off, in coordinates of its window. Empty when
/// the widget is hidden.
[[nodiscard]] QRect visibleRect(const QWidget *widget);

/// The widget on top at @p position of @p window. A click there goes to it.
[[nodiscard]] QWidget *topmostAt(QWidget *window, QPoint position);

/// The text of the label or button called @p name in @p row. Nothing when the widget is not drawn.
/// Fails when another widget lies over it.
[[nodiscard]] std::optional<QString> drawnText(const QWidget *row, const QString &name);
/// Whether a part of @p widget is visible. Fails when another widget lies over the middle of it.
[[nodiscard]] bool isDrawn(const QWidget *widget);

/// Whether @p drawn is @p full as one line of text, whole or shortened in the middle.
[[nodiscard]] bool isShortenedText(const QString &drawn, const QString &full);

/// The rows that are drawn in a scroll area, from top to bottom. A row is a widget with one of the
/// object names. The search goes down pixel by pixel at @p x of the visible part. Fails when one
/// row lies over another.
[[nodiscard]] QList<QWidget *> findRows(const QAbstractScrollArea *area, int x,
                                        const QList<QString> &names);

/// The nearest scroll area around @p widget; null where there is none.
[[nodiscard]] QAbstractScrollArea *scrollAreaAround(QWidget *widget);

/// Class, name and text of a widget, for messages.
[[nodiscard]] QString describe(const QWidget *widget);

} // namespace eyes
