#include "endrequest.h"

#include <QSocketNotifier>
#include <QtGlobal>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

/// A signal that asks the program to end.
struct EndSignal {
    int number;
    bool isFromUser; ///< whether a second one of these means that the user does not want to wait
    std::atomic_bool isHandled = false;
    struct sigaction before = {};
};

// The handler runs on any thread at any moment. It uses only these objects, which exist as long as
// the process.
std::array<EndSignal, 3> endSignals{EndSignal{SIGTERM, true}, EndSignal{SIGINT, true},
                                    EndSignal{SIGHUP, false}};
std::atomic_int writeEnd = -1;
static_assert(std::atomic_int::is_always_lock_free && std::atomic_bool::is_always_lock_free);

extern "C" void onEndSignal(int number)
{
    const int savedError = errno;
    for (const EndSignal &signal : endSignals) {
        if (number != SIGHUP && signal.isFromUser && signal.isHandled)
            std::signal(signal.number, SIG_DFL);
    }
    // A full pipe already has a request in it.
    const char byte = 0;
    [[maybe_unused]] const ssize_t count = ::write(writeEnd, &byte, 1);
    errno = savedError;
}

} // namespace

class EndRequest::Private
{
public:
    std::array<int, 2> pipe{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
};

EndRequest::EndRequest(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    Q_ASSERT(writeEnd == -1);
    if (::pipe2(d->pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("Signals end the program at once: %s", qPrintable(qt_error_string(errno)));
        return;
    }
    writeEnd = d->pipe[1];
    d->notifier = std::make_unique<QSocketNotifier>(d->pipe[0], QSocketNotifier::Read);
    connect(d->notifier.get(), &QSocketNotifier::activated, this, [this] {
        d->notifier->setEnabled(false);
        Q_EMIT requested();
    });

    struct sigaction action = {};
    action.sa_handler = onEndSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    // No two of them interrupt each other, so the second one meets what the first one has set.
    for (const EndSignal &signal : endSignals)
        sigaddset(&action.sa_mask, signal.number);
    for (EndSignal &signal : endSignals) {
        if (::sigaction(signal.number, nullptr, &signal.before) != 0
            || signal.before.sa_handler == SIG_IGN)
            continue;
        signal.isHandled = true;
        ::sigaction(signal.number, &action, nullptr);
    }
}

EndRequest::~EndRequest()
{
    for (EndSignal &signal : endSignals) {
        if (signal.isHandled.exchange(false))
            ::sigaction(signal.number, &signal.before, nullptr);
    }
    writeEnd = -1;
    d->notifier.reset();
    for (const int end : d->pipe) {
        if (end != -1)
            ::close(end);
    }
}

} // namespace platform
