#pragma once

#include "tokens.h"

#include <QString>

namespace theme {

/// "color: …; font-size: …px;" and, when @p weight is not 0, "font-weight: …;".
[[nodiscard]] QString label(Colour colour, int fontSize, int weight = 0);
/// The same in the order of the start-up page: size, weight, colour.
[[nodiscard]] QString labelSizeFirst(Colour colour, int fontSize, int weight = 0);
/// A text on a card or a tinted ground, which shows through.
[[nodiscard]] QString transparentLabel(Colour colour, int fontSize, int weight = 0);
/// A text that takes its colour from the widget around it.
[[nodiscard]] QString uncolouredLabel(int fontSize, int weight = 0);
/// A widget without a ground or a frame of its own.
[[nodiscard]] QString transparentBackground();
/// The line below the dashboard's title.
[[nodiscard]] QString dashboardSubtitle();
/// The arrow at the end of a card that leads on.
[[nodiscard]] QString cardArrow();

struct Badge {
    Colour colour;
    Colour background;
    int radius = 10;
    int fontSize = 12;
};
/// A rounded pill of text.
[[nodiscard]] QString badge(const Badge &look);

struct Pill {
    Colour colour;
    Colour background;
    int weight = 600;
};
/// A larger badge with the size or the state of what its card shows.
[[nodiscard]] QString pill(const Pill &look);
/// The number of start-up programs, white on the accent.
[[nodiscard]] QString countBadge();

/// The box around a card's icon.
[[nodiscard]] QString iconBox(Colour background);
/// The box around the emoji of a row.
[[nodiscard]] QString emojiBox(Colour background);
/// The box around a row's icon that is a picture.
[[nodiscard]] QString pictureBox(Colour background);
/// The box around a category's icon.
[[nodiscard]] QString categoryIcon();
[[nodiscard]] QString browserIcon();
/// The round icon of a dialog that tells of work and of its end.
[[nodiscard]] QString resultIcon(Colour background);
/// The box with the program's emblem in the About dialog.
[[nodiscard]] QString aboutIcon();
/// The list of what the program can do in the About dialog.
[[nodiscard]] QString aboutFeatures();
/// The dashboard's round emblem.
[[nodiscard]] QString emblem();

} // namespace theme
