#include "settingsdialog.h"

#include "aboutdialog.h"
#include "application.h"
#include "ask.h"
#include "autostart.h"
#include "logger.h"
#include "options.h"
#include "parts.h"
#include "text.h"
#include "theme.h"

#include <QCheckBox>
#include <QDir>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SettingsDialog::SettingsDialog(QWidget *parent)
    : FramelessDialog(parent)
    , m_autoStart(new QCheckBox(tr("Start with Windows")))
    , m_minimizeToTray(new QCheckBox(tr("Minimize to tray on close")))
    , m_confirmClean(new QCheckBox(tr("Confirm before cleaning")))
    , m_backupRegistry(new QCheckBox(tr("Auto backup before registry cleaning")))
{
    setObjectName("settingsDialog"_L1);
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(450, 400);
    setModal(true);
    setWindowTitle(tr("Settings"));
    m_autoStart->setObjectName("autoStartCheck"_L1);
    m_minimizeToTray->setObjectName("minimizeToTrayCheck"_L1);
    m_confirmClean->setObjectName("confirmCleanCheck"_L1);
    m_backupRegistry->setObjectName("backupRegistryCheck"_L1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(20);
    layout->addWidget(parts::label(tr("Settings"), theme::label(theme::text, 20, 600), this));
    buildGroup(layout, tr("General"), {m_autoStart, m_minimizeToTray});
    buildGroup(layout, tr("Cleaning"), {m_confirmClean, m_backupRegistry});
    layout->addStretch();
    buildButtons(layout);
    load();
}

void SettingsDialog::buildGroup(QVBoxLayout *layout, const QString &title,
                                const QList<QCheckBox *> &boxes)
{
    auto *group = new QGroupBox(title, this);
    group->setStyleSheet(theme::groupBox());
    auto *rows = new QVBoxLayout(group);
    rows->setContentsMargins(12, 9, 12, 9);
    rows->setSpacing(12);
    for (QCheckBox *box : boxes) {
        box->setStyleSheet(theme::label(theme::text, 13));
        box->setCursor(Qt::PointingHandCursor);
        rows->addWidget(box);
    }
    layout->addWidget(group);
}

void SettingsDialog::buildButtons(QVBoxLayout *layout)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    QPushButton *about = parts::button(u"aboutBtn"_s, tr("About"), theme::framedButton(), this);
    QPushButton *cancel = parts::button(u"cancelBtn"_s, tr("Cancel"),
                                        theme::dialogButton({.background = theme::buttonBackground,
                                                             .colour = theme::text,
                                                             .hovered = theme::border}),
                                        this);
    QPushButton *save = parts::button(u"saveBtn"_s, tr("Save"),
                                      theme::dialogButton({.background = theme::accent,
                                                           .colour = theme::onColour,
                                                           .hovered = theme::accentHover}),
                                      this);
    for (QPushButton *button : {about, cancel, save}) {
        button->setFixedSize(80, 36);
        button->setAutoDefault(false);
    }
    save->setDefault(true);
    row->addWidget(about);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(save);
    connect(about, &QPushButton::clicked, this, &SettingsDialog::onAboutClicked);
    connect(cancel, &QPushButton::clicked, this, &SettingsDialog::onCancelClicked);
    connect(save, &QPushButton::clicked, this, &SettingsDialog::onSaveClicked);
    layout->addLayout(row);
}

void SettingsDialog::load()
{
    const QSettings &settings = *Application::instance()->settings();
    m_autoStart->setChecked(options::isOn(settings, options::autoStart));
    m_minimizeToTray->setChecked(options::isOn(settings, options::minimizeToTray));
    m_confirmClean->setChecked(options::isOn(settings, options::confirmClean));
    m_backupRegistry->setChecked(options::isOn(settings, options::backupRegistry));
}

void SettingsDialog::onSaveClicked()
{
    QSettings &settings = *Application::instance()->settings();
    const bool autoStartBefore = options::isOn(settings, options::autoStart);
    options::set(settings, options::autoStart, m_autoStart->isChecked());
    options::set(settings, options::minimizeToTray, m_minimizeToTray->isChecked());
    options::set(settings, options::confirmClean, m_confirmClean->isChecked());
    options::set(settings, options::backupRegistry, m_backupRegistry->isChecked());
    if (!options::save(settings)) {
        Logger::instance().error("The settings cannot be saved: "_L1 + settings.fileName());
        ask::notice(this, tr("Settings"),
                    tr("The settings could not be saved:\n%1")
                        .arg(singleLine(QDir::toNativeSeparators(settings.fileName()))),
                    QMessageBox::Warning);
    }
    // Only a change of the option is written. A user may have removed the entry by other means, and
    // a save must not restore it.
    if (m_autoStart->isChecked() != autoStartBefore)
        autostart::set(m_autoStart->isChecked());
    accept();
}

void SettingsDialog::onCancelClicked()
{
    reject();
}

void SettingsDialog::onAboutClicked()
{
    AboutDialog(this).exec();
}

void SettingsDialog::paintEvent(QPaintEvent *)
{
    paintBackgroundWithShadow(theme::windowRadius);
}
