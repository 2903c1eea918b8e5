#pragma once

#include "filewalk.h"

#include <QString>

/// Writes what a walk of @p root could not read to the log, as warnings.
void logWalkFailures(const QString &root, const platform::WalkReport &report);

/// Whether @p folder is a real folder. That a link stands there is a warning in the log: it leads
/// elsewhere, where nothing is ours.
[[nodiscard]] bool isScannable(const QString &folder);
