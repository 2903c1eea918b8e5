#pragma once

#include "entry.h"
#include "readfailures.h"

#include <QString>

// What a scan skips. The log gets at once what is skipped on purpose. What cannot be read is added
// to the failures of the scan, which become one line for each reason at its end.

/// Writes a warning to the log: a scan skips @p path for this @p reason.
void logSkipped(const QString &path, const QString &reason);

/// Writes a warning to the log: a scan skips @p folder because a rule would remove everything in
/// it. @p ruleId is empty when several rules may name the folder.
void logTooBroadRule(const QString &folder, const QString &ruleId = {});

/// Notes that a scan skips @p path because of the kind of its @p entry. A link is skipped because
/// its target may be anywhere. An entry that cannot be examined is added to @p failures. A missing
/// entry, a file or a folder is not noted.
void noteSkipped(const QString &path, const platform::Entry &entry,
                 platform::ReadFailures &failures);

/// Whether @p folder is a real folder. If it is something else, notes why it is skipped.
[[nodiscard]] bool isScannable(const QString &folder, platform::ReadFailures &failures);
