#pragma once

#include <QAbstractEventDispatcher>

/// The event dispatcher of a thread that never runs an event loop. The toolkit's own ones end the
/// program when the system has no free file descriptor for them. This one needs nothing. Posted
/// events are still delivered by QCoreApplication::sendPostedEvents(). Timers and notifiers do not
/// work.
class IdleDispatcher final : public QAbstractEventDispatcher
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IdleDispatcher)
public:
    using QAbstractEventDispatcher::QAbstractEventDispatcher;

    bool processEvents(QEventLoop::ProcessEventsFlags) override { return false; }
    void registerSocketNotifier(QSocketNotifier *) override { }
    void unregisterSocketNotifier(QSocketNotifier *) override { }
    void registerTimer(int, qint64, Qt::TimerType, QObject *) override { }
    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject *) override { return false; }
    QList<TimerInfo> registeredTimers(QObject *) const override { return {}; }
    int remainingTime(int) override { return -1; }
    void wakeUp() override { }
    void interrupt() override { }
};
