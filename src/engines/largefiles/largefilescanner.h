#pragma once

#include "largefileinfo.h"
#include "listedfolders.h"
#include "runsignals.h"

#include <QBitArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <atomic>
#include <memory>

class QThread;

namespace platform {
class FileRemover;
struct FollowedLink;
} // namespace platform

/// Finds every file of a minimum size on whole drives, and deletes those of them that are chosen.
///
/// Lives on the GUI thread, owned by its page. A walk or a deletion runs on the worker thread, the
/// walk also on helpers that the worker starts and joins. Who touches what:
///  - drives, minimum size, walker count: the GUI thread; the worker has copies of its own;
///  - results, total size, followed links: all threads, under the mutex;
///  - listed folders: all threads, guarded by themselves;
///  - running, deleting, cancelled, count of files: atomic;
///  - worker, run signals: the GUI thread.
///
/// scanProgress(), fileFound() and deleteProgress() are emitted by the worker and its helpers,
/// fileFound() under the mutex: whoever listens does so by a queued connection, and to an object of
/// makeRunReceiver() if it must not hear of a run that is over.
class LargeFileScanner final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileScanner)
public:
    explicit LargeFileScanner(QObject *parent = nullptr);
    /// Cancels and joins the worker.
    ~LargeFileScanner() override;

    /// The root paths that the next scan walks, one after the other.
    void setDrives(const QStringList &drives);
    /// The size in bytes from which on the next scan takes a file; 100 MiB until it is set.
    void setMinSize(qint64 bytes);
    /// How many threads walk one drive; with one, files arrive in the order of the file system.
    void setWalkerCount(int count);

    /// Starts a scan; does nothing while one runs or files are deleted. Waits for a cancelled one
    /// that is still busy.
    void startScan();
    /// Stops the scan or the deletion and waits for its end, but no longer than 3 seconds. No
    /// scanFinished() follows.
    void cancel();

    /// An object to connect the scanner's signals to: what the worker emitted is dropped there once
    /// the scan is cancelled, the next run begins or the scanner is gone. GUI thread.
    [[nodiscard]] std::unique_ptr<QObject> makeRunReceiver() const
    {
        return m_runSignals.makeReceiver();
    }

    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// What the last scan has found so far and nobody has deleted: in the order of arrival while it
    /// runs and after it was cancelled, the largest first once it has finished.
    [[nodiscard]] QList<LargeFileInfo> results() const;
    /// Together in bytes.
    [[nodiscard]] qint64 totalSize() const;
    /// How many files the last scan has looked at.
    [[nodiscard]] int filesScanned() const { return m_filesScanned; }

    /// Removes a file for good and drops it from the results. A path below a link that the last
    /// scan followed is taken to the folder where the link led then; no other link on the way is
    /// passed. Of what the scan has found, another file or folder that has taken the place stays.
    /// False when nothing was removed: the log tells the path.
    [[nodiscard]] bool deleteFile(const QString &path);

    /// Removes files as deleteFile() does, one after the other, on the worker; deleteFinished()
    /// follows in any case. Does nothing while a scan or another deletion runs.
    void startDelete(const QList<LargeFileInfo> &files);
    /// Lets a deletion end after the file that is in hand. Does not wait.
    void cancelDelete();
    [[nodiscard]] bool isDeleting() const { return m_isDeleting; }

Q_SIGNALS:
    void scanStarted();
    /// @p percent is always 0: how many files there are is not known before the end.
    void scanProgress(int percent, QString currentPath, int foundCount, qint64 totalSize);
    void scanFinished(int totalFound, qint64 totalSize);
    void fileFound(LargeFileInfo fileInfo);
    /// @p done of @p total files have been tried, of which those that are gone had @p size bytes;
    /// a few times a second.
    void deleteProgress(int done, int total, qint64 size);
    /// @p deleted has a bit for each file that was given, in the same order: whether it was
    /// removed. The first @p tried of them were tried, which is all unless it was cancelled.
    void deleteFinished(QBitArray deleted, int tried);

private Q_SLOTS:
    void doScan();

private:
    class FileCollector;

    void startWorker(std::unique_ptr<QThread> worker);
    void scanDrive(const QString &drive);
    void sortResults();
    void onWorkerFinished();
    void doDelete(const RunSignals::Run &run, const QList<LargeFileInfo> &files);
    /// Whether @p file was removed; the log tells either way.
    bool removeListedFile(platform::FileRemover &remover, const LargeFileInfo &file);
    /// The record of what is listed at @p path; else one that knows no more than that.
    [[nodiscard]] LargeFileInfo recordOf(const QString &path) const;
    void removeResults(const QSet<QString> &paths);
    /// Takes a file over; on the worker or a helper.
    void addResult(const LargeFileInfo &info);
    void reportProgress(const QString &folder);
    [[nodiscard]] QString resolveFollowedLinks(const QString &path) const;

    std::unique_ptr<QThread> m_worker;
    QStringList m_drives;
    qint64 m_minSize = 104'857'600;
    int m_walkerCount;
    QStringList m_scannedDrives; ///< the worker's copies
    qint64 m_scannedMinSize = 0;
    int m_scanningWalkers = 1;
    QList<LargeFileInfo> m_results;
    QSet<QString> m_foundPaths; ///< of a scan of several drives
    QList<platform::FollowedLink> m_followedLinks;
    platform::ListedFolders m_listed; ///< those with a result, by the last scan
    std::atomic_bool m_isRunning = false;
    std::atomic_bool m_isDeleting = false;
    std::atomic_bool m_isCancelled = false; ///< the scan or the deletion
    mutable QMutex m_mutex;
    std::atomic_int m_filesScanned = 0;
    qint64 m_totalSize = 0;
    RunSignals m_runSignals{this};
};
