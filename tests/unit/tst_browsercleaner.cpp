#include "browsercleaner.h"

#include "appinfo.h"
#include "browserprofiles.h"
#include "inifile.h"
#include "logcapture.h"
#include "plainbrowserscan.h"
#include "protectedplaces.h"
#include "registryfixture.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QThread>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <functional>

using namespace Qt::StringLiterals;
using State = CleanEngine::State;

namespace {

constexpr int patience = 120'000; // milliseconds; for a busy machine
constexpr char sleepArgument[] = "--sleep";
const QString shipped = QStringLiteral(":/rules/browser_rules.json");

browsers::DataFolders foldersOf(const TestTree &tree)
{
    return {tree.folder(u"Local"_s), tree.folder(u"Roaming"_s)};
}

QString chromeProfile()
{
    return u"Local/Google/Chrome/User Data/Default"_s;
}

QStringList ids(const ScanResult &result)
{
    QStringList list;
    for (const CleanCategory &category : result.categories)
        list.append(category.id);
    return list;
}

[[maybe_unused]] QStringList chromiumProfiles(const QString &dataRoot)
{
    platform::ReadFailures failures;
    return browsers::chromiumProfiles(dataRoot, failures);
}

QStringList firefoxProfiles(const browsers::DataFolders &folders)
{
    platform::ReadFailures failures;
    platform::ProtectedPlaces places;
    return browsers::firefoxProfiles(folders, places, failures);
}

const CleanCategory *find(const ScanResult &result, const QString &id)
{
    for (const CleanCategory &category : result.categories) {
        if (category.id == id)
            return &category;
    }
    return nullptr;
}

/// The items' paths below @p root, sorted.
QStringList paths(const ScanResult &result, const QString &id, const QString &root)
{
    QStringList list;
    if (const CleanCategory *category = find(result, id)) {
        for (const CleanItem &item : category->items)
            list.append(item.path.mid(root.size() + 1));
    }
    list.sort();
    return list;
}

/// All fields of the items, one line for each item.
QStringList described(const QList<CleanCategory> &categories)
{
    QStringList lines;
    for (const CleanCategory &category : categories) {
        lines.append(u"[%1] %2 | %3 | %4"_s.arg(category.id, category.name, category.description,
                                                category.checked ? u"on"_s : u"off"_s));
        for (const CleanItem &item : category.items)
            lines.append(u"  %1 | %2 | %3 | %4 | %5 | %6 | %7"_s.arg(
                item.name, item.path, QString::number(item.size), item.checked ? u"on"_s : u"off"_s,
                QString::number(item.riskLevel), item.isDirectory ? u"folder"_s : u"file"_s,
                item.description));
    }
    return lines;
}

/// The files of a small database, as browsers keep them.
void makeDatabase(const TestTree &tree, const QString &folder)
{
    for (const QString &name :
         {u"CURRENT"_s, u"LOCK"_s, u"LOG"_s, u"MANIFEST-000001"_s, u"000003.log"_s})
        tree.file(folder + u'/' + name);
}

/// The paths of the unticked items of a category, below @p root and sorted. An extra line stands
/// for an unticked item without a warning, or for a ticked item whose values are not those of the
/// rule.
QStringList untickedPaths(const ScanResult &result, const QString &id, const QString &root)
{
    QStringList list;
    const CleanCategory *category = find(result, id);
    if (!category)
        return {u"no such category"_s};
    for (const CleanItem &item : category->items) {
        const bool isUnticked = !item.checked;
        if (isUnticked)
            list.append(item.path.mid(root.size() + 1));
        const bool isWarned = item.description.startsWith("Holds part of a database: "_L1)
            || item.description.startsWith("Belongs to an extension, "_L1);
        if (isWarned != isUnticked
            || (isUnticked ? item.riskLevel != HighRisk : item.riskLevel != LowRisk))
            list.append("wrongly described: "_L1 + item.path);
    }
    list.sort();
    return list;
}

} // namespace

#ifdef Q_OS_UNIX
namespace {

int removalsBeforeHook = -1; ///< a negative number: the hook is not called
std::function<void()> removalHook;

} // namespace

// Replaces the system call of every removal, so that a test can act between two removals.
extern "C" int unlinkat(int folder, const char *name, int flags) noexcept
{
    if (removalsBeforeHook >= 0 && --removalsBeforeHook < 0)
        removalHook();
    return static_cast<int>(::syscall(SYS_unlinkat, folder, name, flags));
}
#endif

#ifdef Q_OS_WIN
// The linker takes these entries of the program's import table instead of the system's. A key that
// is made for looking stays, and no later comparison of the registry would show it.
namespace {

int registryChanges = 0;

LSTATUS WINAPI countNewKey(HKEY, LPCWSTR, DWORD, LPWSTR, DWORD, REGSAM, LPSECURITY_ATTRIBUTES,
                           PHKEY, LPDWORD)
{
    ++registryChanges;
    return ERROR_ACCESS_DENIED;
}

LSTATUS WINAPI countNewValue(HKEY, LPCWSTR, DWORD, DWORD, const BYTE *, DWORD)
{
    ++registryChanges;
    return ERROR_ACCESS_DENIED;
}

LSTATUS WINAPI countRemoval(HKEY, LPCWSTR)
{
    ++registryChanges;
    return ERROR_ACCESS_DENIED;
}

} // namespace

extern "C" {
extern decltype(&countNewKey) const importedCreateKey asm("__imp_RegCreateKeyExW");
decltype(&countNewKey) const importedCreateKey = countNewKey;
extern decltype(&countNewValue) const importedSetValue asm("__imp_RegSetValueExW");
decltype(&countNewValue) const importedSetValue = countNewValue;
extern decltype(&countRemoval) const importedDeleteValue asm("__imp_RegDeleteValueW");
decltype(&countRemoval) const importedDeleteValue = countRemoval;
extern decltype(&countRemoval) const importedDeleteKey asm("__imp_RegDeleteKeyW");
decltype(&countRemoval) const importedDeleteKey = countRemoval;
extern decltype(&countRemoval) const importedDeleteTree asm("__imp_RegDeleteTreeW");
decltype(&countRemoval) const importedDeleteTree = countRemoval;
}
#endif

class TestBrowserCleaner : public QObject
{
    Q_OBJECT
public:
    explicit TestBrowserCleaner(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    // --- the shipped rules

    void theShippedFileHasItsTwentyThreeRules()
    {
        const TestTree tree;
        BrowserCleaner cleaner(foldersOf(tree));
        const LogCapture log;
        cleaner.loadRules(shipped);
        QVERIFY(log.contains(u"[INFO] Loaded 23 browser rules"_s));
        QCOMPARE(cleaner.rules().size(), 23);
    }

    void aShippedRuleSaysWhatItRemoves_data()
    {
        QTest::addColumn<int>("place"); // in the file
        QTest::addColumn<QStringList>("texts"); // name and description
        QTest::addColumn<QStringList>("chromium"); // folder and patterns
        QTest::addColumn<QStringList>("firefox");
        QTest::addColumn<bool>("ticked");
        QTest::addColumn<int>("risk");
        int place = 0;
        const auto list = [](const char *first, const char *second) {
            return QStringList{QString::fromLatin1(first), QString::fromLatin1(second)};
        };
        const auto row = [&](const char *id, const char *name, const char *description,
                             const char *folder, const char *patterns, const char *firefoxFolder,
                             const char *firefoxPatterns, bool ticked, int risk) {
            QTest::newRow(id) << place++ << list(name, description) << list(folder, patterns)
                              << list(firefoxFolder, firefoxPatterns) << ticked << risk;
        };
        row("cache", "Browser Cache", "Temporary web page cache files", "Cache", "*",
            "cache2/entries", "", true, 0);
        row("code_cache", "Code Cache", "JavaScript code cache", "Code Cache", "*", "", "", true,
            0);
        row("gpu_cache", "GPU Cache", "GPU rendering cache", "GPUCache", "*", "", "", true, 0);
        row("shader_cache", "Shader Cache", "GPU shader compilation cache", "ShaderCache", "*",
            "shader-cache", "", true, 0);
        row("service_worker", "Service Workers", "Service Worker cache",
            "Service Worker/CacheStorage", "*", "", "", true, 0);
        row("media_cache", "Media Cache", "Media file cache", "Media Cache", "*", "", "", true, 0);
        row("network_cache", "Network Cache", "HTTP network request cache", "Cache/Cache_Data", "*",
            "", "", true, 0);
        row("jump_list", "Jump List", "Taskbar Jump List icon cache", "JumpListIconsRecentClosed",
            "*", "", "", true, 0);
        row("blob_storage", "Blob Storage", "Temporary binary data storage", "blob_storage", "*",
            "", "", true, 0);
        row("webrtc_logs", "WebRTC Logs", "Video call debug logs", "WebRTC Logs", "*", "", "", true,
            0);
        row("crash_reports", "Crash Reports", "Browser crash report files", "Crashpad/reports", "*",
            "Crash Reports", "", true, 0);
        row("logs", "Browser Logs", "Browser debug and error logs", "",
            "*.log, chrome_debug.log, debug.log", "", "update.log, install.log", true, 0);
        row("thumbnails", "Website Thumbnails", "New Tab page website thumbnails", "Thumbnails",
            "*", "", "", true, 0);
        row("favicons", "Favicon Cache", "Website icon (favicon) cache", "",
            "Favicons, Favicons-journal", "", "favicons.sqlite, favicons.sqlite-wal", true, 0);
        row("font_cache", "Font Cache", "Web font cache files", "Font Cache", "*", "", "", true, 0);
        row("local_storage", "Local Storage", "Website Local Storage (site settings may be lost)",
            "Local Storage", "*", "storage/default", "", false, 1);
        row("indexeddb", "IndexedDB", "Website database storage (offline data may be lost)",
            "IndexedDB", "*", "", "", false, 1);
        row("cookies", "Cookies", "Website Cookies (requires re-login to all sites)", "",
            "Cookies, Cookies-journal", "",
            "cookies.sqlite, cookies.sqlite-wal, cookies.sqlite-shm", false, 2);
        row("history", "Browsing History", "Web browsing history records", "",
            "History, History-journal, Visited Links, Top Sites", "",
            "places.sqlite, places.sqlite-wal, places.sqlite-shm", false, 1);
        row("downloads", "Download History",
            "Download history records (downloaded files are not deleted)", "",
            "DownloadMetadata, History", "", "downloads.sqlite", false, 1);
        row("session", "Session Data", "Current and recent session data (tabs may be lost)", "",
            "Current Session, Current Tabs, Last Session, Last Tabs", "",
            "sessionstore.jsonlz4, sessionstore-backups", false, 2);
        row("form_data", "Form Data", "Autofill form data (requires re-entry after cleaning)", "",
            "Web Data, Web Data-journal", "", "formhistory.sqlite", false, 2);
        row("safe_browsing", "Safe Browsing Data",
            "Safe Browsing protection data (not recommended to clean)", "Safe Browsing", "*", "",
            "", false, 2);
    }

    void aShippedRuleSaysWhatItRemoves()
    {
        QFETCH(int, place);
        QFETCH(QStringList, texts);
        QFETCH(QStringList, chromium);
        QFETCH(QStringList, firefox);
        QFETCH(bool, ticked);
        QFETCH(int, risk);
        const TestTree tree;
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        QVERIFY(place < cleaner.rules().size());
        const BrowserRule &rule = cleaner.rules().at(place);
        QCOMPARE(rule.id, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE((QStringList{rule.name, rule.description}), texts);
        QCOMPARE((QStringList{rule.subPath, rule.patterns.join(u", "_s)}), chromium);
        QCOMPARE((QStringList{rule.firefoxSubPath, rule.firefoxPatterns.join(u", "_s)}), firefox);
        QCOMPARE(rule.defaultChecked, ticked);
        QCOMPARE(rule.riskLevel, risk);
    }

    void missingMembersGetTheirDefaults()
    {
        const TestTree tree;
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner, "{\"rules\": [{}, {\"riskLevel\": \"2\", \"defaultChecked\": 0}]}");
        QCOMPARE(cleaner.rules().size(), 2);
        for (const BrowserRule &rule : cleaner.rules()) {
            QVERIFY(rule.id.isEmpty() && rule.name.isEmpty() && rule.description.isEmpty());
            QVERIFY(rule.subPath.isEmpty() && rule.firefoxSubPath.isEmpty());
            QVERIFY(rule.patterns.isEmpty() && rule.firefoxPatterns.isEmpty());
            QVERIFY(rule.defaultChecked);
            QCOMPARE(rule.riskLevel, 0);
        }
    }

    void withoutARuleFileScansFindNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("line");
        QTest::newRow("missing") << QByteArray("-") << u"[ERROR] Failed to load browser rules: "_s;
        QTest::newRow("an array") << QByteArray("[1]") << u"[ERROR] Invalid browser rules format"_s;
        QTest::newRow("no JSON") << QByteArray("rules")
                                 << u"[ERROR] Invalid browser rules format"_s;
    }

    void withoutARuleFileScansFindNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, line);
        const TestTree tree;
        tree.file(chromeProfile() + "/GPUCache/a"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        const LogCapture log;
        cleaner.loadRules(content == "-" ? tree.path(u"none.json"_s)
                                         : tree.file(u"rules.json"_s, content));
        QVERIFY(log.contains(line));
        QVERIFY(cleaner.rules().isEmpty());
        scan(cleaner);
        QVERIFY(cleaner.result().categories.isEmpty());
    }

    // --- which browsers are there

    void theFiveBrowsersStandInTheirOrder()
    {
        const TestTree tree;
        const LogCapture log;
        const BrowserCleaner cleaner(foldersOf(tree));
        QStringList lines;
        for (const Browser &browser : cleaner.browsers())
            lines.append(u"%1 %2 %3 %4 %5"_s.arg(QString::number(browser.type), browser.name,
                                                 browser.id, browser.processName,
                                                 browser.dataRoot.mid(tree.path().size())));
        QCOMPARE(
            lines,
            (QStringList{
                u"0 Google Chrome google_chrome chrome.exe /Local/Google/Chrome/User Data"_s,
                u"1 Microsoft Edge microsoft_edge msedge.exe /Local/Microsoft/Edge/User Data"_s,
                u"2 Mozilla Firefox mozilla_firefox firefox.exe /Roaming/Mozilla/Firefox/Profiles"_s,
                u"3 Opera opera opera.exe /Roaming/Opera Software/Opera Stable"_s,
                u"4 Brave brave brave.exe /Local/BraveSoftware/Brave-Browser/User Data"_s}));
        QVERIFY(log.contains(u"[INFO] Detected 0 browsers"_s));
        QVERIFY(log.contains(u"[INFO] Browser: Microsoft Edge, Installed: false, Path: "_s
                             + tree.path(u"Local/Microsoft/Edge/User Data"_s)));
    }

    void aDataFolderMakesABrowserInstalled_data()
    {
        QTest::addColumn<QString>("made");
        QTest::addColumn<int>("type");
        QTest::newRow("Chrome") << u"Local/Google/Chrome/User Data/"_s << 0;
        QTest::newRow("Edge") << u"Local/Microsoft/Edge/User Data/"_s << 1;
        QTest::newRow("Firefox, its file") << u"Roaming/Mozilla/Firefox/profiles.ini"_s << 2;
        QTest::newRow("Firefox, roaming") << u"Roaming/Mozilla/Firefox/Profiles/"_s << 2;
        QTest::newRow("Firefox, local") << u"Local/Mozilla/Firefox/Profiles/"_s << 2;
        QTest::newRow("Opera") << u"Roaming/Opera Software/Opera Stable/"_s << 3;
        QTest::newRow("Brave") << u"Local/BraveSoftware/Brave-Browser/User Data/"_s << 4;
    }

    void aDataFolderMakesABrowserInstalled()
    {
        QFETCH(QString, made);
        QFETCH(int, type);
        const TestTree tree;
        if (made.endsWith(u'/'))
            tree.folder(made);
        else
            tree.file(made);
        const LogCapture log;
        const BrowserCleaner cleaner(foldersOf(tree));
        for (const Browser &browser : cleaner.browsers())
            QCOMPARE(browser.installed, browser.type == type);
        QVERIFY(log.contains(u"[INFO] Detected 1 browsers"_s));
        QVERIFY(log.contains(u"Installed: true, Path: "_s));
    }

    void anUninstallEntryMakesABrowserInstalledThatYieldsNothing_data()
    {
        QTest::addColumn<QString>("list");
        QTest::newRow("of the machine")
            << u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
        QTest::newRow("of the machine, 32 bits")
            << u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\"
               "Uninstall"_s;
        QTest::newRow("of the user")
            << u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
    }

    void anUninstallEntryMakesABrowserInstalledThatYieldsNothing()
    {
        QFETCH(QString, list);
        RegistryFixture fixture(m_home);
        fixture.addText(list + "\\Sweepwise Test"_L1, u"DisplayName"_s,
                        u"The bRaVe one, 1.2 (64 bit)"_s);
        fixture.addText(list + "\\Sweepwise Test 2"_L1, u"Publisher"_s, u"Opera"_s);
        fixture.write();
        const TestTree tree;
        BrowserCleaner cleaner(foldersOf(tree));
        for (const Browser &browser : cleaner.browsers())
            QCOMPARE(browser.installed, browser.type == Browser::Brave);
        cleaner.loadRules(shipped);
        SignalSpy progress(&cleaner, &CleanEngine::scanProgress);
        scan(cleaner);
        QCOMPARE(progress.size(), 1);
        QVERIFY(cleaner.result().categories.isEmpty());
    }

    void theNameInAnUninstallEntryTellsTheBrowser_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type"); // -1 for none
        const auto row = [](const char *name, int type) {
            QTest::newRow(name) << QString::fromLatin1(name) << type;
        };
        row("Google Chrome", 0);
        row("The GOOGLE CHROME, 1.2", 0);
        row("Google Chromium", -1);
        row("Google  Chrome", -1);
        row("Chrome", -1);
        row("Microsoft Edge", 1);
        row("microsoft edge update", 1);
        row("Microsoft Edg", -1);
        row("Edge", -1);
        row("Mozilla Firefox", 2);
        row("mozilla FIREFOX (x64 en-US)", 2);
        row("Mozilla", -1);
        row("Firefox", -1);
        row("Mozilla FireFo", -1);
        row("Opera", 3);
        row("operators", 3);
        row("Oper A", -1);
        row("Brave", 4);
        row("A brAVE one", 4);
        row("Brav", -1);
        row("google_chrome", -1);
    }
    void theNameInAnUninstallEntryTellsTheBrowser()
    {
        QFETCH(QString, name);
        QFETCH(int, type);
        RegistryFixture fixture(m_home);
        fixture.addText(u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"
                        "Uninstall\\Sweepwise Test"_s,
                        u"DisplayName"_s, name);
        fixture.write();
        const TestTree tree;
        const BrowserCleaner cleaner(foldersOf(tree));
        QCOMPARE(cleaner.browsers().size(), 5);
        for (const Browser &browser : cleaner.browsers())
            QCOMPARE(browser.installed, browser.type == type);
    }

    void lookingForBrowsersChangesNothingInTheRegistry()
    {
        RegistryFixture fixture(m_home);
        fixture.addText(u"HKEY_CURRENT_USER\\SOFTWARE\\Sweepwise Test"_s, u"a"_s, u"b"_s);
        fixture.write();
#ifdef Q_OS_WIN
        registryChanges = 0;
#else
        const QMap<QString, QString> before = snapshotOf(m_home.path());
#endif
        const TestTree tree;
        const BrowserCleaner cleaner(foldersOf(tree));
        QVERIFY(!cleaner.browsers().at(0).installed);
#ifdef Q_OS_WIN
        QCOMPARE(registryChanges, 0);
#else
        QCOMPARE(snapshotOf(m_home.path()), before);
#endif
    }

    // --- what a scan finds

    void aScanFindsWhatThePlainReadingFinds()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        const browsers::DataFolders folders = foldersOf(tree);
        BrowserCleaner cleaner(folders);
        cleaner.loadRules(shipped);
        scan(cleaner);
        const QList<CleanCategory> plain =
            plainBrowserScan(cleaner.browsers(), cleaner.rules(), folders);
        QCOMPARE(described(cleaner.result().categories), described(plain));
        QVERIFY(plain.size() > 90); // 23 rules for four browsers, 11 for the fifth
    }

    // Rules that overlap, look into hidden folders, or come from others than the shipped file.
    void oddRulesFindWhatThePlainReadingFinds_data()
    {
        QTest::addColumn<QByteArray>("rules");
        QTest::newRow("no rule for the whole profile") << QByteArray(
            "{\"id\": \"a\", \"subPath\": \"Cache/Cache_Data\"}, {\"id\": \"b\", "
            "\"subPath\": \"Cache\"}, {\"id\": \"c\", \"subPath\": \"Code Cache/js\"} ");
        QTest::newRow("the same folder twice")
            << QByteArray("{\"id\": \"a\", \"subPath\": \"Cache\", \"patterns\": [\"data_*\"]}, "
                          "{\"id\": \"b\", \"subPath\": \"Cache\", \"patterns\": [\"*index*\"]} ");
        QTest::newRow("everything, and a part")
            << QByteArray("{\"id\": \"a\"}, {\"id\": \"b\", \"subPath\": \"Service Worker\"} ");
        QTest::newRow("a hidden folder")
            << QByteArray("{\"id\": \"a\"}, {\"id\": \"b\", \"subPath\": \".hidden\"}, "
                          "{\"id\": \"c\", \"subPath\": \".hidden/sub\"} ");
        QTest::newRow("wildcards")
            << QByteArray("{\"id\": \"a\", \"patterns\": [\"*a?he*\", \"[HV]*\"]}, {\"id\": \"b\", "
                          "\"patterns\": [\"\"]} ");
        QTest::newRow("missing folders")
            << QByteArray("{\"id\": \"a\", \"subPath\": \"No/Such\"}, {\"id\": \"b\", \"subPath\": "
                          "\"History\"} ");
    }

    void oddRulesFindWhatThePlainReadingFinds()
    {
        QFETCH(QByteArray, rules);
        const TestTree tree;
        const QString profile = chromeProfile();
        browserprofiles::makeChromium(tree, profile);
        tree.file(profile + "/.hidden/one"_L1, "1");
        tree.file(profile + "/.hidden/sub/two"_L1, "22");
        tree.file(profile + "/.hidden/sub/.three"_L1, "333");
        const browsers::DataFolders folders = foldersOf(tree);
        BrowserCleaner cleaner(folders);
        load(cleaner, "{\"rules\": [" + rules + "]}");
        scan(cleaner);
        QCOMPARE(described(cleaner.result().categories),
                 described(plainBrowserScan(cleaner.browsers(), cleaner.rules(), folders)));
    }

    void cookieRulesFindOnlyTheirFilesInAndBelowTheProfile()
    {
        const TestTree tree;
        const QString profile = chromeProfile();
        tree.file(profile + "/Cookies"_L1, "12");
        tree.file(profile + "/Cookies-journal"_L1, "3");
        tree.file(profile + "/Network/Cookies"_L1, "4567");
        tree.file(profile + "/Cookies.txt"_L1);
        tree.file(profile + "/My Cookies"_L1);
        tree.file(u"Local/Google/Chrome/User Data/Cookies"_s);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QCOMPARE(ids(cleaner.result()), QStringList{u"google_chrome_cookies"_s});
        QCOMPARE(paths(cleaner.result(), u"google_chrome_cookies"_s, tree.path(profile)),
                 (QStringList{u"Cookies"_s, u"Cookies-journal"_s, u"Network/Cookies"_s}));
        const CleanCategory &category = cleaner.result().categories.constFirst();
        QCOMPARE(category.name, u"Google Chrome - Cookies"_s);
        QCOMPARE(category.description, u"Website Cookies (requires re-login to all sites)"_s);
        QCOMPARE(category.totalSize(), 7);
        QVERIFY(!category.checked);
        for (const CleanItem &item : category.items) {
            QVERIFY(!item.checked);
            QCOMPARE(item.riskLevel, 2);
        }
    }

    void aFolderAndTheFilesInItAreBothListed()
    {
        const TestTree tree;
        tree.file(chromeProfile() + "/Cache/Cache_Data/a"_L1, "12");
        tree.file(chromeProfile() + "/Cache/Cache_Data/sub/b"_L1, "345");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const QString cache = tree.path(chromeProfile() + "/Cache"_L1);
        QCOMPARE(paths(cleaner.result(), u"google_chrome_cache"_s, cache),
                 (QStringList{u"Cache_Data"_s, u"Cache_Data/a"_s, u"Cache_Data/sub"_s,
                              u"Cache_Data/sub/b"_s}));
        QCOMPARE(paths(cleaner.result(), u"google_chrome_network_cache"_s, cache),
                 (QStringList{u"Cache_Data/a"_s, u"Cache_Data/sub"_s, u"Cache_Data/sub/b"_s}));
        const CleanItem &folder = cleaner.result().categories.constFirst().items.constFirst();
        QCOMPARE(folder.name, u"Cache_Data"_s);
        QVERIFY(folder.isDirectory);
        QCOMPARE(folder.size, 5);
    }

    // Whoever waits sees that work goes on.
    void aScanTellsOfItsActivity_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("isTree");
        const QString fox = u"Roaming/Mozilla/Firefox/Profiles/fox"_s;
        QTest::newRow("Chrome") << chromeProfile() + "/Cache"_L1 << true;
        QTest::newRow("Firefox, a tree") << fox + "/thumbnails"_L1 << true;
        QTest::newRow("Firefox, one folder") << fox + "/sessionstore-backups"_L1 << false;
    }
    void aScanTellsOfItsActivity()
    {
        QFETCH(QString, folder);
        QFETCH(bool, isTree);
        const TestTree tree;
        tree.file(folder + "/first"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const qint64 before = cleaner.activity();
        QVERIFY(before > 0);
        scan(cleaner);
        QCOMPARE(cleaner.activity(), 2 * before);
        for (int i = 0; i < 10'000; ++i)
            tree.file(folder + u"/f%1"_s.arg(i), {});
        scan(cleaner);
        // Two runs of entries are listed; in a tree they are then visited.
        QCOMPARE(cleaner.activity(), 3 * before + (isTree ? 4 : 2));
    }

    // --- databases

    void aFileMatchedByNameInADatabaseStartsUnticked()
    {
        const TestTree tree;
        const QString profile = chromeProfile();
        makeDatabase(tree, profile + "/Local Storage/leveldb"_L1);
        tree.file(profile + "/Local Storage/beside.log"_L1);
        tree.file(profile + "/chrome_debug.log"_L1);
        // A folder in a database belongs to it, and may be a database itself.
        makeDatabase(tree, profile + "/shared_proto_db/metadata"_L1);
        makeDatabase(tree, profile + "/shared_proto_db"_L1);
        tree.file(profile + "/shared_proto_db/lost/000002.log"_L1);
        tree.file(profile + "/after.log"_L1);
        // One of the two marker files alone makes no database.
        tree.file(profile + "/No List/CURRENT"_L1);
        tree.file(profile + "/No List/a.log"_L1);
        tree.file(profile + "/No Name/MANIFEST-000001"_L1);
        tree.file(profile + "/No Name/a.log"_L1);
        tree.file(profile + "/Apart/CURRENT"_L1);
        tree.file(profile + "/Apart/lists/MANIFEST-000001"_L1);
        tree.file(profile + "/Apart/lists/a.log"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const QString root = tree.path(profile);
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_logs"_s, root),
                 (QStringList{u"Local Storage/leveldb/000003.log"_s,
                              u"shared_proto_db/000003.log"_s, u"shared_proto_db/lost/000002.log"_s,
                              u"shared_proto_db/metadata/000003.log"_s}));
        const CleanCategory &logs = *find(cleaner.result(), u"google_chrome_logs"_s);
        QCOMPARE(logs.items.size(), 4 + 6);
        QVERIFY(logs.checked);
        QCOMPARE(logs.checkState(), Qt::PartiallyChecked);
        QCOMPARE(logs.riskLevel, 0);
        QCOMPARE(cleaner.result().checkedCount(), 6);
        QCOMPARE(cleaner.result().checkedSize(), 6 * 7);
    }

    void aFolderThatHoldsADatabaseStartsUnticked()
    {
        const TestTree tree;
        const QString profile = chromeProfile();
        makeDatabase(tree, profile + "/itself.log"_L1);
        makeDatabase(tree, profile + "/outer.log/inner/deep"_L1);
        tree.file(profile + "/outer.log/beside.log"_L1);
        tree.folder(profile + "/outer.log/inner/empty.log"_L1);
        makeDatabase(tree, profile + "/Local Storage/leveldb"_L1);
        tree.file(profile + "/Local Storage/leveldb/old.log/x"_L1);
        tree.file(profile + "/harmless.log/x"_L1);
        tree.file(profile + "/Favicons/db/CURRENT"_L1);
        tree.file(profile + "/Favicons/db/MANIFEST-1"_L1);
        QStringList expected{u"Local Storage/leveldb/000003.log"_s,
                             u"Local Storage/leveldb/old.log"_s,
                             u"itself.log"_s,
                             u"itself.log/000003.log"_s,
                             u"outer.log"_s,
                             u"outer.log/inner/deep/000003.log"_s};
#ifdef Q_OS_UNIX
        tree.file(profile + "/hides.log/.sub/db/CURRENT"_L1);
        tree.file(profile + "/hides.log/.sub/db/MANIFEST-1"_L1);
        tree.file(profile + "/hides.log/beside.log"_L1);
        expected.append(u"hides.log"_s);
        expected.sort();
#endif
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_logs"_s, tree.path(profile)),
                 expected);
        QVERIFY(paths(cleaner.result(), u"google_chrome_logs"_s, tree.path(profile))
                    .contains(u"harmless.log"_s));
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_favicons"_s, tree.path(profile)),
                 QStringList{u"Favicons"_s});
        // No item would be cleaned. The category's own mark is still that of the rule.
        const CleanCategory &favicons = *find(cleaner.result(), u"google_chrome_favicons"_s);
        QVERIFY(favicons.checked);
        QCOMPARE(favicons.checkState(), Qt::Unchecked);
    }

    // An extension needs all its files, whatever their names.
    void aFileMatchedByNameInAnExtensionStartsUnticked()
    {
        const TestTree tree;
        const QString profile = chromeProfile();
        const QString package = profile + "/Extensions/abcdef/1.0_0"_L1;
        tree.file(package + "/manifest.json"_L1);
        tree.file(package + "/update.log"_L1);
        tree.file(package + "/icons/Favicons/16.png"_L1);
        makeDatabase(tree, package + "/db"_L1);
        tree.file(profile + "/whole.log/2.0_0/MANIFEST.JSON"_L1);
        tree.file(profile + "/Extensions/left.log"_L1);
        // This is not the name of a manifest.
        tree.file(profile + "/Other/manifest-json"_L1);
        tree.file(profile + "/Other/a.log"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const QString root = tree.path(profile);
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_logs"_s, root),
                 (QStringList{u"Extensions/abcdef/1.0_0/db/000003.log"_s,
                              u"Extensions/abcdef/1.0_0/update.log"_s, u"whole.log"_s}));
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_favicons"_s, root),
                 QStringList{u"Extensions/abcdef/1.0_0/icons/Favicons"_s});
        QCOMPARE(find(cleaner.result(), u"google_chrome_logs"_s)->items.size(), 5);
        for (const CleanItem &item : find(cleaner.result(), u"google_chrome_logs"_s)->items)
            QCOMPARE(item.description.startsWith("Holds part of a database: "_L1),
                     item.path.contains("/db/"_L1));
    }

    void filesMatchedByNameInAProfileThatIsADatabaseStartUnticked()
    {
        const TestTree tree;
        makeDatabase(tree, chromeProfile());
        tree.file(chromeProfile() + "/sub/a.log"_L1);
        tree.file(chromeProfile() + "/GPUCache/b"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QCOMPARE(
            untickedPaths(cleaner.result(), u"google_chrome_logs"_s, tree.path(chromeProfile())),
            (QStringList{u"000003.log"_s, u"sub/a.log"_s}));
        QCOMPARE(cleaner.result().checkedCount(), 1);
    }

    void aRuleWithItsOwnFolderTakesTheDatabasesInIt()
    {
        const TestTree tree;
        const QString profile = chromeProfile();
        makeDatabase(tree, profile + "/Thumbnails"_L1);
        makeDatabase(tree, profile + "/Local Storage/leveldb"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const QString root = tree.path(profile);
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_thumbnails"_s, root),
                 QStringList());
        QCOMPARE(find(cleaner.result(), u"google_chrome_thumbnails"_s)->checkedCount(), 5);
        QCOMPARE(untickedPaths(cleaner.result(), u"google_chrome_logs"_s, root),
                 (QStringList{u"Local Storage/leveldb/000003.log"_s, u"Thumbnails/000003.log"_s}));
        const CleanCategory &storage = *find(cleaner.result(), u"google_chrome_local_storage"_s);
        QCOMPARE(storage.items.size(), 1 + 5);
        for (const CleanItem &item : storage.items) {
            QVERIFY(!item.checked);
            QCOMPARE(item.riskLevel, 1);
            QVERIFY(item.description.isEmpty());
        }
    }

    void aDefaultCleanKeepsDatabasesAndATickRemovesThem()
    {
        const TestTree tree;
        const QString profile = chromeProfile();
        for (const QString &folder : {u"Local Storage/leveldb"_s, u"Session Storage"_s,
                                      u"IndexedDB/https_www.example.com_0.indexeddb.leveldb"_s})
            makeDatabase(tree, profile + u'/' + folder);
        const QString log = tree.file(profile + "/debug.log"_L1, "12345");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        QMap<QString, QString> expected = tree.snapshot();
        QVERIFY(expected.remove(log) == 1);
        scan(cleaner);
        {
            SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
            clean(cleaner, finished);
            QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(5), 1}));
        }
        QCOMPARE(tree.snapshot(), expected);
        scan(cleaner);
        for (CleanCategory &category : cleaner.result().categories)
            category.setChecked(category.id == "google_chrome_logs"_L1);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst().at(1).toInt(), 3);
        QVERIFY(!tree.has(profile + "/Session Storage/000003.log"_L1));
    }

    void theDownloadRuleTakesTheHistoryToo()
    {
        const TestTree tree;
        tree.file(chromeProfile() + "/History"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QCOMPARE(ids(cleaner.result()),
                 (QStringList{u"google_chrome_history"_s, u"google_chrome_downloads"_s}));
    }

    void categoryIdsAreTheSameInEveryRun()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        BrowserCleaner first(foldersOf(tree));
        BrowserCleaner second(foldersOf(tree));
        for (BrowserCleaner *cleaner : {&first, &second}) {
            cleaner->loadRules(shipped);
            scan(*cleaner);
        }
        const QStringList list = ids(first.result());
        QCOMPARE(ids(second.result()), list);
        scan(first);
        QCOMPARE(ids(first.result()), list);
        for (const char *id : {"google_chrome_cache", "microsoft_edge_safe_browsing",
                               "mozilla_firefox_cookies", "opera_history", "brave_form_data"})
            QVERIFY2(list.contains(QLatin1StringView(id)), id);
    }

    void aCategoryKnowsItsBrowserAndItsRule()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QSet<QString> browsers;
        for (const CleanCategory &category :
             CheckedRecords(cleaner.result()).records(false).categories) {
            const auto browser = std::find_if(
                cleaner.browsers().cbegin(), cleaner.browsers().cend(),
                [&](const Browser &candidate) { return candidate.id == category.browserId; });
            QVERIFY2(browser != cleaner.browsers().cend(), qPrintable(category.id));
            QCOMPARE(category.id, category.browserId + u'_' + category.ruleId);
            QCOMPARE(category.name, browser->name + " - "_L1 + category.ruleName);
            QVERIFY(cleaner.categoryIds().contains(category.id));
            browsers.insert(browser->id);
        }
        QCOMPARE(browsers.size(), cleaner.browsers().size());
        QCOMPARE(cleaner.categoryIds().size(), cleaner.browsers().size() * cleaner.rules().size());
    }

    void aCategoryWithoutAnOriginTakesItFromItsIdAndName_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("origin"); // browser id, rule id, rule name
        QTest::newRow("chrome") << u"google_chrome_code_cache"_s << u"Google Chrome - Code Cache"_s
                                << QStringList{u"google_chrome"_s, u"code_cache"_s,
                                               u"Code Cache"_s};
        QTest::newRow("edge") << u"microsoft_edge_cache"_s << u"Microsoft Edge - Cache"_s
                              << QStringList{u"microsoft_edge"_s, u"cache"_s, u"Cache"_s};
        QTest::newRow("firefox") << u"mozilla_firefox_session"_s << u"Mozilla Firefox - Session"_s
                                 << QStringList{u"mozilla_firefox"_s, u"session"_s, u"Session"_s};
        QTest::newRow("opera") << u"opera_history"_s << u"Opera - History"_s
                               << QStringList{u"opera"_s, u"history"_s, u"History"_s};
        QTest::newRow("brave") << u"brave_logs"_s << u"Brave - Logs"_s
                               << QStringList{u"brave"_s, u"logs"_s, u"Logs"_s};
        QTest::newRow("a separator in the rule's name")
            << u"brave_cache"_s << u"Brave - Cache - more"_s
            << QStringList{u"brave"_s, u"cache"_s, u"Cache - more"_s};
        QTest::newRow("a name without a separator")
            << u"opera_cache"_s << u"Cache"_s << QStringList{u"opera"_s, u"cache"_s, u"Cache"_s};
        QTest::newRow("the browser's id alone")
            << u"opera"_s << u"Opera"_s << QStringList{u"opera"_s, u"opera"_s, u"Opera"_s};
        QTest::newRow("no browser")
            << u"temp_files"_s << u"Temporary files"_s
            << QStringList{QString(), u"temp_files"_s, u"Temporary files"_s};
        QTest::newRow("an underscore first")
            << u"_cache"_s << u"Cache"_s << QStringList{QString(), u"_cache"_s, u"Cache"_s};
        QTest::newRow("empty") << QString() << QString()
                               << QStringList{QString(), QString(), QString()};
    }

    void aCategoryWithoutAnOriginTakesItFromItsIdAndName()
    {
        QFETCH(QString, id);
        QFETCH(QString, name);
        QFETCH(QStringList, origin);
        const auto found = browsers::originOf(CleanCategory(id, name, {}));
        QCOMPARE((QStringList{found.browserId, found.ruleId, found.ruleName}), origin);
    }

    void theOriginThatACategoryNamesCountsBeforeItsId()
    {
        CleanCategory category(u"opera_history"_s, u"Opera - History"_s, {});
        category.browserId = u"brave"_s;
        category.ruleId = u"cache"_s;
        category.ruleName = u"Cache - more"_s;
        const auto origin = browsers::originOf(category);
        QCOMPARE((QStringList{origin.browserId, origin.ruleId, origin.ruleName}),
                 (QStringList{u"brave"_s, u"cache"_s, u"Cache - more"_s}));
    }

    // A thread is done with the others while the first profile is still read.
    void whatIsFoundStaysInTheOrderOfTheProfiles()
    {
        const TestTree tree;
        const QString data = u"Local/Google/Chrome/User Data/"_s;
        for (int i = 0; i < 3000; ++i)
            tree.file(data + u"Default/GPUCache/%1"_s.arg(i));
        QStringList expected;
        for (int i = 1; i < 6; ++i)
            expected.append(tree.file(data + u"Profile %1/GPUCache/x"_s.arg(i)));
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner, R"({"rules": [{"id": "gpu", "subPath": "GPUCache"}]})");
        scan(cleaner);
        QCOMPARE(cleaner.result().categories.size(), 1);
        QStringList found;
        for (const CleanItem &item : cleaner.result().categories.constFirst().items)
            found.append(item.path);
        QCOMPARE(found.size(), 3005);
        for (const QString &path : found.first(3000))
            QVERIFY(path.startsWith(tree.path(data + "Default"_L1)));
        QCOMPARE(found.sliced(3000), expected);
    }

    void foldersThatAreNoProfilesAreNotScanned()
    {
        const TestTree tree;
        const QString root = u"Local/Google/Chrome/User Data/"_s;
        for (const QString &name : {u"Default"_s, u"Profile 1"_s, u"Profile"_s, u"Guest Profile"_s,
                                    u"System Profile"_s, u"Profile 2.bak"_s, u"Default2"_s})
            tree.file(root + name + "/GPUCache/x"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QCOMPARE(paths(cleaner.result(), u"google_chrome_gpu_cache"_s, tree.path(root).chopped(1)),
                 (QStringList{u"Default/GPUCache/x"_s, u"Profile 1/GPUCache/x"_s,
                              u"Profile 2.bak/GPUCache/x"_s}));
    }

#ifdef Q_OS_UNIX
    // A scan in the prefix itself does the same.
    void aHiddenProfileIsPassedOver()
    {
        const TestTree tree;
        const QString root = u"prefix/drive_c/Local/Google/Chrome/User Data/"_s;
        for (const QString &name : {u"Default"_s, u"Profile 1"_s, u"Profile 2"_s})
            tree.file(root + name + "/GPUCache/x"_L1);
        if (::setxattr(QFile::encodeName(tree.path(root + "Profile 1"_L1)).constData(),
                       "user.DOSATTRIB", "0x2", 3, 0)
            != 0)
            QSKIP("this file system keeps no attributes of others");
        const QByteArray before = qgetenv("WINEPREFIX");
        qputenv("WINEPREFIX", QFile::encodeName(tree.path(u"prefix"_s)));
        const QStringList profiles = chromiumProfiles(tree.path(root).chopped(1));
        qputenv("WINEPREFIX", before);
        QCOMPARE(profiles,
                 (QStringList{tree.path(root + "Default"_L1), tree.path(root + "Profile 2"_L1)}));
    }

    void whatCannotBeReadIsLogged()
    {
        const TestTree tree;
        const QString chrome = tree.path(u"Local/Google/Chrome/User Data"_s);
        tree.file(u"Local/Google/Chrome/User Data/Profile 1/GPUCache/x"_s);
        const QString edge = tree.path(u"Local/Microsoft/Edge"_s);
        tree.file(u"Local/Microsoft/Edge/User Data/Default/GPUCache/x"_s);
        const QString ini = tree.file(u"Roaming/Mozilla/Firefox/profiles.ini"_s);
        const QFile::Permissions mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QVERIFY(QFile::setPermissions(chrome, mine | QFile::ExeGroup | QFile::ExeOther));
        QVERIFY(QFile::setPermissions(edge, mine));
        QVERIFY(QFile::setPermissions(ini, mine));
        const browsers::DataFolders folders = foldersOf(tree);
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0755), 0);
        const LogCapture log;
        QStringList unread;
        {
            const OrdinaryUser ordinary;
            BrowserCleaner cleaner(folders);
            cleaner.loadRules(shipped);
            scan(cleaner);
            QVERIFY(firefoxProfiles(folders).isEmpty());
            for (const platform::ReadFailure &failure : cleaner.incomplete().kept())
                unread.append(failure.where);
        }
        QCOMPARE(unread, (QStringList{chrome, edge + "/User Data"_L1, ini}));
        // One line for each reason, not for each place.
        QCOMPARE(log.count(u"Cannot read "_s), 1);
        QVERIFY(log.contains("[WARN] Cannot read "_L1 + chrome + " and 2 more: "_L1));
    }
#endif

    // --- Firefox

    void firefoxProfilesComeFromTheFileAndTheFolders()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        const LogCapture log;
        const QStringList found = firefoxProfiles(foldersOf(tree));
        QStringList relative;
        for (const QString &path : found)
            relative.append(path.mid(tree.path().size() + 1));
        const QString roaming = u"Roaming/Mozilla/Firefox/Profiles/"_s;
        const QString local = u"Local/Mozilla/Firefox/Profiles/"_s;
        QCOMPARE(relative,
                 (QStringList{roaming + u"ab12cd34.default-release"_s, u"Elsewhere/profile"_s,
                              roaming + u"ef56.默认 🦊"_s, roaming + u"unnamed.in-the-file"_s,
                              local + u"ab12cd34.default-release"_s, local + u"ef56.默认 🦊"_s,
                              local + u"unnamed.in-the-file"_s}));
        QCOMPARE(log.count(u"[INFO] Found Firefox profile: "_s), 2);
    }

    void profilesIniIsReadAsItStands_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("empty") << QByteArray() << QStringList();
        QTest::newRow("no groups") << QByteArray("Path=p\nIsRelative=1\n") << QStringList();
        QTest::newRow("relative") << QByteArray("[Profile0]\nPath=p\nIsRelative=1\n")
                                  << QStringList{u"Roaming/Mozilla/Firefox/p"_s};
        QTest::newRow("an install group")
            << QByteArray("[InstallABC]\nPath=p\nIsRelative=1\nDefault=q\n")
            << QStringList{u"Roaming/Mozilla/Firefox/p"_s};
        QTest::newRow("another group")
            << QByteArray("[General]\nPath=p\nIsRelative=1\n") << QStringList();
        QTest::newRow("without a path")
            << QByteArray("[Profile0]\nIsRelative=1\n") << QStringList();
        QTest::newRow("relative but not said so")
            << QByteArray("[Profile0]\nPath=p\n") << QStringList();
        QTest::newRow("comma and blanks")
            << QByteArray("\xEF\xBB\xBF; x\n[Profile0]\n Path = a, b \nIsRelative=1\n")
            << QStringList{u"Roaming/Mozilla/Firefox/a, b"_s};
        QTest::newRow("twice") << QByteArray(
            "[Profile0]\nPath=p\nIsRelative=1\n[Profile1]\nPath=p\nIsRelative=1\n")
                               << QStringList{u"Roaming/Mozilla/Firefox/p"_s};
        QTest::newRow("back to itself")
            << QByteArray("[Profile0]\nPath=p/../../Firefox/p\nIsRelative=1\n")
            << QStringList{u"Roaming/Mozilla/Firefox/p"_s};
        QTest::newRow("a file") << QByteArray("[Profile0]\nPath=f\nIsRelative=1\n")
                                << QStringList();
        QTest::newRow("binary") << QByteArray("[Profile0]\nPath=\x00\xff\nIsRelative=1\n[", 33)
                                << QStringList();
        QTest::newRow("backslashes") << QByteArray("[Profile0]\nPath=n\\t\\x41\nIsRelative=1\n")
                                     << QStringList{u"Roaming/Mozilla/Firefox/n/t/x41"_s};
    }

    void profilesIniIsReadAsItStands()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, expected);
        const TestTree tree;
        const QString root = u"Roaming/Mozilla/Firefox/"_s;
        tree.folder(root + "p"_L1);
        tree.folder(root + "a, b"_L1);
        tree.folder(root + "n/t/x41"_L1);
        tree.file(root + "f"_L1);
        tree.file(root + "profiles.ini"_L1, content);
        QStringList found = firefoxProfiles(foldersOf(tree));
        for (QString &path : found)
            path.remove(0, tree.path().size() + 1);
        QCOMPARE(found, expected);
    }

    void firefoxTakesOnlyWhatItsMappingNames()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        cleaner.setBrowserEnabled(Browser::Firefox, true);
        scan(cleaner);
        QCOMPARE(ids(cleaner.result()),
                 u"mozilla_firefox_cache mozilla_firefox_shader_cache "
                 "mozilla_firefox_crash_reports mozilla_firefox_logs mozilla_firefox_thumbnails "
                 "mozilla_firefox_favicons mozilla_firefox_local_storage "
                 "mozilla_firefox_indexeddb mozilla_firefox_cookies mozilla_firefox_history "
                 "mozilla_firefox_downloads mozilla_firefox_session "
                 "mozilla_firefox_form_data"_s.split(u' '));
        for (const CleanCategory &category : cleaner.result().categories) {
            for (const CleanItem &item : category.items) {
                QVERIFY(!item.isDirectory);
                for (const char *kept : {"bookmarkbackups", "logins.json", "key4.db", "permanent",
                                         "backup/", "startupCache", "safebrowsing", "cache2/index"})
                    QVERIFY2(!item.path.contains(QLatin1StringView(kept)), qPrintable(item.path));
            }
        }
        const QString root = tree.path(u"Roaming/Mozilla/Firefox"_s);
        QCOMPARE(paths(cleaner.result(), u"mozilla_firefox_crash_reports"_s, root),
                 (QStringList{u"Crash Reports/pending/1.dmp"_s, u"Crash Reports/pending/1.extra"_s,
                              u"Crash Reports/top.dmp"_s}));
        QCOMPARE(paths(cleaner.result(), u"mozilla_firefox_logs"_s, root),
                 (QStringList{u"install.log"_s, u"other.log"_s, u"update.log"_s}));
        QCOMPARE(find(cleaner.result(), u"mozilla_firefox_cookies"_s)->items.size(), 3 * 3 + 1);
        QCOMPARE(find(cleaner.result(), u"mozilla_firefox_session"_s)->items.size(), 3 * 3);
        QCOMPARE(find(cleaner.result(), u"mozilla_firefox_cache"_s)->items.size(), 3 * 2 + 1);
    }

    void firefoxHasItsOwnPlaceForEachRule_data()
    {
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *rule, const char *files = nullptr) {
            QTest::newRow(rule) << QString::fromLatin1(files).split(u' ', Qt::SkipEmptyParts);
        };
        row("cache", "entries/cache2/entries/a newer/cache2/b older/Cache/c");
        row("code_cache");
        row("gpu_cache");
        row("shader_cache", "p/shader-cache/a p/shader-cache/sub/b");
        row("service_worker");
        row("media_cache");
        row("network_cache");
        row("jump_list");
        row("blob_storage");
        row("webrtc_logs");
        row("crash_reports", "Crash/a.dmp Crash/pending/b.extra");
        row("logs", "install.log other.log update.log");
        row("thumbnails", "p/thumbnails/a p/thumbnails/sub/b");
        row("favicons", "p/favicons.sqlite p/favicons.sqlite-shm p/favicons.sqlite-wal");
        row("font_cache");
        row("local_storage", "p/storage/default/a p/storage/default/sub/b");
        row("indexeddb", "p/storage/default/a p/storage/default/sub/b");
        row("cookies", "p/cookies.sqlite p/cookies.sqlite-shm p/cookies.sqlite-wal");
        row("history", "p/places.sqlite p/places.sqlite-shm p/places.sqlite-wal");
        row("downloads", "p/downloads.sqlite p/downloads.sqlite-wal");
        row("session",
            "p/other.jsonlz4 p/sessionstore-backups/a.jsonlz4 "
            "p/sessionstore-backups/sessionstore.jsonlz4 p/sessionstore.jsonlz4");
        row("form_data", "p/formhistory.sqlite p/formhistory.sqlite-wal");
        row("safe_browsing");
    }
    void firefoxHasItsOwnPlaceForEachRule()
    {
        QFETCH(QStringList, expected);
        const TestTree tree;
        const QString shared = u"Roaming/Mozilla/Firefox/"_s;
        const QString profiles = shared + "Profiles/"_L1;
        for (const char *name : {"Crash Reports/a.dmp", "Crash Reports/pending/b.extra",
                                 "Crash Reports/c.txt", "Crash Reports/InstallTime", "update.log",
                                 "install.log", "other.log", "other.txt", "a.dmp"})
            tree.file(shared + QLatin1StringView(name));
        // Of the three folders of the cache the first that exists is taken.
        for (const char *name :
             {"entries/cache2/entries/a", "entries/cache2/x", "entries/Cache/x", "newer/cache2/b",
              "newer/Cache/x", "older/Cache/c", "older/cache3/x"})
            tree.file(profiles + QLatin1StringView(name));
        for (const char *database :
             {"favicons", "cookies", "places", "downloads", "formhistory", "permissions"}) {
            for (const char *end : {"", "-wal", "-shm", "-journal", ".bak"})
                tree.file(profiles + "p/"_L1 + QLatin1StringView(database) + ".sqlite"_L1
                          + QLatin1StringView(end));
            tree.file(profiles + "p/sub/"_L1 + QLatin1StringView(database) + ".sqlite"_L1);
        }
        for (const char *name :
             {"shader-cache/a", "shader-cache/sub/b", "thumbnails/a", "thumbnails/sub/b",
              "storage/default/a", "storage/default/sub/b", "storage/permanent/x", "storage/x",
              "sessionstore.jsonlz4", "other.jsonlz4", "sessionstore.js", "sub/other.jsonlz4",
              "sessionstore-backups/sessionstore.jsonlz4", "sessionstore-backups/a.jsonlz4",
              "sessionstore-backups/a.baklz4", "sessionstore-backups/sub/a.jsonlz4"})
            tree.file(profiles + "p/"_L1 + QLatin1StringView(name));
        // Where the other browsers keep their data.
        for (const char *name : {"Code Cache/x",
                                 "GPUCache/x",
                                 "ShaderCache/x",
                                 "Service Worker/CacheStorage/x",
                                 "Media Cache/x",
                                 "JumpListIconsRecentClosed/x",
                                 "blob_storage/x",
                                 "WebRTC Logs/x",
                                 "Crashpad/reports/x.dmp",
                                 "debug.log",
                                 "Thumbnails.x/x",
                                 "Favicons",
                                 "Font Cache/x",
                                 "Local Storage/x",
                                 "IndexedDB/x",
                                 "Cookies",
                                 "History",
                                 "DownloadMetadata",
                                 "Last Session",
                                 "Web Data",
                                 "Safe Browsing/x"})
            tree.file(profiles + "p/"_L1 + QLatin1StringView(name));
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const QString id = "mozilla_firefox_"_L1 + QLatin1StringView(QTest::currentDataTag());
        QStringList found;
        for (const QString &path : paths(cleaner.result(), id, tree.path(shared).chopped(1)))
            found.append(QString(path).remove("Profiles/"_L1).remove(" Reports"_L1));
        found.sort();
        QCOMPARE(found, expected);
        QCOMPARE(find(cleaner.result(), id) == nullptr, expected.isEmpty());
    }

    // --- which browsers are scanned

    void untilAChoiceIsMadeEveryInstalledBrowserIsScanned()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        SignalSpy progress(&cleaner, &CleanEngine::scanProgress);
        const LogCapture log;
        scan(cleaner);
        QCOMPARE(progress.size(), 5);
        QCOMPARE(progress.constFirst(), (QList<QVariant>{1, 5, u"Google Chrome"_s}));
        QCOMPARE(progress.at(2), (QList<QVariant>{3, 5, u"Mozilla Firefox"_s}));
        QVERIFY(log.contains(u"[INFO] Starting browser scan..."_s));
        QVERIFY(log.contains(u"[INFO] Browser scan finished. Found %1 items, %2"_s.arg(
            QString::number(cleaner.result().totalCount()),
            formatSize(cleaner.result().totalSize()))));
    }

    void afterAChoiceOnlyThoseChosenAreScanned()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        cleaner.setBrowserEnabled(Browser::Edge, true);
        cleaner.setBrowserEnabled(Browser::Brave, false);
        QVERIFY(cleaner.browsers().at(1).selected);
        QVERIFY(!cleaner.browsers().at(0).selected && !cleaner.browsers().at(4).selected);
        SignalSpy progress(&cleaner, &CleanEngine::scanProgress);
        scan(cleaner);
        QCOMPARE(progress.size(), 1);
        QCOMPARE(progress.constFirst(), (QList<QVariant>{1, 1, u"Microsoft Edge"_s}));
        for (const QString &id : ids(cleaner.result()))
            QVERIFY2(id.startsWith("microsoft_edge_"_L1), qPrintable(id));
    }

    void aBrowserWithoutDataYieldsNothing()
    {
        const TestTree tree;
        tree.folder(u"Local/Google/Chrome/User Data"_s);
        tree.folder(u"Local/Mozilla/Firefox/Profiles"_s);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QVERIFY(cleaner.result().categories.isEmpty());
    }

    void aCancelledScanEndsEarly()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        SignalSpy finished(&cleaner, &CleanEngine::scanFinished);
        connect(
            &cleaner, &CleanEngine::scanProgress, &cleaner,
            [&cleaner](int current) {
                if (current == 2)
                    cleaner.cancel();
            },
            Qt::DirectConnection);
        cleaner.startScan();
        cleaner.stopAndWait();
        QCoreApplication::processEvents();
        QCOMPARE(finished.size(), 0);
        QCOMPARE(cleaner.state(), State::Cancelled);
        for (const QString &id : ids(cleaner.result()))
            QVERIFY2(!id.startsWith("mozilla"_L1) && !id.startsWith("microsoft_edge"_L1),
                     qPrintable(id));
    }

    // --- cleaning

    void aCleanRemovesWhatIsTickedAndNothingElse()
    {
        const TestTree tree;
        browserprofiles::makeAll(tree);
        const TestTree fence;
        fence.file(u"canary"_s);
        const QMap<QString, QString> fenceBefore = fence.snapshot();
#ifdef Q_OS_UNIX
        tree.link(fence.path(), chromeProfile() + "/Cache/link to a folder"_L1);
        tree.link(fence.path(u"canary"_s), chromeProfile() + "/Code Cache/link to a file"_L1);
#endif
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const ScanResult selected = CheckedRecords(cleaner.result()).records(false);
        QStringList removed;
        qint64 bytes = 0;
        QSet<QString> seen;
        for (const CleanCategory &category : selected.categories) {
            for (const CleanItem &item : category.items) {
                removed.append(item.path);
                if (!item.isDirectory && !seen.contains(item.path))
                    bytes += item.size;
                seen.insert(item.path);
            }
        }
        QMap<QString, QString> expected = tree.snapshot();
        for (const QString &path : removed)
            expected.remove(path);
        SignalSpy progress(&cleaner, &CleanEngine::cleanProgress);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(tree.snapshot(), expected);
        QCOMPARE(fence.snapshot(), fenceBefore);
        const int count = static_cast<int>(removed.size());
        QCOMPARE(finished.constFirst(), (QList<QVariant>{bytes, count}));
        QCOMPARE(progress.size(), count);
        QCOMPARE(progress.constFirst(), (QList<QVariant>{1, count, qint64(0)}));
        QCOMPARE(cleaner.state(), State::Finished);
        QVERIFY(cleaner.failures().isEmpty());
        QVERIFY(log.contains(u"[INFO] Starting browser clean..."_s));
        QVERIFY(log.contains(
            u"[INFO] Browser clean finished. Cleaned %1 items, %2. Failed: 0 items"_s.arg(
                QString::number(count), formatSize(bytes))));
        QVERIFY(!log.contains(u"is running"_s));
    }

    void itemsRemovedWithTheirFolderAreNoFailures()
    {
        const TestTree tree;
        tree.file(chromeProfile() + "/Cache/Cache_Data/sub/b"_L1, "345");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(3), 5}));
        QVERIFY(!log.contains(u"Failed to delete"_s));
        QVERIFY(tree.has(chromeProfile() + "/Cache"_L1));
        QVERIFY(!tree.has(chromeProfile() + "/Cache/Cache_Data"_L1));
    }

    void aFolderPartlyRemovedBecauseOfACancelIsNoFailure()
    {
        const TestTree tree;
        for (int i = 0; i < 50; ++i)
            tree.file(chromeProfile() + u"/GPUCache/sub/f%1"_s.arg(i), "12345");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        for (CleanCategory &category : cleaner.result().categories) {
            for (CleanItem &item : category.items)
                item.checked = item.isDirectory;
        }
        connect(
            &cleaner, &CleanEngine::cleanProgress, &cleaner,
            [&cleaner](int index, int total) {
                if (index == total)
                    cleaner.cancel();
            },
            Qt::DirectConnection);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(cleaner.state(), State::Cancelled);
        QVERIFY(!log.contains(u"Failed to delete"_s));
        QVERIFY(!log.contains(u"Browser clean finished"_s));
        QVERIFY(cleaner.failures().isEmpty());
    }

    void aFileRemovedSinceTheScanIsACountedFailure()
    {
        const TestTree tree;
        const QString removed = tree.file(chromeProfile() + "/GPUCache/a"_L1, "1");
        tree.file(chromeProfile() + "/GPUCache/b"_L1, "22");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QVERIFY(QFile::remove(removed));
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(2), 1}));
        QCOMPARE(log.count(u"[WARN] Failed to delete: "_s + removed), 1);
        QVERIFY(log.contains(u"Cleaned 1 items, 2 B. Failed: 1 items"_s));
        QCOMPARE(cleaner.failures().size(), 1);
        QCOMPARE(cleaner.failures().constFirst().path, removed);
    }

    void aRunningBrowserIsLoggedAndCleanedAnyway()
    {
        const TestTree tree;
        browserprofiles::makeChromium(tree, u"Roaming/Opera Software/Opera Stable/Default"_s);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        cleaner.setBrowserEnabled(Browser::Opera, true);
        scan(cleaner);
        for (CleanCategory &category : cleaner.result().categories)
            category.setChecked(category.id == "opera_cache"_L1);
        // A copy of this test under the browser's name.
        const QString program = tree.path(u"Opera.exe"_s);
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QProcess process;
        // A busy Wine sometimes refuses to start a program that has just been written.
        const auto start = [&process, &program] {
            process.start(program, {QString::fromLatin1(sleepArgument)});
            return process.waitForStarted();
        };
        QVERIFY2(QTest::qWaitFor(start, patience), qPrintable(process.errorString()));
        QTest::qWait(300);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(log.count(u"[WARN] Opera is running, some files may not be deleted"_s), 1);
        QVERIFY(finished.constFirst().at(1).toInt() > 0);
        QVERIFY(!tree.has(u"Roaming/Opera Software/Opera Stable/Default/Cache/Cache_Data"_s));
        process.kill();
        QVERIFY(process.waitForFinished());
    }

    void withoutAScanACleanEndsWithNothing()
    {
        const TestTree tree;
        BrowserCleaner cleaner(foldersOf(tree));
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(0), 0}));
        QCOMPARE(cleaner.state(), State::Finished);
    }

    void aCancelledCleanTellsWhatWasDone()
    {
        const TestTree tree;
        for (int i = 0; i < 100; ++i)
            tree.file(chromeProfile() + u"/GPUCache/f%1"_s.arg(i), "12345");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        connect(
            &cleaner, &CleanEngine::cleanProgress, &cleaner,
            [&cleaner](int current) {
                if (current == 20)
                    cleaner.cancel();
            },
            Qt::DirectConnection);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(100), 20}));
        QCOMPARE(cleaner.state(), State::Cancelled);
        QVERIFY(!log.contains(u"Browser clean finished"_s));
    }

    void theLogTellsOfTheEndBeforeTheSignal()
    {
        const TestTree tree;
        tree.file(chromeProfile() + "/GPUCache/a"_L1, "22");
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        connect(
            &cleaner, &CleanEngine::cleanFinished, &cleaner,
            [&cleaner] { qDebug() << "told of state" << int(cleaner.state()); },
            Qt::DirectConnection);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        const LogCapture log;
        clean(cleaner, finished);
        const QStringList lines = log.lines();
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(0).contains("Starting browser clean..."_L1));
        QVERIFY(lines.at(1).contains("Browser clean finished. Cleaned 1 items, 2 B. Failed: 0"_L1));
        QCOMPARE(lines.at(2), u"told of state %1"_s.arg(int(State::Finished)));
    }

    void rulesDoNotLeaveTheProfile()
    {
        const TestTree tree;
        tree.file(u"Local/Google/Chrome/User Data/canary"_s);
        tree.file(chromeProfile() + "/x"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner,
             "{\"rules\": [{\"id\": \"a\", \"subPath\": \"..\"}, {\"id\": \"b\", \"subPath\": "
             "\"../..\"}, "
             "{\"id\": \"c\", \"subPath\": \"x/../..\"}, {\"id\": \"d\", \"subPath\": "
             "\"..\\\\..\"}, "
             "{\"id\": \"e\", \"patterns\": [\"..\", \"../?\", \"Default\"]}]} ");
        scan(cleaner);
        QVERIFY(cleaner.result().categories.isEmpty());
    }

#ifdef Q_OS_UNIX
    // --- links

    void nothingBehindALinkIsFoundOrRemoved()
    {
        const TestTree outside;
        browserprofiles::makeChromium(outside, u"profile"_s);
        browserprofiles::makeFirefox(outside, u"fox"_s);
        outside.file(u"plain"_s);
        const TestTree tree;
        const QString root = u"Local/Google/Chrome/User Data/"_s;
        browserprofiles::makeChromium(tree, root + "Default"_L1);
        // In place of a profile, of a rule's folder, of a folder on the way to it, and of an entry
        // in it.
        tree.link(outside.path(u"profile"_s), root + "Profile 7"_L1);
        tree.link(outside.path(), root + "Default/Cache/Cache_Data/folder"_L1);
        tree.link(outside.path(u"plain"_s), root + "Default/Cache/Cache_Data/file"_L1);
        tree.link(outside.path(u"profile"_s), root + "Default/History.d"_L1);
        tree.link(outside.path(u"profile/History"_s), root + "Profile 1/History"_L1);
        tree.link(outside.path(u"profile/Network"_s), root + "Profile 1/Cookies"_L1);
        tree.link(outside.path(u"profile/Cache"_s), root + "Profile 1/Cache"_L1);
        tree.link(outside.path(u"profile/Crashpad"_s), root + "Profile 1/Crashpad"_L1);
        tree.link(outside.path(u"profile"_s), u"Local/Microsoft/Edge/User Data/Default"_s);
        tree.link(outside.path(), u"Local/BraveSoftware/Brave-Browser/User Data"_s);
        tree.link(outside.path(u"Roaming/Mozilla/Firefox/Profiles/fox"_s),
                  u"Roaming/Mozilla/Firefox/Profiles/link"_s);
        tree.link(outside.path(u"Local/Mozilla/Firefox/Profiles/fox/cache2"_s),
                  u"Local/Mozilla/Firefox/Profiles/own/cache2"_s);
        tree.link(outside.path(u"Roaming/Mozilla/Firefox/Profiles/fox/cookies.sqlite"_s),
                  u"Roaming/Mozilla/Firefox/Profiles/own/cookies.sqlite"_s);
        const QMap<QString, QString> before = outside.snapshot();

        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        const LogCapture log;
        scan(cleaner);
        for (CleanCategory &category : cleaner.result().categories) {
            for (const CleanItem &item : category.items) {
                QVERIFY2(item.path.startsWith(tree.path() + u'/'), qPrintable(item.path));
                QVERIFY2(!item.path.contains("/folder/"_L1), qPrintable(item.path));
                QCOMPARE(QFileInfo(QFileInfo(item.path).path()).canonicalFilePath(),
                         QFileInfo(item.path).path());
            }
            category.setChecked(true);
        }
        QVERIFY(find(cleaner.result(), u"google_chrome_cookies"_s));
        QVERIFY(!find(cleaner.result(), u"microsoft_edge_cookies"_s));
        QVERIFY(!find(cleaner.result(), u"brave_cookies"_s));
        QVERIFY(log.contains(u"[WARN] Skipped "_s + tree.path(root + "Profile 7"_L1)));
        QVERIFY(log.contains(u"[WARN] Skipped "_s + tree.path(root + "Profile 1/Cache"_L1)));
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QVERIFY(finished.constFirst().at(1).toInt() > 0);
        QVERIFY(cleaner.failures().isEmpty());
        QCOMPARE(outside.snapshot(), before);
        // A link that a rule names is removed as a link.
        for (const QString &link :
             {u"Profile 1/Cookies"_s, u"Profile 1/History"_s, u"Default/Cache/Cache_Data"_s})
            QVERIFY2(!tree.has(root + link), qPrintable(link));
        for (const QString &link : {u"Profile 7"_s, u"Profile 1/Cache"_s, u"Default/History.d"_s})
            QVERIFY2(tree.has(root + link), qPrintable(link));
    }

    void aFolderExchangedForALinkAfterTheScanLosesNothing()
    {
        const TestTree outside;
        outside.file(u"Cache_Data/a"_s);
        outside.file(u"Cache_Data/b"_s);
        const TestTree tree;
        const QString cache = chromeProfile() + "/Cache"_L1;
        tree.file(cache + "/Cache_Data/a"_L1);
        tree.file(cache + "/Cache_Data/b"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QVERIFY(QDir(tree.path(cache)).removeRecursively());
        tree.link(outside.path(), cache);
        const QMap<QString, QString> before = outside.snapshot();
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(outside.snapshot(), before);
        QCOMPARE(finished.constFirst(), (QList<QVariant>{qint64(0), 0}));
    }

    void aFolderItemThatBecameALinkIsRemovedAsALink()
    {
        const TestTree outside;
        outside.file(u"canary"_s);
        const TestTree tree;
        const QString folder = chromeProfile() + "/Cache/Cache_Data"_L1;
        tree.file(folder + "/a"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        QVERIFY(QDir(tree.path(folder)).removeRecursively());
        tree.link(outside.path(), folder);
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QVERIFY(outside.has(u"canary"_s));
        QVERIFY(!tree.has(folder));
    }

    void aFolderThatTookThePlaceOfAListedOneKeepsItsFiles_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("isDuring");
        const QString chromium = chromeProfile() + "/Cache/Cache_Data"_L1;
        QTest::newRow("Chromium, before the clean") << chromium << false;
        QTest::newRow("Chromium, during the clean") << chromium << true;
        const QString firefox = u"Roaming/Mozilla/Firefox/Profiles/x/cache2/entries"_s;
        QTest::newRow("Firefox, before the clean") << firefox << false;
        QTest::newRow("Firefox, during the clean") << firefox << true;
    }
    void aFolderThatTookThePlaceOfAListedOneKeepsItsFiles()
    {
        QFETCH(QString, folder);
        QFETCH(bool, isDuring);
        constexpr int files = 300;
        const TestTree tree;
        for (int i = 0; i < files; ++i) {
            tree.file(folder + u"/f%1"_s.arg(i));
            tree.file(u"other/f%1"_s.arg(i));
        }
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        const int found = cleaner.result().checkedCount();
        QVERIFY(found >= files);
        removalHook = [&] {
            QVERIFY(QDir().rename(tree.path(folder), tree.path(u"away"_s)));
            QVERIFY(QDir().rename(tree.path(u"other"_s), tree.path(folder)));
        };
        if (isDuring)
            removalsBeforeHook = 20;
        else
            removalHook();
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        QCOMPARE(QDir(tree.path(folder)).entryList(QDir::Files).size(), files);
        const auto remaining = QDir(tree.path(u"away"_s)).entryList(QDir::Files).size();
        QVERIFY2(remaining >= files - (isDuring ? 20 + 32 : 0),
                 qPrintable(QString::number(remaining)));
        const int cleaned = finished.constFirst().at(1).toInt();
        QVERIFY2(cleaned <= files - remaining, qPrintable(QString::number(cleaned)));
        QCOMPARE(cleaner.failures().size(), found - cleaned);
        QCOMPARE(cleaner.failures().constLast().reason,
                 u"Its folder is not the one that was listed"_s);
    }

    // The folder is an item, and so is each file in it. The files are not at their paths any more,
    // but they are not removed.
    void aFolderThatWasMovedAwayDuringACleanIsNotCounted()
    {
        constexpr int files = 300;
        const TestTree tree;
        const QString folder = chromeProfile() + "/Cache/Cache_Data"_L1;
        for (int i = 0; i < files; ++i)
            tree.file(folder + u"/f%1"_s.arg(i));
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        scan(cleaner);
        removalHook = [&] { QVERIFY(QDir().rename(tree.path(folder), tree.path(u"away"_s))); };
        removalsBeforeHook = 20;
        SignalSpy finished(&cleaner, &CleanEngine::cleanFinished);
        clean(cleaner, finished);
        const auto remaining = QDir(tree.path(u"away"_s)).entryList(QDir::Files).size();
        QVERIFY(remaining > 0);
        const int cleaned = finished.constFirst().at(1).toInt();
        QVERIFY2(cleaned <= files - remaining, qPrintable(QString::number(cleaned)));
        QVERIFY(cleaner.failures().size() >= remaining);
    }

    void aLinkCountsForItsOwnSize()
    {
        const TestTree outside;
        const QString target = outside.file(u"large"_s, QByteArray(100'000, 'x'));
        const TestTree tree;
        const QString folder = chromeProfile() + "/Cache/Cache_Data"_L1;
        tree.file(folder + "/plain"_L1, "12345");
        tree.link(target, folder + "/link"_L1);
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner, R"({"rules": [{"id": "c", "subPath": "Cache", "patterns": ["*"]}]})");
        scan(cleaner);
        const qint64 size = QFile::encodeName(target).size();
        QMap<QString, qint64> sizes;
        const CleanCategory *category = find(cleaner.result(), u"google_chrome_c"_s);
        QVERIFY(category);
        for (const CleanItem &item : category->items)
            sizes.insert(item.name, item.size);
        QCOMPARE(sizes.value(u"link"_s), size);
        QCOMPARE(sizes.value(u"plain"_s), 5);
    }

    void aChromiumProfileThatHoldsTheHomeIsNotTakenWhole_data()
    {
        QTest::addColumn<QString>("subPath");
        QTest::newRow("the profile") << QString();
        QTest::newRow("a folder in it") << u"Cache"_s;
    }
    void aChromiumProfileThatHoldsTheHomeIsNotTakenWhole()
    {
        QFETCH(QString, subPath);
        const TestTree tree;
        const QString folder =
            subPath.isEmpty() ? chromeProfile() : chromeProfile() + u'/' + subPath;
        tree.file(folder + "/home/precious"_L1);
        tree.file(folder + "/f.log"_L1);
        const QByteArray before = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(tree.path(folder + "/home"_L1)));
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner,
             R"({"rules": [{"id": "all", "subPath": "%", "patterns": ["*"]},
                           {"id": "logs", "subPath": "%", "patterns": ["*.log"]}]})"_ba.replace(
                 '%', subPath.toUtf8()));
        const LogCapture log;
        scan(cleaner);
        qputenv("HOME", before);
        QVERIFY(!find(cleaner.result(), u"google_chrome_all"_s));
        QCOMPARE(paths(cleaner.result(), u"google_chrome_logs"_s, tree.path(folder)),
                 QStringList{u"f.log"_s});
        QVERIFY(log.contains(
            u"[WARN] Skipped %1: rule all would take everything in it"_s.arg(tree.path(folder))));
    }

    void aFirefoxFolderThatHoldsTheHomeIsNotTakenWhole()
    {
        const TestTree tree;
        const QString profile = u"Roaming/Mozilla/Firefox/Profiles/fox"_s;
        tree.file(profile + "/cache2/entries/home/precious"_L1);
        tree.file(profile + "/thumbnails/a"_L1);
        const QByteArray before = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(tree.path(profile + "/cache2/entries/home"_L1)));
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        const LogCapture log;
        scan(cleaner);
        qputenv("HOME", before);
        QCOMPARE(ids(cleaner.result()), QStringList{u"mozilla_firefox_thumbnails"_s});
        QVERIFY(log.contains(u"[WARN] Skipped %1: a rule would take everything in it"_s.arg(
            tree.path(profile + "/cache2/entries"_L1))));
    }

    void aProfileThatTheFileNamesThroughALinkIsTheRealOne()
    {
        const TestTree outside;
        outside.file(u"real/cookies.sqlite"_s);
        const TestTree tree;
        const QString root = u"Roaming/Mozilla/Firefox/"_s;
        tree.link(outside.path(u"real"_s), root + "Profiles/link"_L1);
        tree.file(root + "profiles.ini"_L1, "[Profile0]\nPath=Profiles/link\nIsRelative=1\n");
        QCOMPARE(firefoxProfiles(foldersOf(tree)), QStringList{outside.path(u"real"_s)});
    }

    void aPipeInThePlaceOfProfilesIniIsNotOpened()
    {
        const TestTree tree;
        const QString root = tree.folder(u"Roaming/Mozilla/Firefox"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(root + "/profiles.ini"_L1).constData(), 0600), 0);
        QVERIFY(firefoxProfiles(foldersOf(tree)).isEmpty());
    }

    // A portable browser keeps its profile in a program folder.
    void aProfileInsideTheProgramFolderIsCleaned()
    {
        const TestTree tree;
        const QString drive = tree.folder(u"prefix/drive_c"_s);
        tree.folder(u"prefix/dosdevices"_s);
        tree.link(u"../drive_c"_s, u"prefix/dosdevices/c:"_s);
        const QString profile = drive + "/Program Files/Portable/profile"_L1;
        tree.file(u"prefix/drive_c/Program Files/Portable/profile/cache2/entries/E1"_s);
        tree.file(u"prefix/drive_c/Program Files/Portable/profile/cookies.sqlite"_s);
        tree.file(u"Roaming/Mozilla/Firefox/profiles.ini"_s,
                  "[Profile0]\nPath=" + QFile::encodeName(profile)
                      + "\nIsRelative=0\n[Profile1]\nPath="
                      + QFile::encodeName(drive + "/Program Files"_L1) + "\nIsRelative=0\n");
        const QByteArray before = qgetenv("WINEPREFIX");
        qputenv("WINEPREFIX", QFile::encodeName(tree.path(u"prefix"_s)));
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner, "{\"rules\": [{\"id\": \"cache\"}, {\"id\": \"cookies\"}]} ");
        const LogCapture log;
        scan(cleaner);
        qputenv("WINEPREFIX", before);
        QCOMPARE(cleaner.result().totalCount(), 2);
        QVERIFY(log.contains("Found Firefox profile: "_L1 + profile));
        QVERIFY(log.contains("[WARN] Skipped Firefox profile: "_L1 + drive
                             + "/Program Files may hold more"_L1));
    }

    void aProfileThatIsTheHomeIsNotTakenWhole()
    {
        const TestTree tree;
        const QString home = QDir::homePath();
        QVERIFY(QDir().mkpath(home + "/Cache"_L1));
        QFile precious(home + "/Cache/precious"_L1);
        QVERIFY(precious.open(QIODevice::WriteOnly));
        tree.file(u"Roaming/Mozilla/Firefox/profiles.ini"_s,
                  "[Profile0]\nPath=/\nIsRelative=0\n[Profile1]\nPath=" + QFile::encodeName(home)
                      + "\nIsRelative=0\n");
        BrowserCleaner cleaner(foldersOf(tree));
        load(cleaner, "{\"rules\": [{\"id\": \"cache\"}]} ");
        const LogCapture log;
        scan(cleaner);
        QVERIFY(cleaner.result().categories.isEmpty());
        QVERIFY(log.contains(u"[WARN] Skipped Firefox profile: / may hold more"_s));
        QVERIFY(log.contains(u"[WARN] Skipped Firefox profile: %1 may hold more"_s.arg(home)));
    }

    void aProfileIsReadOnceWhateverTheNumberOfRules()
    {
        const TestTree tree;
        browserprofiles::makeChromium(tree, u"Local/Google/Chrome/User Data/Default"_s);
        // The folder is below the folders of several rules, and of rules for the whole profile.
        const QString closed = tree.folder(chromeProfile() + "/Cache/Cache_Data/closed"_L1);
        const auto everyone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
            | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
        QVERIFY(QFile::setPermissions(tree.path(), everyone));
        QVERIFY(QFile::setPermissions(closed, QFile::Permissions()));
        BrowserCleaner cleaner(foldersOf(tree));
        cleaner.loadRules(shipped);
        const LogCapture log;
        {
            const OrdinaryUser user;
            scan(cleaner);
        }
        QFile::setPermissions(closed, everyone);
        QCOMPARE(log.count(u"Cannot read"_s), 1);
        QVERIFY(cleaner.result().categories.size() > 10);
    }
#endif

private:
    static void load(BrowserCleaner &cleaner, const QByteArray &content)
    {
        const TestTree tree;
        cleaner.loadRules(tree.file(u"rules.json"_s, content));
    }

    static void scan(BrowserCleaner &cleaner)
    {
        SignalSpy finished(&cleaner, &CleanEngine::scanFinished);
        cleaner.startScan();
        QVERIFY(finished.wait(patience));
        QCOMPARE(cleaner.state(), State::Finished);
    }

    static void clean(BrowserCleaner &cleaner, SignalSpy &finished)
    {
        cleaner.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
        cleaner.stopAndWait();
    }

    const TestHome &m_home;
};

int main(int argc, char *argv[])
{
    if (argc == 2 && qstrcmp(argv[1], sleepArgument) == 0) {
        QThread::sleep(30);
        return 0;
    }
    const TestHome home;
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    TestBrowserCleaner test(home);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_browsercleaner.moc"
