#include "largefilescanner.h"

#include "appinfo.h"
#include "logcapture.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"
#include "threadfault.h"

#include <QBitArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSemaphore>
#include <QTest>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30'000;

QStringList paths(const LargeFileScanner &scanner)
{
    QStringList found;
    for (const LargeFileInfo &info : scanner.results())
        found.append(info.path);
    found.sort();
    return found;
}

/// Scans to the end. Returns the arguments of scanFinished().
QVariantList scan(LargeFileScanner &scanner, const QStringList &drives, qint64 minSize = 1)
{
    const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
    scanner.setDrives(drives);
    scanner.setMinSize(minSize);
    scanner.startScan();
    if (!finished.wait(patience))
        qFatal("the scan did not end");
    return finished.constFirst();
}

void makeSparse(const QString &path, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
        qFatal("cannot write %s", qPrintable(path));
}

/// Holds a scan at its first progress until it is opened.
class Gate final
{
    Q_DISABLE_COPY_MOVE(Gate)
public:
    explicit Gate(LargeFileScanner &scanner)
    {
        m_connection = QObject::connect(
            &scanner, &LargeFileScanner::scanProgress, &scanner,
            [this] {
                m_reached.release();
                m_open.acquire();
                m_open.release();
            },
            Qt::DirectConnection);
    }
    ~Gate()
    {
        QObject::disconnect(m_connection);
        open();
    }

    [[nodiscard]] bool waitUntilReached() { return m_reached.tryAcquire(1, patience); }
    void open() { m_open.release(); }

private:
    QSemaphore m_reached;
    QSemaphore m_open;
    QMetaObject::Connection m_connection;
};

/// Has the worker delete all results. Returns the paths of the deleted files.
QStringList deleteAll(LargeFileScanner &scanner)
{
    const QList<LargeFileInfo> files = scanner.results();
    const SignalSpy finished(&scanner, &LargeFileScanner::deleteFinished);
    scanner.startDelete(files);
    if (!finished.wait(patience))
        qFatal("the deletion did not end");
    const auto deleted = finished.constFirst().at(0).toBitArray();
    QStringList removed;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (deleted.testBit(i))
            removed.append(files.at(i).path);
    }
    return removed;
}

void fill(const TestTree &tree, int count, const QString &folder = u"many"_s)
{
    for (int i = 0; i < count; ++i)
        tree.file(u"%1/f%2.bin"_s.arg(folder, QString::number(i)), "x");
}

} // namespace

class TestLargeFileScanner : public QObject
{
    Q_OBJECT
public:
    explicit TestLargeFileScanner(const TestHome &) { }

private Q_SLOTS:
    void anEmptyDriveListFinishesAtOnce()
    {
        LargeFileScanner scanner;
        const LogCapture log;
        const SignalSpy started(&scanner, &LargeFileScanner::scanStarted);
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        scanner.startScan();
        QVERIFY(scanner.isRunning());
        QVERIFY(finished.wait(patience));
        QCOMPARE(started.size(), 1);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst(), (QVariantList{0, qint64(0)}));
        QVERIFY(!scanner.isRunning());
        QCOMPARE(log.count(u"[INFO] Starting large file scan, min size: 100 MB"_s), 1);
        QCOMPARE(log.count(u"[INFO] Scan completed. Found 0 files, total size: 0 B"_s), 1);
        QCOMPARE(log.lines().size(), 2);
    }

    void aScanWithoutAThreadFails()
    {
        LargeFileScanner scanner;
        const SignalSpy started(&scanner, &LargeFileScanner::scanStarted);
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        const SignalSpy errors(&scanner, &LargeFileScanner::errorOccurred);
        {
            const ThreadFault fault;
            scanner.startScan();
        }
        QTest::qWait(20);
        QVERIFY(!scanner.isRunning());
        QCOMPARE(started.size(), 1);
        QCOMPARE(errors.size(), 1);
        QCOMPARE(finished.size(), 0);
        scanner.startScan();
        QVERIFY(scanner.waitForEnd(QDeadlineTimer(patience)));
        QCOMPARE(finished.size(), 1);
    }

    void aDeletionWithoutAThreadFailsAndDeletesNothing()
    {
        const TestTree tree;
        makeSparse(tree.path(u"a"_s), 1536);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()}, 1000);
        const SignalSpy finished(&scanner, &LargeFileScanner::deleteFinished);
        const SignalSpy errors(&scanner, &LargeFileScanner::errorOccurred);
        {
            const ThreadFault fault;
            scanner.startDelete(scanner.results());
        }
        QVERIFY(!scanner.isDeleting());
        QCOMPARE(errors.size(), 1);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst(), (QVariantList{QBitArray(1), 0}));
        QVERIFY(QFile::exists(tree.path(u"a"_s)));
        QCOMPARE(scanner.results().size(), 1);
    }

    void theLogTellsDrivesAndTotals()
    {
        const TestTree tree;
        makeSparse(tree.path(u"a"_s), 1536);
        makeSparse(tree.path(u"b"_s), 3'145'728);
        const TestTree other;
        LargeFileScanner scanner;
        const LogCapture log;
        scan(scanner, {tree.path(), other.path()}, 1000);
        const QStringList lines = log.lines();
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.at(0).endsWith(u"[INFO] Starting large file scan, min size: 0 MB"_s));
        QVERIFY(lines.at(1).endsWith("[INFO] Scanning drive: "_L1 + tree.path()));
        QVERIFY(lines.at(2).endsWith("[INFO] Scanning drive: "_L1 + other.path()));
        QVERIFY(
            lines.at(3).endsWith(u"[INFO] Scan completed. Found 2 files, total size: 3.0 MB"_s));
    }

    void aFileOfExactlyTheMinimumSizeIsIncluded()
    {
        const TestTree tree;
        makeSparse(tree.path(u"below"_s), 104'857'599);
        makeSparse(tree.path(u"exact"_s), 104'857'600);
        makeSparse(tree.path(u"above"_s), 104'857'601);
        LargeFileScanner scanner;
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        scanner.setDrives({tree.path()});
        scanner.startScan(); // with the default size
        QVERIFY(finished.wait(patience));
        QCOMPARE(paths(scanner), (QStringList{tree.path(u"above"_s), tree.path(u"exact"_s)}));
        QCOMPARE(finished.constFirst(), (QVariantList{2, qint64(209'715'201)}));
        QCOMPARE(scanner.totalSize(), 209'715'201);
        QCOMPARE(scanner.filesScanned(), 3);
    }

    void aRecordTellsEverythingOfItsFile()
    {
        const TestTree tree;
        const QString path = tree.file(u"a folder/ümlaut 文件.tar.GZ"_s, "12345");
        LargeFileScanner scanner;
        const SignalSpy found(&scanner, &LargeFileScanner::fileFound);
        scan(scanner, {tree.path()});
        QCOMPARE(found.size(), 1);
        const auto info = found.constFirst().constFirst().value<LargeFileInfo>();
        QCOMPARE(info.path, path);
        QCOMPARE(info.name, u"ümlaut 文件.tar.GZ"_s);
        QCOMPARE(info.directory, tree.path(u"a folder"_s));
        QCOMPARE(info.size, 5);
        QCOMPARE(info.modified, QFileInfo(path).lastModified());
        QCOMPARE(info.type, u"archive"_s);
        QCOMPARE(scanner.results().size(), 1);
        QCOMPARE(scanner.results().constFirst().path, path);
    }

    void theSuffixTellsTheType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        const auto row = [](const QString &name, const QString &type) {
            QTest::newRow(qPrintable(name)) << name << type;
        };
        const QList<std::pair<QString, QString>> types{
            {u"video"_s, u"mp4 mkv avi mov wmv flv webm m4v mpeg mpg"_s},
            {u"audio"_s, u"mp3 wav flac aac wma ogg m4a"_s},
            {u"archive"_s, u"zip rar 7z tar gz bz2 iso dmg"_s},
            {u"image"_s, u"jpg jpeg png gif bmp psd tiff raw svg"_s},
            {u"document"_s, u"pdf doc docx xls xlsx ppt pptx"_s}};
        for (const auto &[type, suffixes] : types) {
            for (const QString &suffix : suffixes.split(u' '))
                row("file."_L1 + suffix, type);
        }
        row(u"movie.MP4"_s, u"video"_s);
        row(u"archive.tar.gz"_s, u"archive"_s);
        row(u"nosuffix"_s, u"other"_s);
        row(u"dot."_s, u"other"_s);
        row(u"mp4"_s, u"other"_s);
        row(u"file.mp4x"_s, u"other"_s);
        row(u".mp4"_s, u"video"_s);
    }

    void theSuffixTellsTheType()
    {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QCOMPARE(largeFileType(name), type);
    }

    void onlyRecycleBinsAndRestorePointsAreExcluded()
    {
        const TestTree tree;
        tree.file(u"$Recycle.Bin/S-1/deleted"_s);
        tree.file(u"System Volume Information/deep/er/point"_s);
        tree.file(u"sub/old $Recycle.Bin copy"_s);
        QStringList listed;
        for (const char *name :
             {"A/$RECYCLE.BIN/a", "$Recycle.Bi/a", "$RecycleXBin/a", "Other/$recycle.bin/a",
              "Recycle.Bin/a", "System Volume Informatio/a", "A/SYSTEM VOLUME INFORMATION/b",
              "System Volume/a", "Windows/Installer/package.msi", "Windows/WinSxS/component"})
            listed.append(tree.file(QString::fromLatin1(name)));
        int files = int(listed.size()) + 3;
#ifdef Q_OS_UNIX
        // Only on this system can a name contain the other two excluded texts.
        tree.file(u"Windows\\WinSxS"_s);
        tree.file(u"Old Windows\\Installer/package.msi"_s);
        for (const char *name :
             {"Windows\\Install", "Windows\\WinSx", "windows\\Installer", "windows\\winsxs"})
            listed.append(tree.file(QString::fromLatin1(name)));
        files += 6;
#endif
        listed.sort();
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QCOMPARE(paths(scanner), listed);
        // Excluded files are counted all the same.
        QCOMPARE(scanner.filesScanned(), files);
        // The path of the drive counts too.
        scan(scanner, {tree.path(u"$Recycle.Bin"_s)});
        QCOMPARE(paths(scanner), QStringList());
        QCOMPARE(scanner.filesScanned(), 1);
    }

    void progressComesEveryHundredFiles_data()
    {
        QTest::addColumn<int>("walkers");
        QTest::newRow("one walker") << 1;
        QTest::newRow("two walkers") << 2;
    }

    void progressComesEveryHundredFiles()
    {
        QFETCH(int, walkers);
        const TestTree tree;
        for (int folder = 0; folder < 7; ++folder)
            fill(tree, 50, u"d%1"_s.arg(folder));
        LargeFileScanner scanner;
        scanner.setWalkerCount(walkers);
        const SignalSpy progress(&scanner, &LargeFileScanner::scanProgress);
        const QVariantList finished = scan(scanner, {tree.path()});
        QCOMPARE(finished, (QVariantList{350, qint64(350)}));
        QCOMPARE(progress.size(), 3);
        for (const QVariantList &emission : progress) {
            QCOMPARE(emission.at(0).toInt(), 0);
            QVERIFY(QFileInfo(emission.at(1).toString()).isDir());
            QVERIFY(emission.at(1).toString().startsWith(tree.path() + "/d"_L1));
            if (walkers == 1)
                QCOMPARE(emission.at(2).toInt() % 100, 0);
            QCOMPARE(emission.at(3).toLongLong(), emission.at(2).toLongLong());
        }
    }

    void excludedFilesReportNoProgress()
    {
        const TestTree tree;
        fill(tree, 250, u"$Recycle.Bin"_s);
        LargeFileScanner scanner;
        const SignalSpy progress(&scanner, &LargeFileScanner::scanProgress);
        scan(scanner, {tree.path()});
        QCOMPARE(scanner.filesScanned(), 250);
        QCOMPARE(progress.size(), 0);
    }

    void smallFilesCountForProgress()
    {
        const TestTree tree;
        fill(tree, 100);
        LargeFileScanner scanner;
        const SignalSpy progress(&scanner, &LargeFileScanner::scanProgress);
        scan(scanner, {tree.path()}, 1000);
        QCOMPARE(progress.size(), 1);
        QCOMPARE(progress.constFirst(), (QVariantList{0, tree.path(u"many"_s), 0, qint64(0)}));
    }

    void aScanThatRunsIsNotStartedAgain()
    {
        const TestTree tree;
        fill(tree, 100);
        LargeFileScanner scanner;
        Gate gate(scanner);
        const SignalSpy started(&scanner, &LargeFileScanner::scanStarted);
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        scanner.setDrives({tree.path()});
        scanner.setMinSize(1);
        scanner.startScan();
        QVERIFY(gate.waitUntilReached());
        scanner.setMinSize(1000); // for the next one
        scanner.startScan();
        gate.open();
        QVERIFY(finished.wait(patience));
        QTest::qWait(50);
        QCOMPARE(started.size(), 1);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(scanner.results().size(), 100);
    }

    void afterACancelNoScanFinishedArrives()
    {
        const TestTree tree;
        fill(tree, 1000);
        LargeFileScanner scanner;
        const LogCapture log;
        Gate gate(scanner);
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        scanner.setDrives({tree.path(), tree.path()});
        scanner.setMinSize(1);
        scanner.startScan();
        QVERIFY(gate.waitUntilReached());
        QThread *opener = QThread::create([&gate] {
            QThread::msleep(50);
            gate.open();
        });
        opener->start();
        scanner.cancel();
        QVERIFY(!scanner.isRunning());
        opener->wait();
        delete opener;
        QTest::qWait(100);
        QCOMPARE(finished.size(), 0);
        QVERIFY(!scanner.isRunning());
        const qsizetype found = scanner.results().size();
        QVERIFY2(found >= 1 && found < 1000, qPrintable(QString::number(found)));
        // The second drive is not scanned. The summary is written anyway.
        QCOMPARE(log.count(u"Scanning drive: "_s), 1);
        QCOMPARE(log.count(u"Scan completed. Found %1 files"_s.arg(found)), 1);
    }

    void aCancelWaitsThreeSecondsAndNoLonger()
    {
        const TestTree tree;
        fill(tree, 100);
        LargeFileScanner scanner;
        Gate gate(scanner);
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        scanner.setDrives({tree.path()});
        scanner.setMinSize(1);
        scanner.startScan();
        QVERIFY(gate.waitUntilReached());
        QElapsedTimer timer;
        timer.start();
        scanner.cancel();
        QVERIFY2(timer.elapsed() >= 2900 && timer.elapsed() < 4500,
                 qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!scanner.isRunning());
        gate.open();
        QTest::qWait(100);
        QCOMPARE(finished.size(), 0);
    }

    void theEndOfACancelledScanDoesNotEndTheNext()
    {
        const TestTree tree;
        fill(tree, 300);
        LargeFileScanner scanner;
        const SignalSpy finished(&scanner, &LargeFileScanner::scanFinished);
        scanner.setDrives({tree.path()});
        scanner.setMinSize(1);
        scanner.startScan();
        scanner.cancel(); // its end is queued now
        Gate gate(scanner);
        scanner.startScan();
        QVERIFY(gate.waitUntilReached());
        QTest::qWait(100);
        QVERIFY(scanner.isRunning());
        QCOMPARE(finished.size(), 0);
        gate.open();
        QVERIFY(finished.wait(patience));
        QTest::qWait(50);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(finished.constFirst(), (QVariantList{300, qint64(300)}));
    }

    void aScannerMayBeDeletedWhileItScans()
    {
        const TestTree tree;
        fill(tree, 2000);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 20; ++i) {
            LargeFileScanner scanner;
            scanner.setDrives({tree.path()});
            scanner.setMinSize(1);
            scanner.startScan();
            QThread::usleep(static_cast<unsigned long>(i) * 100);
        }
        QVERIFY(timer.elapsed() < 20 * 500);
    }

    void cancellingInTheMiddleIsQuick()
    {
        const TestTree tree;
        for (int folder = 0; folder < 40; ++folder)
            fill(tree, 500, u"d%1"_s.arg(folder));
        qint64 longest = 0;
        for (int i = 0; i < 20; ++i) {
            LargeFileScanner scanner;
            scanner.setDrives(QStringList(200, tree.path()));
            scanner.setMinSize(1000);
            scanner.startScan();
            QThread::msleep(static_cast<unsigned long>(i));
            QElapsedTimer timer;
            timer.start();
            scanner.cancel();
            longest = std::max(longest, timer.elapsed());
        }
        // The limit is far above the usual time, for busy machines. It is far below the time of a
        // whole scan.
        QVERIFY2(longest < 500, qPrintable(QString::number(longest)));
    }

    void theNextScanStartsEmpty()
    {
        const TestTree first;
        fill(first, 120);
        const TestTree second;
        second.file(u"f"_s, "12");
        LargeFileScanner scanner;
        scan(scanner, {first.path()});
        QCOMPARE(scanner.results().size(), 120);
        QCOMPARE(scan(scanner, {second.path()}), (QVariantList{1, qint64(2)}));
        QCOMPARE(paths(scanner), QStringList{second.path(u"f"_s)});
        QCOMPARE(scanner.filesScanned(), 1);
    }

    void aSlashAtTheEndOfADriveChangesNoPath()
    {
        const TestTree tree;
        tree.file(u"sub/f"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path() + u'/', QString(), tree.path(u"missing"_s)});
        QCOMPARE(paths(scanner), QStringList{tree.path(u"sub/f"_s)});
        QCOMPARE(scanner.results().constFirst().directory, tree.path(u"sub"_s));
    }

    // --- deleting

    void aDeletedFileLeavesTheResults()
    {
        const TestTree tree;
        const QString a = tree.file(u"a"_s, "12345");
        const QString b = tree.file(u"b"_s, "123");
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        const LogCapture log;
        QVERIFY(scanner.deleteFile(a));
        QVERIFY(!QFile::exists(a));
        QCOMPARE(paths(scanner), QStringList{b});
        QCOMPARE(scanner.totalSize(), 3);
        QCOMPARE(log.count("[INFO] Deleted file: "_L1 + a), 1);
    }

    void deletingAPathTwiceFailsTheSecondTime()
    {
        const TestTree tree;
        const QString path = tree.file(u"f"_s);
        const QString other = tree.file(u"g"_s, "12");
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(scanner.deleteFile(path));
        const LogCapture log;
        QVERIFY(!scanner.deleteFile(path));
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(log.contains("[ERROR] Failed to delete file: "_L1 + path));
        QCOMPARE(paths(scanner), QStringList{other});
        QCOMPARE(scanner.totalSize(), 2);
    }

    void aPathThatNoScanFoundCanBeDeleted()
    {
        const TestTree tree;
        const QString path = tree.file(u"f"_s);
        LargeFileScanner scanner;
        QVERIFY(scanner.deleteFile(path));
        QVERIFY(!tree.has(u"f"_s));
        QVERIFY(scanner.results().isEmpty());
    }

    void aFailureLeavesTheResultsAsTheyWere()
    {
        const TestTree tree;
        const QString path = tree.file(u"f"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(QFile::remove(path));
        QVERIFY(!scanner.deleteFile(path));
        QCOMPARE(paths(scanner), QStringList{path});
        QCOMPARE(scanner.totalSize(), 7);
    }

    void aFolderInThePlaceOfAFileStays()
    {
        const TestTree tree;
        const QString path = tree.file(u"f"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(QFile::remove(path));
        tree.file(u"f/precious"_s);
        QVERIFY(!scanner.deleteFile(path));
        tree.folder(u"empty"_s);
        QVERIFY(!scanner.deleteFile(tree.path(u"empty"_s)));
        QVERIFY(!scanner.deleteFile(tree.path(u"empty/"_s)));
        QVERIFY(tree.has(u"f/precious"_s));
        QVERIFY(tree.has(u"empty"_s));
    }

    void aFolderThatTookThePlaceOfAListedOneKeepsItsFiles()
    {
        const TestTree tree;
        const QString path = tree.file(u"d/f"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(QDir().rename(tree.path(u"d"_s), tree.path(u"away"_s)));
        tree.file(u"d/f"_s, "never listed");
        QVERIFY(!scanner.deleteFile(path));
        QVERIFY(deleteAll(scanner).isEmpty());
        QVERIFY(tree.has(u"d/f"_s));
        QVERIFY(tree.has(u"away/f"_s));
        QCOMPARE(paths(scanner), QStringList{path});
        // From the next scan on, the folder that it lists is the right one.
        scan(scanner, {tree.path(u"d"_s)});
        QVERIFY(scanner.deleteFile(path));
        QVERIFY(!tree.has(u"d/f"_s));
    }

    void aFinishedScanHasTheLargestFirst()
    {
        const TestTree tree;
        for (const auto &[name, size] : std::initializer_list<std::pair<QString, qsizetype>>{
                 {u"a"_s, 3}, {u"b"_s, 9}, {u"c"_s, 3}, {u"d"_s, 1}, {u"e"_s, 9}, {u"f"_s, 3}})
            tree.file(name, QByteArray(size, 'x'));
        LargeFileScanner scanner;
        scanner.setWalkerCount(1);
        const SignalSpy found(&scanner, &LargeFileScanner::fileFound);
        scan(scanner, {tree.path()});
        QStringList arrival;
        for (const QVariantList &arguments : found)
            arrival.append(arguments.constFirst().value<LargeFileInfo>().path);
        QList<qint64> sizes;
        for (const LargeFileInfo &info : scanner.results())
            sizes.append(info.size);
        QCOMPARE(sizes, (QList<qint64>{9, 9, 3, 3, 3, 1}));
        // Files of one size keep their order of arrival.
        const QList<LargeFileInfo> results = scanner.results();
        for (qsizetype i = 1; i < results.size(); ++i) {
            if (results.at(i - 1).size == results.at(i).size)
                QVERIFY(arrival.indexOf(results.at(i - 1).path)
                        < arrival.indexOf(results.at(i).path));
        }
    }

    void theWorkerDeletesExactlyWhatItIsGiven()
    {
        const TestTree tree;
        for (int i = 0; i < 6; ++i)
            tree.file(u"f%1"_s.arg(i), QByteArray(6 - i, 'x'));
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        const QList<LargeFileInfo> all = scanner.results();
        QVERIFY(QFile::remove(tree.path(u"f3"_s)));
        const SignalSpy finished(&scanner, &LargeFileScanner::deleteFinished);
        const SignalSpy progress(&scanner, &LargeFileScanner::deleteProgress);
        scanner.startDelete({all.at(1), all.at(3), all.at(4)});
        QVERIFY(scanner.isDeleting());
        scanner.startScan(); // does nothing now
        QVERIFY(!scanner.isRunning());
        scanner.startDelete({all.at(0)}); // neither does this
        QVERIFY(finished.wait(patience));
        QVERIFY(!scanner.isDeleting());
        QCOMPARE(finished.size(), 1);
        QBitArray expected(3, true);
        expected.clearBit(1);
        QCOMPARE(finished.constFirst(), (QVariantList{expected, 3}));
        QCOMPARE(progress.constFirst(), (QVariantList{0, 3, qint64(0)}));
        QStringList remaining;
        for (int i = 0; i < 6; ++i) {
            if (tree.has(u"f%1"_s.arg(i)))
                remaining.append(u"f%1"_s.arg(i));
        }
        QCOMPARE(remaining, (QStringList{u"f0"_s, u"f2"_s, u"f5"_s}));
        // A file that could not be deleted stays among the results, unchanged.
        QCOMPARE(scanner.results().size(), 4);
        QCOMPARE(scanner.totalSize(), 6 + 4 + 3 + 1);
        scan(scanner, {tree.path()});
        QCOMPARE(scanner.results().size(), 3);
    }

    void aDeletionThatIsCancelledLeavesTheRest()
    {
        const TestTree tree;
        fill(tree, 50);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        const SignalSpy finished(&scanner, &LargeFileScanner::deleteFinished);
        // The worker looks for a cancel after each file. Its first progress comes before the first
        // file.
        connect(
            &scanner, &LargeFileScanner::deleteProgress, &scanner,
            [&scanner] { scanner.cancelDelete(); }, Qt::DirectConnection);
        scanner.startDelete(scanner.results());
        QVERIFY(finished.wait(patience));
        QBitArray first(50);
        first.setBit(0);
        QCOMPARE(finished.constFirst(), (QVariantList{first, 1}));
        QCOMPARE(scanner.results().size(), 49);
        QCOMPARE(scanner.totalSize(), 49);
        for (const LargeFileInfo &info : scanner.results())
            QVERIFY(QFile::exists(info.path));
    }

    void aScannerMayBeDeletedWhileItDeletes()
    {
        const TestTree tree;
        fill(tree, 300);
        auto scanner = std::make_unique<LargeFileScanner>();
        scan(*scanner, {tree.path()});
        const SignalSpy finished(scanner.get(), &LargeFileScanner::deleteFinished);
        scanner->startDelete(scanner->results());
        scanner.reset();
        QTest::qWait(20);
        QCOMPARE(finished.size(), 0);
    }

    void onlyAnAbsolutePathIsDeleted()
    {
        LargeFileScanner scanner;
        for (const QString &path : {QString(), u"/"_s, u"relative"_s, u".."_s, u"C:"_s, u"C:/"_s})
            QVERIFY2(!scanner.deleteFile(path), qPrintable(path));
    }

#ifdef Q_OS_UNIX
    void aFileNameCannotForgeALogLine()
    {
        const TestTree tree;
        const QString path = tree.file(u"f\n[ERROR] forged"_s);
        LargeFileScanner scanner;
        const LogCapture log;
        QVERIFY(scanner.deleteFile(path));
        QCOMPARE(log.lines().size(), 1);
        QVERIFY(!log.lines().constFirst().contains(u'\n'));
    }

    void aFileBehindAFollowedLinkIsDeletedWhereItWasFound()
    {
        const TestTree outside;
        const QString found = outside.file(u"sub/f"_s);
        const TestTree elsewhere;
        elsewhere.file(u"sub/f"_s, "precious");
        const auto fence = elsewhere.snapshot();
        const TestTree tree;
        tree.link(outside.path(), u"link"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QCOMPARE(paths(scanner), QStringList{tree.path(u"link/sub/f"_s)});
        // The link leads elsewhere now.
        QVERIFY(QFile::remove(tree.path(u"link"_s)));
        tree.link(elsewhere.path(), u"link"_s);
        QVERIFY(scanner.deleteFile(tree.path(u"link/sub/f"_s)));
        QVERIFY(!QFile::exists(found));
        QCOMPARE(elsewhere.snapshot(), fence);
        QVERIFY(scanner.results().isEmpty());
    }

    void behindAFollowedLinkAnotherFolderKeepsItsFiles()
    {
        const TestTree outside;
        outside.file(u"sub/f"_s);
        const TestTree tree;
        tree.link(outside.path(), u"link"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(QDir().rename(outside.path(u"sub"_s), outside.path(u"away"_s)));
        outside.file(u"sub/f"_s, "never listed");
        QVERIFY(!scanner.deleteFile(tree.path(u"link/sub/f"_s)));
        QVERIFY(outside.has(u"sub/f"_s));
        QVERIFY(outside.has(u"away/f"_s));
    }

    void anotherEntryInThePlaceOfAListedFileStays()
    {
        const TestTree tree;
        const QStringList listed{tree.file(u"became-a-link"_s), tree.file(u"became-another"_s),
                                 tree.file(u"became-a-folder"_s)};
        const QString precious = tree.file(u".precious"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QCOMPARE(scanner.results().size(), 3);
        // The files are kept, so that no other file gets their numbers.
        for (const QString &path : listed)
            QVERIFY(QFile::rename(path, path + ".away"_L1));
        tree.link(precious, u"became-a-link"_s);
        tree.file(u"became-another"_s, "never listed");
        tree.file(u"became-a-folder/f"_s);
        const auto before = tree.snapshot();
        for (const QString &path : listed)
            QVERIFY2(!scanner.deleteFile(path), qPrintable(path));
        QVERIFY(deleteAll(scanner).isEmpty());
        QCOMPARE(tree.snapshot(), before);
        QCOMPARE(scanner.results().size(), 3);
    }

    void nothingIsDeletedThroughALinkThatTheScanDidNotFollow()
    {
        const TestTree outside;
        outside.file(u"f"_s, "precious");
        const auto fence = outside.snapshot();
        const TestTree tree;
        tree.file(u"folder/f"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(QFile::rename(tree.path(u"folder"_s), tree.path(u"moved"_s)));
        tree.link(outside.path(), u"folder"_s);
        QVERIFY(!scanner.deleteFile(tree.path(u"folder/f"_s)));
        QCOMPARE(outside.snapshot(), fence);
        QVERIFY(tree.has(u"moved/f"_s));
    }

    void aLinkToAFileIsRemovedAsALink()
    {
        const TestTree outside;
        outside.file(u"f"_s, "123456");
        const auto fence = outside.snapshot();
        const TestTree tree;
        const QString link = tree.link(outside.path(u"f"_s), u"link.iso"_s);
        LargeFileScanner scanner;
        // Its size is that of the path in it, however large the file is.
        QCOMPARE(scan(scanner, {tree.path()}), (QVariantList{1, outside.path(u"f"_s).size()}));
        QCOMPARE(paths(scanner), QStringList{link});
        QVERIFY(scanner.deleteFile(link));
        QVERIFY(!tree.has(u"link.iso"_s));
        QCOMPARE(outside.snapshot(), fence);
    }

    void aLinkCycleEndsAndNoFileIsFoundTwice()
    {
        const TestTree tree;
        fill(tree, 500, u"a/b/c"_s);
        tree.link(tree.path(), u"a/b/c/top"_s);
        tree.link(tree.path(u"a/b"_s), u"again"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QCOMPARE(scanner.results().size(), 500);
        const QStringList found = paths(scanner);
        QCOMPARE(QSet<QString>(found.begin(), found.end()).size(), 500);
        QCOMPARE(scanner.filesScanned(), 500);
    }

    void hiddenFilesAreNotFound()
    {
        const TestTree tree;
        tree.file(u".hidden"_s);
        tree.file(u".folder/f"_s);
        LargeFileScanner scanner;
        scan(scanner, {tree.path()});
        QVERIFY(scanner.results().isEmpty());
        QCOMPARE(scanner.filesScanned(), 0);
    }
#endif
};

SWEEPWISE_TEST_MAIN(TestLargeFileScanner, QCoreApplication)
#include "tst_largefilescanner.moc"
