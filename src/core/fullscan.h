#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <array>
#include <memory>

class CleanEngine;

/// One scan by the junk, browser and registry engines, which run at the same time. The main window
/// owns it. GUI thread.
///
/// It stays connected to the engines of the last start. So it also reports a scan that the page of
/// one engine starts later: the other two engines count as 100 percent, and the totals are updated.
/// When an engine is cancelled or fails, the scan stays open until a later scan of that engine
/// ends.
class FullScan final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FullScan)
public:
    /// Junk, browser, registry. A null engine counts as done.
    using Engines = std::array<CleanEngine *, 3>;

    explicit FullScan(QObject *parent = nullptr);

    /// Starts all of @p engines, which it does not own. A busy engine is stopped first. Late
    /// signals of its earlier run are dropped.
    void start(const Engines &engines);

Q_SIGNALS:
    /// The mean of the three percentages, rounded down, and what the engine is looking at.
    void progressed(int percent, QString currentPath);
    /// An engine goes on, perhaps within one long step of its progress. Emitted at most 20 times a
    /// second.
    void worked();
    /// Every engine has finished; sizes are in bytes. May be emitted twice: while a page shows one
    /// engine's result, the other engines may report.
    void finished(qint64 junkSize, qint64 browserSize, int registryCount);

private:
    void onProgress(std::size_t index, int current, int total, const QString &path);
    void onFinished(std::size_t index);
    [[nodiscard]] qint64 activity() const; ///< of all engines
    void lookForActivity();

    std::array<QPointer<CleanEngine>, 3> m_engines;
    std::array<int, 3> m_percents{};
    QTimer m_activityTimer; ///< runs while one of the engines scans
    qint64 m_activity = 0; ///< when it was last looked at
    std::array<std::unique_ptr<QObject>, 3> m_receivers; ///< one for the signals of each engine
};
