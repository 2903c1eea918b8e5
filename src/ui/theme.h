#pragma once

#include <QColor>
#include <QLatin1StringView>
#include <QString>

/// Every colour and style template of the interface, under the name of its use.
namespace theme {

inline constexpr QLatin1StringView accent("#10B981");
inline constexpr QLatin1StringView accentHover("#059669");
inline constexpr QLatin1StringView danger("#EF4444");
inline constexpr QLatin1StringView dangerHover("#DC2626");
inline constexpr QLatin1StringView warning("#F59E0B");
inline constexpr QLatin1StringView text("#111827");
inline constexpr QLatin1StringView muted("#6B7280");
inline constexpr QLatin1StringView faint("#9CA3AF");
inline constexpr QLatin1StringView border("#E5E7EB");
inline constexpr QLatin1StringView button("#F3F4F6");
inline constexpr QLatin1StringView hover("#F9FAFB");
inline constexpr QLatin1StringView stripe("#FAFBFC");
inline constexpr QLatin1StringView white("#FFFFFF");
inline constexpr QLatin1StringView disabled("#D1D5DB");
inline constexpr QLatin1StringView closeHover("#E81123");
inline constexpr QLatin1StringView sparkle("#FCD34D");
inline constexpr QLatin1StringView lowRiskTint("#D1FAE5");
inline constexpr QLatin1StringView mediumRiskTint("#FEF3C7");
inline constexpr QLatin1StringView highRiskTint("#FEE2E2");
inline constexpr QLatin1StringView menuBorder("#e2e8f0");
inline constexpr QLatin1StringView boxText("#333333");

[[nodiscard]] QColor color(QLatin1StringView name);
/// @p name with an opacity of 0 to 255.
[[nodiscard]] QColor color(QLatin1StringView name, int alpha);

/// "color: …; font-size: …px;" and, when @p weight is not 0, "font-weight: …;".
[[nodiscard]] QString label(QLatin1StringView colour, int pixels, int weight = 0);
/// A rounded pill of text.
[[nodiscard]] QString badge(QLatin1StringView colour, QLatin1StringView background, int radius,
                            int pixels);
/// A filled button with white text.
[[nodiscard]] QString filledButton(QLatin1StringView background, QLatin1StringView hovered,
                                   int radius, int pixels, const QString &padding);
/// A quiet grey button.
[[nodiscard]] QString quietButton(int radius, int pixels);
[[nodiscard]] QString loadMoreButton();
[[nodiscard]] QString expandButton();
[[nodiscard]] QString menu();
[[nodiscard]] QString messageBox();
[[nodiscard]] QString progressBar();

} // namespace theme
