#pragma once

#include <QString>

struct CleanCategory;

/// Shows a risk level (0 low, 1 medium, 2 high) as a word on a coloured badge. GUI thread.
namespace risk {

[[nodiscard]] QString text(int level);
[[nodiscard]] QString style(int level);
/// The level as a sentence, for screen readers.
[[nodiscard]] QString sentence(int level);
/// The accessible description of a category: its risk from medium on, and its description.
[[nodiscard]] QString description(const CleanCategory &category);

} // namespace risk
