#pragma once

#include <QStringList>

class QWidget;

/// Faults of the visible part of @p window for users of the keyboard or a screen reader, one line
/// each.
///
/// A fault is a control with focus but without a name or role, a check box of a list without a
/// description, or a wrong tab order. Within each part of the window the right order is from left
/// to right and from top to bottom.
[[nodiscard]] QStringList accessFaults(const QWidget *window);
