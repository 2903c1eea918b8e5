#pragma once

#include "largefileinfo.h"
#include "listedfolders.h"
#include "readfailures.h"
#include "runsignals.h"
#include "worker.h"

#include <QBitArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

namespace platform {
class FileRemover;
struct FollowedLink;
} // namespace platform

/// Finds every file of a minimum size on whole drives, and deletes the chosen ones.
///
/// Lives on the GUI thread; its page or the companion's command owns it. A walk or a deletion runs
/// on the worker thread. For a walk the worker starts and joins further threads, the helpers. Which
/// thread uses which member:
///  - drives, minimum size, walker count: the GUI thread; the worker has copies;
///  - results, total size, followed links: all threads, under the mutex;
///  - listed folders: all threads; the object guards itself;
///  - read failures: the worker while a scan runs, otherwise the GUI thread;
///  - running, deleting, cancelled, count of files: atomic;
///  - worker, run signals: the GUI thread.
///
/// The worker and its helpers emit scanProgress(), fileFound() and deleteProgress(). fileFound() is
/// emitted under the mutex, so receivers need a queued connection. A receiver that must not hear of
/// an earlier run is connected through an object of makeRunReceiver().
class LargeFileScanner final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileScanner)
public:
    explicit LargeFileScanner(QObject *parent = nullptr);
    /// Stops the worker and waits for its end.
    ~LargeFileScanner() override;

    /// The root paths that the next scan walks, one after the other.
    void setDrives(const QStringList &drives);
    /// The smallest size in bytes that the next scan finds. The default is 100 MiB.
    void setMinSize(qint64 bytes);
    /// The number of threads that walk one drive. With one thread the files arrive in the order of
    /// the file system.
    void setWalkerCount(int count);

    /// Starts a scan. Does nothing while a scan or a deletion runs. Waits for a cancelled run that
    /// is still busy. If the system cannot start a thread, scanStarted() and errorOccurred() follow
    /// at once, and nothing else.
    void startScan();
    /// Stops the scan or the deletion and waits for its end, but at most 3 seconds. scanFinished()
    /// does not follow.
    void cancel();
    /// Cancels, and waits for the end of the worker without a time limit.
    void stopAndWait();

    /// Makes an object to connect the scanner's signals to. Queued signals of the worker are
    /// dropped there when the scan is cancelled, the next run begins or the scanner is deleted. GUI
    /// thread.
    [[nodiscard]] std::unique_ptr<QObject> makeRunReceiver() const
    {
        return m_runSignals.makeReceiver();
    }

    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// The files that the last scan has found and nobody has deleted. They are in the order of
    /// arrival while the scan runs and after a cancel. After the end of the scan the largest is
    /// first.
    [[nodiscard]] QList<LargeFileInfo> results() const;
    /// The total size of results() in bytes.
    [[nodiscard]] qint64 totalSize() const;
    /// What the last scan could not read. While a scan runs, it belongs to the worker.
    [[nodiscard]] const platform::ReadFailures &incomplete() const { return m_readFailures; }
    /// Waits for the end of the scan or deletion, but not longer than until @p deadline. Returns
    /// whether none is busy any more. Then its end has been reported: it needs no event loop.
    bool waitForEnd(QDeadlineTimer deadline);
    /// The number of files that the last scan has looked at.
    [[nodiscard]] int filesScanned() const { return m_filesScanned; }

    /// Deletes a file permanently and drops it from the results. If @p path is below a link that
    /// the last scan followed, the link's target of that time is used. No other link on the way is
    /// followed. A different file or folder that has taken the place of a found file is not
    /// deleted. Returns false when nothing was deleted; the log has the path.
    [[nodiscard]] bool deleteFile(const QString &path);

    /// Deletes @p files like deleteFile(), one after the other, on the worker. deleteFinished()
    /// follows, also after a cancel. Does nothing while a scan or another deletion runs. If the
    /// system cannot start a thread, errorOccurred() and then deleteFinished() follow at once.
    void startDelete(const QList<LargeFileInfo> &files);
    /// Ends a deletion after the file that is being deleted. Does not wait.
    void cancelDelete();
    [[nodiscard]] bool isDeleting() const { return m_isDeleting; }

Q_SIGNALS:
    void scanStarted();
    /// @p percent is always 0, because the number of files is unknown before the end.
    void scanProgress(int percent, QString currentPath, int foundCount, qint64 totalSize);
    void scanFinished(int totalFound, qint64 totalSize);
    void fileFound(LargeFileInfo fileInfo);
    /// @p done of @p total files have been tried; those that were deleted had @p size bytes.
    /// Emitted a few times a second.
    void deleteProgress(int done, int total, qint64 size);
    /// @p deleted has one bit for each given file, in the same order: whether the file was deleted.
    /// The first @p tried files were tried. That is all of them unless the deletion was cancelled.
    void deleteFinished(QBitArray deleted, int tried);
    /// A run was not started, or ended early, for the reason @p error.
    void errorOccurred(QString error);

private Q_SLOTS:
    void doScan();

private:
    class FileCollector;

    /// Runs @p work and then @p report on the worker. Returns false, with errorOccurred(), if the
    /// system cannot start a thread.
    bool startWorker(const std::function<void()> &work, const std::function<void()> &report);
    void scanDrive(const QString &drive);
    void sortResults();
    void onScanEnded();
    /// Deletes @p files. @p deleted gets a bit for each of them. Returns how many were tried.
    int doDelete(const QList<LargeFileInfo> &files, QBitArray &deleted);
    void onDeleteEnded(const QBitArray &deleted, int tried);
    /// Deletes @p file and writes the result to the log. Returns whether it was deleted.
    bool removeListedFile(platform::FileRemover &remover, const LargeFileInfo &file);
    /// The result for @p path. Without one, a record that has only the path.
    [[nodiscard]] LargeFileInfo recordOf(const QString &path) const;
    void removeResults(const QSet<QString> &paths);
    /// Adds a file to the results. Runs on the worker or a helper.
    void addResult(const LargeFileInfo &info);
    void reportProgress(const QString &folder);
    [[nodiscard]] QString resolveFollowedLinks(const QString &path) const;

    QStringList m_drives;
    qint64 m_minSize = 104'857'600;
    int m_walkerCount;
    // The copies for the worker.
    QStringList m_scannedDrives;
    qint64 m_scannedMinSize = 0;
    int m_scanningWalkers = 1;
    QList<LargeFileInfo> m_results;
    QSet<QString> m_foundPaths; ///< only filled when several drives are scanned
    QList<platform::FollowedLink> m_followedLinks;
    platform::ListedFolders m_listed; ///< of the last scan: those that have a result
    std::atomic_bool m_isRunning = false;
    std::atomic_bool m_isDeleting = false;
    std::atomic_bool m_isCancelled = false; ///< of the scan or the deletion
    mutable QMutex m_mutex;
    std::atomic_int m_filesScanned = 0;
    qint64 m_totalSize = 0;
    platform::ReadFailures m_readFailures;
    RunSignals m_runSignals{this};
    Worker m_worker;
};
