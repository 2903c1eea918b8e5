#include "cleanengine.h"

#include "logcapture.h"
#include "signalspy.h"
#include "threadfault.h"

#include <QMetaType>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>

using namespace Qt::StringLiterals;
using State = CleanEngine::State;

namespace {

constexpr int patience = 10'000; // milliseconds, for what happens at once on an idle machine

CleanCategory category(const QString &id, int items)
{
    CleanCategory result(id, id, {});
    for (int i = 0; i < items; ++i)
        result.items.append(CleanItem(QString::number(i), u"/x/"_s + QString::number(i), 10));
    return result;
}

/// An engine whose runs the test controls.
class ScriptedEngine final : public CleanEngine
{
public:
    ~ScriptedEngine() override { stopAndWait(); }

    std::function<void()> onScan = [] {};
    std::function<void()> onClean = [this] { finishClean(0, 0); };

    using CleanEngine::cleanSelection;
    using CleanEngine::CleanTotals;
    using CleanEngine::isStopRequested;
    using CleanEngine::readFailures;
    using CleanEngine::Removal;
    using CleanEngine::reportClean;
    using CleanEngine::selection;
    using CleanEngine::setState;

    void add(const CleanCategory &found) { result().categories.append(found); }
    void finishClean(qint64 bytes, int items)
    {
        endClean(isStopRequested() ? State::Cancelled : State::Finished);
        Q_EMIT cleanFinished(bytes, items);
    }
    void waitForStop() const
    {
        while (!isStopRequested())
            QThread::msleep(1);
    }

protected:
    void doScan() override { onScan(); }
    void doClean() override { onClean(); }
};

QList<State> states(const SignalSpy &spy)
{
    QList<State> list;
    for (const QList<QVariant> &arguments : spy)
        list.append(arguments.constFirst().value<State>());
    return list;
}

} // namespace

class TestCleanEngine : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Stands first: whatever connects a signal registers its types as well.
    void anEngineRegistersTheTypesOfItsSignals()
    {
        QVERIFY(!QMetaType::fromName("ScanResult").isValid());
        QVERIFY(!QMetaType::fromName("CleanEngine::State").isValid());
        const ScriptedEngine engine;
        QVERIFY(QMetaType::fromName("ScanResult").isValid());
        QVERIFY(QMetaType::fromName("CleanEngine::State").isValid());
    }

    void startsIdleWithoutAResult()
    {
        const ScriptedEngine engine;
        QCOMPARE(engine.state(), State::Idle);
        QVERIFY(engine.result().categories.isEmpty());
    }

    void theStatesHaveTheirNamesAndValues()
    {
        const QMetaEnum states = QMetaEnum::fromType<State>();
        const QByteArrayList names{"Idle",     "Scanning",  "Cleaning",
                                   "Finished", "Cancelled", "Error"};
        QCOMPARE(states.keyCount(), names.size());
        for (int i = 0; i < names.size(); ++i) {
            QCOMPARE(QByteArray(states.key(i)), names.at(i));
            QCOMPARE(states.value(i), i);
        }
    }

    void aScanGoesThroughScanningToFinished()
    {
        ScriptedEngine engine;
        QThread *scanThread = nullptr;
        QThread *finishThread = nullptr;
        State stateAtFinish = State::Idle;
        engine.onScan = [&] {
            scanThread = QThread::currentThread();
            engine.add(category(u"a"_s, 2));
        };
        connect(
            &engine, &CleanEngine::scanFinished, &engine,
            [&] {
                finishThread = QThread::currentThread();
                stateAtFinish = engine.state();
            },
            Qt::DirectConnection);
        SignalSpy stateSpy(&engine, &CleanEngine::stateChanged);
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startScan();
        QCOMPARE(engine.state(), State::Scanning);
        QVERIFY(finished.wait(patience));
        QCOMPARE(states(stateSpy), (QList<State>{State::Scanning, State::Finished}));
        QCOMPARE(stateAtFinish, State::Finished);
        QCOMPARE(finishThread, thread());
        QVERIFY(scanThread && scanThread != thread());
        QCOMPARE(finished.constFirst().constFirst().value<ScanResult>().totalCount(), 2);
        QCOMPARE(engine.result().totalCount(), 2);
    }

    void aCleanReportsFromTheWorkerAfterTheState()
    {
        ScriptedEngine engine;
        QThread *finishThread = nullptr;
        State stateAtFinish = State::Idle;
        connect(
            &engine, &CleanEngine::cleanFinished, &engine,
            [&] {
                finishThread = QThread::currentThread();
                stateAtFinish = engine.state();
            },
            Qt::DirectConnection);
        SignalSpy stateSpy(&engine, &CleanEngine::stateChanged);
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        engine.stopAndWait();
        QCOMPARE(states(stateSpy), (QList<State>{State::Cleaning, State::Finished}));
        QCOMPARE(stateAtFinish, State::Finished);
        QVERIFY(finishThread != thread());
    }

    void aCleanWithoutAScanFinishesWithNothing()
    {
        ScriptedEngine engine;
        int selected = -1;
        engine.onClean = [&] {
            selected = engine.selection().checkedCount();
            engine.finishClean(0, 0);
        };
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        engine.stopAndWait();
        QCOMPARE(selected, 0);
        QCOMPARE(engine.state(), State::Finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(0), 0}));
    }

    void aCleanGoesThroughTheSelectionItemByItem()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 4));
        engine.add(category(u"left out"_s, 2));
        engine.add(category(u"b"_s, 1));
        engine.result().categories[0].items[1].checked = false;
        engine.result().categories[1].checked = false;
        QStringList calls;
        ScriptedEngine::CleanTotals totals;
        const auto remove = [&calls](const CleanItem &item) -> ScriptedEngine::Removal {
            calls.append(item.path);
            if (item.name == "2"_L1)
                return {ScriptedEngine::Removal::Failed, 100, {item.path, u"busy"_s}};
            if (item.name == "3"_L1)
                return {ScriptedEngine::Removal::NotCounted, 100, {}};
            return {ScriptedEngine::Removal::Cleaned, 7, {}};
        };
        engine.onClean = [&] {
            totals = engine.cleanSelection(
                remove, [&calls](const CleanCategory &entered) { calls.append(entered.id); });
            engine.reportClean(totals);
        };
        // In the worker, in the order in which things happen.
        connect(
            &engine, &CleanEngine::cleanProgress, &engine,
            [&calls, &engine](int current, int total, qint64 freed) {
                calls.append(u"%1/%2 %3"_s.arg(current).arg(total).arg(freed));
                if (engine.latestProgress() != CleanProgress{current, total, freed})
                    calls.append(u"another progress"_s);
            },
            Qt::DirectConnection);
        QCOMPARE(engine.latestProgress().total, 0);
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        engine.stopAndWait();
        QCOMPARE(calls,
                 (QStringList{u"a"_s, u"1/4 0"_s, u"/x/0"_s, u"2/4 7"_s, u"/x/2"_s, u"3/4 7"_s,
                              u"/x/3"_s, u"b"_s, u"4/4 7"_s, u"/x/0"_s}));
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(14), 2}));
        QCOMPARE(engine.state(), State::Finished);
        QCOMPARE(totals.failed, 1);
        QVERIFY(!totals.isStopped);
        QCOMPARE(engine.failures().size(), 1);
        QCOMPARE(engine.failures().constFirst().path, u"/x/2"_s);
        QCOMPARE(engine.failures().constFirst().reason, u"busy"_s);
    }

    void theProgressOfACleanIsKeptUntilTheNext()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 3));
        engine.onClean = [&] {
            engine.reportClean(engine.cleanSelection([](const CleanItem &) {
                return ScriptedEngine::Removal{ScriptedEngine::Removal::Cleaned, 7, {}};
            }));
        };
        engine.startClean();
        QVERIFY(engine.waitForEnd(QDeadlineTimer(patience)));
        QVERIFY(engine.latestProgress() == (CleanProgress{3, 3, 14}));
        engine.onClean = [&engine] { engine.waitForStop(); };
        engine.startClean();
        QVERIFY(engine.latestProgress() == CleanProgress());
    }

    void aCleanThatIsStoppedBeforeItsFirstItemIsCancelled()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 200'000)); // their copy takes longer than the stop
        bool isSelected = false;
        engine.onClean = [&] {
            isSelected = !engine.selection().categories.isEmpty();
            engine.reportClean(engine.cleanSelection([](const CleanItem &) {
                return ScriptedEngine::Removal{ScriptedEngine::Removal::Cleaned, 7, {}};
            }));
        };
        engine.startClean();
        engine.stopAndWait();
        QCOMPARE(engine.state(), State::Cancelled);
        QCOMPARE(engine.cleanedCount(), 0);
        QVERIFY(!isSelected);
    }

    void aStopEndsACleanBeforeTheNextItem()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 3));
        int handed = 0;
        int told = 0;
        engine.onClean = [&] {
            const auto totals = engine.cleanSelection([&](const CleanItem &) {
                if (++handed == 2)
                    engine.cancel();
                return ScriptedEngine::Removal{ScriptedEngine::Removal::Cleaned, 7, {}};
            });
            QVERIFY(totals.isStopped);
            engine.reportClean(totals);
        };
        connect(
            &engine, &CleanEngine::cleanProgress, &engine, [&told] { ++told; },
            Qt::DirectConnection);
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        engine.stopAndWait();
        QCOMPARE(handed, 2);
        QCOMPARE(told, 2);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(14), 2}));
        QCOMPARE(engine.state(), State::Cancelled);
    }

    void cancelWhileIdleIsSignalledOnce()
    {
        ScriptedEngine engine;
        SignalSpy stateSpy(&engine, &CleanEngine::stateChanged);
        engine.cancel();
        QCOMPARE(states(stateSpy), QList<State>{State::Cancelled});
        engine.cancel();
        QCOMPARE(stateSpy.size(), 1);
    }

    void cancelDoesNotWaitForTheWorker()
    {
        ScriptedEngine engine;
        QSemaphore release;
        engine.onScan = [&] { release.acquire(); };
        engine.startScan();
        engine.cancel(); // would never return if it waited
        QCOMPARE(engine.state(), State::Cancelled);
        release.release();
    }

    void aCancelledScanFinishesNothing()
    {
        ScriptedEngine engine;
        engine.onScan = [&] { engine.waitForStop(); };
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        SignalSpy stateSpy(&engine, &CleanEngine::stateChanged);
        engine.startScan();
        engine.cancel();
        engine.stopAndWait();
        QTest::qWait(20);
        QCOMPARE(finished.size(), 0);
        QCOMPARE(states(stateSpy), (QList<State>{State::Scanning, State::Cancelled}));
    }

    void cancelBetweenTheEndOfTheScanAndItsCompletionIsHeeded()
    {
        ScriptedEngine engine;
        QSemaphore done;
        engine.onScan = [&] { done.release(); };
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        SignalSpy stateSpy(&engine, &CleanEngine::stateChanged);
        engine.startScan();
        done.acquire();
        QThread::msleep(50); // the completion is queued now; this thread has not run its event loop
        engine.cancel();
        QTest::qWait(50);
        QCOMPARE(finished.size(), 0);
        QCOMPARE(states(stateSpy), (QList<State>{State::Scanning, State::Cancelled}));
    }

    void aCompletionOfAnEarlierRunIsDropped()
    {
        ScriptedEngine engine;
        QSemaphore done;
        engine.onScan = [&] { done.release(); };
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startScan();
        done.acquire();
        QThread::msleep(50); // its completion is queued now
        engine.cancel();
        engine.stopAndWait();
        QSemaphore release;
        engine.onScan = [&] {
            release.acquire();
            engine.add(category(u"second"_s, 3));
        };
        engine.startScan();
        QTest::qWait(50); // the old completion arrives while the new scan is running
        QCOMPARE(engine.state(), State::Scanning);
        QCOMPARE(finished.size(), 0);
        release.release();
        QVERIFY(finished.wait(patience));
        QCOMPARE(finished.size(), 1);
        QCOMPARE(engine.result().totalCount(), 3);
    }

    void aSecondScanStopsAndJoinsTheFirst()
    {
        ScriptedEngine engine;
        std::atomic_int scans = 0;
        std::atomic_bool firstEnded = false;
        QSemaphore firstStarted;
        engine.onScan = [&] {
            if (++scans > 1)
                return;
            firstStarted.release();
            engine.waitForStop();
            QThread::msleep(30);
            firstEnded = true;
        };
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startScan();
        firstStarted.acquire();
        engine.startScan();
        QVERIFY(firstEnded);
        QVERIFY(finished.wait(patience));
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
    }

    void aScanDuringACleanJoinsItAndStartsEmpty()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 5));
        std::atomic_bool cleanEnded = false;
        engine.onClean = [&] {
            engine.waitForStop();
            cleanEnded = true;
            engine.finishClean(10, 1);
        };
        qsizetype atStart = -1;
        engine.onScan = [&] { atStart = std::as_const(engine).result().categories.size(); };
        SignalSpy cleaned(&engine, &CleanEngine::cleanFinished);
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startClean();
        engine.startScan();
        QVERIFY(cleanEnded);
        QVERIFY(finished.wait(patience));
        QCOMPARE(atStart, 0);
        QCOMPARE(cleaned.size(), 1);
    }

    void aCleanKeepsTheResult()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 5));
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        QCOMPARE(engine.result().totalCount(), 5);
    }

    void ticksAfterTheStartDoNotReachTheWorker()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 5));
        CleanItem *bound = &engine.result().categories[0].items[0];
        QSemaphore ticked;
        int selected = -1;
        engine.onClean = [&] {
            ticked.acquire();
            selected = engine.selection().checkedCount();
            engine.finishClean(0, 0);
        };
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        bound->checked = false;
        QCOMPARE(engine.result().checkedCount(), 4);
        ticked.release();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        engine.stopAndWait();
        QCOMPARE(selected, 5);
    }

    void aTickWhileThousandsAreCleanedIsNoRace()
    {
        ScriptedEngine engine;
        engine.add(category(u"a"_s, 20'000));
        QList<CleanItem> &items = engine.result().categories[0].items;
        qint64 sum = 0;
        engine.onClean = [&] {
            for (const CleanItem &item : engine.selection().categories.constFirst().items)
                sum += item.checked ? item.size : 0;
            engine.finishClean(sum, 0);
        };
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        engine.startClean();
        for (CleanItem &item : items)
            item.checked = false;
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        engine.stopAndWait();
        QCOMPARE(sum, 200'000);
    }

    void boundRecordsSurviveTheCopyThatTheSignalCarries()
    {
        ScriptedEngine engine;
        engine.onScan = [&] { engine.add(category(u"a"_s, 5)); };
        SignalSpy finished(&engine, &CleanEngine::scanFinished); // keeps a copy
        engine.startScan();
        QVERIFY(finished.wait(patience));
        CleanCategory *bound = &engine.result().categories[0];
        const ScanResult copy = std::as_const(engine).result();
        bound->setChecked(false);
        QCOMPARE(std::as_const(engine).result().checkedCount(), 0);
        QCOMPARE(&std::as_const(engine).result().categories.constFirst(), bound);
        QCOMPARE(finished.constFirst().constFirst().value<ScanResult>().checkedCount(), 5);
    }

    void cancelDuringACleanEndsCancelled()
    {
        ScriptedEngine engine;
        engine.onClean = [&] {
            engine.waitForStop();
            engine.finishClean(10, 1);
        };
        SignalSpy finished(&engine, &CleanEngine::cleanFinished);
        SignalSpy stateSpy(&engine, &CleanEngine::stateChanged);
        engine.startClean();
        engine.cancel();
        engine.stopAndWait();
        QCOMPARE(engine.state(), State::Cancelled);
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        QCOMPARE(states(stateSpy), (QList<State>{State::Cleaning, State::Cancelled}));
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(10), 1}));
    }

    void aStateThatBothThreadsSetIsSignalledOnce()
    {
        for (int round = 0; round < 50; ++round) {
            ScriptedEngine engine;
            QSemaphore go;
            engine.onScan = [&] {
                go.acquire();
                engine.setState(State::Cancelled);
            };
            std::atomic_int cancelled = 0;
            connect(
                &engine, &CleanEngine::stateChanged, &engine,
                [&cancelled](State state) { cancelled += state == State::Cancelled ? 1 : 0; },
                Qt::DirectConnection);
            engine.startScan();
            go.release();
            engine.cancel();
            engine.stopAndWait();
            QCOMPARE(cancelled.load(), 1);
        }
    }

    void anEngineMayBeDestroyedWhileItsWorkerRuns()
    {
        for (int round = 0; round < 20; ++round) {
            auto engine = std::make_unique<ScriptedEngine>();
            ScriptedEngine *raw = engine.get();
            std::atomic_bool ended = false;
            engine->onScan = [&ended, raw] {
                raw->waitForStop();
                Q_EMIT raw->scanProgress(1, 1, QString());
                ended = true;
            };
            engine->startScan();
            engine.reset();
            QVERIFY(ended);
        }
    }

    void aRunReceiverHearsNothingOfAnEarlierRun()
    {
        ScriptedEngine engine;
        engine.onClean = [&] {
            Q_EMIT engine.cleanProgress(1, 2, 0);
            engine.waitForStop();
            engine.finishClean(10, 1);
        };
        engine.onScan = [&] { Q_EMIT engine.scanProgress(1, 1, u"new"_s); };
        const auto receiver = engine.makeRunReceiver();
        QStringList heard;
        connect(&engine, &CleanEngine::cleanProgress, receiver.get(),
                [&heard] { heard.append(u"cleanProgress"_s); });
        connect(&engine, &CleanEngine::cleanFinished, receiver.get(),
                [&heard] { heard.append(u"cleanFinished"_s); });
        connect(&engine, &CleanEngine::scanProgress, receiver.get(),
                [&heard] { heard.append(u"scanProgress"_s); });
        connect(&engine, &CleanEngine::scanFinished, receiver.get(),
                [&heard] { heard.append(u"scanFinished"_s); });
        connect(&engine, &CleanEngine::stateChanged, receiver.get(), [&heard](State state) {
            heard.append(u"state %1"_s.arg(static_cast<int>(state)));
        });
        const SignalSpy cleaned(&engine, &CleanEngine::cleanFinished);
        const SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startClean();
        engine.cancel();
        engine.startScan(); // the end of the clean is queued by now
        QVERIFY(finished.wait(patience));
        QCOMPARE(heard,
                 (QStringList{u"state 2"_s, u"state 4"_s, u"state 1"_s, u"scanProgress"_s,
                              u"state 3"_s, u"scanFinished"_s}));
        QCOMPARE(cleaned.size(), 1); // an ordinary connection still receives it
    }

    void aRunReceiverHearsTheEndOfACleanThatIsCancelledTooLate()
    {
        ScriptedEngine engine;
        const auto receiver = engine.makeRunReceiver();
        int ends = 0;
        connect(&engine, &CleanEngine::cleanFinished, receiver.get(), [&ends] { ++ends; });
        engine.startClean();
        engine.stopAndWait();
        engine.cancel();
        QCOMPARE(ends, 0);
        QTRY_COMPARE_WITH_TIMEOUT(ends, 1, patience);
    }

    void aRestartFromWithinTheStateChangeReportsOneResult()
    {
        ScriptedEngine engine;
        int scans = 0;
        engine.onScan = [&] { engine.add(category(u"run"_s, ++scans)); };
        bool restarted = false;
        connect(&engine, &CleanEngine::stateChanged, &engine, [&](State state) {
            if (state == State::Finished && !std::exchange(restarted, true))
                engine.startScan();
        });
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startScan();
        QVERIFY(finished.wait(patience));
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst().constFirst().value<ScanResult>().totalCount(), 2);
    }

    // --- without a thread, without an event loop

    void aRunWithoutAThreadFails()
    {
        ScriptedEngine engine;
        const SignalSpy errors(&engine, &CleanEngine::errorOccurred);
        const SignalSpy scans(&engine, &CleanEngine::scanFinished);
        const SignalSpy cleans(&engine, &CleanEngine::cleanFinished);
        const SignalSpy changes(&engine, &CleanEngine::stateChanged);
        for (const auto start : {&CleanEngine::startScan, &CleanEngine::startClean}) {
            const ThreadFault fault;
            (engine.*start)();
            QCOMPARE(engine.state(), State::Error);
        }
        QTest::qWait(20);
        QCOMPARE(errors.size(), 2);
        QVERIFY(errors.constFirst().constFirst().toString().contains("thread"_L1));
        QCOMPARE(scans.size(), 0);
        QCOMPARE(cleans.size(), 0);
        QCOMPARE(states(changes),
                 (QList{State::Scanning, State::Error, State::Cleaning, State::Error}));
        engine.stopAndWait();
    }

    void theNextRunAfterAFailedOneSucceeds()
    {
        ScriptedEngine engine;
        {
            const ThreadFault fault;
            engine.startScan();
        }
        engine.onScan = [&engine] { engine.add(category(u"a"_s, 2)); };
        SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startScan();
        QVERIFY(finished.wait(patience));
        QCOMPARE(engine.result().totalCount(), 2);
    }

    void waitingForTheEndNeedsNoEventLoop()
    {
        ScriptedEngine engine;
        std::atomic_bool mayEnd = false;
        engine.onScan = [&] {
            while (!mayEnd)
                QThread::msleep(1);
            engine.add(category(u"a"_s, 2));
        };
        const SignalSpy finished(&engine, &CleanEngine::scanFinished);
        engine.startScan();
        QVERIFY(!engine.waitForEnd(QDeadlineTimer(20)));
        QCOMPARE(engine.state(), State::Scanning);
        mayEnd = true;
        QVERIFY(engine.waitForEnd(QDeadlineTimer(patience)));
        QCOMPARE(finished.size(), 1);
        QCOMPARE(engine.state(), State::Finished);
        engine.startClean();
        QVERIFY(engine.waitForEnd(QDeadlineTimer(patience)));
        QCOMPARE(engine.state(), State::Finished);
    }

    void whatCannotBeReadIsKeptForOneRunAndLogged()
    {
        ScriptedEngine engine;
        engine.onScan = [&engine] {
            engine.readFailures().add(u"/closed"_s, u"no rights"_s);
            engine.readFailures().add(u"/other"_s, u"no rights"_s);
        };
        const LogCapture log;
        engine.startScan();
        QVERIFY(engine.waitForEnd(QDeadlineTimer(patience)));
        QCOMPARE(engine.incomplete().count(), 2);
        QCOMPARE(log.count(u"[WARN] Cannot read /closed and 1 more: no rights"_s), 1);
        QCOMPARE(log.count(u"Cannot read"_s), 1);
        engine.startClean();
        QVERIFY(engine.waitForEnd(QDeadlineTimer(patience)));
        QVERIFY(engine.incomplete().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCleanEngine)
#include "tst_cleanengine.moc"
