#pragma once

#include <QString>

namespace theme {

/// The main menu and the language menu.
[[nodiscard]] QString menu();
/// The context menu of a card.
[[nodiscard]] QString contextMenu();
/// The About message box.
[[nodiscard]] QString aboutBox();
/// All other message boxes. They look like the About box and also show the focus.
[[nodiscard]] QString messageBox();
/// A dialog that asks for a number.
[[nodiscard]] QString inputDialog();

} // namespace theme
