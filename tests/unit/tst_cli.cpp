#include "appinfo.h"
#include "companion.h"
#include "registrybackup.h"
#include "registryfixture.h"
#include "testhome.h"
#include "testtree.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSet>
#include <QStandardPaths>
#include <QTest>

#ifdef Q_OS_UNIX
#include <array>

#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

using companion::Run;
using companion::run;

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
    void init() { m_temp = companion::fillTemporaryFolder(m_home); }

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
                 (QStringList{u"cancelled"_s, u"categories"_s, u"checkedCount"_s, u"checkedSize"_s,
                              u"engine"_s, u"incomplete"_s, u"incompleteCount"_s, u"scanTime"_s,
                              u"totalCount"_s, u"totalSize"_s}));
        QCOMPARE(plain["cancelled"_L1], QJsonValue(false));
        QCOMPARE(plain["incomplete"_L1], QJsonValue(QJsonArray()));
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
    void failuresAreNamedAndCounted()
    {
        // One file that two rules list: the second removal finds nothing.
        const QString windows = m_home.setFolderVariable("WINDIR", u"windows"_s);
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

    void untickedItemsOfATickedCategoryAreShown()
    {
        m_home.setFolderVariable("LOCALAPPDATA", u"local"_s);
        const auto unset = qScopeGuard([] { qunsetenv("LOCALAPPDATA"); });
        const QString profile = m_home.folder(u"local/Google/Chrome/User Data/Default"_s);
        const auto make = [&profile](const QString &name) {
            QFile file(profile + u'/' + name);
            if (!file.open(QIODevice::WriteOnly) || file.write("1234567") != 7)
                qFatal("cannot write %s", qPrintable(file.fileName()));
        };
        const QString database =
            m_home.folder(u"local/Google/Chrome/User Data/Default/Session Storage"_s);
        for (const QString &name : {u"CURRENT"_s, u"MANIFEST-000001"_s, u"000003.log"_s})
            make("Session Storage/"_L1 + name);
        make(u"debug.log"_s);

        const Run text = run({u"scan"_s, u"browser"_s, u"--items"_s});
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.contains("[-] Google Chrome - Browser Logs"));
        QVERIFY(text.output.contains("\n  [x] 7 B  " + profile.toUtf8() + "/debug.log\n"));
        QVERIFY(text.output.contains("\n  [ ] 7 B  " + database.toUtf8()
                                     + "/000003.log (high risk) - Holds part of a database: "));
        QVERIFY(text.output.contains("Found 2 items, 14 B; selected 1 items, 7 B."));
        QFile::remove(profile + "/debug.log"_L1);
        QVERIFY(run({u"scan"_s, u"browser"_s}).output.contains("[ ] Google Chrome - Browser Logs"));
        make(u"debug.log"_s);

        const QJsonObject scan =
            QJsonDocument::fromJson(
                run({u"scan"_s, u"browser"_s, u"--json"_s, u"--items"_s}).output)
                .object();
        QCOMPARE(scan["totalCount"_L1].toInt(), 2);
        QCOMPARE(scan["checkedCount"_L1].toInt(), 1);
        QCOMPARE(scan["checkedSize"_L1].toInt(), 7);
        const QJsonObject logs = scan["categories"_L1][0].toObject();
        QVERIFY(logs["checked"_L1].toBool());
        QCOMPARE(logs["checkedCount"_L1].toInt(), 1);
        QCOMPARE(logs["riskLevel"_L1].toInt(), 0);
        const QJsonArray items = logs["items"_L1].toArray();
        for (const auto &item : items) {
            const bool isLog = item["name"_L1] == "debug.log"_L1;
            QCOMPARE(item["checked"_L1].toBool(), isLog);
            QCOMPARE(item["riskLevel"_L1].toInt(), isLog ? 0 : 2);
            QCOMPARE(item["description"_L1].toString().isEmpty(), isLog);
        }

        const Run clean =
            run({u"clean"_s, u"browser"_s, u"--yes"_s, u"--category"_s, u"google_chrome_logs"_s});
        QCOMPARE(clean.exitCode, 0);
        QVERIFY(clean.output.contains("Cleaned 1 items, freed 7 B; 0 failed."));
        QVERIFY(QFile::exists(database + "/000003.log"_L1));
        QVERIFY(!QFile::exists(profile + "/debug.log"_L1));
    }

    void aLineBreakInANameForgesNoLine()
    {
        companion::writeFile(m_temp, u"x\nFound 0 items"_s, 1);
        const Run scan = run({u"scan"_s, u"junk"_s, u"--items"_s});
        QVERIFY(scan.output.contains(u"x\uFFFDFound 0 items"_s.toUtf8()));
        QCOMPARE(scanJson({u"--items"_s})["totalCount"_L1].toInteger(), 3);
    }

    void everyNameArrivesInTheJson()
    {
        QStringList names{u"a.tmp"_s, u"b"_s};
        for (const char16_t *name :
             {u"quote\"s", u"back\\slash", u"tab\there", u"line\nbreak", u"\x7f\x1b",
              u"\u4e2d\u6587 \U0001F600", u"[1, {}]", u" blank "}) {
            names.append(QString::fromUtf16(name));
            companion::writeFile(m_temp, names.constLast(), 1);
        }
        const QJsonObject object = scanJson({u"--items"_s});
        QStringList listed;
        const QJsonArray categories = object["categories"_L1].toArray();
        for (const QJsonValue &item : categories.first()["items"_L1].toArray())
            listed.append(item["name"_L1].toString());
        listed.sort();
        names.sort();
        QCOMPARE(listed, names);
        QCOMPARE(object["totalCount"_L1].toInt(), names.size());
    }

    void aFullDiskIsAFailure()
    {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QString::fromLocal8Bit(CLI_PROGRAM), {u"scan"_s, u"junk"_s, u"--json"_s});
        QVERIFY(process.waitForFinished(60'000));
        QCOMPARE(process.exitCode(), 2);
    }

    // The next file that is opened would get the number of a stream that is closed: the log.
    void closedStreamsGoNowhere_data()
    {
        QTest::addColumn<QList<int>>("closed");
        QTest::addColumn<int>("status");
        QTest::newRow("output") << QList<int>{STDOUT_FILENO} << 2;
        QTest::newRow("errors") << QList<int>{STDERR_FILENO} << 0;
        QTest::newRow("all") << QList<int>{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO} << 2;
    }

    void closedStreamsGoNowhere()
    {
        QFETCH(QList<int>, closed);
        QFETCH(int, status);
        QCOMPARE(run({u"scan"_s, u"junk"_s}).exitCode, 0); // makes the folder of the logs
        QDir logs(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
        QVERIFY(logs.cd(appinfo::organisation + u'/' + appinfo::name + "/logs"_L1));
        for (const QString &name : logs.entryList(QDir::Files))
            QVERIFY(logs.remove(name));
        QProcess process;
        process.setChildProcessModifier([closed] {
            for (const int fd : closed)
                ::close(fd);
        });
        process.start(QString::fromLocal8Bit(CLI_PROGRAM), {u"scan"_s, u"junk"_s, u"--items"_s});
        QVERIFY(process.waitForFinished(60'000));
        QCOMPARE(process.exitCode(), status);
        QFile log(logs.filePath(logs.entryList(QDir::Files).constFirst()));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray content = log.readAll();
        QVERIFY(content.contains("Junk scan finished"));
        QVERIFY2(!content.contains("temp_files") && !content.contains("sweepwise-cli"),
                 content.constData());
    }

    // A pipe that does not wait refuses what its reader has not made room for.
    void aReportThatCannotBeWrittenEndsThere()
    {
        for (int i = 0; i < 3'000; ++i)
            companion::writeFile(m_temp, u"a file %1"_s.arg(i), 1);
        const QStringList command{u"scan"_s, u"junk"_s, u"--items"_s, u"--json"_s};
        const auto withoutTime = [](const QByteArray &report) {
            static const QRegularExpression time(u"\"scanTime\": \"[^\"]*\""_s);
            return QString::fromUtf8(report).remove(time);
        };
        const QString whole = withoutTime(run(command).output);
        std::array<int, 2> pipe{-1, -1};
        QCOMPARE(::pipe2(pipe.data(), O_NONBLOCK | O_CLOEXEC), 0);
        QVERIFY(::fcntl(pipe[1], F_SETPIPE_SZ, 4096) > 0);
        QProcess process;
        process.setChildProcessModifier([&pipe] { ::dup2(pipe[1], STDOUT_FILENO); });
        process.start(QString::fromLocal8Bit(CLI_PROGRAM), command);
        ::close(pipe[1]);
        QVERIFY(process.waitForFinished(60'000)); // it waits for no reader
        QByteArray received;
        std::array<char, 512> part{};
        for (ssize_t count = -1; count != 0;) {
            count = ::read(pipe[0], part.data(), part.size());
            if (count > 0)
                received.append(part.data(), count);
        }
        ::close(pipe[0]);
        QCOMPARE(process.exitCode(), 2);
        const QString begin = withoutTime(received);
        QVERIFY(!begin.isEmpty());
        QVERIFY(begin.size() < whole.size());
        QVERIFY(whole.startsWith(begin));
    }
#endif

    void theRegistryIsScannedCleanedAndRestored()
    {
        RegistryFixture fixture(m_home);
        const QString key =
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\"
            "Sweepwise cli.exe"_s;
        const QString dlls =
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\SharedDLLs"_s;
        fixture.addText(key, {}, u"C:\\Sweepwise Missing\\cli.exe"_s);
        fixture.addBytes(key, u"Data"_s, 3, QByteArray(30, 'd'));
        fixture.addText(dlls, u"sweepwise.dll"_s, u"1"_s);
        fixture.write();

        const Run scan = run({u"scan"_s, u"registry"_s, u"--items"_s});
        QCOMPARE(scan.exitCode, 0);
        QVERIFY(scan.output.contains("[x] Invalid Software Paths"));
        QVERIFY(scan.output.contains("[ ] Invalid Shared DLLs"));
        QVERIFY(scan.output.contains("\\App Paths\\Sweepwise cli.exe  Path: C:\\Sweepwise"));
        QVERIFY(!scan.output.contains(" B"));

        const QString backup = m_home.folder(u"backups"_s) + "/cli.reg"_L1;
        const Run clean = run({u"clean"_s, u"registry"_s, u"--category"_s, u"invalid_software"_s,
                               u"--backup"_s, backup, u"--yes"_s});
        QVERIFY2(clean.exitCode == 0 || clean.exitCode == 1, clean.error.constData());
        QVERIFY(clean.output.contains("Cleaned "));
        QVERIFY(!fixture.hasKey(key));
        QVERIFY(fixture.hasValue(dlls, u"sweepwise.dll"_s));

        // The next clean does not overwrite it.
        const Run again = run({u"clean"_s, u"registry"_s, u"--backup"_s, backup, u"--yes"_s});
        QCOMPARE(again.exitCode, 2);
        QVERIFY(again.error.contains("there is a file of this name already: "));

        const Run restored = run({u"restore"_s, backup, u"--json"_s});
        QCOMPARE(restored.exitCode, 0);
        const QJsonObject object = QJsonDocument::fromJson(restored.output).object();
        QCOMPARE(names(object),
                 (QStringList{u"cancelled"_s, u"entries"_s, u"failedCount"_s, u"incomplete"_s,
                              u"incompleteCount"_s, u"restoredCount"_s}));
        QCOMPARE(object["failedCount"_L1].toInt(), 0);
        QVERIFY(object["restoredCount"_L1].toInt() >= 3);
        QVERIFY(fixture.hasValue(key, u"Data"_s));
        QVERIFY(fixture.hasValue(key, {}));
    }

    void startUpProgramsAreListedAndSwitched()
    {
        RegistryFixture fixture(m_home);
        const QString path = companion::addProgram(fixture, m_home, u"Sweepwise Player"_s);
        fixture.write();
        const QString run =
            u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
        const auto startup = [](const QStringList &words) {
            return companion::run(QStringList{u"startup"_s} + words);
        };
        QVERIFY(startup({u"list"_s}).output.contains("[ ] Sweepwise Player  "));
        QCOMPARE(startup({u"enable"_s, u"sweepwise player"_s}).exitCode, 0);
        QVERIFY(fixture.hasValue(run, u"Sweepwise Player"_s));
        const QJsonArray apps =
            QJsonDocument::fromJson(startup({u"list"_s, u"--json"_s}).output)["apps"_L1].toArray();
        QJsonObject found;
        for (const auto &app : apps) {
            if (app["name"_L1] == "Sweepwise Player"_L1)
                found = app.toObject();
        }
        QCOMPARE(names(found),
                 (QStringList{u"exePath"_s, u"iconPath"_s, u"id"_s, u"isStartup"_s, u"name"_s,
                              u"publisher"_s}));
        QCOMPARE(found["exePath"_L1].toString(), path);
        QVERIFY(found["isStartup"_L1].toBool());
        QCOMPARE(startup({u"disable"_s, u"Sweepwise Player"_s}).exitCode, 0);
        QVERIFY(!fixture.hasValue(run, u"Sweepwise Player"_s));
        const Run unknown = startup({u"enable"_s, u"Sweepwise Nothing"_s});
        QCOMPARE(unknown.exitCode, 2);
        QVERIFY(unknown.error.contains("Sweepwise Nothing"));
        QVERIFY(!fixture.hasValue(run, u"Sweepwise Nothing"_s));
    }

    void aFailedBackupIsNamed()
    {
        RegistryFixture fixture(m_home);
        fixture.addText(u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s,
                        u"Sweepwise cli"_s, u"C:\\Sweepwise\\missing.exe"_s);
        fixture.write();
        const Run clean =
            run({u"clean"_s, u"registry"_s, u"--category"_s, u"invalid_startup"_s, u"--backup"_s,
                 m_home.path() + "/no such folder/b.reg"_L1, u"--yes"_s});
        QCOMPARE(clean.exitCode, 1);
        QVERIFY(clean.output.contains("the backup could not be written: There is no such folder"));
    }

    void aDamagedBackupRestoresNothing()
    {
        const QString path = m_home.folder(u"backups"_s) + "/damaged.reg"_L1;
        QString error;
        QVERIFY(RegistryBackup::write(path,
                                      u"Windows Registry Editor Version 5.00\r\n\r\n"
                                      "[HKEY_CURRENT_USER\\Software\\Sweepwise cli]\r\n"
                                      "\"a\"=\"b\"\r\n\"c\"=\"d\r\n"_s,
                                      error));
        RegistryFixture fixture(m_home);
        const Run restored = run({u"restore"_s, path});
        QCOMPARE(restored.exitCode, 2);
        QVERIFY2(restored.error.contains("line 5"), restored.error.constData());
        QVERIFY(!fixture.hasKey(u"HKEY_CURRENT_USER\\Software\\Sweepwise cli"_s));
    }

#ifdef Q_OS_UNIX
    void aRestoreTellsOfEachEntry()
    {
        const QString path = m_home.folder(u"backups"_s) + "/two hives.reg"_L1;
        QString error;
        QVERIFY(RegistryBackup::write(path,
                                      u"Windows Registry Editor Version 5.00\r\n\r\n"
                                      "[HKEY_CURRENT_USER\\Software\\Sweepwise cli]\r\n"
                                      "@=\"b\"\r\n\"c\"=\"d\"\r\n\r\n"
                                      "[HKEY_LOCAL_MACHINE\\Software\\Sweepwise cli]\r\n"
                                      "\"a\"=\"b\"\r\n\r\n"_s,
                                      error));
        RegistryFixture fixture(m_home);
        const QString user = u"HKEY_CURRENT_USER\\SOFTWARE\\Sweepwise cli"_s;
        fixture.addText(user + " other"_L1, u"a"_s, u"b"_s);
        fixture.write();
        // Nothing can be written in the place of a registry file where there is a folder.
        const QString machine = fixture.file(u"HKEY_LOCAL_MACHINE"_s);
        QVERIFY(!QFile::exists(machine) || QFile::remove(machine));
        QVERIFY(QDir().mkpath(machine));
        const Run restored = run({u"restore"_s, path});
        QVERIFY(QDir().rmdir(machine));
        QCOMPARE(restored.exitCode, 1);
        QVERIFY(fixture.hasValue(user, {}) && fixture.hasValue(user, u"c"_s));
        const QString reason = machine + " cannot be read: It is not a registry file"_L1;
        QCOMPARE(QString::fromUtf8(restored.output).split(u'\n'),
                 (QStringList{
                     u"Restored: HKEY_CURRENT_USER\\Software\\Sweepwise cli"_s,
                     u"Restored: HKEY_CURRENT_USER\\Software\\Sweepwise cli @"_s,
                     u"Restored: HKEY_CURRENT_USER\\Software\\Sweepwise cli c"_s,
                     u"Not restored: HKEY_LOCAL_MACHINE\\Software\\Sweepwise cli - "_s + reason,
                     u"Not restored: HKEY_LOCAL_MACHINE\\Software\\Sweepwise cli a - "_s + reason,
                     u"Restored 3 keys and values; 2 failed."_s,
                     u"Incomplete. Places that could not be read: 1"_s,
                     QString(),
                 }));
    }

    void browsersAreScannedAndCleanedByName()
    {
        const TestTree tree;
        tree.folder(u"AppData/Roaming"_s);
        const QString chrome =
            tree.file(u"Local/Google/Chrome/User Data/Default/GPUCache/a"_s, "12");
        const QString cookies = tree.file(u"Local/Google/Chrome/User Data/Default/Cookies"_s, "1");
        const QString edge = tree.file(u"Local/Microsoft/Edge/User Data/Default/GPUCache/b"_s, "3");
        qputenv("USERPROFILE", tree.path().toUtf8());
        qputenv("LOCALAPPDATA", tree.path(u"Local"_s).toUtf8());
        const auto unset = qScopeGuard([] {
            qunsetenv("USERPROFILE");
            qunsetenv("LOCALAPPDATA");
        });
        const Run all = run({u"scan"_s, u"browser"_s});
        QCOMPARE(all.exitCode, 0);
        QVERIFY(all.output.contains("[x] Google Chrome - GPU Cache"));
        QVERIFY(all.output.contains("[ ] Google Chrome - Cookies"));
        QVERIFY(all.output.contains("microsoft_edge_gpu_cache"));
        for (const QString &name : {u"edge"_s, u"Microsoft Edge"_s, u"microsoft_edge"_s}) {
            const Run one = run({u"scan"_s, u"browser"_s, u"--browser"_s, name, u"--items"_s});
            QCOMPARE(one.exitCode, 0);
            QVERIFY2(one.output.contains(edge.toUtf8()), qPrintable(name));
            QVERIFY(!one.output.contains("google_chrome"));
        }
        const Run two = run({u"scan"_s, u"browser"_s, u"--browser"_s, u"edge"_s, u"--browser"_s,
                             u"chrome"_s, u"--json"_s});
        const QJsonObject report = QJsonDocument::fromJson(two.output).object();
        QCOMPARE(report["engine"_L1].toString(), u"browser"_s);
        QCOMPARE(report["categories"_L1].toArray().size(), 3);

        const Run clean = run({u"clean"_s, u"browser"_s, u"--yes"_s, u"--browser"_s, u"chrome"_s});
        QCOMPARE(clean.exitCode, 0);
        QVERIFY(clean.output.contains("Cleaned 1 items, freed 2 B; 0 failed"));
        QVERIFY(!QFile::exists(chrome));
        QVERIFY(QFile::exists(cookies) && QFile::exists(edge));
    }
#endif

    void largeFilesAreListedLargestFirst()
    {
        const QString folder = m_home.folder(u"big"_s);
        for (const auto &[name, size] :
             {std::pair{u"middle.iso"_s, 2'097'152}, std::pair{u"large\u0301.mp4"_s, 3'145'728},
              std::pair{u"small.txt"_s, 2'097'151}}) {
            QFile file(folder + u'/' + name);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size));
        }
        const Run json = run({u"large-files"_s, folder, u"--min-size"_s, u"2M"_s, u"--json"_s});
        QCOMPARE(json.exitCode, 0);
        QVERIFY(json.error.isEmpty());
        const QJsonObject object = QJsonDocument::fromJson(json.output).object();
        QCOMPARE(names(object),
                 (QStringList{u"cancelled"_s, u"files"_s, u"filesScanned"_s, u"incomplete"_s,
                              u"incompleteCount"_s, u"totalCount"_s, u"totalSize"_s}));
        QCOMPARE(object.value("filesScanned"_L1).toInt(), 3);
        QCOMPARE(object.value("totalCount"_L1).toInt(), 2);
        QCOMPARE(object.value("totalSize"_L1).toInt(), 5'242'880);
        const QJsonArray files = object.value("files"_L1).toArray();
        QCOMPARE(files.size(), 2);
        QCOMPARE(names(files.at(0).toObject()),
                 (QStringList{u"directory"_s, u"modified"_s, u"name"_s, u"path"_s, u"size"_s,
                              u"type"_s}));
        QCOMPARE(files.at(0)["name"_L1].toString(), u"large\u0301.mp4"_s);
        QCOMPARE(files.at(0)["type"_L1].toString(), u"video"_s);
        QCOMPARE(files.at(0)["directory"_L1].toString(), folder);
        QCOMPARE(files.at(1)["name"_L1].toString(), u"middle.iso"_s);
        QCOMPARE(files.at(1)["size"_L1].toInt(), 2'097'152);

        const Run text = run({u"large-files"_s, folder, u"--min-size=2097152"_s});
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.output.contains("Found 2 large files, 5.0 MB, among 3 files"));
        QVERIFY(text.output.indexOf("3.0 MB") < text.output.indexOf("2.0 MB"));
        const Run none = run({u"large-files"_s, folder});
        QCOMPARE(none.exitCode, 0);
        QVERIFY(none.output.contains("Found 0 large files"));
    }

private:
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
