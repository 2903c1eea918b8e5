#pragma once

#include "cleanengine.h"
#include "registry.h"

#include <QList>
#include <QSet>

#include <optional>

class RegistryChecks;

/// Finds registry entries that name missing files or programs, and removes them after it has
/// written a backup.
///
/// One check becomes one category. The scan stores the hive of each entry: in the merged classes,
/// after a removal, the same path may show an entry of the other hive. The GUI thread sets the
/// descriptions of the categories and the path of the backup while no run is busy; the worker only
/// reads them. The worker writes the error of the backup during a clean. For everything else see
/// CleanEngine.
class RegistryCleaner final : public CleanEngine
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegistryCleaner)
public:
    explicit RegistryCleaner(QObject *parent = nullptr);
    ~RegistryCleaner() override;

    [[nodiscard]] QStringList categoryIds() const;
    /// Where the next cleans write their backup. An empty path means no backup.
    void setBackupPath(const QString &path) { m_backupPath = path; }
    [[nodiscard]] const QString &backupPath() const { return m_backupPath; }
    /// Why the last clean could not write its backup, for people. Nothing when no backup has
    /// failed.
    [[nodiscard]] const std::optional<QString> &backupError() const { return m_backupError; }

    /// Whether the file or folder that an entry names exists, see PathCheck.
    [[nodiscard]] static bool pathExists(const QString &text);

protected:
    void doScan() override;
    void doClean() override;

private:
    using Check = QList<CleanItem> (RegistryChecks::*)();
    /// One check and the category that shows what it finds.
    struct Category {
        Check check;
        QString id;
        QString name;
        QString description;
        QString icon;
        QString details;
        const char *progressText = nullptr; ///< the source of its translation
        int level = LowRisk;
        bool checked = true;
    };
    struct Place;
    struct UnsavedRemoval;

    void runCheck(const Category &category, RegistryChecks &checks);
    /// The places that a scan would list now, in the categories that are to be cleaned.
    [[nodiscard]] QSet<Place> findCurrentPlaces(const platform::Registry &registry);
    void backUp(const ScanResult &toRemove, const platform::Registry &registry);
    /// Removes the entry of @p item. If that fails, returns false and sets @p reason.
    static bool removeEntry(platform::Registry &registry, const CleanItem &item, QString &reason);
    /// Saves the registry. Returns how many of @p removals were saved; the others become failures.
    int saveChanges(platform::Registry &registry, const QList<UnsavedRemoval> &removals);

    QList<Category> m_categories;
    QString m_backupPath;
    std::optional<QString> m_backupError;
};
