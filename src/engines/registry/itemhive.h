#pragma once

#include "registry.h"
#include "scanresult.h"

/// Which hive the registry entry of an item is in, as a clean and as a backup take it.
///
/// Both read the item's hive in full or short, since the scan of the start-up lists stores it
/// short. They differ in a name that is none of these, which no scan gives an item: a clean takes
/// it for the merged classes, a backup for the machine's hive. Neither can follow the other: which
/// entry a clean looks for, and what line a backup gets, are both fixed for any text.
struct ItemHive {
    platform::Hive named; ///< may be the merged one
    platform::Hive
        stored; ///< never the merged one: of a class, the hive that the scan read it from

    [[nodiscard]] static ItemHive forClean(const CleanItem &item);
    [[nodiscard]] static ItemHive forBackup(const CleanItem &item);

    [[nodiscard]] bool isClass() const { return named == platform::Hive::ClassesRoot; }
    /// Where the stored hive has the key that the named one knows as @p key.
    [[nodiscard]] QString storedPath(const QString &key) const
    {
        return isClass() ? platform::Registry::classPath(key) : key;
    }
};
