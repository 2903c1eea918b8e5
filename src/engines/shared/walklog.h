#pragma once

#include "entry.h"
#include "walkreport.h"

#include <QString>

/// Writes what a walk of @p root could not read to the log, as warnings.
void logWalkFailures(const QString &root, const platform::WalkReport &report);

/// Writes that @p folder could not be read to the log, as a warning.
void logUnreadable(const QString &folder, const QString &reason);

/// Tells the log that what stands at @p path is passed over, and why.
void logSkipped(const QString &path, const QString &reason);

/// Tells the log that @p folder is passed over because a rule would leave nothing in it. @p ruleId
/// is empty where several rules may have asked for it.
void logTooBroadRule(const QString &folder, const QString &ruleId = {});

/// Tells the log why what stands at @p path is passed over: a link leads elsewhere, where nothing
/// is ours, and some things cannot be looked at. That nothing is there is no word worth.
void logSkipped(const QString &path, const platform::Entry &entry);

/// Whether @p folder is a real folder. Why something else is passed over is in the log.
[[nodiscard]] bool isScannable(const QString &folder);
