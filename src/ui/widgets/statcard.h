#pragma once

#include "tokens.h"

#include <QFrame>

class QLabel;

/// A card of the dashboard: icon, title, a figure and a bar that tells how it compares. It leads to
/// the page of the figure: by the keyboard through activated(), by the mouse through whoever
/// filters its events.
class StatCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatCard)
public:
    struct Look {
        QString iconPath;
        theme::Colour accent;
        theme::Colour iconBackground;
    };

    StatCard(const QString &title, const Look &look, QWidget *parent = nullptr);

    void setValue(const QString &value);
    /// Pixels; the track has 100.
    void setBarWidth(int width);

    [[nodiscard]] QString value() const;
    [[nodiscard]] int barWidth() const;

Q_SIGNALS:
    void activated();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *m_title;
    QLabel *m_value;
    QWidget *m_bar;
};
