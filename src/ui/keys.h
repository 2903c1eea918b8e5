#pragma once

#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>

/// Shared key handling for controls and windows that the toolkit does not serve.

[[nodiscard]] inline bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Whether the key presses a control that is painted by hand: Space, Return or Enter. Auto-repeat
/// does not count, so a held key presses once.
[[nodiscard]] inline bool isPressKey(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Space || isEnter(event)) && !event.isAutoRepeat();
}

/// The step in the focus order that an arrow key asks for: 1 for the next control, -1 for the
/// previous one. Other keys give 0.
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

/// Clicks the focused button of @p window when @p event is Return or Enter. The toolkit does this
/// only in dialogs and only for auto-default buttons. Returns whether the key is used up.
/// Auto-repeat is always used up: a held key must not press a button in a window that it has just
/// opened.
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

/// Scrolls the focused control of @p window into view. A scroll area does this itself only when it
/// had the focus before. Always returns true, so that focusNextPrevChild() can end with it.
inline bool scrollToFocus(const QWidget *window)
{
    QWidget *focus = window->focusWidget();
    for (QWidget *ancestor = focus; ancestor; ancestor = ancestor->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(ancestor))
            area->ensureWidgetVisible(focus);
    }
    return true;
}
