#include "framelessdialog.h"

#include "keys.h"
#include "theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

FramelessDialog::FramelessDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
}

void FramelessDialog::showWith(QWidget *page)
{
    m_page = page;
    page->installEventFilter(this);
    m_returnsWithPage = !page->isVisible();
    if (!m_returnsWithPage)
        show();
}

bool FramelessDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_page && event->type() == QEvent::Hide && isVisible()) {
        hide();
        m_returnsWithPage = true;
    } else if (watched == m_page && event->type() == QEvent::Show && m_returnsWithPage) {
        m_returnsWithPage = false;
        show();
    }
    return QDialog::eventFilter(watched, event);
}

bool FramelessDialog::isDragArea(QPoint) const
{
    return true;
}

void FramelessDialog::paintBackground(int radius)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::color(theme::border));
    painter.setBrush(theme::color(theme::white));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void FramelessDialog::paintBackgroundWithShadow(int radius)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::color(theme::shadow, 30));
    painter.drawRoundedRect(rect().adjusted(4, 4, -4, -4), radius, radius);
    painter.setBrush(theme::color(theme::white));
    painter.drawRoundedRect(rect().adjusted(0, 0, -8, -8), radius, radius);
}

void FramelessDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!parentWidget() || event->spontaneous())
        return;
    // QDialog centres the dialog with room for a system frame, which this dialog does not have.
    QRect place = geometry();
    place.moveCenter(parentWidget()->window()->geometry().center());
    const QRect available = screen()->availableGeometry();
    place.moveLeft(qMax(available.left(), qMin(place.left(), available.right() - place.width())));
    place.moveTop(qMax(available.top(), qMin(place.top(), available.bottom() - place.height())));
    move(place.topLeft());
}

bool FramelessDialog::focusNextPrevChild(bool next)
{
    return QDialog::focusNextPrevChild(next) && scrollToFocus(this);
}

void FramelessDialog::keyPressEvent(QKeyEvent *event)
{
    if (!pressButtonByEnter(this, *event))
        QDialog::keyPressEvent(event);
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
