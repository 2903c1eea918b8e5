#pragma once

#include <QObject>
#include <QString>

#include <array>
#include <memory>

class CleanEngine;

/// One scan over the junk, the browser and the registry engine together, which run at the same
/// time. GUI thread.
///
/// It stays attached to the engines of the last start: a scan that one of their pages starts later
/// is reported as well, with the other two at 100 percent, and brings the totals up to date. An
/// engine that is cancelled or fails leaves the scan open until a later scan of it ends.
class FullScan final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FullScan)
public:
    /// Junk, browser, registry; null for an engine that there is not, which counts as done.
    using Engines = std::array<CleanEngine *, 3>;

    using QObject::QObject;

    /// Starts all of @p engines, which are not owned. What an engine is busy with is stopped; what
    /// an earlier run still has to report is dropped.
    void start(const Engines &engines);

Q_SIGNALS:
    /// The mean of the three percentages, rounded down, and what is being looked at.
    void progressed(int percent, QString currentPath);
    /// Every engine has finished; sizes in bytes. May come twice: a page that shows one engine's
    /// result lets the others report in the middle of it.
    void finished(qint64 junkSize, qint64 browserSize, int registryCount);

private:
    void onProgress(std::size_t index, int current, int total, const QString &path);
    void onFinished(std::size_t index);

    Engines m_engines{};
    std::array<int, 3> m_percents{};
    std::array<std::unique_ptr<QObject>, 3> m_receivers; ///< of the engines' signals
};
