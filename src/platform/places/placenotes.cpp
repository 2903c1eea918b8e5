#include "placenotes_p.h"

#include <utility>

namespace platform::placenotes {

namespace {

struct Notes {
    ReadFailures failures;
    qint64 number = 0; ///< of all notes, also of those that were taken or are noted twice
};

Notes &notes()
{
    static thread_local Notes ofThisThread;
    return ofThisThread;
}

} // namespace

void add(const QString &where, const QString &reason)
{
    notes().failures.add(where, reason);
    ++notes().number;
}

ReadFailures take()
{
    return std::exchange(notes().failures, {});
}

Watch::Watch()
    : m_before(notes().number)
{
}

bool Watch::sawFailure() const
{
    return notes().number != m_before;
}

} // namespace platform::placenotes
