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

bool isScannable(const QString &folder)
{
    if (folder.isEmpty())
        return false;
    const platform::EntryKind kind = platform::inspect(folder).kind;
    if (kind == platform::EntryKind::Link)
        Logger::instance().warning(u"Skipped %1: a link leads elsewhere"_s.arg(folder));
    return kind == platform::EntryKind::Folder;
}
