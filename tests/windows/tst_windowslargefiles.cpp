#include "largefilescanner.h"

#include "appinfo.h"
#include "fakelinks.h"
#include "logcapture.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"
#include "windowsfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <windows.h>

using namespace Qt::StringLiterals;
using namespace windowsfiles;

namespace {

constexpr int timeoutMs = 120'000;

/// The sorted paths that a scan finds.
QStringList scan(LargeFileScanner &scanner, const QString &drive, qint64 minSize = 0)
{
    const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
    scanner.setDrives({drive});
    scanner.setMinSize(minSize);
    scanner.startScan();
    if (!finished.wait(timeoutMs))
        qFatal("the scan did not end");
    QStringList found;
    for (const LargeFileInfo &info : scanner.results())
        found.append(info.path);
    found.sort();
    return found;
}

QStringList scan(const QString &drive)
{
    LargeFileScanner scanner;
    return scan(scanner, drive);
}

} // namespace

class TestWindowsLargeFiles : public QObject
{
    Q_OBJECT
public:
    explicit TestWindowsLargeFiles(const TestHome &) { }

private Q_SLOTS:
    void cleanup() { fakelinks::clear(); }

    void hiddenAndSystemFilesAreLeftOut()
    {
        const TestTree tree;
        const QString plain = tree.file(u"plain"_s);
        const QString readOnly = tree.file(u"read only"_s);
        setAttributes(readOnly, FILE_ATTRIBUTE_READONLY);
        setAttributes(tree.file(u"system"_s), FILE_ATTRIBUTE_SYSTEM);
        setAttributes(tree.file(u"hidden"_s), FILE_ATTRIBUTE_HIDDEN);
        setAttributes(tree.file(u"both"_s), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
        tree.file(u"systemfolder/f"_s);
        setAttributes(tree.path(u"systemfolder"_s),
                      FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_SYSTEM);
        QCOMPARE(scan(tree.path()), (QStringList{plain, readOnly}));
        setAttributes(readOnly, FILE_ATTRIBUTE_NORMAL);
    }

    void filesOfAWholeDriveHaveTheirFullPath()
    {
        const TestTree tree;
        const QString path = tree.file(u"sub/f.iso"_s, QByteArray(123'457, 'x'));
        LargeFileScanner scanner;
        QVERIFY(scan(scanner, u"C:/"_s, 123'457).contains(path));
        for (const LargeFileInfo &info : scanner.results())
            QVERIFY2(info.path.mid(1).startsWith(":/"_L1) && !info.path.contains("//"_L1)
                         && info.path == info.directory + u'/' + info.name,
                     qPrintable(info.path));
    }

    void aFolderBehindAJunctionIsListedByItsOwnPath()
    {
        const TestTree outside;
        const QString found = outside.file(u"sub/f"_s);
        const TestTree tree;
        const QString own = tree.file(u"own"_s);
        fakelinks::makeJunction(tree.folder(u"junction"_s), outside.path());
        LargeFileScanner scanner;
        QStringList expected{found, own};
        expected.sort();
        QCOMPARE(scan(scanner, tree.path()), expected);
        QVERIFY(scanner.deleteFile(found));
        QVERIFY(!outside.has(u"sub/f"_s));
    }

    void aHiddenJunctionIsNotEntered()
    {
        const TestTree outside;
        outside.file(u"f"_s);
        const TestTree tree;
        fakelinks::makeJunction(tree.folder(u"junction"_s), outside.path());
        setAttributes(tree.path(u"junction"_s),
                      FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
        QCOMPARE(scan(tree.path()), QStringList());
    }

    void aCycleOfJunctionsEnds_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("to its parent") << u"a/b"_s;
        QTest::newRow("to the root") << u"."_s;
        QTest::newRow("to a folder beside") << u"z"_s;
    }

    void aCycleOfJunctionsEnds()
    {
        QFETCH(QString, target);
        const TestTree tree;
        const QStringList files{tree.file(u"a/b/f"_s), tree.file(u"z/f"_s)};
        fakelinks::makeJunction(tree.folder(u"a/b/junction"_s),
                                target == "."_L1 ? tree.path() : tree.path(target));
        QCOMPARE(scan(tree.path()), files);
    }

    void aJunctionToAParentListsFilesBesideTheRoot()
    {
        const TestTree tree;
        const QStringList files{tree.file(u"beside/f"_s), tree.file(u"root/own"_s)};
        fakelinks::makeJunction(tree.folder(u"root/up"_s), tree.path());
        QCOMPARE(scan(tree.path(u"root"_s)), files);
    }

    void aHiddenFolderIsEnteredOnlyThroughAJunction()
    {
        const TestTree tree;
        const QString file = tree.file(u"hidden/sub/f"_s);
        setAttributes(tree.path(u"hidden"_s), FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN);
        QCOMPARE(scan(tree.path()), QStringList());
        fakelinks::makeJunction(tree.folder(u"junction"_s), tree.path(u"hidden/sub"_s));
        QCOMPARE(scan(tree.path()), QStringList{file});
    }

    void aRealLinkIsFollowedOnce()
    {
        const TestTree outside;
        const QString found = outside.file(u"f"_s);
        const TestTree tree;
        const QString own = tree.file(u"own/f"_s);
        makeFolderLink(tree.path(u"first"_s), outside.path());
        makeFolderLink(tree.path(u"second"_s), outside.path());
        makeFolderLink(tree.path(u"own/cycle"_s), tree.path());
        QStringList expected{found, own};
        expected.sort();
        const QStringList actual = scan(tree.path());
        for (const QString &link : {u"first"_s, u"second"_s, u"own/cycle"_s})
            removeFolderLink(tree.path(link));
        QCOMPARE(actual, expected);
    }

    void aDotOrBlankAtTheEndBelongsToTheName()
    {
        for (const QString &end : {u"."_s, u" "_s}) {
            const TestTree tree;
            const QString odd = tree.path("victim.txt"_L1 + end);
            makeFile(odd, "odd");
            makeFile(tree.path(u"victim.txt"_s), "precious");
            LargeFileScanner scanner;
            const QStringList found = scan(scanner, tree.path());
            QVERIFY(found.contains(odd));
            QVERIFY(scanner.deleteFile(odd));
            QVERIFY(content(odd).isNull());
            QCOMPARE(content(tree.path(u"victim.txt"_s)), QByteArray("precious"));
        }
    }

    void aReadOnlyFileIsNotDeleted()
    {
        const TestTree tree;
        const QString path = tree.file(u"f"_s);
        setAttributes(path, FILE_ATTRIBUTE_READONLY);
        LargeFileScanner scanner;
        scan(scanner, tree.path());
        const LogCapture log;
        QVERIFY(!scanner.deleteFile(path));
        QVERIFY(log.contains("[ERROR] Failed to delete file: "_L1 + path));
        QCOMPARE(scanner.results().size(), 1);
        setAttributes(path, FILE_ATTRIBUTE_NORMAL);
    }

    void aSparseFileHasItsFullSize()
    {
        const TestTree tree;
        QFile file(tree.file(u"sparse"_s, {}));
        QVERIFY(file.resize(qint64(5) << 30));
        LargeFileScanner scanner;
        QCOMPARE(scan(scanner, tree.path(), qint64(5) << 30), QStringList{tree.path(u"sparse"_s)});
        QCOMPARE(scanner.totalSize(), qint64(5) << 30);
    }

    void aHundredThousandFilesInOneFolderAreFound()
    {
        constexpr int count = 100'000;
        const TestTree tree;
        makeManyFiles(tree.folder(u"many"_s), count);
        LargeFileScanner scanner;
        const QStringList found = scan(scanner, tree.path(u"many"_s));
        removeManyFiles(tree.path(u"many"_s));
        QCOMPARE(found.size(), count);
        QCOMPARE(scanner.filesScanned(), count);
    }
};

SWEEPWISE_TEST_MAIN(TestWindowsLargeFiles, QCoreApplication)
#include "tst_windowslargefiles.moc"
