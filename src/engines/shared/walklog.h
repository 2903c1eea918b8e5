#pragma once

#include "entry.h"
#include "walkreport.h"

#include <QString>

/// Writes warnings to the log: what a walk of @p root could not read.
void logWalkFailures(const QString &root, const platform::WalkReport &report);

/// Writes a warning to the log: @p folder could not be read.
void logUnreadable(const QString &folder, const QString &reason);

/// Writes a warning to the log: a scan skips @p path for this @p reason.
void logSkipped(const QString &path, const QString &reason);

/// Writes a warning to the log: a scan skips @p folder because a rule would remove everything in
/// it. @p ruleId is empty when several rules may name the folder.
void logTooBroadRule(const QString &folder, const QString &ruleId = {});

/// Writes a warning when a scan skips @p path because of the kind of its @p entry. A link is
/// skipped because its target may be anywhere. Some entries cannot be read. A missing entry, a file
/// or a folder gives no warning.
void logSkipped(const QString &path, const platform::Entry &entry);

/// Whether @p folder is a real folder. If it is something else, the log says why it is skipped.
[[nodiscard]] bool isScannable(const QString &folder);
