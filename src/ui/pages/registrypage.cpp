#include "registrypage.h"

#include "application.h"
#include "ask.h"
#include "registrybackupdialog.h"
#include "registrycleaner.h"
#include "text.h"

#include <QDir>

using namespace Qt::StringLiterals;

RegistryPage::RegistryPage(QWidget *parent)
    : BasePage(parent)
    , m_cleaner(Application::instance()->registryCleaner())
{
    setShowSizes(false);
    RegistryPage::retranslateUi();
    setEngine(m_cleaner);
}

void RegistryPage::retranslateUi()
{
    BasePage::retranslateUi();
    setTitle(tr("Registry Cleaner"));
    setSubtitle(tr("Clean invalid registry entries"));
    setStatisticCaption(tr("Issues Found"));
    setNoSelectionText(tr("选中: --"));
}

void RegistryPage::startClean()
{
    if (!canAskToClean())
        return;
    const int count = chosenCount();
    if (count == 0) {
        ask::notice(this, tr("提示"), tr("没有选中任何项目"));
        return;
    }
    RegistryBackupDialog dialog(count, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    // A cancelled clean may still read the path while it writes its backup.
    if (!canClean())
        return;
    m_cleaner->setBackupPath(dialog.backupPath());
    runClean();
}

void RegistryPage::onCleanFinished(qint64 totalCleaned, int itemsCleaned)
{
    const std::optional<QString> reason = m_cleaner->backupError();
    BasePage::onCleanFinished(totalCleaned, itemsCleaned);
    if (!reason)
        return;
    // A scan that overtakes the end of the clean calls this while it starts. The box, which waits
    // for the user, must not hold it up.
    QMetaObject::invokeMethod(
        this,
        [this, path = m_cleaner->backupPath(), reason = *reason, itemsCleaned] {
            warnOfMissingBackup(path, reason, itemsCleaned);
        },
        Qt::QueuedConnection);
}

void RegistryPage::warnOfMissingBackup(const QString &path, const QString &reason, int itemsCleaned)
{
    const QString shownPath = singleLine(QDir::toNativeSeparators(path)).left(1024);
    const QString removed = itemsCleaned > 0
        ? tr("Entries removed without a backup: %1").arg(itemsCleaned)
        : tr("No entries were removed.");
    ask::notice(this, tr("Registry Cleaner"),
                tr("The registry backup could not be written:\n%1\n\n%2").arg(shownPath, reason),
                QMessageBox::Warning, removed);
}
