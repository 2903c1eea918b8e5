#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class TestHome;

/// Registry entries that a test needs. They are written and read without the code of the program.
///
/// On Windows the fixture uses the live registry through the system's command. Its destructor
/// removes what it wrote. Elsewhere it uses the files of a Wine prefix in the test's home.
///
/// Keys begin with the full name of their hive, "HKEY_LOCAL_MACHINE\\SOFTWARE\\...". Entries in the
/// live registry have "Sweepwise" in the name of the key or of the value.
class RegistryFixture final
{
    Q_DISABLE_COPY_MOVE(RegistryFixture)
public:
    explicit RegistryFixture(const TestHome &home);
    ~RegistryFixture();

    void addKey(const QString &key);
    void addText(const QString &key, const QString &name, const QString &text);
    void addBytes(const QString &key, const QString &name, quint32 type, const QByteArray &data);
    /// Writes the added entries to the registry.
    void write();

    [[nodiscard]] bool hasKey(const QString &key) const;
    [[nodiscard]] bool hasValue(const QString &key, const QString &name) const;
    /// The lines of an export of the key and of all keys below it; empty when the key is missing.
    [[nodiscard]] QStringList exported(const QString &key) const;
    /// The file of a hive in the Wine prefix; empty on Windows.
    [[nodiscard]] QString file(const QString &hive) const;

private:
    /// A key or value to write.
    struct Entry {
        QString key;
        QString name;
        QString data; ///< as in a registry export
        QString fileData; ///< as in the files of the prefix
        bool isKeyOnly = false;
    };

    void append(const Entry &entry);

    QString m_folder;
    QList<Entry> m_pending; ///< not yet written
    QList<Entry> m_written;
};
