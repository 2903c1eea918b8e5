#pragma once

#include "registryfixture.h"
#include "testhome.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// The home of a program that leaves in the middle of a clean: what the clean of one page may
/// remove, and other files and registry entries around and among it. It says afterwards what is
/// damaged. One thread uses it at a time.
class LeavingHome final
{
    Q_DISABLE_COPY_MOVE(LeavingHome)
public:
    /// @p page is the page that cleans: junk, browser, registry or large.
    explicit LeavingHome(const QString &page);
    ~LeavingHome();

    [[nodiscard]] QString path() const { return m_home.path(); }

    /// Makes what is missing, new settings, and no log.
    void prepare();
    /// Looks at the home after the program has ended. Returns what is wrong; empty when nothing is.
    [[nodiscard]] QString findDamage();
    /// How much the last clean may remove, and how much of that was left at the last look.
    [[nodiscard]] qsizetype count() const { return m_removable.size() + m_entries.size(); }
    [[nodiscard]] qsizetype countRemaining() const { return m_remaining; }

    /// What the program wrote to its settings just before it left.
    [[nodiscard]] int savedNumber() const;
    /// The lines of the log.
    [[nodiscard]] QStringList logLines() const;

private:
    /// A registry entry that the clean may remove. All its lines in an export have the mark.
    struct Entry {
        QString mark;
        bool isKey; ///< a key with two values, otherwise a value
        bool isMissing = true;
    };

    void planFiles(const QString &page);
    void planEntries();
    void keep(const QString &path);
    void remove(const QString &path);
    void makeEntries();
    void makeSettings() const;
    [[nodiscard]] QString fileDamage();
    [[nodiscard]] QString registryDamage();
    [[nodiscard]] QString backupDamage() const;
    [[nodiscard]] QString settingsDamage() const;
    [[nodiscard]] QString logDamage() const;
    [[nodiscard]] QStringList keptLines() const;

    TestHome m_home;
    QString m_profile; ///< the folder of a browser profile
    std::optional<RegistryFixture> m_registry;
    QStringList m_kept;
    QStringList m_removable;
    QList<Entry> m_entries;
    QStringList m_keptLines; ///< of the registry
    qsizetype m_remaining = 0;
};
