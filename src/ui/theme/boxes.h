#pragma once

#include <QString>

namespace theme {

/// The window's menu.
[[nodiscard]] QString menu();
/// A menu on a card.
[[nodiscard]] QString contextMenu();
[[nodiscard]] QString aboutBox();
/// Every other message box: the same, and its focus is seen.
[[nodiscard]] QString messageBox();
/// A box that asks for a number.
[[nodiscard]] QString inputDialog();

} // namespace theme
