#pragma once

#include <QString>

/// Renames a damaged settings file to "<name>.damaged" before anything opens it. The program then
/// starts with defaults. A damaged file is not a regular file, or it is far too large for a few
/// options. Reading it would delay the start or never end.
///
/// @p fileName is the name in the organisation's folder, such as "Sweepwise.ini".
void setAsideDamagedSettings(const QString &fileName);
