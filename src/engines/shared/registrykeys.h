#pragma once

#include "hive.h"

#include <QList>
#include <QString>

/// Keys of the registry that several engines read, in the spelling in which they are shown.
namespace registrykeys {

inline const QString currentVersion =
    QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\");

/// In the user's hive: the programs that start with the session.
inline const QString userRun = QStringLiteral("Software\\Microsoft\\Windows\\CurrentVersion\\Run");

/// A key that has one subkey for each installed program.
struct UninstallList {
    platform::Hive hive;
    QString key;
};

/// The lists of the machine, of the machine for 32-bit programs, and of the user, in this order.
[[nodiscard]] QList<UninstallList> uninstallLists();

} // namespace registrykeys
