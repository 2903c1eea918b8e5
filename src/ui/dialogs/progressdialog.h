#pragma once

#include "framelessdialog.h"

class QLabel;
class QProgressBar;
class QPushButton;

/// Shows how far a scan or a clean has come, lets the user cancel it, and shows the outcome of a
/// clean.
///
/// Frameless and movable; not modal, the page behind locks what must not be touched. Escape or
/// closing it while the work goes on asks to cancel.
class ProgressDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProgressDialog)
public:
    enum Mode { Scanning = 0, Cleaning = 1 };

    explicit ProgressDialog(Mode mode, QWidget *parent = nullptr);

    /// Shows @p current of @p total as a whole percentage; a total below 1 changes nothing.
    void setProgress(int current, int total);
    /// Shows @p text, one harmless line of it, in the middle shortened to the width.
    void setDetail(const QString &text);
    /// Shows how many bytes have been removed so far.
    void setCleanedSize(qint64 bytes);
    /// Turns the dialog into the result screen, which stays until it is closed.
    void showResult(bool success, const QString &message);

    [[nodiscard]] bool isFinished() const { return m_isFinished; }

public Q_SLOTS:
    void reject() override;

Q_SIGNALS:
    void cancelRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isFinished = false;
    QString m_cleanedSize;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_subtitle;
    QLabel *m_detail;
    QProgressBar *m_bar;
    QLabel *m_percentage;
    QPushButton *m_cancelButton;
    QPushButton *m_closeButton;
};
