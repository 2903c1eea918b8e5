#pragma once

#include "browser.h"
#include "browserrule.h"
#include "cleanengine.h"
#include "listedfolders.h"

#include <QList>
#include <QMap>

class CleanLedger;

namespace platform {
class FileRemover;
}

/// Finds and removes what browsers keep in their profiles: caches, logs, history, cookies. What it
/// looks for stands in a rule file, and for Firefox in FirefoxScan.
///
/// One browser and rule become one category. A rule of a Chromium browser lists a folder and what
/// is in it as items of their own. What a rule finds by name inside a database is listed unticked,
/// with a high risk and the reason. The browsers and their selection belong to the GUI thread. The
/// rules and the copy of the selected browsers that startScan() makes are written there while no
/// worker runs, and only read by the workers, to which the listed folders belong. For everything
/// else see CleanEngine.
class BrowserCleaner final : public CleanEngine
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserCleaner)
public:
    /// Cleans the browsers of the user who runs the program.
    explicit BrowserCleaner(QObject *parent = nullptr);
    explicit BrowserCleaner(const browsers::DataFolders &folders, QObject *parent = nullptr);
    ~BrowserCleaner() override;

    /// Replaces the rules by those of the JSON file at @p path. Not while a run is busy. A file
    /// that cannot be read or is no JSON object is logged as an error and leaves the engine without
    /// rules.
    void loadRules(const QString &path) override;
    [[nodiscard]] const QList<BrowserRule> &rules() const { return m_rules; }

    /// Looks which browsers are installed; the constructor does so once.
    void detectBrowsers();
    /// The five browsers in their fixed order.
    [[nodiscard]] const QList<Browser> &browsers() const { return m_browsers; }

    /// What a scan calls that which @p rule finds of @p browser, without the items.
    [[nodiscard]] static CleanCategory categoryOf(const Browser &browser, const BrowserRule &rule);
    /// The ids of all categories that a scan can find.
    [[nodiscard]] QStringList categoryIds() const;

    /// Records whether a browser is to be scanned, from the next scan on. As long as nothing is
    /// recorded every installed browser is; afterwards only those that are recorded as enabled.
    void setBrowserEnabled(int type, bool enabled);
    [[nodiscard]] bool isBrowserEnabled(int type) const;

public Q_SLOTS:
    void startScan() override;

protected:
    void doScan() override;
    void doClean() override;

private:
    void scanBrowser(const Browser &browser);
    void warnIfRunning(const CleanCategory &category) const;
    /// A failure is in the log as well.
    Removal removeItem(platform::FileRemover &remover, const CleanItem &item, CleanLedger &ledger);

    const browsers::DataFolders m_folders;
    QList<BrowserRule> m_rules;
    QList<Browser> m_browsers;
    QMap<int, bool> m_enabled;
    QList<Browser> m_scanned; ///< those of the last scan
    platform::ListedFolders m_listed; ///< by the last scan
};
