#pragma once

#include "browser.h"
#include "browserrule.h"
#include "cleanengine.h"
#include "listedfolders.h"

#include <QList>
#include <QMap>

#include <vector>

class CleanLedger;

namespace platform {
class FileRemover;
class ProtectedPlaces;
} // namespace platform

/// Finds and removes what browsers keep in their profiles: caches, logs, history, cookies. A rule
/// file says what to look for, and FirefoxScan where to look for it in Firefox.
///
/// A browser and a rule together become one category. In a Chromium browser a folder and the
/// entries in it are separate items. An entry that a rule finds by name inside a database is
/// unticked, with a high risk and the reason.
///
/// The browsers and their selection belong to the GUI thread. The GUI thread also writes the rules,
/// and in startScan() a copy of the selected browsers, while no worker runs. The worker only reads
/// these two. The listed folders belong to the worker and to the threads with which it scans the
/// profiles of a browser side by side. For everything else see CleanEngine.
class BrowserCleaner final : public CleanEngine
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserCleaner)
public:
    /// Cleans the browsers of the user who runs the program.
    explicit BrowserCleaner(QObject *parent = nullptr);
    explicit BrowserCleaner(const browsers::DataFolders &folders, QObject *parent = nullptr);
    ~BrowserCleaner() override;

    /// Replaces the rules with those of the JSON file at @p path. Must not be called while a run is
    /// busy. If the file cannot be read or is not a JSON object, an error is logged and the engine
    /// has no rules.
    void loadRules(const QString &path) override;
    [[nodiscard]] const QList<BrowserRule> &rules() const { return m_rules; }

    /// Finds out which browsers are installed. The constructor calls it once.
    void detectBrowsers();
    /// The five browsers in their fixed order.
    [[nodiscard]] const QList<Browser> &browsers() const { return m_browsers; }

    /// The category for what @p rule finds in @p browser, without items.
    [[nodiscard]] static CleanCategory categoryOf(const Browser &browser, const BrowserRule &rule);
    /// The ids of all categories that a scan can find.
    [[nodiscard]] QStringList categoryIds() const;

    /// Records whether the next scans include a browser. While nothing is recorded, every installed
    /// browser is scanned. Afterwards only those recorded as enabled are scanned.
    void setBrowserEnabled(int type, bool enabled);
    [[nodiscard]] bool isBrowserEnabled(int type) const;

public Q_SLOTS:
    void startScan() override;

protected:
    void doScan() override;
    void doClean() override;

private:
    struct FolderScan;
    /// One for each thread of a scan.
    using PlacesOfThreads = std::vector<platform::ProtectedPlaces>;

    void scanBrowser(const Browser &browser, PlacesOfThreads &places);
    [[nodiscard]] std::vector<FolderScan> foldersOf(const Browser &browser,
                                                    platform::ProtectedPlaces &places);
    void scanFolder(const Browser &browser, FolderScan &scan, platform::ProtectedPlaces &places);
    void warnIfRunning(const CleanCategory &category) const;
    /// Removes one item and records it in @p ledger. A failure is also written to the log.
    Removal removeItem(platform::FileRemover &remover, const CleanItem &item, CleanLedger &ledger);

    const bool m_hasOwnFolders = false; ///< the folders are those of the system
    browsers::DataFolders m_folders;
    QList<BrowserRule> m_rules;
    QList<Browser> m_browsers;
    platform::ReadFailures m_detectFailures; ///< what detectBrowsers() could not read
    QMap<int, bool> m_enabled;
    QList<Browser> m_scanned; ///< of the last scan
    platform::ListedFolders m_listed; ///< of the last scan
};
