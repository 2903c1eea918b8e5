#include "cleanengine.h"

#include <QThread>

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
    QList<CleanCategory> discarded = std::exchange(m_result.categories, {});
    setState(State::Scanning);

    startWorker(
        std::unique_ptr<QThread>(QThread::create([this, run, old = std::move(discarded)]() mutable {
            old.clear();
            doScan();
            const bool stopped = isStopRequested();
            m_isWorkerDone = true;
            if (!stopped)
                run.post([this, run] { completeScan(run); });
        })));
}

void CleanEngine::startClean()
{
    stopAndWait();
    m_runSignals.open();
    m_stopRequested = false;
    m_selection = m_result.checkedOnly();
    m_failures.clear();
    m_cleanedSize = 0;
    m_cleanedCount = 0;
    setState(State::Cleaning);

    startWorker(std::unique_ptr<QThread>(QThread::create([this] {
        doClean();
        m_selection.categories.clear();
        m_isWorkerDone = true;
    })));
}

void CleanEngine::cancel()
{
    m_stopRequested = true;
    setState(State::Cancelled);
}

void CleanEngine::stopAndWait()
{
    if (!m_worker)
        return;
    m_stopRequested = true;
    m_worker->wait();
    Q_ASSERT(m_isWorkerDone);
    m_worker.reset();
}

void CleanEngine::setState(State state)
{
    if (m_state.exchange(state) != state)
        Q_EMIT stateChanged(state);
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
    const int count = m_selection.checkedCount();
    int index = 0;
    for (const CleanCategory &category : std::as_const(m_selection.categories)) {
        if (enter)
            enter(category);
        for (const CleanItem &item : category.items) {
            totals.isStopped = isStopRequested();
            if (totals.isStopped)
                return totals;
            Q_EMIT cleanProgress(++index, count, totals.freed);
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

void CleanEngine::startWorker(std::unique_ptr<QThread> worker)
{
    m_worker = std::move(worker);
    m_isWorkerDone = false;
    m_worker->setObjectName(QString::fromLatin1(metaObject()->className()) + "Worker"_L1);
    m_worker->start();
}

// The worker posts this call. cancel() may have been called since, so the state is checked. A
// receiver of stateChanged() may start the next run, so the run is checked too.
void CleanEngine::completeScan(const RunSignals::Run &run)
{
    Q_ASSERT(m_isWorkerDone);
    if (state() != State::Scanning)
        return;
    setState(State::Finished);
    if (run.isCurrent())
        Q_EMIT scanFinished(m_result);
}
