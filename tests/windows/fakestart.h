#pragma once

#include <QString>

/// Prevents the start of programs while it exists, and records what would have been started. Only
/// one may exist at a time. It replaces the system's function in the whole test program.
class FakeStart final
{
    Q_DISABLE_COPY_MOVE(FakeStart)
public:
    FakeStart();
    ~FakeStart();

    // The arguments of the last start.
    [[nodiscard]] QString program() const;
    [[nodiscard]] QString command() const;
};
