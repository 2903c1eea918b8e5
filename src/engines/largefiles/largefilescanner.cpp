#include "largefilescanner.h"

#include "entry.h"
#include "fileremove.h"
#include "logger.h"
#include "scanresult.h"
#include "sidebyside.h"
#include "treewalk.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int filesPerProgress = 100;
constexpr int cancelTimeout = 3000; // milliseconds
// With several walkers, each adds this many files at a time to the common count.
constexpr int filesPerBatch = 25;
constexpr qint64 deleteProgressInterval = 50; // milliseconds

/// Whether a folder path or a file name is excluded. Both can be checked separately, since none of
/// the texts contains a slash. Paths have forward slashes, so the two texts with a backslash match
/// no folder. Files below "Windows/WinSxS" are listed on purpose.
bool isExcluded(QStringView part)
{
    static constexpr std::array excludedParts{"$Recycle.Bin"_L1, "System Volume Information"_L1,
                                              "Windows\\WinSxS"_L1, "Windows\\Installer"_L1};
    return std::any_of(excludedParts.begin(), excludedParts.end(),
                       [part](QLatin1StringView text) { return part.contains(text); });
}

} // namespace

/// Counts all files that one walker meets and keeps the large ones. One object for each walker,
/// which alone uses it during a walk.
class LargeFileScanner::FileCollector final : public platform::TreeVisitor
{
    Q_DISABLE_COPY_MOVE(FileCollector)
public:
    explicit FileCollector(LargeFileScanner &scanner)
        : m_scanner(scanner)
        , m_minSize(scanner.m_scannedMinSize)
        , m_batchSize(scanner.m_scanningWalkers > 1 ? filesPerBatch : 1)
    {
    }

    [[nodiscard]] Wanted enterFolder(const platform::WalkedFolder &folder) override
    {
        flushCount();
        m_folder = folder.path();
        m_isExcluded = isExcluded(m_folder);
        return m_isExcluded ? Wanted::Names : Wanted::SizesAndTimes;
    }

    void visitFile(const platform::VisitedFile &file) override
    {
        if (!m_isExcluded && file.size >= m_minSize)
            addFile(file);
        if (++m_uncounted == m_batchSize && addToCount() && !m_isExcluded
            && !isExcluded(file.name.toString()))
            m_scanner.reportProgress(m_folder);
    }

    /// Adds the files that are not counted yet to the common count. Reports progress if it is due.
    void flushCount()
    {
        if (m_uncounted > 0 && addToCount() && !m_isExcluded)
            m_scanner.reportProgress(m_folder);
    }

private:
    void addFile(const platform::VisitedFile &file)
    {
        const QString name = file.name.toString();
        if (isExcluded(name))
            return;
        m_scanner.m_listed.add(m_folder, file.folder->id());
        m_scanner.addResult({platform::joinedPath(m_folder, name), name, m_folder, file.size,
                             QDateTime::fromMSecsSinceEpoch(file.modified), largeFileType(name),
                             file.number, file.isLink});
    }

    /// Adds the uncounted files to the common count. Returns whether progress is due.
    bool addToCount()
    {
        const int before = m_scanner.m_filesScanned.fetch_add(m_uncounted);
        const bool isDue = before / filesPerProgress != (before + m_uncounted) / filesPerProgress;
        m_uncounted = 0;
        return isDue;
    }

    LargeFileScanner &m_scanner;
    const qint64 m_minSize;
    const int m_batchSize;
    int m_uncounted = 0;
    QString m_folder;
    bool m_isExcluded = false;
};

LargeFileScanner::LargeFileScanner(QObject *parent)
    : QObject(parent)
    , m_walkerCount(platform::usefulWalkers())
{
    qRegisterMetaType<LargeFileInfo>();
}

LargeFileScanner::~LargeFileScanner()
{
    stopAndWait();
}

void LargeFileScanner::setDrives(const QStringList &drives)
{
    m_drives = drives;
}

void LargeFileScanner::setMinSize(qint64 bytes)
{
    m_minSize = bytes;
}

void LargeFileScanner::setWalkerCount(int count)
{
    m_walkerCount = std::max(count, 1);
}

void LargeFileScanner::startScan()
{
    if (m_isRunning || m_isDeleting)
        return;
    m_worker.wait();
    const RunSignals::Run run = m_runSignals.open();
    m_isRunning = true;
    m_isCancelled = false;
    m_scannedDrives = m_drives;
    m_scannedMinSize = m_minSize;
    m_scanningWalkers = m_walkerCount;
    const auto discarded = std::make_shared<QList<LargeFileInfo>>();
    {
        const QMutexLocker locker(&m_mutex);
        discarded->swap(m_results);
        m_followedLinks.clear();
        m_totalSize = 0;
    }
    m_filesScanned = 0;
    m_foundPaths.clear();
    m_readFailures.clear();
    Q_EMIT scanStarted();

    // Freeing a million records takes noticeable time, so the worker does it.
    const auto scan = [this, discarded] {
        discarded->clear();
        m_listed.clear();
        doScan();
    };
    if (!startWorker(scan, [this, run] { run.post([this] { onScanEnded(); }); }))
        m_isRunning = false;
}

bool LargeFileScanner::startWorker(const std::function<void()> &work,
                                   const std::function<void()> &report)
{
    if (m_worker.start(u"LargeFileScannerWorker"_s, work, report))
        return true;
    const QString error = Worker::startError();
    Logger::instance().error("The search for large files was not started: "_L1 + error);
    Q_EMIT errorOccurred(error);
    return false;
}

bool LargeFileScanner::waitForEnd(QDeadlineTimer deadline)
{
    if (!m_worker.wait(deadline))
        return false;
    QCoreApplication::sendPostedEvents();
    return true;
}

void LargeFileScanner::cancel()
{
    m_isCancelled = true;
    m_worker.wait(QDeadlineTimer(cancelTimeout));
    // A cancelled deletion still emits deleteFinished(), so its run is not ended here.
    if (m_isRunning.exchange(false))
        m_runSignals.end();
}

void LargeFileScanner::stopAndWait()
{
    cancel();
    m_worker.wait();
}

void LargeFileScanner::onScanEnded()
{
    m_isRunning = false;
    const auto found = static_cast<int>(results().size());
    Q_EMIT scanFinished(found, totalSize());
}

QList<LargeFileInfo> LargeFileScanner::results() const
{
    const QMutexLocker locker(&m_mutex);
    return m_results;
}

qint64 LargeFileScanner::totalSize() const
{
    const QMutexLocker locker(&m_mutex);
    return m_totalSize;
}

void LargeFileScanner::doScan()
{
    Logger::instance().info(
        u"Starting large file scan, min size: %1 MB"_s.arg(m_scannedMinSize / 1'048'576));
    for (const QString &drive : std::as_const(m_scannedDrives)) {
        if (m_isCancelled)
            break;
        Logger::instance().info(u"Scanning drive: %1"_s.arg(drive));
        scanDrive(drive);
    }
    if (!m_isCancelled)
        sortResults();
    Logger::instance().info(u"Scan completed. Found %1 files, total size: %2"_s.arg(
        QString::number(results().size()), formatSize(totalSize())));
    Logger::instance().warnings(m_readFailures.lines());
}

void LargeFileScanner::scanDrive(const QString &drive)
{
    if (m_isCancelled || drive.isEmpty())
        return;
    std::vector<std::unique_ptr<FileCollector>> collectors;
    QList<platform::TreeVisitor *> walkers;
    for (int i = 0; i < m_scanningWalkers; ++i)
        walkers.append(collectors.emplace_back(std::make_unique<FileCollector>(*this)).get());

    const platform::WalkOptions options{{}, true, {&m_isCancelled}, platform::Reach::Everywhere};
    const platform::WalkReport report =
        platform::walkTree(QDir::cleanPath(QFileInfo(drive).absoluteFilePath()), options, walkers);
    for (const auto &collector : collectors)
        collector->flushCount();
    m_readFailures.add(report.failures);
    const QMutexLocker locker(&m_mutex);
    m_followedLinks += report.followed;
}

// Sorts the results by size, largest first. Files of one size keep their order of arrival.
void LargeFileScanner::sortResults()
{
    const QList<LargeFileInfo> found = results();
    std::vector<qsizetype> order(static_cast<std::size_t>(found.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&found](qsizetype left, qsizetype right) {
        return found.at(left).size > found.at(right).size;
    });
    QList<LargeFileInfo> sorted;
    sorted.reserve(found.size());
    for (const qsizetype index : order)
        sorted.append(found.at(index));
    const QMutexLocker locker(&m_mutex);
    m_results.swap(sorted);
}

void LargeFileScanner::addResult(const LargeFileInfo &info)
{
    const QMutexLocker locker(&m_mutex);
    // A drive may be mounted below another scanned drive. Its files are then found twice.
    if (m_scannedDrives.size() > 1) {
        if (m_foundPaths.contains(info.path))
            return;
        m_foundPaths.insert(info.path);
    }
    m_results.append(info);
    m_totalSize += info.size;
    Q_EMIT fileFound(info);
}

void LargeFileScanner::reportProgress(const QString &folder)
{
    int found = 0;
    qint64 size = 0;
    {
        const QMutexLocker locker(&m_mutex);
        found = static_cast<int>(m_results.size());
        size = m_totalSize;
    }
    Q_EMIT scanProgress(0, folder, found, size);
}

QString LargeFileScanner::resolveFollowedLinks(const QString &path) const
{
    const QMutexLocker locker(&m_mutex);
    QString best = path;
    qsizetype longest = 0;
    for (const platform::FollowedLink &link : m_followedLinks) {
        const QString folder = platform::joinedPath(link.path, QString());
        if (folder.size() > longest && path.startsWith(folder)) {
            longest = folder.size();
            best = platform::joinedPath(link.target, path.mid(longest));
        }
    }
    return best;
}

bool LargeFileScanner::deleteFile(const QString &path)
{
    platform::FileRemover remover;
    remover.setListed(&m_listed);
    if (!removeListedFile(remover, recordOf(path)))
        return false;
    removeResults({path});
    return true;
}

bool LargeFileScanner::removeListedFile(platform::FileRemover &remover, const LargeFileInfo &file)
{
    const QString path = resolveFollowedLinks(file.path);
    if (path != file.path)
        m_listed.add(platform::folderOf(path), m_listed.idOf(platform::folderOf(file.path)));
    std::optional<platform::FileRemover::ListedFile> listed;
    if (!file.name.isEmpty())
        listed = {file.number, file.isLink};
    const bool isRemoved =
        remover.removeFile(path, listed).status == platform::FileRemover::Status::Removed;
    if (isRemoved)
        Logger::instance().info(u"Deleted file: %1"_s.arg(file.path));
    else
        Logger::instance().error(u"Failed to delete file: %1"_s.arg(file.path));
    return isRemoved;
}

LargeFileInfo LargeFileScanner::recordOf(const QString &path) const
{
    const QMutexLocker locker(&m_mutex);
    const auto found =
        std::find_if(m_results.begin(), m_results.end(),
                     [&path](const LargeFileInfo &info) { return info.path == path; });
    if (found != m_results.end())
        return *found;
    LargeFileInfo unknown;
    unknown.path = path;
    return unknown;
}

void LargeFileScanner::removeResults(const QSet<QString> &paths)
{
    const QMutexLocker locker(&m_mutex);
    m_results.removeIf([&](const LargeFileInfo &info) {
        const bool isRemoved = paths.contains(info.path);
        if (isRemoved)
            m_totalSize -= info.size;
        return isRemoved;
    });
}

void LargeFileScanner::startDelete(const QList<LargeFileInfo> &files)
{
    if (m_isRunning || m_isDeleting)
        return;
    m_worker.wait();
    const RunSignals::Run run = m_runSignals.open();
    m_isDeleting = true;
    m_isCancelled = false;
    /// What the worker reports.
    struct Outcome {
        QBitArray deleted;
        int tried = 0;
    };
    const auto outcome = std::make_shared<Outcome>(Outcome{QBitArray(files.size()), 0});
    const auto remove = [this, files, outcome] {
        outcome->tried = doDelete(files, outcome->deleted);
    };
    const auto report = [this, run, outcome] {
        run.post([this, outcome] { onDeleteEnded(outcome->deleted, outcome->tried); });
    };
    if (!startWorker(remove, report))
        onDeleteEnded(outcome->deleted, 0);
}

void LargeFileScanner::cancelDelete()
{
    if (m_isDeleting)
        m_isCancelled = true;
}

int LargeFileScanner::doDelete(const QList<LargeFileInfo> &files, QBitArray &deleted)
{
    platform::FileRemover remover;
    remover.setListed(&m_listed);
    QSet<QString> removedPaths;
    qint64 size = 0;
    int tried = 0;
    QElapsedTimer sinceProgress;
    for (; tried < files.size() && !m_isCancelled; ++tried) {
        if (!sinceProgress.isValid() || sinceProgress.elapsed() >= deleteProgressInterval) {
            Q_EMIT deleteProgress(tried, static_cast<int>(files.size()), size);
            sinceProgress.start();
        }
        const LargeFileInfo &file = files.at(tried);
        if (!removeListedFile(remover, file))
            continue;
        deleted.setBit(tried);
        removedPaths.insert(file.path);
        size += file.size;
    }
    removeResults(removedPaths);
    return tried;
}

void LargeFileScanner::onDeleteEnded(const QBitArray &deleted, int tried)
{
    m_isDeleting = false;
    Q_EMIT deleteFinished(deleted, tried);
}
