#pragma once

#include "readfailures.h"

#include <QString>
#include <QtGlobal>

// What the folders of the system and of the prefix are found from is asked for in many places that
// have no use for a failure. So a failure is noted here. Each thread has its own notes: engines run
// at the same time, and each reports what it could not read itself.
namespace platform::placenotes {

/// Notes for this thread that @p where could not be read, for a reason that people understand.
void add(const QString &where, const QString &reason);

/// The notes of this thread since the last call.
[[nodiscard]] ReadFailures take();

/// Tells whether something was noted on this thread since the object was made. Lives on the stack.
class Watch final
{
    Q_DISABLE_COPY_MOVE(Watch)
public:
    Watch();
    [[nodiscard]] bool sawFailure() const;

private:
    const qint64 m_before;
};

} // namespace platform::placenotes
