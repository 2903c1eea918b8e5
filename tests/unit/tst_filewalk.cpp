#include "filewalk.h"

#include "entrywalk.h"
#include "fileremove.h"
#include "testtree.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <memory>
#include <vector>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using platform::WalkOptions;
using platform::WalkReport;

namespace {

/// Collects the files of a walk that lists folders too.
class FilesOfEntries final : public platform::EntryVisitor
{
public:
    explicit FilesOfEntries(QStringList &paths)
        : m_paths(paths)
    {
    }
    void meetEntry(platform::WalkedEntry &&entry) override
    {
        if (!entry.isFolder)
            m_paths.append(entry.path);
    }
    void leaveFolder(qint64, bool) override { }

private:
    QStringList &m_paths;
};

QStringList walk(const QString &root, const WalkOptions &options = {}, WalkReport *report = nullptr)
{
    QStringList found;
    const WalkReport result =
        platform::walkFiles(root, options, [&found](platform::WalkedFile &&file) {
            if (!file.path.endsWith(u'/' + file.name))
                qFatal("name and path differ: %s", qPrintable(file.path));
            found.append(u"%1 %2"_s.arg(QString::number(file.size), file.path));
        });
    if (report)
        *report = result;
    found.sort();
    return found;
}

QStringList iterate(const QString &root, const WalkOptions &options)
{
    QStringList found;
    QDirIterator it(root, options.nameFilters.isEmpty() ? QStringList{u"*"_s} : options.nameFilters,
                    QDir::Files,
                    options.recursive ? QDirIterator::Subdirectories
                                      : QDirIterator::NoIteratorFlags);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        qint64 size = info.size();
#ifdef Q_OS_UNIX
        struct stat own {
        };
        if (::lstat(QFile::encodeName(info.filePath()).constData(), &own) == 0)
            size = own.st_size; // of a link its own
#endif
        found.append(u"%1 %2"_s.arg(QString::number(size), info.absoluteFilePath()));
    }
    found.sort();
    return found;
}

// Names that have tripped such programs before; all of them valid on a Linux disk.
QString randomName(QRandomGenerator &random)
{
    static const QStringList stems{
        u"a"_s,         u"B"_s,     u"report"_s,    u".hidden"_s, u"with blank"_s, u"ümlaut"_s,
        u"文件"_s,      u"🧹"_s,  u"new\nline"_s, u"dot."_s,    u"-rf"_s,        u"%1"_s,
        u"\u202ertl"_s, u"tab\t"_s, u"*"_s,         u"[x]"_s,     u"~$x"_s,        u"..."_s};
    static const QStringList endings{QString(), u".log"_s, u".LOG"_s,
                                     u".tmp"_s, u".dmp"_s, u".1"_s};
    return stems.at(random.bounded(int(stems.size()))) + QString::number(random.bounded(4))
        + endings.at(random.bounded(int(endings.size())));
}

void fillRandomly(const TestTree &tree, QRandomGenerator &random)
{
    QStringList folders{u"."_s};
    for (int i = 0; i < 120; ++i) {
        const QString parent = folders.at(random.bounded(int(folders.size())));
        const QString entry = parent + u'/' + randomName(random);
        if (tree.has(entry))
            continue;
        switch (random.bounded(7)) {
        case 0:
        case 1:
            tree.folder(entry);
            folders.append(entry);
            break;
        case 2:
            tree.link(tree.path(folders.at(random.bounded(int(folders.size())))), entry);
            break;
        case 3:
            tree.link(u"nowhere"_s, entry);
            break;
        case 4: {
            const QString target = tree.path(parent + "/target"_L1 + QString::number(i));
            QFile file(target);
            if (file.open(QIODevice::WriteOnly))
                file.write(QByteArray(random.bounded(300), 't'));
            tree.link(target, entry);
            break;
        }
        default:
            tree.file(entry, QByteArray(random.bounded(5000), 'x'));
        }
    }
}

/// Remembers what it meets, as lines that can be compared.
class Record final : public platform::TreeVisitor
{
    Q_DISABLE_COPY_MOVE(Record)
public:
    Record() = default;

    [[nodiscard]] Wanted enterFolder(const QString &path) override
    {
        folder = path;
        folders.append(path);
        return wanted;
    }

    void meetFile(const platform::MetFile &file) override
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

/// The paths of all files that are met everywhere below @p root, sorted.
QStringList walkEverywhere(const QString &root, int walkers, WalkReport *report = nullptr)
{
    std::vector<std::unique_ptr<Record>> records;
    QList<platform::TreeVisitor *> visitors;
    for (int i = 0; i < walkers; ++i)
        visitors.append(records.emplace_back(std::make_unique<Record>()).get());
    const WalkReport result =
        platform::walkTree(root, {{}, true, nullptr, platform::Reach::Everywhere}, visitors);
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
// Each file by its folder's own path: which of several paths leads there is nobody's promise.
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

class TestFileWalk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsTheSameAsQDirIterator_data()
    {
#ifndef Q_OS_UNIX
        QSKIP("the random names are not valid on this system");
#endif
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 40; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void listsTheSameAsQDirIterator()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        const TestTree tree;
        fillRandomly(tree, random);
        const QList<QStringList> filters{
            {},        {u"*"_s},           {u"*.log"_s}, {u"*.log"_s, u"*.dmp"_s},
            {u"a*"_s}, {u"report?.tmp"_s}, {u"*1*"_s},   {u"[ab]*"_s},
            {u"b0"_s}};
        for (const QStringList &filter : filters) {
            for (const bool recursive : {true, false}) {
                const WalkOptions options{filter, recursive, nullptr};
                QCOMPARE(walk(tree.path(), options), iterate(tree.path(), options));
            }
        }
        QVERIFY(!walk(tree.path()).isEmpty());
    }

    void filesOfOneFolderArriveTogether()
    {
        const TestTree tree;
        for (int folder = 0; folder < 5; ++folder) {
            for (int file = 0; file < 20; ++file)
                tree.file(u"d%1/f%2"_s.arg(folder).arg(file));
            tree.file(u"d%1/sub/f"_s.arg(folder));
        }
        QStringList folders;
        platform::walkFiles(tree.path(), {}, [&folders](platform::WalkedFile &&file) {
            const QString folder = file.path.chopped(file.name.size() + 1);
            if (folders.isEmpty() || folders.last() != folder)
                folders.append(folder);
        });
        QCOMPARE(folders.size(), 10);
    }

    void severalWalkersShareTheFolders_data()
    {
        addWalkerCounts();
    }

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

    void aVisitorIsToldSizeAndTime()
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

    void filesAreMetWithoutSizesToo()
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
        platform::walkTree(tree.path(), {{}, true, &stop, platform::Reach::Everywhere},
                           {&first, &second});
        QVERIFY(stop);
        QVERIFY2(first.paths.size() + second.paths.size() < 20,
                 qPrintable(QString::number(first.paths.size() + second.paths.size())));
    }

#ifdef Q_OS_UNIX
    void aHundredThousandFilesInOneFolderAreMet_data()
    {
        addWalkerCounts();
    }

    void aHundredThousandFilesInOneFolderAreMet()
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
#endif

    void aMissingRootIsNoFailure()
    {
        const TestTree tree;
        WalkReport report;
        QVERIFY(walk(tree.path(u"missing"_s), {}, &report).isEmpty());
        QCOMPARE(report.failureCount, 0);
    }

    void stopsBeforeTheNextEntry()
    {
        const TestTree tree;
        for (int i = 0; i < 50; ++i)
            tree.file(u"f%1"_s.arg(i));
        std::atomic_bool stop = false;
        int seen = 0;
        platform::walkFiles(tree.path(), {{}, true, &stop}, [&](platform::WalkedFile &&) {
            if (++seen == 3)
                stop = true;
        });
        QCOMPARE(seen, 3);
    }

#ifdef Q_OS_UNIX
    void everywhereIsWhereQDirIteratorFollowsLinks_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<int>("walkers");
        for (quint32 seed = 101; seed <= 130; ++seed) {
            for (const int walkers : {1, 2})
                QTest::addRow("seed %u, %d", seed, walkers) << seed << walkers;
        }
    }

    void everywhereIsWhereQDirIteratorFollowsLinks()
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
        QCOMPARE(report.failureCount, 0);
        QVERIFY(report.followed.isEmpty());
    }

    void aLinkToAParentShowsWhatIsBesideTheRoot_data()
    {
        addWalkerCounts();
    }

    void aLinkToAParentShowsWhatIsBesideTheRoot()
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

    void linksToFilesAreMetAndBrokenOnesAreNot()
    {
        const TestTree outside;
        outside.file(u"target"_s, "123456789");
        const TestTree tree;
        tree.link(outside.path(u"target"_s), u"link"_s);
        tree.link(u"nowhere"_s, u"broken"_s);
        Record record;
        platform::walkTree(tree.path(), {{}, true, nullptr, platform::Reach::Everywhere},
                           {&record});
        QCOMPARE(record.paths, QStringList{tree.path(u"link"_s)});
        // What would go is the link, whose content is the path.
        QCOMPARE(record.sizes, QList<qint64>{outside.path(u"target"_s).size()});
    }

    // Windows programs do not see these; the values are those that Wine understands and some that
    // it does not.
    void whatWineMarksAsHiddenIsNotListed()
    {
        const TestTree tree;
        tree.folder(u"prefix/drive_c"_s);
        tree.folder(u"prefix/dosdevices"_s);
        tree.folder(u"disk"_s);
        tree.link(tree.path(u"prefix/drive_c"_s), u"prefix/dosdevices/c:"_s);
        tree.link(tree.path(u"disk"_s), u"prefix/dosdevices/d:"_s);
        tree.link(u"/"_s, u"prefix/dosdevices/z:"_s);
        struct Marked {
            QString name;
            QByteArray value;
            bool isListed;
        };
        const QList<Marked> marked{
            {u"none"_s, {}, true},
            {u"hidden"_s, "0x2", false},
            {u"system"_s, "0x4", false},
            {u"both"_s, "0x06", false},
            {u"others too"_s, "0x27", false},
            {u"capital digit"_s, "0xA", false},
            {u"long"_s, "0x00000000000000000002", false},
            {u"with a NUL"_s, QByteArray("0x2\0more", 8), false},
            {u"cleared"_s, "0x0", true},
            {u"read-only"_s, "0x1", true},
            {u"archive"_s, "0x20", true},
            {u"empty"_s, "", true},
            {u"decimal"_s, "2", true},
            {u"capital x"_s, "0X2", true},
            {u"no digits"_s, "0x", true},
            {u"something behind"_s, "0x2zz", true},
            {u"blank"_s, "0x 2", true},
            {u"negative"_s, "0x-2", true},
        };
        QStringList expected;
        for (const QString &folder : {u"prefix/drive_c/t"_s, u"disk/t"_s, u"elsewhere/t"_s}) {
            for (const Marked &mark : marked) {
                const QString path = tree.file(folder + u'/' + mark.name);
                if (!mark.value.isNull()
                    && ::setxattr(QFile::encodeName(path).constData(), "user.DOSATTRIB",
                                  mark.value.constData(),
                                  static_cast<std::size_t>(mark.value.size()), 0)
                        != 0)
                    QSKIP("this file system keeps no attributes of others");
                if (mark.isListed || folder.startsWith("elsewhere"_L1))
                    expected.append(path);
            }
            const QString inside = tree.file(folder + "/hidden folder/f"_L1);
            ::setxattr(QFile::encodeName(tree.path(folder + "/hidden folder"_L1)).constData(),
                       "user.DOSATTRIB", "0x2", 3, 0);
            if (folder.startsWith("elsewhere"_L1))
                expected.append(inside);
            // A link is what it leads to.
            const QString link = tree.link(tree.path(folder + "/hidden"_L1), folder + "/link"_L1);
            if (folder.startsWith("elsewhere"_L1))
                expected.append(link);
            expected.append(tree.link(tree.path(folder + "/none"_L1), folder + "/link to none"_L1));
        }
        expected.sort();
        const QByteArray before = qgetenv("WINEPREFIX");
        qputenv("WINEPREFIX", QFile::encodeName(tree.path(u"prefix"_s)));
        QStringList found;
        QStringList foundOneByOne;
        QStringList foundByEntries;
        const auto add = [](QStringList &list) {
            return [&list](platform::WalkedFile &&file) { list.append(file.path); };
        };
        static_cast<void>(platform::walkFiles(tree.path(), {}, add(found)));
        for (const QString &folder : {u"prefix/drive_c"_s, u"disk"_s, u"elsewhere"_s})
            static_cast<void>(platform::walkFiles(tree.path(folder), {}, add(foundOneByOne)));
        FilesOfEntries entries(foundByEntries);
        static_cast<void>(platform::walkEntries(tree.path(), entries));
        qputenv("WINEPREFIX", before);
        for (QStringList *list : {&found, &foundOneByOne, &foundByEntries}) {
            list->removeIf([](const QString &path) { return path.contains("dosdevices"_L1); });
            list->sort();
            QCOMPARE(*list, expected);
        }
    }

    void aFolderThatMayOnlyBePassedThroughIsNoObstacle()
    {
        const TestTree tree;
        tree.file(u"closed/open/f"_s);
        const auto mode = [&tree](const QString &path, mode_t bits) {
            QCOMPARE(::chmod(QFile::encodeName(tree.path(path)).constData(), bits), 0);
        };
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0755), 0);
        mode(u"closed/open"_s, 0755);
        mode(u"closed"_s, 0711);
        platform::Entry folder;
        platform::Entry file;
        platform::Entry locked;
        QStringList found;
        {
            const OrdinaryUser user;
            folder = platform::inspect(tree.path(u"closed/open"_s));
            file = platform::inspect(tree.path(u"closed/open/f"_s));
            found = walk(tree.path(u"closed/open"_s));
        }
        mode(u"closed"_s, 0700);
        {
            const OrdinaryUser user;
            locked = platform::inspect(tree.path(u"closed/open"_s));
        }
        QVERIFY(folder.kind == platform::EntryKind::Folder);
        QVERIFY(file.kind == platform::EntryKind::File);
        QCOMPARE(found.size(), 1);
        QVERIFY(locked.kind == platform::EntryKind::Other);
        QVERIFY(!locked.error.isEmpty());
    }

    void aRootBehindALinkIsTakenAsItComes()
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

    void hiddenFoldersAreEnteredThroughALinkAlone()
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
        QVERIFY(report.failureCount >= 1);
    }

    void theKernelsOwnFilesAreEnteredAsTheRootAlone()
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

    void everywhereCrossesMounts()
    {
        const TestTree tree;
        tree.file(u"own"_s, {});
        const QByteArray fresh = QFile::encodeName(tree.folder(u"fresh"_s));
        if (::mount("none", fresh.constData(), "tmpfs", 0, nullptr) != 0)
            QSKIP("mounting is not allowed here");
        const QString inside = tree.file(u"fresh/sub/f"_s, {});
        const QStringList found = walkEverywhere(tree.path(), 2);
        ::umount2(fresh.constData(), MNT_DETACH);
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

    void nothingBehindALinkIsListed()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        const TestTree tree;
        tree.file(u"own"_s, "12345");
        tree.link(outside.path(), u"folder-link"_s);
        tree.link(tree.path(), u"cycle"_s);
        QCOMPARE(walk(tree.path()), QStringList{u"5 "_s + tree.path(u"own"_s)});
    }

    void aRootThatIsOrPassesThroughALinkIsNotWalked()
    {
        const TestTree tree;
        tree.file(u"real/sub/f"_s);
        tree.link(tree.path(u"real"_s), u"link"_s);
        for (const QString &root : {u"link"_s, u"link/sub"_s}) {
            WalkReport report;
            QVERIFY(walk(tree.path(root), {}, &report).isEmpty());
            QCOMPARE(report.failureCount, 1);
        }
    }

    void pipesSocketsAndDevicesAreNeitherListedNorOpened()
    {
        const TestTree tree;
        tree.file(u"file"_s, {});
        QCOMPARE(::mkfifo(QFile::encodeName(tree.path(u"pipe"_s)).constData(), 0600), 0);
        const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(tree.path(u"socket"_s)).constData(),
                 sizeof address.sun_path);
        QCOMPARE(::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        tree.link(u"/dev/zero"_s, u"device"_s);
        tree.link(tree.path(u"pipe"_s), u"link-to-pipe"_s);
        // Opening the pipe would block for ever.
        QCOMPARE(walk(tree.path()), QStringList{u"0 "_s + tree.path(u"file"_s)});
        ::close(fd);
    }

    void undecodableNamesAreLeftOut()
    {
        const TestTree tree;
        tree.file(u"good"_s, {});
        const QByteArray root = QFile::encodeName(tree.path());
        const int fd = ::open((root + "/bad\xff\xfe").constData(), O_CREAT | O_WRONLY, 0600);
        QVERIFY(fd >= 0);
        ::close(fd);
        QCOMPARE(::mkdir((root + "/dir\xff").constData(), 0700), 0);
        const int inner = ::open((root + "/dir\xff/inner").constData(), O_CREAT | O_WRONLY, 0600);
        QVERIFY(inner >= 0);
        ::close(inner);
        QCOMPARE(walk(tree.path()), QStringList{u"0 "_s + tree.path(u"good"_s)});
        ::unlink((root + "/dir\xff/inner").constData());
        ::rmdir((root + "/dir\xff").constData());
        ::unlink((root + "/bad\xff\xfe").constData());
    }

    void unreadableFoldersAreReportedAndSkipped()
    {
        const OrdinaryUser user;
        const TestTree tree;
        tree.file(u"open/f"_s, {});
        tree.file(u"closed/f"_s, {});
        const QByteArray closed = QFile::encodeName(tree.path(u"closed"_s));
        QCOMPARE(::chmod(closed.constData(), 0), 0);
        WalkReport report;
        QCOMPARE(walk(tree.path(), {}, &report), QStringList{u"0 "_s + tree.path(u"open/f"_s)});
        QCOMPARE(::chmod(closed.constData(), 0700), 0);
        QCOMPARE(report.failureCount, 1);
        QCOMPARE(report.failures.size(), 1);
        QCOMPARE(report.failures.constFirst().path, tree.path(u"closed"_s));
        QVERIFY(!report.failures.constFirst().reason.isEmpty());
    }

    void manyUnreadableFoldersAreCountedButNotAllKept()
    {
        const OrdinaryUser user;
        const TestTree tree;
        for (int i = 0; i < 30; ++i)
            ::mkdir(QFile::encodeName(tree.path(u"d%1"_s.arg(i))).constData(), 0);
        WalkReport report;
        walk(tree.path(), {}, &report);
        QCOMPARE(report.failureCount, 30);
        QCOMPARE(report.failures.size(), WalkReport::maximumFailures);
    }

    void aFolderThatMayOnlyBePassedThroughDoesNotHideWhatIsBelow()
    {
        const OrdinaryUser user;
        const TestTree tree;
        tree.file(u"passage/inner/f"_s, {});
        const QByteArray passage = QFile::encodeName(tree.path(u"passage"_s));
        QCOMPARE(::chmod(passage.constData(), 0100), 0);
        const QStringList found = walk(tree.path(u"passage/inner"_s));
        QCOMPARE(::chmod(passage.constData(), 0700), 0);
        QCOMPARE(found, QStringList{u"0 "_s + tree.path(u"passage/inner/f"_s)});
    }

    void whatIsMountedBelowTheRootIsLeftAlone()
    {
        const TestTree tree;
        const TestTree other;
        tree.file(u"own"_s, {});
        other.file(u"foreign"_s, {});
        const QByteArray fresh = QFile::encodeName(tree.folder(u"fresh"_s));
        const QByteArray bound = QFile::encodeName(tree.folder(u"bound"_s));
        const QByteArray file = QFile::encodeName(tree.file(u"boundfile"_s, {}));
        if (::mount("none", fresh.constData(), "tmpfs", 0, nullptr) != 0)
            QSKIP("mounting is not allowed here");
        const bool bindMounted = ::mount(QFile::encodeName(other.path()).constData(),
                                         bound.constData(), nullptr, MS_BIND, nullptr)
                == 0
            && ::mount(QFile::encodeName(other.path(u"foreign"_s)).constData(), file.constData(),
                       nullptr, MS_BIND, nullptr)
                == 0;
        QFile inFresh(tree.path(u"fresh/f"_s));
        const bool written = inFresh.open(QIODevice::WriteOnly);
        inFresh.close();
        WalkReport report;
        const QStringList found = walk(tree.path(), {}, &report);
        ::umount2(file.constData(), MNT_DETACH);
        ::umount2(bound.constData(), MNT_DETACH);
        ::umount2(fresh.constData(), MNT_DETACH);
        QVERIFY(bindMounted);
        QVERIFY(written);
        QCOMPARE(found, QStringList{u"0 "_s + tree.path(u"own"_s)});
        QCOMPARE(report.failureCount, 0);
    }

    void manyLevelsWithManyBranchesAreWalked()
    {
        // Deeper than what is held open, with more to read at every level on the way back.
        const TestTree tree;
        QString path = u"d"_s;
        for (int depth = 0; depth < 150; ++depth) {
            tree.file(path + u"/f"_s, {});
            tree.file(path + u"/a/f"_s, {});
            tree.file(path + u"/z/f"_s, {});
            path += u"/m"_s;
        }
        QCOMPARE(walk(tree.path()).size(), 450);
        QCOMPARE(walkEverywhere(tree.path(), 2).size(), 450);
        QCOMPARE(walk(tree.path()), iterate(tree.path(), {}));
    }

    void fiveThousandNestedFoldersAreWalked()
    {
        const TestTree tree;
        const QByteArray name(6, 'd');
        int fd = ::open(QFile::encodeName(tree.path()).constData(), O_RDONLY | O_DIRECTORY);
        for (int depth = 0; depth < 5000; ++depth) {
            QCOMPARE(::mkdirat(fd, name.constData(), 0700), 0);
            const int next = ::openat(fd, name.constData(), O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = next;
        }
        ::close(::openat(fd, "deepest", O_CREAT | O_WRONLY, 0600));
        ::close(fd);
        const QStringList found = walk(tree.path());
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.constFirst().size(), 2 + tree.path().size() + 5000 * 7 + 8);
        QCOMPARE(walkEverywhere(tree.path(), 2).size(), 1);
        // Too deep for the temporary folder's own clean-up.
        platform::FileRemover remover;
        QCOMPARE(remover.remove(tree.path(QString::fromLatin1(name))).status,
                 platform::FileRemover::Status::Removed);
    }
#endif
};

QTEST_GUILESS_MAIN(TestFileWalk)
#include "tst_filewalk.moc"
