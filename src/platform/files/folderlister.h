#pragma once

#include "entry.h"

#include <QString>

#include <atomic>
#include <memory>
#include <vector>

namespace platform {

enum class ListedKind { File, Folder, FileLink, FolderLink };

/// One entry of a folder.
struct ListedEntry {
    QString name;
    ListedKind kind = ListedKind::File;
    bool isHidden = false; ///< or, to Windows programs, the system's
    qint64 size = 0; ///< bytes; for a link its own size, for folders 0
};

struct FolderListing {
    std::vector<ListedEntry> entries; ///< in the file system's order
    /// Where the folder lies, for comparing; 0 where links alone lead elsewhere.
    quint64 device = 0;
    EntryId id; ///< of the folder
    bool isMissing = false; ///< gone, or no folder, or (on Linux) reached through a link
    QString error; ///< why it could not be read; what was read before is kept
};

/// Reads whole folders. A walk owns one; list() may be called on any thread.
class FolderLister final
{
    Q_DISABLE_COPY_MOVE(FolderLister)
public:
    FolderLister();
    ~FolderLister();

    /// Reads the folder at an absolute path. On Linux it is opened without following a link
    /// anywhere; on Windows the caller has looked at the path before, see inspect().
    ///
    /// Left out: pipes, sockets and devices, names that cannot be decoded, links that lead to
    /// neither a file nor a folder, and on Linux what is mounted there, folder or file; on Windows
    /// a mount point counts as a link. Ends early once @p stopRequested is set.
    [[nodiscard]] FolderListing list(const QString &path,
                                     const std::atomic_bool *stopRequested = nullptr) const;

private:
    class Private;
    const std::unique_ptr<const Private> d;
};

} // namespace platform
