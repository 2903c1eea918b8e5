#pragma once

#include <QObject>

#include <memory>

namespace platform {

/// Turns the system's request to end the program into a signal of the event loop, so that the
/// program can stop its workers first. Lives on the GUI thread. Only one object may exist.
///
/// Linux: SIGTERM, SIGINT and SIGHUP. A signal that was ignored when the object was made stays
/// ignored. After a SIGTERM or SIGINT both have their default action again: a user who does not
/// want to wait sends a second one, which ends the program at once. A SIGHUP never counts as one of
/// the two, because shells and session managers send it right before or after another signal.
///
/// Windows: nothing. A program with a window learns of the session's end from the toolkit.
class EndRequest final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EndRequest)
public:
    explicit EndRequest(QObject *parent = nullptr);
    /// Restores what the signals did before.
    ~EndRequest() override;

Q_SIGNALS:
    /// Emitted once, at the first request.
    void requested();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace platform
