#pragma once

#include <QList>
#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;
class QWindow;

/// The user's mouse and keyboard: what they do enters where the window system's events do, so that
/// the toolkit itself finds out which widget is meant, and when it takes them. Nothing has happened
/// yet when a function returns; the event loop has to run.
class Hands final
{
    Q_DISABLE_COPY_MOVE(Hands)
public:
    explicit Hands(QWidget *mainWindow);

    /// The windows that are shown, the uppermost first.
    [[nodiscard]] static QList<QWidget *> windows();
    /// The window that a user sees at a place of the screen; null where there is none.
    [[nodiscard]] static QWidget *windowAt(QPoint global);
    /// Whether an open dialog keeps the user away from @p window.
    [[nodiscard]] static bool isBlocked(const QWidget *window);

    void move(QPoint global);
    void click(QPoint global, Qt::MouseButton button = Qt::LeftButton, int times = 1);
    /// Presses the left button, moves and lets go elsewhere.
    void drag(QPoint from, QPoint to);
    /// Turns the wheel; a positive number of notches scrolls up.
    void wheel(QPoint global, int notches);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);

    /// Whether the program has not yet taken all of that.
    [[nodiscard]] static bool hasPendingEvents();

    /// What a window system does by itself: when the active window has gone, another one becomes
    /// active. Whether that was so.
    static bool activateSomeWindow();

private:
    void send(QWindow *window, QPoint global, Qt::MouseButton button, bool isDown);
    [[nodiscard]] QWindow *targetWindow(QPoint global) const;

    QWidget *m_mainWindow;
    ulong m_clock = 0; ///< milliseconds; the only ones that tell a double click from two clicks
};
