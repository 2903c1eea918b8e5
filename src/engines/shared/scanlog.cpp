#include "scanlog.h"

#include "logger.h"

using namespace Qt::StringLiterals;

void logSkipped(const QString &path, const QString &reason)
{
    Logger::instance().warning(u"Skipped %1: %2"_s.arg(path, reason));
}

void logTooBroadRule(const QString &folder, const QString &ruleId)
{
    const QString rule = ruleId.isEmpty() ? u"a rule"_s : "rule "_L1 + ruleId;
    logSkipped(folder, rule + " would take everything in it, and it may hold more than clutter"_L1);
}

void noteSkipped(const QString &path, const platform::Entry &entry,
                 platform::ReadFailures &failures)
{
    switch (entry.kind) {
    case platform::EntryKind::Link:
        logSkipped(path, u"a link leads elsewhere"_s);
        return;
    case platform::EntryKind::Other:
        if (entry.error.isEmpty())
            logSkipped(path, u"neither a file nor a folder"_s);
        else
            failures.add(path, entry.error);
        return;
    case platform::EntryKind::Missing:
    case platform::EntryKind::File:
    case platform::EntryKind::Folder:
        return;
    }
}

bool isScannable(const QString &folder, platform::ReadFailures &failures)
{
    if (folder.isEmpty())
        return false;
    const platform::Entry entry = platform::inspect(folder);
    noteSkipped(folder, entry, failures);
    return entry.kind == platform::EntryKind::Folder;
}
