#pragma once

#include <QPointer>
#include <QWidget>

/// Remembers which control of a part of the window has the focus while the control is disabled: the
/// focus would wander off, and who works by the keyboard would have to look for it.
class FocusKeeper final
{
public:
    /// Notes the control of @p part that has the window's focus, before it is disabled.
    void keep(const QWidget *part)
    {
        QWidget *control = part->window()->focusWidget();
        m_control = control && part->isAncestorOf(control) ? control : nullptr;
    }

    /// Puts the focus back on what was noted; on @p otherwise when that cannot take it. Without
    /// something noted nothing happens.
    void giveBack(QWidget *otherwise)
    {
        if (m_control)
            (m_control->isEnabled() ? m_control.data() : otherwise)->setFocus();
        m_control.clear();
    }

private:
    QPointer<QWidget> m_control;
};
