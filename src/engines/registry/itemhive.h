#pragma once

#include "registry.h"
#include "scanresult.h"

/// Which hive the registry entry of an item is in, as a clean and as a backup take it.
///
/// Both know the hive's name in full and short: the scan of the start-up lists stores it short. Any
/// other text, which no scan stores, means the merged classes to a clean and the machine's hive to
/// a backup. The two differ because the backup's format and the clean each lay down what such a
/// text means; neither may be changed to the other.
struct ItemHive {
    /// May be the merged classes.
    platform::Hive named;
    /// Never the merged classes: a class is in the hive that the scan read it from.
    platform::Hive stored;

    [[nodiscard]] static ItemHive forClean(const CleanItem &item);
    [[nodiscard]] static ItemHive forBackup(const CleanItem &item);

    [[nodiscard]] bool isClass() const { return named == platform::Hive::ClassesRoot; }
    /// Where the stored hive has the key that the named one knows as @p key.
    [[nodiscard]] QString storedPath(const QString &key) const
    {
        return isClass() ? platform::Registry::classPath(key) : key;
    }
};
