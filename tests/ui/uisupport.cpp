#include "uisupport.h"

#include <QAbstractButton>
#include <QApplication>

MessageBoxes::MessageBoxes(QMessageBox::StandardButton answerButton)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                     [this, answerButton] { answer(answerButton); });
    m_timer.start(5);
}

void MessageBoxes::answer(QMessageBox::StandardButton button)
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    m_seen.append(box->windowTitle() + u'|' + box->text());
    m_details.append(box->informativeText());
    m_icons.append(box->icon());
    QAbstractButton *wanted = box->button(button);
    if (!wanted && box->buttons().size() == 1)
        wanted = box->buttons().constFirst(); // the box has no choice
    if (!wanted)
        qFatal("the box '%s' has no such button", qPrintable(box->windowTitle()));
    wanted->click();
}

QWidget *nextByTab(QWidget *widget)
{
    QWidget *next = widget->nextInFocusChain();
    while (next != widget
           && !(next->focusPolicy() & Qt::TabFocus && next->isVisible() && next->isEnabled()))
        next = next->nextInFocusChain();
    return next;
}
