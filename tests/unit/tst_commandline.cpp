#include "appinfo.h"
#include "companion.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using companion::Run;
using companion::run;

} // namespace

/// Which uses of the companion's commands and options are taken and which are refused.
class TestCommandLine : public QObject
{
    Q_OBJECT
public:
    explicit TestCommandLine(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init() { m_temp = companion::fillTemporaryFolder(m_home); }

    void cleaningWantsAYes()
    {
        const Run clean = run({u"clean"_s, u"junk"_s});
        QCOMPARE(clean.exitCode, 2);
        QVERIFY(clean.error.contains("--yes"));
        QVERIFY(clean.output.isEmpty());
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
    }

    void wrongUseIsRefused_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::newRow("nothing") << QString();
        QTest::newRow("no engine") << u"scan"_s;
        QTest::newRow("unknown command") << u"burn junk"_s;
        QTest::newRow("unknown engine") << u"scan attic"_s;
        QTest::newRow("unknown option") << u"scan junk --now"_s;
        QTest::newRow("unknown category") << u"clean junk --yes --category attic"_s;
        QTest::newRow("too many words") << u"scan junk junk"_s;
        QTest::newRow("scan does not delete") << u"scan junk --yes"_s;
        QTest::newRow("clean lists no items") << u"clean junk --yes --items"_s;
        QTest::newRow("registry without a word on a backup") << u"clean registry --yes"_s;
        QTest::newRow("registry with two words on it")
            << u"clean registry --yes --no-backup --backup b.reg"_s;
        QTest::newRow("registry without a yes") << u"clean registry --no-backup"_s;
        QTest::newRow("unknown registry category")
            << u"clean registry --yes --no-backup --category temp_files"_s;
        QTest::newRow("browser without a yes") << u"clean browser"_s;
        QTest::newRow("unknown browser") << u"scan browser --browser netscape"_s;
        QTest::newRow("unknown browser category") << u"clean browser --yes --category temp_files"_s;
        QTest::newRow("browser of junk") << u"scan junk --browser chrome"_s;
        QTest::newRow("backup of junk") << u"clean junk --yes --backup b.reg"_s;
        QTest::newRow("startup alone") << u"startup"_s;
        QTest::newRow("startup with an unknown word") << u"startup fly x"_s;
        QTest::newRow("startup of nothing") << u"startup enable"_s;
        QTest::newRow("startup list with a name") << u"startup list x"_s;
        QTest::newRow("startup says no yes") << u"startup list --yes"_s;
        QTest::newRow("no file to restore") << u"restore"_s;
        QTest::newRow("missing file to restore") << u"restore missing.reg"_s;
        QTest::newRow("restore says no yes") << u"restore missing.reg --yes"_s;
    }

    void wrongUseIsRefused()
    {
        QFETCH(QString, arguments);
        const Run refused = run(arguments.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.output.isEmpty());
        QVERIFY(refused.error.startsWith("sweepwise-cli: "));
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
    }

    void helpNamesTheExitStatuses()
    {
        const Run help = run({u"--help"_s});
        QCOMPARE(help.exitCode, 0);
        for (const char *word :
             {"scan ENGINE", "clean ENGINE", "restore FILE", "Engines: junk, browser", "--browser",
              "--items", "--json", "--yes", "--category", "--backup", "--no-backup", "Exit status"})
            QVERIFY2(help.output.contains(word), word);
    }

    void theVersionIsTheProgramsOwn()
    {
        const Run version = run({u"--version"_s});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.output.contains(QString(appinfo::version).toUtf8()));
    }

    void largeFilesRefusesWhatItCannotUse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no folder") << QStringList{u"large-files"_s};
        QTest::newRow("a missing folder") << QStringList{u"large-files"_s, u"/no/such/folder"_s};
        for (const QString &size : {u"0"_s, u"-1"_s, u"M"_s, u"1.5G"_s, u"1T"_s, u"9999999999G"_s,
                                    u"99999999999999999999"_s})
            QTest::newRow(qPrintable("size "_L1 + size))
                << QStringList{u"large-files"_s, m_home.path(), u"--min-size="_s + size};
        QTest::newRow("an option of the others")
            << QStringList{u"large-files"_s, m_home.path(), u"--yes"_s};
        QTest::newRow("a size for the others")
            << QStringList{u"scan"_s, u"junk"_s, u"--min-size=5M"_s};
    }

    void largeFilesRefusesWhatItCannotUse()
    {
        QFETCH(QStringList, arguments);
        const Run refused = run(arguments);
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.output.isEmpty());
        QVERIFY(refused.error.startsWith("sweepwise-cli: "));
    }

private:
    const TestHome &m_home;
    QString m_temp;
};

SWEEPWISE_TEST_MAIN(TestCommandLine, QCoreApplication)
#include "tst_commandline.moc"
