#pragma once

#include "framelessdialog.h"

class QCheckBox;
class QGroupBox;
class QVBoxLayout;

/// Edits the four options in the settings of the application. When the autostart option changes, it
/// also changes the autostart entry. MainWindow owns it. GUI thread.
///
/// The check boxes read the settings once, in the constructor. After a cancel, the dialog therefore
/// opens again with the changed check boxes.
class SettingsDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsDialog)
public:
    explicit SettingsDialog(QWidget *parent = nullptr);

public Q_SLOTS:
    void onSaveClicked();
    void onCancelClicked();
    void onAboutClicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void buildGroup(QVBoxLayout *layout, const QString &title, const QList<QCheckBox *> &boxes);
    void buildButtons(QVBoxLayout *layout);
    void load();

    QCheckBox *m_autoStart;
    QCheckBox *m_minimizeToTray;
    QCheckBox *m_confirmClean;
    QCheckBox *m_backupRegistry;
};
