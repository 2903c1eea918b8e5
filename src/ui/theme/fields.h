#pragma once

#include "tokens.h"

#include <QString>

namespace theme {

[[nodiscard]] QString lineEdit(int radius);
[[nodiscard]] QString comboBox();
[[nodiscard]] QString browserCheckBox();
/// A scroll area whose page shows through.
[[nodiscard]] QString transparentScrollArea();
/// A frame around a group of options.
[[nodiscard]] QString groupBox();

[[nodiscard]] QString progressBar();
/// A thin progress bar whose filled part has this colour.
[[nodiscard]] QString thinProgressBar(Colour colour, int radius);
/// A widget that is a bar, or the track that it runs in.
[[nodiscard]] QString bar(Colour colour, int radius);
/// A bar in the two tones of the accent.
[[nodiscard]] QString gradientBar();
/// The dot that tells a state by its colour, beside the words that do.
[[nodiscard]] QString statusDot(Colour colour);

} // namespace theme
