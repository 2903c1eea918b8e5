#pragma once

#include <QColor>
#include <QLatin1StringView>
#include <QString>

/// Every colour and style template of the interface, under the name of its use.
namespace theme {

inline constexpr QLatin1StringView accent("#10B981");
inline constexpr QLatin1StringView accentHover("#059669");
/// The accent where it is small text, dark enough to be read.
inline constexpr QLatin1StringView accentText("#047857");
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
inline constexpr QLatin1StringView black("#000000");
inline constexpr QLatin1StringView disabled("#D1D5DB");
inline constexpr QLatin1StringView closeHover("#E81123");
inline constexpr QLatin1StringView sparkle("#FCD34D");
inline constexpr QLatin1StringView lowRiskTint("#D1FAE5");
inline constexpr QLatin1StringView mediumRiskTint("#FEF3C7");
inline constexpr QLatin1StringView highRiskTint("#FEE2E2");
inline constexpr QLatin1StringView startupTint("#DCFCE7");
inline constexpr QLatin1StringView startupText("#166534");
inline constexpr QLatin1StringView dangerTint("#FEE2E2");
inline constexpr QLatin1StringView dangerTintHover("#FECACA");
inline constexpr QLatin1StringView emblemTint("#A7F3D0");
inline constexpr QLatin1StringView junkBar("#22C55E");
inline constexpr QLatin1StringView browserBar("#3B82F6");
inline constexpr QLatin1StringView browserTint("#DBEAFE");
inline constexpr QLatin1StringView tipTint("#F0FDF4");
inline constexpr QLatin1StringView tipBorder("#BBF7D0");
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
/// The same as a button.
[[nodiscard]] QString badgeButton(QLatin1StringView colour, QLatin1StringView background,
                                  int radius, int pixels);
/// A filled button with white text.
[[nodiscard]] QString filledButton(QLatin1StringView background, QLatin1StringView hovered,
                                   int radius, int pixels, const QString &padding,
                                   int weight = 500);
/// A button for what cannot be undone, in quiet red.
[[nodiscard]] QString dangerButton(int radius, int pixels, const QString &padding);
/// A quiet grey button.
[[nodiscard]] QString quietButton(int radius, int pixels);
/// A white rounded box, its border in the accent colour under the mouse if it is @p hoverable.
[[nodiscard]] QString card(const QString &objectName, int borderPixels, bool hoverable);
/// A pill with the size of a file.
[[nodiscard]] QString sizeBadge(QLatin1StringView colour, QLatin1StringView background);
[[nodiscard]] QString comboBox();
/// A list that scrolls by the keyboard.
[[nodiscard]] QString scrolledList();
[[nodiscard]] QString loadMoreButton();
[[nodiscard]] QString expandButton();
/// A button that reads like a link.
[[nodiscard]] QString linkButton();
/// A button that is an icon.
[[nodiscard]] QString iconButton();
[[nodiscard]] QString browserCheckBox();
[[nodiscard]] QString browserIcon();
/// The header's lower corners are round as long as nothing is below it.
[[nodiscard]] QString browserGroupHeader(bool expanded);
[[nodiscard]] QString browserGroupContent();
[[nodiscard]] QString menu();
/// A menu on a card.
[[nodiscard]] QString contextMenu();
[[nodiscard]] QString aboutBox();
/// Every other message box: the same, and its focus is seen.
[[nodiscard]] QString messageBox();
/// A box that asks for a number.
[[nodiscard]] QString inputDialog();
[[nodiscard]] QString progressBar();
[[nodiscard]] QString lineEdit(int pixels, int radius);
/// A thin bar whose filled part has this colour.
[[nodiscard]] QString thinBar(QLatin1StringView colour, int radius);
/// A frame around a group of options.
[[nodiscard]] QString groupBox();
/// A dialog's button without a frame.
[[nodiscard]] QString dialogButton(QLatin1StringView background, QLatin1StringView colour,
                                   QLatin1StringView hovered, int pixels);
/// A dialog's button that is a frame only.
[[nodiscard]] QString framedButton();
/// The one button that a page is about, in the two tones of the accent.
[[nodiscard]] QString gradientButton(int radius, int pixels);
/// A white button with a frame for what cannot be undone.
[[nodiscard]] QString dangerOutlineButton(int radius, int pixels);
/// The dashboard's round emblem.
[[nodiscard]] QString emblem();
/// A bar or the track that it runs in.
[[nodiscard]] QString bar(QLatin1StringView colour, int radius);
/// A bar in the two tones of the accent.
[[nodiscard]] QString gradientBar();
/// The dot that tells a state by its colour, beside the words that do.
[[nodiscard]] QString statusDot(QLatin1StringView colour);
/// The box around a card's icon.
[[nodiscard]] QString iconBox(QLatin1StringView background);
/// A text on a card or a tinted ground, which shows through.
[[nodiscard]] QString clearLabel(QLatin1StringView colour, int pixels, int weight = 0);
/// The white card around the dashboard's circle.
[[nodiscard]] QString plainCard(const QString &objectName);
/// A card that can be clicked.
[[nodiscard]] QString statCard(const QString &objectName);
/// The green box of a tip.
[[nodiscard]] QString tipBox(const QString &objectName);

} // namespace theme
