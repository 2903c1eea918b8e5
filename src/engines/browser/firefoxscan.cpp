#include "browserscan.h"

#include "entrywalk.h"
#include "filewalk.h"
#include "rulefolders.h"
#include "scanlog.h"

#include <QStringList>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// Passes the files of a walk, without its folders, to a function.
class FilesOnly final : public platform::EntryVisitor
{
public:
    explicit FilesOnly(std::function<void(const platform::WalkedEntry &)> visit)
        : m_visit(std::move(visit))
    {
    }

    void visitEntry(platform::WalkedEntry &&entry) override
    {
        if (!entry.isFolder)
            m_visit(entry);
    }
    void leaveFolder(qint64, bool) override { }

private:
    std::function<void(const platform::WalkedEntry &)> m_visit;
};

} // namespace

/// One row of the mapping: a folder, the rules that use it and the file names that they match. Of
/// several folders the first that exists is used.
struct FirefoxScan::Source {
    QStringList folders; ///< below the profile or the shared folder; "" is that folder itself
    bool isTree; ///< includes the subfolders
    bool isShared; ///< below the shared folder, not below a profile
    QStringList ruleIds;
    QStringList patterns; ///< empty matches every file
};

/// A rule, as an index, and the file names that it matches in one folder.
struct FirefoxScan::RuleFilter {
    std::size_t rule;
    platform::NameFilter filter;
};

// A folder that holds one kind of data is read with its subfolders. A profile's own folder is not:
// further down, the same file names mean something else. For example, saved bookmarks end like
// saved sessions.
const std::vector<FirefoxScan::Source> &FirefoxScan::sources()
{
    const QString ownFolder;
    static const std::vector<Source> list{
        {{u"Crash Reports"_s}, true, true, {u"crash_reports"_s}, {u"*.dmp"_s, u"*.extra"_s}},
        {{ownFolder}, false, true, {u"logs"_s}, {u"update.log"_s, u"install.log"_s, u"*.log"_s}},
        {{u"cache2/entries"_s, u"cache2"_s, u"Cache"_s}, true, false, {u"cache"_s}, {}},
        {{u"shader-cache"_s}, true, false, {u"shader_cache"_s}, {}},
        {{u"storage/default"_s}, true, false, {u"local_storage"_s, u"indexeddb"_s}, {}},
        {{u"thumbnails"_s}, true, false, {u"thumbnails"_s}, {}},
        {{ownFolder}, false, false, {u"session"_s}, {u"sessionstore.jsonlz4"_s, u"*.jsonlz4"_s}},
        {{u"sessionstore-backups"_s},
         false,
         false,
         {u"session"_s},
         {u"sessionstore.jsonlz4"_s, u"*.jsonlz4"_s}},
        {{ownFolder},
         false,
         false,
         {u"cookies"_s},
         {u"cookies.sqlite"_s, u"cookies.sqlite-wal"_s, u"cookies.sqlite-shm"_s}},
        {{ownFolder},
         false,
         false,
         {u"history"_s},
         {u"places.sqlite"_s, u"places.sqlite-wal"_s, u"places.sqlite-shm"_s}},
        {{ownFolder},
         false,
         false,
         {u"downloads"_s},
         {u"downloads.sqlite"_s, u"downloads.sqlite-wal"_s}},
        {{ownFolder},
         false,
         false,
         {u"form_data"_s},
         {u"formhistory.sqlite"_s, u"formhistory.sqlite-wal"_s}},
        {{ownFolder},
         false,
         false,
         {u"favicons"_s},
         {u"favicons.sqlite"_s, u"favicons.sqlite-wal"_s, u"favicons.sqlite-shm"_s}},
    };
    return list;
}

FirefoxScan::FirefoxScan(const QList<BrowserRule> &rules, platform::ProtectedPlaces &places,
                         platform::ListedFolders &listed, platform::ReadFailures &failures,
                         const platform::RunWatch &watch)
    : m_rules(rules)
    , m_places(places)
    , m_listed(listed)
    , m_failures(failures)
    , m_watch(watch)
{
}

void FirefoxScan::scanShared(const QString &root, ItemsByRule &found) const
{
    scan(root, true, found);
}

void FirefoxScan::scanProfile(const QString &profile, ItemsByRule &found) const
{
    scan(profile, false, found);
}

void FirefoxScan::scan(const QString &folder, bool isShared, ItemsByRule &found) const
{
    if (m_watch.isStopped())
        return;
    /// A folder to read, and the rules that look into it.
    struct FolderJob {
        QString folder;
        bool isTree;
        std::vector<RuleFilter> ruleFilters;
    };
    std::vector<FolderJob> jobs; // one for each folder, also when several rules look into it
    for (const Source &source : sources()) {
        if (source.isShared != isShared)
            continue;
        QString path;
        for (const QString &candidate : source.folders) {
            path = platform::locate(folder, candidate, m_failures);
            if (platform::inspect(path).kind != platform::EntryKind::Missing)
                break;
        }
        auto job = std::find_if(jobs.begin(), jobs.end(),
                                [&path](const FolderJob &other) { return other.folder == path; });
        if (job == jobs.end())
            job = jobs.insert(jobs.end(), FolderJob{path, source.isTree, {}});
        for (qsizetype i = 0; i < m_rules.size(); ++i) {
            if (source.ruleIds.contains(m_rules.at(i).id))
                job->ruleFilters.push_back(
                    {static_cast<std::size_t>(i), platform::NameFilter(source.patterns)});
        }
    }
    for (const FolderJob &job : jobs) {
        if (m_watch.isStopped())
            return;
        if (!job.ruleFilters.empty())
            scanFolder(job.folder, job.isTree, job.ruleFilters, found);
    }
}

void FirefoxScan::scanFolder(const QString &folder, bool isTree,
                             const std::vector<RuleFilter> &ruleFilters, ItemsByRule &found) const
{
    if (!isScannable(folder, m_failures))
        return;
    if (isTree && m_places.holdsProtectedPlace(folder)) {
        logTooBroadRule(folder);
        return;
    }
    const auto addItems = [&](const QString &name, const QString &path, qint64 size) {
        for (const RuleFilter &ruleFilter : ruleFilters) {
            if (!ruleFilter.filter.matches(name))
                continue;
            const BrowserRule &rule = m_rules.at(static_cast<qsizetype>(ruleFilter.rule));
            CleanItem &item = found[ruleFilter.rule].emplaceBack(name, path, size);
            item.checked = rule.defaultChecked;
            item.riskLevel = rule.riskLevel;
        }
    };
    if (isTree) {
        FilesOnly visitor([&addItems](const platform::WalkedEntry &entry) {
            addItems(entry.name, entry.path, entry.size);
        });
        m_failures.add(platform::walkEntries(folder, visitor, m_watch, &m_listed));
        return;
    }
    platform::WalkOptions options;
    options.recursive = false;
    options.watch = m_watch;
    m_failures.add(platform::walkFiles(
        folder, options,
        [&addItems](platform::WalkedFile &&file) { addItems(file.name, file.path, file.size); },
        &m_listed));
}
