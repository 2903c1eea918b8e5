#pragma once

#include <QPointer>
#include <QWidget>

/// Remembers the focused control of a part of the window while that part is disabled. The toolkit
/// moves the focus away from a disabled control, and a keyboard user would lose the place. Owned by
/// its page. GUI thread.
class FocusKeeper final
{
public:
    /// Calls @p disable and remembers which control of @p part had the focus before.
    template<class Disable>
    void keep(const QWidget *part, Disable disable)
    {
        QWidget *control = part->window()->focusWidget();
        m_control = control && part->isAncestorOf(control) ? control : nullptr;
        disable();
        m_focusAfterDisabling = part->window()->focusWidget();
    }

    /// The remembered control; null when there is none or when it was deleted.
    [[nodiscard]] QWidget *control() const { return m_control; }
    /// Remembers @p control instead.
    void replaceControl(QWidget *control) { m_control = control; }

    /// Gives the focus back to the remembered control, or to @p fallback when that control is
    /// disabled. The focus does not move in three cases: no control was remembered, the user has
    /// moved the focus, or the target is not visible.
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
    QPointer<QWidget> m_focusAfterDisabling; ///< where the toolkit moved the focus
};
