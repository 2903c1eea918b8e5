#pragma once

#include "browserrule.h"
#include "listedfolders.h"
#include "namefilter.h"
#include "scanresult.h"

#include <QHash>
#include <QList>
#include <QString>

#include <atomic>
#include <vector>

/// The items of each rule, in the rules' order.
using ItemsByRule = std::vector<QList<CleanItem>>;

/// Finds what the rules take from the profiles of a Chromium browser, reading each profile's tree
/// once for all of them.
class ChromiumScan final
{
    Q_DISABLE_COPY_MOVE(ChromiumScan)
public:
    /// All three must outlive the object. The folders that it reads are recorded in @p listed.
    ChromiumScan(const QList<BrowserRule> &rules, platform::ListedFolders &listed,
                 const std::atomic_bool &stopRequested);

    /// Appends what lies in the folder @p profile (absolute, link-free) to @p found. Each rule's
    /// items come as a walk of the rule's own folder lists them: folders and files, each folder
    /// before what is in it.
    void scanProfile(const QString &profile, ItemsByRule &found) const;

private:
    /// The rules that take from one folder, by that folder.
    using RulesByFolder = QHash<QString, std::vector<std::size_t>>;
    class Visitor;

    [[nodiscard]] RulesByFolder ruleFolders(const QString &profile) const;

    const QList<BrowserRule> &m_rules;
    platform::ListedFolders &m_listed;
    const std::atomic_bool &m_stopRequested;
    std::vector<platform::NameFilter> m_filters; ///< by rule
};

/// Finds what the rules take from Firefox, of whose data the mapping from rule ids to folders is
/// part of this class. Each folder is read once for all rules.
class FirefoxScan final
{
    Q_DISABLE_COPY_MOVE(FirefoxScan)
public:
    /// As the other.
    FirefoxScan(const QList<BrowserRule> &rules, platform::ListedFolders &listed,
                const std::atomic_bool &stopRequested);

    /// Appends what belongs to no profile and lies below @p root.
    void scanShared(const QString &root, ItemsByRule &found) const;
    /// Appends what lies in one profile. Both folders are absolute and link-free.
    void scanProfile(const QString &profile, ItemsByRule &found) const;

private:
    struct Source;
    struct RuleFilter;
    static const std::vector<Source> &sources();

    void scan(const QString &folder, bool isShared, ItemsByRule &found) const;
    void scanFolder(const QString &folder, bool isTree, const std::vector<RuleFilter> &ruleFilters,
                    ItemsByRule &found) const;

    const QList<BrowserRule> &m_rules;
    platform::ListedFolders &m_listed;
    const std::atomic_bool &m_stopRequested;
};
