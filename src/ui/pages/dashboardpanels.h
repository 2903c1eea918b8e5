#pragma once

#include "activitysign.h"

#include <QWidget>

class CircleProgressWidget;
class QLabel;
class QLayout;
class QPushButton;
class StatCard;

/// The dashboard before its first results: a button and, below it, the progress of the scan.
/// DashboardPage owns it. GUI thread.
class DashboardStartPanel final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardStartPanel)
public:
    explicit DashboardStartPanel(QWidget *parent = nullptr);

    [[nodiscard]] QPushButton *startButton() const { return m_startButton; }

    void setScanning(bool scanning);
    void setProgress(int percent, const QString &path);
    /// Moves the sign that tells that the scan goes on while the percentage stands still.
    void showActivity();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect activityRect() const;
    [[nodiscard]] QWidget *buildProgressArea();

    QLabel *m_emblem;
    ActivitySign m_activity; ///< round the emblem
    QPushButton *m_startButton;
    QWidget *m_progressArea = nullptr;
    QLabel *m_percent = nullptr;
    QWidget *m_fill = nullptr;
    QLabel *m_path = nullptr;
};

/// The dashboard from its first results on: the circle, the state, two buttons and three cards.
/// DashboardPage owns it. GUI thread.
class DashboardResultsPanel final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DashboardResultsPanel)
public:
    explicit DashboardResultsPanel(QWidget *parent = nullptr);

    [[nodiscard]] QPushButton *scanButton() const { return m_scanButton; }
    [[nodiscard]] QPushButton *cleanButton() const { return m_cleanButton; }
    [[nodiscard]] StatCard *junkCard() const { return m_junkCard; }
    [[nodiscard]] StatCard *browserCard() const { return m_browserCard; }
    [[nodiscard]] StatCard *registryCard() const { return m_registryCard; }

    void setScanning(bool scanning);
    void setProgress(int percent);
    /// The same sign as in the other panel.
    void showActivity();
    /// Sizes in bytes.
    void setResults(qint64 junkSize, qint64 browserSize, int registryCount);

private:
    [[nodiscard]] QWidget *buildMainCard();
    [[nodiscard]] QLayout *buildStatusRow();
    [[nodiscard]] QLayout *buildButtonRow();
    [[nodiscard]] QLayout *buildCards();
    [[nodiscard]] QWidget *buildTip();

    CircleProgressWidget *m_circle;
    QLabel *m_dot = nullptr;
    QLabel *m_status = nullptr;
    QPushButton *m_scanButton = nullptr;
    QPushButton *m_cleanButton = nullptr;
    StatCard *m_junkCard = nullptr;
    StatCard *m_browserCard = nullptr;
    StatCard *m_registryCard = nullptr;
};
