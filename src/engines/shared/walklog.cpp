#include "walklog.h"

#include "logger.h"

using namespace Qt::StringLiterals;

void logWalkFailures(const QString &root, const platform::WalkReport &report)
{
    for (const platform::WalkFailure &failure : report.failures)
        logUnreadable(failure.path, failure.reason);
    const qint64 unlistedCount = report.failureCount - report.failures.size();
    if (unlistedCount > 0)
        Logger::instance().warning(
            u"Cannot read %1 more folders below %2"_s.arg(QString::number(unlistedCount), root));
}

void logUnreadable(const QString &folder, const QString &reason)
{
    Logger::instance().warning(u"Cannot read folder: %1 - %2"_s.arg(folder, reason));
}

void logSkipped(const QString &path, const QString &reason)
{
    Logger::instance().warning(u"Skipped %1: %2"_s.arg(path, reason));
}

void logTooBroadRule(const QString &folder, const QString &ruleId)
{
    const QString rule = ruleId.isEmpty() ? u"a rule"_s : "rule "_L1 + ruleId;
    logSkipped(folder, rule + " would take everything in it"_L1);
}

void logSkipped(const QString &path, const platform::Entry &entry)
{
    switch (entry.kind) {
    case platform::EntryKind::Link:
        logSkipped(path, u"a link leads elsewhere"_s);
        return;
    case platform::EntryKind::Other:
        logSkipped(path, entry.error.isEmpty() ? u"neither a file nor a folder"_s : entry.error);
        return;
    case platform::EntryKind::Missing:
    case platform::EntryKind::File:
    case platform::EntryKind::Folder:
        return;
    }
}

bool isScannable(const QString &folder)
{
    if (folder.isEmpty())
        return false;
    const platform::Entry entry = platform::inspect(folder);
    logSkipped(folder, entry);
    return entry.kind == platform::EntryKind::Folder;
}
