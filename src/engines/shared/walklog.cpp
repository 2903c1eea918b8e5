#include "walklog.h"

#include "logger.h"

using namespace Qt::StringLiterals;

void logWalkFailures(const QString &root, const platform::WalkReport &report)
{
    for (const platform::WalkFailure &failure : report.failures)
        Logger::instance().warning(
            u"Cannot read folder: %1 - %2"_s.arg(failure.path, failure.reason));
    const qint64 unnamed = report.failureCount - report.failures.size();
    if (unnamed > 0)
        Logger::instance().warning(
            u"Cannot read %1 more folders below %2"_s.arg(QString::number(unnamed), root));
}

void logSkipped(const QString &path, const platform::Entry &entry)
{
    switch (entry.kind) {
    case platform::EntryKind::Link:
        Logger::instance().warning(u"Skipped %1: a link leads elsewhere"_s.arg(path));
        return;
    case platform::EntryKind::Other:
        Logger::instance().warning(u"Skipped %1: %2"_s.arg(
            path, entry.error.isEmpty() ? u"neither a file nor a folder"_s : entry.error));
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
