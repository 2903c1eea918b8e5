#include "access.h"

#include <QAccessible>
#include <QCheckBox>
#include <QScrollArea>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QString describe(const QWidget *widget)
{
    return u"%1 %2"_s.arg(QLatin1StringView(widget->metaObject()->className()),
                          widget->objectName());
}

bool canTakeFocus(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() && !widget->focusProxy()
        && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus
        && !widget->visibleRegion().isEmpty();
}

/// The controls of the window in the order in which the tab key leads to them.
QList<const QWidget *> tabChain(const QWidget *window)
{
    QList<const QWidget *> chain;
    for (const QWidget *widget = window->nextInFocusChain(); widget && widget != window;
         widget = widget->nextInFocusChain()) {
        if (widget->window() == window && canTakeFocus(widget))
            chain.append(widget);
    }
    return chain;
}

/// The part of the window that contains the widget: navigation, title bar or page. Users read one
/// part before they go on to the next.
const QWidget *partOf(const QWidget *widget)
{
    for (const QWidget *parent = widget; parent; parent = parent->parentWidget()) {
        for (const QLatin1StringView name : {"navWidget"_L1, "titleBar"_L1, "pageStack"_L1}) {
            if (parent->objectName() == name)
                return parent;
        }
    }
    return widget->window();
}

QRect visibleRect(const QWidget *widget)
{
    return widget->visibleRegion().boundingRect().translated(
        widget->mapTo(widget->window(), QPoint(0, 0)));
}

bool isBefore(const QRect &one, const QRect &other)
{
    return one.bottom() < other.top()
        || (one.right() < other.left() && one.top() <= other.bottom());
}

/// Whether the widget is in a list of similar widgets. Its name alone may not be enough there.
bool isInList(const QWidget *widget)
{
    for (const QWidget *parent = widget; parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QScrollArea *>(parent))
            return true;
    }
    return false;
}

QStringList nameFaults(const QWidget *widget)
{
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(
        const_cast<QWidget *>(widget)); // NOLINT: it is only read
    if (!access)
        return {describe(widget) + ": no accessible interface"_L1};
    QStringList faults;
    if (access->text(QAccessible::Name).trimmed().isEmpty())
        faults.append(describe(widget) + ": takes the focus and has no name"_L1);
    if (qobject_cast<const QCheckBox *>(widget) && isInList(widget)
        && access->text(QAccessible::Description).isEmpty())
        faults.append(describe(widget) + ": stands in a list and has no description"_L1);
    if (access->role() == QAccessible::NoRole || access->role() == QAccessible::Client)
        faults.append(describe(widget) + ": takes the focus and has no role"_L1);
    return faults;
}

} // namespace

QStringList accessFaults(const QWidget *window)
{
    QStringList faults;
    const QList<const QWidget *> chain = tabChain(window);
    QList<const QWidget *> parts;
    for (const QWidget *widget : chain) {
        if (parts.isEmpty() || parts.constLast() != partOf(widget))
            parts.append(partOf(widget));
    }
    if (parts.size() > 1 && parts.constFirst() == parts.constLast())
        parts.removeLast(); // the chain is circular
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (parts.indexOf(parts.at(i)) < i)
            faults.append(u"the tab key comes back to %1"_s.arg(describe(parts.at(i))));
    }
    const QWidget *previous = nullptr;
    for (const QWidget *widget : chain) {
        faults += nameFaults(widget);
        if (previous && partOf(previous) == partOf(widget) && !previous->isAncestorOf(widget)
            && isBefore(visibleRect(widget), visibleRect(previous)))
            faults.append(u"%1: the tab key comes to it after %2, which stands behind it"_s.arg(
                describe(widget), describe(previous)));
        previous = widget;
    }
    return faults;
}
