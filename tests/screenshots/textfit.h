#pragma once

#include <QStringList>

class QWidget;

/// What a user could not read of the texts in @p window and below: a text that is wider or higher
/// than its place, a widget that reaches beyond its parent, texts that lie on one another. A line
/// each, with the widget and its text. What scrolls is not measured in the direction in which it
/// scrolls, and what is elided by intent (names and paths) is left out.
[[nodiscard]] QStringList unreadableTexts(const QWidget *window);
