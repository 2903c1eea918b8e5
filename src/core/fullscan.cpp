#include "fullscan.h"

#include "cleanengine.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

FullScan::FullScan(QObject *parent)
    : QObject(parent)
    , m_activityTimer(this)
{
    m_activityTimer.setInterval(50);
    connect(&m_activityTimer, &QTimer::timeout, this, &FullScan::lookForActivity);
}

void FullScan::start(const Engines &engines)
{
    m_receivers = {};
    std::copy(engines.begin(), engines.end(), m_engines.begin());
    m_percents = {};
    for (std::size_t index = 0; index < engines.size(); ++index) {
        CleanEngine *engine = engines.at(index);
        if (!engine) {
            m_percents.at(index) = 100;
            continue;
        }
        m_receivers.at(index) = engine->makeRunReceiver();
        const QObject *receiver = m_receivers.at(index).get();
        connect(engine, &CleanEngine::scanProgress, receiver,
                std::bind_front(&FullScan::onProgress, this, index));
        connect(engine, &CleanEngine::scanFinished, receiver, [this, index] { onFinished(index); });
        engine->startScan();
    }
    m_activity = activity();
    m_activityTimer.start();
}

void FullScan::onProgress(std::size_t index, int current, int total, const QString &path)
{
    m_percents.at(index) = total >= 1 ? static_cast<int>(qint64{current} * 100 / total) : 0;
    Q_EMIT progressed(std::accumulate(m_percents.begin(), m_percents.end(), 0) / 3, path);
}

qint64 FullScan::activity() const
{
    return std::accumulate(m_engines.begin(), m_engines.end(), qint64{0},
                           [](qint64 sum, const CleanEngine *engine) {
                               return sum + (engine ? engine->activity() : 0);
                           });
}

void FullScan::lookForActivity()
{
    const bool isScanning =
        std::any_of(m_engines.begin(), m_engines.end(), [](const CleanEngine *engine) {
            return engine && engine->state() == CleanEngine::State::Scanning;
        });
    if (!isScanning) {
        m_activityTimer.stop();
        return;
    }
    const qint64 latest = activity();
    if (std::exchange(m_activity, latest) != latest)
        Q_EMIT worked();
}

void FullScan::onFinished(std::size_t index)
{
    m_percents.at(index) = 100;
    const bool isComplete =
        std::all_of(m_engines.begin(), m_engines.end(), [](CleanEngine *engine) {
            return !engine || engine->state() == CleanEngine::State::Finished;
        });
    if (!isComplete)
        return;
    m_activityTimer.stop(); // what a page scans from now on is not part of this scan
    const auto &[junk, browser, registry] = m_engines;
    Q_EMIT finished(junk ? std::as_const(*junk).result().totalSize() : 0,
                    browser ? std::as_const(*browser).result().totalSize() : 0,
                    registry ? std::as_const(*registry).result().totalCount() : 0);
}
