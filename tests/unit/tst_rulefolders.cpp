#include "protectedplaces.h"
#include "rulefolders.h"

#include "appinfo.h"
#include "testhome.h"
#include "testtree.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// The folders of the Linux build. They come from the environment, a Wine prefix or the desktop.
class TestRuleFolders : public QObject
{
    Q_OBJECT
public:
    explicit TestRuleFolders(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        for (const char *variable : {"LOCALAPPDATA", "APPDATA", "USERPROFILE", "PROGRAMDATA",
                                     "WINDIR", "SYSTEMDRIVE", "TMPDIR"})
            qunsetenv(variable);
        QVERIFY(QDir(m_home.path() + "/prefix"_L1).removeRecursively());
        qputenv("USER", "jane");
    }

    void withoutAPrefixTheDesktopsFoldersAreUsed()
    {
        QCOMPARE(platform::temporaryFolder(), QDir::tempPath());
        QCOMPARE(platform::localDataFolder(), m_home.path() + "/data"_L1);
        QCOMPARE(platform::roamingDataFolder(), m_home.path() + "/data"_L1);
        QCOMPARE(platform::homeFolder(), m_home.path() + "/home"_L1);
        QCOMPARE(platform::programDataFolder(), QString());
        QCOMPARE(platform::windowsFolder(), u"C:/Windows"_s);
        QCOMPARE(platform::systemDrive(), u"C:"_s);
    }

    void aPipeInThePlaceOfTheUsersFoldersIsNotOpened()
    {
        const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            + "/user-dirs.dirs"_L1;
        const QByteArray name = QFile::encodeName(path);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(QDir().mkpath(QDir::homePath() + "/Tisch"_L1));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("XDG_DESKTOP_DIR=\"$HOME/Tisch\"\n");
        file.close();
        QCOMPARE(platform::desktopFolder(), QDir::homePath() + "/Tisch"_L1);
        QVERIFY(file.remove());
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
        // The toolkit would wait for somebody to write into the pipe.
        QCOMPARE(platform::desktopFolder(), QDir::homePath());
        QVERIFY(QFile::remove(path));
    }

    void aPrefixSuppliesItsOwnFolders()
    {
        const QString drive = makePrefix();
        const QString user = drive + "/users/jane"_L1;
        QCOMPARE(platform::temporaryFolder(), user + "/AppData/Local/Temp"_L1);
        QCOMPARE(platform::localDataFolder(), user + "/AppData/Local"_L1);
        QCOMPARE(platform::roamingDataFolder(), user + "/AppData/Roaming"_L1);
        QCOMPARE(platform::homeFolder(), user);
        QCOMPARE(platform::programDataFolder(), drive + "/ProgramData"_L1);
        QCOMPARE(platform::windowsFolder(), drive + "/windows"_L1);
        QCOMPARE(platform::systemDrive(), drive);
    }

    void thePrefixsRegistryNamesItsTemporaryFolder_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << QByteArray("\"C:\\\\users\\\\JANE\\\\Temp\"")
                               << u"DRIVE/users/jane/Temp"_s;
        QTest::newRow("with a variable") << QByteArray("str(2):\"%USERPROFILE%\\\\AppData\\\\Tmp\"")
                                         << u"DRIVE/users/jane/AppData/Tmp"_s;
        QTest::newRow("with a variable, in other case")
            << QByteArray("str(2):\"%UserProfile%\\\\appdata\\\\LOCAL\\\\temp\"")
            << u"DRIVE/users/jane/AppData/Local/Temp"_s;
        QTest::newRow("with another variable")
            << QByteArray("str(2):\"%systemroot%\\\\TEMP\"") << u"DRIVE/windows/temp"_s;
        QTest::newRow("with slashes")
            << QByteArray("\"C:/Windows/Temp\"") << u"DRIVE/windows/temp"_s;
        QTest::newRow("unknown variable")
            << QByteArray("\"%FOO%\\\\x\"") << u"DRIVE/users/jane/AppData/Local/Temp"_s;
        QTest::newRow("missing drive")
            << QByteArray("\"Q:\\\\x\"") << u"DRIVE/users/jane/AppData/Local/Temp"_s;
        QTest::newRow("damaged") << QByteArray("\"C") << QString(); // it may name another one
    }

    void thePrefixsRegistryNamesItsTemporaryFolder()
    {
        QFETCH(QByteArray, value);
        QFETCH(QString, expected);
        const QString drive = makePrefix();
        QFile registry(m_home.path() + "/prefix/user.reg"_L1);
        QVERIFY(registry.open(QIODevice::WriteOnly));
        registry.write("WINE REGISTRY Version 2\n\n[Console] "
                       "1\n\"TMP\"=\"C:\\\\wrong\"\n\n[Environment] 1700000000\n"
                       "#time=1da\n\"TMP\"="
                       + value + "\n");
        registry.close();
        QCOMPARE(platform::temporaryFolder(), expected.replace("DRIVE"_L1, drive));
    }

    // Each location of a rule asks for its folder. Reading a large registry takes long.
    void thePrefixsRegistryIsReadAgainOnlyWhenItHasChanged()
    {
        const QString drive = makePrefix();
        m_home.folder(u"prefix/drive_c/one"_s);
        m_home.folder(u"prefix/drive_c/two"_s);
        QFile registry(m_home.path() + "/prefix/user.reg"_L1);
        const auto write = [&registry](const QByteArray &folder, const timespec &time) {
            const bool isWritten = registry.open(QIODevice::WriteOnly)
                && registry.write("WINE REGISTRY Version 2\n\n[Environment] 1\n\"TMP\"=\"C:\\\\"
                                  + folder + "\"\n")
                    > 0;
            registry.close();
            const std::array times{time, time};
            return isWritten
                && ::utimensat(AT_FDCWD, QFile::encodeName(registry.fileName()).constData(),
                               times.data(), 0)
                == 0;
        };
        QVERIFY(write("one", {1'700'000'000, 5}));
        QCOMPARE(platform::temporaryFolder(), drive + "/one"_L1);
        // Nobody can see this change without reading the file.
        QVERIFY(write("two", {1'700'000'000, 5}));
        QCOMPARE(platform::temporaryFolder(), drive + "/one"_L1);
        QVERIFY(write("two", {1'700'000'000, 6}));
        QCOMPARE(platform::temporaryFolder(), drive + "/two"_L1);
        QVERIFY(write("one", {1'700'000'001, 6}));
        QCOMPARE(platform::temporaryFolder(), drive + "/one"_L1);
        QVERIFY(write("windows", {1'700'000'001, 6}));
        QCOMPARE(platform::temporaryFolder(), drive + "/windows"_L1);
    }

    void theEnvironmentComesFirst()
    {
        makePrefix();
        const QString set = m_home.setFolderVariable("LOCALAPPDATA", u"elsewhere"_s);
        QCOMPARE(platform::localDataFolder(), set);
        qputenv("TMPDIR", "/tmp");
        QCOMPARE(platform::temporaryFolder(), u"/tmp"_s);
        qputenv("WINDIR", "C:\\Windows");
        QCOMPARE(platform::windowsFolder(), u"C:/Windows"_s);
    }

    void theOnlyProfileOfAForeignPrefixIsUsed()
    {
        const QString drive = makePrefix();
        qputenv("USER", "somebody-else");
        QCOMPARE(platform::homeFolder(), drive + "/users/jane"_L1);
        m_home.folder(u"prefix/drive_c/users/john"_s);
        QCOMPARE(platform::homeFolder(), QDir::homePath());
    }

    void namesBelowThePrefixAreFoundInAnyCase()
    {
        const QString drive = makePrefix();
        m_home.folder(u"prefix/drive_c/windows/softwaredistribution/DataStore"_s);
        QCOMPARE(platform::locate(platform::windowsFolder(),
                                  u"\\SoftwareDistribution\\DATASTORE\\Logs"_s),
                 drive + "/windows/softwaredistribution/DataStore/Logs"_L1);
    }

    void anExactNameWinsOverAnotherCase()
    {
        const QString drive = makePrefix();
        m_home.folder(u"prefix/drive_c/windows/TEMP"_s);
        m_home.folder(u"prefix/drive_c/windows/Temp"_s);
        QCOMPARE(platform::locate(platform::windowsFolder(), u"\\Temp"_s),
                 drive + "/windows/Temp"_L1);
    }

    void namesOutsideThePrefixKeepTheirCase()
    {
        const TestTree tree;
        tree.folder(u"Cache"_s);
        QCOMPARE(platform::locate(tree.path(), u"/cache"_s), tree.path(u"cache"_s));
    }

    void windowsPathsLeadThroughThePrefixsDrives()
    {
        const QString drive = makePrefix();
        QCOMPARE(platform::locate(u"C:"_s, u"\\Windows.old"_s), drive + "/Windows.old"_L1);
        QCOMPARE(platform::locate(u"c:"_s, QString()), drive);
        QCOMPARE(platform::locate(u"C:\\Windows"_s, u"\\x"_s), drive + "/windows/x"_L1);
        QCOMPARE(platform::locate(u"Q:"_s, u"\\x"_s), QString());
    }

    void withoutAPrefixWindowsPathsLeadNowhere()
    {
        QCOMPARE(platform::locate(u"C:"_s, u"\\Windows.old"_s), QString());
        QCOMPARE(platform::locate(u"C:/Windows"_s, u"\\Temp"_s), QString());
    }

    void unsetAndRelativeBasesLeadNowhere()
    {
        QCOMPARE(platform::locate(QString(), u"\\Microsoft"_s), QString());
        QCOMPARE(platform::locate(u"relative"_s, u"\\x"_s), QString());
        QCOMPARE(platform::locate(u"%UNKNOWN%"_s, u"\\x"_s), QString());
    }

    void dotsInARuleAreRefused()
    {
        const TestTree tree;
        QCOMPARE(platform::locate(tree.path(), u"/../x"_s), QString());
        QCOMPARE(platform::locate(tree.path(), u"\\a\\..\\..\\x"_s), QString());
        QCOMPARE(platform::locate(tree.path(), u"/./x"_s), QString());
    }

    void linksInTheBaseAreResolvedButNotInWhatTheRuleAppends()
    {
        const TestTree tree;
        tree.folder(u"real/sub"_s);
        tree.link(tree.path(u"real"_s), u"base"_s);
        tree.link(tree.path(u"real/sub"_s), u"real/planted"_s);
        QCOMPARE(platform::locate(tree.path(u"base"_s), u"/sub"_s), tree.path(u"real/sub"_s));
        QCOMPARE(platform::locate(tree.path(u"base"_s), u"/planted"_s),
                 tree.path(u"real/planted"_s));
    }

    void rootsThatHoldMoreThanClutterAreProtected_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("expected");
        QTest::newRow("file system") << u"/"_s << true;
        QTest::newRow("home") << u"HOME"_s << true;
        QTest::newRow("above the home") << u"HOME/.."_s << true;
        QTest::newRow("below the home") << u"HOME/cache"_s << false;
        QTest::newRow("drive") << u"DRIVE"_s << true;
        QTest::newRow("Windows folder") << u"DRIVE/windows"_s << true;
        QTest::newRow("system folder") << u"DRIVE/windows/system32"_s << true;
        QTest::newRow("program folder") << u"DRIVE/Program Files"_s << true;
        QTest::newRow("profile") << u"DRIVE/users/jane"_s << true;
        QTest::newRow("all profiles") << u"DRIVE/users"_s << true;
        QTest::newRow("temporary folder") << u"DRIVE/windows/temp"_s << false;
        QTest::newRow("missing") << u"/no/such/folder"_s << true;
        QTest::newRow("/usr") << u"/usr"_s << true;
        QTest::newRow("below /usr") << u"/usr/share"_s << true;
        QTest::newRow("below /etc") << u"/etc/default"_s << true;
        QTest::newRow("/var") << u"/var"_s << true;
        QTest::newRow("below /var") << u"/var/tmp"_s << false;
        QTest::newRow("below the program folder") << u"DRIVE/Program Files/App"_s << true;
        QTest::newRow("below the system folder") << u"DRIVE/windows/system32/config"_s << true;
        QTest::newRow("local data") << u"DRIVE/users/jane/AppData/Local"_s << true;
        QTest::newRow("roaming data") << u"DRIVE/users/jane/AppData/Roaming"_s << true;
        QTest::newRow("local temporary folder")
            << u"DRIVE/users/jane/AppData/Local/Temp"_s << false;
        QTest::newRow("program data") << u"DRIVE/ProgramData"_s << true;
        QTest::newRow("documents") << u"HOME/Documents"_s << true;
        for (const char *place : {"/root", "/home", "/mnt", "/media", "/srv", "/opt", "/var/lib",
                                  "/var/log", "/run", "/dev", "/proc", "/sys", "/boot"})
            QTest::newRow(place) << QString::fromLatin1(place) << true;
        QTest::newRow("below /var/lib") << u"/var/lib/dpkg"_s << true;
        QTest::newRow("another drive of the prefix") << u"OTHER"_s << true;
        QTest::newRow("below another drive") << u"OTHER/temp"_s << false;
        QTest::newRow("above another drive") << u"OTHER/.."_s << true;
        QTest::newRow("the prefix") << u"PREFIX"_s << true;
        QTest::newRow("another user's profile") << u"DRIVE/users/Public"_s << true;
        QTest::newRow("all local data") << u"DRIVE/users/jane/AppData"_s << true;
        QTest::newRow("fonts") << u"DRIVE/windows/Fonts"_s << true;
        QTest::newRow("what the system is repaired from") << u"DRIVE/windows/winsxs/x"_s << true;
        for (const char *name :
             {"Desktop", "Documents", "Downloads", "Pictures", "Music", "Videos"})
            QTest::newRow(name) << "DRIVE/users/jane/"_L1 + QLatin1StringView(name) << true;
        QTest::newRow("another user's documents") << u"DRIVE/users/john/Documents"_s << true;
        QTest::newRow("everybody's documents") << u"DRIVE/users/Public/Documents"_s << true;
        QTest::newRow("another user's data") << u"DRIVE/users/john/AppData/Local"_s << true;
        QTest::newRow("another user's temporary folder")
            << u"DRIVE/users/john/AppData/Local/Temp"_s << false;
        QTest::newRow("documents that were moved") << u"OTHER/Papers"_s << true;
        QTest::newRow("downloads that were moved") << u"OTHER/Loads"_s << true;
        QTest::newRow("what else the registry tells of") << u"OTHER/Cache"_s << false;
        QTest::newRow("below the downloads") << u"DRIVE/users/jane/Downloads/tmp"_s << false;
        QTest::newRow("where a link of the prefix leads") << u"HOME/linked music"_s << true;
    }

    void rootsThatHoldMoreThanClutterAreProtected()
    {
        QFETCH(QString, path);
        QFETCH(bool, expected);
        const QString drive = makePrefix();
        m_home.folder(u"home/cache"_s);
        m_home.folder(u"home/Documents"_s);
        m_home.folder(u"prefix/drive_c/Program Files/App"_s);
        m_home.folder(u"prefix/drive_c/windows/system32/config"_s);
        m_home.folder(u"prefix/drive_c/windows/Fonts"_s);
        m_home.folder(u"prefix/drive_c/windows/winsxs/x"_s);
        for (const QString &name :
             {u"Desktop"_s, u"Documents"_s, u"Downloads/tmp"_s, u"Pictures"_s, u"Videos"_s})
            m_home.folder("prefix/drive_c/users/jane/"_L1 + name);
        QFile::link(m_home.folder(u"home/linked music"_s), drive + "/users/jane/Music"_L1);
        const QString other = m_home.folder(u"disks/other"_s);
        m_home.folder(u"disks/other/temp"_s);
        QFile::link(other, m_home.path() + "/prefix/dosdevices/d:"_L1);
        m_home.folder(u"prefix/drive_c/users/john/AppData/Local/Temp"_s);
        for (const QString &name : {u"john"_s, u"Public"_s})
            m_home.folder("prefix/drive_c/users/"_L1 + name + "/Documents"_L1);
        for (const QString &name : {u"Papers"_s, u"Loads"_s, u"Cache"_s})
            m_home.folder("disks/other/"_L1 + name);
        QFile registry(m_home.path() + "/prefix/user.reg"_L1);
        QVERIFY(registry.open(QIODevice::WriteOnly));
        registry.write(
            "WINE REGISTRY Version 2\n\n"
            "[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Explorer\\\\User Shell "
            "Folders] 1\n"
            "\"Personal\"=\"D:\\\\papers\"\n\"Cache\"=\"D:\\\\Cache\"\n\n"
            "[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Explorer\\\\Shell Folders] 1\n"
            "\"{374DE290-123F-4565-9164-39C4925E467B}\"=\"D:\\\\Loads\"\n");
        registry.close();
        path.replace("HOME"_L1, QDir::homePath()).replace("DRIVE"_L1, drive);
        path.replace("OTHER"_L1, other).replace("PREFIX"_L1, m_home.path() + "/prefix"_L1);
        QCOMPARE(platform::ProtectedPlaces().isProtectedRoot(path), expected);
    }

    // The owner's own folder inside a protected tree may be taken. The tree itself may not.
    void aFolderInAProtectedTreeHoldsNoProtectedPlace()
    {
        const QString drive = makePrefix();
        const QString inside = m_home.folder(u"prefix/drive_c/Program Files/Portable/Profile"_s);
        QVERIFY(platform::ProtectedPlaces().isProtectedRoot(inside));
        QVERIFY(!platform::ProtectedPlaces().holdsProtectedPlace(inside));
        QVERIFY(platform::ProtectedPlaces().holdsProtectedPlace(drive + "/Program Files"_L1));
        QVERIFY(platform::ProtectedPlaces().holdsProtectedPlace(drive + "/users/jane"_L1));
        QVERIFY(platform::ProtectedPlaces().holdsProtectedPlace(drive));
        QVERIFY(platform::ProtectedPlaces().holdsProtectedPlace(u"/"_s));
        QVERIFY(platform::ProtectedPlaces().holdsProtectedPlace(u"/no/such/folder"_s));
    }

#ifdef Q_OS_UNIX
    // A drive of another user's disk leads to a place that no walk of this user reaches.
    void aDriveThatMayNotBeEnteredProtectsNothingElse()
    {
        const QString drive = makePrefix();
        const QString closed = m_home.folder(u"disks/closed"_s);
        m_home.folder(u"disks/closed/disk"_s);
        const QString link = m_home.path() + "/prefix/dosdevices/e:"_L1;
        QVERIFY(QFile::link(closed + "/disk"_L1, link));
        QVERIFY(QFile::setPermissions(closed, QFile::Permissions()));
        const QString temp = drive + "/users/jane/AppData/Local/Temp"_L1;
        // Nor does the profile of another user.
        const QString other = m_home.folder(u"prefix/drive_c/users/closed"_s);
        m_home.folder(u"prefix/drive_c/users/closed/Documents"_s);
        QVERIFY(QFile::setPermissions(other, QFile::Permissions()));
        const auto open = qScopeGuard([&other] {
            QFile::setPermissions(other, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QDir(other).removeRecursively();
        });
        {
            const OrdinaryUser user;
            QVERIFY(!platform::ProtectedPlaces().isProtectedRoot(temp));
            QVERIFY(platform::ProtectedPlaces().isProtectedRoot(drive));
        }
        QVERIFY(
            QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(QFile::remove(link));
    }
#endif

    // Variables of the host alone do not change the folders of the prefix.
    void thePrefixIgnoresTheHostsTemporaryVariables()
    {
        const QString drive = makePrefix();
        for (const char *variable : {"TMP", "TEMP"})
            qputenv(variable, "/usr");
        QCOMPARE(platform::temporaryFolder(), drive + "/users/jane/AppData/Local/Temp"_L1);
        for (const char *variable : {"TMP", "TEMP"})
            qunsetenv(variable);
    }

    void aLinkToAProtectedRootIsProtected()
    {
        const TestTree tree;
        QVERIFY(platform::ProtectedPlaces().isProtectedRoot(
            tree.link(QDir::homePath(), u"innocent"_s)));
    }

private:
    QString makePrefix() const
    {
        for (const QString &folder :
             {u"users/jane/AppData/Local/Temp"_s, u"users/jane/AppData/Roaming"_s,
              u"users/Public"_s, u"windows/system32"_s, u"windows/temp"_s, u"ProgramData"_s,
              u"Program Files"_s})
            m_home.folder("prefix/drive_c/"_L1 + folder);
        m_home.folder(u"prefix/dosdevices"_s);
        QFile::link(u"../drive_c"_s, m_home.path() + "/prefix/dosdevices/c:"_L1);
        return m_home.path() + "/prefix/drive_c"_L1;
    }

    const TestHome &m_home;
};

SWEEPWISE_TEST_MAIN(TestRuleFolders, QCoreApplication)
#include "tst_rulefolders.moc"
