#pragma once

#include <QColor>
#include <QLatin1StringView>

/// The only table of colours and lengths. A row has a name, a value and a use. Styles write {name},
/// and C++ writes theme::name.

/// White has a row for each use, because the uses may get different colours later. The spellings
/// differ, because the texts of the styles are fixed to the letter.
#define THEME_COLOURS(COLOUR)                                                                      \
    COLOUR(accent, "#10B981") /* chosen, checked, finished */                                      \
    COLOUR(accentHover, "#059669") /* accent under the mouse; end of gradients */                  \
    COLOUR(accentText, "#047857") /* accent as small text, dark for contrast */                    \
    COLOUR(accentTint, "#D1FAE5") /* pale accent, as a background */                               \
    COLOUR(emblemTint, "#A7F3D0") /* darker end of the dashboard icon */                           \
    COLOUR(danger, "#EF4444") /* actions that cannot be undone; high risk */                       \
    COLOUR(dangerHover, "#DC2626") /* danger under the mouse */                                    \
    COLOUR(dangerTint, "#FEE2E2") /* pale danger, as a background */                               \
    COLOUR(dangerTintHover, "#FECACA") /* pale danger under the mouse */                           \
    COLOUR(warning, "#F59E0B") /* medium risk; busy */                                             \
    COLOUR(warningTint, "#FEF3C7") /* pale warning, as a background */                             \
    COLOUR(text, "#111827") /* text; frame of the focused control */                               \
    COLOUR(muted, "#6B7280") /* secondary text */                                                  \
    COLOUR(faint, "#9CA3AF") /* paths, hints, disabled controls */                                 \
    COLOUR(border, "#E5E7EB") /* frames, tracks, grey buttons under the mouse */                   \
    COLOUR(buttonBackground, "#F3F4F6") /* grey buttons, badges and icon boxes */                  \
    COLOUR(pressedBackground, "#D1D5DB") /* a grey button pressed; handles of scroll bars */       \
    COLOUR(pageBackground, "#F9FAFB") /* the window, and a row under the mouse */                  \
    COLOUR(stripe, "#FAFBFC") /* every second row of a list */                                     \
    COLOUR(white, "#FFFFFF") /* cards, dialogs, fields; drawings on the accent */                  \
    COLOUR(panel, "white") /* menus, the cards of the dashboard, the logo */                       \
    COLOUR(boxBackground, "#ffffff") /* message boxes */                                           \
    COLOUR(boxText, "#333333") /* text of message boxes */                                         \
    COLOUR(onColour, "white") /* text on a coloured background */                                  \
    COLOUR(shadow, "#000000") /* shadows, with an opacity */                                       \
    COLOUR(closeHover, "#E81123") /* close button of the window, under the mouse */                \
    COLOUR(logoCircle, "#FCD34D") /* the small circle at the logo */                               \
    COLOUR(junk, "#22C55E") /* junk files on the dashboard */                                      \
    COLOUR(browser, "#3B82F6") /* browser data on the dashboard */                                 \
    COLOUR(browserTint, "#DBEAFE") /* pale browser, as a background */                             \
    COLOUR(goodText, "#166534") /* positive text: an enabled program, a tip */                     \
    COLOUR(goodTint, "#DCFCE7") /* background of positive text */                                  \
    COLOUR(tipBackground, "#F0FDF4") /* the box of a tip */                                        \
    COLOUR(tipBorder, "#BBF7D0") /* frame of the tip box */                                        \
    COLOUR(menuBorder, "#e2e8f0") /* the frame and the lines of the window's menu */               \
    COLOUR(navEntry, "rgba(255,255,255,230)") /* an entry of the navigation; in styles only */     \
    COLOUR(navLine, "rgba(255,255,255,0.2)") /* the line below the logo; in styles only */

/// Lengths in pixels.
#define THEME_LENGTHS(LENGTH)                                                                      \
    LENGTH(windowRadius, 16) /* corners of the window and of dialogs */                            \
    LENGTH(cardRadius, 12) /* of cards and of the boxes around their icons */                      \
    LENGTH(buttonRadius, 10) /* of a page's buttons */                                             \
    LENGTH(controlRadius, 8) /* of fields, menus, dialogs' buttons and small icons */              \
    LENGTH(smallRadius, 6) /* of controls inside those */

namespace theme {

/// A colour in the notation of style sheets. A constant value; any thread.
class Colour
{
public:
    explicit constexpr Colour(QLatin1StringView value)
        : m_value(value)
    {
    }

    [[nodiscard]] constexpr QLatin1StringView value() const { return m_value; }

private:
    QLatin1StringView m_value;
};

#define THEME_CONSTANT(name, value) inline constexpr Colour name{QLatin1StringView(value)};
THEME_COLOURS(THEME_CONSTANT)
#undef THEME_CONSTANT

#define THEME_CONSTANT(name, value) inline constexpr int name = value;
THEME_LENGTHS(THEME_CONSTANT)
#undef THEME_CONSTANT

/// @p colour for painting.
[[nodiscard]] QColor color(Colour colour);
/// @p colour with an opacity of 0 to 255.
[[nodiscard]] QColor color(Colour colour, int alpha);

} // namespace theme
