#pragma once

#include <QString>

namespace platform {

/// Whether a rule must never treat all files in @p path as clutter. @p path is absolute, from
/// locate(). True for:
/// - the root of a drive or of the file system;
/// - a protected place, and a folder that contains one;
/// - everything inside a place that is protected with its whole tree;
/// - a folder that does not exist.
[[nodiscard]] bool isProtectedRoot(const QString &path);

/// The same, but false for a folder inside a place that is protected with its whole tree. The owner
/// may have put files there, such as a browser's profile below the program folder.
[[nodiscard]] bool holdsProtectedPlace(const QString &path);

} // namespace platform
