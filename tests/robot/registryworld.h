#pragma once

#include "registrystore.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

class TestHome;

/// The invented registry of the game: invalid entries that a scan must list, valid entries that it
/// must not list, and installed programs.
class RegistryWorld final
{
    Q_DISABLE_COPY_MOVE(RegistryWorld)
public:
    /// An installed program.
    struct Program {
        QString name;
        QString path; ///< Windows path of its executable
    };

    /// The suffix of the root "HKEY_CLASSES_ROOT" for a class in the user's hive.
    static const QString userSuffix;

    explicit RegistryWorld(const TestHome &home);

    [[nodiscard]] const QList<Program> &programs() const { return m_programs; }

    /// Writes the entries again that a clean has removed.
    void refill();
    [[nodiscard]] const RegistryState &state() const { return m_store.state(); }
    /// Stores the current state as the expected one.
    void acceptState() { m_accepted = state(); }
    [[nodiscard]] const RegistryState &acceptedState() const { return m_accepted; }

    /// The state @p before without the given entries, each "root\key": what a clean must leave.
    [[nodiscard]] static RegistryState stateWithout(const RegistryState &before,
                                                    const QStringList &entries);
    /// The keys and values of @p before that @p after lacks, and the values that differ there.
    [[nodiscard]] static QStringList findLost(const RegistryState &before,
                                              const RegistryState &after);

    /// The entries that a scan must list now, each "root\key".
    [[nodiscard]] QSet<QString> expectedItems() const;

    /// The programs that start with the session: the value's name in the user's Run key, by
    /// executable.
    [[nodiscard]] QHash<QString, QString> startList() const;

private:
    /// A value that the world writes.
    struct Entry {
        QString hive; ///< "HKEY_..."
        QString key;
        QString name;
        QString text;
        QString item; ///< the item that a scan lists for it, "root\key"; empty for a valid entry
    };

    void plan();
    void planClassesInBothHives();
    void planPrograms(const TestHome &home);
    void add(const QString &hive, const QString &key, const QString &name, const QString &text,
             const QString &item = {});
    [[nodiscard]] bool has(const Entry &entry) const;

    RegistryStore m_store;
    QString m_programFolder; ///< Windows path of the folder with the programs
    QList<Entry> m_entries;
    QList<Program> m_programs;
    RegistryState m_accepted;
};
