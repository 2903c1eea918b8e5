#pragma once

#include <QString>

#include <array>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// What the robot has done last, for telling how it came to a failure.
///
/// The first failure ends the program: a check's, a warning of the toolkit, a crash, or an action
/// that is not over after a while. A thread of its own watches for the last. Everything else is
/// called on the GUI thread, but for messages, which come from anywhere.
class ActionLog final
{
    Q_DISABLE_COPY_MOVE(ActionLog)
public:
    static ActionLog &instance();

    /// Starts to listen to messages and crashes and to watch the clock. @p patience is how many
    /// seconds an action may take.
    void open(quint64 seed, const QString &page, int patience);
    /// Has every action printed as it is done.
    void setTracing(bool on) { m_isTracing = on; }
    /// Called before the program is ended by a failure.
    void setCleanUp(const std::function<void()> &cleanUp) { m_cleanUp = cleanUp; }
    void close();

    /// Begins the line of an action, and tells the watch that the program is alive.
    void begin(int action);
    void describe(const QString &text);
    /// Called when the line is complete.
    void printLine() const;

    [[noreturn]] void fail(const QString &message);

private:
    ActionLog() = default;
    ~ActionLog() = default;

    static void onMessage(QtMsgType type, const QMessageLogContext &context,
                          const QString &message);
    static void onCrash(int signal);
    void watch();
    void print(const char *message) const;

    static constexpr int keptLines = 30;
    static constexpr int maxLineLength = 400;

    quint64 m_seed = 0;
    std::array<char, 32> m_page{};
    int m_patience = 0;
    bool m_isTracing = false;
    int m_action = 0;
    // Plain text, so that a crash or another thread can print it.
    std::array<std::array<char, maxLineLength>, keptLines> m_lines{};
    std::function<void()> m_cleanUp;
    std::atomic<quint64> m_startedActions = 0;
    std::mutex m_mutex;
    std::condition_variable m_closing;
    bool m_isClosed = false;
    std::thread m_watch;
};

/// Fails when @p holds is not true; @p message makes the text for that case.
template<class Message>
void expect(bool isTrue, Message message)
{
    if (!isTrue)
        ActionLog::instance().fail(message());
}
