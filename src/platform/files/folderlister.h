#pragma once

#include "entry.h"
#include "runwatch.h"

#include <QString>

#include <memory>
#include <vector>

namespace platform {

enum class ListedKind { File, Folder, FileLink, FolderLink };

/// One entry of a listed folder. A value.
struct ListedEntry {
    QString name;
    ListedKind kind = ListedKind::File;
    bool isHidden = false; ///< hidden, or for Windows programs a system entry
    qint64 size = 0; ///< bytes; for a link its own size, for folders 0
};

/// The contents of one folder, or why there are none. A value.
struct FolderListing {
    std::vector<ListedEntry> entries; ///< in the file system's order
    /// The device of the folder, only for comparisons. 0 on Windows, where mount points count as
    /// links and no listing reaches another device.
    quint64 device = 0;
    EntryId id; ///< identifies the folder
    bool isMissing = false; ///< the path leads to no folder, or on Linux passes through a link
    /// Why the folder, or the status of one of its entries, could not be read. The entries that
    /// could be read are there.
    QString error;
};

/// Reads whole folders. A walk owns one. list() may be called on any thread.
class FolderLister final
{
    Q_DISABLE_COPY_MOVE(FolderLister)
public:
    FolderLister();
    ~FolderLister();

    /// Reads the folder at an absolute path. On Linux it is opened without following any link. On
    /// Windows the caller has checked the path before, see inspect().
    ///
    /// Left out are pipes, sockets and devices, names that cannot be decoded, and links whose
    /// target is neither a file nor a folder. On Linux mount points are left out, for folders and
    /// for files. On Windows a mount point counts as a link. Ends early after a stop.
    [[nodiscard]] FolderListing list(const QString &path, const RunWatch &watch = {}) const;

private:
    class Private;
    const std::unique_ptr<const Private> d;
};

} // namespace platform
