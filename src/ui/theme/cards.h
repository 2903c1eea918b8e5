#pragma once

#include <QString>

namespace theme {

/// The object name of a card and the look of its border. The width is in pixels.
struct Card {
    QString objectName;
    int borderWidth = 1;
    /// Whether the border has the accent colour under the mouse.
    bool isHoverable = false;
};
/// A white rounded box.
[[nodiscard]] QString card(const Card &look);
/// The list of large files, with its cards.
[[nodiscard]] QString fileCardList();
/// The white card around the dashboard's circle.
[[nodiscard]] QString circleCard(const QString &objectName);
/// A dashboard card that can be clicked.
[[nodiscard]] QString statCard(const QString &objectName);
/// The green box of a tip.
[[nodiscard]] QString tipBox(const QString &objectName);

/// The header of a browser group. Its lower corners are round while the group is collapsed.
[[nodiscard]] QString browserGroupHeader(bool isExpanded);
/// The rows of a browser group.
[[nodiscard]] QString browserGroupContent();

} // namespace theme
