#pragma once

/// While it exists, the system makes no thread for the toolkit. A test program that links
/// threadfault.cpp replaces the system's function by it.
class ThreadFault final
{
public:
    ThreadFault();
    ~ThreadFault();
    ThreadFault(const ThreadFault &) = delete;
    ThreadFault &operator=(const ThreadFault &) = delete;
};
