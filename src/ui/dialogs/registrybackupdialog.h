#pragma once

#include "framelessdialog.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

/// Asks before registry entries are cleaned whether to write a backup, and where. It is not
/// accepted with a place that will not take one: a missing folder is made, a file is replaced only
/// after a question, and everything else is told in words.
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
    void accept() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QLayout *buildPathRow();
    QLayout *buildButtonRow();
    /// Whether a backup can go to @p path, as far as can be told now and the user wants it to.
    [[nodiscard]] bool prepareTarget(const QString &path);
    /// Why it cannot; empty when it can.
    [[nodiscard]] static QString targetProblem(const QString &path);

    QString m_pathToReplace; ///< a file that the user has already agreed to lose
    QCheckBox *m_backupCheck;
    QLineEdit *m_pathEdit = nullptr;
    QPushButton *m_browseButton = nullptr;
};
