#include "windowsfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <windows.h>

#include <tlhelp32.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds
constexpr int fileCount = 8000;

/// Closes a handle at its end.
class Handle final
{
    Q_DISABLE_COPY_MOVE(Handle)
public:
    explicit Handle(HANDLE handle)
        : m_handle(handle)
    {
        if (!handle || handle == INVALID_HANDLE_VALUE)
            qFatal("no handle: %lu", ::GetLastError());
    }
    ~Handle() { ::CloseHandle(m_handle); }
    operator HANDLE() const { return m_handle; } // NOLINT(google-explicit-constructor)

private:
    const HANDLE m_handle;
};

/// Sends a console event to a process as the system does: on a new thread in it. Returns whether
/// the thread ends within @p limit milliseconds.
bool send(const QProcess &process, DWORD event, DWORD limit = 0)
{
    const HMODULE base = ::GetModuleHandleW(L"kernelbase.dll");
    const auto routine = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void *>(::GetProcAddress(base, "CtrlRoutine")));
    if (!routine)
        qFatal("the system sends console events in another way");
    const Handle target(
        ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, static_cast<DWORD>(process.processId())));
    const Handle thread(::CreateRemoteThread(
        target, nullptr, 0, routine,
        reinterpret_cast<void *>(static_cast<quintptr>(event)), // NOLINT(performance-no-int-to-ptr)
        0, nullptr));
    return ::WaitForSingleObject(thread, limit) == WAIT_OBJECT_0;
}

/// Stops all threads that a process has now.
void stopThreads(const QProcess &process)
{
    const Handle snapshot(::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = ::Thread32First(snapshot, &entry); more;
         more = ::Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID != static_cast<DWORD>(process.processId()))
            continue;
        const Handle thread(::OpenThread(THREAD_SUSPEND_RESUME, FALSE, entry.th32ThreadID));
        ::SuspendThread(thread);
    }
}

} // namespace

/// The companion answers the keys of its console and the closing of it.
class TestWindowsInterrupt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(QDir().mkpath(m_folder));
        windowsfiles::makeManyFiles(m_folder, fileCount);
    }

    void cleanup() { windowsfiles::removeManyFiles(m_folder); }

    void anEventCancelsAClean_data()
    {
        QTest::addColumn<quint32>("event");
        QTest::addColumn<int>("status");
        QTest::newRow("Ctrl+C") << quint32(CTRL_C_EVENT) << 130;
        QTest::newRow("Ctrl+Break") << quint32(CTRL_BREAK_EVENT) << 130;
        QTest::newRow("the console closes") << quint32(CTRL_CLOSE_EVENT) << 143;
        QTest::newRow("the user logs off") << quint32(CTRL_LOGOFF_EVENT) << 143;
        QTest::newRow("the system shuts down") << quint32(CTRL_SHUTDOWN_EVENT) << 143;
    }

    void anEventCancelsAClean()
    {
        QFETCH(quint32, event);
        QFETCH(int, status);
        QProcess process;
        startClean(process);
        send(process, event);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), status);
        const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QCOMPARE(json["cancelled"_L1], QJsonValue(true));
        QCOMPARE(json["failedCount"_L1].toInt(-1), 0);
        const qsizetype gone = fileCount - countFiles();
        QVERIFY(gone > 0);
        QVERIFY(gone < fileCount);
        // The temporary folder may hold files of others.
        QVERIFY(json["cleanedCount"_L1].toInt() >= gone);
    }

    // The first one waits for the removal in hand, which here never ends by itself.
    void aSecondKeyEndsAtOnce()
    {
        QProcess process;
        startClean(process);
        stopThreads(process);
        // A stopped thread may hold a lock of the system that each new thread needs.
        while (!send(process, CTRL_C_EVENT, 5000)) {
            process.kill();
            QVERIFY(process.waitForFinished(patience));
            cleanup();
            init();
            startClean(process);
            stopThreads(process);
        }
        QVERIFY(!process.waitForFinished(500));
        send(process, CTRL_C_EVENT);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitCode(), 130);
        QCOMPARE(process.readAllStandardOutput(), QByteArray());
        // Not an exact number: the end of the process closes the file in hand, which removes it.
        QVERIFY(countFiles() > 0);
    }

private:
    void startClean(QProcess &process) const
    {
        process.start(
            QString::fromLocal8Bit(CLI_PROGRAM),
            {u"clean"_s, u"junk"_s, u"--yes"_s, u"--json"_s, u"--category"_s, u"temp_files"_s});
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(countFiles() < fileCount, patience);
    }

    qsizetype countFiles() const { return QDir(m_folder).entryList(QDir::Files).size(); }

    const QString m_folder = QDir::tempPath() + "/Sweepwise interrupted"_L1;
};

QTEST_GUILESS_MAIN(TestWindowsInterrupt)
#include "tst_windowsinterrupt.moc"
