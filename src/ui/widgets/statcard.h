#pragma once

#include "tokens.h"

#include <QFrame>

class QLabel;

/// A card of the dashboard: icon, title, value and a bar that compares the value with the other
/// cards. It opens the page of its value. The keyboard does this through activated(), the mouse
/// through the event filter of DashboardPage. DashboardResultsPanel owns it. GUI thread.
class StatCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatCard)
public:
    /// The icon resource and the colours of a card.
    struct Look {
        QString iconPath;
        theme::Colour accent;
        theme::Colour iconBackground;
    };

    StatCard(const QString &title, const Look &look, QWidget *parent = nullptr);

    void setValue(const QString &value);
    /// In pixels. The track is 100 pixels wide.
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
