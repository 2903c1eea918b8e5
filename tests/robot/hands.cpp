#include "hands.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

using namespace Qt::StringLiterals;

namespace {

constexpr ulong separateClickGap = 1000; ///< milliseconds; too long for a double click
constexpr ulong doubleClickGap = 50; ///< milliseconds
constexpr int wheelNotch = 120; ///< eighths of a degree

using Window = QWindowSystemInterface;

void sendKey(QWindow *window, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        Window::handleKeyEvent<Window::AsynchronousDelivery>(window, type, key, modifiers, text);
}

QString textOf(int key)
{
    switch (key) {
    case Qt::Key_Space:
        return u" "_s;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return u"\r"_s;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return u"\t"_s;
    case Qt::Key_Escape:
        return u"\x1b"_s;
    default:
        return {};
    }
}

} // namespace

Hands::Hands(QWidget *mainWindow)
    : m_mainWindow(mainWindow)
{
}

// The offscreen platform keeps windows in the order of their creation: the newest is on top.
QList<QWidget *> Hands::windows()
{
    QList<QWidget *> found;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (auto window = windows.crbegin(); window != windows.crend(); ++window) {
        if (!(*window)->isVisible() || (*window)->type() == Qt::ToolTip)
            continue;
        if (QWidget *widget = QWidget::find((*window)->winId()))
            found.append(widget);
    }
    return found;
}

QWidget *Hands::windowAt(QPoint global)
{
    // A modal dialog is above the window that it blocks, also when that window is newer.
    for (QWidget *window : {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
        if (window && window->geometry().contains(global))
            return window;
    }
    const QList<QWidget *> shown = windows();
    for (QWidget *window : shown) {
        if (window->geometry().contains(global))
            return window;
    }
    return nullptr;
}

bool Hands::isBlocked(const QWidget *window)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && window != modal && !modal->isAncestorOf(window);
}

QWindow *Hands::targetWindow(QPoint global) const
{
    // An open menu gets every mouse event, wherever the mouse is.
    const QWidget *window = QApplication::activePopupWidget();
    if (!window)
        window = windowAt(global);
    return (window ? window : m_mainWindow)->windowHandle();
}

void Hands::send(QWindow *window, QPoint global, Qt::MouseButton button, bool isDown)
{
    const QPointF local(global - window->position());
    const QEvent::Type type = button == Qt::NoButton ? QEvent::MouseMove
        : isDown                                     ? QEvent::MouseButtonPress
                                                     : QEvent::MouseButtonRelease;
    Window::handleMouseEvent<Window::AsynchronousDelivery>(
        window, m_clock, local, QPointF(global), isDown ? button : Qt::NoButton, button, type);
}

void Hands::move(QPoint global)
{
    m_clock += separateClickGap;
    send(targetWindow(global), global, Qt::NoButton, false);
}

void Hands::click(QPoint global, Qt::MouseButton button, int times)
{
    move(global);
    QWindow *window = targetWindow(global);
    QWidget *widget = QWidget::find(window->winId());
    if (widget && window != QGuiApplication::focusWindow() && !isBlocked(widget)
        && !QApplication::activePopupWidget())
        window->requestActivate();
    for (int i = 0; i < times; ++i) {
        send(window, global, button, true);
        send(window, global, button, false);
        m_clock += doubleClickGap;
    }
}

void Hands::drag(QPoint from, QPoint to)
{
    move(from);
    QWindow *window = targetWindow(from);
    constexpr int steps = 4;
    send(window, from, Qt::LeftButton, true);
    for (int i = 1; i <= steps; ++i) {
        const QPoint global = from + (to - from) * i / steps;
        m_clock += doubleClickGap;
        Window::handleMouseEvent<Window::AsynchronousDelivery>(
            window, m_clock, QPointF(global - window->position()), QPointF(global), Qt::LeftButton,
            Qt::NoButton, QEvent::MouseMove);
    }
    send(window, to, Qt::LeftButton, false);
}

void Hands::wheel(QPoint global, int notches)
{
    QWindow *window = targetWindow(global);
    const int count = qAbs(notches);
    for (int i = 0; i < count; ++i)
        Window::handleWheelEvent(window, QPointF(global - window->position()), QPointF(global), {},
                                 {0, notches > 0 ? wheelNotch : -wheelNotch});
}

void Hands::key(int key, Qt::KeyboardModifiers modifiers)
{
    QWindow *window = QGuiApplication::focusWindow();
    if (!window)
        return;
    sendKey(window, key, modifiers, textOf(key));
}

void Hands::type(const QString &text)
{
    QWindow *window = QGuiApplication::focusWindow();
    if (!window)
        return;
    for (const QChar c : text)
        sendKey(window, c.toUpper().unicode(), Qt::NoModifier, c);
}

bool Hands::hasPendingEvents()
{
    return Window::windowSystemEventsQueued() > 0;
}

bool Hands::activateSomeWindow()
{
    const QWindow *active = QGuiApplication::focusWindow();
    if (active && active->isVisible())
        return false;
    const QWidget *next = QApplication::activeModalWidget();
    const QList<QWidget *> shown = windows();
    if (!next && !shown.isEmpty())
        next = shown.constFirst();
    if (!next)
        return false;
    next->windowHandle()->requestActivate();
    return true;
}
