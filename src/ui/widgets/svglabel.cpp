#include "svglabel.h"

#include "svgicon.h"

SvgLabel::SvgLabel(QWidget *parent)
    : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
}

void SvgLabel::setSvg(const QString &path, QSize size, std::optional<QColor> tint)
{
    m_path = path;
    m_size = size;
    m_tint = tint;
    draw();
}

void SvgLabel::paintEvent(QPaintEvent *event)
{
    if (!qFuzzyCompare(m_ratio, devicePixelRatioF()))
        draw();
    QLabel::paintEvent(event);
}

void SvgLabel::draw()
{
    m_ratio = devicePixelRatioF();
    setPixmap(svgPixmap(m_path, m_size, m_ratio, m_tint));
}
