#include "actionlog.h"

#include "text.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// Messages of the offscreen platform.
bool isHarmless(const QString &message)
{
    static const QStringList harmless{
        u"QObject::connect: No such signal QPlatformNativeInterface::systemTrayWindowChanged(QScreen*)"_s,
        u"This plugin does not support propagateSizeHints()"_s,
        u"This plugin does not support raise()"_s,
        u"This plugin does not support grabbing the keyboard"_s,
    };
    return harmless.contains(message);
}

} // namespace

ActionLog &ActionLog::instance()
{
    // Never destroyed: the toolkit may still send messages while the program ends.
    static auto *const log = new ActionLog;
    return *log;
}

void ActionLog::open(quint64 seed, const QString &page, int patience)
{
    m_seed = seed;
    m_patience = patience;
    const QByteArray name = page.toUtf8();
    std::snprintf(m_page.data(), m_page.size(), "%s", name.constData());
    qInstallMessageHandler(&ActionLog::onMessage);
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGILL})
        std::signal(signal, &ActionLog::onCrash);
    m_watch = std::thread([this] { watch(); });
}

void ActionLog::close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isClosed = true;
    }
    m_closing.notify_all();
    m_watch.join();
    qInstallMessageHandler(nullptr);
}

void ActionLog::begin(int action)
{
    m_action = action;
    m_startedActions.fetch_add(1, std::memory_order_relaxed);
    describe(u"is about to be chosen"_s);
}

void ActionLog::describe(const QString &text)
{
    auto &line = m_lines.at(static_cast<std::size_t>(m_action % keptLines));
    const QByteArray utf8 = singleLine(text).toUtf8();
    std::snprintf(line.data(), line.size(), "%7d  %s", m_action, utf8.constData());
}

void ActionLog::printLine() const
{
    if (m_isTracing)
        std::printf("%s\n", m_lines.at(static_cast<std::size_t>(m_action % keptLines)).data());
}

void ActionLog::print(const char *message) const
{
    std::fprintf(stderr, "The last actions:\n");
    for (int i = 1; i <= keptLines; ++i) {
        const auto &line = m_lines.at(static_cast<std::size_t>((m_action + i) % keptLines));
        if (line.front() != '\0')
            std::fprintf(stderr, "%s\n", line.data());
    }
    std::fprintf(stderr, "FAILED: seed %llu, page %s, action %d: %s\n",
                 static_cast<unsigned long long>(m_seed), m_page.data(), m_action, message);
    std::fflush(stderr);
}

void ActionLog::fail(const QString &message)
{
    print(singleLine(message).toUtf8().constData());
    if (m_cleanUp)
        m_cleanUp();
    std::_Exit(1);
}

void ActionLog::onMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isHarmless(message))
        return;
    instance().fail(u"a message: "_s + message);
}

void ActionLog::onCrash(int signal)
{
    std::signal(signal, SIG_DFL);
    instance().print("the program crashed");
    std::raise(signal);
}

void ActionLog::watch()
{
    quint64 lastStarted = m_startedActions;
    auto lastChange = std::chrono::steady_clock::now();
    std::unique_lock lock(m_mutex);
    while (!m_closing.wait_for(lock, std::chrono::seconds(1), [this] { return m_isClosed; })) {
        const auto now = std::chrono::steady_clock::now();
        if (const quint64 started = m_startedActions; started != lastStarted) {
            lastStarted = started;
            lastChange = now;
        } else if (now - lastChange > std::chrono::seconds(m_patience)) {
            print("the action does not end");
            std::_Exit(1);
        }
    }
}
