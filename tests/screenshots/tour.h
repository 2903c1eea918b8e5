#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;
class TestHome;

/// Called at each stop with its name, the window, and what stands above it.
using TourVisitor =
    std::function<void(const QString &name, QWidget *window, const QList<QWidget *> &above)>;

/// Starts the program on data of its own below @p home and leads through its pages and dialogs, as
/// a user meets them one after the other. The file chooser is the desktop's and left out.
void takeTour(const TestHome &home, const TourVisitor &visit);
