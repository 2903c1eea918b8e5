#include "junkpage.h"

#include "application.h"
#include "junkcleaner.h"

JunkPage::JunkPage(QWidget *parent)
    : BasePage(parent)
{
    JunkPage::retranslateUi();
    setEngine(Application::instance()->junkCleaner());
}

void JunkPage::retranslateUi()
{
    BasePage::retranslateUi();
    setTitle(tr("Junk Cleaner"));
    setSubtitle(tr("Clean system temp files, cache and logs"));
    setStatisticCaption(tr("Cleanable Space"));
}
