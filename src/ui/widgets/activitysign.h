#pragma once

#include <QRectF>

class QPainter;

/// A short arc that goes round something while work goes on, also while a percentage stands still.
/// The widget that paints it owns it. GUI thread.
class ActivitySign final
{
public:
    static constexpr int stepsPerTurn = 12;

    /// Moves the arc on. The first call shows it.
    void step() { m_step = (m_step + 1) % stepsPerTurn; }
    void hide() { m_step = hidden; }
    /// Paints the arc, if it is shown, on the ellipse in @p ring. Its line is three pixels wide.
    void paint(QPainter &painter, const QRectF &ring) const;

private:
    static constexpr int hidden = -1;

    int m_step = hidden;
};
