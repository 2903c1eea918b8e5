#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWidget;
class TestHome;

/// Called at each stop with its name, the window, and what stands above it.
using TourVisitor =
    std::function<void(const QString &name, QWidget *window, const QList<QWidget *> &above)>;

/// Starts the program on data of its own below @p home and leads through every page and dialog, as
/// a user meets them one after the other.
void takeTour(const TestHome &home, const TourVisitor &visit);
