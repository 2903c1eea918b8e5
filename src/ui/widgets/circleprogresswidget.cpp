#include "circleprogresswidget.h"

#include "theme.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

using namespace Qt::StringLiterals;

CircleGeometry::CircleGeometry(QSizeF size, int progress)
    : startAngle(90 * 16)
    , spanAngle(-qBound(0, progress, 100) * 360 * 16 / 100)
{
    const double side = qMin(size.width(), size.height());
    penWidth = side / 15;
    const double diameter = side - penWidth;
    ring =
        QRectF((size.width() - diameter) / 2, (size.height() - diameter) / 2, diameter, diameter);
    // The two boxes meet a little below the centre, and their corners lie within the ring.
    const double textWidth = diameter * 0.74;
    const double left = ring.center().x() - textWidth / 2;
    valueBox = QRectF(left, ring.center().y() - diameter * 0.22, textWidth, diameter * 0.28);
    captionBox = QRectF(left, valueBox.bottom(), textWidth, diameter * 0.16);
    activityRing = ring.adjusted(penWidth, penWidth, -penWidth, -penWidth);
}

CircleProgressWidget::CircleProgressWidget(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(180, 180);
}

void CircleProgressWidget::setProgress(int progress)
{
    m_progress = qBound(0, progress, 100);
    refresh();
    QAccessibleValueChangeEvent event(this, m_progress);
    QAccessible::updateAccessibility(&event);
}

void CircleProgressWidget::setValue(double value)
{
    m_value = value;
    refresh();
}

void CircleProgressWidget::setUnit(const QString &unit)
{
    m_unit = unit;
    refresh();
}

void CircleProgressWidget::setCaption(const QString &caption)
{
    m_caption = caption;
    refresh();
}

void CircleProgressWidget::showActivity()
{
    m_activity.step();
    update();
}

void CircleProgressWidget::hideActivity()
{
    m_activity.hide();
    update();
}

void CircleProgressWidget::refresh()
{
    setAccessibleName(m_caption + u' ' + valueText(m_value, m_unit));
    update();
}

QString CircleProgressWidget::valueText(double value, const QString &unit)
{
    QString number = QString::number(value, 'f', value < 10 ? 2 : 1);
    while (number.endsWith(u'0'))
        number.chop(1);
    if (number.endsWith(u'.'))
        number.chop(1);
    if (unit == "%"_L1)
        return tr("%1%").arg(number);
    return unit.isEmpty() ? number : number + u' ' + unit;
}

namespace {

// Reduces the font size down to 8 pixels until the text fits into the box. A long number then still
// has room.
void drawFitting(QPainter &painter, const QRectF &box, const QString &text, QFont font, int pixels)
{
    do
        font.setPixelSize(pixels);
    while (QFontMetricsF(font).horizontalAdvance(text) > box.width() && --pixels >= 8);
    painter.setFont(font);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

void CircleProgressWidget::paintEvent(QPaintEvent *)
{
    const CircleGeometry geometry(size(), m_progress);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(theme::color(theme::border), geometry.penWidth, Qt::SolidLine, Qt::RoundCap);
    painter.setPen(pen);
    painter.drawEllipse(geometry.ring);
    if (geometry.spanAngle != 0) {
        QLinearGradient gradient(geometry.ring.topLeft(), geometry.ring.bottomRight());
        gradient.setColorAt(0, theme::color(theme::accent));
        gradient.setColorAt(1, theme::color(theme::accentHover));
        pen.setBrush(gradient);
        painter.setPen(pen);
        painter.drawArc(geometry.ring, geometry.startAngle, geometry.spanAngle);
    }
    m_activity.paint(painter, geometry.activityRing);
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    painter.setPen(theme::color(theme::text));
    drawFitting(painter, geometry.valueBox, valueText(m_value, m_unit), bold, 32);
    painter.setPen(theme::color(theme::faint));
    drawFitting(painter, geometry.captionBox, m_caption, font(), 13);
}
