#include "filewalk.h"

#include "entrywalk.h"
#include "testtree.h"
#include "walktrees.h"

#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

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
using namespace walktrees;
using platform::ReadFailures;
using platform::WalkOptions;

namespace {

/// Collects the files that walkEntries() finds. Folders are ignored.
class FilesOfEntries final : public platform::EntryVisitor
{
public:
    explicit FilesOfEntries(QStringList &paths)
        : m_paths(paths)
    {
    }
    void visitEntry(platform::WalkedEntry &&entry) override
    {
        if (!entry.isFolder)
            m_paths.append(entry.path);
    }
    void leaveFolder(qint64, bool) override { }

private:
    QStringList &m_paths;
};

QStringList walk(const QString &root, const WalkOptions &options = {},
                 ReadFailures *report = nullptr)
{
    QStringList found;
    const ReadFailures result =
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
            size = own.st_size; // for a link its own size
#endif
        found.append(u"%1 %2"_s.arg(QString::number(size), info.absoluteFilePath()));
    }
    found.sort();
    return found;
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
                const WalkOptions options{filter, recursive};
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

    // Whoever waits sees that work goes on, also in one large folder.
    void aWalkTellsOfItsActivity()
    {
        const TestTree tree;
        for (int i = 0; i < 10'000; ++i)
            tree.file(u"large/f%1"_s.arg(i), {});
        tree.folder(u"large/empty"_s);
        std::atomic<qint64> activity = 0;
        platform::WalkOptions options;
        options.watch.activity = &activity;
        platform::walkFiles(tree.path(), options, [](platform::WalkedFile &&) {});
        QCOMPARE(activity.load(), 3 + 10'000 / 4096); // folders and runs of entries
    }

    void aMissingRootIsNoFailure()
    {
        const TestTree tree;
        ReadFailures report;
        QVERIFY(walk(tree.path(u"missing"_s), {}, &report).isEmpty());
        QCOMPARE(report.count(), 0);
    }

    // Several walkers share the folders.
    void theOrderIsThatOfOneWalker()
    {
        const TestTree tree;
        QRandomGenerator random(7);
        for (int i = 0; i < 3000; ++i) {
            QString path;
            for (int level = random.bounded(6); level > 0; --level)
                path += u"d%1/"_s.arg(random.bounded(4));
            tree.file(path + u"f%1"_s.arg(i));
        }
        const auto list = [](QStringList &found, const QString &folder, const auto &self) -> void {
            for (const QString &name : QDir(folder).entryList(QDir::Files, QDir::Unsorted))
                found.append(folder + u'/' + name);
            const QStringList names =
                QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
            for (const QString &name : names)
                self(found, folder + u'/' + name, self);
        };
        QStringList expected;
        list(expected, tree.path(), list);
        for (int round = 0; round < 20; ++round) {
            QStringList found;
            platform::ListedFolders listed;
            QVERIFY(platform::walkFiles(
                        tree.path(), {},
                        [&found](platform::WalkedFile &&file) { found.append(file.path); }, &listed)
                        .isEmpty());
            QCOMPARE(found, expected);
            QVERIFY(listed.idOf(platform::folderOf(found.constLast())).isKnown());
        }
    }

#ifdef Q_OS_UNIX
    // Folders behind links have no place among the others.
    void foldersBehindLinksComeLast()
    {
        const TestTree tree;
        const QString file = tree.file(u"root/folder/file"_s);
        for (const QString &name : {u"a"_s, u"b"_s}) {
            tree.file("elsewhere/"_L1 + name + "/file"_L1);
            tree.link(tree.path("elsewhere/"_L1 + name), "root/"_L1 + name);
        }
        platform::WalkOptions options;
        options.reach = platform::Reach::Everywhere;
        for (int round = 0; round < 20; ++round) {
            QStringList found;
            platform::walkFiles(
                tree.path(u"root"_s), options,
                [&found](platform::WalkedFile &&walked) { found.append(walked.path); });
            QCOMPARE(found.size(), 3);
            QCOMPARE(found.takeFirst(), file);
            found.sort();
            QCOMPARE(found,
                     (QStringList{tree.path(u"root/a/file"_s), tree.path(u"root/b/file"_s)}));
        }
    }

    // Two walkers meet them in any order. The list is the same in each run.
    void theFirstFailuresByNameAreKept()
    {
        const TestTree tree;
        QStringList closed;
        for (int i = 0; i < 60; ++i) {
            const QString folder = tree.folder(u"%1/closed"_s.arg(59 - i, 2, 10, QChar(u'0')));
            QCOMPARE(::chmod(QFile::encodeName(platform::folderOf(folder)).constData(), 0755), 0);
            QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0), 0);
            closed.prepend(folder);
        }
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0755), 0);
        const OrdinaryUser user;
        for (int round = 0; round < 20; ++round) {
            const platform::ReadFailures failures =
                platform::walkFiles(tree.path(), {}, [](platform::WalkedFile &&) {});
            QCOMPARE(failures.count(), 60);
            QCOMPARE(failures.groups().size(), 1);
            QCOMPARE(failures.groups().constFirst().places, closed.first(20));
        }
    }
#endif

    void stopsBeforeTheNextEntry()
    {
        const TestTree tree;
        for (int i = 0; i < 50; ++i)
            tree.file(u"f%1"_s.arg(i));
        std::atomic_bool stop = false;
        int seen = 0;
        platform::walkFiles(tree.path(), {{}, true, {&stop}}, [&](platform::WalkedFile &&) {
            if (++seen == 3)
                stop = true;
        });
        QCOMPARE(seen, 3);
    }

#ifdef Q_OS_UNIX
    // Windows programs do not see the hidden files. Some of the values are valid for Wine, others
    // are not.
    void entriesThatWineMarksAsHiddenAreNotListed()
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
            // A link has the attributes of its target.
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

    // Wine cannot read the attribute of such a file either, so its programs see the file.
    void aFileThatMayNotBeReadIsNotHidden()
    {
        const TestTree tree;
        const QString path = tree.file(u"prefix/drive_c/t/file"_s);
        for (const QString &folder :
             {QString(), u"prefix"_s, u"prefix/drive_c"_s, u"prefix/drive_c/t"_s})
            QCOMPARE(::chmod(QFile::encodeName(tree.path(folder)).constData(), 0755), 0);
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0), 0);
        const QByteArray before = qgetenv("WINEPREFIX");
        qputenv("WINEPREFIX", QFile::encodeName(tree.path(u"prefix"_s)));
        QStringList found;
        platform::ReadFailures failures;
        {
            const OrdinaryUser user;
            failures = platform::walkFiles(
                tree.path(u"prefix/drive_c"_s), {},
                [&found](platform::WalkedFile &&file) { found.append(file.path); });
        }
        qputenv("WINEPREFIX", before);
        QCOMPARE(found, QStringList{path});
        QVERIFY(failures.isEmpty());
    }

    void aFolderWithoutReadPermissionIsPassedThrough()
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
            ReadFailures report;
            QVERIFY(walk(tree.path(root), {}, &report).isEmpty());
            QCOMPARE(report.count(), 1);
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
        ReadFailures report;
        QCOMPARE(walk(tree.path(), {}, &report), QStringList{u"0 "_s + tree.path(u"open/f"_s)});
        QCOMPARE(::chmod(closed.constData(), 0700), 0);
        QCOMPARE(report.count(), 1);
        QCOMPARE(report.kept().size(), 1);
        QCOMPARE(report.kept().constFirst().where, tree.path(u"closed"_s));
        QVERIFY(!report.kept().constFirst().reason.isEmpty());
    }

    void manyUnreadableFoldersAreCountedButNotAllKept()
    {
        const OrdinaryUser user;
        const TestTree tree;
        for (int i = 0; i < 30; ++i)
            ::mkdir(QFile::encodeName(tree.path(u"d%1"_s.arg(i))).constData(), 0);
        ReadFailures report;
        walk(tree.path(), {}, &report);
        QCOMPARE(report.count(), 30);
        QCOMPARE(report.kept().size(), ReadFailures::maximumPlaces);
    }

    void filesBelowAnExecuteOnlyFolderAreListed()
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

    void mountsBelowTheRootAreNotWalked()
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
        const bool isBound = ::mount(QFile::encodeName(other.path()).constData(), bound.constData(),
                                     nullptr, MS_BIND, nullptr)
                == 0
            && ::mount(QFile::encodeName(other.path(u"foreign"_s)).constData(), file.constData(),
                       nullptr, MS_BIND, nullptr)
                == 0;
        QFile inFresh(tree.path(u"fresh/f"_s));
        const bool isWritten = inFresh.open(QIODevice::WriteOnly);
        inFresh.close();
        ReadFailures report;
        const QStringList found = walk(tree.path(), {}, &report);
        ::umount2(file.constData(), MNT_DETACH);
        ::umount2(bound.constData(), MNT_DETACH);
        ::umount2(fresh.constData(), MNT_DETACH);
        QVERIFY(isBound);
        QVERIFY(isWritten);
        QStringList expected{u"0 "_s + tree.path(u"own"_s)};
        // Old kernels do not tell that of a single file. It cannot be removed either.
        if (qEnvironmentVariableIsSet("OLD_SYSTEM"))
            expected.prepend(u"0 "_s + tree.path(u"boundfile"_s));
        QCOMPARE(found, expected);
        QCOMPARE(report.count(), 0);
    }

    void manyLevelsWithManyBranchesAreWalked()
    {
        // More levels than a walk holds open. Each level has more folders to read on the way back.
        const TestTree tree;
        makeBranches(tree, 150);
        QCOMPARE(walk(tree.path()).size(), 450);
        QCOMPARE(walk(tree.path()), iterate(tree.path(), {}));
    }

    void fiveThousandNestedFoldersAreWalked()
    {
        // Without openat2 each folder takes one call a level.
        const int levels = qEnvironmentVariableIsSet("OLD_SYSTEM") ? 500 : 5000;
        const NestedFolders folders(levels);
        const QStringList found = walk(folders.path());
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.constFirst().size(), 2 + folders.path().size() + levels * 7 + 8);
    }
#endif
};

QTEST_GUILESS_MAIN(TestFileWalk)
#include "tst_filewalk.moc"
