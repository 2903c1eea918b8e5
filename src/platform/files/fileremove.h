#pragma once

#include "listedfolders.h"

#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace platform {

/// Removes listed files and folders, one at a time and never through a link. All engines delete
/// with this class and with nothing else.
///
/// On Linux an entry is removed relative to its folder, which is opened from the root down without
/// following links. Consecutive entries of one folder share the open folder, so that this costs
/// little. On Windows the entry is opened without being followed. Its final path is compared with
/// the requested one, and it is removed through that handle. An entry is removed as what it is now:
/// a link as a link, a real folder with its contents. What is mounted below a folder is never
/// removed.
///
/// An entry is removed only from the folder that it was listed from. Another folder may have come
/// to the path since, by a rename or a mount: its entries stay. A folder that was not listed must
/// be the one that this remover visited first at its path.
///
/// A run owns one object, uses it on one thread and destroys it at its end: the object holds a
/// folder open.
class FileRemover final
{
    Q_DISABLE_COPY_MOVE(FileRemover)
public:
    enum class Status {
        Removed,
        NotFound, ///< there is no such entry, or this remover has removed its folder
        /// The listed folder or file is no longer at its path. Nothing was removed. If a whole
        /// folder was to be removed, a part of it may have been removed.
        Replaced,
        Failed,
    };
    /// The result of one removal.
    struct Outcome {
        Status status = Status::Failed;
        bool wasFolder = false; ///< the entry is or was a folder
        QString error; ///< the system's reason, for Status::Failed
    };
    /// What a listing told about a single file.
    struct ListedFile {
        quint64 number = 0; ///< EntryId::number; 0 when the listing did not tell it
        bool isLink = false; ///< the entry was a link to a file
    };

    FileRemover();
    ~FileRemover();

    /// The following removals accept only the folders in @p listed, which must outlive this object.
    void setListed(const ListedFolders *listed);

    /// Removes the entry at the absolute @p path. A folder is emptied first. Setting @p
    /// stopRequested ends that early, as a failure. An entry inside a folder that cannot be removed
    /// stays, all others are removed.
    [[nodiscard]] Outcome remove(const QString &path,
                                 const std::atomic_bool *stopRequested = nullptr);

    /// Removes the file or link at the absolute @p path. A real folder at the path stays and is a
    /// failure. With @p listed, the entry must still be the file that was listed.
    [[nodiscard]] Outcome removeFile(const QString &path,
                                     const std::optional<ListedFile> &listed = {});

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace platform
