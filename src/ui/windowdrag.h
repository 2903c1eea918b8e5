#pragma once

#include <QPoint>

class QMouseEvent;
class QWidget;

/// Moves a frameless window with the mouse. The window owns it and passes its mouse events on. GUI
/// thread.
class WindowDrag final
{
public:
    explicit WindowDrag(QWidget *window)
        : m_window(window)
    {
    }

    /// Starts a drag when the left button is pressed, and accepts the event. The owner calls it
    /// only where a drag may begin.
    void press(QMouseEvent *event);
    /// Moves the window while the left button is held. Accepts the event when the window has moved.
    void move(QMouseEvent *event);
    /// Ends the drag when the left button is released.
    void release(QMouseEvent *event);

    [[nodiscard]] bool isDragging() const { return m_isDragging; }

private:
    QWidget *m_window;
    bool m_isDragging = false;
    QPoint m_offset; ///< mouse position minus top-left corner of the frame, at the press
};
