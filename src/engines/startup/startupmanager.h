#pragma once

#include "registry.h"

#include <QList>
#include <QObject>
#include <QString>

/// One installed program and whether it starts with the user's session.
struct StartupApp {
    QString id; ///< the name of the uninstall key that it was found under
    QString name;
    QString exePath; ///< never empty in the list; a Windows path
    QString iconPath;
    QString publisher;
    bool isStartup = false;
};

/// Lists the installed programs, finds for each the executable that starts it, and switches its
/// entry in the user's list of start-up programs on and off.
///
/// Works on its caller's thread; loading reads the registry and looks into install folders, which
/// may take a while.
class StartupManager final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StartupManager)
public:
    explicit StartupManager(QObject *parent = nullptr);

    /// The programs, loaded on the first call.
    [[nodiscard]] const QList<StartupApp> &apps();
    /// Reads start-up list and programs anew.
    void loadInstalledApps();

    // Each of these goes by the start-up list as it is when it is called, whatever was loaded, and
    // gives whether it was done; if not, the log has a line, errorString() says why,
    // and the programs' flags are what the registry says all the same. A command that is
    // overwritten or removed is kept in the log.

    /// Makes @p exePath start with the session, without arguments, under the value @p name; another
    /// entry of that name is overwritten.
    bool addToStartup(const QString &name, const QString &exePath);
    /// Removes the entry @p name, of which the empty one is the list's default value.
    bool removeFromStartup(const QString &name);
    /// Switches @p app; to switch it off, every entry that starts its executable is removed, under
    /// whatever name it stands.
    bool setStartup(const StartupApp &app, bool enable);

    /// Why the last change failed; for people.
    [[nodiscard]] const QString &errorString() const { return m_error; }

    /// The executable of a start-up command.
    [[nodiscard]] static QString commandPath(const QString &command);
    /// The program of an install folder that is most likely the one to start, by the product's
    /// name; empty when there is none. Looks into the folder and those right below it.
    [[nodiscard]] static QString findExecutable(const QString &folder, const QString &name);

private:
    struct Entry {
        QString valueName;
        QString exePath;
        QString command;
    };

    void readStartupTable(const platform::Registry &registry);
    void readUninstallKey(const platform::Registry &registry, platform::Hive hive,
                          const QString &root, const QString &id);
    /// What starts @p exePath, however it is spelled.
    [[nodiscard]] QList<Entry> entriesOf(const QString &exePath) const;
    bool removeEntries(const QStringList &valueNames);
    /// Writes the commands of these entries, which are about to go, to the log.
    void logCommands(const QStringList &valueNames, const QString &line) const;
    /// Takes the table and the programs' flags from the registry as it is now.
    void updateStates();

    QList<StartupApp> m_apps;
    bool m_isLoaded = false;
    QList<Entry> m_entries; ///< the start-up list, in the registry's order
    QString m_error;
};
