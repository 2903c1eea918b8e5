#include "listedfolders.h"

#include "entrywalk.h"
#include "filewalk.h"
#include "testtree.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::EntryId;
using platform::ListedFolders;

namespace {

/// A visitor for walks that only fill ListedFolders.
class IgnoringVisitor final : public platform::EntryVisitor
{
public:
    void visitEntry(platform::WalkedEntry &&) override { }
    void leaveFolder(qint64, bool) override { }
};

} // namespace

class TestListedFolders : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aFolderIsKnownByItsPath()
    {
        ListedFolders listed;
        listed.add(u"/a/b"_s, {1, 2});
        listed.add(u"/a/b"_s, {1, 2});
        listed.add(u"C:/"_s, {1, 3});
        listed.add(u"/a/unknown"_s, {});
        QCOMPARE(listed.idOf(u"/a/b"_s), (EntryId{1, 2}));
        QCOMPARE(listed.idOf(u"C:"_s), (EntryId{1, 3}));
        QVERIFY(!listed.idOf(u"/a"_s).isKnown());
        QVERIFY(!listed.idOf(u"/a/unknown"_s).isKnown());
        listed.clear();
        QVERIFY(!listed.idOf(u"/a/b"_s).isKnown());
    }

    // If two rules list one path, one may have found the old folder and the other the new one.
    void aPathWithTwoDifferentFoldersMatchesNeither()
    {
        ListedFolders listed;
        for (const EntryId &id : {EntryId{1, 2}, EntryId{1, 3}, EntryId{1, 2}, EntryId{1, 3}})
            listed.add(u"/a"_s, id);
        QVERIFY(listed.idOf(u"/a"_s).isKnown());
        QVERIFY((listed.idOf(u"/a"_s) != EntryId{1, 2}));
        QVERIFY((listed.idOf(u"/a"_s) != EntryId{1, 3}));
    }

    void aWalkRecordsTheFoldersThatItListsFrom()
    {
        const TestTree tree;
        tree.file(u"a/f.log"_s);
        tree.file(u"b/f.txt"_s);
        ListedFolders listed;
        platform::walkFiles(
            tree.path(), {{u"*.log"_s}}, [](platform::WalkedFile &&) {}, &listed);
        QVERIFY(listed.idOf(tree.path(u"a"_s)).isKnown());
        QVERIFY(!listed.idOf(tree.path(u"b"_s)).isKnown());
        QVERIFY(!listed.idOf(tree.path()).isKnown());

        ListedFolders ofEntries;
        IgnoringVisitor visitor;
        platform::walkEntries(tree.path(), visitor, {}, &ofEntries);
        QCOMPARE(ofEntries.idOf(tree.path(u"a"_s)), listed.idOf(tree.path(u"a"_s)));
        QVERIFY(ofEntries.idOf(tree.path(u"b"_s)).isKnown());
        QVERIFY(ofEntries.idOf(tree.path()).isKnown());
        QVERIFY(ofEntries.idOf(tree.path()) != ofEntries.idOf(tree.path(u"b"_s)));
    }

    void anotherFolderAtThePathHasAnotherId()
    {
        const TestTree tree;
        tree.file(u"a/f"_s);
        ListedFolders before;
        platform::walkFiles(
            tree.path(), {}, [](platform::WalkedFile &&) {}, &before);
        QVERIFY(QDir().rename(tree.path(u"a"_s), tree.path(u"away"_s)));
        tree.file(u"a/f"_s);
        ListedFolders after;
        platform::walkFiles(
            tree.path(), {}, [](platform::WalkedFile &&) {}, &after);
        QVERIFY(before.idOf(tree.path(u"a"_s)) != after.idOf(tree.path(u"a"_s)));
        QCOMPARE(after.idOf(tree.path(u"away"_s)), before.idOf(tree.path(u"a"_s)));
    }
};

QTEST_GUILESS_MAIN(TestListedFolders)
#include "tst_listedfolders.moc"
