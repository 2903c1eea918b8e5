#pragma once

#include "pathcheck.h"
#include "registry.h"
#include "runwatch.h"
#include "scanresult.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

/// Finds the registry entries that name missing files, one kind of entry a function.
///
/// RegistryCleaner makes one for each scan, and one for the second look before a clean, both on its
/// worker thread. A stop request ends a check early; its list is then incomplete.
class RegistryChecks final
{
    Q_DECLARE_TR_FUNCTIONS(RegistryChecks)
    Q_DISABLE_COPY_MOVE(RegistryChecks)
public:
    /// All must outlive the object.
    RegistryChecks(const platform::Registry &registry, const platform::RunWatch &watch);

    [[nodiscard]] QList<CleanItem> findSoftware();
    [[nodiscard]] QList<CleanItem> findFileAssociations();
    [[nodiscard]] QList<CleanItem> findCom();
    [[nodiscard]] QList<CleanItem> findFonts();
    [[nodiscard]] QList<CleanItem> findStartup();
    [[nodiscard]] QList<CleanItem> findSharedDlls();
    [[nodiscard]] QList<CleanItem> findMuiCache();

    /// What the checks could not examine on the disk. An entry whose file cannot be looked for
    /// counts as valid.
    [[nodiscard]] const platform::ReadFailures &readFailures() const
    {
        return m_paths.readFailures();
    }

    /// Whether @p key is one whose values the checks list one by one, such as Run.
    [[nodiscard]] static bool isValueList(const QString &key);
    /// Whether @p keyPath begins with such a key and a separator. The path of a value there can
    /// also be the path of a key below it. With an empty value name it is the path of the key
    /// itself. No check lists these keys, so a clean must not remove them.
    [[nodiscard]] static bool isBelowValueList(const QString &keyPath);

private:
    /// Called before each examined entry. Returns whether a stop was requested.
    [[nodiscard]] bool isStopped() const
    {
        m_watch.noteActivity();
        return m_watch.isStopped();
    }
    void addAppPaths(QList<CleanItem> &items);
    void addUninstallKeys(QList<CleanItem> &items);

    const platform::Registry &m_registry;
    const platform::RunWatch m_watch;
    PathCheck m_paths;
};
