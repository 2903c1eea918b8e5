#include "filewalk.h"

#include "fileremove.h"
#include "testtree.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using platform::EntryKind;
using platform::WalkOptions;
using platform::WalkReport;

namespace {

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
        found.append(u"%1 %2"_s.arg(QString::number(info.size()), info.absoluteFilePath()));
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
        // Too deep for the temporary folder's own clean-up.
        platform::FileRemover remover;
        QCOMPARE(remover.remove(tree.path(QString::fromLatin1(name))).status,
                 platform::FileRemover::Status::Removed);
    }
#endif

    void inspectTellsWhatTheEntryItselfIs()
    {
        const TestTree tree;
        tree.file(u"folder/file"_s, "123");
        QCOMPARE(platform::inspect(tree.path(u"folder/file"_s)).kind, EntryKind::File);
        QCOMPARE(platform::inspect(tree.path(u"folder/file"_s)).size, 3);
        QCOMPARE(platform::inspect(tree.path(u"folder"_s)).kind, EntryKind::Folder);
        QCOMPARE(platform::inspect(tree.path(u"nothing"_s)).kind, EntryKind::Missing);
        QCOMPARE(platform::inspect(tree.path(u"nothing/below"_s)).kind, EntryKind::Missing);
        QCOMPARE(platform::inspect(tree.path(u"folder/file/below"_s)).kind, EntryKind::Missing);
        QCOMPARE(platform::inspect(u"relative"_s).kind, EntryKind::Missing);
        QCOMPARE(platform::inspect(QString()).kind, EntryKind::Missing);
#ifdef Q_OS_UNIX
        tree.link(tree.path(u"folder"_s), u"link"_s);
        tree.link(u"nowhere"_s, u"broken"_s);
        QCOMPARE(platform::inspect(tree.path(u"link"_s)).kind, EntryKind::Link);
        QCOMPARE(platform::inspect(tree.path(u"broken"_s)).kind, EntryKind::Link);
        QCOMPARE(platform::inspect(tree.path(u"link/file"_s)).kind, EntryKind::Link);
        QCOMPARE(platform::inspect(u"/dev/null"_s).kind, EntryKind::Other);
#endif
    }
};

QTEST_GUILESS_MAIN(TestFileWalk)
#include "tst_filewalk.moc"
