#include "statcard.h"

#include "svgicon.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int barHeight = 4;

QLabel *makeLabel(const QString &text, const QString &style, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(style);
    return label;
}

} // namespace

StatCard::StatCard(const QString &title, const Look &look, QWidget *parent)
    : QFrame(parent)
    , m_look(look)
    , m_icon(new QLabel(this))
    , m_title(makeLabel(title, theme::clearLabel(theme::muted, 13), this))
    , m_value(makeLabel({}, theme::clearLabel(theme::text, 15, 700), this))
{
    setObjectName("statCard"_L1);
    setStyleSheet(theme::statCard(objectName()));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(title);
    m_title->setWordWrap(true); // so that no language makes the window wider

    m_icon->setFixedSize(42, 42);
    m_icon->setAlignment(Qt::AlignCenter);
    m_icon->setStyleSheet(theme::iconBox(look.iconBackground));
    drawIcon();

    auto *track = new QWidget(this);
    track->setAttribute(Qt::WA_StyledBackground);
    track->setFixedSize(100, barHeight);
    track->setStyleSheet(theme::bar(theme::button, barHeight / 2));
    m_bar = new QWidget(track);
    m_bar->setObjectName("statBar"_L1);
    m_bar->setAttribute(Qt::WA_StyledBackground);
    m_bar->setStyleSheet(theme::bar(look.accent, barHeight / 2));
    m_bar->setFixedSize(0, barHeight);
    m_value->setObjectName("statValue"_L1);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(m_title);
    texts->addWidget(m_value);
    texts->addSpacing(2);
    texts->addWidget(track);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 12, 12, 12);
    layout->setSpacing(12);
    layout->addWidget(m_icon);
    layout->addLayout(texts, 1);
    layout->addWidget(makeLabel(
        u"›"_s,
        u"font-size:14px; color: %1; background: transparent; border: none;"_s.arg(theme::faint),
        this));
}

void StatCard::setValue(const QString &value)
{
    m_value->setText(value);
    setAccessibleName(m_title->text() + u' ' + value);
}

void StatCard::setBarWidth(int width)
{
    m_bar->setFixedWidth(width);
}

QString StatCard::value() const
{
    return m_value->text();
}

int StatCard::barWidth() const
{
    return m_bar->minimumWidth();
}

void StatCard::drawIcon()
{
    m_icon->setPixmap(
        svgPixmap(m_look.iconPath, {22, 22}, devicePixelRatioF(), theme::color(m_look.accent)));
}

void StatCard::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    drawIcon(); // Only now is it known how fine.
}

void StatCard::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT activated();
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}
