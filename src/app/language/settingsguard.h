#pragma once

#include <QString>

/// Sets a settings file aside that must not be opened, before anybody opens it: one that is no
/// regular file, or far larger than a handful of options can be. Reading it would hold up the
/// start, or never end. It is renamed to "<name>.damaged", and the program goes on with defaults.
///
/// @p fileName is the name below the organisation's folder, such as "Sweepwise.ini".
void setAsideDamagedSettings(const QString &fileName);
