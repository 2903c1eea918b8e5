#include "entry.h"

#include "filewalk.h"
#include "testtree.h"

#include <QTest>

using namespace Qt::StringLiterals;
using platform::EntryKind;
using platform::ListedFolders;

class TestEntry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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

    void inspectTellsTheFolderOfAFile()
    {
        const TestTree tree;
        const platform::Entry entry = platform::inspect(tree.file(u"a/f"_s));
        ListedFolders listed;
        platform::walkFiles(
            tree.path(), {}, [](platform::WalkedFile &&) {}, &listed);
        QVERIFY(entry.folder.isKnown());
        QCOMPARE(entry.folder, listed.idOf(tree.path(u"a"_s)));
    }

    void theFolderOfAPathIsWhatStandsBeforeItsName()
    {
        QCOMPARE(platform::folderOf(u"/a/b"_s), u"/a"_s);
        QCOMPARE(platform::folderOf(u"/a"_s), QString());
        QCOMPARE(platform::folderOf(u"C:/a"_s), u"C:"_s);
        QCOMPARE(platform::folderOf(u"a"_s), QString());
    }
};

QTEST_GUILESS_MAIN(TestEntry)
#include "tst_entry.moc"
