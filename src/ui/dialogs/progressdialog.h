#pragma once

#include "activitysign.h"
#include "framelessdialog.h"

class QLabel;
class QProgressBar;
class QPushButton;

/// Shows the progress of a scan or a clean, lets the user cancel it, and shows the result of a
/// clean.
///
/// Frameless and movable, not modal: the page itself locks its controls. Escape and closing request
/// to cancel while the work runs. The page owns it. GUI thread.
class ProgressDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProgressDialog)
public:
    enum Mode { Scanning = 0, Cleaning = 1 };

    explicit ProgressDialog(Mode mode, QWidget *parent = nullptr);

    /// Shows @p current of @p total as a whole percentage. A total below 1 changes nothing.
    void setProgress(int current, int total);
    /// Shows @p text on a single line without control characters, shortened in the middle to the
    /// width of the dialog.
    void setDetail(const QString &text);
    /// Moves the sign that tells that work goes on while the percentage stands still.
    void showActivity();
    /// Shows how many bytes were removed so far.
    void setCleanedSize(qint64 bytes);
    /// Turns the dialog into the result view, which stays open until the user closes it.
    void showResult(bool success, const QString &message);

    [[nodiscard]] Mode mode() const { return m_mode; }
    [[nodiscard]] bool isFinished() const { return m_isFinished; }

public Q_SLOTS:
    void reject() override;

Q_SIGNALS:
    void cancelRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect activityRect() const;

    Mode m_mode;
    bool m_isFinished = false;
    QString m_cleanedSize;
    ActivitySign m_activity; ///< round the icon
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_subtitle;
    QLabel *m_detail;
    QProgressBar *m_bar;
    QLabel *m_percentage;
    QPushButton *m_cancelButton;
    QPushButton *m_closeButton;
};
