#include "registrypage.h"

#include "application.h"
#include "ask.h"
#include "registrybackupdialog.h"
#include "registrycleaner.h"

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
    if (!engine() || isEngineBusy())
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
