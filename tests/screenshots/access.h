#pragma once

#include <QStringList>

class QWidget;

/// What keeps somebody with a keyboard or a screen reader from using what is seen of @p window: a
/// control that takes the focus and has no name or no role, one of a list without a description,
/// and a tab order that does not follow the eye, from left to right and from top to bottom within
/// each part of the window. A line each.
[[nodiscard]] QStringList accessFaults(const QWidget *window);
