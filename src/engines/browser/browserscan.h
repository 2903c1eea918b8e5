#pragma once

#include "browserrule.h"
#include "listedfolders.h"
#include "namefilter.h"
#include "protectedplaces.h"
#include "readfailures.h"
#include "runwatch.h"
#include "scanresult.h"

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

/// The items of each rule, in the order of the rules.
using ItemsByRule = std::vector<QList<CleanItem>>;

/// Finds what the rules match in the profiles of a Chromium browser. Reads each profile's tree once
/// for all rules.
///
/// BrowserCleaner makes one for each profile and uses it on one thread.
class ChromiumScan final
{
    Q_DISABLE_COPY_MOVE(ChromiumScan)
public:
    /// All must outlive the object. It records the folders that it reads in @p listed, and
    /// what it cannot read in @p failures.
    ChromiumScan(const QList<BrowserRule> &rules, platform::ProtectedPlaces &places,
                 platform::ListedFolders &listed, platform::ReadFailures &failures,
                 const platform::RunWatch &watch);

    /// Appends the items of the folder @p profile to @p found. The path is absolute and contains no
    /// links. A rule's items have the order in which a walk of the rule's own folder lists them:
    /// each folder comes before the entries in it.
    void scanProfile(const QString &profile, ItemsByRule &found) const;

private:
    /// For each folder, the rules that look into it, as indexes.
    using RulesByFolder = QHash<QString, std::vector<std::size_t>>;
    class Visitor;

    [[nodiscard]] RulesByFolder ruleFolders(const QString &profile) const;

    const QList<BrowserRule> &m_rules;
    platform::ProtectedPlaces &m_places;
    platform::ListedFolders &m_listed;
    platform::ReadFailures &m_failures;
    const platform::RunWatch m_watch;
    std::vector<platform::NameFilter> m_filters; ///< one for each rule
};

/// Finds what the rules match in Firefox's data. This class has the mapping from rule ids to
/// Firefox's folders. Reads each folder once for all rules.
///
/// BrowserCleaner makes one for each folder and uses it on one thread.
class FirefoxScan final
{
    Q_DISABLE_COPY_MOVE(FirefoxScan)
public:
    /// The parameters are those of ChromiumScan.
    FirefoxScan(const QList<BrowserRule> &rules, platform::ProtectedPlaces &places,
                platform::ListedFolders &listed, platform::ReadFailures &failures,
                const platform::RunWatch &watch);

    /// Appends the items below @p root that belong to no profile.
    void scanShared(const QString &root, ItemsByRule &found) const;
    /// Appends the items of one profile. Both paths are absolute and contain no links.
    void scanProfile(const QString &profile, ItemsByRule &found) const;

private:
    struct Source;
    struct RuleFilter;
    static const std::vector<Source> &sources();

    void scan(const QString &folder, bool isShared, ItemsByRule &found) const;
    void scanFolder(const QString &folder, bool isTree, const std::vector<RuleFilter> &ruleFilters,
                    ItemsByRule &found) const;

    const QList<BrowserRule> &m_rules;
    platform::ProtectedPlaces &m_places;
    platform::ListedFolders &m_listed;
    platform::ReadFailures &m_failures;
    const platform::RunWatch m_watch;
};
