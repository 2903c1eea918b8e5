#include "fileremove.h"

#include "entrywalk.h"
#include "filewalk.h"
#include "testtree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <QThread>

#include <functional>
#include <memory>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using platform::FileRemover;
using Status = FileRemover::Status;

namespace {

/// A visitor for walks that only fill ListedFolders.
class IgnoringVisitor final : public platform::EntryVisitor
{
public:
    void visitEntry(platform::WalkedEntry &&) override { }
    void leaveFolder(qint64, bool) override { }
};

void recordFolders(const QString &root, platform::ListedFolders &listed)
{
    IgnoringVisitor visitor;
    platform::walkEntries(root, visitor, {}, &listed);
}

} // namespace

#ifdef Q_OS_UNIX
namespace {

int removalsBeforeAction = -1; ///< negative: the action never runs
std::function<void()> actionBetweenRemovals;

int filesIn(const QString &folder)
{
    return static_cast<int>(QDir(folder).entryList(QDir::Files).size());
}

} // namespace

// Replaces the system's function, so that a test can run an action between two removals.
extern "C" int unlinkat(int folder, const char *name, int flags) noexcept
{
    if (removalsBeforeAction >= 0 && --removalsBeforeAction < 0)
        actionBetweenRemovals();
    return static_cast<int>(::syscall(SYS_unlinkat, folder, name, flags));
}
#endif

class TestFileRemove : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        // The fence: no test may change anything in this tree.
        m_fence = std::make_unique<TestTree>();
        m_fence->file(u"canary"_s, "alive");
        m_fence->file(u"folder/canary"_s, "alive");
        m_before = m_fence->snapshot();
    }

    void cleanup()
    {
#ifdef Q_OS_UNIX
        removalsBeforeAction = -1;
#endif
        QCOMPARE(m_fence->snapshot(), m_before);
    }

    void aFileIsRemoved()
    {
        const TestTree tree;
        const QString path = tree.file(u"a"_s);
        tree.file(u"b"_s);
        FileRemover remover;
        QCOMPARE(remover.remove(path).status, Status::Removed);
        QVERIFY(!tree.has(u"a"_s));
        QVERIFY(tree.has(u"b"_s));
    }

    void aMissingFileIsNotFound()
    {
        const TestTree tree;
        FileRemover remover;
        QCOMPARE(remover.remove(tree.path(u"a"_s)).status, Status::NotFound);
        QCOMPARE(remover.remove(tree.path(u"no/folder/a"_s)).status, Status::NotFound);
    }

    void theSecondRemovalOfAFileIsNotFound()
    {
        const TestTree tree;
        const QString path = tree.file(u"a"_s);
        FileRemover remover;
        QCOMPARE(remover.remove(path).status, Status::Removed);
        QCOMPARE(remover.remove(path).status, Status::NotFound);
    }

    void anUnlistedFolderThatWasReplacedKeepsItsFiles()
    {
        const TestTree tree;
        FileRemover remover;
        QCOMPARE(remover.remove(tree.file(u"d/a"_s)).status, Status::Removed);
        QVERIFY(QDir().rename(tree.path(u"d"_s), tree.path(u"away"_s)));
        const QString other = tree.file(u"d/b"_s);
        static_cast<void>(remover.remove(tree.file(u"other folder/a"_s)));
        QCOMPARE(remover.remove(other).status, Status::Replaced);
        QVERIFY(tree.has(u"d/b"_s));
        QCOMPARE(FileRemover().remove(other).status, Status::Removed);
    }

    void aFolderThatReplacedTheListedOneKeepsItsFiles_data()
    {
        QTest::addColumn<QString>("item");
        QTest::newRow("a file") << u"listed/f"_s;
        QTest::newRow("the folder") << u"listed"_s;
        QTest::newRow("a folder above") << u"."_s;
    }
    void aFolderThatReplacedTheListedOneKeepsItsFiles()
    {
        QFETCH(QString, item);
        const TestTree tree;
        tree.file(u"top/listed/f"_s);
        tree.file(u"top/listed/sub/f"_s);
        tree.file(u"top/beside"_s);
        platform::ListedFolders listed;
        recordFolders(tree.path(), listed);
        QVERIFY(QDir().rename(tree.path(u"top/listed"_s), tree.path(u"away"_s)));
        tree.file(u"top/listed/f"_s, "never listed");
        tree.file(u"top/listed/sub/f"_s, "never listed");
        FileRemover remover;
        remover.setListed(&listed);
        const QString path = tree.path(item == "."_L1 ? u"top"_s : u"top/"_s + item);
        const FileRemover::Outcome outcome = remover.remove(path);
        QCOMPARE(outcome.status, Status::Replaced);
        QCOMPARE(outcome.wasFolder, !item.endsWith(u'f'));
        QVERIFY(tree.has(u"top/listed/f"_s));
        QVERIFY(tree.has(u"top/listed/sub/f"_s));
        QVERIFY(tree.has(u"away/f"_s));
        QCOMPARE(tree.has(u"top/beside"_s), item != "."_L1);
    }

    void aListedFolderThatWasMovedAwayIsReplaced()
    {
        const TestTree tree;
        const QString path = tree.file(u"listed/f"_s);
        platform::ListedFolders listed;
        recordFolders(tree.path(), listed);
        QVERIFY(QDir().rename(tree.path(u"listed"_s), tree.path(u"away"_s)));
        FileRemover remover;
        remover.setListed(&listed);
        QCOMPARE(remover.remove(path).status, Status::Replaced);
        QVERIFY(tree.has(u"away/f"_s));
    }

    // The new folder may have the number of the old one. Then only the remover knows that it is
    // another one.
    void aNewFolderAtThePathOfARemovedOneStays()
    {
        const TestTree tree;
        const QString path = tree.file(u"d/sub/f"_s);
        platform::ListedFolders listed;
        recordFolders(tree.path(), listed);
        FileRemover remover;
        remover.setListed(&listed);
        QCOMPARE(remover.remove(tree.path(u"d"_s)).status, Status::Removed);
        QCOMPARE(remover.remove(path).status, Status::NotFound);
        tree.file(u"d/sub/f"_s);
        QCOMPARE(remover.remove(path).status, Status::NotFound);
        QCOMPARE(remover.remove(tree.path(u"d"_s)).status, Status::NotFound);
        QVERIFY(tree.has(u"d/sub/f"_s));
    }

    void anotherEntryInThePlaceOfAListedFileStays()
    {
        const TestTree tree;
        const QString file = tree.file(u"file"_s);
        tree.folder(u"folder"_s);
        FileRemover remover;
        QCOMPARE(remover.removeFile(file, FileRemover::ListedFile{0, true}).status,
                 Status::Replaced);
        QCOMPARE(remover.removeFile(file, FileRemover::ListedFile{1, false}).status,
                 Status::Replaced);
        QVERIFY(tree.has(u"file"_s));
        QVERIFY(remover.removeFile(tree.path(u"folder"_s), FileRemover::ListedFile{}).status
                != Status::Removed);
        QVERIFY(tree.has(u"folder"_s));
        QCOMPARE(remover.removeFile(file, FileRemover::ListedFile{}).status, Status::Removed);
        QCOMPARE(remover.removeFile(tree.path(u"folder"_s), {}).status, Status::Failed);
        QVERIFY(tree.has(u"folder"_s));
    }

    void oddPathsAreRefused_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << QString();
        QTest::newRow("relative") << u"a/b"_s;
        QTest::newRow("root") << u"/"_s;
        QTest::newRow("dot") << u"/tmp/."_s;
        QTest::newRow("dot-dot") << u"/tmp/.."_s;
        QTest::newRow("dot-dot inside") << u"/tmp/../etc/x"_s;
        QTest::newRow("slash at the end") << u"/tmp/nothing-here/"_s;
    }

    void oddPathsAreRefused()
    {
        QFETCH(QString, path);
        FileRemover remover;
        const FileRemover::Outcome outcome = remover.remove(path);
        QCOMPARE(outcome.status, Status::Failed);
        QVERIFY(!outcome.error.isEmpty());
    }

    void aFolderIsRemovedWithItsContents()
    {
        const TestTree tree;
        for (int i = 0; i < 300; ++i)
            tree.file(u"d/sub%1/deep/f%2"_s.arg(i % 7).arg(i));
        tree.file(u"d/.hidden"_s);
        tree.file(u"beside"_s);
        FileRemover remover;
        const FileRemover::Outcome outcome = remover.remove(tree.path(u"d"_s));
        QVERIFY2(outcome.status == Status::Removed, qPrintable(outcome.error));
        QVERIFY(outcome.wasFolder);
        QVERIFY(!tree.has(u"d"_s));
        QVERIFY(tree.has(u"beside"_s));
    }

    void aStopEndsTheRemovalOfAFolder()
    {
        const TestTree tree;
        tree.file(u"d/a/b/c"_s);
        const std::atomic_bool stop = true;
        FileRemover remover;
        QCOMPARE(remover.remove(tree.path(u"d"_s), &stop).status, Status::Failed);
        QVERIFY(tree.has(u"d/a/b/c"_s));
    }

#ifdef Q_OS_UNIX
    void aLinkIsRemovedAndItsTargetStays()
    {
        const TestTree tree;
        FileRemover remover;
        QCOMPARE(remover.remove(tree.link(m_fence->path(), u"to-folder"_s)).status,
                 Status::Removed);
        QCOMPARE(remover.remove(tree.link(m_fence->path(u"canary"_s), u"to-file"_s)).status,
                 Status::Removed);
        QCOMPARE(remover.remove(tree.link(u"nowhere"_s, u"broken"_s)).status, Status::Removed);
        QVERIFY(!tree.has(u"to-folder"_s));
        QVERIFY(!tree.has(u"to-file"_s));
        QVERIFY(!tree.has(u"broken"_s));
    }

    void linksInARemovedFolderAreRemovedAndTheirTargetsStay()
    {
        const TestTree tree;
        tree.file(u"d/sub/f"_s);
        tree.link(m_fence->path(), u"d/sub/to-folder"_s);
        tree.link(m_fence->path(u"canary"_s), u"d/to-file"_s);
        FileRemover remover;
        QCOMPARE(remover.remove(tree.path(u"d"_s)).status, Status::Removed);
        QVERIFY(!tree.has(u"d"_s));
    }

    void nothingIsRemovedThroughALink()
    {
        const TestTree tree;
        tree.link(m_fence->path(), u"link"_s);
        FileRemover remover;
        QCOMPARE(remover.remove(tree.path(u"link/canary"_s)).status, Status::Failed);
        QCOMPARE(remover.remove(tree.path(u"link/folder/canary"_s)).status, Status::Failed);
        QCOMPARE(remover.remove(tree.path(u"link/folder"_s)).status, Status::Failed);
    }

    void aParentThatBecameALinkIsNotFollowed()
    {
        const TestTree tree;
        tree.file(u"d/canary"_s);
        FileRemover remover;
        QCOMPARE(remover.remove(tree.file(u"e/x"_s)).status, Status::Removed);
        QVERIFY(QDir(tree.path(u"d"_s)).removeRecursively());
        tree.link(m_fence->path(), u"d"_s);
        QCOMPARE(remover.remove(tree.path(u"d/canary"_s)).status, Status::Failed);
    }

    void nothingOutsideIsRemovedWhileParentsAreExchangedForLinks()
    {
        constexpr int folders = 20;
        constexpr int filesPerFolder = 2500;
        const TestTree tree;
        QStringList paths;
        for (int folder = 0; folder < folders; ++folder) {
            tree.folder(u"d%1"_s.arg(folder));
            m_fence->folder(u"d%1"_s.arg(folder));
            for (int i = 0; i < filesPerFolder; ++i) {
                const QString name = u"d%1/f%2"_s.arg(folder).arg(i);
                paths.append(tree.path(name));
                ::close(::creat(QFile::encodeName(tree.path(name)).constData(), 0600));
                ::close(::creat(QFile::encodeName(m_fence->path(name)).constData(), 0600));
            }
        }
        m_before = m_fence->snapshot();

        std::atomic_bool done = false;
        std::atomic_int exchanges = 0;
        const std::unique_ptr<QThread> attacker(QThread::create([&] {
            const QByteArray root = QFile::encodeName(tree.path());
            const QByteArray outside = QFile::encodeName(m_fence->path());
            while (!done) {
                for (int folder = 0; folder < folders && !done; ++folder) {
                    const QByteArray name = "/d" + QByteArray::number(folder);
                    if (::rename((root + name).constData(), (root + name + ".away").constData())
                            == 0
                        && ::symlink((outside + name).constData(), (root + name).constData()) == 0)
                        ++exchanges;
                    ::unlink((root + name).constData());
                    ::rename((root + name + ".away").constData(), (root + name).constData());
                }
            }
        }));
        attacker->start();
        int removed = 0;
        // Each remover removes a few files, so that the folder is opened often while it is
        // exchanged.
        for (qsizetype i = 0; i < paths.size();) {
            FileRemover remover;
            for (int n = 0; n < 5 && i < paths.size(); ++n, ++i)
                removed += remover.remove(paths.at(i)).status == Status::Removed ? 1 : 0;
        }
        done = true;
        QVERIFY(attacker->wait(30'000));
        QVERIFY(exchanges > 10);
        QVERIFY(removed > 0);
    }

#ifdef Q_OS_UNIX
    // The folder stays open between two of its files. Meanwhile another program moves it.
    void filesOfAMovedFolderAreNotRemoved()
    {
        const TestTree tree;
        QStringList paths;
        for (int i = 0; i < 300; ++i)
            paths.append(tree.file(u"listed/f%1"_s.arg(i)));
        removalsBeforeAction = 100;
        actionBetweenRemovals = [&tree] {
            QDir().rename(tree.path(u"listed"_s), tree.path(u"kept"_s));
        };
        FileRemover remover;
        int removed = 0;
        int replaced = 0;
        for (const QString &path : paths) {
            const FileRemover::Outcome outcome = remover.remove(path);
            removed += outcome.status == Status::Removed ? 1 : 0;
            replaced += outcome.status == Status::Replaced ? 1 : 0;
        }
        QCOMPARE(removed + replaced, 300);
        const auto remaining = QDir(tree.path(u"kept"_s)).entryList(QDir::Files).size();
        QCOMPARE(remaining, replaced);
        QVERIFY2(removed <= 100 + 32, qPrintable(QString::number(removed)));
        QVERIFY(!tree.has(u"listed"_s));
    }

    void aFolderThatReplacesTheListedOneDuringRemovalKeepsItsFiles_data()
    {
        QTest::addColumn<bool>("isListed");
        QTest::addColumn<QString>("how");
        for (const QString &how : {u"renamed"_s, u"bound"_s, u"mounted"_s}) {
            QTest::addRow("listed, %s", qPrintable(how)) << true << how;
            QTest::addRow("by hand, %s", qPrintable(how)) << false << how;
        }
    }
    void aFolderThatReplacesTheListedOneDuringRemovalKeepsItsFiles()
    {
        QFETCH(bool, isListed);
        QFETCH(QString, how);
        constexpr int files = 200;
        const TestTree tree;
        QStringList paths;
        for (int i = 0; i < files; ++i) {
            paths.append(tree.file(u"listed/f%1"_s.arg(i)));
            tree.file(u"other/f%1"_s.arg(i));
        }
        platform::ListedFolders listed;
        recordFolders(tree.path(), listed);
        const QString folder = tree.path(u"listed"_s);
        bool isExchanged = false;
        removalsBeforeAction = 10;
        actionBetweenRemovals = [&] { isExchanged = exchange(tree, how); };
        FileRemover remover;
        if (isListed)
            remover.setListed(&listed);
        int removed = 0;
        int replaced = 0;
        for (const QString &path : paths) {
            const Status status = remover.remove(path).status;
            removed += status == Status::Removed ? 1 : 0;
            replaced += status == Status::Replaced ? 1 : 0;
        }
        const int remaining = filesIn(folder);
        unmount(folder, how, isExchanged);
        if (!isExchanged)
            QSKIP("mounting is not allowed here");
        QCOMPARE(remaining, files);
        QCOMPARE(removed + replaced, files);
        QVERIFY2(removed <= 10 + 32, qPrintable(QString::number(removed)));
    }

    void aMountOverAListedFolderKeepsItsFiles_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("item");
        for (const QString &how : {u"bound"_s, u"mounted"_s}) {
            QTest::addRow("%s, a file", qPrintable(how)) << how << u"listed/f0"_s;
            QTest::addRow("%s, the folder", qPrintable(how)) << how << u"listed"_s;
        }
    }
    void aMountOverAListedFolderKeepsItsFiles()
    {
        QFETCH(QString, how);
        QFETCH(QString, item);
        const TestTree tree;
        tree.file(u"listed/f0"_s);
        tree.file(u"other/f0"_s);
        platform::ListedFolders listed;
        recordFolders(tree.path(), listed);
        const bool isExchanged = exchange(tree, how);
        FileRemover remover;
        remover.setListed(&listed);
        const Status status = remover.remove(tree.path(item)).status;
        const bool isFileKept = tree.has(u"listed/f0"_s);
        unmount(tree.path(u"listed"_s), how, isExchanged);
        if (!isExchanged)
            QSKIP("mounting is not allowed here");
        QVERIFY(isFileKept);
        QVERIFY(status == Status::Replaced || (item == "listed"_L1 && status == Status::Failed));
    }

    void aFolderMovedDuringItsRemovalIsNotEmptied_data()
    {
        QTest::addColumn<QString>("moved");
        QTest::addColumn<int>("kept"); ///< the number of folders whose files stay at least
        QTest::newRow("the folder itself") << u"around/listed"_s << 5;
        QTest::newRow("a folder above it") << u"around"_s << 5;
        QTest::newRow("a folder in it") << u"around/listed/sub"_s << 4;
    }
    void aFolderMovedDuringItsRemovalIsNotEmptied()
    {
        QFETCH(QString, moved);
        QFETCH(int, kept);
        const TestTree tree;
        constexpr int filesInFolder = 100;
        for (const QString &folder :
             {u"around/listed"_s, u"around/listed/sub"_s, u"around/listed/sub/a"_s,
              u"around/listed/sub/b"_s, u"around/listed/sub/a/deep"_s}) {
            for (int i = 0; i < filesInFolder; ++i)
                tree.file(u"%1/f%2"_s.arg(folder, QString::number(i)));
        }
        tree.file(u"around/precious"_s);
        // The files of the folder itself are removed first, then those of its only subfolder.
        const bool isInside = moved.endsWith("sub"_L1);
        removalsBeforeAction = isInside ? filesInFolder + 20 : 20;
        actionBetweenRemovals = [&] { QDir().rename(tree.path(moved), tree.path(u"kept"_s)); };
        const FileRemover::Outcome outcome = FileRemover().remove(tree.path(u"around/listed"_s));
        QCOMPARE(outcome.status, Status::Replaced);
        QVERIFY(outcome.wasFolder);
        int remaining = 0;
        QDirIterator it(tree.path(u"kept"_s), QDir::Files, QDirIterator::Subdirectories);
        for (; it.hasNext(); it.next())
            ++remaining;
        QVERIFY2(remaining >= kept * filesInFolder - 20 - 32,
                 qPrintable(QString::number(remaining)));
    }

    void aSubfolderThatBecomesSomethingElseDuringTheRemovalKeepsItsFiles_data()
    {
        QTest::addColumn<QString>("replacement");
        QTest::newRow("a link to a folder") << u"link"_s;
        QTest::newRow("a file") << u"file"_s;
        QTest::newRow("nothing") << QString();
    }
    void aSubfolderThatBecomesSomethingElseDuringTheRemovalKeepsItsFiles()
    {
        QFETCH(QString, replacement);
        const TestTree tree;
        tree.file(u"listed/f"_s);
        tree.file(u"listed/sub/precious"_s);
        removalsBeforeAction = 1; // the first tries to remove a file
        actionBetweenRemovals = [&] {
            QDir().rename(tree.path(u"listed/sub"_s), tree.path(u"kept"_s));
            if (replacement == "link"_L1)
                tree.link(m_fence->path(u"folder"_s), u"listed/sub"_s);
            else if (replacement == "file"_L1)
                tree.file(u"listed/sub"_s);
        };
        const FileRemover::Outcome outcome = FileRemover().remove(tree.path(u"listed"_s));
        QVERIFY2(outcome.status == Status::Removed, qPrintable(outcome.error));
        QVERIFY(!tree.has(u"listed"_s));
        QVERIFY(tree.has(u"kept/precious"_s));
    }

    void aFileThatComesDuringTheRemovalOfItsFolderStays()
    {
        const TestTree tree;
        tree.file(u"listed/f"_s);
        removalsBeforeAction = 2; // only the folder is left
        actionBetweenRemovals = [&] { tree.file(u"listed/new"_s); };
        const FileRemover::Outcome outcome = FileRemover().remove(tree.path(u"listed"_s));
        QCOMPARE(outcome.status, Status::Failed);
        QCOMPARE(outcome.error, qt_error_string(ENOTEMPTY));
        QVERIFY(outcome.wasFolder);
        QVERIFY(tree.has(u"listed/new"_s));
    }

    // The remover holds few of the levels open. It opens the others again on its way back.
    void aHighFolderMovedDuringTheRemovalOfADeepTreeKeepsItsFiles_data()
    {
        QTest::addColumn<bool>("isReplaced");
        QTest::newRow("nothing takes its place") << false;
        QTest::newRow("another folder takes its place") << true;
    }
    void aHighFolderMovedDuringTheRemovalOfADeepTreeKeepsItsFiles()
    {
        QFETCH(bool, isReplaced);
        const TestTree tree;
        constexpr int levels = 150;
        const QString moved = u"listed"_s + u"/n"_s.repeated(10);
        QString path = u"listed"_s;
        for (int i = 0; i < levels; ++i) {
            tree.file(path + "/f"_L1);
            // Entered last: the folders are emptied in the reverse order of the listing.
            tree.file(path + "/other/precious"_L1);
            path += "/n"_L1;
        }
        tree.folder(path);
        const auto preciousFiles = [&tree](const QString &folder) {
            int count = 0;
            QDirIterator it(tree.path(folder), {u"precious"_s}, QDir::Files,
                            QDirIterator::Subdirectories);
            for (; it.hasNext(); it.next())
                ++count;
            return count;
        };
        int before = 0;
        // One file a level on the way down, three entries on the way back, as long as the levels
        // are open.
        removalsBeforeAction = levels + 3 * 63;
        actionBetweenRemovals = [&] {
            QDir().rename(tree.path(moved), tree.path(u"kept"_s));
            for (int i = 0; i < levels && isReplaced; ++i)
                tree.file(moved + u"/n"_s.repeated(i) + "/other/precious"_L1);
            before = preciousFiles(u"kept"_s);
        };
        const FileRemover::Outcome outcome = FileRemover().remove(tree.path(u"listed"_s));
        QCOMPARE(outcome.status, Status::Replaced);
        // The place is compared every few entries.
        QVERIFY2(preciousFiles(u"kept"_s) > before - 32,
                 qPrintable(QString::number(preciousFiles(u"kept"_s))));
        QCOMPARE(preciousFiles(moved), isReplaced ? levels : 0);
    }

    void aFileInAFolderWithoutReadPermissionIsRemoved()
    {
        const TestTree tree;
        const QString path = tree.file(u"closed/a"_s);
        tree.file(u"closed/b"_s);
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0755), 0);
        QCOMPARE(::chmod(QFile::encodeName(tree.path(u"closed"_s)).constData(), 0733), 0);
        Status status = Status::Failed;
        {
            const OrdinaryUser user;
            status = FileRemover().remove(path).status;
        }
        QCOMPARE(status, Status::Removed);
        QVERIFY(tree.has(u"closed/b"_s));
    }
#endif

    void hardLinkedFilesKeepTheirModeAndContent()
    {
        const TestTree tree;
        const QString kept = tree.file(u"kept"_s, "content");
        tree.folder(u"d"_s);
        QCOMPARE(::chmod(QFile::encodeName(kept).constData(), 0444), 0);
        for (const QString &name : {u"alone"_s, u"d/inside"_s})
            QCOMPARE(::link(QFile::encodeName(kept).constData(),
                            QFile::encodeName(tree.path(name)).constData()),
                     0);
        FileRemover remover;
        QCOMPARE(remover.remove(tree.path(u"alone"_s)).status, Status::Removed);
        QCOMPARE(remover.remove(tree.path(u"d"_s)).status, Status::Removed);
        struct stat status {
        };
        QCOMPARE(::stat(QFile::encodeName(kept).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, 0444u);
        QCOMPARE(status.st_size, 7);
        QCOMPARE(status.st_nlink, 1u);
    }

    void aReadOnlyFolderKeepsItsFilesButNotInsideARemovedOne()
    {
        const OrdinaryUser user;
        const TestTree tree;
        tree.file(u"d/locked/sub/f"_s);
        const QByteArray locked = QFile::encodeName(tree.path(u"d/locked"_s));
        const QByteArray sub = QFile::encodeName(tree.path(u"d/locked/sub"_s));
        QCOMPARE(::chmod(sub.constData(), 0500), 0);
        QCOMPARE(::chmod(locked.constData(), 0500), 0);
        FileRemover remover;
        const FileRemover::Outcome fileOutcome = remover.remove(tree.path(u"d/locked/sub/f"_s));
        QCOMPARE(fileOutcome.status, Status::Failed);
        QVERIFY(!fileOutcome.wasFolder);
        QVERIFY(!fileOutcome.error.isEmpty());
        QVERIFY(tree.has(u"d/locked/sub/f"_s));
        const FileRemover::Outcome folderOutcome = remover.remove(tree.path(u"d"_s));
        QVERIFY2(folderOutcome.status == Status::Removed, qPrintable(folderOutcome.error));
        QVERIFY(!tree.has(u"d"_s));
    }

    void aFolderThatStaysKeepsItsPermissions()
    {
        const OrdinaryUser user;
        const TestTree tree;
        const QStringList folders{u"d"_s, u"d/sub"_s, u"d/sub/below"_s};
        for (const QString &folder : folders) {
            tree.file(folder + "/f"_L1);
            tree.file(folder + "/removed/f"_L1);
        }
        tree.file(u"d/sub/below/closed/f"_s);
        const auto setMode = [&tree](const QString &path, mode_t mode) {
            QCOMPARE(::chmod(QFile::encodeName(tree.path(path)).constData(), mode), 0);
        };
        setMode(u"d/sub/below/closed"_s, 0);
        for (auto folder = folders.crbegin(); folder != folders.crend(); ++folder)
            setMode(*folder, 0500);
        const FileRemover::Outcome outcome = FileRemover().remove(tree.path(u"d"_s));
        QCOMPARE(outcome.status, Status::Failed);
        for (const QString &folder : folders) {
            QVERIFY(!tree.has(folder + "/f"_L1) && !tree.has(folder + "/removed"_L1));
            struct stat status {
            };
            QCOMPARE(::stat(QFile::encodeName(tree.path(folder)).constData(), &status), 0);
            QVERIFY2((status.st_mode & 07777) == 0500, qPrintable(folder));
        }
        for (const QString &folder : folders)
            setMode(folder, 0700);
        setMode(u"d/sub/below/closed"_s, 0700);
    }

    void aMountInsideARemovedFolderStays()
    {
        const TestTree tree;
        tree.file(u"d/a"_s);
        const QByteArray bound = QFile::encodeName(tree.folder(u"d/bound"_s));
        if (::mount(QFile::encodeName(m_fence->path()).constData(), bound.constData(), nullptr,
                    MS_BIND, nullptr)
            != 0)
            QSKIP("mounting is not allowed here");
        FileRemover remover;
        const FileRemover::Outcome outcome = remover.remove(tree.path(u"d"_s));
        const bool isFileKept = tree.has(u"d/bound/canary"_s);
        ::umount2(bound.constData(), MNT_DETACH);
        QCOMPARE(outcome.status, Status::Failed);
        QVERIFY(isFileKept);
        QVERIFY(!tree.has(u"d/a"_s));
    }

    void aPipeIsRemovedWithoutBeingOpened()
    {
        const TestTree tree;
        const QByteArray pipe = QFile::encodeName(tree.path(u"pipe"_s));
        QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
        FileRemover remover;
        QCOMPARE(remover.remove(tree.path(u"pipe"_s)).status, Status::Removed);
    }

    void manyLevelsWithManyBranchesAreRemoved()
    {
        const TestTree tree;
        QString path = u"d"_s;
        for (int depth = 0; depth < 150; ++depth) {
            tree.file(path + u"/a/f"_s, {});
            tree.file(path + u"/z/f"_s, {});
            path += u"/m"_s;
        }
        FileRemover remover;
        const FileRemover::Outcome outcome = remover.remove(tree.path(u"d"_s));
        QVERIFY2(outcome.status == Status::Removed, qPrintable(outcome.error));
        QVERIFY(!tree.has(u"d"_s));
    }

    void fiveThousandNestedFoldersAreRemoved()
    {
        // Without openat2 each check of a path takes one call a level.
        const int levels = qEnvironmentVariableIsSet("OLD_SYSTEM") ? 500 : 5000;
        const TestTree tree;
        tree.folder(u"d"_s);
        int fd = ::open(QFile::encodeName(tree.path(u"d"_s)).constData(), O_RDONLY | O_DIRECTORY);
        for (int depth = 0; depth < levels; ++depth) {
            QCOMPARE(::mkdirat(fd, "nested", 0700), 0);
            ::close(::openat(fd, "file", O_CREAT | O_WRONLY, 0600));
            const int next = ::openat(fd, "nested", O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = next;
        }
        ::close(fd);
        FileRemover remover;
        const FileRemover::Outcome outcome = remover.remove(tree.path(u"d"_s));
        QVERIFY2(outcome.status == Status::Removed, qPrintable(outcome.error));
        QVERIFY(!tree.has(u"d"_s));
    }

    void aPathLongerThanOneCallAllowsIsRemoved()
    {
        const TestTree tree;
        const QByteArray name(200, 'n');
        QString path = tree.path();
        int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY);
        while (path.size() < 6000) {
            QCOMPARE(::mkdirat(fd, name.constData(), 0700), 0);
            const int next = ::openat(fd, name.constData(), O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = next;
            path += u'/' + QString::fromLatin1(name);
        }
        ::close(::openat(fd, "file", O_CREAT | O_WRONLY, 0600));
        FileRemover remover;
        QCOMPARE(remover.remove(path + "/file"_L1).status, Status::Removed);
        QCOMPARE(::faccessat(fd, "file", F_OK, 0), -1);
        ::close(fd);
        QCOMPARE(remover.remove(tree.path() + u'/' + QString::fromLatin1(name)).status,
                 Status::Removed);
    }
#endif

private:
#ifdef Q_OS_UNIX
    // Replaces "listed" by "other", or by another file system with the same files. False where that
    // is not allowed.
    static bool exchange(const TestTree &tree, const QString &how)
    {
        const QString folder = tree.path(u"listed"_s);
        if (how == "renamed"_L1)
            return QDir().rename(folder, tree.path(u"away"_s))
                && QDir().rename(tree.path(u"other"_s), folder);
        const QByteArray folderPath = QFile::encodeName(folder);
        const QByteArray other = QFile::encodeName(tree.path(u"other"_s));
        if (how == "bound"_L1)
            return ::mount(other.constData(), folderPath.constData(), nullptr, MS_BIND, nullptr)
                == 0;
        if (::mount("none", folderPath.constData(), "tmpfs", 0, nullptr) != 0)
            return false;
        for (int i = 0; i < 200; ++i)
            tree.file(u"listed/f%1"_s.arg(i));
        return true;
    }

    static void unmount(const QString &folder, const QString &how, bool isExchanged)
    {
        if (isExchanged && how != "renamed"_L1)
            ::umount2(QFile::encodeName(folder).constData(), MNT_DETACH);
    }
#endif

    std::unique_ptr<TestTree> m_fence;
    QMap<QString, QString> m_before;
};

QTEST_GUILESS_MAIN(TestFileRemove)
#include "tst_fileremove.moc"
