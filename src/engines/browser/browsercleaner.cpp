#include "browsercleaner.h"

#include "browserscan.h"
#include "cleanledger.h"
#include "fileremove.h"
#include "logger.h"
#include "processes.h"
#include "protectedplaces.h"
#include "rulefile.h"
#include "rulefolders.h"
#include "sidebyside.h"

#include <algorithm>
#include <atomic>
#include <utility>

using namespace Qt::StringLiterals;

/// A profile, or Firefox's folder that belongs to no profile, and what a scan finds there.
struct BrowserCleaner::FolderScan {
    QString folder;
    bool isShared = false; ///< it belongs to no profile
    ItemsByRule found;
    platform::ReadFailures failures;
};

BrowserCleaner::BrowserCleaner(QObject *parent)
    : CleanEngine(parent)
    , m_hasOwnFolders(true)
{
    detectBrowsers();
}

BrowserCleaner::BrowserCleaner(const browsers::DataFolders &folders, QObject *parent)
    : CleanEngine(parent)
    , m_folders(folders)
{
    detectBrowsers();
}

BrowserCleaner::~BrowserCleaner()
{
    stopAndWait();
}

void BrowserCleaner::loadRules(const QString &path)
{
    const rulefile::Content file = rulefile::read(path);
    m_rules = rulefile::rulesOf<BrowserRule>(file);
    if (file.problem == rulefile::Problem::NotOpened) {
        Logger::instance().error("Failed to load browser rules: "_L1 + file.error);
        return;
    }
    if (file.problem != rulefile::Problem::None) {
        Logger::instance().error(u"Invalid browser rules format"_s);
        return;
    }
    Logger::instance().info(u"Loaded %1 browser rules"_s.arg(m_rules.size()));
}

void BrowserCleaner::detectBrowsers()
{
    m_detectFailures.clear();
    (void)platform::folderFailures(); // of earlier work on this thread
    if (m_hasOwnFolders)
        m_folders = browsers::dataFolders();
    m_browsers = browsers::detect(m_folders, m_detectFailures);
    m_detectFailures.add(platform::folderFailures());
    const auto installed = std::count_if(m_browsers.begin(), m_browsers.end(),
                                         [](const Browser &browser) { return browser.installed; });
    Logger::instance().info(u"Detected %1 browsers"_s.arg(installed));
    for (Browser &browser : m_browsers) {
        browser.selected = isBrowserEnabled(browser.type);
        Logger::instance().info(u"Browser: %1, Installed: %2, Path: %3"_s.arg(
            browser.name, browser.installed ? u"true"_s : u"false"_s, browser.dataRoot));
    }
}

CleanCategory BrowserCleaner::categoryOf(const Browser &browser, const BrowserRule &rule)
{
    CleanCategory category(u"%1_%2"_s.arg(browser.id, rule.id),
                           u"%1 - %2"_s.arg(browser.name, rule.name), rule.description);
    category.checked = rule.defaultChecked;
    category.riskLevel = rule.riskLevel;
    category.browserId = browser.id;
    category.ruleId = rule.id;
    category.ruleName = rule.name;
    return category;
}

QStringList BrowserCleaner::categoryIds() const
{
    QStringList ids;
    for (const Browser &browser : m_browsers) {
        for (const BrowserRule &rule : m_rules)
            ids.append(categoryOf(browser, rule).id);
    }
    return ids;
}

void BrowserCleaner::setBrowserEnabled(int type, bool enabled)
{
    m_enabled.insert(type, enabled);
    for (Browser &browser : m_browsers)
        browser.selected = isBrowserEnabled(browser.type);
}

bool BrowserCleaner::isBrowserEnabled(int type) const
{
    return m_enabled.isEmpty() || m_enabled.value(type, false);
}

void BrowserCleaner::startScan()
{
    stopAndWait();
    m_scanned.clear();
    std::copy_if(m_browsers.begin(), m_browsers.end(), std::back_inserter(m_scanned),
                 [](const Browser &browser) { return browser.installed && browser.selected; });
    CleanEngine::startScan();
}

void BrowserCleaner::doScan()
{
    Logger::instance().info(u"Starting browser scan..."_s);
    m_listed.clear();
    readFailures().add(m_detectFailures);
    PlacesOfThreads places(static_cast<std::size_t>(platform::usefulWalkers()));
    const int count = static_cast<int>(m_scanned.size());
    for (int i = 1; i <= count; ++i) {
        const Browser &browser = m_scanned.at(i - 1);
        if (!isStopRequested()) {
            Q_EMIT scanProgress(i, count, browser.name);
            scanBrowser(browser, places);
        }
        if (isStopRequested()) {
            readFailures().add(platform::folderFailures());
            setState(State::Cancelled);
            return;
        }
    }
    readFailures().add(platform::folderFailures());
    result().scanTime = QDateTime::currentDateTime();
    Logger::instance().info(u"Browser scan finished. Found %1 items, %2"_s.arg(
        QString::number(result().totalCount()), formatSize(result().totalSize())));
}

// The profiles are scanned side by side. What is found stays in their order.
void BrowserCleaner::scanBrowser(const Browser &browser, PlacesOfThreads &places)
{
    std::vector<FolderScan> scans = foldersOf(browser, places.front());
    std::atomic<std::size_t> next = 0;
    const std::size_t threads = std::min(places.size(), scans.size());
    platform::runSideBySide(static_cast<int>(threads), [&](int thread) {
        for (std::size_t scan = next++; scan < scans.size(); scan = next++)
            scanFolder(browser, scans[scan], places[static_cast<std::size_t>(thread)]);
    });
    for (const FolderScan &scan : scans)
        readFailures().add(scan.failures);
    for (qsizetype i = 0; i < m_rules.size(); ++i) {
        CleanCategory category = categoryOf(browser, m_rules.at(i));
        for (FolderScan &scan : scans) {
            // Each list is freed at once, because there may be a million items.
            QList<CleanItem> items =
                std::exchange(scan.found[static_cast<std::size_t>(i)], QList<CleanItem>());
            if (category.items.isEmpty())
                category.items = std::move(items);
            else
                category.items.append(std::move(items));
        }
        if (!category.items.isEmpty())
            result().categories.append(std::move(category));
    }
}

std::vector<BrowserCleaner::FolderScan> BrowserCleaner::foldersOf(const Browser &browser,
                                                                  platform::ProtectedPlaces &places)
{
    std::vector<FolderScan> scans;
    const auto add = [this, &scans](const QString &folder, bool isShared) {
        scans.push_back(
            {folder, isShared, ItemsByRule(static_cast<std::size_t>(m_rules.size())), {}});
    };
    QStringList profiles;
    if (browser.type == Browser::Firefox) {
        if (const QString root = browsers::firefoxRoot(m_folders, readFailures()); !root.isEmpty())
            add(root, true);
        profiles = browsers::firefoxProfiles(m_folders, places, readFailures());
    } else {
        profiles = browsers::chromiumProfiles(browser.dataRoot, readFailures());
    }
    for (const QString &profile : std::as_const(profiles))
        add(profile, false);
    return scans;
}

// Runs on the worker and on threads beside it.
void BrowserCleaner::scanFolder(const Browser &browser, FolderScan &scan,
                                platform::ProtectedPlaces &places)
{
    if (browser.type == Browser::Firefox) {
        const FirefoxScan firefox(m_rules, places, m_listed, scan.failures, watch());
        if (scan.isShared)
            firefox.scanShared(scan.folder, scan.found);
        else
            firefox.scanProfile(scan.folder, scan.found);
    } else {
        ChromiumScan(m_rules, places, m_listed, scan.failures, watch())
            .scanProfile(scan.folder, scan.found);
    }
    scan.failures.add(platform::folderFailures()); // those of this thread
}

void BrowserCleaner::doClean()
{
    Logger::instance().info(u"Starting browser clean..."_s);
    CleanLedger ledger(selection());
    platform::FileRemover remover;
    remover.setListed(&m_listed);
    CleanTotals totals =
        cleanSelection([&](const CleanItem &item) { return removeItem(remover, item, ledger); },
                       [this](const CleanCategory &category) { warnIfRunning(category); });
    // A stop may leave the last folder partly removed.
    totals.isStopped = isStopRequested();
    if (!totals.isStopped)
        Logger::instance().info(
            u"Browser clean finished. Cleaned %1 items, %2. Failed: %3 items"_s.arg(
                QString::number(totals.cleaned), formatSize(totals.freed),
                QString::number(totals.failed)));
    reportClean(totals);
}

void BrowserCleaner::warnIfRunning(const CleanCategory &category) const
{
    const QString id = browsers::originOf(category).browserId;
    const auto browser =
        std::find_if(m_scanned.begin(), m_scanned.end(),
                     [&id](const Browser &candidate) { return candidate.id == id; });
    if (browser == m_scanned.end())
        return;
    const std::optional<QSet<QString>> running = platform::runningPrograms();
    if (!running)
        Logger::instance().warning("Cannot tell whether a browser is running: "_L1 + browser->name);
    else if (running->contains(browser->processName))
        Logger::instance().warning(browser->name + " is running, some files may not be deleted"_L1);
}

CleanEngine::Removal BrowserCleaner::removeItem(platform::FileRemover &remover,
                                                const CleanItem &item, CleanLedger &ledger)
{
    using Status = platform::FileRemover::Status;
    const platform::FileRemover::Outcome outcome = remover.remove(item.path, &stopFlag());
    if (outcome.status == Status::Failed && outcome.wasFolder && isStopRequested())
        return {Removal::NotCounted, 0, {}}; // partly removed because of the stop; not a failure
    if (const std::optional<qint64> freed = ledger.record(item, outcome))
        return {Removal::Cleaned, *freed, {}};
    Logger::instance().warning(u"Failed to delete: %1"_s.arg(item.path));
    QString reason = outcome.error;
    if (outcome.status == Status::NotFound)
        reason = tr("File not found");
    else if (outcome.status == Status::Replaced)
        reason = tr("Its folder is not the one that was listed");
    return {Removal::Failed, 0, {item.path, reason}};
}
