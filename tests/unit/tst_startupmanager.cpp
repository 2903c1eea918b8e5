#include "startupmanager.h"

#include "appinfo.h"
#include "logcapture.h"
#include "registryfixture.h"
#include "registrysettings.h"
#include "testhome.h"
#include "testtree.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <sys/xattr.h>
#endif

using namespace Qt::StringLiterals;
using platform::Hive;

namespace {

const QString machineList =
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
const QString machineList32 =
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
const QString userList =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
const QString runPath = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString runKey = u"HKEY_CURRENT_USER\\"_s + runPath;

QString findExecutable(const QString &folder, const QString &name)
{
    platform::ReadFailures failures;
    return StartupManager::findExecutable(folder, name, failures);
}

} // namespace

class TestStartupManager : public QObject
{
    Q_OBJECT
public:
    explicit TestStartupManager(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(m_home); }
    void cleanup()
    {
        m_fixture.reset();
        QDir(m_home.folder(filesFolder())).removeRecursively();
    }

    void theThreeListsAreReadInOrder()
    {
        const QString a = makeFile(u"a/a.exe"_s);
        const QString b = makeFile(u"b/b.exe"_s);
        const QString c = makeFile(u"c/c.exe"_s);
        product(userList, u"c"_s, u"From user"_s, c);
        product(machineList32, u"b"_s, u"From 32 bits"_s, b);
        product(machineList, u"a"_s, u"From 64 bits"_s, a);
        m_fixture->addText(machineList + "Sweepwise a"_L1, u"Publisher"_s, u"Somebody 中"_s);
        m_fixture->write();
        StartupManager manager;
        const LogCapture log;
        QCOMPARE(names(manager),
                 (QStringList{u"From 64 bits"_s, u"From 32 bits"_s, u"From user"_s}));
        const StartupApp app = testApps(manager).constFirst();
        QCOMPARE(app.id, u"Sweepwise a"_s);
        QCOMPARE(app.exePath, a);
        QCOMPARE(app.iconPath, a);
        QCOMPARE(app.publisher, u"Somebody 中"_s);
        QVERIFY(!app.isStartup);
        QVERIFY(log.contains(
            u"[INFO] Found %1 installed apps, 0 in startup"_s.arg(manager.apps().size())));
    }

    void aProductInTwoListsAppearsOnce()
    {
        const QString path = makeFile(u"a/tool.exe"_s);
        product(machineList, u"1"_s, u"Tool"_s, path);
        product(machineList32, u"2"_s, u"Tool (32-bit)"_s, path.toUpper());
        m_fixture->write();
        StartupManager manager;
        QCOMPARE(names(manager), QStringList{u"Tool"_s});
    }

    void systemSoftwareIsLeftOutByItsName()
    {
        const QStringList leftOut{u"Microsoft Visual C++"_s,
                                  u"Microsoft Visual C++ 2019"_s,
                                  u"My Microsoft Visual C++Parts"_s,
                                  u"Microsoft .NET"_s,
                                  u"Old Microsoft .NETs Parts"_s,
                                  u"Windows Terminal"_s,
                                  u"Windows "_s,
                                  u"Update for Things"_s,
                                  u"An Update for Things"_s,
                                  u"Hotfix 12"_s,
                                  u"AHotfixes"_s,
                                  u"Security Update"_s,
                                  u"The Security Updates 3"_s};
        QStringList listed{u"Microsoft Visual C+"_s,
                           u"Microsoft  Visual C++"_s,
                           u"Visual C++"_s,
                           u"microsoft visual c++"_s,
                           u"Microsoft NET"_s,
                           u"Microsoft.NET"_s,
                           u".NET"_s,
                           u"microsoft .net"_s,
                           u"Windows"_s,
                           u"WindowsApp"_s,
                           u"My Windows Tool"_s,
                           u"windows terminal"_s,
                           u" Windows Tool"_s,
                           u"Updates for Things"_s,
                           u"Update"_s,
                           u"update for Things"_s,
                           u"Hot fix"_s,
                           u"Hotfi"_s,
                           u"hotfix 12"_s,
                           u"Security Updat"_s,
                           u"SecurityUpdate"_s,
                           u"security update"_s};
        int count = 0;
        for (const QString &name : leftOut + listed) {
            const QString id = QString::number(++count);
            product(userList, id, name, makeFile(id + "/x.exe"_L1));
        }
        m_fixture->write();
        StartupManager manager;
        QStringList found = names(manager);
        found.sort();
        listed.sort();
        QCOMPARE(found, listed);
    }

    void partsOfProductsAndProductsWithoutAProgramAreNotListed()
    {
        product(userList, u"component"_s, u"Component"_s, makeFile(u"component/x.exe"_s));
        m_fixture->addBytes(userList + "Sweepwise component"_L1, u"SystemComponent"_s, 4,
                            QByteArray("\1\0\0\0", 4));
        product(userList, u"no component"_s, u"No Component"_s, makeFile(u"nocomponent/x.exe"_s));
        m_fixture->addBytes(userList + "Sweepwise no component"_L1, u"SystemComponent"_s, 4,
                            QByteArray(4, '\0'));
        product(userList, u"child"_s, u"Child"_s, makeFile(u"child/x.exe"_s));
        m_fixture->addText(userList + "Sweepwise child"_L1, u"ParentDisplayName"_s, u"Parent"_s);
        product(userList, u"nameless"_s, {}, makeFile(u"nameless/x.exe"_s));
        product(userList, u"gone"_s, u"Gone"_s, u"C:\\Sweepwise Missing\\x.exe"_s);
        m_fixture->write();
        StartupManager manager;
        QCOMPARE(names(manager), QStringList{u"No Component"_s});
    }

    void theExecutableComesFromTheIcon_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("icon"); // %1 stands for the file
        QTest::addColumn<bool>("found");
        const auto row = [](const char *title, const QString &icon, bool found,
                            const QString &file = u"App Folder/app.exe"_s) {
            QTest::newRow(title) << file << icon << found;
        };
        row("plain", u"%1"_s, true);
        row("with an index", u"%1,0"_s, true);
        row("negative index", u"%1,-101"_s, true);
        row("quoted with an index", u"\"%1\",0"_s, true);
        row("quoted", u"\"%1\""_s, true);
        row("quote in front only", u"\"%1"_s, true);
        row("quote behind only", u"%1\""_s, true);
        row("quote behind only, with an index", u"%1\",0"_s, true);
        row("two quotes in front", u"\"\"%1"_s, false);
        row("two quotes behind", u"%1\"\""_s, false);
        row("two indexes", u"%1,0,0"_s, false);
        row("comma in the path", u"%1"_s, false, u"App, Folder/app.exe"_s);
        row("comma in the path, with an index", u"%1,0"_s, true, u"App, Folder/app.exe"_s);
        row("comma in the path, quoted with an index", u"\"%1\",0"_s, true,
            u"App, Folder/app.exe"_s);
        row("in capitals", u"%1,0"_s, true, u"App Folder/APP.EXE"_s);
        row("no program", u"%1.ico"_s, false);
        row("another kind of program", u"%1"_s, false, u"App Folder/app.com"_s);
        row("without the dot", u"%1"_s, false, u"App Folder/app-exe"_s);
        row("comma first", u",0"_s, false);
        row("empty", QString(), false);
    }
    void theExecutableComesFromTheIcon()
    {
        QFETCH(QString, file);
        QFETCH(QString, icon);
        QFETCH(bool, found);
        const QString path = makeFile(file);
        makeFile(u"App Folder/app.exe.ico"_s);
        product(userList, u"1"_s, u"App"_s, icon.replace("%1"_L1, path));
        m_fixture->write();
        StartupManager manager;
        QCOMPARE(testApps(manager).size(), found ? 1 : 0);
        if (found)
            QCOMPARE(testApps(manager).constFirst().exePath, path);
    }

    void theExecutableOfAnInstallFolder_data()
    {
        QTest::addColumn<QString>("files");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("the only one") << u"x.exe"_s << u"Photo"_s << u"x.exe"_s;
        QTest::newRow("named like the product")
            << u"a.exe photo.exe z.exe"_s << u"Photo Studio 2"_s << u"photo.exe"_s;
        QTest::newRow("name within the file's")
            << u"b.exe photostudiopro.exe"_s << u"Photo-Studio"_s << u"photostudiopro.exe"_s;
        QTest::newRow("none alike: the first") << u"y.exe x.exe"_s << u"Photo"_s << u"x.exe"_s;
        QTest::newRow("one folder below")
            << u"bin/photo.exe"_s << u"Photo"_s << u"bin\\photo.exe"_s;
        QTest::newRow("two folders below") << u"a/b/photo.exe"_s << u"Photo"_s << QString();
        QTest::newRow("in other case") << u"PHOTO.EXE"_s << u"photo"_s << u"PHOTO.EXE"_s;
        QTest::newRow("uninstaller only") << u"unins000.exe"_s << u"Photo"_s << QString();
        QTest::newRow("helpers are passed over")
            << u"Setup.exe photo-helper.exe RemovePhoto.exe photoUpdate.exe uninst.exe z.exe"_s
            << u"Photo"_s << u"z.exe"_s;
        for (const char *helper : {"unins.exe", "MyUninstall.exe", "RemoveIt.exe", "asetup.exe",
                                   "UPDATER.exe", "photo-helper.exe"})
            QTest::addRow("%s alone", helper)
                << QString::fromLatin1(helper) << u"Photo"_s << QString();
        for (const char *program : {"unin.exe", "remov.exe", "set-up.exe", "updat.exe", "help.exe"})
            QTest::addRow("%s is no helper", program)
                << QString::fromLatin1(program) << u"Photo"_s << QString::fromLatin1(program);
        QTest::newRow("no program") << u"photo.dll"_s << u"Photo"_s << QString();
        QTest::newRow("name of other letters") << u"b.exe a.exe"_s << u"照片"_s << u"a.exe"_s;
        QTest::newRow("letters of other alphabets are left out")
            << u"a.exe phto.exe"_s << u"Phöto"_s << u"phto.exe"_s;
        QTest::newRow("digits stay") << u"c.exe m4.exe"_s << u"M-4 (X)"_s << u"m4.exe"_s;
        QTest::newRow("dots in the file's name")
            << u"a.exe photo.x64.exe"_s << u"Photo"_s << u"photo.x64.exe"_s;
    }
    void theExecutableOfAnInstallFolder()
    {
        QFETCH(QString, files);
        QFETCH(QString, name);
        QFETCH(QString, chosen);
        QString folder = makeFile(u"Install Folder/readme.txt"_s);
        folder.truncate(folder.lastIndexOf(u'\\'));
        for (const QString &file : files.split(u' '))
            makeFile("Install Folder/"_L1 + file);
        const QString expected = chosen.isEmpty() ? QString() : folder + u'\\' + chosen;
        QCOMPARE(findExecutable(folder, name), expected);
        QCOMPARE(findExecutable(folder + u'\\', name), expected);
    }

    void noInstallFolderGivesNothing()
    {
        QVERIFY(findExecutable({}, u"x"_s).isEmpty());
        QVERIFY(findExecutable(u"C:\\Sweepwise Missing"_s, u"x"_s).isEmpty());
        QVERIFY(findExecutable(makeFile(u"file.exe"_s), u"x"_s).isEmpty());
    }

    // A path that is not a full one would be resolved against this program's current folder.
    void namesAreNotLookedUpInTheCurrentFolder()
    {
        const TestTree tree;
        tree.file(u"here.exe --x"_s);
        tree.file(u"here.exe"_s);
        tree.file(u"folder/here.exe"_s);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree.path()));
        product(userList, u"icon"_s, u"Icon"_s, u"here.exe"_s);
        const QString key = userList + "Sweepwise folder"_L1;
        m_fixture->addText(key, u"DisplayName"_s, u"Folder"_s);
        m_fixture->addText(key, u"InstallLocation"_s, u"folder"_s);
        m_fixture->write();
        StartupManager manager;
        const auto found = testApps(manager).size();
        const QString program = StartupManager::commandPath(u"here.exe --x"_s);
        const QString inFolder = findExecutable(u"folder"_s, u"here"_s);
        const QString inThis = findExecutable(u"."_s, u"here"_s);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(found, 0);
        QCOMPARE(program, u"here.exe"_s);
        QVERIFY(inFolder.isEmpty());
        QVERIFY(inThis.isEmpty());
    }

    void theProgramOfACommand_data()
    {
        QTest::addColumn<QString>("command"); // %1 stands for an existing file
        QTest::addColumn<QString>("path");
        QTest::newRow("quoted") << u"\"C:\\Tools\\a b.exe\" -x"_s << u"C:\\Tools\\a b.exe"_s;
        QTest::newRow("no closing quote")
            << u"\"C:\\Tools\\a b.exe -x"_s << u"\"C:\\Tools\\a b.exe -x"_s;
        QTest::newRow("not quoted")
            << u"C:\\Tools\\tool.exe --minimized"_s << u"C:\\Tools\\tool.exe"_s;
        QTest::newRow("a whole file with a blank") << u"%1"_s << u"%1"_s;
        QTest::newRow("alone") << u"tool.exe"_s << u"tool.exe"_s;
        QTest::newRow("empty") << QString() << QString();
    }
    void theProgramOfACommand()
    {
        QFETCH(QString, command);
        QFETCH(QString, path);
        const QString file = makeFile(u"with blank.exe"_s);
        QCOMPARE(StartupManager::commandPath(command.replace("%1"_L1, file)),
                 path.replace("%1"_L1, file));
    }

    void programsOfTheRunKeyAreMarked()
    {
        const QString a = makeFile(u"a/a.exe"_s);
        const QString b = makeFile(u"b/b.exe"_s);
        product(userList, u"a"_s, u"A"_s, a);
        product(userList, u"b"_s, u"B"_s, b);
        m_fixture->addText(runKey, u"Sweepwise other name"_s,
                           "  \""_L1 + a.toUpper() + "\" --minimized "_L1);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(testApps(manager).at(0).isStartup);
        QVERIFY(!testApps(manager).at(1).isStartup);
    }

    void switchingOnAndOff()
    {
        const QString path = makeFile(u"a b/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise App/Tool"_s, path);
        m_fixture->addText(runKey, u"Sweepwise keep"_s, u"x"_s);
        m_fixture->addText(runKey, u"Sweepwise App\\Tool"_s, u"x"_s);
        m_fixture->write();
        StartupManager manager;
        const LogCapture log;
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), true));
        QVERIFY(testApps(manager).constFirst().isStartup);
        QVERIFY(log.contains(u"[INFO] Added to startup: Sweepwise App/Tool"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise App/Tool"_s));
        QCOMPARE(platform::Registry().text(Hive::CurrentUser, runPath, u"Sweepwise App/Tool"_s),
                 u'"' + path + u'"');

        StartupManager again;
        QVERIFY(testApps(again).constFirst().isStartup);
        QVERIFY(again.setStartup(testApps(again).constFirst(), false));
        QVERIFY(!testApps(again).constFirst().isStartup);
        QVERIFY(log.contains(u"[INFO] Removed from startup: Sweepwise App/Tool"_s));
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise App/Tool"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise keep"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise App\\Tool"_s));
    }

    void switchingOffTakesTheEntryThatStartsTheProgram()
    {
        const QString path = makeFile(u"a/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise Shown"_s, path);
        m_fixture->addText(runKey, u"Sweepwise\\odd/name"_s, u'"' + path.toUpper() + "\" -x"_L1);
        m_fixture->addText(runKey, u"Sweepwise Shown"_s, u"something else"_s);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(testApps(manager).constFirst().isStartup);
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), false));
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise\\odd/name"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise Shown"_s));
        // Without such an entry, the one named after the program is removed.
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), false));
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise Shown"_s));
    }

    void anEmptyNameRemovesNothing()
    {
        m_fixture->addText(runKey, u"Sweepwise keep"_s, u"x"_s);
        m_fixture->addText(runKey + "\\Sweepwise Sub"_L1, u"keep"_s, u"x"_s);
        m_fixture->write();
        StartupManager manager;
        const LogCapture log;
        QVERIFY(manager.removeFromStartup({})); // there is no default value
        QVERIFY(!manager.addToStartup({}, u"C:\\x.exe"_s));
        QVERIFY(log.contains(u"[ERROR] Failed to add startup: "_s));
        QVERIFY(!manager.errorString().isEmpty());
        // Some programs treat a single slash like an empty name.
        QVERIFY(manager.removeFromStartup(u"/"_s));
        QVERIFY(manager.removeFromStartup(u"Sweepwise Sub/keep"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise keep"_s));
        QVERIFY(m_fixture->hasValue(runKey + "\\Sweepwise Sub"_L1, u"keep"_s));
    }

    // Otherwise the program would still start.
    void switchingOffTakesEveryEntryThatStartsTheProgram()
    {
        const QString path = makeFile(u"twice/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise Twice"_s, path);
        m_fixture->addText(runKey, u"Sweepwise one"_s, u'"' + path + "\" -x \"an argument\""_L1);
        m_fixture->addText(runKey, u"Sweepwise two"_s, path.toUpper());
        m_fixture->addText(runKey, {}, u'"' + path + u'"');
        m_fixture->addText(runKey, u"Sweepwise other"_s, path + "x"_L1);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(testApps(manager).constFirst().isStartup);
        const LogCapture log;
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), false));
        QVERIFY(!testApps(manager).constFirst().isStartup);
        for (const QString &name : {u"Sweepwise one"_s, u"Sweepwise two"_s})
            QVERIFY2(!m_fixture->hasValue(runKey, name), qPrintable(name));
        QVERIFY(!platform::Registry().value(Hive::CurrentUser, runPath, {}));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise other"_s));
        QVERIFY(!testApps(manager).constFirst().isStartup);
        // The log keeps the arguments.
        QVERIFY(log.contains("Startup command of Sweepwise one before it was removed: \""_L1 + path
                             + "\" -x \"an argument\""_L1));
        QVERIFY(log.contains("Startup command of Sweepwise two before it was removed: "_L1
                             + path.toUpper()));
        StartupManager again;
        QVERIFY(!testApps(again).constFirst().isStartup);
    }

    // Programs change the list themselves, even while it is shown.
    void aCommandThatChangedSinceTheLoadIsKeptInTheLog()
    {
        const QString path = makeFile(u"changed/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise Changed"_s, path);
        m_fixture->addText(runKey, u"Sweepwise one"_s, u'"' + path + "\" --old"_L1);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(testApps(manager).constFirst().isStartup);
        m_fixture->addText(runKey, u"Sweepwise one"_s, u'"' + path + "\" --new"_L1);
        m_fixture->addText(runKey, u"Sweepwise two"_s, u'"' + path + "\" --second"_L1);
        m_fixture->write();
        const LogCapture log;
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), false));
        QVERIFY(!testApps(manager).constFirst().isStartup);
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise two"_s));
        const QString line = u"Startup command of Sweepwise %1 before it was removed: %2"_s;
        QVERIFY(log.contains(line.arg(u"one"_s, u'"' + path + "\" --new"_L1)));
        QVERIFY(log.contains(line.arg(u"two"_s, u'"' + path + "\" --second"_L1)));

        m_fixture->addText(runKey, u"Sweepwise Changed"_s, u'"' + path + "\" --own"_L1);
        m_fixture->write();
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), true));
        QVERIFY(log.contains("Startup command of Sweepwise Changed before it was replaced: \""_L1
                             + path + "\" --own"_L1));
    }

    void switchingOffTakesEverySpellingOfTheProgram()
    {
        const QString path = makeFile(u"spelled/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise Spelled"_s, path);
        const QStringList commands{u'"' + QString(path).replace(u'\\', u'/') + u'"',
                                   path.toUpper() + " -x"_L1,
                                   "\"%systemdrive%"_L1 + path.mid(2) + "\" -y"_L1, path};
        for (qsizetype i = 0; i < commands.size(); ++i)
            m_fixture->addText(runKey, u"Sweepwise %1"_s.arg(i), commands.at(i));
        const QStringList others{path + ".bak"_L1, u'"' + path + "x\""_L1, u"cmd /c "_s + path};
        for (qsizetype i = 0; i < others.size(); ++i)
            m_fixture->addText(runKey, u"Sweepwise other %1"_s.arg(i), others.at(i));
        m_fixture->write();
        StartupManager manager;
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), false));
        QVERIFY(!testApps(manager).constFirst().isStartup);
        for (qsizetype i = 0; i < commands.size(); ++i)
            QVERIFY2(!m_fixture->hasValue(runKey, u"Sweepwise %1"_s.arg(i)),
                     qPrintable(commands.at(i)));
        for (qsizetype i = 0; i < others.size(); ++i)
            QVERIFY2(m_fixture->hasValue(runKey, u"Sweepwise other %1"_s.arg(i)),
                     qPrintable(others.at(i)));
    }

    void aCommandThatIsOverwrittenIsKeptInTheLog()
    {
        const QString path = makeFile(u"kept/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise Kept"_s, path);
        m_fixture->addText(runKey, u"sweepwise kept"_s, u"C:\\old.exe --with arguments"_s);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(!testApps(manager).constFirst().isStartup);
        const LogCapture log;
        QVERIFY(manager.setStartup(testApps(manager).constFirst(), true));
        QVERIFY(log.contains(u"Startup command of sweepwise kept before it was replaced: "
                             "C:\\old.exe --with arguments"_s));
        QVERIFY(testApps(manager).constFirst().isStartup);
    }

#ifndef Q_OS_WIN
    // Another program has written the registry since it was read here.
    void afterAFailureTheFlagsFollowTheRegistry()
    {
        const QString path = makeFile(u"flag/app.exe"_s);
        product(userList, u"app"_s, u"Sweepwise Flag"_s, path);
        m_fixture->addText(runKey, u"Sweepwise Flag"_s, u'"' + path + u'"');
        m_fixture->write();
        StartupManager manager;
        const StartupApp app = testApps(manager).constFirst();
        QVERIFY(app.isStartup);
        struct stat data {
        };
        QCOMPARE(::stat(QFile::encodeName(m_home.folder(u"prefix"_s)).constData(), &data), 0);
        QProcess server;
        server.setWorkingDirectory(m_home.folder(u"run/server-%1-%2"_s.arg(
            QString::number(data.st_dev, 16), QString::number(data.st_ino, 16))));
        server.start(u"sleep"_s, {u"60"_s});
        QVERIFY(server.waitForStarted());
        const LogCapture log;
        QVERIFY(!manager.setStartup(app, false));
        QVERIFY(log.contains(u"[ERROR] Failed to remove startup: Sweepwise Flag"_s));
        QVERIFY(manager.errorString().contains("end them and try again"_L1));
        QVERIFY(testApps(manager).constFirst().isStartup);
        // Another program removes the entry. The next failure notices that.
        QFile hive(m_fixture->file(u"HKEY_CURRENT_USER"_s));
        QVERIFY(hive.open(QIODevice::WriteOnly));
        hive.write("WINE REGISTRY Version 2\n\n#arch=win64\n");
        hive.close();
        QVERIFY(!manager.setStartup(app, true));
        QVERIFY(!testApps(manager).constFirst().isStartup);
        server.kill();
        QVERIFY(server.waitForFinished());
    }
#endif

    void aKeyOfTheSameNameStays()
    {
        m_fixture->addText(runKey, u"Sweepwise Same"_s, u"x"_s);
        m_fixture->addText(runKey + "\\Sweepwise Same\\Deep"_L1, u"keep"_s, u"x"_s);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(manager.addToStartup(u"Sweepwise Same"_s, u"C:\\new.exe"_s));
        QVERIFY(m_fixture->hasValue(runKey + "\\Sweepwise Same\\Deep"_L1, u"keep"_s));
        QVERIFY(manager.removeFromStartup(u"Sweepwise Same"_s));
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise Same"_s));
        QVERIFY(m_fixture->hasValue(runKey + "\\Sweepwise Same\\Deep"_L1, u"keep"_s));
    }

    void oddNamesAreWrittenAndRemovedExactly_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"Default", "default", ".", "a\\b", "a/b", "@", "@x", "%1", "a=b"})
            QTest::newRow(name) << QString::fromLatin1(name);
        QTest::newRow("Chinese") << u"播放器 🎵"_s;
    }
    void oddNamesAreWrittenAndRemovedExactly()
    {
        QFETCH(QString, name);
        const QString key = u"Software\\Sweepwise Test"_s;
        const QString shownKey = u"HKEY_CURRENT_USER\\"_s + key;
        m_fixture->addText(shownKey, {}, u"default value"_s);
        m_fixture->addText(shownKey, u"other"_s, u"other value"_s);
        m_fixture->write();
        QString error;
        QVERIFY2(
            platform::registrysettings::setText(Hive::CurrentUser, key, name, u"text"_s, error),
            qPrintable(error));
        const platform::Registry registry;
        QCOMPARE(registry.text(Hive::CurrentUser, key, name), u"text"_s);
        QCOMPARE(registry.text(Hive::CurrentUser, key, {}), u"default value"_s);
        QVERIFY2(platform::registrysettings::remove(Hive::CurrentUser, key, {name}, error),
                 qPrintable(error));
        const platform::Registry after;
        QVERIFY(!after.value(Hive::CurrentUser, key, name));
        QCOMPARE(after.text(Hive::CurrentUser, key, {}), u"default value"_s);
        QCOMPARE(after.text(Hive::CurrentUser, key, u"other"_s), u"other value"_s);
    }

    void aProductIsFoundByItsInstallFolder()
    {
        QString folder = makeFile(u"Installed/unins000.exe"_s);
        folder.truncate(folder.lastIndexOf(u'\\'));
        const QString key = userList + "Sweepwise installed"_L1;
        m_fixture->addText(key, u"DisplayName"_s, u"Photo Studio"_s);
        m_fixture->addText(key, u"InstallLocation"_s, folder);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(testApps(manager).isEmpty()); // the folder has only an uninstaller
        makeFile(u"Installed/bin/photostudio.exe"_s);
        manager.loadInstalledApps();
        QCOMPARE(testApps(manager).size(), 1);
        QCOMPARE(testApps(manager).constFirst().exePath, folder + "\\bin\\photostudio.exe"_L1);
    }

    void anOverwrittenEntryUnmarksTheProgramItStarted()
    {
        const QString a = makeFile(u"a/a.exe"_s);
        const QString b = makeFile(u"b/b.exe"_s);
        product(userList, u"a"_s, u"Sweepwise Same"_s, a);
        product(userList, u"b"_s, u"Sweepwise Same"_s, b);
        m_fixture->write();
        StartupManager manager;
        QVERIFY(manager.setStartup(testApps(manager).at(0), true));
        QVERIFY(manager.setStartup(testApps(manager).at(1), true));
        QVERIFY(!testApps(manager).at(0).isStartup);
        QVERIFY(testApps(manager).at(1).isStartup);
    }

    void readingMakesNoKeys()
    {
        StartupManager manager;
        manager.loadInstalledApps();
        QString error;
        QVERIFY(platform::registrysettings::remove(
            Hive::CurrentUser, u"Software\\Sweepwise Unmade"_s, {u"x"_s}, error));
        QVERIFY(!m_fixture->hasKey(u"HKEY_CURRENT_USER\\Software\\Sweepwise Unmade"_s));
    }

    void textsAreStoredAsTheyAre()
    {
        m_fixture->addKey(u"HKEY_CURRENT_USER\\Software\\Sweepwise Test"_s);
        m_fixture->write();
        const QString key = u"Software\\Sweepwise Test"_s;
        for (const QString &text : {u"\"C:\\a b\\c.exe\""_s, u"%1 / \\ 中 \U0001F9F9"_s, QString(),
                                    u"a@b"_s, u"@ByteArray(x)"_s, u"a, b; c"_s}) {
            QString error;
            QVERIFY2(
                platform::registrysettings::setText(Hive::CurrentUser, key, u"v"_s, text, error),
                qPrintable(error));
            QCOMPARE(platform::Registry().text(Hive::CurrentUser, key, u"v"_s), text);
        }
    }

#ifndef Q_OS_WIN
    void aPrefixInUseReportsTheFailure()
    {
        m_fixture->addText(runKey, u"Sweepwise keep"_s, u"x"_s);
        m_fixture->write();
        struct stat data {
        };
        QCOMPARE(::stat(QFile::encodeName(m_home.folder(u"prefix"_s)).constData(), &data), 0);
        QProcess server;
        server.setWorkingDirectory(m_home.folder(u"run/server-%1-%2"_s.arg(
            QString::number(data.st_dev, 16), QString::number(data.st_ino, 16))));
        server.start(u"sleep"_s, {u"60"_s});
        QVERIFY(server.waitForStarted());
        StartupManager manager;
        const LogCapture log;
        QVERIFY(!manager.addToStartup(u"Sweepwise new"_s, u"C:\\x.exe"_s));
        QVERIFY(!manager.removeFromStartup(u"Sweepwise keep"_s));
        QVERIFY(log.contains(u"[ERROR] Failed to add startup: Sweepwise new"_s));
        QVERIFY(log.contains(u"[ERROR] Failed to remove startup: Sweepwise keep"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise keep"_s));
        server.kill();
        QVERIFY(server.waitForFinished());
    }

    void onlyTheDirectSubfoldersOfADriveAreSearched()
    {
        makeFile(u"photo.exe"_s); // in a subfolder of the drive
        makeFile(u"deep/photo.exe"_s);
        QVERIFY(findExecutable(u"C:\\"_s, u"Photo"_s).endsWith("\\photo.exe"_L1));
        QVERIFY(QFile::remove(m_home.folder(filesFolder()) + "/photo.exe"_L1));
        QVERIFY(findExecutable(u"C:\\"_s, u"Photo"_s).isEmpty());
        // A hidden folder is passed over.
        makeFile(u"../Hidden/photo.exe"_s);
        const QString hidden = m_home.folder(u"prefix/drive_c/Hidden"_s);
        QVERIFY(!findExecutable(u"C:\\"_s, u"Photo"_s).isEmpty());
        if (::setxattr(QFile::encodeName(hidden).constData(), "user.DOSATTRIB", "0x2", 3, 0) == 0)
            QVERIFY(findExecutable(u"C:\\"_s, u"Photo"_s).isEmpty());
        QVERIFY(QDir(hidden).removeRecursively());
        // A link that leads back up is not followed.
        QFile::link(m_home.folder(u"prefix/drive_c"_s),
                    m_home.folder(u"prefix/drive_c"_s) + "/loop"_L1);
        QVERIFY(findExecutable(u"C:\\"_s, u"Photo"_s).isEmpty());
    }
#endif

private:
    static QString filesFolder()
    {
#ifdef Q_OS_WIN
        return u"Sweepwise Files"_s;
#else
        return u"prefix/drive_c/Sweepwise Files"_s;
#endif
    }

    // Makes a file. Returns its Windows path.
    QString makeFile(const QString &relative)
    {
        const QString folder = m_home.folder(filesFolder());
        QDir().mkpath(QFileInfo(folder + u'/' + relative).path());
        QFile file(folder + u'/' + relative);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write a file of the test");
#ifdef Q_OS_WIN
        return QDir::toNativeSeparators(folder + u'/' + relative);
#else
        return "C:\\Sweepwise Files\\"_L1 + QString(relative).replace(u'/', u'\\');
#endif
    }

    void product(const QString &list, const QString &id, const QString &name, const QString &icon)
    {
        const QString key = list + "Sweepwise "_L1 + id;
        if (!name.isEmpty())
            m_fixture->addText(key, u"DisplayName"_s, name);
        m_fixture->addText(key, u"DisplayIcon"_s, icon);
    }

    // The live registry has products of its own.
    static QList<StartupApp> testApps(StartupManager &manager)
    {
        QList<StartupApp> list;
        for (const StartupApp &app : manager.apps()) {
            if (app.id.startsWith("Sweepwise "_L1))
                list.append(app);
        }
        return list;
    }
    static QStringList names(StartupManager &manager)
    {
        QStringList list;
        for (const StartupApp &app : testApps(manager))
            list.append(app.name);
        return list;
    }

    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
};

SWEEPWISE_TEST_MAIN(TestStartupManager, QCoreApplication)
#include "tst_startupmanager.moc"
