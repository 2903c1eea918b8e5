#include "resultwidget.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>

void ResultWidget::setExpander(QWidget *header, QAbstractButton *button)
{
    m_header = header;
    m_expander = button;
    header->installEventFilter(this);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::clicked, this, &ResultWidget::toggleExpanded);
    describeExpander();
}

void ResultWidget::toggleExpanded()
{
    m_isExpanded = !m_isExpanded;
    showExpanded(m_isExpanded);
    describeExpander();
}

void ResultWidget::describeExpander()
{
    m_expander->setProperty("expanded", m_isExpanded);
    m_expander->setAccessibleDescription(m_isExpanded ? tr("Expanded") : tr("Collapsed"));
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(m_expander, changed);
    QAccessible::updateAccessibility(&event);
}

bool ResultWidget::eventFilter(QObject *watched, QEvent *event)
{
    // A click anywhere on the header expands and collapses. The controls in the header handle their
    // own clicks.
    if (watched == m_header && event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::LeftButton
            && m_header->rect().contains(mouse->position().toPoint())) {
            toggleExpanded();
            return true;
        }
    }
    if (watched == m_expander && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == (m_isExpanded ? Qt::Key_Left : Qt::Key_Right)) {
            toggleExpanded();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
