#pragma once

#include "cleanengine.h"
#include "registry.h"

#include <QList>

#include <optional>
#include <set>

class RegistryChecks;

/// Finds registry entries that name files or programs which are no longer there, and removes them
/// after a backup was written.
///
/// One check becomes one category. Which hive an entry is in is decided when it is read: of the
/// merged classes, another one would be found in its place once it is gone. The descriptions of the
/// categories and the path of the backup are set on the GUI thread while no run is under way and
/// only read by the worker; the last backup's error is written by it during a clean; for
/// everything else see CleanEngine.
class RegistryCleaner final : public CleanEngine
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegistryCleaner)
public:
    explicit RegistryCleaner(QObject *parent = nullptr);
    ~RegistryCleaner() override;

    [[nodiscard]] QStringList categoryIds() const;
    /// Where the next cleans write their backup; empty means none.
    void setBackupPath(const QString &path) { m_backupPath = path; }
    [[nodiscard]] const QString &backupPath() const { return m_backupPath; }
    /// Why the last clean could not write the backup that it should have written, for people;
    /// nothing when there was no such failure.
    [[nodiscard]] const std::optional<QString> &backupError() const { return m_backupError; }

    /// Whether the file or folder that an entry names exists, see PathCheck.
    [[nodiscard]] static bool pathExists(const QString &text);

protected:
    void doScan() override;
    void doClean() override;

private:
    using Check = QList<CleanItem> (RegistryChecks::*)();
    struct Category {
        Check check;
        QString id;
        QString name;
        QString description;
        QString icon;
        QString details;
        int level = LowRisk;
        bool checked = true;
    };
    struct Place;
    struct UnsavedRemoval;

    void runCheck(const Category &category, RegistryChecks &checks);
    /// What a scan would list now, in the categories that are to be cleaned.
    [[nodiscard]] std::set<Place> findCurrentPlaces(const platform::Registry &registry);
    void backUp(const ScanResult &toRemove, const platform::Registry &registry);
    /// True when the entry is gone now; otherwise @p reason says why not.
    static bool removeEntry(platform::Registry &registry, const CleanItem &item, QString &reason);
    /// Makes the removals last and returns how many of them did.
    int saveChanges(platform::Registry &registry, const QList<UnsavedRemoval> &removals);

    QList<Category> m_categories;
    QString m_backupPath;
    std::optional<QString> m_backupError;
};
