#pragma once

#include "framelessdialog.h"

class QCheckBox;
class QGroupBox;
class QVBoxLayout;

/// Edits the four options in the application's settings and, when that option has changed, the
/// entry that starts the program with the session.
///
/// The boxes are read from the settings once, when the dialog is made: what was ticked and then
/// cancelled is still ticked when it opens again.
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
