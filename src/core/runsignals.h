#pragma once

#include <QObject>

#include <memory>
#include <utility>

/// Keeps signals and calls of one run from arriving during a later run.
///
/// The object that has the worker owns it. It lives on that object's thread. The owner opens each
/// run here: after it has joined the worker of the previous run, and before it starts the next
/// worker.
/// - A call that the worker posts through Run is dropped when that run is no longer the current
///   one.
/// - Signals that the worker emits reach a receiver on the owner's thread through the event loop.
///   An object of makeReceiver() receives those of the current run only. What is still queued for
///   it is removed when the run ends or the next one opens. Signals that the owner's thread emits
///   arrive there at once, as at any receiver.
class RunSignals final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RunSignals)
public:
    /// The handle of one run, which its worker holds.
    class Run final
    {
    public:
        /// Must be called on the owner's thread.
        [[nodiscard]] bool isCurrent() const { return m_signals->m_current == m_number; }

        /// Calls @p call on the owner's thread later, unless the run is over by then. May be called
        /// on any thread.
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
    /// Drops everything that is still queued.
    ~RunSignals() override;

    /// Ends the current run and opens the next.
    Run open();
    /// Ends the current run, if there is one.
    void end();

    /// Makes an object to connect the owner's signals to. It must be used on the owner's thread.
    /// Its connections end when it is deleted. It may outlive the owner.
    [[nodiscard]] std::unique_ptr<QObject> makeReceiver() const;

Q_SIGNALS:
    void ended();

private:
    /// Increases when a run opens or ends, so that an ended run is never the current one.
    quint64 m_current = 0;
};
