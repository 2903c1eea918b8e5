#include "worker.h"

#include <QTest>
#include <QThread>

#include <atomic>

using namespace Qt::StringLiterals;

/// The thread of an engine's runs.
class TestWorker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWorkRunsOnAnotherThreadAndIsReported()
    {
        Worker worker;
        QThread *thread = nullptr;
        bool wasBusyInReport = true;
        QVERIFY(worker.start(
            u"Name"_s, [&thread] { thread = QThread::currentThread(); },
            [&] { wasBusyInReport = worker.isBusy(); }));
        QVERIFY(worker.wait());
        QVERIFY(thread && thread != QThread::currentThread());
        QVERIFY(!wasBusyInReport);
        QVERIFY(!worker.isBusy());
    }

    void waitingEndsAtTheDeadline()
    {
        std::atomic_bool mayEnd = false;
        Worker worker;
        QVERIFY(worker.start(u"Name"_s, [&mayEnd] {
            while (!mayEnd)
                QThread::msleep(1);
        }));
        QVERIFY(!worker.wait(QDeadlineTimer(20)));
        QVERIFY(worker.isBusy());
        mayEnd = true;
        QVERIFY(worker.wait());
    }

    void theNextWorkWaitsForTheOneBefore()
    {
        std::atomic_int running = 0;
        std::atomic_int most = 0;
        Worker worker;
        for (int i = 0; i < 50; ++i) {
            QVERIFY(worker.start(u"Name"_s, [&] {
                most = qMax(most.load(), ++running);
                QThread::usleep(100);
                --running;
            }));
        }
        QVERIFY(worker.wait());
        QCOMPARE(most.load(), 1);
    }

    void aShortWorkCountsAsStarted()
    {
        Worker worker;
        for (int i = 0; i < 2000; ++i)
            QVERIFY(worker.start(u"Name"_s, [] {}));
    }
};

QTEST_GUILESS_MAIN(TestWorker)
#include "tst_worker.moc"
