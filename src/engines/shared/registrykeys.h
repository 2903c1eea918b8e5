#pragma once

#include "hive.h"

#include <QList>
#include <QString>

/// Keys of the registry that several engines read, in the spelling in which they are shown.
namespace registrykeys {

inline const QString currentVersion =
    QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\");

/// Of the user's hive: what starts with the session.
inline const QString userRun = QStringLiteral("Software\\Microsoft\\Windows\\CurrentVersion\\Run");

/// A key with a key below it for each installed program.
struct UninstallList {
    platform::Hive hive;
    QString key;
};

/// The lists of the machine, of the machine for 32-bit programs, and of the user, in this order.
[[nodiscard]] QList<UninstallList> uninstallLists();

} // namespace registrykeys
