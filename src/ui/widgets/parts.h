#pragma once

#include <QString>

class QLabel;
class QPushButton;
class QWidget;

/// Makes the labels and buttons of pages, cards and dialogs. The parent owns the new widget, and
/// the caller puts it into a layout. A style is one of theme.h. The class that shows a text
/// translates it. GUI thread.
namespace parts {

/// A label that shows @p text as it is, without markup.
[[nodiscard]] QLabel *label(const QString &text, const QString &style, QWidget *parent);
/// A label with its text in the middle.
[[nodiscard]] QLabel *centredLabel(const QString &text, const QString &style, QWidget *parent);
/// Keeps the width of the text out of the layout: a long text does not make the window wider.
void ignoreTextWidth(QLabel *label);

/// A button with the hand as mouse pointer. @p name is its object name.
[[nodiscard]] QPushButton *button(const QString &name, const QString &text, const QString &style,
                                  QWidget *parent);
/// A button that takes the focus by the tabulator key only: a click leaves the focus where it is.
[[nodiscard]] QPushButton *tabButton(const QString &name, const QString &text, const QString &style,
                                     QWidget *parent);

} // namespace parts
