#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class TestHome;

/// The invented disk on which the robot runs the program. main() owns it; GUI thread only.
///
/// It has junk, browser data, large files, and other files around and among them that no scan may
/// list. Deleted files can be made again. Files with a size are sparse.
class World final
{
    Q_DISABLE_COPY_MOVE(World)
public:
    enum class Owner {
        Junk,
        Browser,
        Large,
        Nobody, ///< no scan may list it
    };

    /// Makes all files and sets the environment variables of the folders.
    explicit World(const TestHome &home);
    ~World();
    /// Fails unless all folders in which the program looks for junk belong to the test.
    void checkFolders() const;

    /// The folders in which the program looks for large files.
    [[nodiscard]] QStringList drives() const { return m_drives; }

    /// Makes the deleted files again.
    void refill();
    /// How many of the owner's files still exist, in per cent.
    [[nodiscard]] int percentRemaining(Owner owner) const;

    /// The entries that a page must list after a scan.
    [[nodiscard]] QStringList expectedPaths(Owner owner, qint64 minimumSize = 0) const;
    /// Whether a scan may list @p path: an entry of the owner, or for browsers a folder that holds
    /// only such entries.
    [[nodiscard]] bool mayBeListed(Owner owner, const QString &path) const;

    /// The entries deleted since the last call. Fails when another entry has changed.
    [[nodiscard]] QStringList findDeleted();
    /// The existing entries at @p paths, and all existing entries below those that are folders.
    [[nodiscard]] QStringList entriesAt(const QStringList &paths) const;
    /// Whether the system refuses to delete the entry.
    [[nodiscard]] bool resistsDeletion(const QString &path) const;
    /// Checks the content of every file and looks for new files.
    void compareFully() const;

private:
    enum class Kind { File, ReadOnlyFile, HardLink, Link, Folder };
    /// A file or link that the world makes.
    struct Entry {
        QString path;
        Owner owner;
        Kind kind;
        /// Size of a sparse file in bytes. A file of Nobody with size 0 holds its own path.
        qint64 size = 0;
        QString target;
        bool isOptional = false; ///< a scan may list it or not
    };
    /// State of an entry on the disk, to notice changes.
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
    QHash<QString, qsizetype> m_indexes; ///< index in m_entries by path
    QList<Stamp> m_stamps; ///< in the order of m_entries
};
