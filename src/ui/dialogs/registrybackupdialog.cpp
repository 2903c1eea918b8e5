#include "registrybackupdialog.h"

#include "ask.h"
#include "ownfile.h"
#include "parts.h"
#include "registrybackup.h"
#include "rulefolders.h"
#include "text.h"
#include "theme.h"

#include <QCheckBox>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryFile>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString defaultPath()
{
    return platform::desktopFolder()
        + u"/registry_backup_%1.reg"_s.arg(QDate::currentDate().toString(u"yyyyMMdd"_s));
}

QString withSuffix(const QString &path)
{
    return path.endsWith(".reg"_L1, Qt::CaseInsensitive) ? path : path + ".reg"_L1;
}

} // namespace

RegistryBackupDialog::RegistryBackupDialog(int count, QWidget *parent)
    : FramelessDialog(parent)
    , m_backupCheck(new QCheckBox(tr("Backup registry before cleaning (Recommended)"), this))
{
    setObjectName("registryBackupDialog"_L1);
    setModal(true);
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(450, 280);
    setWindowTitle(tr("Clean Registry"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);

    layout->addWidget(parts::label(tr("Clean Registry"), theme::label(theme::text, 18, 600), this));
    QLabel *message =
        parts::label(tr("About to clean <b>%1</b> invalid registry entries").arg(count),
                     theme::label(theme::muted, 14), this);
    message->setTextFormat(Qt::RichText);
    layout->addWidget(message);

    m_backupCheck->setObjectName("backupCheck"_L1);
    m_backupCheck->setStyleSheet(theme::label(theme::text, 13));
    m_backupCheck->setChecked(true);
    layout->addWidget(m_backupCheck);
    layout->addLayout(buildPathRow());
    connect(m_backupCheck, &QCheckBox::toggled, this, &RegistryBackupDialog::onBackupCheckChanged);

    QLabel *hint = parts::label(
        tr("⚠️ Backup file can be used to restore accidentally deleted registry entries"),
        theme::label(theme::muted, 12), this);
    hint->setWordWrap(true);
    layout->addWidget(hint);
    layout->addStretch();
    layout->addLayout(buildButtonRow());
}

QLayout *RegistryBackupDialog::buildPathRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    QLabel *label = parts::label(tr("Save to:"), theme::label(theme::text, 13), this);
    label->setFixedWidth(70);
    m_pathEdit = new QLineEdit(defaultPath(), this);
    m_pathEdit->setObjectName("backupPathEdit"_L1);
    m_pathEdit->setAccessibleName(tr("Backup file"));
    m_pathEdit->setStyleSheet(theme::lineEdit(theme::smallRadius));
    m_pathEdit->setMinimumHeight(34);
    m_pathEdit->setCursorPosition(0);
    label->setBuddy(m_pathEdit);
    m_browseButton =
        parts::button(u"browseBtn"_s, tr("Browse..."),
                      theme::quietButton({.radius = theme::smallRadius, .fontSize = 12}), this);
    m_browseButton->setFixedSize(70, 34);
    m_browseButton->setAutoDefault(false);
    connect(m_browseButton, &QPushButton::clicked, this, &RegistryBackupDialog::browse);
    row->addWidget(label);
    row->addWidget(m_pathEdit, 1);
    row->addWidget(m_browseButton);
    return row;
}

QLayout *RegistryBackupDialog::buildButtonRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addStretch();
    QPushButton *cancel =
        parts::button(u"cancelBtn"_s, tr("Cancel"),
                      theme::quietButton({.radius = theme::controlRadius, .fontSize = 13}), this);
    cancel->setFixedSize(90, 38);
    cancel->setDefault(true);
    QPushButton *start = parts::button(u"startCleanBtn"_s, tr("Start Cleaning"),
                                       theme::filledButton({.background = theme::dangerHover,
                                                            .hovered = theme::danger,
                                                            .radius = theme::controlRadius,
                                                            .fontSize = 12,
                                                            .padding = u"0"_s}),
                                       this);
    start->setFixedSize(100, 38);
    start->setAutoDefault(false);
    row->addWidget(cancel);
    row->addWidget(start);
    connect(cancel, &QPushButton::clicked, this, &RegistryBackupDialog::reject);
    connect(start, &QPushButton::clicked, this, &RegistryBackupDialog::accept);
    return row;
}

QString RegistryBackupDialog::backupPath() const
{
    const QString path = m_pathEdit->text().trimmed();
    return !m_backupCheck->isChecked() || path.isEmpty() ? QString() : withSuffix(path);
}

void RegistryBackupDialog::onBackupCheckChanged(bool checked)
{
    m_pathEdit->setEnabled(checked);
    m_browseButton->setEnabled(checked);
}

void RegistryBackupDialog::browse()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Select backup location"), m_pathEdit->text(), tr("Registry files (*.reg)"));
    if (path.isEmpty())
        return;
    m_pathEdit->setText(withSuffix(path));
    m_pathToReplace = path; // the file chooser has already asked
}

void RegistryBackupDialog::accept()
{
    const QString path = backupPath();
    if (path.isEmpty() || prepareTarget(path))
        FramelessDialog::accept();
}

bool RegistryBackupDialog::prepareTarget(const QString &path)
{
    const QString shownPath = singleLine(QDir::toNativeSeparators(path)).left(1024);
    if (const QString problem = targetProblem(path); !problem.isEmpty()) {
        ask::notice(this, windowTitle(),
                    tr("The backup cannot be written here:\n%1\n\n%2").arg(shownPath, problem),
                    QMessageBox::Warning);
        return false;
    }
    return !QFileInfo::exists(path) || path == m_pathToReplace
        || ask::question(
            this, windowTitle(),
            tr("There is a file of this name already:\n%1\n\nReplace it?").arg(shownPath));
}

QString RegistryBackupDialog::targetProblem(const QString &path)
{
    const QFileInfo file(path);
    QString error;
    if (!platform::makePrivateFolder(file.absolutePath(), error))
        return tr("The folder cannot be made.");
    const QString problem = RegistryBackup::targetProblem(path);
    if (!problem.isEmpty())
        return problem;
    if (file.exists() && !file.isWritable())
        return tr("The file is write-protected.");
    QTemporaryFile probe(file.absolutePath() + "/sweepwise-XXXXXX"_L1);
    return probe.open() ? QString() : probe.errorString();
}

// In the path field, Return must not start the clean or close the dialog.
void RegistryBackupDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_pathEdit->hasFocus())
        event->accept();
    else
        FramelessDialog::keyPressEvent(event);
}

void RegistryBackupDialog::paintEvent(QPaintEvent *)
{
    paintBackground(theme::cardRadius);
}
