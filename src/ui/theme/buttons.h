#pragma once

#include "tokens.h"

#include <QString>

namespace theme {

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

struct DangerButton {
    int radius;
    QString padding;
};
/// A button for what cannot be undone, in quiet red.
[[nodiscard]] QString dangerButton(const DangerButton &look);

struct ButtonShape {
    int radius;
    int fontSize;
};
/// A quiet grey button.
[[nodiscard]] QString quietButton(const ButtonShape &shape);
/// The one button that a page is about, in the two tones of the accent.
[[nodiscard]] QString gradientButton(const ButtonShape &shape);
/// A white button with a frame for what cannot be undone.
[[nodiscard]] QString dangerOutlineButton(const ButtonShape &shape);

struct DialogButton {
    Colour background;
    Colour colour;
    Colour hovered;
    int fontSize = 13;
};
/// A dialog's button without a frame.
[[nodiscard]] QString dialogButton(const DialogButton &look);
/// A dialog's button that is a frame only.
[[nodiscard]] QString framedButton();

/// The number of a category's items, a badge that opens their list.
[[nodiscard]] QString badgeButton();
[[nodiscard]] QString loadMoreButton();
[[nodiscard]] QString expandButton();
/// A button that reads like a link.
[[nodiscard]] QString linkButton();
/// A button that is an icon.
[[nodiscard]] QString iconButton();

} // namespace theme
