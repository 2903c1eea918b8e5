#pragma once

#include <QString>

namespace theme {

/// The white box with the program icon above the navigation.
[[nodiscard]] QString logoBox();
/// The small circle at the corner of that box.
[[nodiscard]] QString logoBadge();
/// The program name below the box.
[[nodiscard]] QString logoText();
/// The line between the logo and the entries.
[[nodiscard]] QString navSeparator();
/// The text of an entry. The entry of the current page is checked.
[[nodiscard]] QString navText(bool isChecked);

} // namespace theme
