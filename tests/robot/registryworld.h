#pragma once

#include "registrystore.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

class TestHome;

/// The made-up registry: entries that lead nowhere, valid ones among them that no scan may take,
/// and installed programs.
class RegistryWorld final
{
    Q_DISABLE_COPY_MOVE(RegistryWorld)
public:
    struct Program {
        QString name;
        QString path; ///< of its executable, as Windows has it
    };

    /// What follows the root of a class that is in the user's hive.
    static const QString userSuffix;

    explicit RegistryWorld(const TestHome &home);

    [[nodiscard]] const QList<Program> &programs() const { return m_programs; }

    /// Makes what is missing of the entries that a clean may have removed.
    void refill();
    [[nodiscard]] const RegistryState &state() const { return m_store.state(); }
    /// Takes the state as it is now for the right one.
    void acceptState() { m_accepted = state(); }
    [[nodiscard]] const RegistryState &acceptedState() const { return m_accepted; }

    /// What must be left of @p before when a clean has removed entries, each "root\key".
    [[nodiscard]] static RegistryState stateWithout(const RegistryState &before,
                                                    const QStringList &entries);
    /// Which keys and values of @p before are not in @p after, or hold something else there.
    [[nodiscard]] static QStringList findLost(const RegistryState &before,
                                              const RegistryState &after);

    /// The entries that a scan must list now, each "root\key".
    [[nodiscard]] QSet<QString> expectedItems() const;

    /// The programs that start with the session: the value of the user's list by executable.
    [[nodiscard]] QHash<QString, QString> startList() const;

private:
    struct Entry {
        QString hive; ///< "HKEY_..."
        QString key;
        QString name;
        QString text;
        QString item; ///< what a scan makes of it, "root\key"; empty when it may not list it
    };

    void plan();
    void planClassesInBothHives();
    void planPrograms(const TestHome &home);
    void add(const QString &hive, const QString &key, const QString &name, const QString &text,
             const QString &item = {});
    [[nodiscard]] bool has(const Entry &entry) const;

    RegistryStore m_store;
    QString m_programFolder; ///< where the programs are, as Windows has it
    QList<Entry> m_entries;
    QList<Program> m_programs;
    RegistryState m_accepted;
};
