#include "accessible.h"

#include "circleprogresswidget.h"
#include "filecardlist.h"
#include "navbutton.h"
#include "statcard.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QPointer>
#include <QScrollArea>

namespace {

/// The accessible interface of a widget that can be pressed. It also reports whether the widget is
/// checked or expanded.
class PressableInterface : public QAccessibleWidget
{
public:
    explicit PressableInterface(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Button)
    {
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        // The press is queued: it may open a modal dialog, and the caller must not wait for that
        // dialog.
        QMetaObject::invokeMethod(
            widget(), [pressed = QPointer(widget())] { press(pressed); }, Qt::QueuedConnection);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (const auto *button = qobject_cast<const NavButton *>(widget())) {
            state.checkable = true;
            state.checked = button->isChecked();
        }
        if (const QVariant expanded = widget()->property("expanded"); expanded.isValid()) {
            state.expandable = true;
            state.expanded = expanded.toBool();
            state.collapsed = !expanded.toBool();
        }
        return state;
    }

private:
    static void press(QWidget *widget)
    {
        if (!widget || !widget->isEnabled())
            return;
        if (auto *entry = qobject_cast<NavButton *>(widget))
            Q_EMIT entry->clicked();
        else if (auto *card = qobject_cast<StatCard *>(widget))
            Q_EMIT card->activated();
        else if (auto *button = qobject_cast<QAbstractButton *>(widget))
            button->click();
    }
};

/// The accessible interface of the progress circle. Its value is a percentage and read-only.
class CircleInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit CircleInterface(CircleProgressWidget *circle)
        : QAccessibleWidget(circle, QAccessible::ProgressBar)
        , m_circle(circle)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant currentValue() const override { return m_circle->progress(); }
    void setCurrentValue(const QVariant &) override { }
    [[nodiscard]] QVariant minimumValue() const override { return 0; }
    [[nodiscard]] QVariant maximumValue() const override { return 100; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    CircleProgressWidget *m_circle;
};

/// The accessible interface of a scroll area that takes the keyboard focus. The toolkit has no role
/// for one.
class PaneInterface : public QAccessibleWidget
{
public:
    explicit PaneInterface(QScrollArea *area)
        : QAccessibleWidget(area, QAccessible::Pane)
    {
    }
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (auto *circle = qobject_cast<CircleProgressWidget *>(object))
        return new CircleInterface(circle);
    auto *widget = qobject_cast<QWidget *>(object);
    if (qobject_cast<NavButton *>(object) || qobject_cast<StatCard *>(object)
        || (qobject_cast<QAbstractButton *>(object) && widget->property("expanded").isValid()))
        return new PressableInterface(widget);
    if (auto *area = qobject_cast<QScrollArea *>(object);
        area && area->focusPolicy() != Qt::NoFocus)
        return new PaneInterface(area);
    if (qobject_cast<FileCardList *>(object))
        return new QAccessibleWidget(widget, QAccessible::List);
    return nullptr;
}

} // namespace

void installAccessibleInterfaces()
{
    QAccessible::installFactory(makeInterface);
}
