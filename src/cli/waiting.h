#pragma once

#include "interrupt.h"

#include <QDeadlineTimer>

namespace cli {

/// Waits for the end of an engine's run, which starts after a call of catchRequests(). A request to
/// end the program cancels the run; then returns true. Needs no event loop, so that no lost message
/// can make the program wait for ever.
template<class Engine>
[[nodiscard]] bool waitForEnd(Engine &engine)
{
    constexpr int interval = 50; // milliseconds between two looks at the requests
    bool isCancelled = false;
    while (!engine.waitForEnd(QDeadlineTimer(interval))) {
        if (!isCancelled && platform::interrupt::isRequested()) {
            engine.cancel();
            isCancelled = true;
        }
    }
    return isCancelled;
}

} // namespace cli
