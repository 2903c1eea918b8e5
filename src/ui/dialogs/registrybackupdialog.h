#pragma once

#include "framelessdialog.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

/// Asks before registry entries are cleaned whether to write a backup, and where.
class RegistryBackupDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegistryBackupDialog)
public:
    /// @p count is how many entries are about to be cleaned.
    explicit RegistryBackupDialog(int count, QWidget *parent = nullptr);

    /// The file to write, always one that ends in ".reg"; empty when no backup is wanted.
    [[nodiscard]] QString backupPath() const;

public Q_SLOTS:
    void onBackupCheckChanged(bool checked);
    void browse();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLayout *buildPathRow();
    QLayout *buildButtonRow();

    QCheckBox *m_backupCheck;
    QLineEdit *m_pathEdit = nullptr;
    QPushButton *m_browseButton = nullptr;
};
