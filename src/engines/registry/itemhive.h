#pragma once

#include "registry.h"
#include "scanresult.h"

/// The hive of an item's registry entry, as a clean and as a backup see it.
///
/// Both accept the full and the short name of a hive; the check of the start-up lists stores the
/// short name. No scan stores any other text. A clean takes such a text for the merged classes, a
/// backup takes it for the machine's hive. The clean and the format of the backup define this
/// separately, so the two must stay different.
struct ItemHive {
    /// The hive that the item names. May be the merged classes.
    platform::Hive named;
    /// The hive that has the entry, never the merged classes. A class is in the hive from which the
    /// scan read it.
    platform::Hive stored;

    [[nodiscard]] static ItemHive forClean(const CleanItem &item);
    [[nodiscard]] static ItemHive forBackup(const CleanItem &item);

    [[nodiscard]] bool isClass() const { return named == platform::Hive::ClassesRoot; }
    /// The path in the stored hive of the key that the named hive has at @p key.
    [[nodiscard]] QString storedPath(const QString &key) const
    {
        return isClass() ? platform::Registry::classPath(key) : key;
    }
};
