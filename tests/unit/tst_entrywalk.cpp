#include "entrywalk.h"

#include "folderlister.h"
#include "testtree.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// Records all calls of a walk. Checks that each folder is left in the reverse order of visiting.
class Record final : public platform::EntryVisitor
{
public:
    void visitListing(const std::vector<platform::ListedEntry> &entries, bool isShown) override
    {
        QStringList names;
        for (const platform::ListedEntry &entry : entries)
            names.append(entry.name);
        names.sort();
        // The listing of a shown folder comes right after the folder itself and before its
        // contents.
        QVERIFY(!isShown || paths.isEmpty()
                || (!m_open.isEmpty() && paths.constLast() == m_open.constLast()));
        reads.append((isShown ? "shown: "_L1 : "hidden: "_L1) + names.join(u' '));
    }

    void visitEntry(platform::WalkedEntry &&entry) override
    {
        QVERIFY(m_open.isEmpty() || entry.path.startsWith(m_open.constLast() + u'/'));
        QVERIFY(entry.path.endsWith(u'/' + entry.name));
        paths.append(entry.path);
        if (entry.isFolder)
            m_open.append(entry.path);
        else
            sizes.insert(entry.path, entry.size);
        if (stopAfter > 0 && paths.size() == stopAfter)
            stop = true;
    }

    void leaveFolder(qint64 size, bool wasRead) override
    {
        QVERIFY(!m_open.isEmpty());
        if (!wasRead)
            notRead.append(m_open.constLast());
        sizes.insert(m_open.takeLast(), size);
    }

    platform::ReadFailures walk(const QString &root)
    {
        return platform::walkEntries(root, *this, {&stop});
    }

    QStringList paths; ///< in the order of the calls
    QHash<QString, qint64> sizes;
    QStringList notRead;
    QStringList reads; ///< the names in each folder that was read
    qsizetype stopAfter = 0;
    std::atomic_bool stop = false;

private:
    QStringList m_open;
};

QStringList listedByQt(const QString &root)
{
    QStringList paths;
    QDirIterator it(root, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.append(it.next());
    return paths;
}

qint64 sizeByQt(const QString &folder)
{
    qint64 size = 0;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        size += it.nextFileInfo().size();
    return size;
}

} // namespace

class TestEntryWalk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Whoever waits sees that work goes on, also in one large folder.
    void aWalkTellsOfItsActivity()
    {
        /// Notes how far the activity is at the first and the last entry.
        class Watcher final : public platform::EntryVisitor
        {
        public:
            void visitEntry(platform::WalkedEntry &&) override
            {
                if (first < 0)
                    first = activity;
                last = activity;
            }
            void leaveFolder(qint64, bool) override { }

            std::atomic<qint64> activity = 0;
            qint64 first = -1;
            qint64 last = -1;
        };
        const TestTree tree;
        for (int i = 0; i < 10'000; ++i)
            tree.file(u"large/f%1"_s.arg(i), {});
        Watcher watcher;
        platform::walkEntries(tree.path(u"large"_s), watcher, {nullptr, &watcher.activity});
        const int runs = 10'000 / 4096;
        QCOMPARE(watcher.first, 1 + runs); // the folder, and while it was listed
        QCOMPARE(watcher.last, 1 + runs + runs); // and while its entries were visited
    }

    void aRandomTreeIsListedAsQtListsIt_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void aRandomTreeIsListedAsQtListsIt()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        const TestTree tree;
        QStringList folders{QString()};
        const QStringList names{u"a"_s,   u"B.log"_s,   u".hidden"_s, u"名字"_s,
                                u"🎉 x"_s, u"History"_s, u"c d"_s,     u"Cookies"_s};
        for (int i = 0; i < 60; ++i) {
            const QString parent = folders.at(random.bounded(static_cast<int>(folders.size())));
            QString path = parent + names.at(random.bounded(static_cast<int>(names.size())))
                + QString::number(i);
            if (random.bounded(3) == 0) {
                tree.folder(path);
                folders.append(path + u'/');
            } else {
                tree.file(path, QByteArray(random.bounded(5000), 'x'));
            }
        }
#ifdef Q_OS_UNIX
        for (int i = 0; i < 6; ++i) {
            const QString parent = folders.at(random.bounded(static_cast<int>(folders.size())));
            tree.link(tree.path(folders.at(random.bounded(static_cast<int>(folders.size())))),
                      parent + "link"_L1 + QString::number(i));
        }
#endif
        Record record;
        QCOMPARE(record.walk(tree.path()).count(), 0);
        QCOMPARE(record.paths, listedByQt(tree.path()));
        QVERIFY(!record.paths.isEmpty());
        for (auto it = record.sizes.cbegin(); it != record.sizes.cend(); ++it) {
            const QFileInfo info(it.key());
            const qint64 expected = info.isSymLink() ? (info.isDir() ? 0 : info.size())
                : info.isDir()                       ? sizeByQt(it.key())
                                                     : info.size();
            QVERIFY2(it.value() == expected, qPrintable(it.key()));
        }
        QCOMPARE(record.sizes.size(), record.paths.size());
    }

    void aFoldersSizeIsThatOfEverythingBelow()
    {
        const TestTree tree;
        tree.file(u"a/1"_s, "12345");
        tree.file(u"a/b/2"_s, "123");
        tree.file(u"a/b/c/3"_s, "1");
        tree.folder(u"a/empty"_s);
        Record record;
        (void)record.walk(tree.path());
        QCOMPARE(record.sizes.value(tree.path(u"a"_s)), 9);
        QCOMPARE(record.sizes.value(tree.path(u"a/b"_s)), 4);
        QCOMPARE(record.sizes.value(tree.path(u"a/b/c"_s)), 1);
        QCOMPARE(record.sizes.value(tree.path(u"a/empty"_s), -1), 0);
    }

    void aFolderIsListedBeforeItsContents()
    {
        const TestTree tree;
        tree.file(u"a/1"_s);
        tree.file(u"a/b/2"_s);
        tree.folder(u"a/b/c"_s);
        Record record;
        (void)record.walk(tree.path());
        record.reads.sort();
        QCOMPARE(record.reads,
                 (QStringList{u"shown: "_s, u"shown: 1 b"_s, u"shown: 2 c"_s, u"shown: a"_s}));
    }

    void aMissingRootIsNoFailure()
    {
        const TestTree tree;
        Record record;
        QCOMPARE(record.walk(tree.path(u"no/such"_s)).count(), 0);
        QVERIFY(record.paths.isEmpty());
        QVERIFY(record.reads.isEmpty());
    }

    void aStopEndsTheWalkAtOnce()
    {
        const TestTree tree;
        for (int i = 0; i < 30; ++i)
            tree.file(u"d%1/f"_s.arg(i));
        Record record;
        record.stopAfter = 7;
        (void)record.walk(tree.path());
        QCOMPARE(record.paths.size(), 7);
    }

    void aDeepTreeIsWalked()
    {
        const TestTree tree;
        QString path = u"d"_s;
        for (int i = 0; i < 80; ++i)
            path += u"/d"_s;
        tree.file(path + "/leaf"_L1, "1234");
        Record record;
        (void)record.walk(tree.path());
        QCOMPARE(record.paths.size(), 82);
        QCOMPARE(record.sizes.value(tree.path(u"d"_s)), 4);
    }

#ifdef Q_OS_UNIX
    void hiddenFilesAreCountedButNotListed()
    {
        const TestTree tree;
        tree.file(u"a/.secret"_s, "12");
        tree.file(u"a/.folder/x"_s, "345");
        tree.file(u"a/.folder/sub/y"_s, "6");
        Record record;
        (void)record.walk(tree.path());
        QCOMPARE(record.paths, QStringList{tree.path(u"a"_s)});
        QCOMPARE(record.sizes.value(tree.path(u"a"_s)), 6);
        QCOMPARE(record.reads,
                 (QStringList{u"shown: a"_s, u"shown: .folder .secret"_s, u"hidden: sub x"_s,
                              u"hidden: y"_s}));
    }

    void nothingBehindALinkIsListedOrCounted()
    {
        const TestTree tree;
        tree.file(u"outside/canary"_s, "12345");
        tree.file(u"in/a/own"_s, "1");
        tree.link(tree.path(u"outside"_s), u"in/a/folder"_s);
        tree.link(tree.path(u"outside/canary"_s), u"in/a/file"_s);
        tree.link(tree.path(u"in"_s), u"in/a/loop"_s);
        tree.link(tree.path(u"gone"_s), u"in/a/broken"_s);
        Record record;
        QCOMPARE(record.walk(tree.path(u"in"_s)).count(), 0);
        QStringList expected{tree.path(u"in/a"_s), tree.path(u"in/a/own"_s),
                             tree.path(u"in/a/folder"_s), tree.path(u"in/a/file"_s),
                             tree.path(u"in/a/loop"_s)};
        std::sort(expected.begin(), expected.end());
        QStringList paths = record.paths;
        std::sort(paths.begin(), paths.end());
        QCOMPARE(paths, expected);
        QCOMPARE(record.sizes.value(tree.path(u"in/a"_s)), 1);
        QCOMPARE(record.sizes.value(tree.path(u"in/a/folder"_s), -1), 0);
        QCOMPARE(record.notRead.size(), 2);
        QCOMPARE(record.reads.size(), 2);
    }

    void aRootThatIsALinkListsNothing()
    {
        const TestTree tree;
        tree.file(u"outside/canary"_s);
        tree.link(tree.path(u"outside"_s), u"link"_s);
        Record record;
        (void)record.walk(tree.path(u"link"_s));
        QVERIFY(record.paths.isEmpty());
    }

    void pipesAndUndecodableNamesAreLeftOut()
    {
        const TestTree tree;
        QCOMPARE(::mkfifo(QFile::encodeName(tree.path(u"pipe"_s)).constData(), 0600), 0);
        const QByteArray odd = QFile::encodeName(tree.path()) + "/odd\xff";
        QCOMPARE(::mkdir(odd.constData(), 0700), 0);
        tree.file(u"plain"_s);
        Record record;
        QCOMPARE(record.walk(tree.path()).count(), 0);
        QCOMPARE(record.paths, QStringList{tree.path(u"plain"_s)});
        QCOMPARE(::rmdir(odd.constData()), 0);
    }

    void aFolderThatMayNotBeReadIsListedAndReported()
    {
        const TestTree tree;
        tree.file(u"closed/x"_s, "123");
        tree.file(u"open"_s, "1");
        QVERIFY(::chmod(QFile::encodeName(tree.path()).constData(), 0755) == 0);
        QVERIFY(::chmod(QFile::encodeName(tree.path(u"closed"_s)).constData(), 0) == 0);
        Record record;
        {
            const OrdinaryUser user;
            const platform::ReadFailures report = record.walk(tree.path());
            QCOMPARE(report.count(), 1);
            QCOMPARE(report.kept().constFirst().where, tree.path(u"closed"_s));
        }
        ::chmod(QFile::encodeName(tree.path(u"closed"_s)).constData(), 0700);
        QCOMPARE(record.paths.size(), 2);
        QCOMPARE(record.sizes.value(tree.path(u"closed"_s), -1), 0);
    }
#endif
};

QTEST_GUILESS_MAIN(TestEntryWalk)
#include "tst_entrywalk.moc"
