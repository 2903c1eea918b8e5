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
    // Disconnecting does not remove signals that are already queued, so they are removed here.
    connect(this, &RunSignals::ended, receiver.get(), [receiver = receiver.get()] {
        QCoreApplication::removePostedEvents(receiver, QEvent::MetaCall);
    });
    return receiver;
}
