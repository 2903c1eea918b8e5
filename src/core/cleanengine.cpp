#include "cleanengine.h"

#include "logger.h"

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

CleanEngine::CleanEngine(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<ScanResult>("ScanResult");
    qRegisterMetaType<CleanEngine::State>();
}

CleanEngine::~CleanEngine()
{
    stopAndWait();
}

void CleanEngine::loadRules(const QString &) { }

void CleanEngine::startScan()
{
    stopAndWait();
    const RunSignals::Run run = m_runSignals.open();
    m_stopRequested = false;
    // Freeing a million records takes noticeable time, so the worker does it. By then the pages
    // have let go of them, because of the new state.
    const auto discarded =
        std::make_shared<QList<CleanCategory>>(std::exchange(m_result.categories, {}));
    m_readFailures.clear();
    setState(State::Scanning);

    startWorker(
        [this, discarded] {
            discarded->clear();
            doScan();
            Logger::instance().warnings(m_readFailures.lines());
        },
        [this, run] {
            if (!isStopRequested())
                run.post([this, run] { completeScan(run); });
        });
}

void CleanEngine::startClean()
{
    stopAndWait();
    m_runSignals.open();
    m_stopRequested = false;
    const auto checked = std::make_shared<std::optional<CheckedRecords>>(m_result);
    setProgress({});
    m_failures.clear();
    m_cleanedSize = 0;
    m_cleanedCount = 0;
    m_readFailures.clear();
    setState(State::Cleaning);

    startWorker([this, checked] {
        m_selection = (*checked)->records(stopFlag());
        checked->reset();
        doClean();
        m_selection.categories.clear();
        Logger::instance().warnings(m_readFailures.lines());
    });
}

void CleanEngine::cancel()
{
    m_stopRequested = true;
    setState(State::Cancelled);
}

void CleanEngine::stopAndWait()
{
    m_stopRequested = true;
    m_worker.wait();
}

bool CleanEngine::waitForEnd(QDeadlineTimer deadline)
{
    if (!m_worker.wait(deadline))
        return false;
    // The end of a scan, and the signals of a clean, are in the queue by now.
    QCoreApplication::sendPostedEvents();
    return true;
}

void CleanEngine::setState(State state)
{
    if (m_state.exchange(state) != state)
        Q_EMIT stateChanged(state);
}

CleanProgress CleanEngine::latestProgress() const
{
    const std::lock_guard lock(m_progressMutex);
    return m_progress;
}

void CleanEngine::setProgress(const CleanProgress &progress)
{
    const std::lock_guard lock(m_progressMutex);
    m_progress = progress;
}

void CleanEngine::endClean(State end)
{
    State expected = State::Cleaning;
    if (m_state.compare_exchange_strong(expected, end))
        Q_EMIT stateChanged(end);
}

CleanEngine::CleanTotals CleanEngine::cleanSelection(const RemoveItem &remove,
                                                     const EnterCategory &enter)
{
    CleanTotals totals;
    totals.isStopped = isStopRequested(); // also if nothing was selected yet
    const int count = m_selection.checkedCount();
    int index = 0;
    for (const CleanCategory &category : std::as_const(m_selection.categories)) {
        if (enter)
            enter(category);
        for (const CleanItem &item : category.items) {
            totals.isStopped = isStopRequested();
            if (totals.isStopped)
                return totals;
            setProgress({++index, count, totals.freed});
            Q_EMIT cleanProgress(index, count, totals.freed);
            const Removal removal = remove(item);
            switch (removal.result) {
            case Removal::Cleaned:
                totals.freed += removal.freed;
                ++totals.cleaned;
                break;
            case Removal::Failed:
                ++totals.failed;
                addFailure(removal.failure);
                break;
            case Removal::NotCounted:
                break;
            }
        }
    }
    return totals;
}

void CleanEngine::reportClean(const CleanTotals &totals)
{
    m_cleanedSize = totals.freed;
    m_cleanedCount = totals.cleaned;
    endClean(totals.isStopped ? State::Cancelled : State::Finished);
    Q_EMIT cleanFinished(totals.freed, totals.cleaned);
}

void CleanEngine::startWorker(const std::function<void()> &work,
                              const std::function<void()> &report)
{
    const QString name = QString::fromLatin1(metaObject()->className()) + "Worker"_L1;
    if (m_worker.start(name, work, report))
        return;
    const QString error = Worker::startError();
    Logger::instance().error(u"%1 was not started: %2"_s.arg(name, error));
    setState(State::Error);
    Q_EMIT errorOccurred(error);
}

// The worker posts this call. cancel() may have been called since, so the state is checked. A
// receiver of stateChanged() may start the next run, so the run is checked too.
void CleanEngine::completeScan(const RunSignals::Run &run)
{
    Q_ASSERT(!m_worker.isBusy());
    if (state() != State::Scanning)
        return;
    setState(State::Finished);
    if (run.isCurrent())
        Q_EMIT scanFinished(m_result);
}
