#pragma once

#include <QString>

/// Keeps programs from being started while it lives, and tells which it would have been. One at a
/// time; the linker has the whole test program call this instead of the system.
class FakeStart final
{
    Q_DISABLE_COPY_MOVE(FakeStart)
public:
    FakeStart();
    ~FakeStart();

    // As the system was given them last.
    [[nodiscard]] QString program() const;
    [[nodiscard]] QString command() const;
};
