#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

/// What one part of a window has to look like.
///
/// The widget is found from the window on, step by step: "#name" by its object name, ".Class" by
/// its class, "=text" by its text (a label or a button). The steps are separated by " > ", and a
/// number after "@" chooses one of several, counted from 0. An empty path is the window itself.
///
/// The properties:
/// - text, placeholder, tip, title, cursor, state (checked, enabled, shown), lines (one or many)
/// - size, width, height: the fixed ones; least: the minimum size
/// - margins, spacing, order: of the layout of the widget
/// - row spacing, row margins, place: of the layout in which the widget stands
/// - font, colour, background: as drawn, with all style sheets applied
/// - style, or style and a selector: declarations that the widget's own style sheet has to contain
/// - picture: the name of the icon below ":/icons/"
struct Figure {
    const char *widget;
    const char *property;
    const char *expected;
};

using Figures = QList<Figure>;

/// The rows that do not hold, one line for each: widget, property, what was found and what was
/// expected.
[[nodiscard]] QStringList differences(QWidget &window, const Figures &figures);

/// A parent with the style sheet of the main window, so that a page or a dialog looks as in the
/// program.
class StyledParent final : public QWidget
{
    Q_OBJECT
public:
    StyledParent();
};

/// Compares @p window with a table, and says in each line of the failure what differs.
#define COMPARE_FIGURES(window, figures)                                                           \
    do {                                                                                           \
        const QStringList found = differences(window, figures);                                    \
        QVERIFY2(found.isEmpty(), qPrintable(u'\n' + found.join(u'\n')));                          \
    } while (false)
