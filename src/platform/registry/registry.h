#pragma once

#include "hive.h"
#include "readfailures.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace platform {

/// The value types that this program handles. A value may have any other number, too.
enum RegistryType : quint32 {
    RegistryNone = 0,
    RegistryText = 1, ///< UTF-16 little-endian, usually with its terminating NUL
    RegistryExpandText = 2,
    RegistryBinary = 3,
    RegistryDword = 4,
    RegistryMultiText = 7,
    RegistryQword = 11,
};

/// One value of a key.
struct RegistryValue {
    QString name; ///< empty for the key's default value
    quint32 type = RegistryNone;
    QByteArray data; ///< the bytes as they are stored
};

/// One reading of the registry. A scan or a clean owns one. No two threads may use it at once.
///
/// On Windows each call goes to the system directly. On Linux the registry files of the Wine prefix
/// are read on first use and kept, so make one object for a scan and not for a single question.
/// Changes are made to the kept contents, and save() writes the files. Without a prefix the
/// registry is empty.
///
/// Key paths use backslashes. Keys and value names are found regardless of case. A key or value
/// that does not exist yields nothing. So does one that cannot be read, but then readFailures() has
/// it: an answer of "nothing" can be trusted only without a failure. The Linux part does not follow
/// a key that is a symbolic link.
class Registry
{
    Q_DISABLE_COPY(Registry)
public:
    Registry();
    ~Registry();
    Registry(Registry &&other) noexcept;
    Registry &operator=(Registry &&other) noexcept;

    /// Whether @p key is the path of a key below a hive. It must not be empty or contain an empty
    /// name.
    [[nodiscard]] static bool isKeyPath(const QString &key);

    /// The path in the user's or the machine's hive of the class key that ClassesRoot shows as @p
    /// key.
    [[nodiscard]] static QString classPath(const QString &key);
    /// A text of a class and the hive that it is stored in.
    struct ClassText {
        QString text;
        Hive hive = Hive::LocalMachine; ///< CurrentUser or LocalMachine
    };
    /// The value of a class as text, as ClassesRoot shows it. The user's value has precedence.
    [[nodiscard]] ClassText classText(const QString &key, const QString &name) const;

    [[nodiscard]] bool hasKey(Hive hive, const QString &key) const;
    /// The names of the keys directly below @p key, in the registry's order. "" is the hive itself.
    [[nodiscard]] QStringList subkeys(Hive hive, const QString &key) const;
    /// The names of the key's values, in the registry's order. "" is the default value.
    [[nodiscard]] QStringList valueNames(Hive hive, const QString &key) const;
    /// The value as text. A string ends at its first NUL, and its placeholders are not expanded. A
    /// number is in decimal. Empty for every other type.
    [[nodiscard]] QString text(Hive hive, const QString &key, const QString &name) const;
    [[nodiscard]] std::optional<RegistryValue> value(Hive hive, const QString &key,
                                                     const QString &name) const;
    /// All values of a key except those of more than @p maximumSize bytes. Nothing when the key
    /// cannot be opened for reading. A key without values gives an empty list.
    [[nodiscard]] std::optional<QList<RegistryValue>> values(Hive hive, const QString &key,
                                                             qsizetype maximumSize) const;

    /// What could not be read so far: keys, and on Linux the registry files.
    [[nodiscard]] const ReadFailures &readFailures() const;

    // Changes. Each function returns whether the change was made; if not, errorString() says why.
    //
    // A key path is refused before any call if it is empty, contains an empty name, or begins or
    // ends with a backslash. For the system it would mean another key, at worst a whole hive.
    // ClassesRoot is refused because the system would choose the hive of the change.

    /// Removes the key with everything below it.
    bool deleteTree(Hive hive, const QString &key);
    /// Removes the key if it has no subkeys.
    bool deleteKey(Hive hive, const QString &key);
    bool deleteValue(Hive hive, const QString &key, const QString &name);
    /// Creates the key and the missing keys above it.
    bool createKey(Hive hive, const QString &key);
    /// Writes a value into an existing key.
    bool setValue(Hive hive, const QString &key, const RegistryValue &value);

    /// Makes the changes permanent; on Windows they are permanent already. Fails while the prefix
    /// is in use, or when the files have changed since they were read. On failure the changes are
    /// dropped. Each file is written whole or not at all. Both are on the disk before the first is
    /// replaced. If replacing the second one fails, only the first is saved: see isSaved().
    [[nodiscard]] bool save();
    /// Whether the last save() has saved the changes of @p hive.
    [[nodiscard]] bool isSaved(Hive hive) const;

    /// Why the last change or save() failed, for people.
    [[nodiscard]] QString errorString() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// Whether the absolute @p path is a file that contains a registry, under any name. Not to be
/// called for a pipe, because the call would wait for a writer.
[[nodiscard]] bool isRegistryFile(const QString &path);

} // namespace platform
