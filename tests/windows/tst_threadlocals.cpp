#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <array>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Words = std::array<quint64, 4>;

constexpr Words written{1, 2, 3, 4};
constexpr int timeoutMs = 30'000;
constexpr auto matchInThreads = "--match-in-threads"_L1;

Words atDestruction;
QSemaphore destructions;

/// Records the contents of its memory when its thread ends.
class Witness final
{
    Q_DISABLE_COPY_MOVE(Witness)
public:
    Witness() = default;
    ~Witness()
    {
        atDestruction = m_words;
        destructions.release();
    }

    void write() { m_words = written; }

private:
    Words m_words{};
};

thread_local Witness witness;

void runInQtThread(const std::function<void()> &work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->start();
    thread->wait();
}

void runInStandardThread(const std::function<void()> &work)
{
    std::thread(work).join();
}

void matchSomething()
{
    static const QRegularExpression letters(u"^[a-z]+$"_s);
    for (int i = 0; i < 50; ++i)
        static_cast<void>(letters.match(QString::number(i)));
}

// The work of the child process.
int matchInManyThreads()
{
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < 16; ++i)
        threads.emplace_back(QThread::create(matchSomething))->start();
    for (const auto &thread : threads)
        thread->wait();
    return 0;
}

} // namespace

/// The thread_local objects of a thread must be destroyed before their memory is freed. Otherwise a
/// program that used QRegularExpression in a thread cannot end.
class TestThreadLocals final : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anObjectIsWholeWhenItIsDestroyed_data();
    void anObjectIsWholeWhenItIsDestroyed();
    void aProgramEndsAfterItsThreadsHaveMatched();
};

void TestThreadLocals::anObjectIsWholeWhenItIsDestroyed_data()
{
    QTest::addColumn<std::function<void(const std::function<void()> &)>>("run");
    QTest::newRow("QThread") << std::function(runInQtThread);
    QTest::newRow("std::thread") << std::function(runInStandardThread);
}

void TestThreadLocals::anObjectIsWholeWhenItIsDestroyed()
{
    QFETCH(const std::function<void(const std::function<void()> &)>, run);
    for (int i = 0; i < 20; ++i) {
        run([] { witness.write(); });
        // A QThread counts as finished shortly before it has ended.
        QVERIFY(destructions.tryAcquire(1, timeoutMs));
        QCOMPARE(atDestruction, written);
    }
}

void TestThreadLocals::aProgramEndsAfterItsThreadsHaveMatched()
{
    for (int i = 0; i < 5; ++i) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {matchInThreads});
        QVERIFY2(program.waitForStarted(), qPrintable(program.errorString()));
        const bool hasEnded = program.waitForFinished(timeoutMs);
        if (!hasEnded) {
            program.kill();
            program.waitForFinished();
        }
        QVERIFY(hasEnded);
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(matchInThreads))
        return matchInManyThreads();
    TestThreadLocals test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_threadlocals.moc"
