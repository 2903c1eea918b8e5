#include "runsignals.h"

#include <QCoreApplication>
#include <QEvent>

RunSignals::RunSignals(QObject *owner)
    : QObject(owner)
{
}

RunSignals::~RunSignals()
{
    end();
}

RunSignals::Run RunSignals::open()
{
    end();
    return {this, m_current};
}

void RunSignals::end()
{
    ++m_current;
    Q_EMIT ended();
}

std::unique_ptr<QObject> RunSignals::makeReceiver() const
{
    auto receiver = std::make_unique<QObject>();
    // A connection that is cut does not take back what it has queued: only its removal does.
    connect(this, &RunSignals::ended, receiver.get(), [receiver = receiver.get()] {
        QCoreApplication::removePostedEvents(receiver, QEvent::MetaCall);
    });
    return receiver;
}
