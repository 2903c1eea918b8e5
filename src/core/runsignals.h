#pragma once

#include <QObject>

#include <memory>
#include <utility>

/// Keeps what a worker has sent in one run from arriving in a later one.
///
/// Belongs to the object that has the worker, and lives on its thread. That object opens each run
/// here, after the worker of the run before has been joined and before the next one starts.
/// - What the worker posts through the Run is dropped once that run is no longer the current one.
/// - Signals that the worker emits itself reach a receiver on the owner's thread through the event
///   loop. Who connects them to an object of makeReceiver() gets those of the current run only:
///   what is still queued there is removed when the run ends or the next one opens. Signals that
///   the owner's thread emits arrive there at once, as anywhere.
class RunSignals final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RunSignals)
public:
    /// One run, as its worker holds it.
    class Run final
    {
    public:
        /// On the owner's thread.
        [[nodiscard]] bool isCurrent() const { return m_signals->m_current == m_number; }

        /// Has @p call made on the owner's thread, unless the run is over by then. From any thread.
        template<class Call>
        void post(Call call) const
        {
            const auto callIfCurrent = [run = *this, call = std::move(call)] {
                if (run.isCurrent())
                    call();
            };
            QMetaObject::invokeMethod(m_signals, callIfCurrent, Qt::QueuedConnection);
        }

    private:
        friend class RunSignals;
        Run(RunSignals *runSignals, quint64 number)
            : m_signals(runSignals)
            , m_number(number)
        {
        }

        RunSignals *m_signals;
        quint64 m_number;
    };

    explicit RunSignals(QObject *owner);
    /// Nothing that is still queued arrives any more.
    ~RunSignals() override;

    /// Ends the current run and opens the next.
    Run open();
    /// Ends the current run, if there is one.
    void end();

    /// An object to connect the owner's signals to, which must be used on the owner's thread. The
    /// connections end with it. It may outlive the owner.
    [[nodiscard]] std::unique_ptr<QObject> makeReceiver() const;

Q_SIGNALS:
    void ended();

private:
    quint64 m_current = 0; ///< counts opened and ended runs, so that an ended one is never current
};
