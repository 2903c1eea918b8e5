#pragma once

#include <QMap>
#include <QString>

#include <memory>

class TestHome;

/// What is in the registry: by key, in small letters and beginning with "hklm" or "hkcu", the data
/// of each value by its name.
using RegistryState = QMap<QString, QMap<QString, QString>>;

/// A registry of the test's own, written and read by other means than the program's: elsewhere than
/// on Windows the files of a Wine prefix in the test's home, there a key of the live registry that
/// stands in for the machine's and the user's hive in this process.
class RegistryStore final
{
    Q_DISABLE_COPY_MOVE(RegistryStore)
public:
    explicit RegistryStore(const TestHome &home);
    ~RegistryStore();

    /// Adds a text value, to be made real by write(). Hives are "HKEY_LOCAL_MACHINE" and
    /// "HKEY_CURRENT_USER".
    void add(const QString &hive, const QString &key, const QString &name, const QString &text);
    void write();
    [[nodiscard]] const RegistryState &state() const;
    /// The text that the data of a value stands for.
    [[nodiscard]] static QString textOf(const QString &data);
    /// How a key is named in a state.
    [[nodiscard]] static QString folded(const QString &hive, const QString &key);

private:
    class Private;
    std::unique_ptr<Private> d;
};
