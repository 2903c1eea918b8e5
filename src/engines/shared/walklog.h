#pragma once

#include "entry.h"
#include "walkreport.h"

#include <QString>

/// Writes what a walk of @p root could not read to the log, as warnings.
void logWalkFailures(const QString &root, const platform::WalkReport &report);

/// Tells the log why what stands at @p path is passed over: a link leads elsewhere, where nothing
/// is ours, and some things cannot be looked at. That nothing is there is no word worth.
void logSkipped(const QString &path, const platform::Entry &entry);

/// Whether @p folder is a real folder. Why something else is passed over is in the log.
[[nodiscard]] bool isScannable(const QString &folder);
