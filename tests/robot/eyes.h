#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

class QAbstractScrollArea;
class QWidget;

/// What a user sees of a window: not what widgets there are, but which of them is on top at a
/// pixel.
namespace eyes {

/// The part of @p widget that nothing around it cuts off, in coordinates of its window. Empty when
/// it is hidden.
[[nodiscard]] QRect visibleRect(const QWidget *widget);

/// What is drawn on top at @p position of @p window and would get a click there.
[[nodiscard]] QWidget *topmostAt(QWidget *window, QPoint position);

/// The texts of labels and buttons in a row are asked for by the name of the widget. Nothing when
/// the middle of what should be seen of it is cut off; a failure when something lies over it.
[[nodiscard]] std::optional<QString> drawnText(const QWidget *row, const QString &name);
/// The same of one widget.
[[nodiscard]] bool isDrawn(const QWidget *widget);

/// Whether @p drawn is @p full, or @p full shortened in the middle, in one harmless line.
[[nodiscard]] bool isShortenedText(const QString &drawn, const QString &full);

/// The rows that are drawn in a scroll area from top to bottom, found pixel by pixel at @p x of
/// its visible part: widgets with one of the object names. Fails when one lies over another.
[[nodiscard]] QList<QWidget *> findRows(const QAbstractScrollArea *area, int x,
                                        const QList<QString> &names);

/// The nearest scroll area around @p widget; null where there is none.
[[nodiscard]] QAbstractScrollArea *scrollAreaAround(QWidget *widget);

/// What a widget is, for people.
[[nodiscard]] QString describe(const QWidget *widget);

} // namespace eyes
