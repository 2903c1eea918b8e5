#include "dashboardpage.h"

#include "dashboardpanels.h"
#include "statcard.h"
#include "text.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

DashboardPage::DashboardPage(QWidget *parent)
    : QWidget(parent)
    , m_panels(new QStackedWidget(this))
    , m_start(new DashboardStartPanel(m_panels))
    , m_results(new DashboardResultsPanel(m_panels))
{
    setObjectName("dashboardPage"_L1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panels);
    m_panels->addWidget(m_start);
    m_panels->addWidget(m_results);

    connect(m_start->startButton(), &QPushButton::clicked, this, &DashboardPage::onScanClicked);
    connect(m_results->scanButton(), &QPushButton::clicked, this, &DashboardPage::onScanClicked);
    connect(m_results->cleanButton(), &QPushButton::clicked, this, &DashboardPage::onCleanClicked);
    connect(m_results->junkCard(), &StatCard::activated, this, &DashboardPage::onJunkCardClicked);
    connect(m_results->browserCard(), &StatCard::activated, this,
            &DashboardPage::onBrowserCardClicked);
    connect(m_results->registryCard(), &StatCard::activated, this,
            &DashboardPage::onRegistryCardClicked);
    for (StatCard *card :
         {m_results->junkCard(), m_results->browserCard(), m_results->registryCard()})
        card->installEventFilter(this);
}

void DashboardPage::setScanning(bool scanning)
{
    const auto show = [this, scanning] {
        m_start->setScanning(scanning);
        m_results->setScanning(scanning);
    };
    if (scanning) {
        m_focus.keep(this, show);
        return;
    }
    show();
    m_focus.restore(this);
}

void DashboardPage::updateProgress(int percent, const QString &currentPath)
{
    const QString path = singleLine(shortPath(currentPath, 0, 57));
    m_start->setProgress(percent, path);
    m_results->setProgress(percent);
}

void DashboardPage::showActivity()
{
    m_start->showActivity();
    m_results->showActivity();
}

void DashboardPage::showResults(qint64 junkSize, qint64 browserSize, int registryCount)
{
    m_hasResults = true;
    m_results->setResults(junkSize, browserSize, registryCount);
    m_panels->setCurrentWidget(m_results);
}

bool DashboardPage::eventFilter(QObject *watched, QEvent *event)
{
    const auto *card = qobject_cast<QWidget *>(watched);
    // A user can still abort a press by releasing the button outside the card.
    if (card && event->type() == QEvent::MouseButtonRelease
        && card->rect().contains(static_cast<QMouseEvent *>(event)->position().toPoint())) {
        if (watched == m_results->junkCard()) {
            onJunkCardClicked();
            return true;
        }
        if (watched == m_results->browserCard()) {
            onBrowserCardClicked();
            return true;
        }
        if (watched == m_results->registryCard()) {
            onRegistryCardClicked();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DashboardPage::onScanClicked()
{
    Q_EMIT scanRequested();
}

void DashboardPage::onCleanClicked()
{
    Q_EMIT cleanRequested();
}

void DashboardPage::onJunkCardClicked()
{
    Q_EMIT navigateToPage(1);
}

void DashboardPage::onBrowserCardClicked()
{
    Q_EMIT navigateToPage(2);
}

void DashboardPage::onRegistryCardClicked()
{
    Q_EMIT navigateToPage(3);
}
