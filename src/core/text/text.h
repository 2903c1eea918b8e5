#pragma once

#include <QString>

/// @p text as one harmless line: every control character, line and paragraph separator and every
/// character that turns the writing direction becomes U+FFFD. File and key names come from outside;
/// in a log, a label or a terminal they must not be able to start a line of their own or to show as
/// another name.
[[nodiscard]] QString singleLine(const QString &text);

/// @p path for a narrow place: when it is longer than what is left, of it the first @p head and the
/// last @p tail characters with dots between.
[[nodiscard]] QString shortPath(const QString &path, qsizetype head, qsizetype tail);
