#pragma once

#include "cleanengine.h"
#include "registry.h"

#include <QList>

/// Finds registry entries that name files or programs which are no longer there, and removes them
/// after a backup was written.
///
/// One check becomes one category. The descriptions of the categories and the path of the backup
/// are set on the GUI thread while no run is under way and only read by the worker; the
/// placeholders belong to the worker; whether the last backup failed is written by it during a
/// clean; for everything else see CleanEngine.
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
    /// Whether the last clean should have written a backup and could not.
    [[nodiscard]] bool hasBackupFailed() const { return m_backupFailed; }

    /// Whether the file or folder that an entry names exists. Placeholders of the environment are
    /// replaced; an entry with one that is not known counts as existing.
    [[nodiscard]] static bool pathExists(const QString &text);
    /// The program of a command line: what stands in leading quotes, else all before the first
    /// blank.
    [[nodiscard]] static QString programPath(const QString &command);

protected:
    void doScan() override;
    void doClean() override;

private:
    struct Category {
        QString id;
        QString name;
        QString description;
        QString icon;
        QString details;
        int level = LowRisk;
        bool checked = true;
    };
    /// A placeholder of the environment and what it stands for.
    using Placeholder = std::pair<QLatin1StringView, QString>;
    using Check = void (RegistryCleaner::*)(const platform::Registry &, QList<CleanItem> &);

    void runCheck(const Category &category, Check check, const platform::Registry &registry);
    void checkSoftware(const platform::Registry &registry, QList<CleanItem> &items);
    void checkAppPaths(const platform::Registry &registry, QList<CleanItem> &items);
    void checkUninstall(const platform::Registry &registry, QList<CleanItem> &items);
    void checkFileAssociations(const platform::Registry &registry, QList<CleanItem> &items);
    void checkCom(const platform::Registry &registry, QList<CleanItem> &items);
    void checkFonts(const platform::Registry &registry, QList<CleanItem> &items);
    void checkStartup(const platform::Registry &registry, QList<CleanItem> &items);
    void checkSharedDlls(const platform::Registry &registry, QList<CleanItem> &items);
    void checkMuiCache(const platform::Registry &registry, QList<CleanItem> &items);

    void backUp(const platform::Registry &registry);
    /// True when the entry is gone now; otherwise @p reason says why not.
    static bool removeEntry(platform::Registry &registry, const CleanItem &item, QString &reason);
    static QList<Placeholder> readPlaceholders();
    static bool pathExists(const QString &text, const QList<Placeholder> &placeholders);
    /// As the placeholders were when the scan began.
    [[nodiscard]] bool exists(const QString &text) const
    {
        return pathExists(text, m_placeholders);
    }
    /// How many of the removals lasted.
    int saveChanges(platform::Registry &registry, const QStringList &removed);

    QList<Category> m_categories;
    QList<Placeholder> m_placeholders;
    QString m_backupPath;
    bool m_backupFailed = false;
};
