#pragma once

#include <QString>

namespace theme {

/// The dialog that lists the items of a category.
[[nodiscard]] QString detailDialog();
/// The title bar of the dialog: white text on the accent colour.
[[nodiscard]] QString detailTitleBar();
/// The back button in the title bar.
[[nodiscard]] QString detailBackButton();
/// The row of column titles.
[[nodiscard]] QString detailColumnHeader();
/// The scroll area of the rows. Its border shows the focus.
[[nodiscard]] QString detailScrollArea();
/// The background of the rows.
[[nodiscard]] QString detailRows();
/// A row. Every second row is striped.
[[nodiscard]] QString detailRow(bool isStriped);

} // namespace theme
