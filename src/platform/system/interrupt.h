#pragma once

#include <atomic>

/// Requests to end a program that has no window: SIGINT, SIGTERM and SIGHUP on Linux; Ctrl+C,
/// Ctrl+Break and the closing of the console or session on Windows.
namespace platform::interrupt {

/// From now on the first request is noted, so that the program can end in good order. A second one
/// ends the process at once, with its exit status; on Linux a SIGHUP never counts as one of the
/// two. A signal that is ignored stays ignored.
void catchRequests();
/// From now on a request ends the process as usual.
void releaseRequests();

/// Whether there was a request. May be read on any thread.
[[nodiscard]] const std::atomic_bool &isRequested();
/// The exit status for the first request: 128 and the number of the signal. 130 stands for Ctrl+C,
/// 143 for being ended. 0 without a request.
[[nodiscard]] int exitStatus();

} // namespace platform::interrupt
