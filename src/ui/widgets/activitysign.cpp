#include "activitysign.h"

#include "theme.h"

#include <QPainter>

void ActivitySign::paint(QPainter &painter, const QRectF &ring) const
{
    if (m_step == hidden)
        return;
    constexpr int degree = 16; // the unit of drawArc()
    constexpr int stepAngle = 360 / stepsPerTurn * degree;
    constexpr int arcLength = 60 * degree;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::color(theme::accent), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, -m_step * stepAngle, -arcLength);
}
