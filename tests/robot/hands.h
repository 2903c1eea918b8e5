#pragma once

#include <QList>
#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;
class QWindow;

/// The user's mouse and keyboard, on the GUI thread.
///
/// Events go into the queue of the window system. So the toolkit itself finds the widget that gets
/// them, as with a real mouse. When a function returns, nothing has happened yet: the event loop
/// has to run.
class Hands final
{
    Q_DISABLE_COPY_MOVE(Hands)
public:
    explicit Hands(QWidget *mainWindow);

    /// The shown windows, the uppermost first.
    [[nodiscard]] static QList<QWidget *> windows();
    /// The uppermost window at a point of the screen; null where there is none.
    [[nodiscard]] static QWidget *windowAt(QPoint global);
    /// Whether an open modal dialog blocks @p window.
    [[nodiscard]] static bool isBlocked(const QWidget *window);

    void move(QPoint global);
    void click(QPoint global, Qt::MouseButton button = Qt::LeftButton, int times = 1);
    /// Presses the left button at @p from, moves to @p to and releases the button there.
    void drag(QPoint from, QPoint to);
    /// Turns the wheel; a positive number of notches scrolls up.
    void wheel(QPoint global, int notches);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);

    /// Whether the program has not yet processed all events that were sent.
    [[nodiscard]] static bool hasPendingEvents();

    /// Activates another window when the active one is closed, as a window system does by itself.
    /// Returns whether a window was activated.
    static bool activateSomeWindow();

private:
    void send(QWindow *window, QPoint global, Qt::MouseButton button, bool isDown);
    [[nodiscard]] QWindow *targetWindow(QPoint global) const;

    QWidget *m_mainWindow;
    /// Time stamp of the last event in milliseconds. By it the toolkit tells a double click from
    /// two single ones.
    ulong m_clock = 0;
};
