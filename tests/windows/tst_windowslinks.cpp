#include "filewalk.h"

#include "browsercleaner.h"
#include "browserprofiles.h"
#include "fakelinks.h"
#include "fileremove.h"
#include "folderlister.h"
#include "ownfile.h"
#include "protectedplaces.h"
#include "rulefolders.h"
#include "testtree.h"
#include "windowsfiles.h"

#include <QDir>
#include <QTest>

#include <atomic>
#include <thread>

#include <windows.h>

using namespace Qt::StringLiterals;
using namespace windowsfiles;
using platform::EntryKind;
using platform::FileRemover;
using platform::ReadFailures;
using Status = FileRemover::Status;

namespace {

FileRemover::Outcome remove(const QString &path)
{
    return FileRemover().remove(path);
}

constexpr quint32 pipeTag = 0x80000024;
constexpr quint32 cloudTag = 0x9000001A;
constexpr quint32 deduplicationTag = 0x80000013;

} // namespace

class TestWindowsLinks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { fakelinks::clear(); }

    void aReparseTagDecidesWhatAFolderIs_data()
    {
        QTest::addColumn<quint32>("tag");
        QTest::addColumn<bool>("entered");
        QTest::addColumn<EntryKind>("kind");
        QTest::newRow("junction or mount point")
            << quint32(IO_REPARSE_TAG_MOUNT_POINT) << false << EntryKind::Link;
        QTest::newRow("symbolic link")
            << quint32(IO_REPARSE_TAG_SYMLINK) << false << EntryKind::Link;
        QTest::newRow("cloud folder") << cloudTag << true << EntryKind::Folder;
        QTest::newRow("deduplicated") << deduplicationTag << true << EntryKind::Folder;
    }

    void aReparseTagDecidesWhatAFolderIs()
    {
        QFETCH(quint32, tag);
        QFETCH(bool, entered);
        QFETCH(EntryKind, kind);
        const TestTree tree;
        tree.file(u"folder/tagged/sub/file"_s, "precious");
        fakelinks::tag(u"tagged"_s, tag);
        QCOMPARE(platform::inspect(tree.path(u"folder/tagged"_s)).kind, kind);
        QCOMPARE(walk(tree.path()),
                 entered ? QStringList{u"folder/tagged/sub/file"_s} : QStringList());
        // The target of a link stays when the link's folder is removed. The fake link cannot be
        // removed here, because it is a folder that is not empty.
        QCOMPARE(remove(tree.path(u"folder"_s)).status, entered ? Status::Removed : Status::Failed);
        fakelinks::clear();
        QCOMPARE(tree.has(u"folder/tagged/sub/file"_s), !entered);
    }

    void aReparseTagDecidesWhatAFileIs_data()
    {
        QTest::addColumn<quint32>("tag");
        QTest::addColumn<bool>("listed");
        QTest::addColumn<EntryKind>("kind");
        QTest::newRow("symbolic link")
            << quint32(IO_REPARSE_TAG_SYMLINK) << true << EntryKind::Link;
        QTest::newRow("cloud file") << cloudTag << true << EntryKind::File;
        QTest::newRow("pipe") << pipeTag << false << EntryKind::Other;
    }

    void aReparseTagDecidesWhatAFileIs()
    {
        QFETCH(quint32, tag);
        QFETCH(bool, listed);
        QFETCH(EntryKind, kind);
        const TestTree tree;
        tree.file(u"folder/tagged"_s);
        fakelinks::tag(u"tagged"_s, tag);
        QCOMPARE(platform::inspect(tree.path(u"folder/tagged"_s)).kind, kind);
        QCOMPARE(walk(tree.path()), listed ? QStringList{u"folder/tagged"_s} : QStringList());
        QCOMPARE(remove(tree.path(u"folder"_s)).status, Status::Removed);
        QVERIFY(!tree.has(u"folder"_s));
    }

    void aFileSystemWithoutReparseTagsIsHandled()
    {
        const TestTree tree;
        const QString file = tree.file(u"folder/sub/file"_s);
        tree.file(u"folder/other"_s);
        fakelinks::refuseTags();
        QCOMPARE(platform::inspect(file).kind, EntryKind::File);
        QCOMPARE(platform::inspect(tree.path(u"folder"_s)).kind, EntryKind::Folder);
        QCOMPARE(walk(tree.path()), (QStringList{u"folder/other"_s, u"folder/sub/file"_s}));
        QCOMPARE(remove(file).status, Status::Removed);
        QCOMPARE(remove(tree.path(u"folder"_s)).status, Status::Removed);
        QVERIFY(!tree.has(u"folder"_s));
    }

    void whatCannotBeReadIsReported_data()
    {
        QTest::addColumn<QString>("refused");
        QTest::addColumn<quint32>("tag");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("folder") << u"sub"_s << quint32(0) << QStringList{u"file"_s};
        QTest::newRow("file link")
            << u"file"_s << quint32(IO_REPARSE_TAG_SYMLINK) << QStringList{u"sub/other"_s};
    }

    void whatCannotBeReadIsReported()
    {
        QFETCH(QString, refused);
        QFETCH(quint32, tag);
        QFETCH(QStringList, listed);
        const TestTree tree;
        tree.file(u"file"_s);
        tree.file(u"sub/other"_s);
        if (tag != 0)
            fakelinks::tag(refused, tag);
        fakelinks::refuse(refused, ERROR_READ_FAULT);
        QStringList names;
        const ReadFailures report =
            platform::walkFiles(tree.path(), {}, [&](platform::WalkedFile &&file) {
                names.append(file.path.sliced(tree.path().size() + 1));
            });
        QCOMPARE(names, listed);
        QCOMPARE(report.count(), 1);
        QCOMPARE(report.kept().constFirst().where, tree.path(refused));
        const platform::FolderListing listing =
            platform::FolderLister().list(tag == 0 ? tree.path(refused) : tree.path());
        QVERIFY(!listing.error.isEmpty());
        QVERIFY(!listing.isMissing);
    }

    void aListingThatBreaksOffIsReported()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        fakelinks::breakListings(ERROR_READ_FAULT);
        const ReadFailures report =
            platform::walkFiles(tree.path(), {}, [](platform::WalkedFile &&) {});
        QCOMPARE(report.count(), 1);
        QCOMPARE(report.kept().constFirst().where, tree.path());
    }

    // The folder may be one of those that cannot be examined.
    void whileAProtectedPlaceIsUnknownEveryFolderIsProtected_data()
    {
        QTest::addColumn<quint32>("error");
        QTest::addColumn<bool>("isProtected");
        QTest::newRow("nothing fails") << quint32(0) << false;
        QTest::newRow("missing") << quint32(ERROR_FILE_NOT_FOUND) << false;
        // Another user's profile refuses each walk, too.
        QTest::newRow("without the right") << quint32(ERROR_ACCESS_DENIED) << false;
        QTest::newRow("fault") << quint32(ERROR_READ_FAULT) << true;
    }

    void whileAProtectedPlaceIsUnknownEveryFolderIsProtected()
    {
        QFETCH(quint32, error);
        QFETCH(bool, isProtected);
        const TestTree tree;
        QVERIFY(QDir().mkpath(QDir::homePath() + "/Saved Games"_L1));
        if (error != 0)
            fakelinks::refuse(u"saved games"_s, error);
        (void)platform::folderFailures();
        QCOMPARE(platform::ProtectedPlaces().isProtectedRoot(tree.folder(u"clutter"_s)),
                 isProtected);
        QCOMPARE(!platform::folderFailures().isEmpty(), isProtected);
    }

    void aFileOfOursIsNotWrittenThroughALink()
    {
        const TestTree tree;
        QFile file(tree.file(u"file"_s, "old"));
        fakelinks::tag(u"file"_s, IO_REPARSE_TAG_SYMLINK);
        QString error;
        QVERIFY(!platform::replaceFile(
            file.fileName(), "new", [] { return QString(); }, error));
        QVERIFY(!error.isEmpty());
        fakelinks::clear();
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "old");
    }

    void nothingBehindAJunctionIsListed()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        const TestTree tree;
        tree.file(u"own"_s);
        fakelinks::makeJunction(tree.folder(u"junction"_s), outside.path());
        QCOMPARE(walk(tree.path()), QStringList{u"own"_s});
        QCOMPARE(platform::inspect(tree.path(u"junction"_s)).kind, EntryKind::Link);
        QCOMPARE(platform::inspect(tree.path(u"junction/precious"_s)).kind, EntryKind::Link);
        for (const QString &root : {u"junction"_s, u"junction/sub"_s}) {
            outside.file(u"sub/precious"_s);
            const ReadFailures report =
                platform::walkFiles(tree.path(root), {}, [](platform::WalkedFile &&file) {
                    QFAIL(qPrintable("listed "_L1 + file.path));
                });
            QCOMPARE(report.count(), 1);
        }
    }

    void aBrowserProfileIsCleanedAroundAJunction()
    {
        const TestTree outside;
        browserprofiles::makeChromium(outside, u"Profile 9"_s);
        const auto before = outside.snapshot();
        const TestTree tree;
        const QString root = u"Local/Google/Chrome/User Data/"_s;
        tree.file(root + "Default/Cache/own"_L1, "1");
        fakelinks::makeJunction(tree.folder(root + "Default/Cache/junction"_L1), outside.path());
        BrowserCleaner cleaner({tree.path(u"Local"_s), tree.folder(u"Roaming"_s)});
        cleaner.loadRules(u":/rules/browser_rules.json"_s);
        cleaner.startScan();
        QTRY_COMPARE_WITH_TIMEOUT(cleaner.state(), CleanEngine::State::Finished, 30'000);
        const ScanResult result = cleaner.result();
        QCOMPARE(result.categories.size(), 1);
        QStringList names;
        for (const CleanItem &item : result.categories.constFirst().items)
            names.append(u"%1 %2"_s.arg(item.name, QString::number(item.size)));
        names.sort();
        QCOMPARE(names, (QStringList{u"junction 0"_s, u"own 1"_s}));
        cleaner.startClean();
        QTRY_COMPARE_WITH_TIMEOUT(cleaner.state(), CleanEngine::State::Finished, 30'000);
        cleaner.stopAndWait();
        fakelinks::clear();
        QVERIFY(cleaner.failures().isEmpty());
        QVERIFY(!tree.has(root + "Default/Cache/own"_L1));
        QVERIFY(!tree.has(root + "Default/Cache/junction"_L1));
        QCOMPARE(outside.snapshot(), before);
    }

    void aJunctionInARemovedFolderIsRemovedAndItsTargetStays()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        outside.file(u"sub/precious"_s);
        const auto before = outside.snapshot();
        const TestTree tree;
        tree.file(u"folder/sub/file"_s);
        fakelinks::makeJunction(tree.folder(u"folder/sub/junction"_s), outside.path());
        const FileRemover::Outcome outcome = remove(tree.path(u"folder"_s));
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.status, Status::Removed);
        fakelinks::clear();
        QVERIFY(!tree.has(u"folder"_s));
        QCOMPARE(outside.snapshot(), before);
    }

    void aJunctionIsRemovedAndItsTargetStays()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        const auto before = outside.snapshot();
        const TestTree tree;
        fakelinks::makeJunction(tree.folder(u"junction"_s), outside.path());
        const FileRemover::Outcome outcome = remove(tree.path(u"junction"_s));
        QCOMPARE(outcome.status, Status::Removed);
        QVERIFY(!outcome.wasFolder);
        fakelinks::clear();
        QVERIFY(!tree.has(u"junction"_s));
        QCOMPARE(outside.snapshot(), before);
    }

    void nothingIsRemovedThroughAJunction()
    {
        const TestTree outside;
        outside.file(u"precious"_s);
        outside.file(u"sub/precious"_s);
        const auto before = outside.snapshot();
        const TestTree tree;
        fakelinks::makeJunction(tree.folder(u"junction"_s), outside.path());
        for (const QString &path :
             {u"junction/precious"_s, u"junction/sub"_s, u"junction/sub/precious"_s}) {
            const FileRemover::Outcome outcome = remove(tree.path(path));
            QCOMPARE(outcome.status, Status::Failed);
            QVERIFY(!outcome.error.isEmpty());
        }
        fakelinks::clear();
        QCOMPARE(outside.snapshot(), before);
    }

    void nothingOutsideIsRemovedWhileAParentIsExchangedForALink()
    {
        constexpr int fileCount = 5000;
        const TestTree outside;
        const TestTree tree;
        const QString parent = tree.folder(u"parent"_s);
        for (int i = 0; i < fileCount; ++i) {
            outside.file(u"f%1"_s.arg(i), {});
            tree.file(u"parent/f%1"_s.arg(i), {});
        }
        fakelinks::makeJunction(parent, outside.path());

        std::atomic_bool isDone = false;
        std::thread exchange([&isDone] {
            for (bool active = false; !isDone; active = !active) {
                fakelinks::setJunctionActive(active);
                std::this_thread::sleep_for(std::chrono::microseconds(50));
            }
        });
        int removed = 0;
        int refused = 0;
        FileRemover remover;
        for (int i = 0; i < fileCount; ++i) {
            const FileRemover::Outcome outcome = remover.remove(parent + u"/f%1"_s.arg(i));
            ++(outcome.status == Status::Removed ? removed : refused);
        }
        isDone = true;
        exchange.join();
        fakelinks::clear();

        QCOMPARE(walk(outside.path()).size(), fileCount);
        QCOMPARE(walk(parent).size(), refused);
        // Otherwise the exchange was too slow and the test shows nothing.
        QVERIFY2(removed > fileCount / 20 && refused > fileCount / 20,
                 qPrintable(u"removed %1, refused %2"_s.arg(removed).arg(refused)));
    }

    // Another program moves the folder between two of its files.
    void filesOfAMovedFolderStay()
    {
        const TestTree tree;
        const QStringList paths = makeFiles(tree);
        bool isMoved = false;
        fakelinks::callAfterRemovals(50, [&] { isMoved = exchange(tree); });
        FileRemover remover;
        int removed = 0;
        for (const QString &path : paths) {
            const Status status = remover.remove(path).status;
            removed += status == Status::Removed ? 1 : 0;
            QVERIFY(status == Status::Removed || status == Status::Replaced);
        }
        QVERIFY(isMoved);
        QCOMPARE(removed, 50);
        QCOMPARE(walk(tree.path(u"kept"_s)).size(), manyFiles - removed);
        QCOMPARE(walk(tree.path(u"top"_s)).size(), manyFiles);
    }

    void aFolderThatIsMovedDuringItsRemovalKeepsItsFiles()
    {
        const TestTree tree;
        makeFiles(tree);
        bool isMoved = false;
        fakelinks::callAfterRemovals(50, [&] { isMoved = exchange(tree); });
        const Status status = remove(tree.path(u"top/folder"_s)).status;
        if (!isMoved)
            QSKIP("the system lets nobody move a folder that is being listed");
        QCOMPARE(status, Status::Replaced);
        QCOMPARE(walk(tree.path(u"kept"_s)).size(), manyFiles - 50);
        QCOMPARE(walk(tree.path(u"top"_s)).size(), manyFiles);
    }

    void filesOfTheSameNameInTwoFoldersAreTwo()
    {
        const TestTree tree;
        FileRemover remover;
        const QString top = tree.file(u"file"_s);
        const QString first = tree.file(u"a/file"_s);
        QCOMPARE(remover.remove(tree.file(u"a/x"_s)).status, Status::Removed);
        QCOMPARE(remover.remove(tree.file(u"b/file"_s)).status, Status::Removed);
        QCOMPARE(walk(tree.path()), (QStringList{u"a/file"_s, u"file"_s}));
        QCOMPARE(remover.remove(top).status, Status::Removed);
        QCOMPARE(remover.remove(first).status, Status::Removed);
    }

    // Some file systems number no files. Then nothing tells one folder from another.
    void aLargeFolderWithoutANumberIsRemoved()
    {
        const TestTree tree;
        makeFiles(tree);
        fakelinks::hideNumbers();
        QCOMPARE(remove(tree.path(u"top/folder"_s)).status, Status::Removed);
        QVERIFY(!tree.has(u"top/folder"_s));
    }

    // It has come to the place of the listed one. A folder may have both, as well.
    void aFileWhoseNameDiffersInCaseStays()
    {
        const TestTree tree;
        tree.file(u"folder/LOG.TXT"_s);
        FileRemover remover;
        QCOMPARE(remover.remove(tree.file(u"folder/other"_s)).status, Status::Removed);
        QCOMPARE(remover.remove(tree.path(u"folder/log.txt"_s)).status, Status::NotFound);
        QVERIFY(tree.has(u"folder/LOG.TXT"_s));
    }

    void otherNamesOfAFileAreRefused()
    {
        const TestTree tree;
        const QString file = tree.file(u"a long name.text"_s);
        wchar_t shortPath[MAX_PATH] = {};
        QVERIFY(::GetShortPathNameW(
            reinterpret_cast<const wchar_t *>(QDir::toNativeSeparators(file).utf16()), shortPath,
            MAX_PATH));
        const QString shortName = QString::fromWCharArray(shortPath).section(u'\\', -1);
        if (shortName.contains(u'~')) // a volume can be without short names
            QVERIFY(remove(tree.path(shortName)).status != Status::Removed);
        QVERIFY(remove(file + ":stream"_L1).status != Status::Removed);
        QVERIFY(remove(file + "::$DATA"_L1).status != Status::Removed);
        QVERIFY(remove(file + u'.').status != Status::Removed);
        QVERIFY(remove(file + u' ').status != Status::Removed);
        QCOMPARE(content(file), QByteArray("content"));
    }

    void aRealFolderLinkIsNotEnteredAndItsTargetStays()
    {
        const TestTree outside;
        outside.file(u"sub/precious"_s);
        const auto before = outside.snapshot();
        const TestTree tree;
        tree.file(u"folder/own"_s);
        const QString link = tree.path(u"folder/link"_s);
        makeFolderLink(link, outside.path());
        QVERIFY(tree.has(u"folder/link/sub/precious"_s));

        QCOMPARE(walk(tree.path()), QStringList{u"folder/own"_s});
        QCOMPARE(platform::inspect(link).kind, EntryKind::Link);
        QCOMPARE(platform::inspect(link + "/sub/precious"_L1).kind, EntryKind::Link);
        QCOMPARE(remove(link + "/sub/precious"_L1).status, Status::Failed);
        QCOMPARE(remove(link + "/sub"_L1).status, Status::Failed);
        QCOMPARE(outside.snapshot(), before);

        // Wine always opens the target of such a link, so the link has to stay.
        const Status expected = isWine() ? Status::Failed : Status::Removed;
        QCOMPARE(remove(tree.path(u"folder"_s)).status, expected);
        QCOMPARE(remove(link).status, isWine() ? Status::Failed : Status::NotFound);
        QVERIFY(!tree.has(u"folder/own"_s));
        QCOMPARE(tree.has(u"folder"_s), isWine());
        QCOMPARE(outside.snapshot(), before);
        if (isWine())
            removeFolderLink(link);
    }

    void removingARealLinkKeepsItsEmptyTarget()
    {
        const TestTree tree;
        tree.folder(u"empty"_s);
        makeFolderLink(tree.path(u"link"_s), tree.path(u"empty"_s));
        const FileRemover::Outcome outcome = remove(tree.path(u"link"_s));
        QCOMPARE(outcome.status, isWine() ? Status::Failed : Status::Removed);
        QVERIFY(!outcome.wasFolder);
        QVERIFY(tree.has(u"empty"_s));
        if (isWine())
            removeFolderLink(tree.path(u"link"_s));
    }

    void linksInTheBaseAreResolvedButNotInWhatTheRuleAppends()
    {
        const TestTree tree;
        tree.folder(u"real/sub"_s);
        makeFolderLink(tree.path(u"base"_s), tree.path(u"real"_s));
        makeFolderLink(tree.path(u"real/planted"_s), tree.path(u"real/sub"_s));
        QCOMPARE(platform::locate(tree.path(u"base"_s), u"\\sub"_s), tree.path(u"real/sub"_s));
        QCOMPARE(platform::locate(tree.path(u"base"_s), u"\\planted"_s),
                 tree.path(u"real/planted"_s));
        QCOMPARE(platform::locate(tree.path(u"base"_s), u"\\planted\\x"_s),
                 tree.path(u"real/planted/x"_s));
        removeFolderLink(tree.path(u"real/planted"_s));
        removeFolderLink(tree.path(u"base"_s));
    }

private:
    static QStringList makeFiles(const TestTree &tree)
    {
        QStringList paths;
        for (int i = 0; i < manyFiles; ++i) {
            paths.append(tree.file(u"top/folder/f%1"_s.arg(i)));
            tree.file(u"other/folder/f%1"_s.arg(i));
        }
        return paths;
    }

    /// Moves the folder and puts another one with the same names in its place.
    static bool exchange(const TestTree &tree)
    {
        return QDir().rename(tree.path(u"top"_s), tree.path(u"kept"_s))
            && QDir().rename(tree.path(u"other"_s), tree.path(u"top"_s));
    }

    static constexpr int manyFiles = 200;
};

QTEST_GUILESS_MAIN(TestWindowsLinks)
#include "tst_windowslinks.moc"
