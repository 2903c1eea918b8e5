#pragma once

#include "tokens.h"

#include <QString>

namespace theme {

/// The colours, lengths in pixels and font weight of a filled button.
struct FilledButton {
    Colour background;
    Colour hovered;
    int radius;
    int fontSize;
    QString padding;
    int weight = 500;
};
/// A filled button with white text.
[[nodiscard]] QString filledButton(const FilledButton &look);

/// The lengths of a danger button. The radius is in pixels, the padding is CSS.
struct DangerButton {
    int radius;
    QString padding;
};
/// A pale red button for an action that cannot be undone.
[[nodiscard]] QString dangerButton(const DangerButton &look);

/// The corner radius and the font size of a button, in pixels.
struct ButtonShape {
    int radius;
    int fontSize;
};
/// A grey button for a secondary action.
[[nodiscard]] QString quietButton(const ButtonShape &shape);
/// The main button of a page, with a gradient of the accent colours.
[[nodiscard]] QString gradientButton(const ButtonShape &shape);
/// A white button with a red border, for an action that cannot be undone.
[[nodiscard]] QString dangerOutlineButton(const ButtonShape &shape);

/// The colours and the font size in pixels of a dialog button.
struct DialogButton {
    Colour background;
    Colour colour;
    Colour hovered;
    int fontSize = 13;
};
/// A dialog button without a border.
[[nodiscard]] QString dialogButton(const DialogButton &look);
/// A dialog button with a border and no background.
[[nodiscard]] QString framedButton();

/// A badge with the number of items in a category. It opens the list of the items.
[[nodiscard]] QString badgeButton();
/// The button that shows the next items of a category.
[[nodiscard]] QString loadMoreButton();
/// The button that expands and collapses a category.
[[nodiscard]] QString expandButton();
/// A button that looks like a link.
[[nodiscard]] QString linkButton();
/// A button with an icon and no text.
[[nodiscard]] QString iconButton();

} // namespace theme
