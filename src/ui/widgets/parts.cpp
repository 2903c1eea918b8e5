#include "parts.h"

#include "theme.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

namespace parts {

QLabel *label(const QString &text, const QString &style, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(style);
    return label;
}

QLabel *centredLabel(const QString &text, const QString &style, QWidget *parent)
{
    QLabel *centred = label(text, style, parent);
    centred->setAlignment(Qt::AlignCenter);
    return centred;
}

void ignoreTextWidth(QLabel *label)
{
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QPushButton *button(const QString &name, const QString &text, const QString &style, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setStyleSheet(style);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QPushButton *tabButton(const QString &name, const QString &text, const QString &style,
                       QWidget *parent)
{
    QPushButton *made = button(name, text, style, parent);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

QScrollArea *verticalScrollArea(const QString &name, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setObjectName(name);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setStyleSheet(theme::transparentScrollArea());
    area->viewport()->setAutoFillBackground(false);
    return area;
}

} // namespace parts
