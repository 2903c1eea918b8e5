#pragma once

#include "readfailures.h"
#include "registry.h"

#include <QList>
#include <QObject>
#include <QString>

/// One installed program and whether it starts with the user's session.
struct StartupApp {
    QString id; ///< the name of the program's uninstall key
    QString name;
    QString exePath; ///< never empty in the list; a Windows path
    QString iconPath;
    QString publisher;
    bool isStartup = false;
};

/// Lists the installed programs, finds the executable of each, and switches its entry in the user's
/// start-up list on and off.
///
/// The start-up page or a command of the companion owns it. It works on the caller's thread.
/// Loading reads the registry and the install folders, which may take a while.
class StartupManager final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StartupManager)
public:
    explicit StartupManager(QObject *parent = nullptr);

    /// The programs. The first call loads them.
    [[nodiscard]] const QList<StartupApp> &apps();
    /// Reads the start-up list and the programs again.
    void loadInstalledApps();

    /// What the last loading could not read. Programs may be missing from the list because of it.
    [[nodiscard]] const platform::ReadFailures &incomplete() const { return m_readFailures; }
    /// Whether the start-up list could be read last time. Otherwise the programs' flags are older.
    [[nodiscard]] bool isStartupListRead() const { return m_isStartupListRead; }

    // Each of these functions reads the start-up list again first and returns whether the change
    // was made. If the list cannot be read, nothing is changed. After a failure the log has a line
    // and errorString() says why. In both cases the programs' flags are updated from the registry.
    // A command that is overwritten or removed is written to the log.

    /// Makes @p exePath start with the session, without arguments. Writes the value @p name and
    /// overwrites an entry of that name.
    bool addToStartup(const QString &name, const QString &exePath);
    /// Removes the entry @p name. The empty name stands for the default value of the list.
    bool removeFromStartup(const QString &name);
    /// Switches @p app on or off. Switching off removes every entry that starts its executable,
    /// whatever the entry's name. Without such an entry it removes the one named after @p app.
    bool setStartup(const StartupApp &app, bool enable);

    /// Why the last change failed; for people.
    [[nodiscard]] const QString &errorString() const { return m_error; }

    /// The executable of a start-up command.
    [[nodiscard]] static QString commandPath(const QString &command);
    /// The path of the program in the install folder @p folder that most likely starts the product
    /// @p name. Empty when there is none. Looks into the folder and its direct subfolders. What
    /// cannot be read is added to @p failures.
    [[nodiscard]] static QString findExecutable(const QString &folder, const QString &name,
                                                platform::ReadFailures &failures);

private:
    /// One value of the user's start-up list.
    struct Entry {
        QString valueName;
        QString exePath;
        QString command;
    };

    /// Reads the start-up list. If that fails, returns false, sets the error string and leaves the
    /// list as it was.
    bool readStartupTable(const platform::Registry &registry);
    void readUninstallKey(const platform::Registry &registry, platform::Hive hive,
                          const QString &root, const QString &id);
    /// The entries that start @p exePath, in any spelling of the path.
    [[nodiscard]] QList<Entry> entriesOf(const QString &exePath) const;
    bool removeEntries(const QStringList &valueNames);
    /// Writes the failure to the log. Returns false.
    static bool failToRemove(const QString &name);
    /// Writes the command of each of these entries to the log, before the entries change. @p line
    /// has the placeholders %1 for the name and %2 for the command.
    void logCommands(const QStringList &valueNames, const QString &line) const;
    /// Reads the start-up list again and updates the programs' flags.
    void updateStates();

    QList<StartupApp> m_apps;
    bool m_isLoaded = false;
    QList<Entry> m_entries; ///< the start-up list, in the registry's order
    platform::ReadFailures m_readFailures;
    bool m_isStartupListRead = false;
    QString m_error;
};
