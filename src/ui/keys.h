#pragma once

#include <QKeyEvent>

/// What a key does on a control that is pressed like a button but is painted by hand.

/// Space and both Enter keys press it.
[[nodiscard]] inline bool isPress(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return
        || event.key() == Qt::Key_Enter;
}

/// The arrow keys lead to the next control (1) or the one before (-1); other keys do not (0).
[[nodiscard]] inline int arrowStep(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
    case Qt::Key_Left:
        return -1;
    default:
        return 0;
    }
}
