#pragma once

#include <QString>

class QWidget;

namespace filelocation {

/// Shows the file at @p path in the system's file manager. If the file no longer exists or the file
/// manager cannot be started, a warning box over @p parent and the log say so. Does nothing for an
/// empty path. Returns after the user has answered the box. GUI thread.
void show(QWidget *parent, const QString &path);

} // namespace filelocation
