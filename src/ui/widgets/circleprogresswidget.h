#pragma once

#include "activitysign.h"

#include <QRectF>
#include <QString>
#include <QWidget>

/// The geometry of a progress circle in a widget of a given size, in pixels.
struct CircleGeometry {
    CircleGeometry(QSizeF size, int progress);

    double penWidth;
    /// The centre line of the pen. The whole line lies within the widget.
    QRectF ring;
    /// Twelve o'clock, in sixteenths of a degree.
    int startAngle;
    /// In sixteenths of a degree. Negative, because the arc runs clockwise.
    int spanAngle;
    /// The boxes of the two texts, within the ring.
    QRectF valueBox;
    QRectF captionBox;
    /// For the sign of activity: between the ring and the texts.
    QRectF activityRing;
};

/// A ring that fills clockwise from the top, with a number in its middle and a caption below the
/// number. The filled part and the number are set independently. DashboardResultsPanel owns it. GUI
/// thread.
class CircleProgressWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CircleProgressWidget)
public:
    explicit CircleProgressWidget(QWidget *parent = nullptr);

    [[nodiscard]] int progress() const { return m_progress; }
    [[nodiscard]] double value() const { return m_value; }
    [[nodiscard]] QString unit() const { return m_unit; }
    [[nodiscard]] QString caption() const { return m_caption; }

    /// 0 to 100. A value outside is set to the nearest limit.
    void setProgress(int progress);
    void setValue(double value);
    void setUnit(const QString &unit);
    void setCaption(const QString &caption);
    /// Moves the sign that tells that work goes on while the number stands still.
    void showActivity();
    void hideActivity();

    /// The number with its unit as the circle shows it: "50%", "0 GB", "0.25 GB", "12.5 GB".
    [[nodiscard]] static QString valueText(double value, const QString &unit);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refresh();

    int m_progress = 0;
    double m_value = 0;
    QString m_unit;
    QString m_caption;
    ActivitySign m_activity;
};
