#pragma once

#include <QStringList>

class QWidget;

/// The texts in @p window that a user could not read, one line each with the widget and its text.
///
/// Such a text is wider or higher than its place, reaches beyond its parent, or overlaps another
/// text. Scrolled content is not checked in the direction in which it scrolls. Labels that elide
/// names and paths on purpose are left out.
[[nodiscard]] QStringList unreadableTexts(const QWidget *window);
