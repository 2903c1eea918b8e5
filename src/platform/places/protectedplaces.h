#pragma once

#include <QString>

namespace platform {

/// Whether everything in @p path (absolute, from locate()) must never be clutter: the top of a
/// drive or of the file system, a place that a table says is kept, a folder that holds such a
/// place, and what lies in those that are kept whole. So is what does not exist.
[[nodiscard]] bool isProtectedRoot(const QString &path);

/// The same, but a folder inside of a place that is kept whole may be taken: for what its owner has
/// put there, such as the profile of a browser below the program folder.
[[nodiscard]] bool holdsProtectedPlace(const QString &path);

} // namespace platform
