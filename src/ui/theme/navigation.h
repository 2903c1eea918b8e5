#pragma once

#include <QString>

namespace theme {

/// The white box of the emblem above the navigation.
[[nodiscard]] QString logoBox();
/// The small circle at its corner.
[[nodiscard]] QString logoBadge();
/// The program's name below it.
[[nodiscard]] QString logoText();
/// The line between the logo and the entries.
[[nodiscard]] QString navSeparator();
/// The text of an entry; that of the page that is shown is checked.
[[nodiscard]] QString navText(bool isChecked);

} // namespace theme
