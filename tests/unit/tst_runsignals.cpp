#include "runsignals.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QList>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>

namespace {

constexpr int patience = 10'000; // milliseconds, for what happens at once on an idle machine

/// An owner whose worker emits numbers.
class Speaker final : public QObject
{
    Q_OBJECT
public:
    RunSignals runSignals{this};

    /// Has a worker emit the numbers from @p first to @p last, and joins it.
    void say(int first, int last)
    {
        std::thread worker([&] {
            for (int i = first; i <= last; ++i)
                Q_EMIT said(i);
        });
        worker.join();
    }

Q_SIGNALS:
    void said(int number);
};

/// Has a worker post the numbers from @p first to @p last, and joins it.
void post(const RunSignals::Run &run, int first, int last, QList<int> &heard)
{
    std::thread worker([&] {
        for (int i = first; i <= last; ++i)
            run.post([i, &heard] { heard.append(i); });
    });
    worker.join();
}

} // namespace

class TestRunSignals : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void postedCallsAreMadeInOrderOnTheOwnersThread()
    {
        Speaker speaker;
        const RunSignals::Run run = speaker.runSignals.open();
        QList<int> heard;
        QThread *thread = nullptr;
        run.post([&thread] { thread = QThread::currentThread(); });
        post(run, 1, 5, heard);
        QVERIFY(heard.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(heard, (QList<int>{1, 2, 3, 4, 5}));
        QCOMPARE(thread, speaker.thread());
        // A call that the owner's thread posts is queued as well.
        run.post([&heard] { heard.append(6); });
        QCOMPARE(heard.size(), 5);
        QCoreApplication::processEvents();
        QCOMPARE(heard.size(), 6);
    }

    void callsPostedByAnEarlierRunAreDropped()
    {
        Speaker speaker;
        QList<int> heard;
        const RunSignals::Run first = speaker.runSignals.open();
        post(first, 1, 2, heard);
        const RunSignals::Run second = speaker.runSignals.open();
        QVERIFY(!first.isCurrent());
        QVERIFY(second.isCurrent());
        post(second, 11, 12, heard);
        post(first, 3, 4, heard); // as a worker does that has not noticed the new run
        QCoreApplication::processEvents();
        QCOMPARE(heard, (QList<int>{11, 12}));
    }

    void callsPostedByAnEndedRunAreDropped()
    {
        Speaker speaker;
        QList<int> heard;
        const RunSignals::Run run = speaker.runSignals.open();
        post(run, 1, 2, heard);
        speaker.runSignals.end();
        QVERIFY(!run.isCurrent());
        post(run, 3, 4, heard);
        QCoreApplication::processEvents();
        QVERIFY(heard.isEmpty());
    }

    void aCallThatOpensTheNextRunDropsTheRest()
    {
        Speaker speaker;
        QList<int> heard;
        const RunSignals::Run run = speaker.runSignals.open();
        post(run, 1, 1, heard);
        run.post([&] { speaker.runSignals.open(); });
        post(run, 2, 2, heard);
        QCoreApplication::processEvents();
        QCOMPARE(heard, QList<int>{1});
    }

    void signalsOfTheCurrentRunArriveInOrderOnTheOwnersThread()
    {
        Speaker speaker;
        const auto receiver = speaker.runSignals.makeReceiver();
        QList<int> heard;
        QThread *thread = nullptr;
        connect(&speaker, &Speaker::said, receiver.get(), [&](int number) {
            heard.append(number);
            thread = QThread::currentThread();
        });
        speaker.runSignals.open();
        speaker.say(1, 5);
        QVERIFY(heard.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(heard, (QList<int>{1, 2, 3, 4, 5}));
        QCOMPARE(thread, speaker.thread());
    }

    void queuedSignalsOfAnEarlierRunAreDropped_data()
    {
        QTest::addColumn<bool>("isReplaced");
        QTest::newRow("replaced") << true;
        QTest::newRow("ended") << false;
    }
    void queuedSignalsOfAnEarlierRunAreDropped()
    {
        QFETCH(bool, isReplaced);
        Speaker speaker;
        const auto receivers = {speaker.runSignals.makeReceiver(),
                                speaker.runSignals.makeReceiver()};
        QList<int> heard;
        for (const auto &receiver : receivers)
            connect(&speaker, &Speaker::said, receiver.get(),
                    [&heard](int number) { heard.append(number); });
        // An ordinary connection receives the signals of all runs.
        QObject other;
        QList<int> heardByOther;
        connect(&speaker, &Speaker::said, &other,
                [&heardByOther](int number) { heardByOther.append(number); });
        speaker.runSignals.open();
        speaker.say(1, 3);
        if (!isReplaced)
            speaker.runSignals.end();
        speaker.runSignals.open();
        speaker.say(4, 5);
        QCoreApplication::processEvents();
        QCOMPARE(heard, (QList<int>{4, 4, 5, 5}));
        QCOMPARE(heardByOther, (QList<int>{1, 2, 3, 4, 5}));
    }

    void aSignalOfTheOwnersThreadArrivesAtOnce()
    {
        Speaker speaker;
        const auto receiver = speaker.runSignals.makeReceiver();
        QList<int> heard;
        connect(&speaker, &Speaker::said, receiver.get(),
                [&heard](int number) { heard.append(number); });
        speaker.runSignals.open();
        speaker.say(1, 1);
        Q_EMIT speaker.said(2);
        QCOMPARE(heard, QList<int>{2});
        speaker.runSignals.end();
        Q_EMIT speaker.said(3);
        QCOMPARE(heard, (QList<int>{2, 3}));
    }

    void aDeletedReceiverHearsNothing()
    {
        Speaker speaker;
        auto receiver = speaker.runSignals.makeReceiver();
        const auto second = speaker.runSignals.makeReceiver();
        QList<int> heard;
        for (const QObject *one : {receiver.get(), second.get()})
            connect(&speaker, &Speaker::said, one, [&heard](int number) { heard.append(number); });
        speaker.runSignals.open();
        speaker.say(1, 2);
        receiver.reset();
        speaker.say(3, 3);
        QCoreApplication::processEvents();
        QCOMPARE(heard, (QList<int>{1, 2, 3}));
    }

    void aReceiverMayBeDeletedInItsOwnSlot()
    {
        Speaker speaker;
        auto receiver = speaker.runSignals.makeReceiver();
        QList<int> heard;
        connect(&speaker, &Speaker::said, receiver.get(), [&heard, &receiver](int number) {
            heard.append(number);
            receiver.reset();
        });
        speaker.runSignals.open();
        speaker.say(1, 2);
        QCoreApplication::processEvents();
        QCOMPARE(heard, QList<int>{1});
        receiver = speaker.runSignals.makeReceiver();
        connect(&speaker, &Speaker::said, receiver.get(), [&receiver] { receiver.reset(); });
        Q_EMIT speaker.said(3);
        QVERIFY(!receiver);
    }

    void theOwnerMayBeDeletedWhileItsSignalsAreQueued()
    {
        auto speaker = std::make_unique<Speaker>();
        const auto receiver = speaker->runSignals.makeReceiver();
        QList<int> heard;
        connect(speaker.get(), &Speaker::said, receiver.get(),
                [&heard](int number) { heard.append(number); });
        const RunSignals::Run run = speaker->runSignals.open();
        speaker->say(1, 2);
        post(run, 3, 4, heard);
        speaker.reset();
        QCoreApplication::processEvents();
        QVERIFY(heard.isEmpty());
    }

    void receiversMayBeMadeAndDeletedWhileTheWorkerEmits()
    {
        Speaker speaker;
        std::mutex mutex;
        std::atomic_bool isOver = false;
        speaker.runSignals.open();
        std::thread worker([&] {
            for (int i = 1; !isOver; ++i) {
                {
                    const std::lock_guard lock(mutex);
                    Q_EMIT speaker.said(i);
                }
                QThread::usleep(10); // otherwise the receivers cannot keep up
            }
        });
        bool isOnOwnersThread = true;
        bool isInOrder = true;
        bool isHeard = true;
        for (int round = 0; round < 200 && isHeard; ++round) {
            const auto receiver = speaker.runSignals.makeReceiver();
            int last = 0;
            connect(&speaker, &Speaker::said, receiver.get(), [&](int number) {
                isOnOwnersThread = isOnOwnersThread && QThread::currentThread() == speaker.thread();
                isInOrder = isInOrder && (last == 0 || number == last + 1);
                last = number;
            });
            QDeadlineTimer deadline(patience);
            while (last == 0 && !deadline.hasExpired())
                processEvents(mutex);
            isHeard = last > 0;
        }
        isOver = true;
        worker.join();
        QVERIFY(isHeard);
        QVERIFY(isOnOwnersThread);
        QVERIFY(isInOrder);
    }

    void manyRunsAreKeptApart()
    {
        constexpr int runs = 300;
        Speaker speaker;
        const auto receiver = speaker.runSignals.makeReceiver();
        int current = 0;
        int heard = 0;
        int late = 0;
        const auto hear = [&](int number) {
            ++heard;
            late += number == current ? 0 : 1;
        };
        connect(&speaker, &Speaker::said, receiver.get(), hear);
        for (current = 1; current <= runs; ++current) {
            const RunSignals::Run run = speaker.runSignals.open();
            std::mutex mutex;
            std::atomic_int spoken = 0;
            std::atomic_bool isCut = false;
            std::thread worker([&, number = current] {
                for (; spoken < 1000 && !isCut; ++spoken) {
                    const std::lock_guard lock(mutex);
                    Q_EMIT speaker.said(number);
                    run.post([&hear, number] { hear(number); });
                }
            });
            while (spoken < 3)
                QThread::yieldCurrentThread();
            if (current % 2 == 0)
                processEvents(mutex);
            isCut = true;
            worker.join();
        }
        QVERIFY2(heard >= runs / 2 * 3, qPrintable(QString::number(heard)));
        QCOMPARE(late, 0);
    }

private:
    /// Handles queued events while the worker waits. The thread sanitizer does not see the locks of
    /// the event queue of Qt, only this one.
    static void processEvents(std::mutex &mutex)
    {
        const std::lock_guard lock(mutex);
        QCoreApplication::processEvents();
    }
};

QTEST_GUILESS_MAIN(TestRunSignals)
#include "tst_runsignals.moc"
