#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class TestHome;

/// Registry entries that a test needs: written to and asked from the registry by other means than
/// the program's. Under Windows the live registry by its own command, which takes back at the end
/// what was written; elsewhere the files of a Wine prefix in the test's home.
///
/// Keys are given with the full name of their hive, "HKEY_LOCAL_MACHINE\\SOFTWARE\\...". Those of
/// the live registry bear "Sweepwise" in the name of the key or of the value.
class RegistryFixture final
{
    Q_DISABLE_COPY_MOVE(RegistryFixture)
public:
    explicit RegistryFixture(const TestHome &home);
    ~RegistryFixture();

    void addKey(const QString &key);
    void addText(const QString &key, const QString &name, const QString &text);
    void addBytes(const QString &key, const QString &name, quint32 type, const QByteArray &data);
    /// Makes what was added real.
    void write();

    [[nodiscard]] bool hasKey(const QString &key) const;
    [[nodiscard]] bool hasValue(const QString &key, const QString &name) const;
    /// The key with everything below it, as the system's own export has it; empty without such a
    /// key.
    [[nodiscard]] QStringList exported(const QString &key) const;
    /// The file of a hive that is not the live registry's; empty where it is.
    [[nodiscard]] QString file(const QString &hive) const;

private:
    struct Entry {
        QString key;
        QString name;
        QString data; ///< as a registry export has it
        QString fileData; ///< as the prefix's files have it
        bool isKeyOnly = false;
    };

    void append(const Entry &entry);

    QString m_folder;
    QList<Entry> m_pending; ///< not yet written
    QList<Entry> m_written;
};
