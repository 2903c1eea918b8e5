#include "windowdrag.h"

#include <QMouseEvent>
#include <QWidget>

void WindowDrag::press(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_isDragging = true;
    m_offset = event->globalPosition().toPoint() - m_window->frameGeometry().topLeft();
    event->accept();
}

void WindowDrag::move(QMouseEvent *event)
{
    if (!m_isDragging || !event->buttons().testFlag(Qt::LeftButton))
        return;
    m_window->move(event->globalPosition().toPoint() - m_offset);
    event->accept();
}

void WindowDrag::release(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_isDragging = false;
}
