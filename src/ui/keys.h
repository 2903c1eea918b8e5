#pragma once

#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>

/// What keys do on controls that do not know it themselves.

[[nodiscard]] inline bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Space and both Enter keys press a control that is painted by hand. A key that is held down
/// presses once.
[[nodiscard]] inline bool isPressKey(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Space || isEnter(event)) && !event.isAutoRepeat();
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

/// Lets Enter press the button of @p window that has the focus, for which a toolkit's button needs
/// to be a dialog's and to be asked for it. Whether the key is used up: one that is held down is,
/// so that it presses nothing in a window that it has just opened.
inline bool pressButtonByEnter(QWidget *window, const QKeyEvent &event)
{
    if (!isEnter(event))
        return false;
    if (event.isAutoRepeat())
        return true;
    auto *button = qobject_cast<QPushButton *>(window->focusWidget());
    if (!button || !button->isEnabled())
        return false;
    button->click();
    return true;
}

/// Scrolls the control of @p window that the focus has just gone to into sight: a scroll area does
/// that itself only when the focus was in it before. True, for the end of focusNextPrevChild().
inline bool scrollToFocus(const QWidget *window)
{
    QWidget *focus = window->focusWidget();
    for (QWidget *ancestor = focus; ancestor; ancestor = ancestor->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(ancestor))
            area->ensureWidgetVisible(focus);
    }
    return true;
}
