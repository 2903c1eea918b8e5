#include "statcard.h"

#include "keys.h"
#include "parts.h"
#include "svglabel.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int barHeight = 4;

} // namespace

StatCard::StatCard(const QString &title, const Look &look, QWidget *parent)
    : QFrame(parent)
    , m_title(parts::label(title, theme::transparentLabel(theme::muted, 13), this))
    , m_value(parts::label({}, theme::transparentLabel(theme::text, 15, 700), this))
{
    setObjectName("statCard"_L1);
    setStyleSheet(theme::statCard(objectName()));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(title);
    // A long translation must not make the window wider.
    m_title->setWordWrap(true);
    // All cards in a row get the same width.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto *icon = new SvgLabel(this);
    icon->setFixedSize(42, 42);
    icon->setStyleSheet(theme::iconBox(look.iconBackground));
    icon->setSvg(look.iconPath, {22, 22}, theme::color(look.accent));

    auto *track = new QWidget(this);
    track->setAttribute(Qt::WA_StyledBackground);
    track->setFixedSize(100, barHeight);
    track->setStyleSheet(theme::bar(theme::buttonBackground, barHeight / 2));
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
    layout->addWidget(icon);
    layout->addLayout(texts, 1);
    layout->addWidget(parts::label(u"›"_s, theme::cardArrow(), this));
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

void StatCard::keyPressEvent(QKeyEvent *event)
{
    if (isPressKey(*event))
        Q_EMIT activated();
    else if (const int step = arrowStep(*event); step == 0 || !focusNextPrevChild(step > 0))
        QFrame::keyPressEvent(event);
}
