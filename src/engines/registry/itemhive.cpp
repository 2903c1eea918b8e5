#include "itemhive.h"

using platform::Hive;

namespace {

ItemHive hiveOf(const CleanItem &item, Hive defaultHive)
{
    const Hive named = platform::hiveNamed(item.registryRoot).value_or(defaultHive);
    if (named != Hive::ClassesRoot)
        return {named, named};
    return {named, item.isUserClass ? Hive::CurrentUser : Hive::LocalMachine};
}

} // namespace

ItemHive ItemHive::forClean(const CleanItem &item)
{
    return hiveOf(item, Hive::ClassesRoot);
}

ItemHive ItemHive::forBackup(const CleanItem &item)
{
    return hiveOf(item, Hive::LocalMachine);
}
