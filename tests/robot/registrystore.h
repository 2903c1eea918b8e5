#pragma once

#include <QMap>
#include <QString>

#include <memory>

class TestHome;

/// The content of the registry: for each key the data of its values by their names. Keys are in
/// small letters and begin with "hklm" or "hkcu".
using RegistryState = QMap<QString, QMap<QString, QString>>;

/// The test's own registry. It is written and read without the code of the program.
///
/// On Linux it is the files of a Wine prefix in the test's home. On Windows it is a key of the live
/// registry that replaces the hives of machine and user in this process.
class RegistryStore final
{
    Q_DISABLE_COPY_MOVE(RegistryStore)
public:
    explicit RegistryStore(const TestHome &home);
    ~RegistryStore();

    /// Adds a text value; write() writes it. Hives are "HKEY_LOCAL_MACHINE" and
    /// "HKEY_CURRENT_USER".
    void add(const QString &hive, const QString &key, const QString &name, const QString &text);
    void write();
    [[nodiscard]] const RegistryState &state() const;
    /// The text that is stored as @p data.
    [[nodiscard]] static QString textOf(const QString &data);
    /// The name of a key in a RegistryState.
    [[nodiscard]] static QString folded(const QString &hive, const QString &key);

private:
    class Private;
    std::unique_ptr<Private> d;
};
