#pragma once

#include <QString>

struct CleanCategory;

/// How a risk level (0 low, 1 medium, 2 high) is told: by a word on a tinted badge.
namespace risk {

[[nodiscard]] QString text(int level);
[[nodiscard]] QString style(int level);
/// The level in a sentence of its own, for who does not see the badge.
[[nodiscard]] QString sentence(int level);
/// What is to be said of a category beside its name: its risk from medium on, and what it is.
[[nodiscard]] QString description(const CleanCategory &category);

} // namespace risk
