#pragma once

#include "pageprobe.h"

#include <QPointer>
#include <QScrollBar>
#include <QString>
#include <QWidget>

#include <optional>

/// One action of the robot, with the effects that it may have.
///
/// The Player fills it, the Judge compares it with what happened.
struct Action {
    enum class Effect {
        /// No tick may change.
        None,
        /// The ticks of the row must change as its meaning says.
        Exact,
        /// The ticks of the row may change: the row may ignore this pixel or key.
        Possible,
        /// Every result is right.
        Unknown,
    };

    QString text;
    Effect effect = Effect::None;
    /// The page of the row; null when the action is not on a row.
    PageProbe *probe = nullptr;
    Row row;
    /// The action confirms a deletion of the paths or registry entries in `chosen`.
    bool isConfirmation = false;
    QStringList chosen;
    /// The bar that the action scrolls; null when it scrolls nothing.
    QPointer<QScrollBar> bar;
    int valueBefore = 0;
    /// The only direction in which the bar may move: up (-1) or down (1).
    int direction = 0;
    /// The action leaves the focus where it is.
    bool keepsFocus = false;
    QPointer<QWidget> focusBefore;
    /// The file whose check box is `focusBefore`; empty for other widgets.
    QString focusPath;
    bool isTab = false;
};
