#include "junkcleaner.h"

#include "appinfo.h"
#include "entry.h"
#include "fileremove.h"
#include "filewalk.h"
#include "logger.h"
#include "protectedplaces.h"
#include "rulefile.h"
#include "rulefolders.h"
#include "scanlog.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

// The application's data folder without the application's name. It ends in the organisation's
// folder.
QString organisationDataFolder()
{
    const QString data = platform::roamingDataFolder();
    if (data.isEmpty())
        return {};
    QString folder = data + u'/' + appinfo::organisation + u'/' + appinfo::name;
    return folder.remove(u'/' + appinfo::name);
}

// A location of a rule. The leading folder comes from the environment; the rule appends the rest.
struct Location {
    QString base;
    QString relative;
};

Location splitLocation(const QString &location)
{
    const auto isSeparator = [](QChar c) { return c == u'\\' || c == u'/'; };
    const auto separator = std::find_if(location.begin(), location.end(), isSeparator);
    const QString base(location.constData(), std::distance(location.begin(), separator));
    return {base.isEmpty() && !location.isEmpty() ? u"/"_s : base, location.mid(base.size())};
}

} // namespace

JunkCleaner::JunkCleaner(QObject *parent)
    : CleanEngine(parent)
{
}

JunkCleaner::~JunkCleaner()
{
    stopAndWait();
}

void JunkCleaner::loadRules(const QString &path)
{
    qDebug() << "[JunkCleaner] ========== Loading Rules ==========";
    qDebug() << "[JunkCleaner] Path:" << path;
    qDebug() << "[JunkCleaner] File exists:" << QFile::exists(path);

    const rulefile::Content file = rulefile::read(path);
    if (file.problem == rulefile::Problem::NotOpened) {
        Logger::instance().error("Failed to load junk rules: "_L1 + path);
        qDebug() << "[JunkCleaner] ✗ Open failed:" << file.error;
        return;
    }
    qDebug() << "[JunkCleaner] File size:" << file.size << "bytes";
    if (file.hasByteOrderMark)
        qDebug() << "[JunkCleaner] Removed UTF-8 BOM";
    qDebug() << "[JunkCleaner] First 100 chars:" << file.start;
    if (file.problem == rulefile::Problem::NoJson) {
        Logger::instance().error("JSON parse error: "_L1 + file.error);
        qDebug() << "[JunkCleaner] ✗ Parse error:" << file.error;
        qDebug() << "[JunkCleaner] Error at offset:" << file.errorOffset;
        return;
    }
    if (file.problem == rulefile::Problem::NoObject) {
        Logger::instance().error(u"Invalid junk rules format"_s);
        qDebug() << "[JunkCleaner] ✗ Document is not an object!";
        qDebug() << "[JunkCleaner] isNull:" << file.document.isNull();
        qDebug() << "[JunkCleaner] isArray:" << file.document.isArray();
        return;
    }
    qDebug() << "[JunkCleaner] ✓ JSON parsed successfully";

    m_rules = rulefile::rulesOf<JunkRule>(file);
    qDebug() << "[JunkCleaner] Rules array count:" << m_rules.size();

    Logger::instance().info(u"Loaded %1 junk rules"_s.arg(m_rules.size()));
    qDebug() << "[JunkCleaner] ✓ Loaded" << m_rules.size() << "rules successfully";
    qDebug() << "[JunkCleaner] ========================================";
}

QString JunkCleaner::expandPath(const QString &text)
{
    QString path = text;
    // Finding some of the folders reads the registry, so only those that the path names are looked
    // up.
    const auto replace = [&path](QLatin1StringView placeholder, QString (*folder)()) {
        if (path.contains(placeholder))
            path.replace(placeholder, folder());
    };
    replace("%TEMP%"_L1, platform::temporaryFolder);
    replace("%LOCALAPPDATA%"_L1, platform::localDataFolder);
    replace("%APPDATA%"_L1, organisationDataFolder);
    replace("%USERPROFILE%"_L1, platform::homeFolder);
    replace("%PROGRAMDATA%"_L1, platform::programDataFolder);
    replace("%WINDIR%"_L1, platform::windowsFolder);
    replace("%SYSTEMROOT%"_L1, platform::windowsFolder);
    replace("%SYSTEMDRIVE%"_L1, platform::systemDrive);
    return QDir::toNativeSeparators(path.replace(u'\\', u'/'));
}

void JunkCleaner::doScan()
{
    Logger::instance().info(u"Starting junk scan..."_s);
    m_listed.clear();
    platform::ProtectedPlaces places;
    const int ruleCount = static_cast<int>(m_rules.size());
    for (int i = 1; i <= ruleCount; ++i) {
        if (isStopRequested()) {
            readFailures().add(platform::folderFailures());
            setState(State::Cancelled);
            return;
        }
        const JunkRule &rule = m_rules.at(i - 1);
        Q_EMIT scanProgress(i, ruleCount, rule.name);
        scanRule(rule, places);
    }
    readFailures().add(platform::folderFailures());
    result().scanTime = QDateTime::currentDateTime();
    Logger::instance().info(u"Junk scan finished. Found %1 items, %2"_s.arg(
        QString::number(result().totalCount()), formatSize(result().totalSize())));
}

void JunkCleaner::scanRule(const JunkRule &rule, platform::ProtectedPlaces &places)
{
    CleanCategory category(rule.id, rule.name, rule.description);
    category.checked = rule.defaultChecked;
    category.riskLevel = rule.riskLevel;
    for (const QString &location : rule.paths) {
        if (isStopRequested())
            return;
        scanLocation(location, rule, places, category.items);
    }
    if (category.items.isEmpty())
        return;
    result().categories.append(std::move(category));
}

void JunkCleaner::scanLocation(const QString &location, const JunkRule &rule,
                               platform::ProtectedPlaces &places, QList<CleanItem> &items)
{
    const Location split = splitLocation(location);
    const QString base = expandPath(split.base);
    const QString relative = expandPath(split.relative);
    QString problem;
    const QString path = platform::locate(base, relative, &problem);
    if (!problem.isEmpty())
        readFailures().add(base + relative, problem);
    if (path.isEmpty())
        return;
    const platform::Entry entry = platform::inspect(path);
    switch (entry.kind) {
    case platform::EntryKind::Folder:
        if (rule.matchesWholeTrees() && places.isProtectedRoot(path)) {
            logTooBroadRule(path, rule.id);
            return;
        }
        scanDirectory(path, rule.patterns, items, rule.recursive);
        return;
    case platform::EntryKind::File: {
        // The rule means a folder of the environment. A file in its place may hold a whole drive.
        if (relative.isEmpty()) {
            logSkipped(path, u"it is no folder"_s);
            return;
        }
        CleanItem item(QFileInfo(path).fileName(), path, entry.size);
        item.checked = rule.defaultChecked;
        item.riskLevel = rule.riskLevel;
        items.append(item);
        m_listed.add(platform::folderOf(path), entry.folder);
        return;
    }
    case platform::EntryKind::Link:
    case platform::EntryKind::Missing:
    case platform::EntryKind::Other:
        noteSkipped(path, entry, readFailures());
        return;
    }
}

void JunkCleaner::scanDirectory(const QString &directory, const QStringList &patterns,
                                QList<CleanItem> &items, bool recursive)
{
    readFailures().add(platform::walkFiles(
        directory, {patterns, recursive, watch()},
        [&items](platform::WalkedFile &&file) {
            items.emplaceBack(file.name, file.path, file.size);
        },
        &m_listed));
}

void JunkCleaner::doClean()
{
    Logger::instance().info(u"Starting junk clean..."_s);
    platform::FileRemover remover;
    remover.setListed(&m_listed);
    const CleanTotals totals =
        cleanSelection([&](const CleanItem &item) { return removeItem(remover, item); });
    reportClean(totals);
    if (totals.isStopped)
        return;
    Logger::instance().info(u"Junk clean finished. Cleaned %1 items, %2. Failed: %3 items"_s.arg(
        QString::number(totals.cleaned), formatSize(totals.freed), QString::number(totals.failed)));
}

CleanEngine::Removal JunkCleaner::removeItem(platform::FileRemover &remover, const CleanItem &item)
{
    using Status = platform::FileRemover::Status;
    const platform::FileRemover::Outcome outcome = remover.remove(item.path, &stopFlag());
    QString line;
    QString reason = outcome.error;
    switch (outcome.status) {
    case Status::Removed:
        return {Removal::Cleaned, item.size, {}};
    case Status::NotFound:
        line = u"File not found: %1"_s.arg(item.path);
        reason = tr("File not found");
        break;
    case Status::Replaced:
        line = u"Failed to remove %1: its folder is not the one that was listed"_s.arg(item.path);
        reason = tr("Its folder is not the one that was listed");
        break;
    case Status::Failed:
        line = outcome.wasFolder
            ? u"Failed to remove directory: %1"_s.arg(item.path)
            : u"Failed to remove file: %1 - %2"_s.arg(item.path, outcome.error);
        break;
    }
    Logger::instance().warning(line);
    return {Removal::Failed, 0, {item.path, reason}};
}
