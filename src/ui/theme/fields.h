#pragma once

#include "tokens.h"

#include <QString>

namespace theme {

/// @p radius is in pixels.
[[nodiscard]] QString lineEdit(int radius);
[[nodiscard]] QString comboBox();
/// A check box in the browser selection bar.
[[nodiscard]] QString browserCheckBox();
/// A scroll area without a background of its own.
[[nodiscard]] QString transparentScrollArea();
/// A border around a group of options.
[[nodiscard]] QString groupBox();

/// The progress bar of a scan or a clean.
[[nodiscard]] QString progressBar();
/// A thin progress bar. @p colour is the colour of the filled part, @p radius is in pixels.
[[nodiscard]] QString thinProgressBar(Colour colour, int radius);
/// A plain widget that serves as a bar or as the track of a bar. @p radius is in pixels.
[[nodiscard]] QString bar(Colour colour, int radius);
/// A bar with a gradient of the accent colours.
[[nodiscard]] QString gradientBar();
/// A dot whose colour shows a state. A text beside it names the state.
[[nodiscard]] QString statusDot(Colour colour);

} // namespace theme
