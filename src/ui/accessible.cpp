#include "accessible.h"

#include "circleprogresswidget.h"
#include "navbutton.h"
#include "statcard.h"

#include <QAccessibleWidget>
#include <QScrollArea>

namespace {

/// A widget that is pressed by a key or the mouse.
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
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (auto *button = qobject_cast<NavButton *>(widget()))
            Q_EMIT button->clicked();
        else if (auto *card = qobject_cast<StatCard *>(widget()))
            Q_EMIT card->activated();
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (const auto *button = qobject_cast<const NavButton *>(widget())) {
            state.checkable = true;
            state.checked = button->isChecked();
        }
        return state;
    }
};

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

/// Something that scrolls and holds nothing that takes the focus.
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
    if (qobject_cast<NavButton *>(object) || qobject_cast<StatCard *>(object))
        return new PressableInterface(static_cast<QWidget *>(object));
    if (auto *area = qobject_cast<QScrollArea *>(object))
        return new PaneInterface(area);
    return nullptr;
}

} // namespace

void installAccessibleInterfaces()
{
    QAccessible::installFactory(makeInterface);
}
