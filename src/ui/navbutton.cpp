#include "navbutton.h"

#include "keys.h"
#include "svglabel.h"
#include "theme.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

NavButton::NavButton(const QString &text, const QString &iconPath, QWidget *parent)
    : QWidget(parent)
    , m_iconPath(iconPath)
    , m_icon(new SvgLabel(this))
    , m_text(new QLabel(text, this))
{
    setFixedHeight(48);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(text);

    m_icon->setFixedSize(24, 24);
    m_icon->setStyleSheet(theme::transparentBackground());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 0, 14, 0);
    layout->setSpacing(12);
    layout->addWidget(m_icon);
    layout->addWidget(m_text);
    setCentered(false);
    updateLook();
}

QString NavButton::text() const
{
    return m_text->text();
}

void NavButton::setChecked(bool checked)
{
    if (m_isChecked == checked)
        return;
    m_isChecked = checked;
    Q_EMIT checkedChanged(checked);
    updateLook();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void NavButton::setCentered(bool centered)
{
    layout()->setAlignment(centered ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    layout()->invalidate();
}

void NavButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_isPressed = true;
    // An ignored press goes on to the window, and the window would start a drag.
    event->accept();
}

void NavButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_isPressed)
        return;
    m_isPressed = false;
    if (rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void NavButton::enterEvent(QEnterEvent *)
{
    m_isHovered = true;
    update();
}

void NavButton::leaveEvent(QEvent *)
{
    m_isHovered = false;
    update();
}

void NavButton::keyPressEvent(QKeyEvent *event)
{
    if (isPressKey(*event))
        Q_EMIT clicked();
    else if (const int step = arrowStep(*event); step == 0 || !focusNextPrevChild(step > 0))
        QWidget::keyPressEvent(event);
}

void NavButton::focusInEvent(QFocusEvent *)
{
    update();
}

void NavButton::focusOutEvent(QFocusEvent *)
{
    update();
}

void NavButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_isChecked || m_isHovered) {
        painter.setBrush(m_isChecked ? theme::color(theme::white) : theme::color(theme::white, 38));
        painter.drawRoundedRect(rect(), theme::cardRadius, theme::cardRadius);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme::color(m_isChecked ? theme::text : theme::white), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 10, 10);
    }
}

void NavButton::updateLook()
{
    const QColor iconColour =
        m_isChecked ? theme::color(theme::accent) : theme::color(theme::white, 217);
    m_icon->setSvg(m_iconPath, m_icon->size(), iconColour);
    m_text->setStyleSheet(theme::navText(m_isChecked));
    update();
}
