#include "startuppage.h"

#include "ask.h"
#include "logger.h"
#include "parts.h"
#include "startupcard.h"
#include "theme.h"
#include "windowspaths.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype cardsPerBatch = 12; ///< more than fit on the page without scrolling

void setCheckedSilently(QCheckBox *box, bool checked)
{
    const QSignalBlocker blocker(box);
    box->setChecked(checked);
}

} // namespace

StartupPage::StartupPage(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("startupPage"_L1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(14);
    layout->addLayout(buildHeader());
    layout->addLayout(buildTools());
    layout->addWidget(buildLoadingPanel());

    m_scrollArea = parts::verticalScrollArea(u"startupScrollArea"_s, this);
    auto *cards = new QWidget(m_scrollArea);
    m_list = new QVBoxLayout(cards);
    m_list->setContentsMargins(0, 0, 16, 0);
    m_list->setSpacing(8);
    m_list->addStretch();
    m_scrollArea->setWidget(cards);
    cards->setAutoFillBackground(false);
    layout->addWidget(m_scrollArea, 1);

    m_loadingTimer.setInterval(400);
    connect(&m_loadingTimer, &QTimer::timeout, this, &StartupPage::updateLoadingAnimation);
    m_cardTimer.setInterval(0);
    connect(&m_cardTimer, &QTimer::timeout, this, &StartupPage::addCards);
}

QLayout *StartupPage::buildHeader()
{
    auto *header = new QHBoxLayout;
    auto *titles = new QVBoxLayout;
    titles->setSpacing(4);
    titles->addWidget(
        parts::label(tr("Startup Manager"), theme::labelSizeFirst(theme::text, 24, 700), this));
    titles->addWidget(parts::label(tr("Check programs to enable auto-start at boot"),
                                   theme::labelSizeFirst(theme::muted, 14), this));
    header->addLayout(titles, 1);
    m_counts = parts::label(tr("%1 programs").arg(0), theme::countBadge(), this);
    m_counts->setObjectName("countsLabel"_L1);
    header->addWidget(m_counts, 0, Qt::AlignTop);
    return header;
}

QLayout *StartupPage::buildTools()
{
    auto *tools = new QHBoxLayout;
    tools->setSpacing(12);
    m_search = new QLineEdit(this);
    m_search->setObjectName("searchEdit"_L1);
    m_search->setFixedSize(250, 36);
    m_search->setPlaceholderText(tr("Search programs..."));
    m_search->setAccessibleName(tr("Search programs"));
    m_search->setClearButtonEnabled(true);
    m_search->setStyleSheet(theme::lineEdit(theme::controlRadius));
    connect(m_search, &QLineEdit::textChanged, this, &StartupPage::onSearchChanged);
    tools->addWidget(m_search);
    QPushButton *refresh =
        parts::button(u"refreshBtn"_s, tr("Refresh"),
                      theme::quietButton({.radius = theme::controlRadius, .fontSize = 13}), this);
    refresh->setFixedSize(90, 36);
    connect(refresh, &QPushButton::clicked, this, &StartupPage::onRefreshClicked);
    tools->addWidget(refresh);
    QLabel *hint = parts::label(tr("Checked programs will run automatically at startup"),
                                theme::labelSizeFirst(theme::faint, 12), this);
    hint->setWordWrap(true);
    tools->addWidget(hint, 1);
    return tools;
}

QWidget *StartupPage::buildLoadingPanel()
{
    m_loadingPanel = new QWidget(this);
    m_loadingPanel->setObjectName("loadingPanel"_L1);
    auto *layout = new QVBoxLayout(m_loadingPanel);
    layout->setContentsMargins(0, 40, 0, 40);
    layout->setSpacing(8);
    m_loadingSymbol =
        parts::centredLabel({}, theme::labelSizeFirst(theme::accent, 36), m_loadingPanel);
    m_loadingSymbol->setObjectName("loadingSymbol"_L1);
    layout->addWidget(m_loadingSymbol);
    layout->addWidget(parts::centredLabel(tr("Scanning installed programs..."),
                                          theme::labelSizeFirst(theme::muted, 15), m_loadingPanel));
    layout->addWidget(parts::centredLabel(tr("First load may take a few seconds"),
                                          theme::labelSizeFirst(theme::faint, 13), m_loadingPanel));
    m_loadingPanel->hide();
    return m_loadingPanel;
}

void StartupPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (std::exchange(m_hasLoaded, true))
        return;
    onRefreshClicked();
}

void StartupPage::onRefreshClicked()
{
    startLoading();
    // The delay lets the page paint before the registry is read.
    QTimer::singleShot(100, this, &StartupPage::doLoadApps);
}

void StartupPage::startLoading()
{
    m_loadingTimer.stop();
    m_loadingFrame = -1;
    updateLoadingAnimation();
    m_loadingPanel->show();
    m_loadingTimer.start();
}

void StartupPage::updateLoadingAnimation()
{
    static const std::array frames{u"●"_s, u"◐"_s, u"◑"_s, u"◒"_s};
    m_loadingFrame = (m_loadingFrame + 1) % static_cast<int>(frames.size());
    m_loadingSymbol->setText(frames[static_cast<size_t>(m_loadingFrame)]);
}

void StartupPage::doLoadApps()
{
    m_manager.loadInstalledApps();
    m_apps = m_manager.apps();
    m_programCount = m_apps.size();
    m_loadingTimer.stop();
    m_loadingPanel->hide();
    refreshList();
}

void StartupPage::onSearchChanged(QString)
{
    refreshList();
}

void StartupPage::refreshList()
{
    m_cardTimer.stop();
    while (m_list->count() > 1) {
        const std::unique_ptr<QLayoutItem> item(m_list->takeAt(0));
        // A card may still be handling its own click, so it is deleted later.
        item->widget()->hide();
        item->widget()->setParent(nullptr);
        item->widget()->deleteLater();
    }
    std::sort(m_apps.begin(), m_apps.end(), [](const StartupApp &left, const StartupApp &right) {
        return left.name.localeAwareCompare(right.name) < 0;
    });
    const QString searchText = m_search->text().toLower();
    m_pendingApps.clear();
    std::copy_if(m_apps.cbegin(), m_apps.cend(), std::back_inserter(m_pendingApps),
                 [&searchText](const StartupApp &app) {
                     return app.name.toLower().contains(searchText)
                         || app.exePath.toLower().contains(searchText);
                 });
    showCounts();
    addCards();
}

// Creates the first batch at once and the others from a timer, so that the page reacts to keys in
// between.
void StartupPage::addCards()
{
    for (qsizetype count = 0; count < cardsPerBatch && !m_pendingApps.isEmpty(); ++count) {
        const StartupApp app = m_pendingApps.takeFirst();
        const QIcon icon = m_icons.icon(QFileInfo(platform::localPath(app.exePath)));
        auto *card = new StartupCard(app, icon, m_scrollArea->widget());
        connect(card->checkBox(), &QCheckBox::toggled, this, &StartupPage::onItemToggled);
        m_list->insertWidget(m_list->count() - 1, card);
    }
    if (m_pendingApps.isEmpty())
        m_cardTimer.stop();
    else
        m_cardTimer.start();
}

void StartupPage::showCounts()
{
    const auto startupCount = std::count_if(m_apps.cbegin(), m_apps.cend(),
                                            [](const StartupApp &app) { return app.isStartup; });
    m_counts->setText(tr("%1 programs · %2 startup items")
                          .arg(QString::number(m_programCount), QString::number(startupCount)));
}

void StartupPage::onItemToggled(bool checked)
{
    auto *box = qobject_cast<QCheckBox *>(sender());
    if (!box)
        return;
    const QString exePath = box->property("exePath").toString();
    const auto app =
        std::find_if(m_apps.begin(), m_apps.end(), [&exePath](const StartupApp &other) {
            return other.exePath.compare(exePath, Qt::CaseInsensitive) == 0;
        });
    if (app == m_apps.end())
        return;
    if (!m_manager.setStartup(*app, checked)) {
        setCheckedSilently(box, !checked);
        showWarning(checked ? tr("Failed to add startup item")
                            : tr("Failed to remove startup item"));
        return;
    }
    showStates();
    showCounts();
    const QString name = box->property("displayName").toString();
    Logger::instance().info(
        (checked ? u"Added \"%1\" to startup"_s : u"Removed \"%1\" from startup"_s).arg(name));
}

// The new entry of one program may have replaced the entry of another program.
void StartupPage::showStates()
{
    QHash<QString, bool> states;
    for (const StartupApp &app : m_manager.apps())
        states.insert(app.exePath, app.isStartup);
    for (QList<StartupApp> *list : {&m_apps, &m_pendingApps}) {
        for (StartupApp &app : *list)
            app.isStartup = states.value(app.exePath, app.isStartup);
    }
    for (StartupCard *card : m_scrollArea->widget()->findChildren<StartupCard *>()) {
        const bool isStartup = states.value(card->property("appExePath").toString());
        setCheckedSilently(card->checkBox(), isStartup);
        card->showState(isStartup);
    }
}

void StartupPage::showWarning(const QString &text)
{
    ask::notice(this, tr("Operation Failed"), text, QMessageBox::Warning, m_manager.errorString());
}
