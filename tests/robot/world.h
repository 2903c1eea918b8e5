#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class TestHome;

/// The made-up disk that the robot lets the program loose on: junk, the data of browsers, large
/// files, and around and among them what no scan may take.
///
/// What has been deleted can be made anew in its place. Files that claim a size are sparse.
class World final
{
    Q_DISABLE_COPY_MOVE(World)
public:
    enum class Owner {
        Junk,
        Browser,
        Large,
        Nobody, ///< stands outside, or inside where a scan must pass over it
    };

    /// Makes everything, and points the environment at it.
    explicit World(const TestHome &home);
    ~World();
    /// Fails unless every folder that the program may look for junk in is the test's own.
    void checkFolders() const;

    /// Where large files are looked for.
    [[nodiscard]] QStringList drives() const { return m_drives; }

    /// Makes what is missing.
    void refill();
    /// How many of an owner's files are still there, in per cent.
    [[nodiscard]] int percentRemaining(Owner owner) const;

    /// The entries that a page must list when it has scanned.
    [[nodiscard]] QStringList expectedPaths(Owner owner, qint64 minimumSize = 0) const;
    /// Whether there may be a listed entry at @p path: one of the owner, or something in a folder
    /// that the owner's files lie in.
    [[nodiscard]] bool mayBeListed(Owner owner, const QString &path) const;

    /// What is gone since the last look, and fails when anything is not as it was.
    [[nodiscard]] QStringList findDeleted();
    /// Of @p paths those entries that are there now, with everything below those that are folders.
    [[nodiscard]] QStringList entriesAt(const QStringList &paths) const;
    /// Whether the system refuses to delete it by itself.
    [[nodiscard]] bool resistsDeletion(const QString &path) const;
    /// Looks into every file, and for new ones.
    void compareFully() const;

private:
    enum class Kind { File, ReadOnlyFile, HardLink, Link, Folder };
    struct Entry {
        QString path;
        Owner owner;
        Kind kind;
        qint64 size = 0; ///< claimed by a sparse file; a file without one holds its own name
        QString target;
        bool isOptional = false; ///< a scan may list it or not
    };
    struct Stamp {
        bool exists = false;
        char type = '?';
        qint64 size = 0;
        qint64 modified = 0;
        int mode = 0;

        [[nodiscard]] bool operator==(const Stamp &other) const = default;
    };

    void planJunk();
    void planBrowsers();
    void planChromium(const QString &profile, bool hasManyFiles);
    void planLargeFiles();
    void planFence();
    void add(Owner owner, const QString &path, qint64 size = 0, Kind kind = Kind::File,
             const QString &target = {});
    void addFolders(const QString &path);
    void make(const Entry &entry) const;
    [[nodiscard]] static Stamp stampOf(const QString &path);

    QString m_home;
    QStringList m_drives;
    QList<Entry> m_entries;
    QHash<QString, qsizetype> m_indexes; ///< of the entries, by path
    QList<Stamp> m_stamps; ///< of the entries
};
