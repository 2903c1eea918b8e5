#include "fullscan.h"

#include "cleanengine.h"
#include "signalspy.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;
using State = CleanEngine::State;

namespace {

constexpr int patience = 10'000; // milliseconds, for what happens at once on an idle machine

/// An engine that reports the given progress and then waits until the test releases it.
class HeldEngine final : public CleanEngine
{
public:
    ~HeldEngine() override
    {
        hold = false;
        stopAndWait();
    }

    QList<std::pair<int, int>> progress; ///< what a scan reports, done and total
    int items = 0; ///< of 100 bytes, which a scan finds
    std::atomic_bool hold = false;
    std::atomic_int scans = 0;
    std::atomic_bool reported = false;

    void report(int current, int total) { Q_EMIT scanProgress(current, total, u"late"_s); }
    void work() { watch().noteActivity(); }

protected:
    void doScan() override
    {
        ++scans;
        for (const auto &[current, total] : progress)
            Q_EMIT scanProgress(current, total, u"path %1"_s.arg(current));
        reported = true;
        while (hold && !isStopRequested())
            QThread::msleep(1);
        CleanCategory category(u"id"_s, u"name"_s, {});
        for (int i = 0; i < items; ++i)
            category.items.append(CleanItem(QString::number(i), QString::number(i), 100));
        result().categories.append(category);
    }
    void doClean() override { endClean(State::Finished); }
};

} // namespace

class TestFullScan : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        for (auto &engine : m_engines)
            engine = std::make_unique<HeldEngine>();
        m_scan = std::make_unique<FullScan>();
    }
    void cleanup()
    {
        m_scan.reset();
        for (auto &engine : m_engines)
            engine.reset();
    }

    void allEnginesRunAtTheSameTime()
    {
        for (const auto &engine : m_engines)
            engine->hold = true;
        start();
        for (const auto &engine : m_engines) {
            QCOMPARE(engine->state(), State::Scanning);
            QTRY_COMPARE_WITH_TIMEOUT(engine->scans.load(), 1, patience);
        }
    }

    void theTotalsAreReportedOnceAllHaveFinished()
    {
        junk().items = 3;
        browser().items = 2;
        registry().items = 7;
        browser().hold = true;
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        start();
        QTRY_COMPARE_WITH_TIMEOUT(junk().state(), State::Finished, patience);
        QTRY_COMPARE_WITH_TIMEOUT(registry().state(), State::Finished, patience);
        QCOMPARE(finished.size(), 0);
        browser().hold = false;
        QVERIFY(finished.wait(patience));
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst(), (QVariantList{qint64{300}, qint64{200}, 7}));
    }

    void thePercentIsTheMeanRoundedDown_data()
    {
        using Reports = std::array<std::pair<int, int>, 3>;
        QTest::addColumn<Reports>("reports");
        QTest::addColumn<int>("expected");
        QTest::newRow("100, 50, 0") << Reports{{{2, 2}, {1, 2}, {0, 2}}} << 50;
        QTest::newRow("1, 1, 0") << Reports{{{1, 100}, {1, 100}, {0, 100}}} << 0;
        QTest::newRow("all done") << Reports{{{5, 5}, {3, 3}, {7, 7}}} << 100;
        QTest::newRow("rounded down each") << Reports{{{2, 3}, {2, 3}, {2, 3}}} << 66;
        QTest::newRow("no total is nothing done") << Reports{{{5, 0}, {1, 1}, {1, 1}}} << 66;
        QTest::newRow("many") << Reports{{{30'000'000, 60'000'000}, {0, 1}, {1, 1}}} << 50;
    }

    void thePercentIsTheMeanRoundedDown()
    {
        using Reports = std::array<std::pair<int, int>, 3>;
        QFETCH(const Reports, reports);
        QFETCH(int, expected);
        for (std::size_t i = 0; i < 3; ++i) {
            m_engines.at(i)->progress = {reports.at(i)};
            m_engines.at(i)->hold = true;
        }
        const SignalSpy progressed(m_scan.get(), &FullScan::progressed);
        start();
        QTRY_COMPARE_WITH_TIMEOUT(progressed.size(), 3, patience);
        QCOMPARE(progressed.at(2).at(0).toInt(), expected);
        QVERIFY(progressed.at(2).at(1).toString().startsWith("path "_L1));
    }

    void aMissingEngineCountsAsDone()
    {
        junk().progress = {{1, 4}};
        junk().items = 1;
        const SignalSpy progressed(m_scan.get(), &FullScan::progressed);
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        m_scan->start({&junk(), nullptr, nullptr});
        QVERIFY(finished.wait(patience));
        QCOMPARE(progressed.at(0).at(0).toInt(), (25 + 100 + 100) / 3);
        QCOMPARE(finished.constFirst(), (QVariantList{qint64{100}, qint64{0}, 0}));
    }

    void twoScansInARowReportEverythingOnce()
    {
        for (const auto &engine : m_engines)
            engine->progress = {{1, 2}, {2, 2}};
        const SignalSpy progressed(m_scan.get(), &FullScan::progressed);
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        for (int i = 1; i <= 3; ++i) {
            start();
            QVERIFY(finished.wait(patience));
            QTest::qWait(20);
            QCOMPARE(finished.size(), i);
            QCOMPARE(progressed.size(), 6 * i);
        }
    }

    void lateReportsOfAnInterruptedScanAreDropped()
    {
        junk().progress = {{9, 10}, {10, 10}};
        junk().hold = true;
        const SignalSpy progressed(m_scan.get(), &FullScan::progressed);
        start();
        // Its reports are queued; the event loop has not run yet.
        while (!junk().reported)
            QThread::msleep(1);
        junk().stopAndWait();
        QCOMPARE(progressed.size(), 0);
        junk().progress = {{1, 10}};
        junk().hold = false;
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        start();
        QVERIFY(finished.wait(patience));
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(progressed.size(), 1);
        QCOMPARE(progressed.constFirst().at(1).toString(), u"path 1"_s);
    }

    void lateReportsOfARunThatItsPageReplacedAreDropped()
    {
        const SignalSpy progressed(m_scan.get(), &FullScan::progressed);
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        start();
        QVERIFY(finished.wait(patience));
        browser().progress = {{9, 10}};
        browser().hold = true;
        browser().reported = false;
        browser().startScan();
        while (!browser().reported)
            QThread::msleep(1);
        browser().cancel();
        browser().progress = {{1, 10}};
        browser().hold = false;
        browser().startScan();
        QVERIFY(finished.wait(patience));
        QCOMPARE(progressed.size(), 1);
        QCOMPARE(progressed.constFirst().at(1).toString(), u"path 1"_s);
    }

    void theNextScanMayStartAsTheLastEnds()
    {
        int ends = 0;
        connect(m_scan.get(), &FullScan::finished, m_scan.get(), [&] {
            if (++ends == 1)
                start();
        });
        start();
        QTRY_COMPARE_WITH_TIMEOUT(ends, 2, patience);
        QTest::qWait(20);
        QCOMPARE(ends, 2);
        for (const auto &engine : m_engines)
            QCOMPARE(engine->scans.load(), 2);
    }

    void aCancelledEngineLeavesTheScanOpen()
    {
        browser().hold = true;
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        start();
        browser().cancel();
        QTRY_COMPARE_WITH_TIMEOUT(junk().state(), State::Finished, patience);
        QTRY_COMPARE_WITH_TIMEOUT(registry().state(), State::Finished, patience);
        QTest::qWait(50);
        QCOMPARE(finished.size(), 0);
        // A later scan of the cancelled engine ends the full scan.
        browser().hold = false;
        browser().startScan();
        QVERIFY(finished.wait(patience));
        QCOMPARE(finished.size(), 1);
    }

    // A percentage counts rules, and one rule may take long.
    void workWithinOneStepIsReported()
    {
        for (const auto &engine : m_engines) {
            engine->hold = true;
            engine->work(); // of an earlier scan
        }
        const SignalSpy worked(m_scan.get(), &FullScan::worked);
        start();
        QTest::qWait(120);
        QCOMPARE(worked.size(), 0);
        for (int i = 0; i < 3; ++i) {
            m_engines.at(static_cast<std::size_t>(i))->work();
            QTRY_COMPARE_WITH_TIMEOUT(worked.size(), i + 1, patience);
        }
        // One engine goes on for longer than the others.
        junk().hold = false;
        registry().hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(junk().state(), State::Finished, patience);
        QTRY_COMPARE_WITH_TIMEOUT(registry().state(), State::Finished, patience);
        QTest::qWait(120);
        browser().work();
        QTRY_COMPARE_WITH_TIMEOUT(worked.size(), 4, patience);
        const auto *timer = m_scan->findChild<QTimer *>();
        QVERIFY(timer->isActive());
        // Its last work is not reported after the end.
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        browser().work();
        browser().hold = false;
        QTRY_COMPARE_WITH_TIMEOUT(browser().state(), State::Finished, patience);
        QTest::qWait(120);
        QCOMPARE(finished.size(), 1);
        QVERIFY(!timer->isActive());
        QCOMPARE(worked.size(), 4);
    }

    void theScanOfAPageAfterwardsIsNoWorkOfThisOne()
    {
        const SignalSpy worked(m_scan.get(), &FullScan::worked);
        connect(m_scan.get(), &FullScan::finished, m_scan.get(), [this] {
            browser().hold = true;
            browser().startScan();
            browser().work();
        });
        start();
        QTRY_COMPARE_WITH_TIMEOUT(browser().scans.load(), 2, patience);
        QTest::qWait(120);
        QCOMPARE(worked.size(), 0);
    }

    void aCancelledScanIsNotLookedAtAnyMore()
    {
        for (const auto &engine : m_engines)
            engine->hold = true;
        const SignalSpy worked(m_scan.get(), &FullScan::worked);
        start();
        for (const auto &engine : m_engines) {
            engine->cancel();
            engine->work();
        }
        const auto *timer = m_scan->findChild<QTimer *>();
        QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), patience);
        QCOMPARE(worked.size(), 0);
    }

    void anEngineMayGoWhileItIsLookedAt()
    {
        browser().hold = true;
        start();
        m_engines[2].reset();
        m_engines[1].reset();
        const auto *timer = m_scan->findChild<QTimer *>();
        QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), patience);
    }

    void anEngineOfAnEarlierStartIsDisconnected()
    {
        const SignalSpy progressed(m_scan.get(), &FullScan::progressed);
        const SignalSpy finished(m_scan.get(), &FullScan::finished);
        start();
        QVERIFY(finished.wait(patience));
        m_scan->start({&junk(), nullptr, nullptr});
        QVERIFY(finished.wait(patience));
        registry().report(1, 2);
        QTest::qWait(20);
        QCOMPARE(progressed.size(), 0);
    }

private:
    HeldEngine &junk() { return *m_engines[0]; }
    HeldEngine &browser() { return *m_engines[1]; }
    HeldEngine &registry() { return *m_engines[2]; }
    void start() { m_scan->start({&junk(), &browser(), &registry()}); }

    std::array<std::unique_ptr<HeldEngine>, 3> m_engines;
    std::unique_ptr<FullScan> m_scan;
};

QTEST_GUILESS_MAIN(TestFullScan)
#include "tst_fullscan.moc"
