#pragma once

#include "hive.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace platform {

/// The types of a value that this program tells apart; any other number may occur.
enum RegistryType : quint32 {
    RegistryNone = 0,
    RegistryText = 1, ///< UTF-16 little-endian, usually with its terminating NUL
    RegistryExpandText = 2,
    RegistryBinary = 3,
    RegistryDword = 4,
    RegistryMultiText = 7,
    RegistryQword = 11,
};

struct RegistryValue {
    QString name; ///< empty for the key's default value
    quint32 type = RegistryNone;
    QByteArray data; ///< the bytes as they are stored
};

/// The registry as it was opened by this object.
///
/// On Windows every call goes to the system at once. Elsewhere the registry files of the Wine
/// prefix are read on first use and kept: make one object for a scan, not one for a question.
/// Changes are then made to what was read, and save() writes the files. Without a prefix the
/// registry is empty.
///
/// Key paths use backslashes and are looked up, like value names, without regard to case. What does
/// not exist or may not be read yields nothing. A key that is a symbolic link is not followed by
/// the prefix reader. Not for use by two threads at once.
class Registry
{
    Q_DISABLE_COPY(Registry)
public:
    Registry();
    ~Registry();
    Registry(Registry &&other) noexcept;
    Registry &operator=(Registry &&other) noexcept;

    /// Whether @p key names one key below a hive: neither empty nor with an empty name in it.
    [[nodiscard]] static bool isKeyPath(const QString &key);

    /// Where the user's or the machine's hive keeps the class key that ClassesRoot knows as @p key.
    [[nodiscard]] static QString classPath(const QString &key);
    struct ClassText {
        QString text;
        Hive hive = Hive::LocalMachine; ///< which of the two it was read from
    };
    /// The value of a class as text, as ClassesRoot shows it: the user's, if there is one.
    [[nodiscard]] ClassText classText(const QString &key, const QString &name) const;

    [[nodiscard]] bool hasKey(Hive hive, const QString &key) const;
    /// The names of the keys right below @p key, in the registry's order; "" is the hive itself.
    [[nodiscard]] QStringList subkeys(Hive hive, const QString &key) const;
    /// The names of the key's values in the registry's order; "" is the default value.
    [[nodiscard]] QStringList valueNames(Hive hive, const QString &key) const;
    /// The value as text: strings up to their first NUL and with their placeholders as they stand,
    /// numbers in decimal; empty for every other type.
    [[nodiscard]] QString text(Hive hive, const QString &key, const QString &name) const;
    [[nodiscard]] std::optional<RegistryValue> value(Hive hive, const QString &key,
                                                     const QString &name) const;
    /// All values of a key; those of more than @p maximumSize bytes are left out. Nothing when the
    /// key cannot be opened for reading, which is not the same as a key without values.
    [[nodiscard]] std::optional<QList<RegistryValue>> values(Hive hive, const QString &key,
                                                             qsizetype maximumSize) const;

    // Changes. Each gives whether it was made; if not, errorString() says why. A key path that is
    // empty, holds an empty name or begins or ends with a backslash is refused before any call: to
    // the system it would be another key, at worst a whole hive. So is ClassesRoot, of which the
    // system would choose the hive.

    /// Removes the key with everything below it.
    bool deleteTree(Hive hive, const QString &key);
    /// Removes the key if nothing is below it.
    bool deleteKey(Hive hive, const QString &key);
    bool deleteValue(Hive hive, const QString &key, const QString &name);
    /// Makes the key, and those above it, where they are missing.
    bool createKey(Hive hive, const QString &key);
    /// Writes a value into an existing key.
    bool setValue(Hive hive, const QString &key, const RegistryValue &value);

    /// Makes the changes permanent; on Windows they are already. Refused while the prefix is in
    /// use, or when its files are no longer those that were read: the changes are dropped then.
    /// Each file is written whole or not at all, and both are on the disk before the first is
    /// replaced. Should the second not take its place, only the first is saved: see isSaved().
    [[nodiscard]] bool save();
    /// Whether the changes of @p hive lasted at the last save().
    [[nodiscard]] bool isSaved(Hive hive) const;

    /// For people; why the last change or save() failed.
    [[nodiscard]] QString errorString() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// Whether @p path, absolute, is a file that a registry itself is kept in, under whatever name.
/// Not for a pipe, which would be waited for.
[[nodiscard]] bool isRegistryFile(const QString &path);

} // namespace platform
