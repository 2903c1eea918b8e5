#include "appinfo.h"
#include "leavinghome.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMutex>
#include <QMutexLocker>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
constexpr int rounds = 10; ///< with each page
constexpr int parallelHomes = 1; ///< the homes share settings, log and registry of the system
constexpr int patience = 60'000; ///< milliseconds for one round
const QStringList signalWays;
#else
constexpr int rounds = 125;
constexpr int parallelHomes = 2;
constexpr int patience = 20'000;
const QStringList signalWays{u"terminate"_s, u"interrupt"_s, u"hangup"_s};
#endif
const QStringList windowWays{u"close"_s, u"tray"_s, u"quit"_s, u"session"_s};

/// How a round is played.
struct Round {
    QString page;
    QString way;
    int after = -1; ///< microseconds; negative: after the clean
    int lastStep = 20; ///< milliseconds that the item in hand takes when the program leaves
    int atStep = 0; ///< positive: in this step of the clean, whatever the time
};

/// When the scan and the clean of a round are over that nobody interrupts: microseconds after its
/// start.
struct Times {
    int scan = 0;
    int clean = 0;
};

/// Counts what the rounds of one page have met. All threads, under the mutex.
struct Tally {
    QMutex mutex;
    int untouched = 0;
    int interrupted = 0;
    int complete = 0;
    QStringList failures;
};

/// Plays a round in @p home. Returns what is wrong, and the output of the program in @p output.
QString play(LeavingHome &home, const Round &round, QByteArray &output)
{
    home.prepare();
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + "/leaving"_L1,
                  {u"--home"_s, home.path(), u"--page"_s, round.page, u"--way"_s, round.way,
                   u"--after"_s, QString::number(round.after), u"--last-step"_s,
                   QString::number(round.lastStep), u"--at-step"_s, QString::number(round.atStep)});
    if (!program.waitForFinished(patience)) {
        program.kill();
        program.waitForFinished();
        return u"the program did not leave"_s;
    }
    output = program.readAllStandardOutput();
    if (program.exitStatus() != QProcess::NormalExit || program.exitCode() != 0)
        return u"exit status %1 %2: %3"_s.arg(
            QString::number(program.exitStatus()), QString::number(program.exitCode()),
            QString::fromUtf8(program.readAllStandardError()).right(2000));
    if (!output.trimmed().endsWith("left"))
        return u"the program did not leave its event loop"_s;
    const QString damage = home.findDamage();
    if (!damage.isEmpty())
        return damage;
    if (windowWays.contains(round.way) && home.savedNumber() != 1)
        return u"the settings were not saved"_s;
    return {};
}

/// Plays a round that nobody interrupts. Everything must go. Returns whether it was so.
bool measure(LeavingHome &home, const QString &page, Times &times)
{
    QByteArray output;
    const QString failure = play(home, {page, u"quit"_s}, output);
    const QList<QByteArray> words = output.simplified().split(' ');
    if (!failure.isEmpty() || home.countRemaining() != 0 || words.size() != 3) {
        qWarning("%lld of %lld left, %s: %s", home.countRemaining(), home.count(),
                 output.constData(), qPrintable(failure));
        return false;
    }
    times = {words.at(0).toInt(), words.at(1).toInt()};
    return times.scan > 0 && times.clean > times.scan;
}

/// Plays @p count rounds. Half of them leave before the scan is over, the others up to a little
/// after the end of the clean.
void playMany(LeavingHome &home, const QString &page, int count, const Times &times, quint32 seed,
              Tally &tally)
{
    QRandomGenerator dice(seed);
    const int end = times.clean + (times.clean - times.scan) / 4;
    const QStringList ways = windowWays + signalWays;
    for (int i = 0; i < count; ++i) {
        const int after = i % 2 == 0 ? dice.bounded(times.scan) : dice.bounded(times.scan, end);
        const Round round{page, ways.at(dice.bounded(ways.size())), after};
        QByteArray output;
        const QString failure = play(home, round, output);
        const QMutexLocker locker(&tally.mutex);
        if (!failure.isEmpty())
            tally.failures.append(u"%1, %2, after %3 µs (seed %4, round %5): %6"_s.arg(
                page, round.way, QString::number(round.after), QString::number(seed),
                QString::number(i), failure));
        else if (home.countRemaining() == home.count())
            ++tally.untouched;
        else
            ++(home.countRemaining() == 0 ? tally.complete : tally.interrupted);
    }
}

} // namespace

/// Leaves the program at random moments while a page scans and cleans. Each round is a process of
/// its own. SWEEPWISE_LEAVING_SEED and SWEEPWISE_LEAVING_ROUNDS (with each page) change the game.
class TestLeaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavingTearsNothing_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *page : {"junk", "browser", "registry", "large"})
            QTest::newRow(page) << QString::fromLatin1(page);
    }

    void leavingTearsNothing()
    {
        QFETCH(QString, page);
        std::vector<std::unique_ptr<LeavingHome>> homes;
        for (int i = 0; i < parallelHomes; ++i)
            homes.push_back(std::make_unique<LeavingHome>(page));

        Times times;
        QVERIFY(measure(*homes.front(), page, times));

        const int count = qEnvironmentVariableIntValue("SWEEPWISE_LEAVING_ROUNDS");
        const int all = count > 0 ? count : rounds;
        const auto seed =
            static_cast<quint32>(qEnvironmentVariableIntValue("SWEEPWISE_LEAVING_SEED"));
        Tally tally;
        std::vector<std::unique_ptr<QThread>> threads;
        for (int i = 0; i < parallelHomes; ++i) {
            threads.emplace_back(QThread::create([&, i] {
                playMany(*homes.at(static_cast<std::size_t>(i)), page, (all + i) / parallelHomes,
                         times, seed + static_cast<quint32>(i), tally);
            }));
            threads.back()->start();
        }
        for (const auto &thread : threads)
            thread->wait();
        qInfo("%s: the scan takes %d ms, with the clean %d ms; %d rounds left before anything was "
              "removed, %d in between, %d with nothing left",
              qPrintable(page), times.scan / 1'000, times.clean / 1'000, tally.untouched,
              tally.interrupted, tally.complete);
        QVERIFY2(tally.failures.isEmpty(), qPrintable(tally.failures.join(u'\n')));
        // Otherwise the rounds have not tried what they are for.
        if (all >= 100)
            QVERIFY(tally.interrupted > 0);
    }

    // No wait for a worker may have a time limit: the worker would meet the end of the process.
    void anItemThatTakesLongIsWaitedFor_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("junk") << u"junk"_s;
        QTest::newRow("large") << u"large"_s;
    }

    void anItemThatTakesLongIsWaitedFor()
    {
        QFETCH(QString, page);
        LeavingHome home(page);
        constexpr int lastStep = 3'500;
        QElapsedTimer timer;
        timer.start();
        QByteArray output;
        const QString failure = play(home, {page, u"session"_s, -1, lastStep, 2}, output);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QVERIFY(timer.elapsed() >= lastStep);
        QVERIFY(home.countRemaining() > 0);
        QVERIFY(home.countRemaining() < home.count());
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    TestLeaving test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_leaving.moc"
