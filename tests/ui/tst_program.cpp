#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

#include <csignal>

#include <sys/types.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000; // milliseconds, for what takes a tenth of a second

/// The desktop program while it runs. It is ended with the object at the latest.
class Program final
{
    Q_DISABLE_COPY_MOVE(Program)
public:
    /// Starts the program in the environment of this test. @p locale is that of the system.
    explicit Program(const QString &locale)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : environment.keys()) {
            if (name.startsWith("LC_"_L1) || name == "LANGUAGE"_L1)
                environment.remove(name);
        }
        environment.insert(u"LANG"_s, locale);
        environment.insert(u"LD_PRELOAD"_s, QStringLiteral(PROGRAM_PROBE));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(PROGRAM), QStringList());
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished(patience);
    }

    /// Whether the event loop was reached. lines() has what the program printed until then.
    [[nodiscard]] bool waitForStart()
    {
        while (!m_output.contains("probe end")) {
            if (!m_process.waitForReadyRead(patience))
                return false;
            m_output += m_process.readAll();
        }
        return true;
    }

    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }

    /// Sends a signal and waits for the end. Returns the exit status, -1 when there is none.
    [[nodiscard]] int leave(int signal)
    {
        ::kill(static_cast<pid_t>(m_process.processId()), signal);
        const bool hasEnded = m_process.waitForFinished(patience);
        m_output += m_process.readAll();
        return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode()
                                                                          : -1;
    }

    /// The printed lines without the time.
    [[nodiscard]] QStringList lines() const
    {
        static const QRegularExpression time(u"^\\[[-0-9:. ]+\\] "_s);
        QStringList list = QString::fromUtf8(m_output).split(u'\n');
        for (QString &line : list)
            line.remove(time);
        return list;
    }
    /// The values of the probe's lines of one kind.
    [[nodiscard]] QStringList probed(const QString &what) const
    {
        const QString begin = "probe "_L1 + what + ": "_L1;
        QStringList values;
        for (const QString &line : lines()) {
            if (line.startsWith(begin))
                values.append(line.mid(begin.size()));
        }
        return values;
    }

private:
    QProcess m_process;
    QByteArray m_output;
};

} // namespace

/// The desktop program itself, started as a user starts it.
class TestProgram : public QObject
{
    Q_OBJECT
public:
    explicit TestProgram(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        for (const QString &folder : {u"config"_s, u"data"_s, u"cache"_s, u"prefix"_s}) {
            QVERIFY(QDir(m_home.folder(folder)).removeRecursively());
            m_home.folder(folder);
        }
    }

    void theStepsOfTheStartComeInTheirOrder()
    {
        Program program(u"de_DE.UTF-8"_s);
        QVERIFY(program.waitForStart());
        QStringList steps;
        for (const QString &line : program.lines()) {
            if (line.startsWith(u'=') || line.startsWith("[Main]"_L1)
                || line.startsWith("[INFO] Application"_L1) || line.startsWith("[INFO] Loaded"_L1)
                || line.startsWith("[INFO] Detected"_L1) || line.startsWith("probe window"_L1)
                || line.startsWith("probe end"_L1))
                steps.append(line);
        }
        QCOMPARE(steps,
                 (QStringList{
                     u"========== Translation Init =========="_s,
                     u"[Main] Settings path: \"%1/Norvak/Sweepwise.conf\""_s.arg(
                         m_home.folder(u"config"_s)),
                     u"[Main] User language from settings: \"\""_s,
                     u"[Main] System language: \"de\""_s,
                     u"[Main] Auto-detected: \"de\""_s,
                     u"[Main] Translation file: \":/translations/Sweepwise_de.qm\""_s,
                     u"[Main] File exists: true"_s,
                     u"[Main] ✓ Translation loaded successfully: \"de\""_s,
                     u"======================================="_s,
                     u"[INFO] Application initializing..."_s,
                     u"[INFO] Detected 0 browsers"_s,
                     u"[INFO] Loaded 25 junk rules"_s,
                     u"[INFO] Loaded 23 browser rules"_s,
                     u"[INFO] Application initialized successfully"_s,
                     u"probe window: MainWindow Sweepwise"_s,
                     u"probe end: "_s,
                 }));
        for (const QString &folder : {u"/logs"_s, u"/backups"_s})
            QVERIFY(QDir(m_home.folder(u"data"_s) + "/Norvak/Sweepwise"_L1 + folder).exists());
    }

    void theStartSetsUpTheApplication()
    {
        Program program(u"en_GB.UTF-8"_s);
        QVERIFY(program.waitForStart());
        QCOMPARE(program.probed(u"application"_s), QStringList(u"Norvak Sweepwise 1.0.0"_s));
        QCOMPARE(program.probed(u"font"_s),
                 QStringList(u"Segoe UI, 10 points, weight 400, italic 0, antialiased 1"_s));
        QCOMPARE(program.probed(u"rounding"_s), QStringList(u"PassThrough"_s));
    }

    void theWindowSpeaksTheChosenLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("scanButton");
        QTest::newRow("the system's")
            << u"de_AT.UTF-8"_s << QString() << u"de"_s << u"🔍  Vollscan starten"_s;
        QTest::newRow("one without a catalogue")
            << u"sv_SE.UTF-8"_s << QString() << u"en"_s << u"🔍  Start Full Scan"_s;
        QTest::newRow("Chinese") << u"zh_CN.UTF-8"_s << QString() << u"zh_TW"_s
                                 << u"🔍  Start Full Scan"_s;
        QTest::newRow("the user's")
            << u"de_DE.UTF-8"_s << u"fr"_s << u"fr"_s << u"🔍  Analyse complète"_s;
        QTest::newRow("an unknown one of the user")
            << u"de_DE.UTF-8"_s << u"xx"_s << u"xx"_s << u"🔍  Start Full Scan"_s;
    }
    void theWindowSpeaksTheChosenLanguage()
    {
        QFETCH(QString, locale);
        QFETCH(QString, stored);
        QFETCH(QString, code);
        QFETCH(QString, scanButton);
        if (!stored.isEmpty()) {
            QSettings store(m_home.folder(u"config"_s) + "/Norvak/Sweepwise.conf"_L1,
                            QSettings::IniFormat);
            store.setValue("language"_L1, stored);
        }
        Program program(locale);
        QVERIFY(program.waitForStart());
        QVERIFY(program.lines().contains(
            u"[Main] Translation file: \":/translations/Sweepwise_%1.qm\""_s.arg(code)));
        QCOMPARE(program.probed(u"button"_s), QStringList(scanButton));
    }

    void itLeavesOnASignal_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("terminate") << SIGTERM;
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("hangup") << SIGHUP;
    }
    void itLeavesOnASignal()
    {
        QFETCH(int, signal);
        Program program(u"en_GB.UTF-8"_s);
        QVERIFY(program.waitForStart());
        QCOMPARE(program.leave(signal), 0);
    }

    // Nothing keeps a user from starting the program twice.
    void twoProgramsRunBesideEachOther()
    {
        Program first(u"en_GB.UTF-8"_s);
        QVERIFY(first.waitForStart());
        Program second(u"en_GB.UTF-8"_s);
        QVERIFY(second.waitForStart());
        QVERIFY(first.isRunning());
        QCOMPARE(second.leave(SIGTERM), 0);
        QVERIFY(first.isRunning());
        QCOMPARE(first.leave(SIGTERM), 0);
        // Both write to the log of the day.
        const QDir logs(m_home.folder(u"data"_s) + "/Norvak/Sweepwise/logs"_L1);
        QCOMPARE(logs.entryList(QDir::Files).size(), 1);
        QFile log(logs.filePath(logs.entryList(QDir::Files).constFirst()));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray text = log.readAll();
        QCOMPARE(text.count("] [INFO] Application initializing...\n"), 2);
        QCOMPARE(text.count("] [INFO] Application initialized successfully\n"), 2);
        QCOMPARE(text.count("Sweepwise Log Started: "), 2);
    }

    void aSecondStartKeepsTheSettings()
    {
        const QString file = m_home.folder(u"config/Norvak"_s) + "/Sweepwise.ini"_L1;
        QSettings(file, QSettings::IniFormat).setValue("clean/confirmClean"_L1, false);
        for (int start = 0; start < 2; ++start) {
            Program program(u"en_GB.UTF-8"_s);
            QVERIFY(program.waitForStart());
            QCOMPARE(program.leave(SIGTERM), 0);
            QCOMPARE(QSettings(file, QSettings::IniFormat).value("clean/confirmClean"_L1),
                     QVariant(u"false"_s));
        }
    }

private:
    const TestHome &m_home;
};

int main(int argc, char *argv[])
{
    const TestHome home;
    const QCoreApplication application(argc, argv);
    TestProgram test(home);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_program.moc"
