#pragma once

#include "registry.h"

#include <QList>
#include <QString>

/// One key of a backup with the values that go into it.
struct RestoredKey {
    platform::Hive hive = platform::Hive::LocalMachine; ///< that it goes into; never the merged one
    QString path; ///< below the hive
    QString name; ///< as the backup has it, such as "HKEY_CLASSES_ROOT\\.txt"
    QList<platform::RegistryValue> values;
};

/// Reads a file that RegistryBackup wrote and puts its keys and values back, classes into the hive
/// that they came from.
class RegistryRestore final
{
public:
    struct Outcome {
        QString entry; ///< a key's full path, for a value with its name after a blank
        bool isRestored = false;
        QString error; ///< for people
    };

    /// The keys of a backup's @p text. A file that is damaged anywhere yields nothing, and
    /// @p error says in which line: half a backup would look like a whole one.
    [[nodiscard]] static std::optional<QList<RestoredKey>> parse(const QString &text,
                                                                 QString &error);

    /// Makes the keys where they are missing and writes the values; a value that is there is
    /// overwritten. Returns what became of each key and value, in order.
    [[nodiscard]] static QList<Outcome> restore(platform::Registry &registry,
                                                const QList<RestoredKey> &keys);
};
