#include "registrycleaner.h"

#include "appinfo.h"
#include "logcapture.h"
#include "registrybackup.h"
#include "registryfixture.h"
#include "registryrestore.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"
#include "windowspaths.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <algorithm>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif
#ifndef Q_OS_WIN
#include <cerrno>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;
using State = CleanEngine::State;

namespace {

constexpr int patience = 60'000;
const std::atomic_bool notStopped = false;

const QString version = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion"_s;
const QString appPaths = version + "\\App Paths"_L1;
const QString uninstall = version + "\\Uninstall"_L1;
const QString runKey = version + "\\Run"_L1;
const QString runOnceKey = version + "\\RunOnce"_L1;
const QString sharedDlls = version + "\\SharedDLLs"_L1;
const QString fonts = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"_s;
const QString muiCache =
    u"SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"_s;
const QString machine = u"HKEY_LOCAL_MACHINE\\"_s;
const QString user = u"HKEY_CURRENT_USER\\"_s;
const QString classes = u"HKEY_CLASSES_ROOT\\"_s;
const QString missing = u"C:\\Sweepwise Missing\\app.exe"_s;

const CleanCategory *find(const ScanResult &result, const QString &id)
{
    for (const CleanCategory &category : result.categories) {
        if (category.id == id)
            return &category;
    }
    return nullptr;
}

// The live registry has entries of its own.
QList<CleanItem> ownItems(const ScanResult &result, const QString &id)
{
    QList<CleanItem> items;
    if (const CleanCategory *category = find(result, id)) {
        for (const CleanItem &item : category->items) {
            if (item.registryKey.contains("sweepwise"_L1, Qt::CaseInsensitive))
                items.append(item);
        }
    }
    return items;
}

QStringList names(const QList<CleanItem> &items)
{
    QStringList list;
    for (const CleanItem &item : items)
        list.append(item.name);
    return list;
}

CleanItem item(const QString &root, const QString &key)
{
    CleanItem made(u"name"_s, root + u'\\' + key, 0);
    made.registryRoot = root;
    made.registryKey = key;
    return made;
}

#ifndef Q_OS_WIN
bool renamesOfUserHiveFail = false;
#endif

} // namespace

#ifndef Q_OS_WIN
// Replaces the system call that puts a new file of the registry in the place of the old one.
extern "C" int rename(const char *from, const char *to) noexcept
{
    if (renamesOfUserHiveFail && QByteArrayView(to).endsWith("/user.reg")) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_rename, from, to));
}
#endif

class TestRegistryCleaner : public QObject
{
    Q_OBJECT
public:
    explicit TestRegistryCleaner(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<RegistryFixture>(m_home);
        m_cleaner = std::make_unique<RegistryCleaner>();
    }
    void cleanup()
    {
        m_cleaner.reset();
        m_fixture.reset();
    }

    // --- what is found

    void theSevenCategoriesStandInTheirOrder()
    {
        m_fixture->addText(machine + appPaths + "\\Sweepwise.exe"_L1, {}, missing);
        m_fixture->addText(classes + ".sweepwise"_L1, {}, u"SweepwiseType"_s);
        m_fixture->addText(classes + "SweepwiseType\\shell\\open\\command"_L1, {}, missing);
        m_fixture->addText(classes + "CLSID\\{!Sweepwise}\\InprocServer32"_L1, {}, missing);
        m_fixture->addText(machine + fonts, u"Sweepwise"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise"_s, missing);
        m_fixture->addText(machine + sharedDlls, u"sweepwise.dll"_s, u"1"_s);
        m_fixture->addText(user + muiCache, u"Sweepwise.exe"_s, u"x"_s);
        m_fixture->write();
        scan();
        QStringList categories;
        QStringList items;
        for (const CleanCategory &category : std::as_const(*m_cleaner).result().categories) {
            categories.append(QStringList{category.id, category.name, category.description,
                                          QString::number(category.riskLevel),
                                          category.checked ? u"yes"_s : u"no"_s, category.icon}
                                  .join(u'|'));
            for (const CleanItem &item : ownItems(m_cleaner->result(), category.id))
                items.append(QStringList{item.name, item.path, QString::number(item.size),
                                         item.checked ? u"yes"_s : u"no"_s, item.description,
                                         item.registryRoot, item.registryKey}
                                 .join(u'|'));
        }
        QCOMPARE(categories,
                 (QStringList{u"invalid_software|Invalid Software Paths|Registry entries pointing "
                              "to non-existent locations|0|yes|"_s,
                              u"invalid_file_assoc|Invalid File Associations|File associations "
                              "pointing to missing programs|0|yes|"_s,
                              u"invalid_com|Invalid COM/ActiveX|Invalid COM components and ActiveX "
                              "controls|1|yes|"_s,
                              u"invalid_fonts|Invalid Font References|Registry entries pointing to "
                              "non-existent font files|0|yes|"_s,
                              u"invalid_startup|Invalid Startup Items|Startup items pointing to "
                              "non-existent programs|1|yes|"_s,
                              u"invalid_shared_dll|Invalid Shared DLLs|References to non-existent "
                              "shared DLL files|1|no|"_s,
                              u"mui_cache|MUI Cache|Application MUI cache data|0|yes|"_s}));
        QCOMPARE(
            items,
            (QStringList{
                u"Sweepwise.exe|HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\"
                "Sweepwise.exe|0|yes|Path: C:\\Sweepwise Missing\\app.exe|HKEY_LOCAL_MACHINE|"
                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Sweepwise.exe"_s,
                u".sweepwise -> SweepwiseType|HKCR\\.sweepwise|0|yes|Command: C:\\Sweepwise "
                "Missing\\app.exe|HKEY_CLASSES_ROOT|.sweepwise"_s,
                u"{!Sweepwise}|HKCR\\CLSID\\{!Sweepwise}|0|yes|DLL: C:\\Sweepwise "
                "Missing\\app.exe|HKEY_CLASSES_ROOT|CLSID\\{!Sweepwise}"_s,
                u"Sweepwise|HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts|0|yes|"
                "Font file: C:\\Sweepwise Missing\\app.exe|HKEY_LOCAL_MACHINE|"
                "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts\\Sweepwise"_s,
                u"Sweepwise|HKCU\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run|0|yes|"
                "Command: C:\\Sweepwise Missing\\app.exe|HKCU|"
                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run\\Sweepwise"_s,
                u"sweepwise.dll|HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\SharedDLLs|0|"
                "yes|DLL path: sweepwise.dll|HKEY_LOCAL_MACHINE|"
                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\SharedDLLs\\sweepwise.dll"_s,
                u"Sweepwise.exe|HKCU\\SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\"
                "Windows\\Shell\\MuiCache|0|yes|Sweepwise.exe|HKEY_CURRENT_USER|"
                "SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache\\"
                "Sweepwise.exe"_s}));
    }

    void programPathsAndUninstallEntries()
    {
        const QString present = makeFile(u"present.exe"_s);
        const QString key = machine + appPaths;
        m_fixture->addText(key + "\\Sweepwise missing.exe"_L1, {}, missing);
        m_fixture->addText(key + "\\Sweepwise present.exe"_L1, {}, present);
        m_fixture->addText(key + "\\Sweepwise empty.exe"_L1, u"Path"_s, missing);
        const QString list = machine + uninstall;
        m_fixture->addText(list + "\\Sweepwise gone"_L1, u"InstallLocation"_s, missing);
        m_fixture->addText(list + "\\Sweepwise gone"_L1, u"DisplayName"_s, u"Gone %1 Program"_s);
        m_fixture->addText(list + "\\Sweepwise neither"_L1, u"DisplayName"_s, u"Neither"_s);
        m_fixture->addText(list + "\\Sweepwise product"_L1, u"UninstallString"_s,
                           u"MsiExec.exe /X{0123}"_s);
        m_fixture->addText(list + "\\Sweepwise quoted"_L1, u"UninstallString"_s,
                           u'"' + present + "\" /S"_L1);
        m_fixture->addText(list + "\\Sweepwise unquoted"_L1, u"UninstallString"_s,
                           present + " /S"_L1);
        m_fixture->write();
        scan();

        const auto items = ownItems(m_cleaner->result(), u"invalid_software"_s);
        QCOMPARE(names(items),
                 (QStringList{u"Sweepwise missing.exe"_s, u"Gone %1 Program"_s,
                              u"Sweepwise product"_s, u"Sweepwise unquoted"_s}));
        QCOMPARE(items.at(0).path, "HKLM\\"_L1 + appPaths + "\\Sweepwise missing.exe"_L1);
        QCOMPARE(items.at(0).description, "Path: "_L1 + missing);
        QCOMPARE(items.at(0).registryRoot, u"HKEY_LOCAL_MACHINE"_s);
        QCOMPARE(items.at(0).registryKey, appPaths + "\\Sweepwise missing.exe"_L1);
        QCOMPARE(items.at(0).size, 0);
        QVERIFY(items.at(0).checked);
        QCOMPARE(items.at(1).path, "HKLM\\"_L1 + uninstall + "\\Sweepwise gone"_L1);
        QVERIFY(items.at(1).description.isEmpty());
        QCOMPARE(items.at(1).registryKey, uninstall + "\\Sweepwise gone"_L1);
        const CleanCategory *category = find(m_cleaner->result(), u"invalid_software"_s);
        QCOMPARE(category->name, u"Invalid Software Paths"_s);
        QCOMPARE(category->description, u"Registry entries pointing to non-existent locations"_s);
        QVERIFY(category->icon.isEmpty());
        QVERIFY(category->checked);
    }

    void fileTypes()
    {
        const auto type = [this](const QString &extension, const QString &name,
                                 const QString &command) {
            m_fixture->addText(classes + extension, {}, name);
            m_fixture->addText(classes + name + "\\shell\\open\\command"_L1, {}, command);
        };
        type(u".Sweepwise1"_s, u"SweepwiseGone"_s, u'"' + missing + "\" \"%1\""_L1);
        type(u".Sweepwise2"_s, u"SweepwisePresent"_s,
             u'"' + makeFile(u"viewer app.exe"_s) + "\" \"%1\""_L1);
        type(u".Sweepwise3"_s, u"SweepwiseEmpty"_s, {});
        m_fixture->addKey(classes + ".Sweepwise4"_L1);
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"invalid_file_assoc"_s);
        QCOMPARE(names(items), QStringList{u".Sweepwise1 -> SweepwiseGone"_s});
        QCOMPARE(items.at(0).path, u"HKCR\\.Sweepwise1"_s);
        QCOMPARE(items.at(0).description, "Command: \""_L1 + missing + "\" \"%1\""_L1);
        QCOMPARE(items.at(0).registryRoot, u"HKEY_CLASSES_ROOT"_s);
        QCOMPARE(items.at(0).registryKey, u".Sweepwise1"_s);
    }

    void protectedTypesAreNeverReported()
    {
#ifdef Q_OS_WIN
        QSKIP("the types of the live registry are not to be touched");
#else
        const QStringList extensions =
            u".bat .cmd .com .exe .msi .msc .msp .msu .reg .scr .pif .lnk .url .ini .inf "
            ".dll .sys .drv .cpl .ocx .txt .log .xml .htm .html .rtf .csv .bmp .ico .cur "
            ".ani .jpg .jpeg .png .gif .tif .tiff .wav .mid .midi .mp3 .wma .avi .wmv .mp4 "
            ".zip .cab .7z .rar .hlp .chm .ttf .otf .fon .js .vbs .ps1 .wsf .wsh .blg .dqy "
            ".oqy .rqy .iqy"_s.split(u' ');
        QCOMPARE(extensions.size(), 64);
        m_fixture->addText(classes + "Gone\\shell\\open\\command"_L1, {}, missing);
        QStringList expected;
        for (const QString &extension : extensions) {
            m_fixture->addText(classes
                                   + (extension.size() % 2 == 0 ? extension : extension.toUpper()),
                               {}, u"Gone"_s);
            // Only whole names count.
            for (const QString &other :
                 {extension.chopped(1), extension + u'z', u".z"_s + extension.sliced(1)}) {
                if (extensions.contains(other))
                    continue;
                m_fixture->addText(classes + other, {}, u"Gone"_s);
                expected.append(other + " -> Gone"_L1);
            }
        }
        m_fixture->write();
        scan();
        const CleanCategory *category = find(m_cleaner->result(), u"invalid_file_assoc"_s);
        QVERIFY(category);
        QStringList found = names(category->items);
        found.sort();
        expected.sort();
        expected.removeDuplicates();
        QCOMPARE(found, expected);
#endif
    }

    void typesOfAProtectedClassAreNeverReported()
    {
#ifdef Q_OS_WIN
        QSKIP("the types of the live registry are not to be touched");
#else
        const QStringList protectedClasses =
            u"batfile cmdfile comfile exefile msipackage scrfile piffile lnkfile inifile "
            "inffile regfile dllfile txtfile xmlfile htmlfile rtffile jpegfile pngfile "
            "giffile bmpfile icofile wmafile wmvfile mp3file avifile zipfile cabfile "
            "fonfile ttffile otffile jsfile vbsfile wshfile wsf_auto_file"_s.split(u' ');
        QCOMPARE(protectedClasses.size(), 34);
        QStringList expected;
        int count = 0;
        const auto add = [&](const QString &name, bool isListed) {
            const QString extension = u".sweepwise%1"_s.arg(++count);
            m_fixture->addText(classes + name + "\\shell\\open\\command"_L1, {}, missing);
            m_fixture->addText(classes + extension, {}, name);
            if (isListed)
                expected.append(extension + " -> "_L1 + name);
        };
        for (const QString &name : protectedClasses) {
            add(name, false);
            add(name.toUpper(), false);
            add(name.chopped(1), true);
            add(name + u's', true);
            add("my"_L1 + name, true);
        }
        // A class is looked up in small letters, so this one in mixed case protects nothing.
        for (const QString &name :
             {u"InternetShortcut"_s, u"internetshortcut"_s, u"INTERNETSHORTCUT"_s})
            add(name, true);
        m_fixture->write();
        scan();
        const CleanCategory *category = find(m_cleaner->result(), u"invalid_file_assoc"_s);
        QVERIFY(category);
        QStringList found = names(category->items);
        found.sort();
        expected.sort();
        QCOMPARE(found, expected);
#endif
    }

    void componentsGiveAnItemForEachServer()
    {
        const QString key = classes + "CLSID\\{00000000-0000-0000-0000-Sweepwise0001}"_L1;
        m_fixture->addText(key, {}, u"A Component"_s);
        m_fixture->addText(key + "\\InprocServer32"_L1, {}, missing);
        m_fixture->addText(key + "\\LocalServer32"_L1, {}, u'"' + missing + "\" -Embedding"_L1);
        const QString good = classes + "CLSID\\{00000000-0000-0000-0000-Sweepwise0002}"_L1;
        m_fixture->addText(good + "\\InprocServer32"_L1, {}, makeFile(u"good.dll"_s));
        m_fixture->addText(good + "\\LocalServer32"_L1, {},
                           u'"' + makeFile(u"good.exe"_s) + "\" -Embedding"_L1);
        const QString unquoted = classes + "CLSID\\{00000000-0000-0000-0000-Sweepwise0003}"_L1;
        m_fixture->addText(unquoted + "\\LocalServer32"_L1, {},
                           makeFile(u"good.exe"_s) + " -Embedding"_L1);
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"invalid_com"_s);
        QCOMPARE(names(items),
                 (QStringList{u"A Component"_s, u"A Component"_s,
                              u"{00000000-0000-0000-0000-Sweepwise0003}"_s}));
        QCOMPARE(items.at(0).description, "DLL: "_L1 + missing);
        QCOMPARE(items.at(1).description, "EXE: \""_L1 + missing + "\" -Embedding"_L1);
        QCOMPARE(items.at(1).path, u"HKCR\\CLSID\\{00000000-0000-0000-0000-Sweepwise0001}"_s);
        QCOMPARE(items.at(1).registryKey, u"CLSID\\{00000000-0000-0000-0000-Sweepwise0001}"_s);
        QCOMPARE(items.at(1).registryRoot, u"HKEY_CLASSES_ROOT"_s);
    }

    void onlyTheFirstThousandComponentsAreExamined()
    {
        for (int i = 0; i < 2000; ++i)
            m_fixture->addText(classes + u"CLSID\\{!Sweepwise%1}"_s.arg(i, 4, 10, QChar(u'0'))
                                   + "\\InprocServer32"_L1,
                               {}, missing);
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"invalid_com"_s);
        // The live registry may have a few components that come first.
        const qsizetype before =
            Registry().subkeys(Hive::ClassesRoot, u"CLSID"_s).indexOf(u"{!Sweepwise0000}"_s);
        QVERIFY(before >= 0 && before < 10);
        QCOMPARE(items.size(), 1000 - before);
        QCOMPARE(items.constLast().name, u"{!Sweepwise0%1}"_s.arg(999 - before));
    }

    void fontFiles()
    {
        const QString key = machine + fonts;
        m_fixture->addText(key, u"Sweepwise Bare"_s, u"sweepwise-none.ttf"_s);
        m_fixture->addText(key, u"Sweepwise Gone"_s, u"C:/Sweepwise Missing/f.ttf"_s);
        m_fixture->addText(key, u"Sweepwise Present"_s, makeFile(u"f.ttf"_s));
        m_fixture->addText(key, u"Sweepwise Empty"_s, {});
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"invalid_fonts"_s);
        QCOMPARE(names(items), (QStringList{u"Sweepwise Bare"_s, u"Sweepwise Gone"_s}));
        QVERIFY(items.at(0).description.startsWith("Font file: C:\\"_L1));
        QVERIFY(items.at(0).description.endsWith("\\Fonts\\sweepwise-none.ttf"_L1));
        QCOMPARE(items.at(0).path, "HKLM\\"_L1 + fonts);
        QCOMPARE(items.at(0).registryKey, fonts + "\\Sweepwise Bare"_L1);
    }

    void startupCommands()
    {
        const QString spaced = makeFile(u"app.exe"_s); // below a folder with a blank in its name
        m_fixture->addText(machine + runKey, u"Sweepwise a"_s, missing + " -x"_L1);
        m_fixture->addText(machine + runOnceKey, u"Sweepwise b"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise c"_s, u'"' + missing + "\" -x"_L1);
        m_fixture->addText(user + runOnceKey, u"Sweepwise d"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise e"_s, u'"' + spaced + "\" -x"_L1);
        m_fixture->addText(user + runKey, u"Sweepwise f"_s, spaced + " -x"_L1);
        m_fixture->addText(user + runKey, u"Sweepwise g"_s, {});
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"invalid_startup"_s);
        QCOMPARE(names(items),
                 (QStringList{u"Sweepwise a"_s, u"Sweepwise b"_s, u"Sweepwise c"_s,
                              u"Sweepwise f"_s, u"Sweepwise d"_s}));
        const QStringList keys{"HKLM\\"_L1 + runKey, "HKLM\\"_L1 + runOnceKey, "HKCU\\"_L1 + runKey,
                               "HKCU\\"_L1 + runKey, "HKCU\\"_L1 + runOnceKey};
        for (qsizetype i = 0; i < items.size(); ++i) {
            QCOMPARE(items.at(i).path, keys.at(i));
            QCOMPARE(items.at(i).registryRoot + u'\\' + items.at(i).registryKey,
                     keys.at(i) + u'\\' + items.at(i).name);
        }
        QCOMPARE(items.at(0).description, "Command: "_L1 + missing + " -x"_L1);
    }

    void sharedLibrariesStartUnchecked()
    {
        const QString present = makeFile(u"shared.dll"_s);
        const QString gone = u"C:\\Sweepwise Missing\\shared.dll"_s;
        m_fixture->addBytes(machine + sharedDlls, gone, 4, QByteArray("\1\0\0\0", 4));
        m_fixture->addBytes(machine + sharedDlls, present, 4, QByteArray("\1\0\0\0", 4));
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"invalid_shared_dll"_s);
        QCOMPARE(names(items), QStringList{u"shared.dll"_s});
        QCOMPARE(items.at(0).description, "DLL path: "_L1 + gone);
        QCOMPARE(items.at(0).path, "HKLM\\"_L1 + sharedDlls);
        QCOMPARE(items.at(0).registryKey, sharedDlls + u'\\' + gone);
        QVERIFY(items.at(0).checked);
        QVERIFY(!find(m_cleaner->result(), u"invalid_shared_dll"_s)->checked);
        for (const CleanCategory &category : std::as_const(*m_cleaner).result().categories)
            QCOMPARE(category.checked, category.id != "invalid_shared_dll"_L1);
    }

    void namesOfTheMuiCache()
    {
        const QString present = makeFile(u"known app.exe"_s);
        const QString key = user + muiCache;
        for (const QString &name :
             {missing + ".FriendlyAppName"_L1, missing + ".ApplicationCompany"_L1,
              missing + "2.friendlyappname"_L1, present + ".FriendlyAppName"_L1, present,
              u"Sweepwise.FriendlyAppName"_s})
            m_fixture->addText(key, name, u"x"_s);
        m_fixture->write();
        scan();
        const auto items = ownItems(m_cleaner->result(), u"mui_cache"_s);
        QStringList found = names(items);
        found.sort();
        QCOMPARE(found,
                 (QStringList{u"Sweepwise"_s, u"app.exe"_s, u"app.exe"_s,
                              u"app.exe2.friendlyappname"_s}));
        for (const CleanItem &entry : items) {
            QCOMPARE(entry.registryKey, muiCache + u'\\' + entry.description);
            QCOMPARE(entry.path, "HKCU\\"_L1 + muiCache);
            QCOMPARE(entry.registryRoot, u"HKEY_CURRENT_USER"_s);
        }
    }

    void anEmptyCategoryDoesNotAppear()
    {
#ifdef Q_OS_WIN
        QSKIP("the live registry has entries of its own");
#else
        m_fixture->addText(user + runKey, u"x"_s, missing);
        m_fixture->write();
        const LogCapture log;
        scan();
        const ScanResult &result = std::as_const(*m_cleaner).result();
        QCOMPARE(result.categories.size(), 1);
        QCOMPARE(result.categories.at(0).id, u"invalid_startup"_s);
        QVERIFY(log.contains(u"[INFO] Starting registry scan..."_s));
        QVERIFY(log.contains(u"[INFO] Registry scan finished. Found 1 items"_s));
#endif
    }

    // --- progress and cancel

    void progressTellsTheSevenSteps()
    {
        const SignalSpy progress(m_cleaner.get(), &CleanEngine::scanProgress);
        scan();
        QStringList texts;
        for (qsizetype i = 0; i < progress.size(); ++i) {
            QCOMPARE(progress.at(i).at(0).toInt(), i + 1);
            QCOMPARE(progress.at(i).at(1).toInt(), 7);
            texts.append(progress.at(i).at(2).toString());
        }
        QCOMPARE(texts,
                 (QStringList{u"Scanning invalid software paths..."_s,
                              u"Scanning invalid file associations..."_s,
                              u"Scanning invalid COM components..."_s,
                              u"Scanning invalid font references..."_s,
                              u"Scanning invalid startup items..."_s,
                              u"Scanning invalid shared DLLs..."_s, u"Scanning MUI cache..."_s}));
    }

    // Whoever waits sees that work goes on, also when one key holds very many values.
    void aScanTellsOfItsActivity()
    {
        constexpr int count = 300;
        scan();
        const qint64 before = m_cleaner->activity();
        scan();
        const qint64 other = m_cleaner->activity() - before;
        for (int i = 0; i < count; ++i)
            m_fixture->addText(user + runKey, u"Sweepwise %1"_s.arg(i), missing);
        m_fixture->write();
        const qint64 start = m_cleaner->activity();
        scan();
        QCOMPARE(m_cleaner->activity() - start, other + count);
    }

    void aCancelledScanTellsAllStepsAndKeepsNothingOfTheStoppedOne()
    {
        m_fixture->addText(machine + fonts, u"Sweepwise"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise"_s, missing);
        m_fixture->write();
        const SignalSpy progress(m_cleaner.get(), &CleanEngine::scanProgress);
        const SignalSpy finished(m_cleaner.get(), &CleanEngine::scanFinished);
        connect(
            m_cleaner.get(), &CleanEngine::scanProgress, m_cleaner.get(),
            [this](int step) {
                if (step == 5)
                    m_cleaner->cancel();
            },
            Qt::DirectConnection);
        m_cleaner->startScan();
        QTRY_COMPARE_WITH_TIMEOUT(progress.size(), 7, patience);
        m_cleaner->stopAndWait();
        QCoreApplication::processEvents();
        QCOMPARE(finished.size(), 0);
        QCOMPARE(m_cleaner->state(), State::Cancelled);
        QVERIFY(find(m_cleaner->result(), u"invalid_fonts"_s));
        QVERIFY(!find(m_cleaner->result(), u"invalid_startup"_s));
    }

    // --- cleaning

    void exactlyWhatIsTickedIsRemoved()
    {
        m_fixture->addText(machine + appPaths + "\\Sweepwise a"_L1, {}, missing);
        m_fixture->addText(machine + appPaths + "\\Sweepwise a\\Below"_L1, u"x"_s, u"y"_s);
        m_fixture->addText(machine + appPaths + "\\Sweepwise b"_L1, {}, missing);
        m_fixture->addText(user + runKey, u"Sweepwise a"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise b"_s, missing);
        m_fixture->addText(classes + ".sweepwisea"_L1, {}, u"SweepwiseType"_s);
        m_fixture->addText(classes + "SweepwiseType\\shell\\open\\command"_L1, {}, missing);
        m_fixture->addText(machine + sharedDlls, u"sweepwise.dll"_s, u"1"_s);
        m_fixture->write();
        scan();
        for (CleanCategory &category : m_cleaner->result().categories) {
            for (CleanItem &entry : category.items)
                entry.checked = entry.registryKey.endsWith("sweepwise a"_L1, Qt::CaseInsensitive)
                    || entry.registryKey.endsWith(".sweepwisea"_L1, Qt::CaseInsensitive)
                    || category.id == "invalid_shared_dll"_L1;
        }
        const SignalSpy progress(m_cleaner.get(), &CleanEngine::cleanProgress);
        const LogCapture log;
        const SignalSpy &finished = clean();
        QCOMPARE(finished.constFirst().at(0).toLongLong(), 0);
        QCOMPARE(finished.constFirst().at(1).toInt(), 3);
        QCOMPARE(m_cleaner->state(), State::Finished);
        QVERIFY(m_cleaner->failures().isEmpty());
        QCOMPARE(progress.size(), 3);
        QCOMPARE(progress.at(2).at(0).toInt(), 3);
        QCOMPARE(progress.at(2).at(1).toInt(), 3);
        QVERIFY(log.contains(u"[INFO] Starting registry clean..."_s));
        QVERIFY(log.contains(u"Registry backup skipped (no backup path specified)"_s));
        QVERIFY(log.contains(u"[INFO] Registry clean finished. Cleaned 3 items"_s));

        QVERIFY(!m_fixture->hasKey(machine + appPaths + "\\Sweepwise a"_L1));
        QVERIFY(m_fixture->hasKey(machine + appPaths + "\\Sweepwise b"_L1));
        QVERIFY(!m_fixture->hasValue(user + runKey, u"Sweepwise a"_s));
        QVERIFY(m_fixture->hasValue(user + runKey, u"Sweepwise b"_s));
        QVERIFY(!m_fixture->hasKey(classes + ".sweepwisea"_L1));
        QVERIFY(m_fixture->hasKey(classes + "SweepwiseType"_L1));
        QVERIFY(m_fixture->hasValue(machine + sharedDlls, u"sweepwise.dll"_s));
    }

    void aValueNameWithABackslashIsNeitherRemovedNorCountedNorLogged()
    {
        m_fixture->addText(machine + sharedDlls, missing, u"1"_s);
        m_fixture->addText(machine + sharedDlls + "\\Sweepwise Sub\\Key"_L1, u"v"_s, u"1"_s);
        m_fixture->write();
        // The name of the second value leads to a key that no scan has listed.
        choose({item(u"HKEY_LOCAL_MACHINE"_s, sharedDlls + u'\\' + missing),
                item(u"HKEY_LOCAL_MACHINE"_s, sharedDlls + "\\Sweepwise Sub\\Key"_L1),
                item(u"HKEY_LOCAL_MACHINE"_s, sharedDlls + "\\Sweepwise Sub\\Key\\v"_L1)});
        const LogCapture log;
        const SignalSpy &finished = clean();
        QCOMPARE(finished.constFirst().at(1).toInt(), 0);
        QVERIFY(!log.contains(u"Failed"_s));
        QCOMPARE(m_cleaner->failures().size(), 3);
        for (const CleanFailure &failure : m_cleaner->failures())
            QCOMPARE(failure.reason, u"Its name cannot be told from a path"_s);
        QVERIFY(m_fixture->hasKey(machine + sharedDlls));
        QVERIFY(m_fixture->hasValue(machine + sharedDlls + "\\Sweepwise Sub\\Key"_L1, u"v"_s));
    }

    void aKeyThatHoldsEntriesIsNeverRemoved()
    {
        m_fixture->addText(user + runOnceKey, u"Sweepwise"_s, u"x"_s);
        m_fixture->addText(user + runOnceKey + "\\Sweepwise Gone"_L1, u"v"_s, u"x"_s);
        m_fixture->write();
        // A default value and a value that have vanished since the scan.
        choose({item(u"HKCU"_s, runOnceKey + u'\\'),
                item(u"HKCU"_s, runOnceKey + "\\Sweepwise Gone"_L1), item(u"HKCU"_s, u"\\"_s),
                item(u"HKCU"_s, {}), item(u"HKCU"_s, u"Software\\"_s)});
        const LogCapture log;
        const SignalSpy &finished = clean();
        QCOMPARE(finished.constFirst().at(1).toInt(), 0);
        QVERIFY(log.contains(u"[ERROR] Failed to delete registry key: HKCU\\"_s));
        QCOMPARE(m_cleaner->failures().size(), 5);
        QVERIFY(m_fixture->hasValue(user + runOnceKey, u"Sweepwise"_s));
        QVERIFY(m_fixture->hasKey(user + runOnceKey + "\\Sweepwise Gone"_L1));
    }

    void aKeyThatVanishedIsAFailure()
    {
        choose({item(u"HKEY_CLASSES_ROOT"_s, u".sweepwise gone"_s),
                item(u"HKEY_LOCAL_MACHINE"_s, appPaths + "\\Sweepwise gone"_L1)});
        const LogCapture log;
        const SignalSpy &finished = clean();
        QCOMPARE(finished.constFirst().at(1).toInt(), 0);
        QVERIFY(log.contains(
            u"[ERROR] Failed to delete registry key: HKEY_CLASSES_ROOT\\.sweepwise gone"_s));
        QCOMPARE(log.count(u"[ERROR]"_s), 1);
        QCOMPARE(m_cleaner->failures().size(), 2);
    }

    void aValueComesBeforeAKeyOfTheSameName()
    {
        const QString key = u"Software\\Sweepwise Test"_s;
        m_fixture->addText(user + key, u"Same"_s, u"x"_s);
        m_fixture->addText(user + key + "\\Same"_L1, u"v"_s, u"x"_s);
        m_fixture->write();
        choose({item(u"HKEY_CURRENT_USER"_s, key + "\\Same"_L1)});
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QVERIFY(!m_fixture->hasValue(user + key, u"Same"_s));
        QVERIFY(m_fixture->hasKey(user + key + "\\Same"_L1));
        choose({item(u"HKEY_CURRENT_USER"_s, key + "\\Same"_L1)});
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QVERIFY(!m_fixture->hasKey(user + key + "\\Same"_L1));
    }

    // The scan lists the key. It has not looked at a value of the same name beside the key.
    void aListedKeyIsNotTakenForAValueOfItsName()
    {
        const QString good = makeFile(u"good.exe"_s);
        m_fixture->addText(machine + appPaths, u"Sweepwise a"_s, good);
        m_fixture->addText(machine + appPaths + "\\Sweepwise a"_L1, {}, missing);
        m_fixture->addText(user + runKey, u"Sweepwise b"_s, missing);
        m_fixture->addText(user + runKey + "\\Sweepwise b"_L1, u"v"_s, good);
        m_fixture->write();
        scan();
        keepOwnOnly();
        m_cleaner->setBackupPath(m_home.folder(u"backup"_s) + "/key.reg"_L1);
        QCOMPARE(clean().constFirst().at(1).toInt(), 2);
        QVERIFY(!m_fixture->hasKey(machine + appPaths + "\\Sweepwise a"_L1));
        QVERIFY(m_fixture->hasValue(machine + appPaths, u"Sweepwise a"_s));
        QVERIFY(!m_fixture->hasValue(user + runKey, u"Sweepwise b"_s));
        QVERIFY(m_fixture->hasValue(user + runKey + "\\Sweepwise b"_L1, u"v"_s));
        restore(m_cleaner->backupPath());
        QVERIFY(m_fixture->hasKey(machine + appPaths + "\\Sweepwise a"_L1));
        QVERIFY(m_fixture->hasValue(user + runKey, u"Sweepwise b"_s));
    }

    void aCleanThatIsCancelledBeforeItsBackupKeepsAnEarlierOne_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("hasEarlierOne");
        for (const bool hasEarlierOne : {true, false}) {
            const auto row = [hasEarlierOne](const char *when) -> QTestData & {
                return QTest::addRow("%s, %s", when, hasEarlierOne ? "over another" : "new");
            };
            row("at once") << u"Starting registry clean..."_s << hasEarlierOne;
            row("while it is made") << u"Creating registry backup to: "_s << hasEarlierOne;
        }
    }
    void aCleanThatIsCancelledBeforeItsBackupKeepsAnEarlierOne()
    {
        QFETCH(QString, line);
        QFETCH(bool, hasEarlierOne);
        m_fixture->addText(user + runKey, u"Sweepwise"_s, missing);
        m_fixture->write();
        const QString path = m_home.folder(u"backup"_s) + "/cancelled.reg"_L1;
        QFile backup(path);
        QVERIFY(!backup.exists() || backup.remove());
        if (hasEarlierOne) {
            QVERIFY(backup.open(QIODevice::WriteOnly));
            backup.write("earlier");
            backup.close();
        }
        m_cleaner->setBackupPath(path);
        scan();
        keepOwnOnly();
        QCOMPARE(m_cleaner->result().checkedCount(), 1);
        cancelAtLine(line);
        const SignalSpy &finished = clean();
        cancelAtLine({});
        QCOMPARE(finished.constFirst().at(1).toInt(), 0);
        QCOMPARE(m_cleaner->state(), State::Cancelled);
        QVERIFY(!m_cleaner->backupError());
        QVERIFY(m_fixture->hasValue(user + runKey, u"Sweepwise"_s));
        QCOMPARE(backup.exists(), hasEarlierOne);
        QVERIFY(!hasEarlierOne || backup.open(QIODevice::ReadOnly));
        QVERIFY(!hasEarlierOne || backup.readAll() == "earlier");
    }

    void anEntryThatWasRepairedSinceTheScanStays()
    {
        const QString good = makeFile(u"good.exe"_s);
        const QString laterFile = makeFile(u"to come"_s);
        QVERIFY(QFile::remove(platform::localPath(laterFile)));
        m_fixture->addText(user + runKey, u"Sweepwise repaired"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise broken"_s, missing);
        m_fixture->addText(machine + uninstall + "\\Sweepwise"_L1, u"InstallLocation"_s, laterFile);
        m_fixture->write();
        scan();
        keepOwnOnly();
        QCOMPARE(m_cleaner->result().checkedCount(), 3);
        m_fixture->addText(user + runKey, u"Sweepwise repaired"_s, u'"' + good + u'"');
        m_fixture->write();
        makeFile(u"to come"_s);
        const QString path = m_home.folder(u"backup"_s) + "/changed.reg"_L1;
        m_cleaner->setBackupPath(path);
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QCOMPARE(m_cleaner->failures().size(), 2);
        for (const CleanFailure &failure : m_cleaner->failures())
            QCOMPARE(failure.reason, u"It has changed since the scan"_s);
        QVERIFY(!m_fixture->hasValue(user + runKey, u"Sweepwise broken"_s));
        QVERIFY(m_fixture->hasValue(user + runKey, u"Sweepwise repaired"_s));
        QVERIFY(m_fixture->hasKey(machine + uninstall + "\\Sweepwise"_L1));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString backup = RegistryBackup::decode(file.readAll()).value_or(QString());
        QVERIFY(backup.contains("Sweepwise broken"_L1));
        QVERIFY(!backup.contains("Sweepwise repaired"_L1));
        QVERIFY(!backup.contains("Uninstall\\Sweepwise"_L1));
    }

    // The registry takes them for two names, even if a comparison of texts does not.
    void namesThatOnlyLookAlikeAreBothRemoved()
    {
        m_fixture->addText(user + runKey, u"Sweepwise K"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise \u212a"_s, missing); // the Kelvin sign
        m_fixture->write();
        scan();
        keepOwnOnly();
        QCOMPARE(clean().constFirst().at(1).toInt(), 2);
        QVERIFY(m_cleaner->failures().isEmpty());
        QVERIFY(!m_fixture->hasValue(user + runKey, u"Sweepwise \u212a"_s));
    }

    void aCancelledCleanReportsWhatWasRemoved()
    {
        const QString key = u"Software\\Sweepwise Test"_s;
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            m_fixture->addText(user + key, name, u"x"_s);
        m_fixture->write();
        choose({item(u"HKCU"_s, key + "\\a"_L1), item(u"HKCU"_s, key + "\\b"_L1),
                item(u"HKCU"_s, key + "\\c"_L1)});
        connect(
            m_cleaner.get(), &CleanEngine::cleanProgress, m_cleaner.get(),
            [this](int index) {
                if (index == 2)
                    m_cleaner->cancel();
            },
            Qt::DirectConnection);
        const SignalSpy &finished = clean();
        QCOMPARE(finished.constFirst().at(0).toLongLong(), 0);
        QCOMPARE(finished.constFirst().at(1).toInt(), 2);
        QCOMPARE(m_cleaner->state(), State::Cancelled);
        QVERIFY(!m_fixture->hasValue(user + key, u"b"_s));
        QVERIFY(m_fixture->hasValue(user + key, u"c"_s));
    }

    void theLogTellsOfTheEndAfterTheSignal()
    {
        const QString key = u"Software\\Sweepwise Test"_s;
        m_fixture->addText(user + key, u"a"_s, u"x"_s);
        m_fixture->write();
        choose({item(u"HKCU"_s, key + "\\a"_L1)});
        const SignalSpy progress(m_cleaner.get(), &CleanEngine::cleanProgress);
        connect(
            m_cleaner.get(), &CleanEngine::cleanFinished, m_cleaner.get(),
            [this] { qDebug() << "told of state" << int(m_cleaner->state()); },
            Qt::DirectConnection);
        const LogCapture log;
        clean();
        QCOMPARE(progress.size(), 1);
        QCOMPARE(progress.constFirst(), (QList<QVariant>{1, 1, qint64(0)}));
        const QStringList lines = log.lines();
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(0).contains("Starting registry clean..."_L1));
        QVERIFY(lines.at(1).contains("Registry backup skipped"_L1));
        QCOMPARE(lines.at(2), u"told of state %1"_s.arg(int(State::Finished)));
        QVERIFY(lines.at(3).contains("Registry clean finished. Cleaned 1 items"_L1));
    }

    // --- the backup

    void theBackupIsOnTheDiskBeforeAnythingIsRemoved()
    {
        const QString key = u"Software\\Sweepwise Test"_s;
        m_fixture->addText(user + key, u"a"_s, u"x"_s);
        m_fixture->write();
        choose({item(u"HKCU"_s, key + "\\a"_L1)});
        const QString path = m_home.folder(u"backup"_s) + "/one.reg"_L1;
        m_cleaner->setBackupPath(path);
        bool wasThere = false;
        connect(
            m_cleaner.get(), &CleanEngine::cleanProgress, m_cleaner.get(),
            [&] { wasThere = QFile::exists(path); }, Qt::DirectConnection);
        const LogCapture log;
        clean();
        QVERIFY(wasThere);
        QVERIFY(!m_cleaner->backupError());
        QVERIFY(log.contains("Creating registry backup to: "_L1 + path));
        QVERIFY(log.contains("Registry backup created: "_L1 + path));
        QVERIFY(log.contains(u"Registry backup created successfully"_s));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(RegistryBackup::decode(file.readAll())->contains("\"a\"=\"x\"\r\n"_L1));
        // The path stays for the next clean.
        QCOMPARE(m_cleaner->backupPath(), path);
    }

    // A backup replaces nothing but a plain file.
    void nothingButAFileIsReplacedByTheBackup_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("nothing there") << u"missing"_s << true;
        QTest::newRow("a file") << u"file"_s << true;
        QTest::newRow("a folder") << u"folder"_s << false;
        QTest::newRow("the registry of some prefix") << u"another prefix's"_s << false;
        QTest::newRow("a hive") << u"hive"_s << false;
#ifndef Q_OS_WIN
        QTest::newRow("a link to a file") << u"link"_s << false;
        QTest::newRow("a link that leads nowhere") << u"broken link"_s << false;
        QTest::newRow("a pipe") << u"pipe"_s << false;
        QTest::newRow("the user's registry") << u"user.reg"_s << false;
        QTest::newRow("the machine's registry") << u"system.reg"_s << false;
        QTest::newRow("another name of the registry") << u"hard link"_s << false;
        QTest::newRow("a registry file that is not there yet") << u"userdef.reg"_s << false;
        QTest::newRow("below a folder that is a link") << u"link to folder"_s << true;
#endif
    }
    void nothingButAFileIsReplacedByTheBackup()
    {
        QFETCH(QString, what);
        QFETCH(bool, isWritten);
        const QString key = u"Software\\Sweepwise Test"_s;
        m_fixture->addText(user + key, u"a"_s, u"x"_s);
        m_fixture->write();
        const TestTree tree;
        const QString victim = tree.file(u"victim"_s, "precious");
        QString path = tree.path(u"one.reg"_s);
        const QString prefix = m_home.folder(u"prefix"_s);
        if (what == "file"_L1)
            tree.file(u"one.reg"_s, "old");
        else if (what == "folder"_L1)
            tree.file(u"one.reg/inside"_s);
        else if (what == "another prefix's"_L1)
            tree.file(u"one.reg"_s, "WINE REGISTRY Version 2\n;; All keys\n");
        else if (what == "hive"_L1)
            tree.file(u"one.reg"_s, QByteArray("regf\0\0\0\1", 8));
#ifndef Q_OS_WIN
        else if (what == "link"_L1)
            tree.link(victim, u"one.reg"_s);
        else if (what == "broken link"_L1)
            tree.link(tree.path(u"nowhere"_s), u"one.reg"_s);
        else if (what == "pipe"_L1)
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else if (what == "hard link"_L1)
            QCOMPARE(::link(QFile::encodeName(prefix + "/user.reg"_L1).constData(),
                            QFile::encodeName(path).constData()),
                     0);
        else if (what == "link to folder"_L1) {
            tree.folder(u"real"_s);
            path = tree.link(tree.path(u"real"_s), u"linked"_s) + "/one.reg"_L1;
        } else if (what.endsWith(".reg"_L1)) {
            path = prefix + u'/' + what;
        }
#endif
        QByteArray hiveBefore;
        QFile hive(m_fixture->file(u"HKEY_LOCAL_MACHINE"_s));
        if (hive.open(QIODevice::ReadOnly))
            hiveBefore = hive.readAll();
        hive.close();
        const auto before = tree.snapshot();
        choose({item(u"HKCU"_s, key + "\\a"_L1)});
        m_cleaner->setBackupPath(path);
        const LogCapture log;
        QCOMPARE(clean().constFirst().at(1).toInt(), 1); // even without a backup
        QCOMPARE(m_cleaner->backupError().has_value(), !isWritten);
        QCOMPARE(log.contains(u"[ERROR] Failed to create registry backup"_s), !isWritten);
        QVERIFY(!m_fixture->hasValue(user + key, u"a"_s));
        QFile kept(victim);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("precious"));
        if (hive.open(QIODevice::ReadOnly))
            QCOMPARE(hive.readAll(), hiveBefore);
        if (!isWritten)
            QCOMPARE(tree.snapshot(), before);
        else
            QVERIFY(QFileInfo(path).size() > 100);
    }

    // After a second clean the user still has the backup of the first one.
    void aCleanOfNothingLeavesTheLastBackupAlone()
    {
        m_fixture->addText(user + runKey, u"Sweepwise"_s, missing);
        m_fixture->write();
        const QString path = m_home.folder(u"backup"_s) + "/twice.reg"_L1;
        m_cleaner->setBackupPath(path);
        scan();
        keepOwnOnly();
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray first = file.readAll();
        file.close();
        QVERIFY(first.size() > 500);
        scan();
        keepOwnOnly();
        const LogCapture log;
        QCOMPARE(clean().constFirst().at(1).toInt(), 0);
        QVERIFY(log.contains(u"Registry backup skipped (nothing to remove)"_s));
        QVERIFY(!m_cleaner->backupError());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), first);
    }

    void aFailedBackupIsLoggedAndDoesNotStopTheClean()
    {
        const QString key = u"Software\\Sweepwise Test"_s;
        m_fixture->addText(user + key, u"a"_s, u"x"_s);
        m_fixture->addText(user + key, u"b"_s, u"x"_s);
        m_fixture->write();
        choose({item(u"HKCU"_s, key + "\\a"_L1)});
        m_cleaner->setBackupPath(m_home.path() + "/no such folder/one.reg"_L1);
        const LogCapture log;
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QVERIFY(log.contains(u"[ERROR] Failed to create registry backup"_s));
        QVERIFY(!log.contains(u"Registry backup created"_s));
        QVERIFY(m_cleaner->backupError() && !m_cleaner->backupError()->isEmpty());
        QVERIFY(m_fixture->hasValue(user + key, u"b"_s));
    }

    void deletingAndRestoringBringsEveryValueBack()
    {
        const QString key = appPaths + "\\Sweepwise all kinds"_L1;
        const auto text = [](const QString &string) {
            return QByteArray(reinterpret_cast<const char *>(string.utf16()), string.size() * 2);
        };
        m_fixture->addText(machine + key, {}, missing);
        m_fixture->addText(machine + key, u"na\\me \"quoted\" \u4e2d"_s, u"te\\xt \"q\" \u4e2d"_s);
        m_fixture->addBytes(machine + key, u"broken text"_s, 1, text(u"a\r\nb\n\0"_s));
        m_fixture->addBytes(machine + key, u"empty text"_s, 1, text(u"\0"_s));
        m_fixture->addBytes(machine + key, u"number"_s, 4, QByteArray("\x0a\0\0\0", 4));
        for (const quint32 type : {0U, 2U, 3U, 5U, 7U, 8U, 9U, 10U, 11U, 12U, 0xbeefU}) {
            for (const int size : {0, 1, 24, 25, 65'536}) {
                // The live registry ends texts in a NUL, and its own command cannot import half a
                // character.
                const bool isText = type == 2 || type == 7;
                if (isText && size % 2 != 0)
                    continue;
                m_fixture->addBytes(machine + key,
                                    u"t%1 %2"_s.arg(QString::number(type), QString::number(size)),
                                    type, QByteArray(isText && size > 2 ? size - 2 : size, 'z'));
            }
        }
        m_fixture->addBytes(machine + fonts, u"Sweepwise value"_s, 2, text(u"C:\\none.ttf\0"_s));
        m_fixture->write();
        const QStringList before = m_fixture->exported(machine + key);
        QVERIFY(before.size() > 50);

        scan();
        for (CleanCategory &category : m_cleaner->result().categories) {
            for (CleanItem &entry : category.items)
                entry.checked = entry.registryKey.contains("Sweepwise"_L1);
        }
        const QString path = m_home.folder(u"backup"_s) + "/all.reg"_L1;
        m_cleaner->setBackupPath(path);
        QCOMPARE(clean().constFirst().at(1).toInt(), 2);
        QVERIFY(!m_fixture->hasKey(machine + key));
        QVERIFY(!m_fixture->hasValue(machine + fonts, u"Sweepwise value"_s));

        restore(path);
        QStringList after = m_fixture->exported(machine + key);
        QStringList wanted = before;
        wanted.sort();
        after.sort();
        QCOMPARE(after, wanted);
        QVERIFY(m_fixture->hasValue(machine + fonts, u"Sweepwise value"_s));
    }

    void theRegistryEditorsOwnImportTakesTheBackup()
    {
#ifndef Q_OS_WIN
        QSKIP("there is no registry command here");
#else
        const QString key = appPaths + "\\Sweepwise editor"_L1;
        m_fixture->addText(machine + key, {}, missing);
        m_fixture->addText(machine + key, u"na\\me \"q\" 中"_s, u"te\\xt \"q\" 中"_s);
        for (const quint32 type : {0U, 2U, 3U, 7U, 11U})
            m_fixture->addBytes(machine + key, u"t%1"_s.arg(type), type, QByteArray(60, 'z'));
        m_fixture->write();
        QStringList before = m_fixture->exported(machine + key);
        choose({item(u"HKEY_LOCAL_MACHINE"_s, key)});
        const QString path = m_home.folder(u"backup"_s) + "/editor.reg"_L1;
        m_cleaner->setBackupPath(path);
        clean();
        QVERIFY(!m_fixture->hasKey(machine + key));
        QProcess reg;
        reg.start(u"reg"_s, {u"import"_s, QDir::toNativeSeparators(path)});
        QVERIFY(reg.waitForFinished(patience));
        QCOMPARE(reg.exitCode(), 0);
        QStringList after = m_fixture->exported(machine + key);
        before.sort();
        after.sort();
        QCOMPARE(after, before);
#endif
    }

    void onlyTheDeclaredDifferencesRemain()
    {
        const QString key = appPaths + "\\Sweepwise differences"_L1;
        m_fixture->addText(machine + key, {}, missing);
        m_fixture->addBytes(machine + key, u"too long"_s, 3, QByteArray(65'537, 'z'));
        m_fixture->write();
        Registry registry;
        const QByteArray unterminated("a\0b\0c\0", 6);
        QVERIFY(registry.setValue(Hive::LocalMachine, key, {u"open"_s, 1, unterminated}));
        QVERIFY(registry.save());
        const QByteArray stored = registry.value(Hive::LocalMachine, key, u"open"_s)->data;
        choose({item(u"HKEY_LOCAL_MACHINE"_s, key)});
        const QString path = m_home.folder(u"backup"_s) + "/differences.reg"_L1;
        m_cleaner->setBackupPath(path);
        clean();
        restore(path);
        // The last character is taken for the terminator. Values that are too long are left out of
        // the export of a key.
        const QByteArray kept = stored.size() == 6 ? stored.first(4) : stored.first(6);
        QCOMPARE(Registry().value(Hive::LocalMachine, key, u"open"_s)->data,
                 kept + QByteArray(2, '\0'));
        QVERIFY(!m_fixture->hasValue(machine + key, u"too long"_s));
        QVERIFY(m_fixture->hasValue(machine + key, {}));
    }

    // The same class is in both hives. Only the listed one is removed, even if it is listed twice.
    // It is restored into its own hive.
    void aClassInBothHivesIsRemovedFromAndRestoredToTheListedOne_data()
    {
        QTest::addColumn<QString>("brokenHive");
        QTest::addColumn<bool>("isListedTwice");
        QTest::newRow("the user's, listed once") << user << false;
        QTest::newRow("the user's, listed twice") << user << true;
        QTest::newRow("the machine's, listed once") << machine << false;
    }
    void aClassInBothHivesIsRemovedFromAndRestoredToTheListedOne()
    {
        QFETCH(QString, brokenHive);
        QFETCH(bool, isListedTwice);
        const QString key = u"Software\\Classes\\CLSID\\{!Sweepwise both}"_s;
        const QString good = makeFile(u"both.dll"_s);
        const bool isUsers = brokenHive == user;
        const QString goodHive = isUsers ? machine : user;
        // The user's class hides the machine's, value by value. The machine's server shows where
        // the user has none.
        const QString server = isUsers ? u"\\InprocServer32"_s : u"\\LocalServer32"_s;
        m_fixture->addText(brokenHive + key, {}, u"Broken"_s);
        m_fixture->addText(brokenHive + key, u"Only here"_s, u"x"_s);
        m_fixture->addText(brokenHive + key + server, {}, missing);
        if (isListedTwice)
            m_fixture->addText(brokenHive + key + "\\LocalServer32"_L1, {}, missing);
        m_fixture->addText(goodHive + key, {}, u"Good"_s);
        m_fixture->addText(goodHive + key, u"Only there"_s, u"y"_s);
        m_fixture->addText(goodHive + key + "\\InprocServer32"_L1, {}, good);
        m_fixture->write();
        const QStringList goodBefore = m_fixture->exported(goodHive + key);
        const Registry before;
        const QString shown = u"CLSID\\{!Sweepwise both}"_s;

        scan();
        const QList<CleanItem> items = ownItems(m_cleaner->result(), u"invalid_com"_s);
        QCOMPARE(items.size(), isListedTwice ? 2 : 1);
        for (const CleanItem &entry : items) {
            QCOMPARE(entry.registryRoot, u"HKEY_CLASSES_ROOT"_s);
            QCOMPARE(entry.registryKey, shown);
            QCOMPARE(entry.path, "HKCR\\"_L1 + shown);
            QCOMPARE(entry.isUserClass, isUsers);
        }
        const QString path = m_home.folder(u"backup"_s) + "/both.reg"_L1;
        QFile::remove(path);
        choose(items, u"invalid_com"_s);
        m_cleaner->setBackupPath(path);
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QVERIFY(m_cleaner->failures().isEmpty());
        QVERIFY(!m_fixture->hasKey(brokenHive + key));
        QCOMPARE(m_fixture->exported(goodHive + key), goodBefore);

        restore(path);
        QCOMPARE(m_fixture->exported(goodHive + key), goodBefore);
        QVERIFY(m_fixture->hasValue(brokenHive + key, u"Only here"_s));
        QVERIFY(!m_fixture->hasValue(brokenHive + key, u"Only there"_s));
        const Registry after;
        for (const QString &name : {QString(), u"Only here"_s, u"Only there"_s})
            QCOMPARE(after.text(Hive::ClassesRoot, shown, name),
                     before.text(Hive::ClassesRoot, shown, name));
    }

    void aFileTypeIsRemovedFromTheListedHiveOnly()
    {
        const QString type = u"Software\\Classes\\.sweepwiseboth"_s;
        m_fixture->addText(user + type, {}, u"SweepwiseBroken"_s);
        m_fixture->addText(machine + type, {}, u"SweepwiseGood"_s);
        m_fixture->addText(machine + type, u"Content Type"_s, u"x/y"_s);
        m_fixture->addText(classes + "SweepwiseBroken\\shell\\open\\command"_L1, {}, missing);
        m_fixture->addText(classes + "SweepwiseGood\\shell\\open\\command"_L1, {},
                           makeFile(u"good.exe"_s));
        // The user's key of this extension has no default value.
        const QString other = u"Software\\Classes\\.sweepwiseother"_s;
        m_fixture->addText(user + other, u"mine"_s, u"x"_s);
        m_fixture->addText(machine + other, {}, u"SweepwiseBroken"_s);
        m_fixture->write();
        scan();
        const QList<CleanItem> items = ownItems(m_cleaner->result(), u"invalid_file_assoc"_s);
        QStringList found = names(items);
        found.sort();
        QCOMPARE(found,
                 (QStringList{u".sweepwiseboth -> SweepwiseBroken"_s,
                              u".sweepwiseother -> SweepwiseBroken"_s}));
        choose(items, u"invalid_file_assoc"_s);
        QCOMPARE(clean().constFirst().at(1).toInt(), 2);
        QVERIFY(!m_fixture->hasKey(user + type));
        QVERIFY(m_fixture->hasValue(machine + type, u"Content Type"_s));
        QVERIFY(m_fixture->hasValue(user + other, u"mine"_s));
        QVERIFY(!m_fixture->hasKey(machine + other));
    }

    void theKeyOfAllClassesIsNeverRemoved()
    {
        m_fixture->addText(classes + ".sweepwise"_L1, {}, u"x"_s);
        m_fixture->write();
        QList<CleanItem> items{item(u"HKEY_CLASSES_ROOT"_s, {}),
                               item(u"HKEY_CLASSES_ROOT"_s, u"\\"_s), item(u"HKCR"_s, {}),
                               item(u"HKCR"_s, u".sweepwise\\"_s)};
        for (qsizetype i = items.size(); i > 0; --i) {
            items.append(items.at(i - 1));
            items.last().isUserClass = true;
        }
        choose(items);
        QCOMPARE(clean().constFirst().at(1).toInt(), 0);
        QCOMPARE(m_cleaner->failures().size(), 8);
        QVERIFY(m_fixture->hasValue(classes + ".sweepwise"_L1, {}));
    }

    void aComponentThatIsListedTwiceIsNoFailure()
    {
        const QString key = u"CLSID\\{!Sweepwise twice}"_s;
        m_fixture->addText(classes + key, {}, u"Twice"_s);
        m_fixture->write();
        choose({item(u"HKEY_CLASSES_ROOT"_s, key), item(u"HKEY_CLASSES_ROOT"_s, key)});
        QCOMPARE(clean().constFirst().at(1).toInt(), 1);
        QVERIFY(m_cleaner->failures().isEmpty());
    }

    void aFullDiskFailsTheBackupAndOnlyThat()
    {
#ifdef Q_OS_LINUX
        const QString folder = m_home.folder(u"small disk"_s);
        if (::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=16k") != 0)
            QSKIP("making a small disk takes the administrator's rights");
        const QString key = u"Software\\Sweepwise Test"_s;
        m_fixture->addBytes(user + key, u"a"_s, 3, QByteArray(30'000, 'x'));
        m_fixture->addText(user + key, u"b"_s, u"x"_s);
        m_fixture->write();
        choose({item(u"HKCU"_s, key + "\\a"_L1)});
        m_cleaner->setBackupPath(folder + "/b.reg"_L1);
        const LogCapture log;
        const int count = clean().constFirst().at(1).toInt();
        const QStringList entries = QDir(folder).entryList(QDir::Files);
        ::umount(QFile::encodeName(folder).constData());
        QCOMPARE(count, 1);
        QCOMPARE(entries, QStringList());
        QVERIFY(log.contains(u"[ERROR] Failed to create registry backup"_s));
        QVERIFY2(log.contains(u"No space left on device"_s), qPrintable(log.lines().join(u'\n')));
        QVERIFY(m_fixture->hasValue(user + key, u"b"_s));
#else
        QSKIP("a small disk cannot be made here");
#endif
    }

    void subkeysAreRemovedAndNotRestored()
    {
        const QString key = appPaths + "\\Sweepwise with keys"_L1;
        m_fixture->addText(machine + key, {}, missing);
        m_fixture->addText(machine + key + "\\Below"_L1, u"a"_s, u"b"_s);
        m_fixture->write();
        choose({item(u"HKEY_LOCAL_MACHINE"_s, key)});
        const QString path = m_home.folder(u"backup"_s) + "/below.reg"_L1;
        m_cleaner->setBackupPath(path);
        clean();
        restore(path);
        QVERIFY(m_fixture->hasValue(machine + key, {}));
        QVERIFY(!m_fixture->hasKey(machine + key + "\\Below"_L1));
    }

#ifndef Q_OS_WIN
    // The machine's file is written, then writing the user's file fails.
    void onlyTheHiveThatWasWrittenIsReported()
    {
        m_fixture->addText(machine + runKey, u"Sweepwise a"_s, missing);
        m_fixture->addText(machine + runKey, u"Sweepwise b"_s, missing);
        m_fixture->addText(user + runKey, u"Sweepwise c"_s, missing);
        m_fixture->write();
        scan();
        const QString path = m_home.folder(u"backup"_s) + "/two.reg"_L1;
        QFile::remove(path);
        m_cleaner->setBackupPath(path);
        const LogCapture log;
        renamesOfUserHiveFail = true;
        const int count = clean().constFirst().at(1).toInt();
        renamesOfUserHiveFail = false;
        QCOMPARE(count, 2);
        QCOMPARE(m_cleaner->failures().size(), 1);
        QVERIFY(m_cleaner->failures().at(0).path.endsWith("Sweepwise c"_L1));
        QVERIFY(log.contains(u"[ERROR] Failed to save the registry: "_s));
        QVERIFY(log.contains(u"[INFO] Registry clean finished. Cleaned 2 items"_s));
        QVERIFY(!m_fixture->hasValue(machine + runKey, u"Sweepwise a"_s));
        QVERIFY(!m_fixture->hasValue(machine + runKey, u"Sweepwise b"_s));
        QVERIFY(m_fixture->hasValue(user + runKey, u"Sweepwise c"_s));

        // The same holds for a restore.
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString error;
        const auto keys = RegistryRestore::parse(
            RegistryBackup::decode(file.readAll()).value_or(QString()), error);
        QVERIFY2(keys, qPrintable(error));
        Registry registry;
        // A change in the user's hive, so that its file must be written.
        QVERIFY(registry.deleteValue(Hive::CurrentUser, runKey, u"Sweepwise c"_s));
        QVERIFY(registry.save());
        renamesOfUserHiveFail = true;
        const auto outcomes = RegistryRestore::restore(registry, *keys, notStopped);
        renamesOfUserHiveFail = false;
        QCOMPARE(outcomes.size(), 6);
        for (const RegistryRestore::Outcome &outcome : outcomes)
            QCOMPARE(outcome.isRestored, outcome.entry.startsWith("HKEY_LOCAL_MACHINE"_L1));
        QVERIFY(m_fixture->hasValue(machine + runKey, u"Sweepwise a"_s));
        QVERIFY(!m_fixture->hasValue(user + runKey, u"Sweepwise c"_s));
    }

    void aPrefixInUseIsNotCleanedAndSaysSo()
    {
        m_fixture->addText(user + runKey, u"Sweepwise"_s, missing);
        m_fixture->write();
        struct stat data {
        };
        QCOMPARE(::stat(QFile::encodeName(m_home.folder(u"prefix"_s)).constData(), &data), 0);
        QProcess server;
        server.setWorkingDirectory(m_home.folder(u"run/server-%1-%2"_s.arg(
            QString::number(data.st_dev, 16), QString::number(data.st_ino, 16))));
        server.start(u"sleep"_s, {u"60"_s});
        QVERIFY(server.waitForStarted());
        scan();
        const LogCapture log;
        QCOMPARE(clean().constFirst().at(1).toInt(), 0);
        QCOMPARE(m_cleaner->failures().size(), 1);
        QVERIFY(m_cleaner->failures().at(0).reason.contains("end them and try again"_L1));
        QVERIFY(log.contains(u"[ERROR] Failed to save the registry: "_s));
        QVERIFY(m_fixture->hasValue(user + runKey, u"Sweepwise"_s));
        server.kill();
        QVERIFY(server.waitForFinished());
    }
#endif

private:
    // Unticks the entries that belong to the live registry.
    void keepOwnOnly()
    {
        for (CleanCategory &category : m_cleaner->result().categories) {
            for (CleanItem &entry : category.items)
                entry.checked = entry.registryKey.contains("Sweepwise"_L1);
        }
    }

    // Makes a file in a folder with a blank in its name. Returns its Windows path.
    QString makeFile(const QString &name)
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

    void choose(const QList<CleanItem> &items, const QString &id = u"id"_s)
    {
        CleanCategory category(id, u"Kind"_s, {});
        category.items = items;
        m_cleaner->stopAndWait();
        m_cleaner->result().categories = {category};
    }

    void scan()
    {
        const SignalSpy finished(m_cleaner.get(), &CleanEngine::scanFinished);
        m_cleaner->startScan();
        QVERIFY(finished.wait(patience));
    }

    const SignalSpy &clean()
    {
        m_finished = std::make_unique<SignalSpy>(m_cleaner.get(), &CleanEngine::cleanFinished);
        m_cleaner->startClean();
        if (!m_finished->wait(patience))
            qFatal("the clean did not end");
        m_cleaner->stopAndWait();
        return *m_finished;
    }

    /// Cancels the run of the cleaner as soon as it logs @p line; empty ends that.
    void cancelAtLine(const QString &line) const
    {
        static QtMessageHandler before = nullptr;
        static QString awaited;
        static CleanEngine *engine = nullptr;
        awaited = line;
        engine = m_cleaner.get();
        if (line.isEmpty()) {
            qInstallMessageHandler(before);
            return;
        }
        before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) {
                if (message.contains(awaited))
                    engine->cancel();
            });
    }

    static void restore(const QString &path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString error;
        const auto keys = RegistryRestore::parse(
            RegistryBackup::decode(file.readAll()).value_or(QString()), error);
        QVERIFY2(keys, qPrintable(error));
        Registry registry;
        for (const RegistryRestore::Outcome &outcome :
             RegistryRestore::restore(registry, *keys, notStopped))
            QVERIFY2(outcome.isRestored, qPrintable(outcome.entry + u' ' + outcome.error));
    }

    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
    std::unique_ptr<RegistryCleaner> m_cleaner;
    std::unique_ptr<SignalSpy> m_finished;
};

SWEEPWISE_TEST_MAIN(TestRegistryCleaner, QCoreApplication)
#include "tst_registrycleaner.moc"
