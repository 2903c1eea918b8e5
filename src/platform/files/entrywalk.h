#pragma once

#include "listedfolders.h"
#include "walkreport.h"

#include <QString>

#include <atomic>
#include <vector>

namespace platform {

struct ListedEntry;

/// One file or folder that a walk found.
struct WalkedEntry {
    QString name; ///< without its folder
    QString path; ///< absolute, with forward slashes
    qint64 size = 0; ///< bytes; for a link its own size, for folders 0
    bool isFolder = false; ///< a folder, or a link to one
};

/// Receives what walkEntries() finds.
class EntryVisitor
{
    Q_DISABLE_COPY_MOVE(EntryVisitor)
public:
    EntryVisitor() = default;
    virtual ~EntryVisitor() = default;

    /// A folder has been read, and none of its entries met yet: at first the root, then each one
    /// right after it was met. Of the hidden folders that are read for their size this is all that
    /// is told, with @p isShown false.
    virtual void visitListing(const std::vector<ListedEntry> &entries, bool isShown);
    /// An entry of the folder that was met last and not yet left; at first, of the root.
    virtual void visitEntry(WalkedEntry &&entry) = 0;
    /// The folder, or link to one, that was met last and not yet left is done. @p size is the bytes
    /// of all files below it, hidden ones included, what links lead to not. @p wasRead is false for
    /// a link, for a folder that is gone by now, and for what lies on another device; one that may
    /// not be read counts as an empty one.
    virtual void leaveFolder(qint64 size, bool wasRead) = 0;
};

/// Lists the files and folders below @p root, each folder right before what is in it.
///
/// @p root is absolute and leads through no link, see inspect(). What comes out equals
/// QDirIterator's recursive QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot listing, order
/// included, except that nothing mounted below the root is listed or entered and that a junction
/// counts as a link. Hidden folders are entered only for their size. When @p stopRequested is set
/// the walk ends, without leaveFolder() for the folders that it is in. Each folder that is read and
/// not hidden is recorded in @p listed.
WalkReport walkEntries(const QString &root, EntryVisitor &visitor,
                       const std::atomic_bool *stopRequested = nullptr,
                       ListedFolders *listed = nullptr);

} // namespace platform
