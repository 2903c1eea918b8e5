#include "junkcleaner.h"

#include "appinfo.h"
#include "logcapture.h"
#include "rulefolders.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <QStandardPaths>
#include <QTest>
#include <QThread>

#include <atomic>
#include <functional>
#include <memory>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using State = CleanEngine::State;

namespace {

constexpr int patience = 30'000;

const CleanCategory *find(const ScanResult &result, const QString &id)
{
    for (const CleanCategory &category : result.categories) {
        if (category.id == id)
            return &category;
    }
    return nullptr;
}

QStringList names(const CleanCategory *category)
{
    QStringList list;
    if (category) {
        for (const CleanItem &item : category->items)
            list.append(item.name);
    }
    list.sort();
    return list;
}

QByteArray rule(const QString &path, const QByteArray &more = {})
{
    QByteArray quoted = QString(path).replace(u'\\', u"\\\\"_s).toUtf8();
    return R"({"id": "r", "name": "Rule", "description": "Text", "paths": [")" + quoted + "\"]"
        + (more.isEmpty() ? QByteArray() : ", " + more) + "}";
}

#ifdef Q_OS_UNIX
/// Called before each listing of a folder, by the thread that lists it.
std::function<void()> onListing;
#endif

/// The places that the last scan could not read.
[[maybe_unused]] QStringList unreadPlaces(const JunkCleaner &cleaner)
{
    QStringList places;
    for (const platform::ReadFailure &failure : cleaner.incomplete().kept())
        places.append(failure.where);
    return places;
}

} // namespace

#ifdef Q_OS_UNIX
// The linker takes this function instead of the system's.
extern "C" ssize_t getdents64(int folder, void *buffer, size_t length)
{
    static const auto real =
        reinterpret_cast<ssize_t (*)(int, void *, size_t)>(::dlsym(RTLD_NEXT, "getdents64"));
    if (onListing)
        onListing();
    return real(folder, buffer, length);
}
#endif

class TestJunkCleaner : public QObject
{
    Q_OBJECT
public:
    explicit TestJunkCleaner(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    // --- the shipped rules

    void theShippedFileHasItsTwentyFiveRules()
    {
        JunkCleaner cleaner;
        const LogCapture log;
        cleaner.loadRules(u":/rules/junk_rules.json"_s);
        QCOMPARE(cleaner.rules().size(), 25);
        QVERIFY(log.contains(u"[INFO] Loaded 25 junk rules"_s));
        QVERIFY(log.contains(u"[JunkCleaner] ========== Loading Rules =========="_s));
        QVERIFY(log.contains(u"[JunkCleaner] ✓ Loaded 25 rules successfully"_s));
        for (const JunkRule &rule : cleaner.rules())
            QVERIFY2(!rule.description.isEmpty(), qPrintable(rule.id));
        QCOMPARE(cleaner.rules().at(0).description, u"Files in Windows Temp folders"_s);
        QCOMPARE(cleaner.rules().at(1).description, u"Windows Prefetch cache files"_s);
    }

    void aShippedRuleSaysWhatItRemoves_data()
    {
        QTest::addColumn<int>("place"); // in the file
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("paths");
        QTest::addColumn<QString>("patterns");
        QTest::addColumn<bool>("recursive");
        QTest::addColumn<bool>("ticked");
        QTest::addColumn<int>("risk");
        int place = 0;
        const auto row = [&place](const char *id, const char *name, const char *paths,
                                  const char *patterns, bool recursive, bool ticked, int risk) {
            QTest::newRow(id) << place++ << QString::fromLatin1(name) << QString::fromLatin1(paths)
                              << QString::fromLatin1(patterns) << recursive << ticked << risk;
        };
        row("temp_files", "System Temporary Files", "%TEMP%; %WINDIR%\\Temp", "*", true, true, 0);
        row("prefetch", "Prefetch Files", "%WINDIR%\\Prefetch", "*.pf", false, true, 0);
        row("thumbnails", "Thumbnail Cache", "%LOCALAPPDATA%\\Microsoft\\Windows\\Explorer",
            "thumbcache_*.db, iconcache_*.db", false, true, 0);
        row("log_files", "Log Files",
            "%WINDIR%\\Logs; %WINDIR%\\Logs\\CBS; %WINDIR%\\Logs\\DISM; "
            "%WINDIR%\\Logs\\MeasuredBoot; %WINDIR%\\Logs\\SFC; %WINDIR%\\Logs\\WindowsUpdate; "
            "%WINDIR%\\Panther; %WINDIR%\\INF; %WINDIR%\\SoftwareDistribution\\DataStore\\Logs",
            "*.log, *.etl, *.old, setupact.log, setuperr.log", true, true, 0);
        row("windows_update_log", "Windows Update Logs", "%WINDIR%; %WINDIR%\\SoftwareDistribution",
            "WindowsUpdate.log, ReportingEvents.log", false, true, 0);
        row("iis_logs", "IIS Log Files",
            "%SYSTEMDRIVE%\\inetpub\\logs; %WINDIR%\\System32\\LogFiles\\HTTPERR", "*.log", true,
            true, 0);
        row("memory_dumps", "Memory Dumps",
            "%WINDIR%; %WINDIR%\\Minidump; %WINDIR%\\LiveKernelReports; "
            "%LOCALAPPDATA%\\CrashDumps; %SYSTEMDRIVE%",
            "*.dmp, *.mdmp, MEMORY.DMP, *.hdmp", false, true, 0);
        row("windows_update", "Windows Update Cache", "%WINDIR%\\SoftwareDistribution\\Download",
            "*", true, true, 1);
        row("error_reports", "Error Reports",
            "%LOCALAPPDATA%\\Microsoft\\Windows\\WER; %PROGRAMDATA%\\Microsoft\\Windows\\WER; "
            "%LOCALAPPDATA%\\CrashReports",
            "*", true, true, 0);
        row("delivery_optimization", "Delivery Optimization Files",
            "%WINDIR%\\ServiceProfiles\\NetworkService\\AppData\\Local\\Microsoft\\"
            "Windows\\DeliveryOptimization\\Cache",
            "*", true, true, 1);
        row("defender_cache", "Windows Defender Scan History",
            "%PROGRAMDATA%\\Microsoft\\Windows Defender\\Scans; %PROGRAMDATA%\\Microsoft\\Windows "
            "Defender\\Support; %PROGRAMDATA%\\Microsoft\\Windows Defender\\Definition "
            "Updates\\Backup; %PROGRAMDATA%\\Microsoft\\Windows Defender\\LocalCopy",
            "*", true, true, 0);
        row("dotnet_cache", ".NET Framework Cache Logs",
            "%WINDIR%\\Microsoft.NET\\Framework\\v4.0.30319\\Temporary ASP.NET Files; "
            "%WINDIR%\\Microsoft.NET\\Framework64\\v4.0.30319\\Temporary ASP.NET Files; "
            "%LOCALAPPDATA%\\Microsoft\\CLR_v4.0; %LOCALAPPDATA%\\Microsoft\\CLR_v4.0_32; "
            "%LOCALAPPDATA%\\Microsoft\\CLR_v4.0\\UsageLogs; "
            "%LOCALAPPDATA%\\Microsoft\\CLR_v4.0_32\\UsageLogs",
            "*", true, true, 0);
        row("sfc_logs", "System Integrity Check Logs", "%WINDIR%\\Logs\\CBS; %WINDIR%\\Logs\\SFC",
            "*.log, *.cab", true, true, 0);
        row("installer_cache", "Installer Cache", "%WINDIR%\\Installer\\$PatchCache$", "*", true,
            false, 2);
        row("recent_files", "Recent Documents", "%APPDATA%\\Microsoft\\Windows\\Recent", "*.lnk",
            false, false, 0);
        row("font_cache", "Font Cache",
            "%LOCALAPPDATA%\\Microsoft\\FontCache; "
            "%WINDIR%\\ServiceProfiles\\LocalService\\AppData\\Local\\FontCache",
            "*.dat, ~FontCache-*", true, true, 0);
        row("windows_old", "Old Windows Installation",
            "%SYSTEMDRIVE%\\Windows.old; %SYSTEMDRIVE%\\$Windows.~BT; %SYSTEMDRIVE%\\$Windows.~WS",
            "*", true, false, 2);
        row("web_cache", "Web Cache",
            "%LOCALAPPDATA%\\Microsoft\\Windows\\WebCache; "
            "%LOCALAPPDATA%\\Microsoft\\Windows\\INetCache; "
            "%LOCALAPPDATA%\\Microsoft\\Windows\\INetCookies",
            "*", true, true, 0);
        row("office_cache", "Office Cache",
            "%LOCALAPPDATA%\\Microsoft\\Office\\16.0\\OfficeFileCache; "
            "%LOCALAPPDATA%\\Microsoft\\Office\\UnsavedFiles; "
            "%LOCALAPPDATA%\\Microsoft\\Outlook\\RoamCache",
            "*", true, true, 0);
        row("tencent_logs", "Tencent Product Logs",
            "%LOCALAPPDATA%\\Tencent\\Logs; %APPDATA%\\Tencent\\Logs; "
            "%APPDATA%\\Tencent\\QQBrowser\\Log; %LOCALAPPDATA%\\Tencent\\QQBrowser\\User "
            "Data\\Log",
            "*.log, *.txt", true, true, 0);
        row("nvidia_cache", "NVIDIA Cache",
            "%LOCALAPPDATA%\\NVIDIA\\DXCache; %LOCALAPPDATA%\\NVIDIA\\GLCache; "
            "%PROGRAMDATA%\\NVIDIA Corporation\\NV_Cache",
            "*", true, true, 0);
        row("amd_cache", "AMD Cache",
            "%LOCALAPPDATA%\\AMD\\DxCache; %LOCALAPPDATA%\\AMD\\GLCache; "
            "%LOCALAPPDATA%\\AMD\\DxcCache",
            "*", true, true, 0);
        row("directx_cache", "DirectX Shader Cache", "%LOCALAPPDATA%\\D3DSCache", "*", true, true,
            0);
        row("windows_search", "Windows Search Data",
            "%PROGRAMDATA%\\Microsoft\\Search\\Data\\Applications\\Windows\\GatherLogs", "*", true,
            true, 1);
        row("diagnostic_logs", "Diagnostic Data",
            "%LOCALAPPDATA%\\Diagnostics; %LOCALAPPDATA%\\Microsoft\\Windows\\DiagTrack", "*", true,
            true, 0);
    }

    void aShippedRuleSaysWhatItRemoves()
    {
        QFETCH(int, place);
        QFETCH(QString, name);
        QFETCH(QString, paths);
        QFETCH(QString, patterns);
        QFETCH(bool, recursive);
        QFETCH(bool, ticked);
        QFETCH(int, risk);
        JunkCleaner cleaner;
        cleaner.loadRules(u":/rules/junk_rules.json"_s);
        QVERIFY(place < cleaner.rules().size());
        const JunkRule &rule = cleaner.rules().at(place);
        QCOMPARE(rule.id, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(rule.name, name);
        QCOMPARE(rule.paths, paths.split(u"; "_s));
        QCOMPARE(rule.patterns, patterns.split(u", "_s));
        QCOMPARE(rule.recursive, recursive);
        QCOMPARE(rule.defaultChecked, ticked);
        QCOMPARE(rule.riskLevel, risk);
    }

    // --- loading

    void aMissingFileKeepsTheOldRules()
    {
        JunkCleaner cleaner;
        cleaner.loadRules(u":/rules/junk_rules.json"_s);
        const LogCapture log;
        cleaner.loadRules(u"/no/such/file.json"_s);
        QCOMPARE(cleaner.rules().size(), 25);
        QVERIFY(log.contains(u"[ERROR] Failed to load junk rules: /no/such/file.json"_s));
        QVERIFY(log.contains(u"[JunkCleaner] ✗ Open failed:"_s));
    }

    void aBrokenFileKeepsTheOldRules_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("line");
        QTest::newRow("empty") << QByteArray() << u"[ERROR] JSON parse error: "_s;
        QTest::newRow("not JSON") << QByteArray("rules?") << u"[ERROR] JSON parse error: "_s;
        QTest::newRow("cut off") << QByteArray(R"({"rules": [)") << u"[ERROR] JSON parse error: "_s;
        QTest::newRow("binary") << QByteArray("\x00\x01\xff\xfe", 4)
                                << u"[ERROR] JSON parse error: "_s;
        QTest::newRow("mark only") << QByteArray("\xEF\xBB\xBF") << u"[ERROR] JSON parse error: "_s;
        QTest::newRow("an array") << QByteArray("[1, 2]") << u"[ERROR] Invalid junk rules format"_s;
    }

    void aBrokenFileKeepsTheOldRules()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, line);
        const TestTree tree;
        JunkCleaner cleaner;
        cleaner.loadRules(u":/rules/junk_rules.json"_s);
        const LogCapture log;
        cleaner.loadRules(tree.file(u"rules.json"_s, content));
        QCOMPARE(cleaner.rules().size(), 25);
        QVERIFY(log.contains(line));
    }

    void aFileWithAByteOrderMarkParsesLikeOneWithout()
    {
        const TestTree tree;
        const QByteArray content = "{\"version\": \"9\", \"rules\": [" + rule(u"/x"_s) + "]}";
        JunkCleaner plain;
        plain.loadRules(tree.file(u"plain.json"_s, content));
        JunkCleaner marked;
        const LogCapture log;
        marked.loadRules(tree.file(u"marked.json"_s, "\xEF\xBB\xBF" + content));
        QVERIFY(log.contains(u"[JunkCleaner] Removed UTF-8 BOM"_s));
        QCOMPARE(plain.rules().size(), 1);
        QCOMPARE(marked.rules().size(), 1);
        QCOMPARE(marked.rules().constFirst().paths, plain.rules().constFirst().paths);
        QCOMPARE(marked.rules().constFirst().name, u"Rule"_s);
    }

    void missingMembersGetTheirDefaults()
    {
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [{}]}");
        QCOMPARE(cleaner.rules().size(), 1);
        expectDefaults(cleaner.rules().constFirst());
    }

    void membersOfTheWrongTypeGetTheirDefaults()
    {
        JunkCleaner cleaner;
        load(cleaner,
             R"({"rules": [{"id": 1, "name": [], "description": {}, "paths": "x", "patterns": true,
                           "recursive": "no", "defaultChecked": 0, "riskLevel": "2"}, 7, null, [1]]})");
        QCOMPARE(cleaner.rules().size(), 4);
        for (const JunkRule &rule : cleaner.rules())
            expectDefaults(rule);
    }

    void listElementsThatAreNoTextAreKeptEmpty()
    {
        JunkCleaner cleaner;
        load(cleaner, R"({"rules": [{"paths": ["a", 1, null], "patterns": [true, "*.x"]}]})");
        QCOMPARE(cleaner.rules().constFirst().paths, (QStringList{u"a"_s, QString(), QString()}));
        QCOMPARE(cleaner.rules().constFirst().patterns, (QStringList{QString(), u"*.x"_s}));
    }

    void rulesThatAreNoArrayAreNoRules_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing") << QByteArray("{}");
        QTest::newRow("text") << QByteArray(R"({"rules": "x"})");
        QTest::newRow("object") << QByteArray(R"({"rules": {"id": "x"}})");
    }

    void rulesThatAreNoArrayAreNoRules()
    {
        QFETCH(QByteArray, content);
        const TestTree tree;
        JunkCleaner cleaner;
        cleaner.loadRules(u":/rules/junk_rules.json"_s);
        cleaner.loadRules(tree.file(u"rules.json"_s, content));
        QCOMPARE(cleaner.rules().size(), 0);
    }

    // --- placeholders

    void placeholdersAreReplacedEverywhere()
    {
        const QString temp = QDir::toNativeSeparators(platform::temporaryFolder());
        QCOMPARE(JunkCleaner::expandPath(u"%TEMP%"_s), temp);
        QCOMPARE(JunkCleaner::expandPath(u"%TEMP%|%TEMP%"_s), temp + u'|' + temp);
        QCOMPARE(JunkCleaner::expandPath(u"%LOCALAPPDATA%\\a"_s),
                 QDir::toNativeSeparators(platform::localDataFolder() + "/a"_L1));
        QCOMPARE(JunkCleaner::expandPath(u"%SYSTEMROOT%"_s),
                 JunkCleaner::expandPath(u"%WINDIR%"_s));
        QCOMPARE(JunkCleaner::expandPath(u"%USERPROFILE%"_s),
                 QDir::toNativeSeparators(platform::homeFolder()));
    }

    void roamingDataEndsInTheOrganisationsFolder()
    {
        QCOMPARE(
            JunkCleaner::expandPath(u"%APPDATA%\\Tencent\\Logs"_s),
            QDir::toNativeSeparators(platform::roamingDataFolder() + "/Norvak/Tencent/Logs"_L1));
    }

    void unknownAndLowerCasePlaceholdersStay_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text :
             {"%temp%", "%LocalAppData%", "%AppData%", "%UserProfile%", "%ProgramData%", "%WinDir%",
              "%SystemRoot%", "%SystemDrive%", "%TMP%", "%FOO%", "%PROGRAMFILES%", "%HOMEPATH%",
              "%TEMP", "TEMP%", "% TEMP%", "%LOCALAPPDATA", "%WINDIR1%", "%SYSTEM%ROOT", "%%"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }
    void unknownAndLowerCasePlaceholdersStay()
    {
        QFETCH(QString, text);
        QCOMPARE(JunkCleaner::expandPath(text), text);
    }

    void aPlaceholderStandsForItsVariable_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArrayList>("variables"); // each as NAME=value
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *title, const char *text, const QByteArrayList &variables,
                            const char *expected) {
            QTest::newRow(title) << QString::fromLatin1(text) << variables
                                 << QString::fromLatin1(expected);
        };
        row("PROGRAMDATA", "%PROGRAMDATA%\\x", {"PROGRAMDATA=D:/Data"}, "D:/Data/x");
        row("PROGRAMDATA unset", "%PROGRAMDATA%\\x", {}, "/x");
        row("PROGRAMDATA empty", "%PROGRAMDATA%", {"PROGRAMDATA="}, "");
        row("WINDIR", "%WINDIR%\\x", {"WINDIR=D:/Win"}, "D:/Win/x");
        row("WINDIR unset", "%WINDIR%\\x", {}, "C:/Windows/x");
        row("WINDIR empty", "%WINDIR%", {"WINDIR="}, "C:/Windows");
        row("SYSTEMROOT is WINDIR's", "%SYSTEMROOT%\\x", {"WINDIR=D:/Win", "SYSTEMROOT=E:/Root"},
            "D:/Win/x");
        row("SYSTEMROOT without WINDIR", "%SYSTEMROOT%\\x", {"SYSTEMROOT=E:/Root"}, "C:/Windows/x");
        row("SYSTEMDRIVE", "%SYSTEMDRIVE%\\x", {"SYSTEMDRIVE=D:"}, "D:/x");
        row("SYSTEMDRIVE unset", "%SYSTEMDRIVE%\\x", {}, "C:/x");
        row("SYSTEMDRIVE empty", "%SYSTEMDRIVE%", {"SYSTEMDRIVE="}, "C:");
        row("each occurrence", "%PROGRAMDATA%|%WINDIR%|%PROGRAMDATA%|%WINDIR%",
            {"PROGRAMDATA=D:/Data", "WINDIR=D:/Win"}, "D:/Data|D:/Win|D:/Data|D:/Win");
        row("each occurrence of the others",
            "%SYSTEMROOT%|%SYSTEMDRIVE%|%SYSTEMROOT%|%SYSTEMDRIVE%",
            {"WINDIR=D:/Win", "SYSTEMDRIVE=E:"}, "D:/Win|E:|D:/Win|E:");
        // One after the other, so a value is searched only for the placeholders that are left.
        row("a later one in a value", "%PROGRAMDATA%",
            {"PROGRAMDATA=%WINDIR%/x", "WINDIR=%SYSTEMDRIVE%/y", "SYSTEMDRIVE=D:"}, "D:/y/x");
        row("an earlier one in a value", "%SYSTEMDRIVE%|%WINDIR%",
            {"WINDIR=%PROGRAMDATA%", "SYSTEMDRIVE=%WINDIR%", "PROGRAMDATA=D:/Data"},
            "%WINDIR%|%PROGRAMDATA%");
#ifdef Q_OS_UNIX
        row("TEMP", "%TEMP%\\x|%TEMP%", {"TMPDIR=/one"}, "/one/x|/one");
        row("LOCALAPPDATA", "%LOCALAPPDATA%\\x|%LOCALAPPDATA%", {"LOCALAPPDATA=/two"},
            "/two/x|/two");
        row("APPDATA ends in the organisation's folder", "%APPDATA%\\x|%APPDATA%",
            {"APPDATA=/three"}, "/three/Norvak/x|/three/Norvak");
        row("APPDATA loses the program's name everywhere", "%APPDATA%\\x",
            {"APPDATA=/Sweepwise/three/Sweepwise"}, "/three/Norvak/x");
        row("USERPROFILE", "%USERPROFILE%\\x|%USERPROFILE%", {"USERPROFILE=/four"},
            "/four/x|/four");
        row("later ones in values of the user", "%TEMP%",
            {"TMPDIR=%LOCALAPPDATA%/a", "LOCALAPPDATA=%APPDATA%/b", "APPDATA=%USERPROFILE%/c",
             "USERPROFILE=%PROGRAMDATA%/d", "PROGRAMDATA=/e"},
            "/e/d/c/Norvak/b/a");
        row("earlier ones in values of the user",
            "%PROGRAMDATA%|%USERPROFILE%|%APPDATA%|%LOCALAPPDATA%",
            {"LOCALAPPDATA=%TEMP%", "APPDATA=%LOCALAPPDATA%", "USERPROFILE=%APPDATA%",
             "PROGRAMDATA=%USERPROFILE%", "TMPDIR=/one"},
            "%USERPROFILE%|%APPDATA%|%LOCALAPPDATA%/Norvak|%TEMP%");
#endif
    }
    void aPlaceholderStandsForItsVariable()
    {
        QFETCH(QString, text);
        QFETCH(QByteArrayList, variables);
        QFETCH(QString, expected);
        QByteArrayList names{"PROGRAMDATA", "WINDIR", "SYSTEMROOT", "SYSTEMDRIVE"};
#ifdef Q_OS_UNIX
        names += {"TMPDIR", "LOCALAPPDATA", "APPDATA", "USERPROFILE"};
#endif
        QHash<QByteArray, QByteArray> before;
        for (const QByteArray &name : std::as_const(names)) {
            if (qEnvironmentVariableIsSet(name.constData()))
                before.insert(name, qgetenv(name.constData()));
            qunsetenv(name.constData());
        }
        for (const QByteArray &variable : std::as_const(variables)) {
            const qsizetype equals = variable.indexOf('=');
            qputenv(variable.first(equals).constData(), variable.sliced(equals + 1));
        }
        const QString expanded = JunkCleaner::expandPath(text);
        for (const QByteArray &name : std::as_const(names)) {
            if (before.contains(name))
                qputenv(name.constData(), before.value(name));
            else
                qunsetenv(name.constData());
        }
        QCOMPARE(expanded, QDir::toNativeSeparators(expected));
    }

    // --- scanning

    void withoutRulesAScanFindsNothing()
    {
        JunkCleaner cleaner;
        SignalSpy progress(&cleaner, &CleanEngine::scanProgress);
        const LogCapture log;
        scan(cleaner);
        QCOMPARE(progress.size(), 0);
        QCOMPARE(cleaner.activity(), 0);
        QVERIFY(cleaner.result().categories.isEmpty());
        QVERIFY(log.contains(u"[INFO] Starting junk scan..."_s));
        QVERIFY(log.contains(u"[INFO] Junk scan finished. Found 0 items, 0 B"_s));
    }

    void aRuleWithoutPatternsTakesEveryFileAndWalksFolders()
    {
        const TestTree tree;
        tree.file(u"a.txt"_s, "12");
        tree.file(u"sub/deep/b"_s, "345");
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path()) + "]}");
        const LogCapture log;
        SignalSpy progress(&cleaner, &CleanEngine::scanProgress);
        scan(cleaner);
        QCOMPARE(progress.size(), 1);
        QCOMPARE(progress.constFirst(), (QList<QVariant>{1, 1, u"Rule"_s}));
        QCOMPARE(cleaner.activity(), 3); // folders
        QCOMPARE(cleaner.result().categories.size(), 1);
        const CleanCategory &category = cleaner.result().categories.constFirst();
        QCOMPARE(category.id, u"r"_s);
        QCOMPARE(category.name, u"Rule"_s);
        QCOMPARE(category.description, u"Text"_s);
        QCOMPARE(names(&category), (QStringList{u"a.txt"_s, u"b"_s}));
        QCOMPARE(category.items.at(1).path, tree.path(u"sub/deep/b"_s));
        QCOMPARE(category.items.at(1).size, 3);
        QVERIFY(!category.items.at(1).isDirectory);
        QVERIFY(log.contains(u"[INFO] Junk scan finished. Found 2 items, 5 B"_s));
    }

    void aFlatRuleStaysAtTheTop()
    {
        const TestTree tree;
        tree.file(u"a.dmp"_s);
        tree.file(u"sub/b.dmp"_s);
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": [" + rule(tree.path(), R"("patterns": ["*.dmp"], "recursive": false)")
                 + "]}");
        scan(cleaner);
        QCOMPARE(names(find(cleaner.result(), u"r"_s)), QStringList{u"a.dmp"_s});
    }

    void itemsOfAWalkAreTickedWhateverTheRuleSays()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": [" + rule(tree.path(), R"("defaultChecked": false, "riskLevel": 2)")
                 + "]}");
        scan(cleaner);
        const CleanCategory &category = cleaner.result().categories.constFirst();
        QVERIFY(!category.checked);
        QCOMPARE(category.riskLevel, 2);
        QVERIFY(category.items.constFirst().checked);
        QCOMPARE(category.items.constFirst().riskLevel, 0);
        QCOMPARE(cleaner.result().checkedCount(), 0);
    }

    void aPathThatNamesAFileIsTakenDespiteThePatterns()
    {
        const TestTree tree;
        const QString file = tree.file(u"report.txt"_s, "1234");
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": ["
                 + rule(file, R"("patterns": ["*.log"], "defaultChecked": false, "riskLevel": 1)")
                 + "]}");
        scan(cleaner);
        QCOMPARE(cleaner.result().totalCount(), 1);
        const CleanItem &item = cleaner.result().categories.constFirst().items.constFirst();
        QCOMPARE(item.name, u"report.txt"_s);
        QCOMPARE(item.path, file);
        QCOMPARE(item.size, 4);
        QVERIFY(!item.checked);
        QCOMPARE(item.riskLevel, 1);
    }

    void emptyCategoriesAreNotShown()
    {
        const TestTree tree;
        tree.folder(u"empty"_s);
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": [" + rule(tree.path(u"empty"_s)) + ", " + rule(tree.path(u"missing"_s))
                 + "]}");
        scan(cleaner);
        QVERIFY(cleaner.result().categories.isEmpty());
    }

    void theScanTimeIsTheEndOfTheScan()
    {
        JunkCleaner cleaner;
        cleaner.result().scanTime = QDateTime();
        const QDateTime before = QDateTime::currentDateTime();
        scan(cleaner);
        QVERIFY(cleaner.result().scanTime >= before);
        QVERIFY(cleaner.result().scanTime <= QDateTime::currentDateTime());
    }

    void oddLocationsFindNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << QString();
        QTest::newRow("unknown placeholder") << u"%FOO%\\x"_s;
        QTest::newRow("relative") << u"tests"_s;
        QTest::newRow("dots") << u"%TEMP%\\..\\.."_s;
        QTest::newRow("very long") << u"%TEMP%\\"_s + QString(4000, u'x');
        QTest::newRow("line break") << u"%TEMP%\\a\nb"_s;
    }

    void oddLocationsFindNothing()
    {
        QFETCH(QString, path);
        QJsonArray paths{path};
        const QJsonObject document{
            {u"rules"_s, QJsonArray{QJsonObject{{u"id"_s, u"r"_s}, {u"paths"_s, paths}}}}};
        JunkCleaner cleaner;
        load(cleaner, QJsonDocument(document).toJson());
        scan(cleaner);
        QVERIFY(cleaner.result().categories.isEmpty());
    }

#ifdef Q_OS_UNIX
    void theSystemDriveIsNotWalkedForDumps()
    {
        const QString drive = m_home.setFolderVariable("SYSTEMDRIVE", u"drive"_s);
        m_home.folder(u"drive/sub"_s);
        for (const QString &name :
             {u"a.dmp"_s, u"b.MDMP"_s, u"memory.dmp"_s, u"c.hdmp"_s, u"d.txt"_s, u"sub/e.dmp"_s}) {
            QFile file(drive + u'/' + name);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        JunkCleaner cleaner;
        cleaner.loadRules(u":/rules/junk_rules.json"_s);
        scan(cleaner);
        qunsetenv("SYSTEMDRIVE");
        QCOMPARE(names(find(cleaner.result(), u"memory_dumps"_s)),
                 (QStringList{u"a.dmp"_s, u"b.MDMP"_s, u"c.hdmp"_s, u"memory.dmp"_s}));
    }

    void aRuleForWholeTreesIsSkippedOnAProtectedRoot_data()
    {
        QTest::addColumn<QByteArray>("temp");
        QTest::newRow("file system") << QByteArray("/");
        QTest::newRow("home") << QFile::encodeName(QDir::homePath());
        QTest::newRow("link to the home") << QByteArray("LINK");
        QTest::newRow("above the home") << QFile::encodeName(QDir::homePath() + "/.."_L1);
    }

    void aRuleForWholeTreesIsSkippedOnAProtectedRoot()
    {
        QFETCH(QByteArray, temp);
        const TestTree tree;
        if (temp == "LINK")
            temp = QFile::encodeName(tree.link(QDir::homePath(), u"link"_s));
        QFile canary(QDir::homePath() + "/canary"_L1);
        QVERIFY(canary.open(QIODevice::WriteOnly));
        qputenv("TMPDIR", temp);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(u"%TEMP%"_s, R"("patterns": ["*"])") + "]}");
        const LogCapture log;
        scan(cleaner);
        qunsetenv("TMPDIR");
        QVERIFY(cleaner.result().categories.isEmpty());
        QVERIFY(log.contains(u"[WARN] Skipped "_s));
        QVERIFY(log.contains(u": rule r would take everything in it"_s));
    }

    // The prefix's environment names the folder for temporary files. Here that folder is a whole
    // drive.
    void aDriveOfThePrefixIsNeverEmptied_data()
    {
        QTest::addColumn<QString>("temp");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("a drive") << u"D:\\\\"_s << QStringList();
        QTest::newRow("its folder") << u"d:\\\\temp"_s << QStringList{u"junk.tmp"_s};
        QTest::newRow("the documents") << u"C:\\\\users\\\\jane\\\\Documents"_s << QStringList();
        QTest::newRow("drive that is a file") << u"L:\\\\"_s << QStringList();
        QTest::newRow("in other case")
            << u"%UserProfile%\\\\LOCAL\\\\temp"_s << QStringList{u"deep.tmp"_s};
    }
    void aDriveOfThePrefixIsNeverEmptied()
    {
        QFETCH(QString, temp);
        QFETCH(QStringList, found);
        const TestTree tree;
        tree.file(u"prefix/drive_c/users/jane/Documents/thesis.tex"_s);
        tree.file(u"prefix/drive_c/users/jane/Local/Temp/deep.tmp"_s);
        tree.folder(u"prefix/dosdevices"_s);
        tree.link(u"../drive_c"_s, u"prefix/dosdevices/c:"_s);
        tree.link(tree.folder(u"disk"_s), u"prefix/dosdevices/d:"_s);
        tree.link(tree.file(u"disk.img"_s), u"prefix/dosdevices/l:"_s);
        tree.file(u"disk/photographs/one.jpg"_s);
        tree.file(u"disk/Temp/junk.tmp"_s);
        tree.file(u"prefix/user.reg"_s,
                  "WINE REGISTRY Version 2\n\n[Environment] 1\n\"TMP\"=str(2):\"" + temp.toUtf8()
                      + "\"\n");
        const QByteArray prefix = qgetenv("WINEPREFIX");
        const QByteArray user = qgetenv("USER");
        qputenv("WINEPREFIX", QFile::encodeName(tree.path(u"prefix"_s)));
        qputenv("USER", "jane");
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(u"%TEMP%"_s, R"("patterns": ["*"])") + "]}");
        const LogCapture log;
        scan(cleaner);
        qputenv("WINEPREFIX", prefix);
        qputenv("USER", user);
        QCOMPARE(log.contains(u"[WARN] Skipped "_s), found.isEmpty());
        const CleanCategory *category = find(cleaner.result(), u"r"_s);
        QCOMPARE(category ? names(category) : QStringList(), found);
    }

    void aFolderThatMayOnlyBePassedThroughHidesNothing()
    {
        const TestTree tree;
        tree.file(u"closed/junk/a"_s);
        const QByteArray closed = QFile::encodeName(tree.path(u"closed"_s));
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0755), 0);
        QCOMPARE(::chmod(QFile::encodeName(tree.path(u"closed/junk"_s)).constData(), 0755), 0);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"closed/junk"_s)) + "]}");
        for (const mode_t mode : {mode_t(0711), mode_t(0700)}) {
            QCOMPARE(::chmod(closed.constData(), mode), 0);
            const LogCapture log;
            {
                const OrdinaryUser user;
                scan(cleaner);
            }
            const bool isOpen = mode == 0711;
            QCOMPARE(cleaner.result().totalCount(), isOpen ? 1 : 0);
            QCOMPARE(log.count(u"[WARN] Cannot read "_s), isOpen ? 0 : 1);
            QCOMPARE(unreadPlaces(cleaner).contains(tree.path(u"closed/junk"_s)), !isOpen);
        }
        // The folder that the environment names cannot be reached.
        qputenv("TMPDIR", QFile::encodeName(tree.path(u"closed/junk"_s)));
        load(cleaner, "{\"rules\": [" + rule(u"%TEMP%\\\\x"_s) + "]}");
        const LogCapture log;
        {
            const OrdinaryUser user;
            scan(cleaner);
        }
        qunsetenv("TMPDIR");
        QVERIFY(log.contains(u"Permission denied"_s));
    }

    void aFlatRuleOnAProtectedRootIsUntouched()
    {
        QFile dump(QDir::homePath() + "/crash.dmp"_L1);
        QVERIFY(dump.open(QIODevice::WriteOnly));
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": ["
                 + rule(u"%USERPROFILE%"_s, R"("patterns": ["*.dmp"], "recursive": false)") + "]}");
        scan(cleaner);
        dump.remove();
        QCOMPARE(names(find(cleaner.result(), u"r"_s)), QStringList{u"crash.dmp"_s});
    }

    void aLocationBehindAPlantedLinkIsSkippedWithAWarning()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        const TestTree tree;
        qputenv("TMPDIR", QFile::encodeName(tree.path()));
        tree.link(outside.path(), u"Cache"_s);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(u"%TEMP%\\Cache"_s) + "]}");
        const LogCapture log;
        scan(cleaner);
        qunsetenv("TMPDIR");
        QVERIFY(cleaner.result().categories.isEmpty());
        QVERIFY(log.contains(u"a link leads elsewhere"_s));
    }

    void anUnreadableFolderIsLoggedAndTheScanGoesOn()
    {
        const OrdinaryUser user;
        const TestTree tree;
        tree.file(u"open/a"_s);
        tree.file(u"closed/b"_s);
        const QByteArray closed = QFile::encodeName(tree.path(u"closed"_s));
        QCOMPARE(::chmod(closed.constData(), 0), 0);
        JunkCleaner cleaner;
        cleaner.loadRules(tree.file(u"rules.json"_s, "{\"rules\": [" + rule(tree.path()) + "]}"));
        QFile::remove(tree.path(u"rules.json"_s));
        const LogCapture log;
        scan(cleaner);
        QCOMPARE(::chmod(closed.constData(), 0700), 0);
        QCOMPARE(names(find(cleaner.result(), u"r"_s)), QStringList{u"a"_s});
        QCOMPARE(log.count(u"[WARN] Cannot read "_s), 1);
        QVERIFY(unreadPlaces(cleaner).contains(tree.path(u"closed"_s)));
    }

    void oddNamesAreListedAndCleaned()
    {
        const TestTree tree;
        const QStringList odd{u"new\nline"_s, u"\u202egpj.exe"_s, u"-rf"_s, u"%1 %2"_s, u"文件"_s,
                              u"🧹"_s,      QString(80, u'長'), u" "_s,   u"*"_s};
        for (const QString &name : odd)
            tree.file(u"d/"_s + name);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QStringList expected = odd;
        expected.sort();
        QCOMPARE(names(find(cleaner.result(), u"r"_s)), expected);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst().at(1).toInt(), int(odd.size()));
        QVERIFY(
            QDir(tree.path(u"d"_s))
                .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
    }

    void aFailureWithALineBreakInItsNameForgesNoLine()
    {
        const TestTree tree;
        tree.file(u"d/a\n[INFO] forged"_s);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QVERIFY(QFile::remove(tree.path(u"d/a\n[INFO] forged"_s)));
        const LogCapture log;
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QVERIFY(log.contains(u"[WARN] File not found: "_s));
        for (const QString &line : log.lines())
            QVERIFY2(!line.contains(u'\n'), qPrintable(line));
    }

    void aLinkIsRemovedAsALink()
    {
        const TestTree outside;
        outside.file(u"precious"_s, "123456");
        const TestTree tree;
        tree.link(outside.path(u"precious"_s), u"d/link"_s);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QCOMPARE(cleaner.result().totalCount(), 1);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QVERIFY(!tree.has(u"d/link"_s));
        QVERIFY(outside.has(u"precious"_s));
    }

    void aFileReplacedByAFolderOrALinkIsRemovedAsWhatItIs()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        const TestTree tree;
        tree.file(u"d/one"_s);
        tree.file(u"d/two"_s);
        tree.file(u"d/three"_s);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QVERIFY(QFile::remove(tree.path(u"d/one"_s)) && QFile::remove(tree.path(u"d/two"_s))
                && QFile::remove(tree.path(u"d/three"_s)));
        tree.link(outside.path(), u"d/one"_s);
        tree.file(u"d/two/inner/f"_s);
        tree.link(outside.path(), u"d/two/out"_s);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst().at(1).toInt(), 2);
        QCOMPARE(cleaner.failures().size(), 1);
        QVERIFY(outside.has(u"precious"_s));
        QVERIFY(!tree.has(u"d/one"_s) && !tree.has(u"d/two"_s));
    }

    void whatCannotBeRemovedIsCountedAndLogged()
    {
        const OrdinaryUser user;
        const TestTree tree;
        tree.file(u"d/locked/a"_s, "12");
        tree.file(u"d/b"_s, "345");
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        const QByteArray locked = QFile::encodeName(tree.path(u"d/locked"_s));
        QCOMPARE(::chmod(locked.constData(), 0500), 0);
        const LogCapture log;
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(::chmod(locked.constData(), 0700), 0);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(3), 1}));
        QVERIFY(tree.has(u"d/locked/a"_s));
        QVERIFY(
            log.contains(u"[WARN] Failed to remove file: %1 - "_s.arg(tree.path(u"d/locked/a"_s))));
        QVERIFY(
            log.contains(u"[INFO] Junk clean finished. Cleaned 1 items, 3 B. Failed: 1 items"_s));
        QCOMPARE(cleaner.failures().size(), 1);
        QCOMPARE(cleaner.failures().constFirst().path, tree.path(u"d/locked/a"_s));
    }

    void aCancelEndsTheWalkOfARule()
    {
        const TestTree tree;
        constexpr int folders = 500;
        for (int i = 0; i < folders; ++i)
            tree.file(u"d/%1/f"_s.arg(i));
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QVERIFY(cleaner.activity() > folders);

        SignalSpy finished(&cleaner, &CleanEngine::scanFinished);
        const qint64 before = cleaner.activity();
        onListing = [&cleaner, reads = std::make_shared<std::atomic_int>(0)] {
            if (++*reads == 5)
                cleaner.cancel();
        };
        cleaner.startScan();
        QTRY_COMPARE_WITH_TIMEOUT(cleaner.state(), State::Cancelled, patience);
        cleaner.stopAndWait();
        onListing = {};
        QCoreApplication::processEvents();
        QCOMPARE(cleaner.state(), State::Cancelled);
        QCOMPARE(finished.size(), 0);
        // Each walker ends the folder that it is in.
        QCOMPARE_LT(cleaner.activity() - before, 20);
    }
#endif

    // --- cleaning

    void aCleanRemovesWhatIsTickedAndNothingElse()
    {
        const TestTree tree;
        tree.file(u"d/a"_s, "1");
        tree.file(u"d/b"_s, "22");
        tree.file(u"d/sub/c"_s, "333");
        tree.file(u"beside"_s);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        for (CleanItem &item : cleaner.result().categories[0].items)
            item.checked = item.name != "b"_L1;
        const LogCapture log;
        SignalSpy progress(&cleaner, &CleanEngine::cleanProgress);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(4), 2}));
        QCOMPARE(cleaner.state(), State::Finished);
        QVERIFY(!tree.has(u"d/a"_s));
        QVERIFY(tree.has(u"d/b"_s));
        QVERIFY(!tree.has(u"d/sub/c"_s));
        QVERIFY(tree.has(u"d/sub"_s)); // folders that became empty stay
        QVERIFY(tree.has(u"beside"_s));
        QCOMPARE(progress.size(), 2);
        QCOMPARE(progress.at(0), (QList<QVariant>{1, 2, qint64(0)}));
        QCOMPARE(progress.at(1), (QList<QVariant>{2, 2, qint64(1)}));
        QCOMPARE(cleaner.result().totalCount(), 3); // the result is left as it was
        QVERIFY(log.contains(u"[INFO] Starting junk clean..."_s));
        QVERIFY(
            log.contains(u"[INFO] Junk clean finished. Cleaned 2 items, 4 B. Failed: 0 items"_s));
    }

    void anUntickedCategoryIsLeftAlone()
    {
        const TestTree tree;
        tree.file(u"d/a"_s);
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": [" + rule(tree.path(u"d"_s), "\"defaultChecked\": false") + "]}");
        scan(cleaner);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(0), 0}));
        QVERIFY(tree.has(u"d/a"_s));
    }

    void aFileOfTwoRulesIsListedTwiceAndCleanedOnce()
    {
        const TestTree tree;
        tree.file(u"d/a"_s, "123");
        JunkCleaner cleaner;
        load(cleaner,
             "{\"rules\": [" + rule(tree.path(u"d"_s)) + ", " + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QCOMPARE(cleaner.result().totalCount(), 2);
        const LogCapture log;
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(3), 1}));
        QVERIFY(log.contains(u"[WARN] File not found: "_s + tree.path(u"d/a"_s)));
        QVERIFY(log.contains(u"Cleaned 1 items, 3 B. Failed: 1 items"_s));
        QCOMPARE(cleaner.failures().size(), 1);
    }

    void aFileThatVanishedIsACountedFailure()
    {
        const TestTree tree;
        const QString path = tree.file(u"d/a"_s);
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        QVERIFY(QFile::remove(path));
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(0), 0}));
        QCOMPARE(cleaner.failures().size(), 1);
        QCOMPARE(cleaner.failures().constFirst().path, path);
    }

    void aFolderThatTookThePlaceOfAListedOneKeepsItsFiles_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("isDuring");
        QTest::newRow("a folder, before the clean") << u"d"_s << false;
        QTest::newRow("a folder, during the clean") << u"d"_s << true;
        QTest::newRow("a file, before the clean") << u"d/listed/f0"_s << false;
    }
    void aFolderThatTookThePlaceOfAListedOneKeepsItsFiles()
    {
        QFETCH(QString, location);
        QFETCH(bool, isDuring);
        constexpr int files = 100;
        const TestTree tree;
        for (int i = 0; i < files; ++i) {
            tree.file(u"d/listed/f%1"_s.arg(i));
            tree.file(u"other/f%1"_s.arg(i));
        }
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(location)) + "]}");
        scan(cleaner);
        const int found = cleaner.result().totalCount();
        const auto exchange = [&tree] {
            QVERIFY(QDir().rename(tree.path(u"d/listed"_s), tree.path(u"away"_s)));
            QVERIFY(QDir().rename(tree.path(u"other"_s), tree.path(u"d/listed"_s)));
        };
        if (!isDuring)
            exchange();
        // In the worker, right before an item is removed.
        connect(
            &cleaner, &CleanEngine::cleanProgress, &cleaner,
            [&](int current) {
                if (isDuring && current == 11)
                    exchange();
            },
            Qt::DirectConnection);
        const LogCapture log;
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        const int cleaned = finished.constFirst().at(1).toInt();
        QCOMPARE(QDir(tree.path(u"d/listed"_s)).entryList(QDir::Files).size(), files);
        QCOMPARE(QDir(tree.path(u"away"_s)).entryList(QDir::Files).size(), files - cleaned);
        QVERIFY2(isDuring ? cleaned < 10 + 32 : cleaned == 0, qPrintable(QString::number(cleaned)));
        QCOMPARE(cleaner.failures().size(), found - cleaned);
        for (const CleanFailure &failure : cleaner.failures())
            QCOMPARE(failure.reason, u"Its folder is not the one that was listed"_s);
        QCOMPARE(log.count(u"its folder is not the one that was listed"_s), found - cleaned);
    }

    void cancelInTheMiddleReportsWhatWasRemovedSoFar()
    {
        const TestTree tree;
        for (int i = 0; i < 200; ++i)
            tree.file(u"d/f%1"_s.arg(i), "12345");
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        // In the worker, so that the stop comes between two known items.
        connect(
            &cleaner, &CleanEngine::cleanProgress, &cleaner,
            [&cleaner](int current) {
                if (current == 50)
                    cleaner.cancel();
            },
            Qt::DirectConnection);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(250), 50}));
        QCOMPARE(cleaner.state(), State::Cancelled);
        QVERIFY(!log.contains(u"Junk clean finished"_s));
        QCOMPARE(QDir(tree.path(u"d"_s)).entryList(QDir::Files).size(), 150);
    }

    // The same holds for a stop at the last item, which is still removed.
    void theLogTellsOfTheEndAfterTheSignal_data()
    {
        QTest::addColumn<int>("cancelledAt");
        QTest::addColumn<int>("state");
        QTest::newRow("to the end") << 0 << int(State::Finished);
        QTest::newRow("stopped at the last item") << 2 << int(State::Cancelled);
    }
    void theLogTellsOfTheEndAfterTheSignal()
    {
        QFETCH(int, cancelledAt);
        QFETCH(int, state);
        const TestTree tree;
        tree.file(u"d/a"_s, "1");
        tree.file(u"d/b"_s, "22");
        JunkCleaner cleaner;
        load(cleaner, "{\"rules\": [" + rule(tree.path(u"d"_s)) + "]}");
        scan(cleaner);
        connect(
            &cleaner, &CleanEngine::cleanProgress, &cleaner,
            [&](int current) {
                if (current == cancelledAt)
                    cleaner.cancel();
            },
            Qt::DirectConnection);
        connect(
            &cleaner, &CleanEngine::cleanFinished, &cleaner,
            [&cleaner] { qDebug() << "told of state" << int(cleaner.state()); },
            Qt::DirectConnection);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(3), 2}));
        const QStringList lines = log.lines();
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(0).contains("Starting junk clean..."_L1));
        QCOMPARE(lines.at(1), u"told of state %1"_s.arg(state));
        QVERIFY(lines.at(2).contains("Junk clean finished. Cleaned 2 items, 3 B. Failed: 0"_L1));
    }

private:
    static void expectDefaults(const JunkRule &rule)
    {
        QCOMPARE(rule.id, QString());
        QCOMPARE(rule.name, QString());
        QCOMPARE(rule.description, QString());
        QVERIFY(rule.paths.isEmpty());
        QVERIFY(rule.patterns.isEmpty());
        QVERIFY(rule.recursive);
        QVERIFY(rule.defaultChecked);
        QCOMPARE(rule.riskLevel, 0);
    }

    static void load(JunkCleaner &cleaner, const QByteArray &content)
    {
        const TestTree tree;
        cleaner.loadRules(tree.file(u"rules.json"_s, content));
    }

    static void scan(JunkCleaner &cleaner)
    {
        SignalSpy finished(&cleaner, &CleanEngine::scanFinished);
        cleaner.startScan();
        QVERIFY(finished.wait(patience));
        QCOMPARE(cleaner.state(), State::Finished);
    }

    static void clean(JunkCleaner &cleaner, SignalSpy &finished)
    {
        cleaner.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        cleaner.stopAndWait();
    }

    const TestHome &m_home;
};

SWEEPWISE_TEST_MAIN(TestJunkCleaner, QCoreApplication)
#include "tst_junkcleaner.moc"
