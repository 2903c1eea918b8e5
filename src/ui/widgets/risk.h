#pragma once

#include <QString>

/// How a risk level (0 low, 1 medium, 2 high) is told: by a word on a tinted badge.
namespace risk {

[[nodiscard]] QString text(int level);
[[nodiscard]] QString style(int level);

} // namespace risk
