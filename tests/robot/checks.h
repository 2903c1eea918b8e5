#pragma once

#include "actionlog.h"
#include "eyes.h"

#include <QString>
#include <QWidget>

/// Checks that several probes share. Each ends the program when a shown text or box is wrong.
namespace checks {

/// The descendant of @p parent called @p name. Fails when there is none.
template<class Widget = QWidget>
Widget *child(const QWidget *parent, const QString &name)
{
    auto *found = parent->findChild<Widget *>(name);
    expect(found != nullptr,
           [&] { return QStringLiteral("%1 has no %2").arg(eyes::describe(parent), name); });
    return found;
}

/// A size in bytes as the pages write it.
[[nodiscard]] QString sizeText(qint64 bytes);

void compare(const QString &what, const QString &shown, const QString &expected);

/// Fails when the widget @p name is drawn in a row and its text is neither @p full nor shortened
/// from it.
void checkText(const QWidget *row, const QString &name, const QString &full);

/// Checks the state of a row's box: @p ticked of its @p count records are ticked.
void checkBox(const QWidget *box, int ticked, int count);

} // namespace checks
