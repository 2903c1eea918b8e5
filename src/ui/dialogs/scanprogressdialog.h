#pragma once

#include "framelessdialog.h"

class QLabel;

/// Shows the progress of a scan for large files and lets the user cancel it. The total amount of
/// work is unknown, so the bar shows no percentage.
///
/// Frameless and movable, not modal. Escape and closing request to cancel. LargeFilePage owns it.
/// GUI thread.
class ScanProgressDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ScanProgressDialog)
public:
    explicit ScanProgressDialog(QWidget *parent = nullptr);

    /// Shows that @p path is scanned now, and that @p foundCount files with @p totalSize bytes were
    /// found so far.
    void updateProgress(const QString &path, int foundCount, qint64 totalSize);

public Q_SLOTS:
    void reject() override;

Q_SIGNALS:
    void cancelRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_path;
    QLabel *m_count;
};
