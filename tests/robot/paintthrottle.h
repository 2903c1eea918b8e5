#pragma once

#include <QObject>

/// Has windows painted only now and then: nothing that the robot looks at depends on it, and it
/// would take most of the time.
class PaintThrottle final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PaintThrottle)
public:
    PaintThrottle();

    /// Paints what has been held back.
    void paint();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isPainting = false;
};
