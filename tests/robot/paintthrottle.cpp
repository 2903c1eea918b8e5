#include "paintthrottle.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

PaintThrottle::PaintThrottle()
{
    qApp->installEventFilter(this);
}

bool PaintThrottle::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    return event->type() == QEvent::UpdateRequest && !m_isPainting;
}

void PaintThrottle::paint()
{
    m_isPainting = true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        QEvent request(QEvent::UpdateRequest);
        if (window->isVisible())
            QCoreApplication::sendEvent(window, &request);
    }
    m_isPainting = false;
}
