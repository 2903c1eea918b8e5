#include "browserpage.h"

#include "application.h"
#include "browsercleaner.h"
#include "browsergroupwidget.h"
#include "flowlayout.h"
#include "parts.h"
#include "scanresult.h"
#include "theme.h"

#include <QCheckBox>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

BrowserPage::BrowserPage(QWidget *parent)
    : BasePage(parent)
    , m_cleaner(Application::instance()->browserCleaner())
{
    buildSelectionBar();
    BrowserPage::retranslateUi();
    setEngine(m_cleaner);
}

void BrowserPage::buildSelectionBar()
{
    auto *bar = new QWidget(this);
    bar->setObjectName("browserSelectionBar"_L1);
    auto *row = new FlowLayout(bar);
    row->setSpacing(12, 6);
    m_selectLabel = parts::label({}, theme::label(theme::muted, 13), bar);
    m_selectLabel->setObjectName("browserSelectionLabel"_L1);
    row->addWidget(m_selectLabel);
    for (const Browser &browser : m_cleaner->browsers()) {
        if (!browser.installed)
            continue;
        auto *box = new QCheckBox(browser.name, bar);
        box->setProperty("browserType", browser.type);
        box->setStyleSheet(theme::browserCheckBox());
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, this, &BrowserPage::onBrowserToggled);
        m_browserBoxes.append(box);
        row->addWidget(box);
    }
    insertTopBar(bar);
    // The engine must know the choice for each browser from the start. Once it knows one choice, it
    // leaves out every browser without a choice.
    for (const QCheckBox *box : std::as_const(m_browserBoxes))
        m_cleaner->setBrowserEnabled(box->property("browserType").toInt(), true);
}

void BrowserPage::onBrowserToggled(bool checked)
{
    const int type = sender()->property("browserType").toInt();
    m_cleaner->setBrowserEnabled(type, checked);
    // A user who leaves a browser out also means its listed results.
    setBrowserIncluded(type, checked);
}

void BrowserPage::setBrowserIncluded(int type, bool included)
{
    for (const Browser &browser : m_cleaner->browsers()) {
        if (browser.type == type && m_groups.value(browser.id))
            m_groups.value(browser.id)->setIncluded(included);
    }
}

void BrowserPage::retranslateUi()
{
    BasePage::retranslateUi();
    setTitle(tr("Browser Cleaner"));
    setSubtitle(tr("Clean browser cache, cookies and history"));
    setStatisticCaption(tr("Cleanable Data"));
    m_selectLabel->setText(tr("Select Browser:"));
    for (QCheckBox *box : std::as_const(m_browserBoxes))
        box->setAccessibleDescription(m_selectLabel->text());
}

QList<ResultWidget *> BrowserPage::makeResultWidgets(QList<CleanCategory> &categories,
                                                     QWidget *parent)
{
    m_groups.clear();
    const QList<Browser> &known = m_cleaner->browsers();
    // One group for each browser, in the order of the browsers. The last group is for categories
    // without a known browser.
    QList<BrowserGroupWidget *> groups(known.size() + 1);
    for (CleanCategory &category : categories) {
        const QString id = browsers::originOf(category).browserId;
        const auto browser =
            std::find_if(known.cbegin(), known.cend(),
                         [&id](const Browser &candidate) { return candidate.id == id; });
        const bool isKnown = browser != known.cend();
        BrowserGroupWidget *&group = groups[browser - known.cbegin()];
        if (!group) {
            group = new BrowserGroupWidget(isKnown ? browser->name : tr("Other"), parent);
            if (isKnown)
                m_groups.insert(browser->id, group);
        }
        group->addCategory(&category);
    }
    // The user may have left out a browser while the scan ran.
    for (const QCheckBox *box : std::as_const(m_browserBoxes)) {
        if (!box->isChecked())
            setBrowserIncluded(box->property("browserType").toInt(), false);
    }
    QList<ResultWidget *> widgets;
    std::copy_if(groups.begin(), groups.end(), std::back_inserter(widgets),
                 [](const BrowserGroupWidget *group) { return group != nullptr; });
    return widgets;
}
