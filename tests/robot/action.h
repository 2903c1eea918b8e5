#pragma once

#include "pageprobe.h"

#include <QPointer>
#include <QScrollBar>
#include <QString>
#include <QWidget>

#include <optional>

/// One action of the robot, with what may come of it.
struct Action {
    enum class Effect {
        None, ///< no tick may change
        Exact, ///< the ticks of the row must change as its meaning says
        Possible, ///< they may, by a pixel or a key that the row need not take
        Unknown, ///< whatever comes of it is right
    };

    QString text;
    Effect effect = Effect::None;
    PageProbe *probe = nullptr; ///< whose row is meant
    Row row;
    /// It says yes to a deletion, of these paths or registry entries.
    bool isConfirmation = false;
    QStringList chosen;
    /// It scrolls, and only in this direction: up (-1) or down (1).
    QPointer<QScrollBar> bar;
    int valueBefore = 0;
    int direction = 0;
    /// It leaves the focus where it is.
    bool keepsFocus = false;
    QPointer<QWidget> focusBefore;
    QString focusPath; ///< of the file whose box that is
    bool isTab = false;
};
