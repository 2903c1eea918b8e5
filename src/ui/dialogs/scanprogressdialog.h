#pragma once

#include "framelessdialog.h"

class QLabel;

/// Shows what a scan for large files is looking at and what it has found, and lets the user cancel
/// it. How far it has come nobody knows, so its bar only moves.
///
/// Frameless and movable; not modal. Escape or closing it asks to cancel.
class ScanProgressDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ScanProgressDialog)
public:
    explicit ScanProgressDialog(QWidget *parent = nullptr);

    /// @p path is looked at; @p foundCount files of @p totalSize bytes have been found.
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
