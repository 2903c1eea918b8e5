#pragma once

#include <QColor>
#include <QLatin1StringView>

/// The one table of what the styles have in common. A row is a name, its value and its use: styles
/// write {name}, C++ writes theme::name. Every colour of the program is in it.

/// White has a row for each use: they need not stay of one colour, and their spellings differ in
/// styles that are compared by their text.
#define THEME_COLOURS(COLOUR)                                                                      \
    COLOUR(accent, "#10B981") /* what the eye is to find: chosen, ticked, done */                  \
    COLOUR(accentHover, "#059669") /* the same under the mouse, and the end of gradients */        \
    COLOUR(accentText, "#047857") /* the accent as small text, dark enough to be read */           \
    COLOUR(accentTint, "#D1FAE5") /* a pale ground of it */                                        \
    COLOUR(emblemTint, "#A7F3D0") /* the darker end of the dashboard's emblem */                   \
    COLOUR(danger, "#EF4444") /* what cannot be undone; high risk */                               \
    COLOUR(dangerHover, "#DC2626") /* the same under the mouse */                                  \
    COLOUR(dangerTint, "#FEE2E2") /* a pale ground of it */                                        \
    COLOUR(dangerTintHover, "#FECACA") /* that ground under the mouse */                           \
    COLOUR(warning, "#F59E0B") /* medium risk; busy */                                             \
    COLOUR(warningTint, "#FEF3C7") /* a pale ground of it */                                       \
    COLOUR(text, "#111827") /* text, and the frame of what has the focus */                        \
    COLOUR(muted, "#6B7280") /* text of less weight */                                             \
    COLOUR(faint, "#9CA3AF") /* paths, hints, what is disabled */                                  \
    COLOUR(border, "#E5E7EB") /* frames, tracks, grey buttons under the mouse */                   \
    COLOUR(buttonBackground, "#F3F4F6") /* grey buttons, badges and icon boxes */                  \
    COLOUR(pressedBackground, "#D1D5DB") /* a grey button pressed; handles of scroll bars */       \
    COLOUR(pageBackground, "#F9FAFB") /* the window, and a row under the mouse */                  \
    COLOUR(stripe, "#FAFBFC") /* every other row of a list */                                      \
    COLOUR(white, "#FFFFFF") /* cards, dialogs, fields; drawings on the accent */                  \
    COLOUR(panel, "white") /* menus, the cards of the dashboard, the logo */                       \
    COLOUR(boxBackground, "#ffffff") /* message boxes */                                           \
    COLOUR(boxText, "#333333") /* text of message boxes */                                         \
    COLOUR(onColour, "white") /* text on a coloured ground */                                      \
    COLOUR(shadow, "#000000") /* shadows, with an opacity */                                       \
    COLOUR(closeHover, "#E81123") /* the window's close button under the mouse */                  \
    COLOUR(logoCircle, "#FCD34D") /* the small circle at the logo */                               \
    COLOUR(junk, "#22C55E") /* junk files on the dashboard */                                      \
    COLOUR(browser, "#3B82F6") /* browser data on the dashboard */                                 \
    COLOUR(browserTint, "#DBEAFE") /* a pale ground of it */                                       \
    COLOUR(goodText, "#166534") /* text of good news: a program is enabled, a tip */               \
    COLOUR(goodTint, "#DCFCE7") /* its ground */                                                   \
    COLOUR(tipBackground, "#F0FDF4") /* the box of a tip */                                        \
    COLOUR(tipBorder, "#BBF7D0") /* its frame */                                                   \
    COLOUR(menuBorder, "#e2e8f0") /* the frame and the lines of the window's menu */               \
    COLOUR(navEntry, "rgba(255,255,255,230)") /* an entry of the navigation; in styles only */     \
    COLOUR(navLine, "rgba(255,255,255,0.2)") /* the line below the logo; in styles only */

/// In pixels.
#define THEME_LENGTHS(LENGTH)                                                                      \
    LENGTH(windowRadius, 16) /* corners of the window and of dialogs */                            \
    LENGTH(cardRadius, 12) /* of cards and the boxes of their icons */                             \
    LENGTH(buttonRadius, 10) /* of a page's buttons */                                             \
    LENGTH(controlRadius, 8) /* of fields, menus, dialogs' buttons and small icons */              \
    LENGTH(smallRadius, 6) /* of what stands within those */

namespace theme {

/// A colour as style sheets write it.
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

/// For painting.
[[nodiscard]] QColor color(Colour colour);
/// @p colour with an opacity of 0 to 255.
[[nodiscard]] QColor color(Colour colour, int alpha);

} // namespace theme
