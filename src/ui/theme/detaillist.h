#pragma once

#include <QString>

namespace theme {

/// The dialog with a category's items.
[[nodiscard]] QString detailDialog();
/// Its bar in the accent colour, with what it says in white.
[[nodiscard]] QString detailTitleBar();
/// The button back in that bar.
[[nodiscard]] QString detailBackButton();
/// The row with the names of its columns.
[[nodiscard]] QString detailColumnHeader();
/// The area that its rows scroll in, and whose frame tells the focus.
[[nodiscard]] QString detailScrollArea();
[[nodiscard]] QString detailRows();
/// One of the rows; every other one is striped.
[[nodiscard]] QString detailRow(bool isStriped);

} // namespace theme
