#pragma once

#include "largefileinfo.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QStringList>

#include <atomic>
#include <memory>

class QThread;

namespace platform {
struct FollowedLink;
}

/// Finds every file of a minimum size on whole drives, and deletes single ones of them.
///
/// Lives on the GUI thread, owned by its page. The walk runs on the worker thread and on helpers
/// that the worker starts and joins. Who touches what:
///  - drives, minimum size, walker count: the GUI thread; the worker has copies of its own;
///  - results, total size, followed links: all threads, under the mutex;
///  - running, cancelled, count of files: atomic;
///  - worker, run number: the GUI thread.
///
/// scanProgress() and fileFound() are emitted by the worker and its helpers, the latter under the
/// mutex: whoever listens does so by a queued connection.
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

    /// Starts a scan; does nothing while one runs. Waits for a cancelled one that is still busy.
    void startScan();
    /// Stops the scan and waits for its end, but no longer than 3 seconds. No scanFinished()
    /// follows.
    void cancel();

    [[nodiscard]] bool isRunning() const { return m_running; }
    /// What the last scan has found so far and nobody has deleted, in the order of arrival.
    [[nodiscard]] QList<LargeFileInfo> results() const;
    /// Together in bytes.
    [[nodiscard]] qint64 totalSize() const;
    /// How many files the last scan has looked at.
    [[nodiscard]] int filesScanned() const { return m_filesScanned; }

    /// Removes a file for good and drops it from the results. A path below a link that the last
    /// scan followed is taken to the folder where the link led then; no other link on the way is
    /// passed. False when nothing was removed: the log tells the path.
    [[nodiscard]] bool deleteFile(const QString &path);

Q_SIGNALS:
    void scanStarted();
    /// @p percent is always 0: how many files there are is not known before the end.
    void scanProgress(int percent, QString currentPath, int foundCount, qint64 totalSize);
    void scanFinished(int totalFound, qint64 totalSize);
    void fileFound(LargeFileInfo fileInfo);

private Q_SLOTS:
    void doScan();

private:
    class Sweep;

    void scanDrive(const QString &drive);
    void onWorkerFinished(quint64 run);
    /// Takes a file over; on the worker or a helper.
    void addResult(const LargeFileInfo &info);
    void reportProgress(const QString &folder);
    [[nodiscard]] QString withoutFollowedLinks(const QString &path) const;

    std::unique_ptr<QThread> m_worker;
    QStringList m_drives;
    qint64 m_minSize = 104'857'600;
    int m_walkerCount;
    QStringList m_scannedDrives; ///< the worker's copies
    qint64 m_scannedMinSize = 0;
    int m_scanningWalkers = 1;
    QList<LargeFileInfo> m_results;
    QSet<QString> m_foundPaths; ///< of a scan of several drives
    QList<platform::FollowedLink> m_followed;
    std::atomic_bool m_running = false;
    std::atomic_bool m_cancelled = false;
    mutable QMutex m_mutex;
    std::atomic_int m_filesScanned = 0;
    qint64 m_totalSize = 0;
    quint64 m_run = 0;
};
