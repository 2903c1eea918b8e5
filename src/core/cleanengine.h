#pragma once

#include "readfailures.h"
#include "runsignals.h"
#include "runwatch.h"
#include "scanresult.h"
#include "worker.h"

#include <QList>
#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

/// One thing that a clean could not remove.
struct CleanFailure {
    QString path;
    QString reason; ///< for people; may contain unchanged text from outside
};

/// How far a clean is: the arguments of CleanEngine::cleanProgress(). All 0 before the first item.
struct CleanProgress {
    int current = 0;
    int total = 0;
    qint64 cleanedSize = 0; ///< bytes

    friend bool operator==(const CleanProgress &, const CleanProgress &) = default;
};

/// The base of the engines that scan and clean: the last result, one worker thread per run, the
/// state and the signals.
///
/// Lives on the GUI thread. doScan() and doClean() run on the worker. There is never more than one
/// worker. Which thread uses which member:
///  - state, stop flag: both threads, atomic;
///  - clean progress: both threads, with its lock;
///  - result: the worker while a scan runs, otherwise the GUI thread;
///  - selection: the worker of a clean alone, which makes it from the marks at the start;
///  - failures, cleaned size and count: the worker while a clean runs, otherwise the GUI thread;
///  - read failures: the worker while a run is busy, otherwise the GUI thread;
///  - worker, run signals: the GUI thread.
///
/// The worker emits progress and the end of a clean. A receiver that must not hear of an earlier
/// run is connected through an object of makeRunReceiver().
///
/// Pages bind their widgets to the records inside result(). A page takes the records through the
/// non-const accessor once, after scanFinished(). It lets go of them when the state becomes
/// Scanning. Between the two, nothing may reallocate the lists. A copy of the result is only read.
class CleanEngine : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CleanEngine)
public:
    enum class State {
        Idle = 0,
        Scanning = 1,
        Cleaning = 2,
        Finished = 3,
        Cancelled = 4,
        Error = 5
    };
    Q_ENUM(State)

    explicit CleanEngine(QObject *parent = nullptr);
    /// Stops and joins the worker. The worker calls virtual functions, so each concrete engine does
    /// this in its own destructor first.
    ~CleanEngine() override;

    [[nodiscard]] State state() const { return m_state.load(); }
    /// What the last scan found. While a scan runs, the result belongs to the worker.
    [[nodiscard]] const ScanResult &result() const { return m_result; }
    [[nodiscard]] ScanResult &result() { return m_result; }
    /// What the last clean could not remove. While a clean runs, the list belongs to the worker.
    [[nodiscard]] const QList<CleanFailure> &failures() const { return m_failures; }
    /// What the last clean removed: bytes and items. Same rule.
    [[nodiscard]] qint64 cleanedSize() const { return m_cleanedSize; }
    [[nodiscard]] int cleanedCount() const { return m_cleanedCount; }
    /// What the last run could not read. A scan that is done may have missed something there. Same
    /// rule.
    [[nodiscard]] const platform::ReadFailures &incomplete() const { return m_readFailures; }
    /// Grows while a scan works, also within one step of scanProgress(). Tells that work goes on
    /// and means nothing else. Any thread.
    [[nodiscard]] virtual qint64 activity() const { return m_activity; }
    /// What the last clean has reached. A clean of a million items emits as many signals, which
    /// would fill the event loop, so a page asks from time to time. Any thread.
    [[nodiscard]] CleanProgress latestProgress() const;
    /// Makes an object to connect the engine's signals to. Queued signals of a run are dropped
    /// there when the next run begins or the engine is deleted. GUI thread.
    [[nodiscard]] std::unique_ptr<QObject> makeRunReceiver() const
    {
        return m_runSignals.makeReceiver();
    }

    /// Reads the engine's rule file. The base class has none and does nothing.
    virtual void loadRules(const QString &path);

public Q_SLOTS:
    /// Starts a scan. Stops a run that is still busy first and waits for its end, without a time
    /// limit.
    virtual void startScan();
    /// Starts to remove what is checked now. Later changes of check marks do not reach the worker.
    virtual void startClean();
    /// Asks the worker to stop and sets the state Cancelled at once, without waiting.
    virtual void cancel();

public:
    /// Stops the worker, if there is one, and waits for its end.
    void stopAndWait();
    /// Waits for the end of the run, but not longer than until @p deadline. Returns whether no run
    /// is busy any more. Then the end of the run has been reported: it needs no event loop.
    bool waitForEnd(QDeadlineTimer deadline);

Q_SIGNALS:
    void stateChanged(CleanEngine::State state);
    void scanProgress(int current, int total, QString currentPath);
    void scanFinished(ScanResult result);
    void cleanProgress(int current, int total, qint64 cleanedSize);
    void cleanFinished(qint64 totalCleaned, int itemsCleaned);
    void errorOccurred(QString error);

protected:
    /// Fills the result's categories. Runs on the worker.
    virtual void doScan() = 0;
    /// Removes what selection() holds, normally with cleanSelection(). Then calls reportClean(),
    /// also after a cancel. Runs on the worker.
    virtual void doClean() = 0;

    void setState(State state);
    /// Ends a clean in the state @p end. Does nothing when cancel() has already changed the state.
    void endClean(State end);
    [[nodiscard]] bool isStopRequested() const { return m_stopRequested.load(); }
    [[nodiscard]] const std::atomic_bool &stopFlag() const { return m_stopRequested; }
    /// What the long readings of a scan get: they end with stopFlag() and move activity().
    [[nodiscard]] platform::RunWatch watch() { return {&m_stopRequested, &m_activity}; }
    /// The checked items as they were when the clean was started.
    [[nodiscard]] const ScanResult &selection() const { return m_selection; }

    /// The result of removing one item.
    struct Removal {
        enum Result { Cleaned, Failed, NotCounted };
        Result result = Cleaned;
        qint64 freed = 0; ///< bytes; set for Cleaned
        CleanFailure failure; ///< set for Failed
    };
    /// What a clean has done so far.
    struct CleanTotals {
        qint64 freed = 0; ///< bytes
        int cleaned = 0;
        int failed = 0;
        bool isStopped = false; ///< a stop may have kept something from being removed
    };
    using RemoveItem = std::function<Removal(const CleanItem &)>;
    using EnterCategory = std::function<void(const CleanCategory &)>;

    /// Calls @p remove for each item of selection(), after cleanProgress() for that item. Calls
    /// @p enter for each category before its items. Keeps the failures. Returns before the next
    /// item when a stop is requested.
    [[nodiscard]] CleanTotals cleanSelection(const RemoveItem &remove,
                                             const EnterCategory &enter = {});
    /// Sets the state in which the clean ends and emits cleanFinished(). Each engine writes its own
    /// log line about the end, before or after this call.
    void reportClean(const CleanTotals &totals);
    void addFailure(const CleanFailure &failure) { m_failures.append(failure); }
    /// The subclass adds what it cannot read. At the end of the run the log gets a line for each
    /// reason.
    [[nodiscard]] platform::ReadFailures &readFailures() { return m_readFailures; }

private:
    /// Runs @p work and then @p report on the worker. Without a thread the run ends as failed.
    void startWorker(const std::function<void()> &work, const std::function<void()> &report = {});
    void completeScan(const RunSignals::Run &run);
    void setProgress(const CleanProgress &progress);

    std::atomic<State> m_state = State::Idle;
    ScanResult m_result;
    std::atomic_bool m_stopRequested = false;
    std::atomic<qint64> m_activity = 0;
    mutable std::mutex m_progressMutex; ///< guards m_progress
    CleanProgress m_progress;
    ScanResult m_selection;
    QList<CleanFailure> m_failures;
    qint64 m_cleanedSize = 0;
    int m_cleanedCount = 0;
    platform::ReadFailures m_readFailures;
    RunSignals m_runSignals{this};
    Worker m_worker;
};
