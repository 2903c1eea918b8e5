#include "framelessdialog.h"

#include <QMouseEvent>
#include <QScreen>

FramelessDialog::FramelessDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
}

bool FramelessDialog::isDragArea(QPoint) const
{
    return true;
}

void FramelessDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!parentWidget() || event->spontaneous())
        return;
    // QDialog allows for a frame that there is not.
    QRect place = geometry();
    place.moveCenter(parentWidget()->window()->geometry().center());
    const QRect available = screen()->availableGeometry();
    place.moveLeft(qMax(available.left(), qMin(place.left(), available.right() - place.width())));
    place.moveTop(qMax(available.top(), qMin(place.top(), available.bottom() - place.height())));
    move(place.topLeft());
}

void FramelessDialog::mousePressEvent(QMouseEvent *event)
{
    if (isDragArea(event->position().toPoint()))
        m_drag.press(event);
}

void FramelessDialog::mouseMoveEvent(QMouseEvent *event)
{
    m_drag.move(event);
}

void FramelessDialog::mouseReleaseEvent(QMouseEvent *event)
{
    m_drag.release(event);
}
