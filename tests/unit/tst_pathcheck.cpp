#include "pathcheck.h"

#include "appinfo.h"
#include "registrycleaner.h"
#include "registryfixture.h"
#include "testhome.h"
#include "testtree.h"
#include "windowspaths.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString missing = u"C:\\Sweepwise Missing\\app.exe"_s;

} // namespace

/// PathCheck on the live system under Windows, and on a prefix elsewhere.
class TestPathCheck : public QObject
{
    Q_OBJECT
public:
    explicit TestPathCheck(const TestHome &home)
        : m_home(home)
        , m_fixture(home)
    {
#ifndef Q_OS_WIN
        m_home.folder(u"prefix/drive_c/users/jane/AppData/Local/Temp"_s);
        m_home.folder(u"prefix/drive_c/users/jane/AppData/Roaming"_s);
        m_home.folder(u"prefix/drive_c/windows/system32"_s);
        qputenv("USER", "jane");
#endif
    }

private Q_SLOTS:
    void whatExists_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("exists");
        const QString file = makeFile(u"Program File.exe"_s);
        const QString folder = file.first(file.lastIndexOf(u'\\'));
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("file") << file << true;
        QTest::newRow("file in other case") << file.toUpper() << true;
        QTest::newRow("file with slashes") << QString(file).replace(u'\\', u'/') << true;
        QTest::newRow("extended form") << "\\\\?\\"_L1 + file << true;
        QTest::newRow("extended form of what is missing") << "\\\\?\\"_L1 + missing << false;
        QTest::newRow("folder") << folder << true;
        QTest::newRow("folder with a separator behind") << folder + u'\\' << true;
        QTest::newRow("file taken for a folder") << file + "\\x"_L1 << false;
        QTest::newRow("missing") << missing << false;
        QTest::newRow("missing in a folder that is there") << folder + "\\none.exe"_L1 << false;
        QTest::newRow("longer than a path of Windows can be")
            << folder + u"\\."_s.repeated(16'400) + file.mid(folder.size()) << false;
        QTest::newRow("long") << folder + u"\\."_s.repeated(1000) + file.mid(folder.size()) << true;
        QTest::newRow("file in quotes") << u'"' + file + u'"' << true;
        QTest::newRow("missing in quotes") << u'"' + missing + u'"' << false;
        QTest::newRow("quotes alone") << u"\"\""_s << false;
        QTest::newRow("one quote") << u"\""_s << false;
        QTest::newRow("quote in front only") << u'"' + file << false;
        QTest::newRow("%1 is too short") << u"%1"_s << true;
        QTest::newRow("three characters are too short") << u"%ab"_s << true;
        QTest::newRow("known placeholder") << u"%SystemRoot%"_s << true;
        QTest::newRow("known placeholder, missing file")
            << u"%SystemRoot%\\sweepwise missing.dll"_s << false;
        QTest::newRow("placeholder in capitals")
            << u"%SYSTEMROOT%\\sweepwise missing.dll"_s << true;
        QTest::newRow("placeholder in small letters")
            << u"%systemroot%\\sweepwise missing.dll"_s << true;
        QTest::newRow("unknown placeholder") << u"%SweepwiseNone%\\x.dll"_s << true;
        QTest::newRow("per cent sign in a name") << missing + u'%' << true;
        QTest::newRow("relative") << u"sweepwise missing.exe"_s << false;
        QTest::newRow("relative with arguments") << u"MsiExec.exe /X{0123}"_s << false;
    }
    void whatExists()
    {
        QFETCH(QString, text);
        QFETCH(bool, exists);
        QCOMPARE(PathCheck(platform::Registry()).exists(text), exists);
        QCOMPARE(RegistryCleaner::pathExists(text), exists);
    }

    // Only the system can resolve these paths, so the entry counts as existing.
    void whatOnlyTheSystemCanResolveCountsAsExisting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("short name of a folder") << u"C:\\PROGRA~1\\None\\app.exe"_s;
        QTest::newRow("short name of a file") << u"C:\\Sweepwise Missing\\LONGNA~12.EXE"_s;
        QTest::newRow("relative short name") << u"SWEEPW~1.EXE"_s;
        QTest::newRow("path of the system's own form") << u"\\??\\C:\\none.exe"_s;
        QTest::newRow("device") << u"\\\\.\\none"_s;
        QTest::newRow("blank at the end") << missing + u' ';
        QTest::newRow("dot at the end") << missing + u'.';
        QTest::newRow("blank at the end of a folder") << u"C:\\Sweepwise Missing \\app.exe"_s;
        QTest::newRow("another machine") << u"\\\\sweepwise-none\\share\\app.exe"_s;
        QTest::newRow("another machine, with slashes") << u"//sweepwise-none/share/app.exe"_s;
        QTest::newRow("below the current drive") << u"\\Sweepwise Missing\\app.exe"_s;
        QTest::newRow("below the current drive, with a slash") << u"/sweepwise-none/app.exe"_s;
        QTest::newRow("address") << u"https://www.example.com/none"_s;
        QTest::newRow("place of the shell") << u"shell:AppsFolder\\none"_s;
        QTest::newRow("blank in front") << u' ' + missing;
        QTest::newRow("tabulator behind") << missing + "\t-x"_L1;
        QTest::newRow("below the current folder of a drive") << u"C:sweepwise none.exe"_s;
    }
    void whatOnlyTheSystemCanResolveCountsAsExisting()
    {
        QFETCH(QString, text);
        QVERIFY(PathCheck(platform::Registry()).exists(text));
        QVERIFY(PathCheck(platform::Registry()).exists(u'"' + text + u'"'));
    }

    void ordinaryNamesAreNotTakenForAliases_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"~1", "LONGNAME~1.EXE", "a~b.exe", "A~1.html", "a~1~2.exe", "..",
                                 ".", ".hidden", "a .b", "a.b.c"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void ordinaryNamesAreNotTakenForAliases()
    {
        QFETCH(QString, name);
        QVERIFY(!PathCheck(platform::Registry())
                     .exists(u"C:\\Sweepwise Missing\\sub\\"_s + name + u"\\none.exe"_s));
    }

    // A bare name is looked up where the system looks, never in the current folder of this program.
    void namesAreNotLookedUpInTheCurrentFolder()
    {
        const TestTree tree;
        tree.file(u"sweepwise here.exe"_s);
        tree.file(u"sub/sweepwise here.exe"_s);
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(tree.path()));
        PathCheck paths{platform::Registry()};
        const bool isFound = paths.exists(u"sweepwise here.exe"_s)
            || paths.exists(u"sub\\sweepwise here.exe"_s)
            || paths.exists(u"sub/sweepwise here.exe"_s);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(!isFound);
    }

    void namesAreLookedUpInTheSystemsFolders()
    {
#ifndef Q_OS_WIN
        const QString library =
            m_home.folder(u"prefix/drive_c/windows/system32"_s) + "/kernel32.dll"_L1;
        QFile file(library);
        QVERIFY(file.open(QIODevice::WriteOnly));
#endif
        PathCheck paths{platform::Registry()};
        QVERIFY(paths.exists(u"kernel32.dll"_s));
        QVERIFY(paths.exists(u"KERNEL32.DLL"_s));
        QVERIFY(paths.exists(u"system32\\kernel32.dll"_s));
        QVERIFY(!paths.exists(u"sweepwise none.dll"_s));
    }

    // The system also finds a program by its bare name, or without its suffix.
    void programsAreLookedUpWhereTheSystemDoes()
    {
        const QString there = makeFile(u"Sweepwise Tool.exe"_s);
        const QString folder = there.first(there.lastIndexOf(u'\\'));
        RegistryFixture fixture(m_home);
        const QString appPaths = u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\"
                                 "CurrentVersion\\App Paths\\"_s;
        fixture.addText(appPaths + "Sweepwise Alias.exe"_L1, {}, u'"' + there + u'"');
        fixture.addText(appPaths + "Sweepwise Gone.exe"_L1, {}, missing);
        fixture.write();
        PathCheck paths{platform::Registry()};
        QVERIFY(paths.exists(folder + "\\Sweepwise Tool"_L1));
        QVERIFY(paths.exists(u"sweepwise alias"_s));
        QVERIFY(paths.exists(u"Sweepwise Alias.exe"_s));
        QVERIFY(!paths.exists(u"Sweepwise Gone.exe"_s));
        QVERIFY(!paths.exists(u"sweepwise none"_s));
        QVERIFY(!paths.exists(folder + "\\Sweepwise"_L1));
        QVERIFY(!paths.exists(folder + "\\Sweepwise Tool.dll"_L1));
    }

#ifndef Q_OS_WIN
    // The search path of the prefix has a part of the machine and one of the user.
    void theSearchPathCounts()
    {
        for (const char *folder : {"Sweepwise One", "Sweepwise Two", "windows/Sweepwise Three"}) {
            const QString path = m_home.folder("prefix/drive_c/"_L1 + QLatin1StringView(folder));
            QFile file(path + "/sweepwise "_L1 + QString::fromLatin1(folder).last(3).toLower()
                       + ".exe"_L1);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        const QString elsewhere = m_home.folder(u"prefix/drive_c/Sweepwise Elsewhere"_s);
        QFile outside(elsewhere + "/sweepwise out.exe"_L1);
        QVERIFY(outside.open(QIODevice::WriteOnly));
        qputenv("PATH", (qEnvironmentVariable("PATH") + ":C:\\Sweepwise Elsewhere;"_L1).toUtf8());
        RegistryFixture fixture(m_home);
        fixture.addText(u"HKEY_CURRENT_USER\\Environment"_s, u"PATH"_s, u"C:\\Sweepwise One"_s);
        fixture.addText(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\"
                        "Session Manager\\Environment"_s,
                        u"PATH"_s,
                        u"c:\\none;C:\\sweepwise two;%systemroot%\\Sweepwise Three;;rel"_s);
        fixture.write();
        PathCheck paths{platform::Registry()};
        for (const QString &name : {u"sweepwise one"_s, u"sweepwise two.exe"_s, u"Sweepwise ree"_s})
            QVERIFY2(paths.exists(name), qPrintable(name));
        QVERIFY(!paths.exists(u"sweepwise out"_s));
    }
#endif

    void programOfACommandLine_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("quotedPart");
        const auto row = [](const char *title, const QString &command, const QString &program,
                            const QString &quotedPart) {
            QTest::newRow(title) << command << program << quotedPart;
        };
        row("quoted", u"\"C:\\a b\\c.exe\" -x"_s, u"C:\\a b\\c.exe"_s, u"C:\\a b\\c.exe"_s);
        row("quoted alone", u"\"C:\\c.exe\""_s, u"C:\\c.exe"_s, u"C:\\c.exe"_s);
        row("quoted twice", u"\"C:\\c.exe\" \"D:\\d\""_s, u"C:\\c.exe"_s, u"C:\\c.exe"_s);
        row("plain", u"C:\\c.exe -x"_s, u"C:\\c.exe"_s, u"C:\\c.exe -x"_s);
        row("plain alone", u"C:\\c.exe"_s, u"C:\\c.exe"_s, u"C:\\c.exe"_s);
        row("plain with a quoted argument", u"C:\\c.exe \"-x\""_s, u"C:\\c.exe"_s,
            u"C:\\c.exe \"-x\""_s);
        row("unquoted with a blank is cut", u"C:\\Program Files\\App\\app.exe -x"_s,
            u"C:\\Program"_s, u"C:\\Program Files\\App\\app.exe -x"_s);
        row("open quote", u"\"C:\\a b.exe -x"_s, u"\"C:\\a b.exe -x"_s, u"\"C:\\a b.exe -x"_s);
        row("tabulator", u"C:\\c.exe\t-x"_s, u"C:\\c.exe\t-x"_s, u"C:\\c.exe\t-x"_s);
        row("blank in front", u" C:\\a.exe -x"_s, u" C:\\a.exe -x"_s, u" C:\\a.exe -x"_s);
        row("blank before a quote", u" \"C:\\a.exe\" -x"_s, u" \"C:\\a.exe\" -x"_s,
            u" \"C:\\a.exe\" -x"_s);
        row("empty quotes", u"\"\" x"_s, {}, {});
        row("quote alone", u"\""_s, u"\""_s, u"\""_s);
        row("empty", {}, {}, {});
    }
    void programOfACommandLine()
    {
        QFETCH(QString, command);
        QFETCH(QString, program);
        QFETCH(QString, quotedPart);
        QCOMPARE(PathCheck::programPath(command), program);
        QCOMPARE(PathCheck::quotedPart(command), quotedPart);
    }

    void everyPlaceholderIsReplaced_data()
    {
        QTest::addColumn<QString>("placeholder");
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QString>("inPrefix");
        const auto row = [](const char *placeholder, const char *variable, const char *inPrefix) {
            QTest::newRow(placeholder) << QString::fromLatin1(placeholder) << QByteArray(variable)
                                       << QString::fromLatin1(inPrefix);
        };
        row("%SystemRoot%", "SYSTEMROOT", "windows");
        row("%ProgramFiles%", "PROGRAMFILES", "Program Files");
        row("%ProgramFiles(x86)%", "PROGRAMFILES(X86)", "Program Files (x86)");
        row("%WinDir%", "WINDIR", "windows");
        row("%UserProfile%", "USERPROFILE", "users/jane");
        row("%LocalAppData%", "LOCALAPPDATA", "users/jane/AppData/Local");
        row("%AppData%", "APPDATA", "users/jane/AppData/Roaming");
        row("%CommonProgramFiles%", "COMMONPROGRAMFILES", "Program Files/Common Files");
        row("%CommonProgramFiles(x86)%", "COMMONPROGRAMFILES(X86)",
            "Program Files (x86)/Common Files");
        row("%SystemDrive%", "SYSTEMDRIVE", "");
        row("%HomeDrive%", "HOMEDRIVE", "");
        row("%Temp%", "TEMP", "users/jane/AppData/Local/Temp");
        row("%Tmp%", "TMP", "users/jane/AppData/Local/Temp");
    }
    void everyPlaceholderIsReplaced()
    {
        QFETCH(QString, placeholder);
        QFETCH(QByteArray, variable);
        QFETCH(QString, inPrefix);
        const bool wasSet = qEnvironmentVariableIsSet(variable.constData());
        const QByteArray before = qgetenv(variable.constData());
#ifdef Q_OS_WIN
        const QString file = makeFile(u"in variable.exe"_s);
        const qsizetype cut = file.lastIndexOf(u'\\');
        qputenv(variable.constData(), file.first(cut).toUtf8());
        const bool isFound = PathCheck(platform::Registry()).exists(placeholder + file.mid(cut));
#else
        QFile file(m_home.folder("prefix/drive_c/"_L1 + inPrefix) + "/in variable.exe"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        // The variables of this process mean nothing to the prefix.
        qputenv(variable.constData(), "C:\\Sweepwise Elsewhere");
        const bool isFound =
            PathCheck(platform::Registry()).exists(placeholder + "\\in variable.exe"_L1);
#endif
        const bool isMissingFileFound =
            PathCheck(platform::Registry()).exists(placeholder + "\\sweepwise missing"_L1);
#ifdef Q_OS_WIN
        // An unset variable is replaced by nothing.
        qunsetenv(variable.constData());
        const bool isGone = PathCheck(platform::Registry()).exists(placeholder + file);
#else
        const bool isGone = file.remove()
            && !PathCheck(platform::Registry()).exists(placeholder + "\\in variable.exe"_L1);
#endif
        if (wasSet)
            qputenv(variable.constData(), before);
        else
            qunsetenv(variable.constData());
        QVERIFY(isFound);
        QVERIFY(!isMissingFileFound);
        QVERIFY(isGone);
    }

    void aPlaceholderStandsForItsVariable_data()
    {
        everyPlaceholderIsReplaced_data();
        QTest::newRow("%HomePath%") << u"%HomePath%"_s << QByteArray("HOMEPATH") << QString();
    }
    // Elsewhere than on Windows the environment counts when there is no prefix.
    void aPlaceholderStandsForItsVariable()
    {
        QFETCH(QString, placeholder);
        QFETCH(QByteArray, variable);
#ifndef Q_OS_WIN
        const QByteArray prefix = qgetenv("WINEPREFIX");
        qputenv("WINEPREFIX", m_home.folder(u"no prefix"_s).toUtf8());
#endif
        const bool wasSet = qEnvironmentVariableIsSet(variable.constData());
        const QByteArray before = qgetenv(variable.constData());
        const auto exists = [](const QString &text) {
            return PathCheck(platform::Registry()).exists(text + "sweepwise missing"_L1);
        };
        qunsetenv(variable.constData());
        const bool existsWhenUnset = exists(placeholder);
        const bool existsTwiceWhenUnset = exists(placeholder + u'x' + placeholder);
        const bool existsInCapitals = exists(placeholder.toUpper());
        const bool existsInSmallLetters = exists(placeholder.toLower());
        qputenv(variable.constData(), "sweepwise");
        const bool existsByName = exists(placeholder);
        // A path on the current drive counts as existing.
        qputenv(variable.constData(), "\\Sweepwise Missing\\");
        const bool existsOnCurrentDrive = exists(placeholder);
        if (wasSet)
            qputenv(variable.constData(), before);
        else
            qunsetenv(variable.constData());
#ifndef Q_OS_WIN
        qputenv("WINEPREFIX", prefix);
#endif
        QVERIFY(!existsWhenUnset);
        QVERIFY(!existsTwiceWhenUnset);
        QVERIFY(existsInCapitals);
        QVERIFY(existsInSmallLetters);
        QVERIFY(!existsByName);
        QVERIFY(existsOnCurrentDrive);
    }

    void homeDriveAndPathGoTogether()
    {
        const QString text = u"%HomeDrive%%HomePath%"_s;
        QVERIFY(PathCheck(platform::Registry()).exists(text));
        QVERIFY(!PathCheck(platform::Registry()).exists(text + "\\sweepwise missing"_L1));
    }

#ifndef Q_OS_WIN
    void whatAPrefixDoesNotTellCountsAsPresent()
    {
        m_home.folder(u"prefix/drive_c/users/john"_s);
        qputenv("USER", "somebody-else");
        PathCheck paths{platform::Registry()};
        for (const QString &placeholder : {u"%UserProfile%"_s, u"%LocalAppData%"_s, u"%AppData%"_s,
                                           u"%HomeDrive%%HomePath%"_s, u"%Temp%"_s, u"%Tmp%"_s})
            QVERIFY2(paths.exists(placeholder + "\\sweepwise missing"_L1), qPrintable(placeholder));
        QVERIFY(!paths.exists(u"%SystemRoot%\\sweepwise missing"_s));
        qputenv("USER", "jane");
        QVERIFY(QDir(m_home.folder(u"prefix/drive_c/users/john"_s)).removeRecursively());
    }

    void thePrefixsOwnTemporaryFoldersCount()
    {
        QFile registry(m_fixture.file(u"HKEY_CURRENT_USER"_s));
        QVERIFY(registry.open(QIODevice::ReadWrite));
        const QByteArray before = registry.readAll();
        registry.write("\n[Environment] 1\n\"TEMP\"=str(2):\"%UserProfile%\\\\One\"\n"
                       "\"TMP\"=\"c:\\\\Two\"\n");
        registry.close();
        m_home.folder(u"prefix/drive_c/users/jane/one"_s);
        m_home.folder(u"prefix/drive_c/two"_s);
        qputenv("TMP", "/tmp");
        PathCheck paths{platform::Registry()};
        QVERIFY(paths.exists(u"%Temp%"_s));
        QVERIFY(paths.exists(u"%Tmp%"_s));
        QVERIFY(!paths.exists(u"%Temp%\\sweepwise missing"_s));
        QVERIFY(!paths.exists(u"%Tmp%\\sweepwise missing"_s));
        qunsetenv("TMP");
        QVERIFY(registry.open(QIODevice::WriteOnly));
        registry.write(before);
    }

    void whatCannotBeLookedAtCountsAsPresent()
    {
        // Others cannot list the folder, so the case of a name is unknown to them.
        const QString closed = m_home.folder(u"prefix/drive_c/Closed"_s);
        m_home.folder(u"prefix/drive_c/Closed/Inside"_s);
        const QString locked = m_home.folder(u"prefix/drive_c/Locked"_s);
        m_home.folder(u"prefix/drive_c/Locked/Inside"_s);
        letOthersEnter();
        QVERIFY(QFile::setPermissions(closed,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                          | QFile::ExeGroup | QFile::ExeOther));
        QVERIFY(
            QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        bool exact = false;
        bool otherCase = false;
        bool belowOtherCase = false;
        bool behindALock = false;
        bool missingElsewhere = true;
        {
            const OrdinaryUser ordinary;
            PathCheck paths{platform::Registry()};
            exact = paths.exists(u"C:\\Closed\\Inside"_s);
            otherCase = paths.exists(u"C:\\Closed\\inside"_s);
            belowOtherCase = paths.exists(u"C:\\Closed\\inside\\none.exe"_s);
            behindALock = paths.exists(u"C:\\Locked\\Inside"_s);
            missingElsewhere = paths.exists(missing);
        }
        QVERIFY(exact);
        QVERIFY(otherCase);
        QVERIFY(belowOtherCase);
        QVERIFY(behindALock);
        QVERIFY(!missingElsewhere);
    }

    void aLinkThatLeadsNowhereIsMissing()
    {
        const QString folder = m_home.folder(u"prefix/drive_c/Links"_s);
        QVERIFY(QFile::link(u"/sweepwise/none"_s, folder + "/broken"_L1));
        QVERIFY(QFile::link(folder, folder + "/good"_L1));
        PathCheck paths{platform::Registry()};
        QVERIFY(!paths.exists(u"C:\\Links\\broken"_s));
        QVERIFY(!paths.exists(u"C:\\Links\\BROKEN"_s));
        QVERIFY(paths.exists(u"C:\\Links\\GOOD"_s));
    }

    void aSeparatorBehindMeansAFolder()
    {
        const QString file = makeFile(u"present.exe"_s);
        const QString folder = file.first(file.lastIndexOf(u'\\') + 1);
        PathCheck paths{platform::Registry()};
        QVERIFY(!paths.exists(file + u'\\'));
        QVERIFY(!paths.exists(file.toUpper() + u'\\'));
        QVERIFY(paths.exists(folder));
        QVERIFY(paths.exists(folder.toUpper()));
    }

    // What a lookup remembers must not change its answers.
    void aLookupAnswersLikeANewOne_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void aLookupAnswersLikeANewOne()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        const auto any = [&random](const QStringList &list) {
            return list.at(random.bounded(static_cast<int>(list.size())));
        };
        const QString drive = m_home.folder(u"prefix/drive_c"_s);
        const QString top = m_home.folder(u"prefix/drive_c/Random"_s);
        QVERIFY(QDir(top).removeRecursively());
        // Few names in each place, so that cases meet, and files stand where folders are asked for.
        const QStringList names{u"a"_s, u"A"_s, u"b"_s, u"file.exe"_s, u"File.exe"_s};
        QStringList folders{top};
        QVERIFY(QDir().mkpath(top));
        for (int i = 0; i < 40; ++i) {
            const QString path = any(folders) + u'/' + any(names);
            QFile file(path);
            switch (random.bounded(4)) {
            case 0:
                (void)file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
                break;
            case 1:
                QFile::link(any(folders + QStringList{drive + "/none"_L1}), path);
                break;
            default:
                if (QDir().mkpath(path))
                    folders.append(path);
            }
        }
        platform::PathLookup lookup;
        int present = 0;
        constexpr int questions = 1000;
        for (int i = 0; i < questions; ++i) {
            QString path = u"C:\\Random"_s;
            for (int depth = random.bounded(1, 6); depth > 0; --depth)
                path += any({u"\\"_s, u"\\"_s, u"/"_s, u"\\\\"_s})
                    + any(names + QStringList{u"B"_s, u"FILE.EXE"_s, u"none"_s, u".."_s, u"."_s});
            path += any({QString(), QString(), u"\\"_s});
            const platform::Presence expected = platform::PathLookup().presenceOf(path);
            QVERIFY2(lookup.presenceOf(path) == expected, qPrintable(path));
            present += expected == platform::Presence::Present ? 1 : 0;
        }
        QVERIFY2(present > questions / 20 && present < questions * 19 / 20,
                 qPrintable(QString::number(present)));
    }

    // A check remembers that a folder is missing. This must not count for another path that has the
    // same text in it.
    void aMissingFolderHidesNothingElse()
    {
        const QString present = makeFile(u"present.exe"_s);
        const QString elsewhere = m_home.folder(u"elsewhere/deep"_s);
        m_home.folder(u"elsewhere/sub"_s);
        QFile file(m_home.path() + "/elsewhere/sub/file.exe"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(elsewhere, m_home.folder(u"prefix/drive_c/Jumps"_s) + "/jump"_L1));
        PathCheck paths{platform::Registry()};
        QVERIFY(!paths.exists(u"C:\\None\\a.exe"_s));
        QVERIFY(!paths.exists(u"C:\\None\\b.exe"_s));
        QVERIFY(paths.exists(u"C:\\None\\.."_s + present.mid(2)));
        QVERIFY(paths.exists(u"C:\\None\\.."_s));
        QVERIFY(paths.exists(u"C:\\"_s));
        QVERIFY(!paths.exists(u"C:\\Jumps\\sub\\file.exe"_s));
        QVERIFY(paths.exists(u"C:\\Jumps\\jump\\..\\sub\\file.exe"_s));
        // A folder in another case, and then a file in it.
        QVERIFY(!paths.exists(present.toUpper() + ".none"_L1));
        QVERIFY(paths.exists(present.toUpper()));
        QVERIFY(paths.exists(present));
    }
#endif

private:
    // Makes a file in a folder with a blank in its name. Returns its Windows path.
    [[nodiscard]] QString makeFile(const QString &name) const
    {
#ifdef Q_OS_WIN
        const QString folder = m_home.folder(u"Sweepwise Files"_s);
        const QString path = QDir::toNativeSeparators(folder) + u'\\' + name;
#else
        const QString folder = m_home.folder(u"prefix/drive_c/Sweepwise Files"_s);
        const QString path = "C:\\Sweepwise Files\\"_L1 + name;
#endif
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write a file of the test");
        return path;
    }

#ifndef Q_OS_WIN
    // Lets others enter the folders down to the prefix's drive.
    void letOthersEnter() const
    {
        for (const QString &folder :
             {m_home.path(), m_home.folder(u"prefix"_s), m_home.folder(u"prefix/drive_c"_s),
              m_home.folder(u"prefix/dosdevices"_s)})
            QFile::setPermissions(folder,
                                  QFile::permissions(folder) | QFile::ReadOther | QFile::ExeOther
                                      | QFile::ReadGroup | QFile::ExeGroup);
    }
#endif

    const TestHome &m_home;
    RegistryFixture m_fixture;
};

SWEEPWISE_TEST_MAIN(TestPathCheck, QCoreApplication)
#include "tst_pathcheck.moc"
