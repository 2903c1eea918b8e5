#pragma once

#include <QString>

namespace theme {

struct Card {
    QString objectName;
    int borderWidth = 1;
    /// Whether the border takes the accent colour under the mouse.
    bool isHoverable = false;
};
/// A white rounded box.
[[nodiscard]] QString card(const Card &look);
/// The list of large files with its cards.
[[nodiscard]] QString fileCardList();
/// The white card around the dashboard's circle.
[[nodiscard]] QString circleCard(const QString &objectName);
/// A card that can be clicked.
[[nodiscard]] QString statCard(const QString &objectName);
/// The green box of a tip.
[[nodiscard]] QString tipBox(const QString &objectName);

/// The header's lower corners are round as long as nothing is below it.
[[nodiscard]] QString browserGroupHeader(bool isExpanded);
[[nodiscard]] QString browserGroupContent();

} // namespace theme
