#pragma once

#include "registry.h"

#include <QList>
#include <QString>

#include <atomic>

/// One key of a backup with its values.
struct RestoredKey {
    /// The hive to restore into; never the merged classes.
    platform::Hive hive = platform::Hive::LocalMachine;
    QString path; ///< below the hive
    QString name; ///< as the backup has it, such as "HKEY_CLASSES_ROOT\\.txt"
    QList<platform::RegistryValue> values;
};

/// Reads a file that RegistryBackup wrote and restores its keys and values. A class is restored
/// into the hive that it came from.
class RegistryRestore final
{
public:
    /// The result for one key or one value.
    struct Outcome {
        QString entry; ///< a key's full path; for a value also a blank and the value's name
        bool isRestored = false;
        QString error; ///< for people
        bool isCancelled = false; ///< it was not tried any more
    };

    /// The keys in the @p text of a backup. A text that is damaged anywhere gives nothing, because
    /// half a backup would look like a whole one. @p error then names the line.
    [[nodiscard]] static std::optional<QList<RestoredKey>> parse(const QString &text,
                                                                 QString &error);

    /// Makes the missing keys and writes the values. Existing values are overwritten. Returns the
    /// outcome for each key and value, in order. When @p stopRequested is set, what is not restored
    /// by then is left out, as a failure.
    [[nodiscard]] static QList<Outcome> restore(platform::Registry &registry,
                                                const QList<RestoredKey> &keys,
                                                const std::atomic_bool &stopRequested);
};
