#include "appinfo.h"
#include "companion.h"
#include "registryfixture.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30'000; // milliseconds
constexpr int fileCount = 400;
// Three are quick. All that follow take a quarter of a second each.
const QString slowRemovals = u"unlinkat:-2::3:"_s;

} // namespace

/// The companion answers a request to end: it cancels, tells what was done and ends with the status
/// of the signal.
class TestInterrupt : public QObject
{
    Q_OBJECT
public:
    explicit TestInterrupt(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_temp = companion::fillTemporaryFolder(m_home);
        for (int i = 0; i < fileCount; ++i)
            companion::writeFile(m_temp, u"file%1"_s.arg(i), 10);
    }

    void aSignalCancelsAClean_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("status");
        QTest::newRow("SIGINT") << SIGINT << 130;
        QTest::newRow("SIGTERM") << SIGTERM << 143;
        QTest::newRow("SIGHUP") << SIGHUP << 129;
    }

    void aSignalCancelsAClean()
    {
        QFETCH(int, signal);
        QFETCH(int, status);
        const qsizetype before = fileNames().size();
        QProcess process;
        start(process, {u"clean"_s, u"junk"_s, u"--yes"_s, u"--json"_s}, slowRemovals);
        send(process, signal);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), status);
        const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QCOMPARE(json["cancelled"_L1], QJsonValue(true));
        QCOMPARE(json["failedCount"_L1].toInt(-1), 0);
        const qsizetype gone = before - fileNames().size();
        QVERIFY(gone > 0);
        QVERIFY(gone < before);
        QCOMPARE(json["cleanedCount"_L1].toInt(), gone);
    }

    void theTextSaysThatTheRunWasCancelled()
    {
        QProcess process;
        start(process, {u"clean"_s, u"junk"_s, u"--yes"_s}, slowRemovals);
        send(process, SIGINT);
        QVERIFY(process.waitForFinished(patience));
        const QByteArray output = process.readAllStandardOutput();
        QVERIFY2(output.contains("Cancelled before the end."), output.constData());
        QVERIFY(output.contains("Cleaned "));
    }

    void aSignalDuringTheScanCleansNothing_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::newRow("scan") << QStringList{u"scan"_s, u"junk"_s};
        QTest::newRow("clean") << QStringList{u"clean"_s, u"junk"_s, u"--yes"_s};
        QTest::newRow("large files") << QStringList{u"large-files"_s, m_home.path()};
    }

    void aSignalDuringTheScanCleansNothing()
    {
        QFETCH(QStringList, command);
        const QStringList before = fileNames();
        QProcess process;
        start(process, command + QStringList{u"--json"_s}, u"statx:-2:file:3:"_s);
        send(process, SIGTERM);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitCode(), 143);
        const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QCOMPARE(json["cancelled"_L1], QJsonValue(true));
        QCOMPARE(fileNames(), before);
    }

    // The first signal waits for the removal in hand, which here never ends by itself.
    void aSecondSignalEndsAtOnce()
    {
        const QStringList before = fileNames();
        QProcess process;
        start(process, {u"scan"_s, u"junk"_s}, u"statx:-1:file:0:"_s);
        send(process, SIGINT);
        QVERIFY(!process.waitForFinished(300));
        send(process, SIGINT);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitCode(), 130);
        QCOMPARE(fileNames(), before);
    }

    // Shells and the kernel send it right behind another one when a terminal is closed.
    void aHangUpIsNoSecondSignal_data()
    {
        QTest::addColumn<QList<int>>("signalNumbers");
        QTest::addColumn<int>("status");
        QTest::newRow("twice") << QList<int>{SIGHUP, SIGHUP} << 129;
        QTest::newRow("after SIGTERM") << QList<int>{SIGTERM, SIGHUP} << 143;
        QTest::newRow("before SIGTERM") << QList<int>{SIGHUP, SIGTERM} << 129;
    }

    void aHangUpIsNoSecondSignal()
    {
        QFETCH(QList<int>, signalNumbers);
        QFETCH(int, status);
        const qsizetype before = fileNames().size();
        QProcess process;
        start(process, {u"clean"_s, u"junk"_s, u"--yes"_s, u"--json"_s}, slowRemovals);
        for (const int number : signalNumbers) {
            send(process, number);
            QVERIFY(QTest::qWaitFor([&process] { return !hasPendingSignal(process); }, patience));
        }
        QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished(patience));
        QCOMPARE(process.exitCode(), status);
        const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        QCOMPARE(json["cleanedCount"_L1].toInt(), before - fileNames().size());
    }

    // The reader of the report takes its time, so the signal comes while it is written.
    void aHangUpDuringTheSummaryLosesNothing()
    {
        std::array<int, 2> pipe{-1, -1};
        QCOMPARE(::pipe2(pipe.data(), O_NONBLOCK | O_CLOEXEC), 0);
        const QByteArray block(4096, 'x');
        qsizetype filled = 0;
        for (ssize_t count = 0; count >= 0; filled += count) {
            count = ::write(pipe[1], block.constData(), static_cast<std::size_t>(block.size()));
            if (count < 0)
                break;
        }
        for (const int end : pipe)
            QCOMPARE(::fcntl(end, F_SETFL, 0), 0);
        QProcess process;
        process.setChildProcessModifier([&pipe] { ::dup2(pipe[1], STDOUT_FILENO); });
        start(process, {u"clean"_s, u"junk"_s, u"--yes"_s}, slowRemovals);
        ::close(pipe[1]);
        send(process, SIGTERM);
        QVERIFY(!process.waitForFinished(1500)); // it cannot be written yet
        send(process, SIGHUP);
        QVERIFY(!process.waitForFinished(300));
        QFile reader;
        QVERIFY(reader.open(pipe[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        const QByteArray output = reader.readAll().sliced(filled);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 143);
        QVERIFY2(output.contains("Cancelled before the end."), output.constData());
    }

    // Nothing is half done then, so nothing has to be ended in good order.
    void outsideARunASignalEndsAtOnce_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::newRow("list") << QStringList{u"startup"_s, u"list"_s};
        QTest::newRow("switch") << QStringList{u"startup"_s, u"disable"_s, u"Player"_s};
    }

    void outsideARunASignalEndsAtOnce()
    {
        QFETCH(QStringList, command);
        QProcess process;
        start(process, command, u"realpath:-1::0:"_s);
        send(process, SIGINT);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    }

    // A change that has begun is carried out as a whole.
    void aSignalDuringASwitchLeavesNothingBehind()
    {
        RegistryFixture fixture(m_home);
        companion::addProgram(fixture, m_home, u"Sweepwise Player"_s);
        fixture.write();
        const QString prefix = QFileInfo(fixture.file(u"HKEY_CURRENT_USER"_s)).path();
        const QStringList before = QDir(prefix).entryList();
        QProcess process;
        start(process, {u"startup"_s, u"enable"_s, u"Sweepwise Player"_s}, u"fsync:-2::0:1"_s);
        send(process, SIGTERM);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(QDir(prefix).entryList(), before);
    }

    // A script's background job is not meant by a Ctrl+C for the script.
    void anIgnoredInterruptStaysIgnored()
    {
        QProcess process;
        process.setChildProcessModifier([] { ::signal(SIGINT, SIG_IGN); });
        start(process, {u"scan"_s, u"junk"_s}, u"statx:0:file:0:"_s);
        send(process, SIGINT);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitCode(), 0);
    }

    // A program that is started with nohup goes on when its terminal closes.
    void anIgnoredHangUpStaysIgnored()
    {
        QProcess process;
        process.setChildProcessModifier([] { ::signal(SIGHUP, SIG_IGN); });
        start(process, {u"scan"_s, u"junk"_s}, u"statx:0:file:0:"_s);
        send(process, SIGHUP);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitCode(), 0);
    }

private:
    /// Starts the companion and waits until it makes a call that @p fault means.
    void start(QProcess &process, const QStringList &command, const QString &fault) const
    {
        const QString reached = m_home.path() + "/reached"_L1;
        QFile::remove(reached);
        process.setEnvironment(companion::environment(
            {"LD_PRELOAD="_L1 + QString::fromLocal8Bit(FAILING_CALLS), "FAILING_CALL="_L1 + fault,
             "FAILING_CALL_FILE="_L1 + reached}));
        process.start(QString::fromLocal8Bit(CLI_PROGRAM), command);
        if (!process.waitForStarted())
            qFatal("the companion did not start");
        if (!QTest::qWaitFor([&] { return QFile::exists(reached); }, patience))
            qFatal("the companion does not call what is to fail");
    }

    /// Whether a signal has not reached the process yet. Of two such, the system delivers the one
    /// with the lower number first.
    static bool hasPendingSignal(const QProcess &process)
    {
        QFile status(u"/proc/%1/status"_s.arg(process.processId()));
        return status.open(QIODevice::ReadOnly)
            && !status.readAll().contains("\nShdPnd:\t0000000000000000\n");
    }

    static void send(const QProcess &process, int signal)
    {
        ::kill(static_cast<pid_t>(process.processId()), signal);
    }

    QStringList fileNames() const { return QDir(m_temp).entryList(QDir::Files); }

    const TestHome &m_home;
    QString m_temp;
};

SWEEPWISE_TEST_MAIN(TestInterrupt, QCoreApplication)
#include "tst_interrupt.moc"
