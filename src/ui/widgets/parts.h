#pragma once

#include <QString>

class QLabel;
class QPushButton;
class QScrollArea;
class QWidget;

/// Creates the labels, buttons and scroll areas of pages, cards and dialogs. The parent owns the
/// new widget, and the caller puts it into a layout. Styles come from theme.h. The class that shows
/// a text translates it. GUI thread.
namespace parts {

/// A label that shows @p text as it is, without markup.
[[nodiscard]] QLabel *label(const QString &text, const QString &style, QWidget *parent);
/// A label with its text in the middle.
[[nodiscard]] QLabel *centredLabel(const QString &text, const QString &style, QWidget *parent);
/// Excludes the width of the text from the layout, so that a long text does not make the window
/// wider.
void ignoreTextWidth(QLabel *label);

/// A button with the pointing-hand cursor. @p name is its object name.
[[nodiscard]] QPushButton *button(const QString &name, const QString &text, const QString &style,
                                  QWidget *parent);
/// A button that takes the focus only by the Tab key: a click leaves the focus unchanged.
[[nodiscard]] QPushButton *tabButton(const QString &name, const QString &text, const QString &style,
                                     QWidget *parent);

/// A transparent area that scrolls its content up and down. It takes no focus: its content does,
/// and the area scrolls to what has it. @p name is its object name.
[[nodiscard]] QScrollArea *verticalScrollArea(const QString &name, QWidget *parent);

} // namespace parts
