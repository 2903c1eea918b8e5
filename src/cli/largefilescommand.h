#pragma once

#include <QStringList>

namespace cli {

/// Lists the files from @p minSize on below @p paths, largest first, and returns the exit status.
/// The size is a text such as "500", "64K", "100M" or "2G", in binary units; empty for 100 MiB.
/// Runs the application's event loop.
[[nodiscard]] int runLargeFiles(const QStringList &paths, const QString &minSize, bool json);

} // namespace cli
