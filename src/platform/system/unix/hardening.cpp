#include "hardening.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

// The first file that is opened would take the number of a standard stream that is closed, and
// messages and reports would be written into it. What is put there fails to be written, too.
void occupyStandardStreams()
{
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
        if (::fcntl(fd, F_GETFD) == -1)
            (void)::open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

} // namespace

void hardenProcess()
{
    occupyStandardStreams();
    // The loader searches only the system's folders already. A file that may grow no further ends
    // the process by default. As an error it is reported like a full disk.
    // Programs that are started from here do not inherit a handler.
    std::signal(SIGXFSZ, [](int) {});
}

} // namespace platform
