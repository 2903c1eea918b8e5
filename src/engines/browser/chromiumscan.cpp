#include "browserscan.h"

#include "entrywalk.h"
#include "folderlister.h"
#include "rulefolders.h"
#include "scanlog.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A folder whose files only work together: removing one of them harms the others.
enum class Bundle {
    None,
    /// A profile holds dozens of such databases. Each has a file that names the current list of its
    /// parts, the lists, and the parts. A part with a name like "000003.log" is not a log: it holds
    /// the data that was written last. In a small database that is all the data.
    Database,
    /// The installed files of a browser extension.
    Extension,
};

Bundle bundleOf(const std::vector<platform::ListedEntry> &entries)
{
    const auto has = [&entries](auto matches) {
        return std::any_of(
            entries.begin(), entries.end(),
            [&matches](const platform::ListedEntry &entry) { return matches(entry.name); });
    };
    const auto isCalled = [](QLatin1StringView wanted) {
        return [wanted](const QString &name) {
            return name.compare(wanted, Qt::CaseInsensitive) == 0;
        };
    };
    const auto isList = [](const QString &name) {
        return name.startsWith("MANIFEST-"_L1, Qt::CaseInsensitive);
    };
    if (has(isCalled("CURRENT"_L1)) && has(isList))
        return Bundle::Database;
    return has(isCalled("manifest.json"_L1)) ? Bundle::Extension : Bundle::None;
}

QString warningOf(Bundle bundle)
{
    return bundle == Bundle::Extension
        ? QCoreApplication::translate(
            "BrowserCleaner", "Belongs to an extension, which does not work without all its files")
        : QCoreApplication::translate(
            "BrowserCleaner",
            "Holds part of a database: removing it loses data saved by the browser, websites or "
            "extensions");
}

} // namespace

/// Passes each entry of a walk to the rules whose folder contains it. When the walk has read a
/// rule's own folder, that folder is removed from those that remain to be walked.
///
/// A rule without its own folder looks for names in the whole profile and knows nothing of bundles.
/// An entry in a bundle, or a folder that contains a bundle, is therefore listed unticked for it. A
/// rule with its own folder means everything in that folder.
class ChromiumScan::Visitor final : public platform::EntryVisitor
{
public:
    Visitor(const ChromiumScan &scan, std::vector<std::size_t> rules, RulesByFolder &remaining,
            ItemsByRule &found)
        : m_scan(scan)
        , m_activeRules(std::move(rules))
        , m_remaining(remaining)
        , m_found(found)
    {
    }

    void visitListing(const std::vector<platform::ListedEntry> &entries, bool isShown) override
    {
        const Bundle bundle = bundleOf(entries);
        if (bundle == Bundle::None)
            return;
        for (const OpenFolder &folder : m_openFolders) {
            for (const auto &[rule, item] : folder.items)
                markRisky(rule, m_found[rule][item], bundle);
        }
        // No entry of a hidden folder is listed.
        if (!isShown)
            return;
        m_bundles.push_back(bundle);
        if (!m_openFolders.empty())
            m_openFolders.back().isBundle = true;
    }

    void visitEntry(platform::WalkedEntry &&entry) override
    {
        OpenFolder folder{entry.path, m_activeRules.size(), {}, false};
        for (const std::size_t rule : m_activeRules) {
            if (!m_scan.m_filters[rule].matches(entry.name))
                continue;
            add(rule, entry);
            folder.items.emplace_back(rule, m_found[rule].size() - 1);
        }
        if (!entry.isFolder)
            return;
        if (const auto ownRules = m_remaining.constFind(entry.path); ownRules != m_remaining.cend())
            m_activeRules.insert(m_activeRules.end(), ownRules->begin(), ownRules->end());
        m_openFolders.push_back(std::move(folder));
    }

    void leaveFolder(qint64 size, bool wasRead) override
    {
        const OpenFolder folder = std::move(m_openFolders.back());
        m_openFolders.pop_back();
        m_activeRules.resize(folder.outerRuleCount);
        if (folder.isBundle)
            m_bundles.pop_back();
        for (const auto &[rule, item] : folder.items)
            m_found[rule][item].size = size;
        if (wasRead)
            m_remaining.remove(folder.path);
    }

private:
    /// A folder on the way from the root of the walk to the current folder.
    struct OpenFolder {
        QString path;
        /// How many rules were active outside the folder.
        std::size_t outerRuleCount;
        /// The items for the folder itself: rule and index in the list of its items.
        std::vector<std::pair<std::size_t, qsizetype>> items;
        bool isBundle;
    };

    void add(std::size_t index, const platform::WalkedEntry &entry)
    {
        const BrowserRule &rule = m_scan.m_rules.at(static_cast<qsizetype>(index));
        CleanItem &item = m_found[index].emplaceBack(entry.name, entry.path, entry.size);
        item.checked = rule.defaultChecked;
        item.riskLevel = rule.riskLevel;
        item.isDirectory = entry.isFolder;
        for (const Bundle bundle : m_bundles)
            markRisky(index, item, bundle);
    }

    void markRisky(std::size_t index, CleanItem &item, Bundle bundle) const
    {
        if (!m_scan.m_rules.at(static_cast<qsizetype>(index)).subPath.isEmpty())
            return;
        item.checked = false;
        item.riskLevel = HighRisk;
        // Lost data is worse than a broken extension.
        if (item.description.isEmpty() || bundle == Bundle::Database)
            item.description = warningOf(bundle);
    }

    const ChromiumScan &m_scan;
    std::vector<std::size_t> m_activeRules; ///< the rules whose folder contains the current folder
    RulesByFolder &m_remaining;
    ItemsByRule &m_found;
    std::vector<OpenFolder> m_openFolders; ///< from the root down to the current folder
    std::vector<Bundle> m_bundles; ///< the bundles on that way, including the root
};

ChromiumScan::ChromiumScan(const QList<BrowserRule> &rules, platform::ProtectedPlaces &places,
                           platform::ListedFolders &listed, platform::ReadFailures &failures,
                           const platform::RunWatch &watch)
    : m_rules(rules)
    , m_places(places)
    , m_listed(listed)
    , m_failures(failures)
    , m_watch(watch)
{
    m_filters.reserve(static_cast<std::size_t>(rules.size()));
    for (const BrowserRule &rule : rules)
        m_filters.emplace_back(rule.patterns);
}

ChromiumScan::RulesByFolder ChromiumScan::ruleFolders(const QString &profile) const
{
    RulesByFolder folders;
    for (qsizetype i = 0; i < m_rules.size(); ++i) {
        const BrowserRule &rule = m_rules.at(i);
        const QString folder =
            rule.subPath.isEmpty() ? profile : platform::locate(profile, rule.subPath, m_failures);
        if (!folders.contains(folder) && !isScannable(folder, m_failures))
            continue;
        if (rule.matchesEverything() && m_places.holdsProtectedPlace(folder)) {
            logTooBroadRule(folder, rule.id);
            continue;
        }
        folders[folder].push_back(static_cast<std::size_t>(i));
    }
    return folders;
}

// The walk of an outer folder skips a folder that is hidden or a mount point. Such a folder is
// walked by itself.
void ChromiumScan::scanProfile(const QString &profile, ItemsByRule &found) const
{
    if (m_watch.isStopped())
        return;
    RulesByFolder remaining = ruleFolders(profile);
    while (!remaining.isEmpty() && !m_watch.isStopped()) {
        const QStringList folders = remaining.keys();
        const QString outermost = *std::min_element(
            folders.begin(), folders.end(),
            [](const QString &a, const QString &b) { return a.size() < b.size(); });
        Visitor visitor(*this, remaining.take(outermost), remaining, found);
        m_failures.add(platform::walkEntries(outermost, visitor, m_watch, &m_listed));
    }
}
