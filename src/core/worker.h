#pragma once

#include <QDeadlineTimer>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

/// The thread of an engine's runs. There is never more than one. The engine owns the object and
/// uses it on its own thread.
class Worker final
{
    Q_DISABLE_COPY_MOVE(Worker)
public:
    Worker();
    /// Waits for the end of the work.
    ~Worker();

    /// Calls @p work on a new thread, and then @p report on the same thread. Waits for earlier work
    /// first. Returns false if the system cannot make a thread; then nothing is called.
    ///
    /// When @p report is called, isBusy() is false already. So it is the place from which the
    /// engine's thread is told of the end.
    [[nodiscard]] bool start(const QString &name, const std::function<void()> &work,
                             const std::function<void()> &report = {});
    /// What to tell the user when start() returns false.
    [[nodiscard]] static QString startError();
    /// Waits until there is no work any more, but not longer than until @p deadline. Returns
    /// whether that is so. Everything that the work wrote is then visible.
    bool wait(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));
    /// Whether the work is going on. Once it is false, everything that the work wrote is visible.
    [[nodiscard]] bool isBusy() const { return m_stage == Stage::Working; }

private:
    enum class Stage {
        Idle,
        Working,
        Reporting,
    };

    std::unique_ptr<QThread> m_thread;
    std::atomic<Stage> m_stage = Stage::Idle;
};
