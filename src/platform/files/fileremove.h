#pragma once

#include "listedfolders.h"

#include <QString>

#include <atomic>
#include <memory>
#include <optional>

namespace platform {

/// Removes listed files and folders, one at a time and never through a link.
///
/// Every engine deletes through this class and nothing else does. On Linux an entry is removed
/// relative to its folder, which is opened link-free from the top down; entries of one folder that
/// follow each other share the open folder, so that the care costs nothing. On Windows the entry is
/// opened without being followed, its final path is compared with the one asked for, and it is
/// removed through that handle. Whatever stands at the path now is removed as what it is: a link as
/// a link, a real folder with its contents, but never with what is mounted below it.
///
/// An entry is removed only from the folder that it was listed from, not from another one that has
/// come to the path since, by a rename or a mount. A folder that nobody listed must be the one that
/// this remover met at its path first.
///
/// Lives on one thread. Keep one object for a run and drop it at the end: it holds a folder open.
class FileRemover final
{
    Q_DISABLE_COPY_MOVE(FileRemover)
public:
    enum class Status {
        Removed,
        NotFound, ///< nothing stands at the path, or its folder was removed by this remover
        /// Nothing was removed: the folder that was listed, or the file, is not at its path any
        /// more. Of a folder that was to go whole a part may be gone.
        Replaced,
        Failed,
    };
    struct Outcome {
        Status status = Status::Failed;
        bool wasFolder = false; ///< set when a folder stood there, removed or not
        QString error; ///< the system's reason, for Status::Failed
    };
    /// What a listing told of a single file.
    struct ListedFile {
        quint64 number = 0; ///< EntryId::number; 0 where it was not told
        bool isLink = false; ///< a link to a file
    };

    FileRemover();
    ~FileRemover();

    /// Holds what follows to the folders in @p listed, which outlives this object.
    void setListed(const ListedFolders *listed);

    /// Removes the entry at the absolute @p path. A folder is emptied first; that ends early, as a
    /// failure, once @p stopRequested is set. What could not be removed inside a folder stays,
    /// everything else is removed.
    [[nodiscard]] Outcome remove(const QString &path,
                                 const std::atomic_bool *stopRequested = nullptr);

    /// Removes the file or link at the absolute @p path; a real folder that stands there stays and
    /// is a failure. With @p listed it must still be the file that was listed.
    [[nodiscard]] Outcome removeFile(const QString &path,
                                     const std::optional<ListedFile> &listed = {});

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace platform
