#pragma once

#include <QString>

#include <atomic>
#include <memory>

namespace platform {

/// Removes listed files and folders, one at a time and never through a link.
///
/// Every engine deletes through this class and nothing else does. On Linux an entry is removed
/// relative to its folder, which is opened link-free from the top down; entries of one folder that
/// follow each other share the open folder, so that the care costs nothing. On Windows the entry is
/// opened without being followed, its final path is compared with the one asked for, and it is
/// removed through that handle. Whatever stands at the path now is taken as it is: a link goes as a
/// link, a real folder with its contents, but never with what is mounted below it.
///
/// Lives on one thread. Keep one object for a run and drop it at the end: it holds a folder open.
class FileRemover final
{
    Q_DISABLE_COPY_MOVE(FileRemover)
public:
    enum class Status {
        Removed,
        NotFound, ///< nothing stands at the path
        Failed,
    };
    struct Outcome {
        Status status = Status::Failed;
        bool wasFolder = false; ///< set when a folder stood there, removed or not
        QString error; ///< the system's reason, for failures
    };

    FileRemover();
    ~FileRemover();

    /// Removes the entry at the absolute @p path. A folder is emptied first; that ends early, as a
    /// failure, once
    /// @p stopRequested is set. What could not be removed inside a folder stays, everything else
    /// goes.
    [[nodiscard]] Outcome remove(const QString &path,
                                 const std::atomic_bool *stopRequested = nullptr);

    /// Removes the file or link at the absolute @p path; a real folder that stands there stays and
    /// is a failure.
    [[nodiscard]] Outcome removeFile(const QString &path);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace platform
