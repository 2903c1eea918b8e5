#pragma once

#include "listedfolders.h"
#include "readfailures.h"
#include "runwatch.h"

#include <QString>

#include <vector>

namespace platform {

struct ListedEntry;

/// One file or folder that walkEntries() has found. A value that the visitor takes over.
struct WalkedEntry {
    QString name; ///< without its folder
    QString path; ///< absolute, with forward slashes
    qint64 size = 0; ///< bytes; for a link its own size, for folders 0
    bool isFolder = false; ///< a folder, or a link to one
};

/// Receives what walkEntries() finds, on the thread of that call. The caller owns it.
class EntryVisitor
{
    Q_DISABLE_COPY_MOVE(EntryVisitor)
public:
    EntryVisitor() = default;
    virtual ~EntryVisitor() = default;

    /// Called when a folder has been read, before visitEntry() is called for its entries. The first
    /// call is for the root. Every other call follows the folder's own visitEntry(). Hidden folders
    /// are read only for their size: for them this is the only call, with @p isShown false.
    virtual void visitListing(const std::vector<ListedEntry> &entries, bool isShown);
    /// Called for an entry of the innermost folder that was visited and not yet left. Without such
    /// a folder it is an entry of the root.
    virtual void visitEntry(WalkedEntry &&entry) = 0;
    /// The innermost folder or link to a folder that was visited and not yet left is done. @p size
    /// is the bytes of all files below it. Hidden files count, targets of links do not. @p wasRead
    /// is false for a link, for a folder that has been removed meanwhile, and for a folder on
    /// another device. A folder that may not be read counts as an empty one.
    virtual void leaveFolder(qint64 size, bool wasRead) = 0;
};

/// Lists the files and folders below @p root, each folder right before its contents.
///
/// @p root is absolute and passes through no link, see inspect(). The result equals QDirIterator's
/// recursive QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot listing, order included, with two
/// exceptions: mount points below the root are neither listed nor entered, and a junction counts as
/// a link. Hidden folders are entered only for their size. A stop ends the walk. It then makes no
/// leaveFolder() calls for the open folders. @p listed receives each folder that is read and not
/// hidden. Returns what could not be read; that does not end the walk.
ReadFailures walkEntries(const QString &root, EntryVisitor &visitor, const RunWatch &watch = {},
                         ListedFolders *listed = nullptr);

} // namespace platform
