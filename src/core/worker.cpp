#include "worker.h"

#include "idledispatcher.h"

#include <QCoreApplication>
#include <QThread>

Worker::Worker() = default;

Worker::~Worker()
{
    wait();
}

bool Worker::start(const QString &name, const std::function<void()> &work,
                   const std::function<void()> &report)
{
    wait();
    m_stage = Stage::Working;
    m_thread.reset(QThread::create([this, work, report] {
        work();
        m_stage = Stage::Reporting;
        if (report)
            report();
        m_stage = Stage::Idle;
    }));
    m_thread->setObjectName(name);
    m_thread->setEventDispatcher(new IdleDispatcher); // the thread owns it
    m_thread->start();
    // A thread that was not made is not running. One that has ended already is not busy.
    if (m_thread->isRunning() || !isBusy())
        return true;
    m_thread.reset();
    m_stage = Stage::Idle;
    return false;
}

QString Worker::startError()
{
    return QCoreApplication::translate(
        "Worker", "The system cannot start another thread. End some programs and try again.");
}

bool Worker::wait(QDeadlineTimer deadline)
{
    if (m_thread && !m_thread->wait(deadline))
        return false;
    m_thread.reset();
    return m_stage == Stage::Idle;
}
