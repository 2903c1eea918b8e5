#pragma once

#include <QObject>

/// Holds back the painting of all windows until paint() is called.
///
/// Painting would take most of the time of a game, and no check of the robot depends on it.
class PaintThrottle final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PaintThrottle)
public:
    PaintThrottle();

    /// Paints every visible window.
    void paint();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isPainting = false;
};
