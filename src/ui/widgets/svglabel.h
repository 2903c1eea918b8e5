#pragma once

#include <QColor>
#include <QLabel>

#include <optional>

/// Shows an SVG resource. It draws the image again when the window moves to a screen with another
/// scale, so that the image stays sharp. GUI thread.
class SvgLabel final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SvgLabel)
public:
    explicit SvgLabel(QWidget *parent = nullptr);

    /// @p size is in logical pixels. @p tint replaces the colours and keeps the shape. A missing
    /// resource leaves the label empty.
    void setSvg(const QString &path, QSize size, std::optional<QColor> tint = {});

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void draw();

    QString m_path;
    QSize m_size;
    std::optional<QColor> m_tint;
    qreal m_ratio = 0;
};
