#pragma once

#include <QString>

#include <array>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// The last actions of the robot, printed when a test run fails. One object for the program.
///
/// The first failure ends the program. A failure is a failed check, a warning of the toolkit, a
/// crash, or an action that takes too long. A thread of its own watches for the last kind. All
/// functions are called on the GUI thread. Only messages may come from any thread.
class ActionLog final
{
    Q_DISABLE_COPY_MOVE(ActionLog)
public:
    static ActionLog &instance();

    /// Starts to watch for messages, crashes and actions that take too long. @p patience is how
    /// many seconds an action may take.
    void open(quint64 seed, const QString &page, int patience);
    /// Makes printLine() print every action.
    void setTracing(bool on) { m_isTracing = on; }
    /// Sets the function that is called before a failure ends the program.
    void setCleanUp(const std::function<void()> &cleanUp) { m_cleanUp = cleanUp; }
    void close();

    /// Begins the line of an action. Also tells the watching thread that the program is alive.
    void begin(int action);
    void describe(const QString &text);
    /// Prints the line of the action when tracing is on. Call it when the line is complete.
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
    // Arrays of characters, so that a crash handler or another thread can print them.
    std::array<std::array<char, maxLineLength>, keptLines> m_lines{};
    std::function<void()> m_cleanUp;
    std::atomic<quint64> m_startedActions = 0;
    std::mutex m_mutex;
    std::condition_variable m_closing;
    bool m_isClosed = false;
    std::thread m_watch;
};

/// Ends the program with a failure when @p isTrue is false; @p message makes the failure's text.
template<class Message>
void expect(bool isTrue, Message message)
{
    if (!isTrue)
        ActionLog::instance().fail(message());
}
