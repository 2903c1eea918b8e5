#pragma once

#include "entry.h"
#include "walkreport.h"

#include <QAnyStringView>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>

namespace platform {

/// How far a walk goes.
enum class Reach {
    /// Stays on the device of the root and behind no link. The root leads through no link either.
    OwnDevice,
    /// Also enters links to folders and what is mounted below the root, and takes the root as it
    /// comes. Each real folder is walked once, by its own path where it has one below the root; a
    /// file system that shows the kernel's state as files is entered as the root alone.
    Everywhere,
};

struct WalkOptions {
    QStringList nameFilters; ///< wildcards, ignoring case; an empty list takes every file
    bool recursive = true; ///< also walk the folders below
    const std::atomic_bool *stopRequested = nullptr; ///< looked at before every entry
    Reach reach = Reach::OwnDevice;
};

/// The folder that a walker is reading.
class WalkedFolder final
{
public:
    WalkedFolder() = default;
    /// With no @p id, that is looked up when somebody asks for it first.
    explicit WalkedFolder(const QString &path, const EntryId &id = {})
        : m_path(path)
        , m_id(id)
    {
    }
    [[nodiscard]] EntryId id() const;

private:
    QString m_path;
    mutable EntryId m_id;
};

/// A file as a walk meets it. No string is built for it: most are looked at and passed over.
struct VisitedFile {
    QAnyStringView name; ///< without its folder; valid until the visitor returns
    qint64 size = 0; ///< bytes; of a link its own, which is what its removal frees
    qint64 modified = 0; ///< milliseconds since 1970, UTC; of a link its own
    bool isLink = false;
    quint64 number = 0; ///< EntryId::number of the file or link; 0 where a listing tells none
    const WalkedFolder *folder = nullptr; ///< that it lies in; never null in a visitor
};

/// Receives what one walker meets, on the thread of that walker.
class TreeVisitor
{
    Q_DISABLE_COPY_MOVE(TreeVisitor)
public:
    TreeVisitor() = default;
    virtual ~TreeVisitor() = default;

    enum class Wanted {
        SizesAndTimes,
        Names, ///< size and time of the folder's files stay 0, which saves asking for them
    };
    /// The files that are met next lie in this folder.
    [[nodiscard]] virtual Wanted enterFolder(const QString &path) = 0;
    virtual void visitFile(const VisitedFile &file) = 0;
};

/// Walks the files of a folder, and of those below it unless told otherwise, with one walker for
/// each of @p visitors: the first on this thread, every other on one of its own. Returns when all
/// of them are done.
///
/// @p root is absolute and leads through no link, see inspect(); the caller resolves what it
/// trusts. What is met equals QDirIterator's QDir::Files listing but for the sizes of links:
/// neither hidden entries (on Windows, and below a Wine prefix: nor system ones) nor what lies in
/// hidden folders, no pipes, sockets, devices or undecodable names, links to folders not entered,
/// links to files listed. In addition a walk never leaves the device of its root, unless the
/// options say otherwise. The files of one folder go to one visitor, one after the other. With one
/// walker they come before those of the subfolders; with several the order of folders is free.
/// What else there is to the order is the file system's.
WalkReport walkTree(const QString &root, const WalkOptions &options,
                    const QList<TreeVisitor *> &visitors);

} // namespace platform
