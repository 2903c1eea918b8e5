#include "registrykeys.h"

using namespace Qt::StringLiterals;
using platform::Hive;

namespace registrykeys {

QList<UninstallList> uninstallLists()
{
    const QString list = u"Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
    return {{Hive::LocalMachine, "SOFTWARE\\"_L1 + list},
            {Hive::LocalMachine, "SOFTWARE\\WOW6432Node\\"_L1 + list},
            {Hive::CurrentUser, "SOFTWARE\\"_L1 + list}};
}

} // namespace registrykeys
