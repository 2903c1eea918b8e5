#pragma once

#include "tokens.h"

#include <QString>

namespace theme {

/// "color: …; font-size: …px;" and, when @p weight is not 0, "font-weight: …;".
[[nodiscard]] QString label(Colour colour, int fontSize, int weight = 0);
/// As label(), with the declarations in the order of the start-up page: size, weight, colour.
[[nodiscard]] QString labelSizeFirst(Colour colour, int fontSize, int weight = 0);
/// A text on a card or on a coloured background, without a background of its own.
[[nodiscard]] QString transparentLabel(Colour colour, int fontSize, int weight = 0);
/// A text with the colour of its parent widget.
[[nodiscard]] QString uncolouredLabel(int fontSize, int weight = 0);
/// No background and no border.
[[nodiscard]] QString transparentBackground();
/// The line below the dashboard's title.
[[nodiscard]] QString dashboardSubtitle();
/// The arrow at the end of a card that opens a page.
[[nodiscard]] QString cardArrow();

/// The colours of a badge, its corner radius and font size in pixels.
struct Badge {
    Colour colour;
    Colour background;
    int radius = 10;
    int fontSize = 12;
};
/// A small text on a rounded background.
[[nodiscard]] QString badge(const Badge &look);

/// The colours and the font weight of a pill.
struct Pill {
    Colour colour;
    Colour background;
    int weight = 600;
};
/// A larger badge for the size or the state on a card.
[[nodiscard]] QString pill(const Pill &look);
/// The number of start-up programs, in white on the accent colour.
[[nodiscard]] QString countBadge();

/// The background of the icon on a dashboard card.
[[nodiscard]] QString iconBox(Colour background);
/// The background of an emoji in a row.
[[nodiscard]] QString emojiBox(Colour background);
/// The background of an image in a row.
[[nodiscard]] QString pictureBox(Colour background);
/// The background of the icon of a category.
[[nodiscard]] QString categoryIcon();
/// The background of the icon of a browser.
[[nodiscard]] QString browserIcon();
/// The round icon of a progress dialog.
[[nodiscard]] QString resultIcon(Colour background);
/// The program icon in the About dialog.
[[nodiscard]] QString aboutIcon();
/// The list of functions in the About dialog.
[[nodiscard]] QString aboutFeatures();
/// The round program icon on the dashboard.
[[nodiscard]] QString emblem();

} // namespace theme
