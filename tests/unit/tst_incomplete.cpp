#include "appinfo.h"
#include "companion.h"
#include "registryfixture.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <cerrno>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace Qt::StringLiterals;

namespace {

using companion::Run;
using companion::run;

const QString runKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

constexpr qint64 hugeSize = qint64(20) << 30; // bytes
const QByteArray hugeMark("huge");
const QByteArray danglingMark("a link that leads nowhere");

/// The file that the first failing call makes.
QString failedFile()
{
    return QDir::homePath() + "/failed"_L1;
}

/// The environment that makes the system call @p name fail with @p error for paths that contain
/// @p path: after @p skip calls, @p count of them.
QStringList failing(const QString &name, int error, const QString &path = {}, int skip = 0,
                    const QString &count = {})
{
    return {"LD_PRELOAD="_L1 + QString::fromLocal8Bit(FAILING_CALLS),
            u"FAILING_CALL=%1:%2:%3:%4:%5"_s.arg(name, QString::number(error), path,
                                                 QString::number(skip), count),
            "FAILING_CALL_FILE="_L1 + failedFile()};
}

/// Whether a call has failed since the last question.
bool hasFailed()
{
    return QFile::remove(failedFile());
}

QJsonObject jsonOf(const Run &result)
{
    return QJsonDocument::fromJson(result.output).object();
}

/// The places of the array "incomplete".
QStringList placesOf(const Run &result)
{
    QStringList places;
    const QJsonArray array = jsonOf(result)["incomplete"_L1].toArray();
    for (const QJsonValue &entry : array) {
        if (entry["reason"_L1].toString().isEmpty())
            qFatal("a failure has no reason");
        places.append(entry["where"_L1].toString());
    }
    return places;
}

/// The paths of all items of a scan.
QStringList pathsOf(const Run &result)
{
    QStringList paths;
    const QJsonArray categories = jsonOf(result)["categories"_L1].toArray();
    for (const QJsonValue &category : categories) {
        const QJsonArray items = category["items"_L1].toArray();
        for (const QJsonValue &item : items)
            paths.append(item["path"_L1].toString());
    }
    return paths;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

/// The companion says what it could not look at: on standard error, in the JSON and by its exit
/// status. The log has a line for it.
class TestIncomplete : public QObject
{
    Q_OBJECT
public:
    explicit TestIncomplete(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_temp = companion::fillTemporaryFolder(m_home);
        QDir(m_home.path() + "/prefix"_L1).removeRecursively();
        RegistryFixture fixture(m_home);
        m_program = companion::addProgram(fixture, m_home, u"Sweepwise Player"_s);
        fixture.addText(runKey, u"Player"_s, u'"' + m_program + u'"');
        fixture.addText(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App "
                        "Paths\\gone.exe"_s,
                        {}, u"C:\\Sweepwise Missing\\gone.exe"_s);
        fixture.addText(runKey, u"Gone"_s, u"C:\\Sweepwise Missing\\gone.exe"_s);
        fixture.write();
        m_machine = fixture.file(u"HKEY_LOCAL_MACHINE"_s);
        m_user = fixture.file(u"HKEY_CURRENT_USER"_s);
        QFile::remove(logPath());
    }

    void nothingIsIncompleteWithoutAFault()
    {
        for (const QStringList &command :
             {QStringList{u"scan"_s, u"registry"_s}, QStringList{u"startup"_s, u"list"_s},
              QStringList{u"scan"_s, u"junk"_s}, QStringList{u"scan"_s, u"browser"_s},
              QStringList{u"large-files"_s, m_temp}}) {
            const Run result = run(command + QStringList{u"--json"_s});
            QCOMPARE(result.exitCode, 0);
            QVERIFY(result.error.isEmpty());
            QCOMPARE(placesOf(result), QStringList());
        }
        QCOMPARE(jsonOf(run({u"scan"_s, u"registry"_s, u"--json"_s}))["totalCount"_L1].toInt(), 2);
    }

    void aRegistryFileThatCannotBeReadIsNamed_data()
    {
        QTest::addColumn<QString>("hive");
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QByteArray>("content");
        const QByteArray asItIs;
        for (const QString &hive : {u"system.reg"_s, u"user.reg"_s}) {
            const auto row = [&hive](const char *fault) -> QTestData & {
                return QTest::newRow(qPrintable(hive + u' ' + QLatin1StringView(fault))) << hive;
            };
            row("not opened") << failing(u"open"_s, EACCES, hive) << asItIs;
            row("no descriptor") << failing(u"open"_s, EMFILE, hive) << asItIs;
            row("no status") << failing(u"stat"_s, EIO, hive) << asItIs;
            row("a link to nothing") << QStringList() << danglingMark;
            row("empty") << QStringList() << QByteArray("");
            row("other text") << QStringList() << QByteArray("Hello\n");
            row("cut off") << QStringList()
                           << QByteArray("WINE REGISTRY Version 2\n\n[Software] 1\n\"x\"=\"y");
            row("huge") << QStringList() << hugeMark;
            row("head without its start")
                << QStringList()
                << QByteArray("WINE REGISTRY Version 2\n\n[A] 1\n\"x\"=\"y\"\n\nSoftware] 1\n");
            row("head without its end")
                << QStringList()
                << QByteArray("WINE REGISTRY Version 2\n\n[Software 1\n\"x\"=\"y\"\n");
            row("zeros") << QStringList()
                         << QByteArray("WINE REGISTRY Version 2\n\n[Soft\0\0\0\0\0\0\n", 40);
        }
    }

    void aRegistryFileThatCannotBeReadIsNamed()
    {
        QFETCH(QString, hive);
        QFETCH(QStringList, variables);
        QFETCH(QByteArray, content);
        const QString path = hive == "system.reg"_L1 ? m_machine : m_user;
        if (content == danglingMark) {
            QVERIFY(QFile::remove(path));
            QVERIFY(QFile::link(path + ".missing"_L1, path));
        } else if (variables.isEmpty()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            if (content == hugeMark)
                QVERIFY(file.resize(hugeSize)); // takes no room on the disk
            else
                QCOMPARE(file.write(content), content.size());
        }
        const bool isHuge = content == hugeMark;
        const QByteArray before = isHuge ? QByteArray() : contentOf(path);
        for (const QStringList &command :
             {QStringList{u"scan"_s, u"registry"_s}, QStringList{u"startup"_s, u"list"_s},
              QStringList{u"clean"_s, u"registry"_s, u"--yes"_s, u"--no-backup"_s},
              QStringList{u"scan"_s, u"junk"_s}}) {
            QFile::remove(logPath());
            const Run json = run(command + QStringList{u"--json"_s}, variables);
            QCOMPARE(json.exitCode, 1);
            QVERIFY2(placesOf(json).contains(path), json.output.constData());
            QVERIFY2(json.error.contains("Cannot read " + path.toUtf8()), json.error.constData());
            const QByteArray log = contentOf(logPath());
            QVERIFY2(log.contains("[WARN] Cannot read " + path.toUtf8()), log.constData());
            const bool isClean = command.constFirst() == "clean"_L1; // scans first
            QCOMPARE(log.count("Cannot read " + path.toUtf8()), isClean ? 2 : 1);
            const Run text = run(command, variables);
            QCOMPARE(text.exitCode, 1);
            QVERIFY2(text.output.contains("could not be read"), text.output.constData());
        }
        if (!isHuge)
            QCOMPARE(contentOf(path), before);
    }

    // The value may be the one that is looked for.
    void aValueThatCannotBeReadIsNamed()
    {
        const QByteArray sound = contentOf(m_user);
        for (const QByteArray &from : {QByteArray("\"Player\"="), QByteArray("\"Gone\"=")}) {
            QByteArray torn = sound;
            torn.replace(from, from.chopped(1) + '[');
            QVERIFY(torn != sound);
            QFile file(m_user);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(torn), torn.size());
            file.close();
            for (const QStringList &command :
                 {QStringList{u"scan"_s, u"registry"_s}, QStringList{u"startup"_s, u"list"_s},
                  QStringList{u"startup"_s, u"disable"_s, u"Sweepwise Player"_s}}) {
                const Run result = run(command + QStringList{u"--json"_s});
                QCOMPARE(result.exitCode, 1);
                QVERIFY2(placesOf(result).contains(m_user), result.output.constData());
            }
            QCOMPARE(contentOf(m_user), torn);
        }
    }

    // The file has its new content, whatever fails afterwards.
    void aSwitchThatIsDoneIsReportedSo()
    {
        int unread = 0;
        for (const QString &call : {u"open"_s, u"stat"_s, u"fsync"_s}) {
            for (int number = 0; number < 60; ++number) {
                init();
                const QByteArray before = contentOf(m_user);
                const Run result =
                    run({u"startup"_s, u"disable"_s, u"Sweepwise Player"_s},
                        failing(call, EIO, m_home.path() + "/prefix"_L1, number, u"1"_s));
                const QByteArray text =
                    call.toUtf8() + QByteArray::number(number) + ' ' + result.output + result.error;
                QVERIFY2(!result.error.contains("another program"), text.constData());
                const bool isChanged = contentOf(m_user) != before;
                const bool saysSo = result.output.contains("does not start with the session")
                    || result.output.contains("was changed;");
                QVERIFY2(isChanged == saysSo, text.constData());
                if (result.output.contains("was changed;")) {
                    QCOMPARE(result.exitCode, 1);
                    QVERIFY2(result.error.contains("Cannot read "), text.constData());
                    ++unread;
                }
            }
        }
        QVERIFY(unread > 0);
    }

    // None of them may be waited for or read into memory.
    void aBackupThatIsNoOrdinaryFileIsRefused_data()
    {
        QTest::addColumn<QString>("path");
        const QString folder = m_home.folder(u"odd backups"_s);
        QTest::newRow("pipe") << folder + "/pipe"_L1;
        QTest::newRow("folder") << folder;
        QTest::newRow("device") << u"/dev/zero"_s;
        QTest::newRow("huge") << folder + "/huge"_L1;
        ::mkfifo(QFile::encodeName(folder + "/pipe"_L1).constData(), 0600);
        QFile huge(folder + "/huge"_L1);
        QVERIFY(huge.open(QIODevice::WriteOnly));
        QVERIFY(huge.resize(hugeSize));
    }

    void aBackupThatIsNoOrdinaryFileIsRefused()
    {
        QFETCH(QString, path);
        const QByteArray before = contentOf(m_user);
        const Run result = run({u"restore"_s, path});
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.error.contains("cannot be read"), result.error.constData());
        QCOMPARE(contentOf(m_user), before);
    }

    void aListOfProfilesThatCannotBeReadIsNamed_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"pipe", "folder", "huge", "no status"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }

    void aListOfProfilesThatCannotBeReadIsNamed()
    {
        QFETCH(QString, kind);
        const QString data = m_home.path() + "/prefix/drive_c/users/jane/AppData/Roaming"_L1;
        const QString ini = data + "/Mozilla/Firefox/profiles.ini"_L1;
        QVERIFY(QDir().mkpath(QFileInfo(ini).path()));
        QFile file(ini);
        if (kind == "pipe"_L1)
            QCOMPARE(::mkfifo(QFile::encodeName(ini).constData(), 0600), 0);
        else if (kind == "folder"_L1)
            QVERIFY(QDir().mkpath(ini));
        else
            QVERIFY(file.open(QIODevice::WriteOnly));
        if (kind == "huge"_L1)
            QVERIFY(file.resize(hugeSize));
        const QStringList fault =
            kind == "no status"_L1 ? failing(u"statx"_s, EIO, u"profiles.ini"_s) : QStringList();
        const Run result =
            run({u"scan"_s, u"browser"_s, u"--json"_s}, fault + QStringList{u"USER=jane"_s});
        QCOMPARE(result.exitCode, 1);
        QVERIFY2(placesOf(result).contains(ini), result.output.constData());
    }

    // Whatever the system refuses for good, no command crashes.
    void noPermanentFaultEndsInACrash()
    {
        for (const QString &call : {u"statx"_s, u"stat"_s, u"fstatat"_s, u"open"_s, u"realpath"_s,
                                    u"getdents64"_s, u"getxattr"_s, u"fsync"_s}) {
            for (const QStringList &command :
                 {QStringList{u"clean"_s, u"junk"_s, u"--yes"_s},
                  QStringList{u"scan"_s, u"browser"_s}, QStringList{u"scan"_s, u"registry"_s},
                  QStringList{u"startup"_s, u"list"_s}, QStringList{u"large-files"_s, m_temp}}) {
                const Run result = run(command, failing(call, EIO));
                QVERIFY2(result.exitCode >= 0 && result.exitCode <= 2,
                         qPrintable(call + u' ' + command.join(u' ')));
            }
        }
    }

    // The limit for files would end the process at its first line in the log.
    void aLogThatCannotBeWrittenIsNamed()
    {
        const Run result = runLimited({u"scan"_s, u"registry"_s}, RLIMIT_FSIZE, 0);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(jsonOf(result)["totalCount"_L1].toInt(), 2);
        QVERIFY2(result.error.contains("cannot be written"), result.error.constData());
    }

    // A program that cannot be found in an incomplete list may be there. A state that cannot be
    // read may be the other one.
    void aSwitchThatCannotReadTheRegistryChangesNothing()
    {
        for (const QString &call : {u"open"_s, u"stat"_s}) {
            const QByteArray before = contentOf(m_user);
            for (const QString &word : {u"enable"_s, u"disable"_s}) {
                const Run result = run({u"startup"_s, word, u"Sweepwise Player"_s, u"--json"_s},
                                       failing(call, EIO, u"user.reg"_s));
                QCOMPARE(result.exitCode, 1);
                QVERIFY(placesOf(result).contains(m_user));
                QCOMPARE(jsonOf(result)["changed"_L1], QJsonValue(false));
                QVERIFY(result.error.contains("Cannot read "));
            }
            QCOMPARE(contentOf(m_user), before);
        }
    }

    // Whichever call fails, the command either does what it reports or reports a failure.
    void noSingleFaultMakesASwitchLie_data()
    {
        QTest::addColumn<QString>("call");
        for (const char *call : {"realpath", "statx", "stat", "open", "fstatat", "getdents64"})
            QTest::newRow(call) << QString::fromLatin1(call);
    }

    void noSingleFaultMakesASwitchLie()
    {
        QFETCH(QString, call);
        int failures = 0;
        for (int number = 0; number < 90; ++number) {
            init();
            const QByteArray before = contentOf(m_user);
            const Run result = run({u"startup"_s, u"disable"_s, u"Sweepwise Player"_s},
                                   failing(call, EIO, m_home.path(), number, u"1"_s));
            const bool isUnchanged = contentOf(m_user) == before;
            const QByteArray text = "call " + QByteArray::number(number) + ": status "
                + QByteArray::number(result.exitCode) + ' ' + result.output + result.error;
            QVERIFY2(result.exitCode != 0 || !isUnchanged, text.constData());
            failures += result.exitCode == 0 ? 0 : 1;
        }
        // These are met on the way for certain.
        if (call == "realpath"_L1 || call == "stat"_L1 || call == "open"_L1)
            QVERIFY(failures > 0);
    }

    // Whichever call fails, a program that is missing from the list is no secret.
    void noSingleFaultHidesAProgram()
    {
        int failures = 0;
        for (const QString &call :
             {u"realpath"_s, u"statx"_s, u"stat"_s, u"open"_s, u"fstatat"_s, u"getdents64"_s}) {
            for (int number = 0; number < 90; ++number) {
                failures += hasFailed() ? 1 : 0;
                const Run result = run({u"startup"_s, u"list"_s, u"--json"_s},
                                       failing(call, EIO, m_home.path(), number, u"1"_s));
                const QJsonArray apps = jsonOf(result)["apps"_L1].toArray();
                const bool isComplete =
                    apps.size() == 1 && apps.at(0).toObject()["isStartup"_L1].toBool();
                QVERIFY2(isComplete || (result.exitCode == 1 && !placesOf(result).isEmpty()),
                         qPrintable(u"%1 %2: %3"_s.arg(call, QString::number(number),
                                                       QString::fromUtf8(result.output))));
            }
        }
        QVERIFY2(failures > 20, qPrintable(QString::number(failures)));
    }

    // No fault may turn a valid entry into an invalid one.
    void noSingleFaultMakesAValidEntryInvalid()
    {
        int failures = 0;
        for (const QString &call :
             {u"realpath"_s, u"statx"_s, u"stat"_s, u"open"_s, u"fstatat"_s, u"getdents64"_s}) {
            for (int number = 0; number < 90; ++number) {
                failures += hasFailed() ? 1 : 0;
                const Run result = run({u"scan"_s, u"registry"_s, u"--items"_s, u"--json"_s},
                                       failing(call, EIO, m_home.path(), number, u"1"_s));
                QVERIFY(result.exitCode == 0 || result.exitCode == 1);
                const QByteArray listed =
                    QJsonDocument(jsonOf(result)["categories"_L1].toArray()).toJson();
                QVERIFY2(!listed.contains("Sweepwise Files"), listed.constData());
                const int found = jsonOf(result)["totalCount"_L1].toInt();
                if (found < 2)
                    QVERIFY2(result.exitCode == 1 && !placesOf(result).isEmpty(),
                             qPrintable(u"%1 %2: %3 found"_s.arg(call).arg(number).arg(found)));
            }
        }
        QVERIFY2(failures > 20, qPrintable(QString::number(failures)));
    }

    void aFolderThatCannotBeReadIsNamed_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("place");
        QTest::newRow("folder not listed") << u"getdents64"_s << EIO << u"sub"_s;
        QTest::newRow("file without status") << u"statx"_s << EIO << u"a.tmp"_s;
    }

    void aFolderThatCannotBeReadIsNamed()
    {
        QFETCH(QString, call);
        QFETCH(int, error);
        QFETCH(QString, place);
        const QStringList fault = failing(call, error, place);
        const QString path = m_temp + u'/' + place;
        for (const QStringList &command :
             {QStringList{u"scan"_s, u"junk"_s}, QStringList{u"clean"_s, u"junk"_s, u"--yes"_s},
              QStringList{u"large-files"_s, m_temp, u"--min-size"_s, u"1"_s}}) {
            m_temp = companion::fillTemporaryFolder(m_home);
            QFile::remove(logPath());
            const Run result = run(command + QStringList{u"--json"_s}, fault);
            QCOMPARE(result.exitCode, 1);
            QVERIFY2(placesOf(result).contains(path), result.output.constData());
            QVERIFY(result.error.contains("Cannot read "));
            QCOMPARE(contentOf(logPath()).count("[WARN] Cannot read "), 1);
        }
    }

    // The user's documents are in the temporary folder, and another file there is hidden. Whichever
    // call fails, once or from then on, no file is listed that is not listed otherwise.
    void noFaultWidensWhatIsListed_data()
    {
        QTest::addColumn<bool>("holdsDocuments");
        QTest::addColumn<QString>("call");
        QTest::addColumn<bool>("isOldSystem");
        for (const bool holdsDocuments : {false, true}) {
            const char *kind = holdsDocuments ? "documents" : "hidden";
            for (const char *call :
                 {"realpath", "statx", "stat", "open", "fstatat", "getdents64", "getxattr"})
                QTest::addRow("%s %s", kind, call)
                    << holdsDocuments << QString::fromLatin1(call) << false;
            QTest::addRow("%s getxattr, old system", kind)
                << holdsDocuments << u"getxattr"_s << true;
        }
    }

    void noFaultWidensWhatIsListed()
    {
        QFETCH(bool, holdsDocuments);
        QFETCH(QString, call);
        QFETCH(bool, isOldSystem);
        const QString hidden = m_temp + "/hidden.tmp"_L1;
        companion::writeFile(m_temp, u"hidden.tmp"_s, 5);
        QCOMPARE(::setxattr(QFile::encodeName(hidden).constData(), "user.DOSATTRIB", "0x2", 3, 0),
                 0);
        const QString link = m_home.path() + "/prefix/dosdevices/d:"_L1;
        QFile::remove(link);
        QVERIFY(QFile::link(m_home.path(), link));
        if (holdsDocuments) {
            QFile registry(m_user);
            QVERIFY(registry.open(QIODevice::Append));
            registry.write("\n[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Explorer\\\\"
                           "User Shell Folders] 1\n\"Personal\"=\"D:\\\\temp\"\n");
        }
        const QStringList command{u"scan"_s, u"junk"_s, u"--items"_s, u"--json"_s};
        const QStringList usual = pathsOf(run(command));
        QCOMPARE(usual.contains(m_temp + "/a.tmp"_L1), !holdsDocuments);
        QVERIFY(!usual.contains(hidden));
        int failures = 0;
        // What leads from place to place is tried almost without gaps.
        const int dense = call == "realpath"_L1 ? 100 : 20;
        for (int number = 0; number < 500; number += 1 + number / dense) {
            for (const QString &count : {u"1"_s, QString()}) {
                const Run result =
                    run(command,
                        failing(call, EIO, {}, number, count)
                            + (isOldSystem ? QStringList{u"OLD_SYSTEM=1"_s} : QStringList()));
                const QStringList listed = pathsOf(result);
                const bool isWider =
                    std::any_of(listed.begin(), listed.end(),
                                [&usual](const QString &path) { return !usual.contains(path); });
                const QByteArray text = "call " + QByteArray::number(number) + ' ' + count.toUtf8()
                    + ": status " + QByteArray::number(result.exitCode) + ' ' + result.output
                    + result.error;
                QVERIFY2(!isWider, text.constData());
                QVERIFY2(result.exitCode == 1 || listed == usual, text.constData());
                failures += result.exitCode == 0 ? 0 : 1;
            }
        }
        if (call == "realpath"_L1 || call == "open"_L1 || !holdsDocuments)
            QVERIFY(failures > 0);
    }

    // Its folder may be the temporary one.
    void aTornNameOfAPersonalFolderProtectsAll()
    {
        for (const QByteArray &line :
             {QByteArray("\"Personal\"=\"C:\\\\x\""), QByteArray("\"Personal\"[\"C:\\\\x\"")}) {
            init();
            QFile registry(m_user);
            QVERIFY(registry.open(QIODevice::Append));
            registry.write("\n[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Explorer\\\\"
                           "User Shell Folders] 1\n"
                           + line + '\n');
            registry.close();
            const bool isTorn = line.contains('[');
            const Run result = run({u"scan"_s, u"junk"_s, u"--items"_s, u"--json"_s});
            QCOMPARE(result.exitCode, isTorn ? 1 : 0);
            QCOMPARE(pathsOf(result).contains(m_temp + "/a.tmp"_L1), !isTorn);
            QCOMPARE(placesOf(result).contains(m_user), isTorn);
        }
    }

    // Whichever call fails, a file of a browser that is missing from the list is no secret.
    void noSingleFaultHidesABrowsersFiles_data() { noSingleFaultMakesASwitchLie_data(); }

    void noSingleFaultHidesABrowsersFiles()
    {
        QFETCH(QString, call);
        const QString user = m_home.path() + "/prefix/drive_c/users/jane/AppData"_L1;
        // Two profiles of one browser are scanned side by side.
        const QString chrome = user + "/Local/Google/Chrome/User Data/"_L1;
        const QString own = user + "/Roaming/Mozilla/Firefox/Other/cache2"_L1;
        for (const QString &folder :
             {chrome + "Default/Cache"_L1, chrome + "Profile 1/Cache"_L1, own}) {
            QVERIFY(QDir().mkpath(folder));
            companion::writeFile(folder, u"f_000001"_s, 10);
        }
        QFile ini(user + "/Roaming/Mozilla/Firefox/profiles.ini"_L1);
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.write("[Profile0]\nPath=Other\nIsRelative=1\n");
        ini.close();
        const QStringList command{u"scan"_s, u"browser"_s, u"--items"_s, u"--json"_s};
        const QStringList userName{u"USER=jane"_s};
        const QStringList usual = pathsOf(run(command, userName));
        QCOMPARE(usual.size(), 3);
        int failures = 0;
        for (int number = 0; number < 400; number += 1 + number / 40) {
            const Run result =
                run(command, userName + failing(call, EIO, m_home.path(), number, u"1"_s));
            const QStringList listed = pathsOf(result);
            QVERIFY2(result.exitCode == 1 || listed == usual,
                     qPrintable(QString::number(number) + QString::fromUtf8(result.output)));
            failures += hasFailed() ? 1 : 0;
        }
        if (call == "realpath"_L1 || call == "stat"_L1 || call == "open"_L1)
            QVERIFY(failures > 0);
    }

    // A browser that runs keeps files open. Its name may be the one that could not be read.
    void anUnknownListOfProgramsIsNamed()
    {
        const QString cache = m_home.path()
            + "/prefix/drive_c/users/jane/AppData/Local/Google/Chrome/User Data/"_L1
            + "Default/Cache"_L1;
        for (const int error : {0, EMFILE, ENOENT}) {
            QVERIFY(QDir().mkpath(cache));
            companion::writeFile(cache, u"f_000001"_s, 10);
            QFile::remove(logPath());
            QStringList variables{u"USER=jane"_s};
            if (error != 0)
                variables += failing(u"open"_s, error, u"/cmdline"_s, 3, u"1"_s);
            const Run result = run({u"clean"_s, u"browser"_s, u"--yes"_s}, variables);
            QCOMPARE(result.exitCode, 0);
            // A process that has ended meanwhile is no browser that runs.
            const QByteArray log = contentOf(logPath());
            QVERIFY(log.contains("Browser clean finished. Cleaned 1 items"));
            QVERIFY2(log.contains("Cannot tell whether a browser is running") == (error == EMFILE),
                     log.constData());
        }
    }

    // However few files the program may open, it never says that it has seen everything when it has
    // not.
    void withFewDescriptorsNothingIsClaimed()
    {
        int complete = 0;
        int incomplete = 0;
        for (rlim_t limit = 3; limit <= 24; ++limit) {
            for (const QStringList &command :
                 {QStringList{u"clean"_s, u"junk"_s, u"--yes"_s},
                  QStringList{u"large-files"_s, m_temp, u"--min-size"_s, u"1"_s},
                  QStringList{u"scan"_s, u"registry"_s}, QStringList{u"startup"_s, u"list"_s}}) {
                m_temp = companion::fillTemporaryFolder(m_home);
                const Run result = runLimited(command, RLIMIT_NOFILE, limit);
                QVERIFY2(result.exitCode >= 0, result.error.constData()); // no crash
                if (result.exitCode != 0) {
                    QVERIFY(!result.error.isEmpty());
                    ++incomplete;
                    continue;
                }
                ++complete;
                const QJsonObject json = jsonOf(result);
                if (command.constFirst() == "clean"_L1)
                    QVERIFY(!QFile::exists(m_temp + "/sub/b"_L1));
                else if (command.constFirst() == "large-files"_L1)
                    QCOMPARE(json["filesScanned"_L1].toInt(), 2);
                else if (command.constFirst() == "scan"_L1)
                    QCOMPARE(json["totalCount"_L1].toInt(), 2);
                else
                    QCOMPARE(json["apps"_L1].toArray().size(), 1);
            }
        }
        QVERIFY(complete > 0);
        QVERIFY(incomplete > 0);
    }

    // The stack of a thread would not fit into the address space, so the system makes no thread.
    void withoutThreadsACommandFails()
    {
        for (const QStringList &command :
             {QStringList{u"scan"_s, u"junk"_s}, QStringList{u"clean"_s, u"junk"_s, u"--yes"_s},
              QStringList{u"scan"_s, u"browser"_s}, QStringList{u"scan"_s, u"registry"_s},
              QStringList{u"large-files"_s, m_temp}}) {
            const Run result = runLimited(command, RLIMIT_STACK, rlim_t(16) << 30);
            QCOMPARE(result.exitCode, 2);
            QVERIFY2(result.error.contains("cannot start another thread"),
                     result.error.constData());
            QVERIFY(contentOf(logPath()).contains("[ERROR] "));
        }
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
    }

    // The first thread is made, the second is not: one walker does the work of both.
    void withoutASecondWalkerTheFilesAreFound()
    {
        if (QThread::idealThreadCount() < 2)
            QSKIP("one walker is all that helps on this machine");
        const Run result = run({u"large-files"_s, m_temp, u"--min-size"_s, u"1"_s, u"--json"_s},
                               failing(u"pthread_create"_s, EAGAIN, {}, 1));
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(jsonOf(result)["filesScanned"_L1].toInt(), 2);
        QCOMPARE(jsonOf(result)["totalCount"_L1].toInt(), 2);
        QVERIFY(hasFailed());
        const QString chrome =
            m_home.path() + "/prefix/drive_c/users/jane/AppData/Local/Google/Chrome/User Data/"_L1;
        for (const QString &profile : {u"Default"_s, u"Profile 1"_s, u"Profile 2"_s}) {
            const QString cache = chrome + profile + "/Cache"_L1;
            QVERIFY(QDir().mkpath(cache));
            companion::writeFile(cache, u"f_000001"_s, 10);
        }
        for (const QString &target : {u"junk"_s, u"browser"_s}) {
            const QStringList command{u"scan"_s, target, u"--items"_s, u"--json"_s};
            const QStringList userName{u"USER=jane"_s};
            const QStringList usual = pathsOf(run(command, userName));
            QVERIFY(usual.size() >= 2);
            QVERIFY(!hasFailed());
            QCOMPARE(pathsOf(run(command, userName + failing(u"pthread_create"_s, EAGAIN, {}, 1))),
                     usual);
            QVERIFY(hasFailed());
        }
    }

private:
    /// Runs a command with --json and one limit of the system.
    static Run runLimited(const QStringList &command, __rlimit_resource resource, rlim_t limit)
    {
        QProcess process;
        process.setChildProcessModifier([resource, limit] {
            const rlimit value{limit, limit};
            ::setrlimit(resource, &value);
            if (resource == RLIMIT_STACK) {
                const rlimit memory{limit / 2, limit / 2};
                ::setrlimit(RLIMIT_AS, &memory);
            }
        });
        process.start(QString::fromLocal8Bit(CLI_PROGRAM), command + QStringList{u"--json"_s});
        if (!process.waitForFinished(20'000)) {
            process.kill();
            process.waitForFinished();
            return {-1, {}, "the companion did not end"};
        }
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    QString logPath() const
    {
        return m_home.path() + "/data/Norvak/Sweepwise/logs/sweepwise_"_L1
            + QDate::currentDate().toString(u"yyyyMMdd"_s) + ".log"_L1;
    }

    const TestHome &m_home;
    QString m_temp;
    QString m_program;
    QString m_machine;
    QString m_user;
};

SWEEPWISE_TEST_MAIN(TestIncomplete, QCoreApplication)
#include "tst_incomplete.moc"
