#pragma once

#include <QString>

/// @p text as one harmless line. Control characters, line and paragraph separators, and characters
/// that change the writing direction become U+FFFD. File and key names come from outside. In a log,
/// a label or a terminal they must not start a new line or look like another name.
[[nodiscard]] QString singleLine(const QString &text);

/// @p path shortened for a narrow place: its first @p head and its last @p tail characters with
/// dots between. A path that is not longer than that is returned unchanged.
[[nodiscard]] QString shortPath(const QString &path, qsizetype head, qsizetype tail);
