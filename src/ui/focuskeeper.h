#pragma once

#include <QPointer>
#include <QWidget>

/// Remembers which control of a part of the window has the focus while the control is disabled: the
/// focus wanders off then, and who works by the keyboard would have to look for it.
class FocusKeeper final
{
public:
    /// Calls @p disable and notes which control of @p part has lost the window's focus by it.
    template<class Disable>
    void keep(const QWidget *part, Disable disable)
    {
        QWidget *control = part->window()->focusWidget();
        m_control = control && part->isAncestorOf(control) ? control : nullptr;
        disable();
        m_focusAfterDisabling = part->window()->focusWidget();
    }

    /// What has lost the focus, if it is still there.
    [[nodiscard]] QWidget *control() const { return m_control; }
    /// Takes @p control in the place of what was noted.
    void replaceControl(QWidget *control) { m_control = control; }

    /// Puts the focus back on what was noted; on @p fallback when that cannot take it. It stays
    /// where it is when nothing was noted, when the user has moved it meanwhile, or when the part
    /// is not shown any more.
    void restore(QWidget *fallback)
    {
        QWidget *target = m_control;
        if (target && !target->isEnabled())
            target = fallback;
        if (target && target->isVisible()
            && target->window()->focusWidget() == m_focusAfterDisabling)
            target->setFocus();
        m_control.clear();
    }

private:
    QPointer<QWidget> m_control;
    QPointer<QWidget> m_focusAfterDisabling; ///< where the focus went of itself
};
