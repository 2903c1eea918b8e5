#pragma once

#include "actionlog.h"
#include "eyes.h"

#include <QString>
#include <QWidget>

/// What several probes need for comparing what is shown with what it should be.
namespace checks {

template<class Widget = QWidget>
Widget *child(const QWidget *parent, const QString &name)
{
    auto *found = parent->findChild<Widget *>(name);
    expect(found != nullptr,
           [&] { return QStringLiteral("%1 has no %2").arg(eyes::describe(parent), name); });
    return found;
}

/// As the pages write sizes.
[[nodiscard]] QString sizeText(qint64 bytes);

void compare(const QString &what, const QString &shown, const QString &expected);

/// Fails when @p name is drawn in a row and is neither @p full nor short for it.
void checkText(const QWidget *row, const QString &name, const QString &full);

/// Compares the box of a row with how many of its records are ticked.
void checkBox(const QWidget *box, int ticked, int count);

} // namespace checks
