#pragma once

#include <QPoint>

class QMouseEvent;
class QWidget;

/// Moves a frameless window with the mouse. Its owner passes on its mouse events; GUI thread.
class WindowDrag final
{
public:
    explicit WindowDrag(QWidget *window)
        : m_window(window)
    {
    }

    /// Starts when the left button is pressed; the owner asks only where dragging may begin.
    /// Accepts the event.
    void press(QMouseEvent *event);
    /// Moves the window while the left button is held. Accepts the event when it did.
    void move(QMouseEvent *event);
    /// Stops when the left button is released.
    void release(QMouseEvent *event);

    [[nodiscard]] bool isDragging() const { return m_isDragging; }

private:
    QWidget *m_window;
    bool m_isDragging = false;
    QPoint m_offset; ///< pointer minus top-left corner of the frame, at the press
};
