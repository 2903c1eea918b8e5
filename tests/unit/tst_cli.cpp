#include "appinfo.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run {
    int exitCode = -1;
    QByteArray output;
    QByteArray error;
};

Run run(const QStringList &arguments)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(CLI_PROGRAM), arguments);
    if (!process.waitForFinished(60'000))
        qFatal("the companion did not end");
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

QStringList names(const QJsonObject &object)
{
    return object.keys(); // sorted
}

} // namespace

/// The companion as its users run it: a process with arguments, output and an exit status.
class TestCli : public QObject
{
    Q_OBJECT
public:
    explicit TestCli(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_temp = m_home.folder(u"temp"_s);
        qputenv("TMPDIR", QFile::encodeName(m_temp));
        qputenv("TMP", m_temp.toUtf8());
        qputenv("TEMP", m_temp.toUtf8());
        QVERIFY(QDir(m_temp).removeRecursively());
        QVERIFY(QDir().mkpath(m_temp + "/sub"_L1));
        write(u"a.tmp"_s, 3);
        write(u"sub/b"_s, 1500);
    }

    void aScanPrintsCategoriesAndTotals()
    {
        const Run scan = run({u"scan"_s, u"junk"_s});
        QCOMPARE(scan.exitCode, 0);
        QVERIFY(scan.error.isEmpty());
        QVERIFY(scan.output.contains("[x] System Temporary Files"));
        QVERIFY(scan.output.contains("temp_files"));
        QVERIFY(!scan.output.contains("a.tmp"));
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
    }

    void itemsAreListedOnRequest()
    {
        const Run scan = run({u"scan"_s, u"junk"_s, u"--items"_s});
        QCOMPARE(scan.exitCode, 0);
        QVERIFY(scan.output.contains(m_temp.toUtf8() + "/a.tmp"));
        QVERIFY(scan.output.contains("1.5 KB"));
    }

    void jsonHasTheRecordsOwnFieldNames()
    {
        const QJsonObject plain = scanJson({});
        QCOMPARE(names(plain),
                 (QStringList{u"categories"_s, u"checkedCount"_s, u"checkedSize"_s, u"engine"_s,
                              u"scanTime"_s, u"totalCount"_s, u"totalSize"_s}));
        QCOMPARE(plain["engine"_L1].toString(), u"junk"_s);
        QVERIFY(QDateTime::fromString(plain["scanTime"_L1].toString(), Qt::ISODate).isValid());
        const QJsonObject category = tempFiles(plain);
        QCOMPARE(names(category),
                 (QStringList{u"checked"_s, u"checkedCount"_s, u"description"_s, u"id"_s, u"name"_s,
                              u"riskLevel"_s, u"totalSize"_s}));
        QVERIFY(category["totalSize"_L1].toInteger() >= 1503);

        const QJsonObject withItems = scanJson({u"--items"_s});
        const QJsonArray items = tempFiles(withItems)["items"_L1].toArray();
        QVERIFY(items.size() >= 2);
        QSet<QString> paths;
        for (const QJsonValue &item : items) {
            QCOMPARE(
                names(item.toObject()),
                (QStringList{u"checked"_s, u"description"_s, u"isDirectory"_s, u"name"_s, u"path"_s,
                             u"registryKey"_s, u"registryRoot"_s, u"riskLevel"_s, u"size"_s}));
            paths.insert(item["path"_L1].toString());
        }
        QVERIFY(paths.contains(m_temp + "/a.tmp"_L1));
        QCOMPARE(plain["totalCount"_L1].toInteger(), withItems["totalCount"_L1].toInteger());
    }

    void cleaningWantsAYes()
    {
        const Run clean = run({u"clean"_s, u"junk"_s});
        QCOMPARE(clean.exitCode, 2);
        QVERIFY(clean.error.contains("--yes"));
        QVERIFY(clean.output.isEmpty());
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
    }

    void cleaningRemovesWhatIsTickedByDefault()
    {
        const Run clean = run({u"clean"_s, u"junk"_s, u"--yes"_s});
        QCOMPARE(clean.exitCode, 0);
        QVERIFY(clean.output.contains("Cleaned "));
        QVERIFY(clean.output.contains("0 failed"));
        QVERIFY(!QFile::exists(m_temp + "/a.tmp"_L1));
        QVERIFY(QFile::exists(m_temp + "/sub"_L1));
    }

    void aCategoryNarrowsTheClean()
    {
        const Run other = run({u"clean"_s, u"junk"_s, u"--yes"_s, u"--category"_s, u"prefetch"_s});
        QCOMPARE(other.exitCode, 0);
        QVERIFY(other.output.contains("Cleaned 0 items"));
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
        const Run both = run({u"clean"_s, u"junk"_s, u"--yes"_s, u"--category"_s, u"prefetch"_s,
                              u"--category"_s, u"temp_files"_s});
        QCOMPARE(both.exitCode, 0);
        QVERIFY(!QFile::exists(m_temp + "/a.tmp"_L1));
    }

#ifdef Q_OS_UNIX
    void whatCouldNotBeCleanedIsNamedAndCounted()
    {
        // One file that two rules list: the second removal finds nothing.
        const QString windows = m_home.point("WINDIR", u"windows"_s);
        m_home.folder(u"windows/Logs/CBS"_s);
        QFile log(windows + "/Logs/CBS/cbs.log"_L1);
        QVERIFY(log.open(QIODevice::WriteOnly));
        const Run clean = run({u"clean"_s, u"junk"_s, u"--yes"_s, u"--category"_s, u"log_files"_s});
        qunsetenv("WINDIR");
        QCOMPARE(clean.exitCode, 1);
        QVERIFY(clean.output.contains("Not cleaned: " + windows.toUtf8() + "/Logs/CBS/cbs.log - "));
        QVERIFY(clean.output.contains("Cleaned 1 items"));
        QVERIFY(!log.exists());
    }

    void aLineBreakInANameForgesNoLine()
    {
        write(u"x\nFound 0 items"_s, 1);
        const Run scan = run({u"scan"_s, u"junk"_s, u"--items"_s});
        QVERIFY(scan.output.contains(u"x\uFFFDFound 0 items"_s.toUtf8()));
        QCOMPARE(scanJson({u"--items"_s})["totalCount"_L1].toInteger(), 3);
    }

    void aFullDiskIsAFailure()
    {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QString::fromLocal8Bit(CLI_PROGRAM), {u"scan"_s, u"junk"_s, u"--json"_s});
        QVERIFY(process.waitForFinished(60'000));
        QCOMPARE(process.exitCode(), 2);
    }
#endif

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
             {"scan junk", "clean junk", "--items", "--json", "--yes", "--category", "Exit status"})
            QVERIFY2(help.output.contains(word), word);
    }

    void theVersionIsTheProgramsOwn()
    {
        const Run version = run({u"--version"_s});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.output.contains(QString(appinfo::version).toUtf8()));
    }

private:
    void write(const QString &name, int size) const
    {
        QFile file(m_temp + u'/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(size, 'x')) != size)
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    static QJsonObject scanJson(const QStringList &more)
    {
        const Run scan = run(QStringList{u"scan"_s, u"junk"_s, u"--json"_s} + more);
        const QJsonDocument document = QJsonDocument::fromJson(scan.output);
        return document.object();
    }

    static QJsonObject tempFiles(const QJsonObject &scan)
    {
        const QJsonArray categories = scan["categories"_L1].toArray();
        for (const QJsonValue &category : categories) {
            if (category["id"_L1].toString() == "temp_files"_L1)
                return category.toObject();
        }
        return {};
    }

    const TestHome &m_home;
    QString m_temp;
};

SWEEPWISE_TEST_MAIN(TestCli, QCoreApplication)
#include "tst_cli.moc"
