#pragma once

#include "framelessdialog.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

/// Asks before a registry clean whether to write a backup, and where. Modal, on the stack of
/// RegistryPage. GUI thread.
///
/// The dialog is accepted only with a usable location: it creates a missing folder, asks before it
/// replaces a file, and reports any other problem.
class RegistryBackupDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegistryBackupDialog)
public:
    /// @p count is the number of entries to clean.
    explicit RegistryBackupDialog(int count, QWidget *parent = nullptr);

    /// The backup file; it ends in ".reg". Empty when the user wants no backup.
    [[nodiscard]] QString backupPath() const;

public Q_SLOTS:
    void onBackupCheckChanged(bool checked);
    void browse();
    void accept() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLayout *buildPathRow();
    QLayout *buildButtonRow();
    /// Checks that a backup can be written to @p path, and reports a problem. Creates a missing
    /// folder and asks before a file is replaced. Returns whether the clean may go on.
    [[nodiscard]] bool prepareTarget(const QString &path);
    /// The reason why no backup can be written to @p path; empty when it can.
    [[nodiscard]] static QString targetProblem(const QString &path);

    QString m_pathToReplace; ///< the existing file that the user has agreed to replace
    QCheckBox *m_backupCheck;
    QLineEdit *m_pathEdit = nullptr;
    QPushButton *m_browseButton = nullptr;
};
