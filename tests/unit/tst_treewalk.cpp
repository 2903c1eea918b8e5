#include "treewalk.h"

#include "testtree.h"
#include "walktrees.h"

#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <memory>
#include <vector>

#ifdef Q_OS_UNIX
#include <sys/mount.h>
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using namespace walktrees;
using platform::WalkReport;

namespace {

/// Records all calls of one walker. Each test makes one for each walker.
class Record final : public platform::TreeVisitor
{
    Q_DISABLE_COPY_MOVE(Record)
public:
    Record() = default;

    [[nodiscard]] Wanted enterFolder(const platform::WalkedFolder &entered) override
    {
        folder = entered.path();
        folders.append(folder);
        return wanted;
    }

    void visitFile(const platform::VisitedFile &file) override
    {
        paths.append(platform::joinedPath(folder, file.name.toString()));
        sizes.append(file.size);
        times.append(file.modified);
        if (stop && paths.size() == 3)
            *stop = true;
    }

    Wanted wanted = Wanted::SizesAndTimes;
    QString folder;
    QStringList folders;
    QStringList paths;
    QList<qint64> sizes;
    QList<qint64> times;
    std::atomic_bool *stop = nullptr;
};

/// The sorted paths of all files below @p root with Reach::Everywhere.
QStringList walkEverywhere(const QString &root, int walkers, WalkReport *report = nullptr)
{
    std::vector<std::unique_ptr<Record>> records;
    QList<platform::TreeVisitor *> visitors;
    for (int i = 0; i < walkers; ++i)
        visitors.append(records.emplace_back(std::make_unique<Record>()).get());
    const WalkReport result =
        platform::walkTree(root, {{}, true, {}, platform::Reach::Everywhere}, visitors);
    if (report)
        *report = result;
    QStringList found;
    for (const auto &record : records)
        found += record->paths;
    found.sort();
    return found;
}

void addWalkerCounts()
{
    QTest::addColumn<int>("walkers");
    QTest::newRow("one walker") << 1;
    QTest::newRow("two walkers") << 2;
}

#ifdef Q_OS_UNIX
// Each file by its folder's own path, because any of several paths may be used for a folder.
QStringList byRealFolders(const QStringList &paths)
{
    QStringList real;
    for (const QString &path : paths) {
        const QFileInfo info(path);
        real.append(
            platform::joinedPath(QFileInfo(info.path()).canonicalFilePath(), info.fileName()));
    }
    real.sort();
    return real;
}

QStringList iterateFollowing(const QString &root)
{
    QStringList found;
    QDirIterator it(root, QDir::Files | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (it.hasNext())
        found.append(it.next());
    return found;
}
#endif

} // namespace

class TestTreeWalk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void severalWalkersShareTheFolders_data() { addWalkerCounts(); }

    void severalWalkersShareTheFolders()
    {
        QFETCH(int, walkers);
        const TestTree tree;
        QStringList expected;
        for (int folder = 0; folder < 40; ++folder) {
            for (int file = 0; file < 20; ++file)
                expected.append(tree.file(u"d%1/f%2"_s.arg(folder).arg(file)));
            expected.append(tree.file(u"d%1/sub/f"_s.arg(folder)));
        }
        expected.sort();
        QCOMPARE(walkEverywhere(tree.path(), walkers), expected);
    }

    void aVisitorReceivesSizeAndTime()
    {
        const TestTree tree;
        const QString path = tree.file(u"sub/f"_s, "12345");
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        file.close();
        Record record;
        platform::walkTree(tree.path(), {}, {&record});
        QCOMPARE(record.folders, (QStringList{tree.path(), tree.path(u"sub"_s)}));
        QCOMPARE(record.paths, QStringList{path});
        QCOMPARE(record.sizes, QList<qint64>{5});
        QCOMPARE(record.times, QList<qint64>{1'700'000'000'000});
    }

    void filesAreVisitedWithoutSizesToo()
    {
        const TestTree tree;
        const QString path = tree.file(u"f"_s, "12345");
        Record record;
        record.wanted = platform::TreeVisitor::Wanted::Names;
        platform::walkTree(tree.path(), {}, {&record});
        QCOMPARE(record.paths, QStringList{path});
    }

    void allWalkersStopWhenTold()
    {
        const TestTree tree;
        for (int i = 0; i < 200; ++i)
            tree.file(u"d%1/f%2"_s.arg(i % 20).arg(i), {});
        std::atomic_bool stop = false;
        Record first;
        Record second;
        first.stop = &stop;
        second.stop = &stop;
        platform::walkTree(tree.path(), {{}, true, {&stop}, platform::Reach::Everywhere},
                           {&first, &second});
        QVERIFY(stop);
        QVERIFY2(first.paths.size() + second.paths.size() < 20,
                 qPrintable(QString::number(first.paths.size() + second.paths.size())));
    }

#ifdef Q_OS_UNIX
    void aHundredThousandFilesInOneFolderAreVisited_data()
    {
        addWalkerCounts();
    }

    void aHundredThousandFilesInOneFolderAreVisited()
    {
        QFETCH(int, walkers);
        static const TestTree tree;
        constexpr int count = 100'000;
        if (!tree.has(u"f0"_s)) {
            for (int i = 0; i < count; ++i) {
                QFile file(tree.path(u"f%1"_s.arg(i)));
                QVERIFY(file.open(QIODevice::WriteOnly));
            }
        }
        const QStringList found = walkEverywhere(tree.path(), walkers);
        QCOMPARE(found.size(), count);
        QCOMPARE(QSet<QString>(found.begin(), found.end()).size(), count);
    }

    void walkingEverywhereListsWhatQDirIteratorFollows_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<int>("walkers");
        for (quint32 seed = 101; seed <= 130; ++seed) {
            for (const int walkers : {1, 2})
                QTest::addRow("seed %u, %d", seed, walkers) << seed << walkers;
        }
    }

    void walkingEverywhereListsWhatQDirIteratorFollows()
    {
        QFETCH(quint32, seed);
        QFETCH(int, walkers);
        QRandomGenerator random(seed);
        const TestTree tree;
        const TestTree outside;
        outside.file(u"a/b"_s);
        outside.link(tree.path(), u"a/back"_s);
        fillRandomly(tree, random);
        tree.link(outside.path(u"a"_s), u"out"_s);
        const QStringList found = walkEverywhere(tree.path(), walkers);
        QCOMPARE(byRealFolders(found), byRealFolders(iterateFollowing(tree.path())));
        QVERIFY(found.contains(tree.path(u"out/b"_s)));
    }

    void aLinkCycleEnds_data()
    {
        addWalkerCounts();
    }

    void aLinkCycleEnds()
    {
        QFETCH(int, walkers);
        const TestTree tree;
        tree.file(u"a/f"_s);
        tree.link(tree.path(u"a"_s), u"b"_s);
        tree.link(tree.path(u"b"_s), u"a/again"_s);
        tree.link(u"."_s, u"a/itself"_s);
        tree.link(tree.path(u"loop1"_s), u"loop2"_s);
        tree.link(tree.path(u"loop2"_s), u"loop1"_s);
        WalkReport report;
        QCOMPARE(walkEverywhere(tree.path(), walkers, &report), QStringList{tree.path(u"a/f"_s)});
        QCOMPARE(report.failures.count(), 0);
        QVERIFY(report.followed.isEmpty());
    }

    void aLinkToAParentListsFilesBesideTheRoot_data()
    {
        addWalkerCounts();
    }

    void aLinkToAParentListsFilesBesideTheRoot()
    {
        QFETCH(int, walkers);
        const TestTree tree;
        tree.file(u"beside/f"_s);
        tree.file(u"root/own"_s);
        tree.link(u".."_s, u"root/up"_s);
        WalkReport report;
        QCOMPARE(walkEverywhere(tree.path(u"root"_s), walkers, &report),
                 (QStringList{tree.path(u"root/own"_s), tree.path(u"root/up/beside/f"_s)}));
        QCOMPARE(report.followed.size(), 1);
        QCOMPARE(report.followed.constFirst().path, tree.path(u"root/up"_s));
        QCOMPARE(report.followed.constFirst().target, tree.path());
    }

    void aFolderIsWalkedByItsOwnPathBeforeAnyLink()
    {
        const TestTree tree;
        tree.link(tree.path(u"z/deep"_s), u"a"_s);
        tree.file(u"z/deep/f"_s);
        QCOMPARE(walkEverywhere(tree.path(), 2), QStringList{tree.path(u"z/deep/f"_s)});
    }

    void linksToFilesAreVisitedAndBrokenOnesAreNot()
    {
        const TestTree outside;
        outside.file(u"target"_s, "123456789");
        const TestTree tree;
        tree.link(outside.path(u"target"_s), u"link"_s);
        tree.link(u"nowhere"_s, u"broken"_s);
        Record record;
        platform::walkTree(tree.path(), {{}, true, {}, platform::Reach::Everywhere}, {&record});
        QCOMPARE(record.paths, QStringList{tree.path(u"link"_s)});
        // The size is that of the link itself, whose content is the path.
        QCOMPARE(record.sizes, QList<qint64>{outside.path(u"target"_s).size()});
    }

    void aRootBehindALinkIsWalkedByTheGivenPath()
    {
        const TestTree tree;
        tree.file(u"real/sub/f"_s);
        tree.link(tree.path(u"real"_s), u"link"_s);
        WalkReport report;
        QCOMPARE(walkEverywhere(tree.path(u"link/sub"_s), 1, &report),
                 QStringList{tree.path(u"link/sub/f"_s)});
        QCOMPARE(report.followed.size(), 1);
        QCOMPARE(report.followed.constFirst().target, tree.path(u"real/sub"_s));
    }

    void hiddenFoldersAreEnteredOnlyThroughALink()
    {
        const TestTree tree;
        tree.file(u".hidden/f"_s);
        tree.file(u".other/f"_s);
        tree.file(u"sub/.f"_s);
        tree.link(tree.path(u".hidden"_s), u"shown"_s);
        QCOMPARE(walkEverywhere(tree.path(), 1), QStringList{tree.path(u"shown/f"_s)});
    }

    void foldersWithoutPermissionAreCountedAndTheRestGoesOn_data()
    {
        addWalkerCounts();
    }

    void foldersWithoutPermissionAreCountedAndTheRestGoesOn()
    {
        QFETCH(int, walkers);
        const OrdinaryUser user;
        const TestTree tree;
        tree.file(u"open/f"_s, {});
        tree.file(u"closed/f"_s, {});
        tree.link(tree.path(u"closed"_s), u"link"_s);
        const QByteArray closed = QFile::encodeName(tree.path(u"closed"_s));
        QCOMPARE(::chmod(closed.constData(), 0), 0);
        WalkReport report;
        const QStringList found = walkEverywhere(tree.path(), walkers, &report);
        QCOMPARE(::chmod(closed.constData(), 0700), 0);
        QCOMPARE(found, QStringList{tree.path(u"open/f"_s)});
        QVERIFY(report.failures.count() >= 1);
    }

    void kernelFileSystemsAreWalkedOnlyAsTheRoot()
    {
        if (!QFile::exists(u"/proc/sys/kernel/ostype"_s))
            QSKIP("there is no such file system here");
        const TestTree tree;
        tree.file(u"f"_s);
        tree.link(u"/proc"_s, u"kernel"_s);
        tree.link(u"/sys/kernel"_s, u"more"_s);
        QCOMPARE(walkEverywhere(tree.path(), 2), QStringList{tree.path(u"f"_s)});
        QVERIFY(walkEverywhere(u"/proc/sys/kernel"_s, 2).contains(u"/proc/sys/kernel/ostype"_s));
    }

    void walkingEverywhereCrossesMounts()
    {
        const TestTree tree;
        tree.file(u"own"_s, {});
        const QByteArray mounted = QFile::encodeName(tree.folder(u"fresh"_s));
        if (::mount("none", mounted.constData(), "tmpfs", 0, nullptr) != 0)
            QSKIP("mounting is not allowed here");
        const QString inside = tree.file(u"fresh/sub/f"_s, {});
        const QStringList found = walkEverywhere(tree.path(), 2);
        ::umount2(mounted.constData(), MNT_DETACH);
        QCOMPARE(found, (QStringList{inside, tree.path(u"own"_s)}));
    }

    void sparseFilesHaveTheirFullSize()
    {
        const TestTree tree;
        QFile file(tree.file(u"sparse"_s, {}));
        QVERIFY(file.resize(qint64(40) << 30));
        Record record;
        platform::walkTree(tree.path(), {}, {&record});
        QCOMPARE(record.sizes, QList<qint64>{qint64(40) << 30});
    }

    void manyLevelsWithManyBranchesAreWalked()
    {
        // More levels than a walk holds open. Each level has more folders to read on the way back.
        const TestTree tree;
        makeBranches(tree, 150);
        QCOMPARE(walkEverywhere(tree.path(), 2).size(), 450);
    }

    void fiveThousandNestedFoldersAreWalked()
    {
        const NestedFolders folders(5000);
        QCOMPARE(walkEverywhere(folders.path(), 2).size(), 1);
    }
#endif
};

QTEST_GUILESS_MAIN(TestTreeWalk)
#include "tst_treewalk.moc"
