#pragma once

#include "runsignals.h"
#include "scanresult.h"

#include <QList>
#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

/// One thing that a clean could not remove.
struct CleanFailure {
    QString path;
    QString reason; ///< for people; outside text in it is as it came
};

/// The frame of the rule-driven engines: the last result, one worker thread per run, the state and
/// the signals.
///
/// Lives on the GUI thread; doScan() and doClean() run on the worker, of which there is never more
/// than one. Who touches what:
///  - state, stop flag: both threads, atomic;
///  - result: the worker while a scan runs, otherwise the GUI thread;
///  - selection: set on the GUI thread before a clean's worker starts, read and dropped by the
///  worker;
///  - failures: the worker while a clean runs, otherwise the GUI thread;
///  - worker, run signals: the GUI thread;
///  - worker done: atomic; set by the worker when it is done with the rest, so that whoever has
///  seen it sees all that the run wrote.
///
/// Progress and the end of a clean are emitted by the worker. Who must not hear of a run that is
/// over connects to an object of makeRunReceiver().
///
/// Pages bind their widgets to the records inside result(). They take the records through the
/// non-const accessor once, after scanFinished(), and let go of them when the state becomes
/// Scanning; between the two nothing may reallocate the lists. Whoever keeps a copy reads it only.
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
    /// Stops and joins the worker. Each concrete engine does so in its own destructor first, since
    /// the worker runs its virtual functions.
    ~CleanEngine() override;

    [[nodiscard]] State state() const { return m_state.load(); }
    /// What the last scan found. While a scan runs it belongs to the worker.
    [[nodiscard]] const ScanResult &result() const { return m_result; }
    [[nodiscard]] ScanResult &result() { return m_result; }
    /// What the last clean could not remove. While a clean runs it belongs to the worker.
    [[nodiscard]] const QList<CleanFailure> &failures() const { return m_failures; }
    /// An object to connect the engine's signals to: what a worker emitted is dropped there once
    /// the next run begins or the engine is gone. GUI thread.
    [[nodiscard]] std::unique_ptr<QObject> makeRunReceiver() const
    {
        return m_runSignals.makeReceiver();
    }

    /// Reads the engine's rule file; the base has none.
    virtual void loadRules(const QString &path);

public Q_SLOTS:
    /// Starts a scan. A run that is still busy is stopped and waited for, however long that takes.
    virtual void startScan();
    /// Starts removing what is checked at this moment; later ticks do not reach the worker.
    virtual void startClean();
    /// Asks the worker to stop and becomes Cancelled at once, without waiting.
    virtual void cancel();

public:
    /// Stops the worker, if there is one, and waits for its end.
    void stopAndWait();

Q_SIGNALS:
    void stateChanged(CleanEngine::State state);
    void scanProgress(int current, int total, QString currentPath);
    void scanFinished(ScanResult result);
    void cleanProgress(int current, int total, qint64 cleanedSize);
    void cleanFinished(qint64 totalCleaned, int itemsCleaned);
    void errorOccurred(QString error);

protected:
    /// Fills the result's categories; on the worker.
    virtual void doScan() = 0;
    /// Removes selection(), as a rule with cleanSelection(), and then tells of it with
    /// reportClean(), cancelled or not; on the worker.
    virtual void doClean() = 0;

    void setState(State state);
    /// Ends a clean as @p end, unless cancel() was quicker and the state is no longer Cleaning.
    void endClean(State end);
    [[nodiscard]] bool isStopRequested() const { return m_stopRequested.load(); }
    [[nodiscard]] const std::atomic_bool &stopFlag() const { return m_stopRequested; }
    /// The checked items as they were when the clean was started.
    [[nodiscard]] const ScanResult &selection() const { return m_selection; }

    /// What became of one item of a clean.
    struct Removal {
        enum Result { Cleaned, Failed, NotCounted };
        Result result = Cleaned;
        qint64 freed = 0; ///< bytes; where it was cleaned
        CleanFailure failure; ///< where it failed
    };
    /// What a clean has done so far.
    struct CleanTotals {
        qint64 freed = 0; ///< bytes
        int cleaned = 0;
        int failed = 0;
        bool isStopped = false; ///< before its end
    };
    using RemoveItem = std::function<Removal(const CleanItem &)>;
    using EnterCategory = std::function<void(const CleanCategory &)>;

    /// Hands each item of selection() to @p remove, after telling of its turn with cleanProgress(),
    /// and each category to @p enter before its items. Keeps the failures. A stop that is requested
    /// ends it before the next item.
    [[nodiscard]] CleanTotals cleanSelection(const RemoveItem &remove,
                                             const EnterCategory &enter = {});
    /// Sets the state in which the clean ends and emits cleanFinished(). What the log says of the
    /// end is each engine's own, and so is whether it says it before or after.
    void reportClean(const CleanTotals &totals);
    void addFailure(const CleanFailure &failure) { m_failures.append(failure); }

private:
    void startWorker(std::unique_ptr<QThread> worker);
    void completeScan(const RunSignals::Run &run);

    std::atomic<State> m_state = State::Idle;
    ScanResult m_result;
    std::atomic_bool m_stopRequested = false;
    std::unique_ptr<QThread> m_worker;
    ScanResult m_selection;
    QList<CleanFailure> m_failures;
    std::atomic_bool m_isWorkerDone = false;
    RunSignals m_runSignals{this};
};
