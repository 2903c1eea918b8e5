#pragma once

#include "entry.h"
#include "readfailures.h"
#include "runwatch.h"

#include <QAnyStringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>

namespace platform {

/// A folder that was entered by another path than its own.
struct FollowedLink {
    QString path; ///< as in the paths of its files
    QString target; ///< the folder's own path, without links
};

/// What walkTree() could not read, and the links that it followed. A folder or file that fails does
/// not end the walk. A value.
struct WalkReport {
    ReadFailures failures;
    /// empty on Windows, where files are listed below the link's target
    QList<FollowedLink> followed;
};

/// How far a walk goes.
enum class Reach {
    /// Stays on the root's device and follows no link. The root's path passes through no link
    /// either.
    OwnDevice,
    /// Also follows links to folders and crosses mount points. The path of the root may pass
    /// through links. Each real folder is walked once. It is walked by its own path if it has one
    /// below the root. A file system that shows the kernel's state as files is walked only when it
    /// is the root.
    Everywhere,
};

/// What a walk lists and how far it goes. Must outlive the walk.
struct WalkOptions {
    QStringList nameFilters; ///< wildcards, ignoring case; an empty list matches every file
    bool recursive = true; ///< also walk the folders below
    RunWatch watch = {}; ///< a stop is looked for before each entry
    Reach reach = Reach::OwnDevice;
};

/// What a visitor remembers of a folder that is read later, see TreeVisitor::addSubfolder(). The
/// visitor owns it.
struct FolderPlace {
};

/// The folder that a walker reads at the moment. The walker owns it and uses it on its own thread.
class WalkedFolder final
{
public:
    WalkedFolder() = default;
    /// Without an @p id, the first call of id() looks it up.
    WalkedFolder(const QString &path, const EntryId &id, FolderPlace *place)
        : m_path(path)
        , m_id(id)
        , m_place(place)
    {
    }
    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] EntryId id() const;
    /// Null for the root and for folders behind links.
    [[nodiscard]] FolderPlace *place() const { return m_place; }

private:
    QString m_path;
    mutable EntryId m_id;
    FolderPlace *m_place = nullptr;
};

/// A file as a visitor sees it. No string is built for it, because most visitors skip most files.
struct VisitedFile {
    QAnyStringView name; ///< without its folder; valid until the visitor returns
    qint64 size = 0; ///< bytes; for a link its own size, which its removal frees
    qint64 modified = 0; ///< milliseconds since 1970, UTC; for a link its own time
    bool isLink = false;
    quint64 number = 0; ///< EntryId::number of the file or link; 0 when a listing does not tell it
    const WalkedFolder *folder = nullptr; ///< the folder of the file; never null in a visitor
};

/// Receives what one walker finds, on that walker's thread. The caller of walkTree() owns it.
class TreeVisitor
{
    Q_DISABLE_COPY_MOVE(TreeVisitor)
public:
    TreeVisitor() = default;
    virtual ~TreeVisitor() = default;

    /// What a visitor needs to know about the files of a folder.
    enum class Wanted {
        SizesAndTimes,
        Names, ///< sizes and times may stay 0, which saves a system call per file
    };
    /// The files of the next calls of visitFile() lie in this folder.
    [[nodiscard]] virtual Wanted enterFolder(const WalkedFolder &folder) = 0;
    virtual void visitFile(const VisitedFile &file) = 0;
    /// The folder has been read, as far as it can be and until the walk is stopped.
    virtual void leaveFolder() { }

    /// A subfolder of the folder was found. A visitor will enter it later, not necessarily this
    /// one, and gets the returned place with it.
    [[nodiscard]] virtual FolderPlace *addSubfolder() { return nullptr; }
    /// The folder at @p place cannot be read, or is not to be.
    virtual void skipFolder(FolderPlace *place) { Q_UNUSED(place) }
};

/// Walks the files of a folder and, unless the options say otherwise, of its subfolders. Each of @p
/// visitors gets a walker: the first on the calling thread, every other one on a thread of its own.
/// If the system cannot make a thread, fewer walkers do the work. Returns when all walkers are
/// done.
///
/// @p root is absolute and passes through no link, see inspect(). The caller resolves the links
/// that it trusts. The visited files equal the QDir::Files listing of QDirIterator, except for the
/// sizes of links:
/// - Hidden entries and the contents of hidden folders are skipped. On Windows and below a Wine
///   prefix this includes system entries.
/// - Pipes, sockets, devices and undecodable names are skipped.
/// - Links to files are listed. Links to folders are not entered.
///
/// Unlike QDirIterator, a walk never leaves the device of its root. Reach::Everywhere changes the
/// rules about links and devices.
///
/// All files of one folder go to one visitor, one after the other. A single walker visits them
/// before the files of the subfolders. Several walkers begin the folders in the order of a
/// single one and end them in any order. Within a folder the order is the file system's.
WalkReport walkTree(const QString &root, const WalkOptions &options,
                    const QList<TreeVisitor *> &visitors);

} // namespace platform
