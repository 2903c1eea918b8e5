#include "appinfo.h"
#include "companion.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Calls a function again and again on a thread of its own, until it is destroyed.
class Repeater final
{
    Q_DISABLE_COPY_MOVE(Repeater)
public:
    template<class Function>
    explicit Repeater(Function function)
        : m_thread(QThread::create([this, function] {
            while (!m_isStopped)
                function();
        }))
    {
        m_thread->start();
    }
    ~Repeater()
    {
        m_isStopped = true;
        m_thread->wait();
    }

private:
    std::atomic_bool m_isStopped = false;
    const std::unique_ptr<QThread> m_thread;
};

constexpr int runsPerRow = 100;

int runCount()
{
#ifdef Q_OS_WIN
    constexpr int usual = 30; // the start of a process takes long there
#else
    constexpr int usual = 1000;
#endif
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("COMPANION_RUNS", &isNumber);
    return isNumber ? wanted : usual;
}

} // namespace

/// Many runs of the companion on a busy machine, while another program exchanges its folders. Each
/// of them ends by itself.
class TestCompanionRuns : public QObject
{
    Q_OBJECT
public:
    explicit TestCompanionRuns(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    // A row stays within the time that the test framework gives a function.
    void everyRunEnds_data()
    {
        QTest::addColumn<int>("count");
        for (int first = 0; first < runCount(); first += runsPerRow)
            QTest::addRow("from run %d", first) << qMin(runsPerRow, runCount() - first);
    }

    void everyRunEnds()
    {
        QFETCH(int, count);
        const QString temp = companion::fillTemporaryFolder(m_home);
        const QString first = m_home.folder(u"temp/first"_s);
        const QString second = m_home.folder(u"temp/second"_s);
        const QString aside = m_home.path() + "/aside"_L1;
        companion::writeFile(m_home.folder(u"fence"_s), u"canary"_s, 7);

        const Repeater exchange([&] {
            QDir().rename(first, aside);
            QDir().rename(second, first);
            QDir().rename(aside, second);
        });
        std::vector<std::unique_ptr<Repeater>> load;
        for (int i = 0; i < QThread::idealThreadCount(); ++i) {
            load.push_back(std::make_unique<Repeater>([] {}));
        }
        for (int number = 0; number < count; ++number) {
            for (const QString &folder : {first, second}) {
                // The folder may be on its way to another name.
                QFile file(folder + "/file"_L1);
                if (file.open(QIODevice::WriteOnly))
                    file.write("x");
            }
            const companion::Run result = companion::run({u"clean"_s, u"junk"_s, u"--yes"_s});
            QVERIFY2(result.exitCode == 0 || result.exitCode == 1, result.error.constData());
            QVERIFY2(result.output.contains("Cleaned "), result.output.constData());
        }
        QCOMPARE(QFile(m_home.path() + "/fence/canary"_L1).size(), 7);
    }

private:
    const TestHome &m_home;
};

SWEEPWISE_TEST_MAIN(TestCompanionRuns, QCoreApplication)
#include "tst_companionruns.moc"
