#include "winbutton.h"

#include "theme.h"

#include <QPainter>

namespace {

void drawGlyph(QPainter &painter, WinButton::Type type, QPointF centre)
{
    const qreal x = centre.x();
    const qreal y = centre.y();
    switch (type) {
    case WinButton::Minimize:
        painter.drawLine(QPointF(x - 5, y), QPointF(x + 5, y));
        break;
    case WinButton::Maximize:
        painter.drawRoundedRect(QRectF(x - 5, y - 5, 10, 10), 1, 1);
        break;
    case WinButton::Restore:
        painter.drawRoundedRect(QRectF(x - 5, y - 3, 8, 8), 1, 1);
        painter.drawPolyline(QPolygonF{
            {x - 3, y - 3}, {x - 3, y - 5}, {x + 5, y - 5}, {x + 5, y + 3}, {x + 3, y + 3}});
        break;
    case WinButton::Close:
        painter.drawLine(QPointF(x - 5, y - 5), QPointF(x + 5, y + 5));
        painter.drawLine(QPointF(x - 5, y + 5), QPointF(x + 5, y - 5));
        break;
    case WinButton::Menu:
        for (int line = -1; line <= 1; ++line)
            painter.drawLine(QPointF(x - 6, y + line * 4), QPointF(x + 6, y + line * 4));
        break;
    }
}

} // namespace

WinButton::WinButton(Type type, QWidget *parent)
    : QPushButton(parent)
    , m_type(type)
{
    setFixedSize(46, 32);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
}

void WinButton::setType(Type type)
{
    m_type = type;
    update();
}

void WinButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isClose = m_type == Close;
    QColor glyph = theme::color(theme::muted);
    if (underMouse() || isDown()) {
        const QColor background = isClose ? theme::color(theme::closeHover, isDown() ? 200 : 255)
                                          : theme::color(theme::muted, isDown() ? 64 : 32);
        painter.setPen(Qt::NoPen);
        painter.setBrush(background);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 0, -1, 0), 6, 6);
        if (isClose)
            glyph = theme::color(theme::white);
    }
    if (hasFocus()) {
        painter.setPen(QPen(theme::color(theme::accent), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 1, -2, -1), 6, 6);
    }
    painter.setPen(QPen(glyph, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    drawGlyph(painter, m_type, QRectF(rect()).center());
}
