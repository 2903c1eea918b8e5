#include "endrequest.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <cstdio>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// What the program does on a request to end.
enum class Answer { Quits, IsBusy };

/// The program that gets the signals: prints a line when it listens and another one at a request.
int runVictim(int argc, char *argv[], Answer answer)
{
    const QCoreApplication application(argc, argv);
    // Never destroyed, so that it answers until the process has ended.
    static const auto *const request = new platform::EndRequest;
    QObject::connect(request, &platform::EndRequest::requested, &application, [answer] {
        std::puts("requested");
        std::fflush(stdout);
        if (answer == Answer::Quits)
            QCoreApplication::quit();
        else
            QTest::qSleep(30'000);
    });
    QTimer::singleShot(0, &application, [] {
        std::puts("listening");
        std::fflush(stdout);
    });
    QTimer::singleShot(60'000, &application, [] { QCoreApplication::exit(3); });
    return QCoreApplication::exec();
}

} // namespace

/// What a program that listens to EndRequest does on signals. Each test starts this program again
/// as the one that gets them.
class TestEndRequest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalBecomesARequest_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void aSignalBecomesARequest()
    {
        QFETCH(int, number);
        QProcess victim;
        start(victim, u"--quits"_s);
        send(victim, number);
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(victim.exitCode(), 0);
        QCOMPARE(victim.readAllStandardOutput(), "requested\n");
    }

    void aSecondSignalEndsTheProgramAtOnce_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("the same") << SIGTERM << SIGTERM;
        QTest::newRow("another one") << SIGINT << SIGTERM;
    }

    void aSecondSignalEndsTheProgramAtOnce()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QProcess victim;
        start(victim, u"--busy"_s);
        send(victim, first);
        QVERIFY(waitForLine(victim, "requested\n"));
        send(victim, second);
        QVERIFY(victim.waitForFinished(20'000)); // it would be busy for longer
        QCOMPARE(victim.exitStatus(), QProcess::CrashExit);
        QCOMPARE(victim.exitCode(), second);
    }

    // A session manager sends SIGHUP right after SIGTERM, and a shell sends it a second time. The
    // program may get both at once, in any order.
    void aHangupIsNoSecondRequest_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("after another signal") << SIGTERM << SIGHUP;
        QTest::newRow("before another signal") << SIGHUP << SIGTERM;
        QTest::newRow("twice") << SIGHUP << SIGHUP;
    }

    void aHangupIsNoSecondRequest()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QProcess victim;
        start(victim, u"--quits"_s);
        send(victim, first);
        send(victim, second);
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(victim.exitCode(), 0);
        QCOMPARE(victim.readAllStandardOutput(), "requested\n");
    }

    // "nohup" starts a program with SIGHUP ignored, a shell starts one in the background with
    // SIGINT ignored.
    void anIgnoredSignalStaysIgnored_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGHUP") << SIGHUP;
        QTest::newRow("SIGINT") << SIGINT;
    }

    void anIgnoredSignalStaysIgnored()
    {
        QFETCH(int, number);
        QProcess victim;
        start(victim, u"--quits"_s, number);
        send(victim, number);
        QVERIFY(!victim.waitForReadyRead(300));
        QCOMPARE(victim.state(), QProcess::Running);
        send(victim, SIGTERM);
        send(victim, number); // still ignored after a request
        QVERIFY(victim.waitForFinished());
        QCOMPARE(victim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(victim.exitCode(), 0);
    }

    void theSignalsGetTheirOldActionsBack()
    {
        struct sigaction before = {};
        ::sigaction(SIGTERM, nullptr, &before);
        {
            const platform::EndRequest request;
            struct sigaction during = {};
            ::sigaction(SIGTERM, nullptr, &during);
            QVERIFY(during.sa_handler != before.sa_handler);
        }
        struct sigaction after = {};
        ::sigaction(SIGTERM, nullptr, &after);
        QVERIFY(after.sa_handler == before.sa_handler);
    }

private:
    static bool waitForLine(QProcess &process, const QByteArray &line)
    {
        return QTest::qWaitFor([&] { return process.canReadLine(); }, 10'000)
            && process.readLine() == line;
    }

    /// Starts the program with @p ignored ignored. This program may itself have been started with
    /// one of the others ignored.
    static void start(QProcess &victim, const QString &answer, int ignored = 0)
    {
        victim.setChildProcessModifier([ignored] {
            for (const int number : {SIGTERM, SIGINT, SIGHUP})
                std::signal(number, number == ignored ? SIG_IGN : SIG_DFL);
        });
        victim.start(QCoreApplication::applicationFilePath(), {answer});
        QVERIFY(waitForLine(victim, "listening\n"));
    }

    static void send(const QProcess &victim, int number)
    {
        QCOMPARE(::kill(static_cast<pid_t>(victim.processId()), number), 0);
    }
};

int main(int argc, char *argv[])
{
    const QByteArrayView mode = argc == 2 ? argv[1] : "";
    if (mode == "--quits")
        return runVictim(argc, argv, Answer::Quits);
    if (mode == "--busy")
        return runVictim(argc, argv, Answer::IsBusy);
    QCoreApplication application(argc, argv);
    TestEndRequest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_endrequest.moc"
