#pragma once

#include <QRectF>
#include <QString>
#include <QWidget>

/// Where the parts of a progress circle lie in a widget of a given size.
struct CircleGeometry {
    CircleGeometry(QSizeF size, int progress);

    double penWidth;
    QRectF ring; ///< the middle of the pen's line, which so lies within the widget
    int startAngle; ///< as a painter takes it, in sixteenths of a degree: twelve o'clock
    int spanAngle; ///< likewise; negative, for the arc runs clockwise
    QRectF valueBox; ///< baseline-free boxes of the two texts, within the ring
    QRectF captionBox;
};

/// A ring that fills up clockwise from the top, with a number in its middle and a caption below it.
/// How far the ring is filled and the number are set apart.
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

    /// 0 to 100; beyond is taken for the nearest of them.
    void setProgress(int progress);
    void setValue(double value);
    void setUnit(const QString &unit);
    void setCaption(const QString &caption);

    /// The number with its unit as it is drawn: "50%", "0 GB", "0.25 GB", "12.5 GB".
    [[nodiscard]] static QString valueText(double value, const QString &unit);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refresh();

    int m_progress = 0;
    double m_value = 0;
    QString m_unit;
    QString m_caption;
};
