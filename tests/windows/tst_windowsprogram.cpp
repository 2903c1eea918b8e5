#include "appinfo.h"
#include "application.h"
#include "fakestart.h"
#include "filemanager.h"
#include "hardening.h"
#include "protectedplaces.h"
#include "rulefolders.h"
#include "rulefolders_p.h"
#include "testtree.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QVersionNumber>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

/// The resources of a program file. The program is loaded as data and does not run.
class ProgramFile final
{
    Q_DISABLE_COPY_MOVE(ProgramFile)
public:
    explicit ProgramFile(const QString &path)
        : m_module(::LoadLibraryExW(path.toStdWString().c_str(), nullptr,
                                    LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE))
    {
        if (!m_module)
            qFatal("cannot read %s", qPrintable(path));
    }
    ~ProgramFile() { ::FreeLibrary(m_module); }

    [[nodiscard]] QByteArray resource(quint16 id, const wchar_t *type) const
    {
        const HRSRC found = ::FindResourceW(m_module, MAKEINTRESOURCEW(id), type);
        const HGLOBAL loaded = found ? ::LoadResource(m_module, found) : nullptr;
        if (!loaded)
            return {};
        return {static_cast<const char *>(::LockResource(loaded)),
                static_cast<qsizetype>(::SizeofResource(m_module, found))};
    }

private:
    const HMODULE m_module;
};

quint16 wordAt(const QByteArray &bytes, qsizetype offset)
{
    return static_cast<quint16>(static_cast<uchar>(bytes.at(offset))
                                | (static_cast<uchar>(bytes.at(offset + 1)) << 8));
}

QString versionText(const QByteArray &info, const QString &name)
{
    void *text = nullptr;
    UINT length = 0;
    const QString path = "\\StringFileInfo\\040904B0\\"_L1 + name;
    if (!::VerQueryValueW(info.constData(), path.toStdWString().c_str(), &text, &length))
        return {};
    return QString::fromWCharArray(static_cast<const wchar_t *>(text));
}

QString registryQuery(const QString &key, const QString &value)
{
    QProcess reg;
    reg.start(u"reg"_s, {u"query"_s, key, u"/v"_s, value});
    return reg.waitForFinished() ? QString::fromLocal8Bit(reg.readAllStandardOutput()).simplified()
                                 : QString();
}

} // namespace

class TestWindowsProgram : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theDataFolderIsNamedAfterOrganisationAndProgram()
    {
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QVERIFY(folder.endsWith("/Norvak/Sweepwise"_L1));
        QCOMPARE(platform::roamingDataFolder() + "/Norvak/Sweepwise"_L1, folder);
    }

    void theFoldersAreThoseOfTheSystem_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("variable");
        const auto row = [](const char *variable, const QString &folder) {
            QTest::newRow(variable) << folder << variable;
        };
        row("TEMP", platform::temporaryFolder());
        row("LOCALAPPDATA", platform::localDataFolder());
        row("APPDATA", platform::roamingDataFolder());
        row("USERPROFILE", platform::homeFolder());
        row("PROGRAMDATA", platform::programDataFolder());
        row("WINDIR", platform::windowsFolder());
        row("SYSTEMDRIVE", platform::systemDrive());
    }

    void theFoldersAreThoseOfTheSystem()
    {
        QFETCH(QString, folder);
        QFETCH(QString, variable);
        const QString expected = qEnvironmentVariable(variable.toLatin1().constData());
        QVERIFY(!expected.isEmpty());
        QCOMPARE(QDir::toNativeSeparators(folder).toLower(), expected.toLower());
        QVERIFY(!folder.contains(u'\\'));
        QVERIFY(QFileInfo(folder + u'/').isDir());
    }

    void unsetVariablesHaveDefaults()
    {
        const QByteArrayList names{"WINDIR", "SYSTEMDRIVE", "PROGRAMDATA"};
        QByteArrayList values;
        for (const QByteArray &name : names) {
            values.append(qgetenv(name.constData()));
            qunsetenv(name.constData());
        }
        const QStringList folders{platform::windowsFolder(), platform::systemDrive(),
                                  platform::programDataFolder()};
        for (qsizetype i = 0; i < names.size(); ++i)
            qputenv(names.at(i).constData(), values.at(i));
        QCOMPARE(folders, (QStringList{u"C:/Windows"_s, u"C:"_s, QString()}));
    }

    void aBareDriveIsItsRoot()
    {
        const TestTree tree;
        QVERIFY(tree.path().startsWith("C:/"_L1));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree.path()));
        const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
        QVERIFY(QFileInfo(u"C:"_s).absoluteFilePath().startsWith(tree.path()));
        QCOMPARE(platform::locate(u"C:"_s, {}), u"C:/"_s);
        QCOMPARE(platform::locate(u"C:"_s, u"\\Windows.old"_s), u"C:/Windows.old"_s);
        QCOMPARE(platform::locate(platform::systemDrive(), u"\\$Windows.~BT"_s),
                 u"C:/$Windows.~BT"_s);
    }

    void namesAreSpelledAsTheFolderSpellsThem()
    {
        const TestTree tree;
        tree.folder(u"Cache/Sub"_s);
        QCOMPARE(platform::locate(tree.path().toUpper(), u"\\cache/SUB\\missing\\X"_s),
                 tree.path(u"Cache/Sub/missing/X"_s));
        QCOMPARE(platform::locate(tree.path(), u"\\c*\\sub"_s), tree.path(u"c*/sub"_s));
    }

    void invalidLocationsAreRefused_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("relative");
        QTest::newRow("unset") << QString() << u"\\x"_s;
        QTest::newRow("unknown placeholder") << u"%UNKNOWN%"_s << u"\\x"_s;
        QTest::newRow("relative") << u"folder"_s << u"\\x"_s;
        QTest::newRow("current drive") << u"/Windows"_s << u"\\x"_s;
        QTest::newRow("current folder of a drive") << u"C:Windows"_s << u"\\x"_s;
        QTest::newRow("missing") << u"C:/no such folder"_s << u"\\x"_s;
        QTest::newRow("missing drive") << u"Q:"_s << u"\\x"_s;
        QTest::newRow("parent") << u"C:/windows"_s << u"\\..\\x"_s;
        QTest::newRow("parent at the end") << u"C:/windows"_s << u"\\x\\.."_s;
        QTest::newRow("dot") << u"C:/windows"_s << u"/./x"_s;
    }

    void invalidLocationsAreRefused()
    {
        QFETCH(QString, base);
        QFETCH(QString, relative);
        QCOMPARE(platform::locate(base, relative), QString());
    }

    void rootsThatHoldMoreThanClutterAreProtected_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("expected");
        QTest::newRow("drive") << u"C:/"_s << true;
        QTest::newRow("Windows folder") << u"C:/WINDOWS"_s << true;
        QTest::newRow("system folder") << u"C:/windows/system32"_s << true;
        QTest::newRow("program folder") << u"C:/Program Files"_s << true;
        QTest::newRow("other program folder") << u"C:/Program Files (x86)"_s << true;
        QTest::newRow("program data") << u"C:/ProgramData"_s << true;
        QTest::newRow("home") << QDir::homePath() << true;
        QTest::newRow("all profiles") << QFileInfo(QDir::homePath()).path() << true;
        QTest::newRow("missing") << u"C:/no such folder"_s << true;
        QTest::newRow("temporary folder") << QDir::tempPath() << false;
        QTest::newRow("local data") << QDir::homePath() + "/AppData/Local"_L1 << true;
        QTest::newRow("cache") << QDir::homePath() + "/AppData/Local/Cache"_L1 << false;
        QTest::newRow("below a program folder") << u"C:/Program Files/Common Files"_s << true;
    }

    void rootsThatHoldMoreThanClutterAreProtected()
    {
        QFETCH(QString, path);
        QFETCH(bool, expected);
        QDir().mkpath(QDir::homePath() + "/AppData/Local/Cache"_L1);
        QCOMPARE(platform::ProtectedPlaces().isProtectedRoot(path), expected);
    }

    void rootsOfDrivesAndSharesAreRecognized_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("expected");
        QTest::newRow("drive") << u"C:/"_s << true;
        QTest::newRow("share") << u"//server/share/"_s << true;
        QTest::newRow("share without a slash at the end") << u"//server/share"_s << true;
        QTest::newRow("volume") << u"//?/Volume{1-2}/"_s << true;
        QTest::newRow("folder") << u"C:/folder"_s << false;
        QTest::newRow("folder of a share") << u"//server/share/folder"_s << false;
    }

    void rootsOfDrivesAndSharesAreRecognized()
    {
        QFETCH(QString, path);
        QFETCH(bool, expected);
        QCOMPARE(platform::isRoot(path), expected);
    }

    void theLanguageIsInTheRegistry()
    {
        const QString key = u"HKCU\\Software\\Norvak\\Sweepwise"_s;
        QSettings store(appinfo::organisation, appinfo::name);
        const QVariant before = store.value("language"_L1);
        const auto restore = qScopeGuard([&] {
            if (before.isValid())
                store.setValue("language"_L1, before);
            else
                store.remove("language"_L1);
        });
        for (const QString &code : {u"de"_s, u"ja"_s}) {
            store.setValue("language"_L1, code);
            store.sync();
            QVERIFY(registryQuery(key, u"language"_s).endsWith("language REG_SZ "_L1 + code));
        }
    }

    void theOptionsAreInTheIniFile()
    {
        Application::instance()->initialize();
        QSettings *const settings = Application::instance()->settings();
        const QVariant before = settings->value("clean/confirmClean"_L1);
        const auto restore = qScopeGuard([&] {
            if (before.isValid())
                settings->setValue("clean/confirmClean"_L1, before);
            else
                settings->remove("clean/confirmClean"_L1);
        });
        for (const QByteArray &value : {QByteArray("false"), QByteArray("true")}) {
            settings->setValue("clean/confirmClean"_L1, value == "true");
            settings->sync();
            QFile file(qEnvironmentVariable("APPDATA") + "\\Norvak\\Sweepwise.ini"_L1);
            QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
            const QByteArrayList lines = file.readAll().split('\n');
            QVERIFY(lines.contains("[clean]"));
            QVERIFY(lines.contains("confirmClean=" + value));
        }
    }

    void explorerIsStartedFromTheSystemFolderWithOnePath_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << u"file.txt"_s;
        QTest::newRow("blank") << u"a file.txt"_s;
        QTest::newRow("comma") << u"a,file.txt"_s;
        QTest::newRow("equals sign and percent") << u"a=%TEMP%.txt"_s;
    }

    void explorerIsStartedFromTheSystemFolderWithOnePath()
    {
        QFETCH(QString, name);
        const TestTree tree;
        // A program of that name in the current folder must not be started.
        tree.file(u"explorer.exe"_s);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree.path()));
        const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
        const QString file = tree.file(name);
        const FakeStart start;
        QVERIFY(platform::revealFile(file));
        const QString program =
            QDir::toNativeSeparators(platform::windowsFolder()) + "\\explorer.exe"_L1;
        QCOMPARE(start.program(), QString());
        QCOMPARE(start.command().simplified().toLower(),
                 (program + " /select, \""_L1 + QDir::toNativeSeparators(file) + u'"').toLower());
    }

    void aPlantedLibraryIsNotLoaded()
    {
        const TestTree tree;
        // No other test has a library of this name.
        const QString name = u"planted-version.dll"_s;
        QVERIFY(QFile::copy(QDir::fromNativeSeparators(platform::windowsFolder())
                                + "/system32/version.dll"_L1,
                            tree.path(name)));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree.path()));
        const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
        const HMODULE loaded = ::LoadLibraryW(name.toStdWString().c_str());
        QVERIFY(loaded);
        ::FreeLibrary(loaded);

        platform::hardenProcess();
        QVERIFY(!::LoadLibraryW(name.toStdWString().c_str()));
        // Libraries of the system are still found.
        const HMODULE system = ::LoadLibraryW(L"wininet.dll");
        QVERIFY(system);
        ::FreeLibrary(system);
    }

    void theProgramsHaveVersionResources_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("description");
        QTest::newRow("desktop") << QStringLiteral(PROGRAM) << u"sweepwise"_s
                                 << u"Sweepwise PC cleaner"_s;
        QTest::newRow("companion") << QStringLiteral(CLI_PROGRAM) << u"sweepwise-cli"_s
                                   << u"Sweepwise PC cleaner, headless"_s;
    }

    void theProgramsHaveVersionResources()
    {
        QFETCH(QString, path);
        QFETCH(QString, name);
        QFETCH(QString, description);
        const QByteArray info = ProgramFile(path).resource(1, RT_VERSION);
        QCOMPARE(versionText(info, u"CompanyName"_s), QString(appinfo::organisation));
        QCOMPARE(versionText(info, u"ProductName"_s), QString(appinfo::name));
        QCOMPARE(versionText(info, u"FileDescription"_s), description);
        QCOMPARE(versionText(info, u"FileVersion"_s), QString(appinfo::version));
        QCOMPARE(versionText(info, u"ProductVersion"_s), QString(appinfo::version));
        QCOMPARE(versionText(info, u"InternalName"_s), name);
        QCOMPARE(versionText(info, u"OriginalFilename"_s), name + ".exe"_L1);

        void *fixed = nullptr;
        UINT length = 0;
        QVERIFY(::VerQueryValueW(info.constData(), L"\\", &fixed, &length));
        const auto *numbers = static_cast<const VS_FIXEDFILEINFO *>(fixed);
        QCOMPARE(QVersionNumber(HIWORD(numbers->dwFileVersionMS), LOWORD(numbers->dwFileVersionMS),
                                HIWORD(numbers->dwFileVersionLS)),
                 QVersionNumber::fromString(appinfo::version));
    }

    void theProgramsHaveAnIconOfEverySize_data() { theProgramsHaveVersionResources_data(); }

    void theProgramsHaveAnIconOfEverySize()
    {
        QFETCH(QString, path);
        const ProgramFile program(path);
        // The directory has a header of 6 bytes and 14 bytes for each image: width, height, two
        // bytes, planes, bits per pixel, length in bytes and number.
        const QByteArray directory = program.resource(1, RT_GROUP_ICON);
        QVERIFY(directory.size() > 6);
        QList<int> sizes;
        for (qsizetype at = 6; at < directory.size(); at += 14) {
            const int edge = static_cast<uchar>(directory.at(at));
            const QByteArray image = program.resource(wordAt(directory, at + 12), RT_ICON);
            const QImage picture = QImage::fromData(image);
            QCOMPARE(picture.width(), edge == 0 ? 256 : edge);
            QCOMPARE(picture.height(), picture.width());
            QVERIFY(picture.hasAlphaChannel());
            // The corners are round and the middle is not empty.
            QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
            QCOMPARE(picture.pixelColor(picture.rect().center()).alpha(), 255);
            sizes.append(picture.width());
        }
        QCOMPARE(sizes, (QList<int>{16, 20, 24, 32, 40, 48, 64, 128, 256}));
    }

    void theManifestsAskForWhatTheProgramsNeed_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArrayList>("expected");
        const QByteArrayList both{"level=\"asInvoker\"",
                                  "<supportedOS Id=\"{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}\"/>",
                                  ">true</longPathAware>"};
        const QByteArrayList forWindows{"\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\"",
                                        ">PerMonitorV2, PerMonitor</dpiAwareness>"};
        const QByteArrayList forConsole{">UTF-8</activeCodePage>"};
        QTest::newRow("desktop") << QStringLiteral(PROGRAM) << both + forWindows;
        QTest::newRow("companion") << QStringLiteral(CLI_PROGRAM) << both + forConsole;
    }

    void theManifestsAskForWhatTheProgramsNeed()
    {
        QFETCH(QString, path);
        QFETCH(QByteArrayList, expected);
        const QByteArray manifest = ProgramFile(path).resource(1, RT_MANIFEST);
        for (const QByteArray &text : expected)
            QVERIFY2(manifest.contains(text), text.constData());
        QVERIFY(!manifest.contains('@'));
    }
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setApplicationVersion(appinfo::version);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    TestWindowsProgram test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_windowsprogram.moc"
