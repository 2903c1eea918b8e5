#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;
class TestHome;

/// Called at each stop with its name, the window, and the windows above it.
using TourVisitor =
    std::function<void(const QString &name, QWidget *window, const QList<QWidget *> &above)>;

/// Starts the program on test data below @p home and opens its pages and dialogs one after the
/// other, as a user does. The file chooser is left out: it belongs to the desktop.
void takeTour(const TestHome &home, const TourVisitor &visit);
