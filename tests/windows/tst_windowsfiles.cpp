#include "filewalk.h"

#include "appinfo.h"
#include "fileremove.h"
#include "junkcleaner.h"
#include "logcapture.h"
#include "rulefolders.h"
#include "testtree.h"
#include "windows/openentry.h"
#include "windowsfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <windows.h>

using namespace Qt::StringLiterals;
using namespace windowsfiles;
using platform::EntryKind;
using platform::FileRemover;
using Status = FileRemover::Status;

namespace {

FileRemover::Outcome remove(const QString &path)
{
    return FileRemover().remove(path);
}

QString message(DWORD error)
{
    return qt_error_string(int(error));
}

/// Keeps a file open so that no other program can open it.
class HeldFile final
{
    Q_DISABLE_COPY_MOVE(HeldFile)
public:
    explicit HeldFile(const QString &path)
        : m_handle(::CreateFileW(path.toStdWString().c_str(), GENERIC_READ, 0, nullptr,
                                 OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        if (m_handle == INVALID_HANDLE_VALUE)
            qFatal("cannot open %s", qPrintable(path));
    }
    ~HeldFile() { ::CloseHandle(m_handle); }

private:
    const HANDLE m_handle;
};

/// Scans and cleans with one rule that takes all files of @p folder.
void cleanWithEngine(JunkCleaner &engine, const QString &folder)
{
    const TestTree rules;
    QString escaped = folder;
    escaped.replace(u'/', "\\\\"_L1);
    engine.loadRules(
        rules.file(u"rules.json"_s,
                   R"({"rules": [{"id": "all", "paths": [")" + escaped.toUtf8() + R"("]}]})"));
    QSignalSpy scanned(&engine, &CleanEngine::scanFinished);
    engine.startScan();
    QVERIFY(scanned.wait(30'000));
    QSignalSpy cleaned(&engine, &CleanEngine::cleanFinished);
    engine.startClean();
    QVERIFY(cleaned.wait(30'000));
    engine.stopAndWait();
}

} // namespace

class TestWindowsFiles : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRootThatIsNoAbsolutePathIsNotWalked_data()
    {
        QTest::addColumn<QString>("root");
        for (const QString &root :
             {u""_s, u"relative"_s, u"/a"_s, u"C:/a/../b"_s, u"C:/a//b"_s, u"C:a"_s})
            QTest::addRow("root: %s", qPrintable(root)) << root;
    }

    void aRootThatIsNoAbsolutePathIsNotWalked()
    {
        QFETCH(QString, root);
        qsizetype found = 0;
        const platform::ReadFailures report =
            platform::walkFiles(root, {{}, false}, [&found](platform::WalkedFile &&) { ++found; });
        QCOMPARE(found, 0);
        QCOMPARE(report.count(), 1);
    }

    void pathsAreConvertedToTheExtendedForm_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("extended");
        QTest::addColumn<QString>("root");
        const auto row = [](const char *name, const QString &path, const QString &extended,
                            const QString &root) {
            QTest::newRow(name) << path << extended << root;
        };
        row("file", u"C:/a/b.txt"_s, u"\\\\?\\C:\\a\\b.txt"_s, u"\\\\?\\C:\\"_s);
        row("drive", u"C:/"_s, u"\\\\?\\C:\\"_s, u"\\\\?\\C:\\"_s);
        row("dot at the end", u"c:/a."_s, u"\\\\?\\c:\\a."_s, u"\\\\?\\c:\\"_s);
        row("share", u"//server/share/a"_s, u"\\\\?\\UNC\\server\\share\\a"_s,
            u"\\\\?\\UNC\\server\\share\\"_s);
        row("top of a share", u"//server/share"_s, u"\\\\?\\UNC\\server\\share\\"_s,
            u"\\\\?\\UNC\\server\\share\\"_s);
        row("volume", u"//?/Volume{1-2}/a"_s, u"\\\\?\\Volume{1-2}\\a"_s,
            u"\\\\?\\Volume{1-2}\\"_s);
        for (const QString &refused :
             {u""_s, u"C:"_s, u"C:a"_s, u"a/b"_s, u"/a"_s, u"//server"_s, u"C:/a/../b"_s,
              u"C:/a/./b"_s, u"C:/a//b"_s, u"C:/a/"_s, u"1:/a"_s})
            QTest::addRow("refused: %s", qPrintable(refused)) << refused << QString() << QString();
    }

    void pathsAreConvertedToTheExtendedForm()
    {
        QFETCH(QString, path);
        QFETCH(QString, extended);
        QFETCH(QString, root);
        QCOMPARE(platform::extendedPath(path), extended);
        QCOMPARE(extended.left(platform::rootLength(extended)), root);
        if (!extended.isEmpty() && path != "//server/share"_L1)
            QCOMPARE(platform::plainPath(extended), path);
    }

    void hiddenAndSystemEntriesAreNotListed_data()
    {
        QTest::addColumn<quint32>("attributes");
        QTest::addColumn<bool>("listed");
        QTest::newRow("plain") << quint32(FILE_ATTRIBUTE_NORMAL) << true;
        QTest::newRow("read-only") << quint32(FILE_ATTRIBUTE_READONLY) << true;
        QTest::newRow("hidden") << quint32(FILE_ATTRIBUTE_HIDDEN) << false;
        QTest::newRow("system") << quint32(FILE_ATTRIBUTE_SYSTEM) << false;
        QTest::newRow("hidden and system")
            << quint32(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM) << false;
    }

    void hiddenAndSystemEntriesAreNotListed()
    {
        QFETCH(quint32, attributes);
        QFETCH(bool, listed);
        const TestTree tree;
        tree.file(u"other"_s);
        setAttributes(tree.file(u"file"_s), attributes);
        QCOMPARE(walk(tree.path()),
                 listed ? (QStringList{u"file"_s, u"other"_s}) : QStringList{u"other"_s});
        QVERIFY(QFile::remove(tree.path(u"other"_s)));
        // Removing a folder also removes hidden and system entries in it.
        QCOMPARE(remove(tree.path()).status, Status::Removed);
    }

    void hiddenAndSystemFoldersAreNotEntered_data()
    {
        QTest::addColumn<quint32>("attribute");
        QTest::newRow("hidden") << quint32(FILE_ATTRIBUTE_HIDDEN);
        QTest::newRow("system") << quint32(FILE_ATTRIBUTE_SYSTEM);
    }

    void hiddenAndSystemFoldersAreNotEntered()
    {
        QFETCH(quint32, attribute);
        const TestTree tree;
        tree.file(u"folder/file"_s);
        tree.file(u"open/file"_s);
        setAttributes(tree.path(u"folder"_s), attribute | FILE_ATTRIBUTE_DIRECTORY);
        QCOMPARE(walk(tree.path()), QStringList{u"open/file"_s});
    }

    void aPathOfMoreThan400CharactersIsListedAndRemoved()
    {
        const TestTree tree;
        QString folder = tree.path();
        for (int i = 0; i < 6; ++i) {
            folder += u'/' + QString(70, u'f');
            makeFolder(folder);
        }
        const QString file = folder + "/file"_L1;
        const QString second = folder + "/second"_L1;
        makeFile(file, "12345");
        makeFile(second);
        QVERIFY(file.size() > 400);

        qint64 size = 0;
        QStringList paths;
        platform::walkFiles(tree.path(), {{u"file"_s}}, [&](platform::WalkedFile &&found) {
            size += found.size;
            paths.append(found.path);
        });
        QCOMPARE(paths, QStringList{file});
        QCOMPARE(size, 5);
        QCOMPARE(platform::inspect(file).kind, EntryKind::File);
        QCOMPARE(platform::inspect(file).size, 5);

        QCOMPARE(remove(file).status, Status::Removed);
        QCOMPARE(platform::inspect(file).kind, EntryKind::Missing);
        QCOMPARE(remove(tree.path() + u'/' + QString(70, u'f')).status, Status::Removed);
        QCOMPARE(platform::inspect(second).kind, EntryKind::Missing);
        QVERIFY(!tree.has(QString(70, u'f')));
    }

    void aReadOnlyFileFailsAndKeepsItsAttribute()
    {
        const TestTree tree;
        const QString file = tree.file(u"file"_s);
        setAttributes(file, FILE_ATTRIBUTE_READONLY);
        const FileRemover::Outcome outcome = remove(file);
        QCOMPARE(outcome.status, Status::Failed);
        QVERIFY(!outcome.wasFolder);
        QCOMPARE(outcome.error, message(ERROR_ACCESS_DENIED));
        QCOMPARE(attributes(file), quint32(FILE_ATTRIBUTE_READONLY));
        QCOMPARE(content(file), QByteArray("content"));
        setAttributes(file, FILE_ATTRIBUTE_NORMAL);
    }

    void filesThatCannotBeRemovedAreCountedAndLogged()
    {
        const TestTree tree;
        tree.file(u"a"_s);
        const QString readOnly = tree.file(u"read-only"_s);
        setAttributes(readOnly, FILE_ATTRIBUTE_READONLY);
        const QString held = tree.file(u"held"_s);
        const HeldFile holder(held);
        const LogCapture log;
        JunkCleaner engine;
        cleanWithEngine(engine, tree.path());
        QStringList failed;
        for (const CleanFailure &failure : engine.failures())
            failed.append(failure.path + u' ' + failure.reason);
        failed.sort();
        QCOMPARE(failed,
                 (QStringList{held + u' ' + message(ERROR_SHARING_VIOLATION),
                              readOnly + u' ' + message(ERROR_ACCESS_DENIED)}));
        QVERIFY(!tree.has(u"a"_s));
        QVERIFY(tree.has(u"held"_s));
        QCOMPARE(log.count(u"Failed to remove file: "_s), 2);
        QVERIFY(log.contains(u"Failed: 2 items"_s));
        setAttributes(readOnly, FILE_ATTRIBUTE_NORMAL);
    }

    void readOnlyEntriesOfARemovedFolderAreRemoved()
    {
        const TestTree tree;
        setAttributes(tree.file(u"folder/file"_s), FILE_ATTRIBUTE_READONLY);
        setAttributes(tree.file(u"folder/sub/hidden"_s),
                      FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
        if (!isWine()) // under Wine folders are never read-only
            setAttributes(tree.path(u"folder/sub"_s),
                          FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY);
        const FileRemover::Outcome outcome = remove(tree.path(u"folder"_s));
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.status, Status::Removed);
        QVERIFY(outcome.wasFolder);
        QVERIFY(!tree.has(u"folder"_s));
    }

    void aReadOnlyFileWithOtherNamesIsLeftAsItIs()
    {
        const TestTree tree;
        const QString outside = tree.file(u"outside"_s);
        tree.file(u"folder/plain"_s);
        const QString inside = tree.path(u"folder/inside"_s);
        QVERIFY(::CreateHardLinkW(inside.toStdWString().c_str(), outside.toStdWString().c_str(),
                                  nullptr));
        setAttributes(outside, FILE_ATTRIBUTE_READONLY);
        const FileRemover::Outcome outcome = remove(tree.path(u"folder"_s));
        QCOMPARE(outcome.status, Status::Failed);
        QCOMPARE(outcome.error, message(ERROR_ACCESS_DENIED));
        QCOMPARE(attributes(outside), quint32(FILE_ATTRIBUTE_READONLY));
        QVERIFY(tree.has(u"folder/inside"_s));
        QVERIFY(!tree.has(u"folder/plain"_s));
        setAttributes(outside, FILE_ATTRIBUTE_NORMAL);

        // Without the attribute the name is removed, and the file keeps its other name.
        QCOMPARE(remove(tree.path(u"folder"_s)).status, Status::Removed);
        QCOMPARE(content(outside), QByteArray("content"));
    }

    void aFileHeldOpenWithoutSharingFails()
    {
        const TestTree tree;
        const QString file = tree.file(u"folder/file"_s);
        const QString neighbour = tree.file(u"folder/neighbour"_s);
        {
            const HeldFile holder(file);
            const FileRemover::Outcome outcome = remove(file);
            QCOMPARE(outcome.status, Status::Failed);
            QCOMPARE(outcome.error, message(ERROR_SHARING_VIOLATION));

            const FileRemover::Outcome ofFolder = remove(tree.path(u"folder"_s));
            QCOMPARE(ofFolder.status, Status::Failed);
            QVERIFY(ofFolder.wasFolder);
            QCOMPARE(ofFolder.error, message(ERROR_SHARING_VIOLATION));
            QVERIFY(!QFile::exists(neighbour));
        }
        QCOMPARE(content(file), QByteArray("content"));
        QCOMPARE(remove(file).status, Status::Removed);
    }

    void namesThatDifferOnlyInCaseAreTwoFiles()
    {
        if (!isWine())
            QSKIP("needs a folder that tells upper from lower case");
        const TestTree tree;
        tree.file(u"name"_s, "lower");
        makeEmptyFileBelowWine(tree.path(), u"NAME"_s);
        QCOMPARE(walk(tree.path()), (QStringList{u"NAME"_s, u"name"_s}));
        QCOMPARE(remove(tree.path(u"NAME"_s)).status, Status::Removed);
        QCOMPARE(walk(tree.path()), QStringList{u"name"_s});
        // A second rule that lists the same file must not remove the other one.
        QCOMPARE(remove(tree.path(u"NAME"_s)).status, Status::NotFound);
        QCOMPARE(content(tree.path(u"name"_s)), QByteArray("lower"));
    }

    void aDotOrBlankAtTheEndBelongsToTheName_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::newRow("dot") << u"."_s;
        QTest::newRow("blank") << u" "_s;
        QTest::newRow("both") << u" ."_s;
    }

    void aDotOrBlankAtTheEndBelongsToTheName()
    {
        QFETCH(QString, ending);
        const TestTree tree;
        const QString victim = tree.file(u"victim.txt"_s, "precious");
        const QString oddPath = victim + ending;
        makeFile(oddPath, "odd");
        QCOMPARE(walk(tree.path()), (QStringList{u"victim.txt"_s, u"victim.txt"_s + ending}));
        QCOMPARE(platform::inspect(oddPath).size, 3);
        QCOMPARE(remove(oddPath).status, Status::Removed);
        QCOMPARE(content(oddPath), QByteArray());
        QCOMPARE(content(victim), QByteArray("precious"));
        QCOMPARE(remove(oddPath).status, Status::NotFound);
        QCOMPARE(content(victim), QByteArray("precious"));
    }

    void aFolderNameWithADotOrBlankAtTheEndIsNotItsNeighbour_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::newRow("dot") << u"."_s;
        QTest::newRow("blank") << u" "_s;
    }

    void aFolderNameWithADotOrBlankAtTheEndIsNotItsNeighbour()
    {
        QFETCH(QString, ending);
        const TestTree tree;
        const QString victim = tree.file(u"folder/file"_s, "precious");
        const QString oddPath = tree.path(u"folder"_s) + ending;
        makeFolder(oddPath);
        makeFile(oddPath + "/file"_L1, "odd");
        makeFile(oddPath + "/second"_L1, "odd");
        QCOMPARE(walk(oddPath), (QStringList{u"file"_s, u"second"_s}));
        // Wine reports the contents of a folder with a dot at its end as the neighbour's. Then they
        // are not removed.
        const bool isKept = isWine() && ending == "."_L1;
        QCOMPARE(remove(oddPath + "/file"_L1).status, isKept ? Status::Failed : Status::Removed);
        QCOMPARE(content(victim), QByteArray("precious"));
        QCOMPARE(remove(oddPath).status, isKept ? Status::Failed : Status::Removed);
        QCOMPARE(content(victim), QByteArray("precious"));
        QCOMPARE(platform::inspect(oddPath).kind, isKept ? EntryKind::Folder : EntryKind::Missing);
        if (isKept)
            removeTreeBelowWine(oddPath);
    }

    void aShortcutIsJudgedAsItself()
    {
        const TestTree tree;
        const QString target = tree.file(u"target"_s, QByteArray(3000, 'x'));
        const QString shortcut = tree.path(u"folder/target.lnk"_s);
        tree.folder(u"folder"_s);
        QVERIFY(QFile::link(target, shortcut));
        const qsizetype ownSize = content(shortcut).size();
        QVERIFY(ownSize > 0 && ownSize != 3000);

        QCOMPARE(platform::inspect(shortcut).kind, EntryKind::File);
        QCOMPARE(platform::inspect(shortcut).size, ownSize);
        qint64 size = 0;
        platform::walkFiles(tree.path(u"folder"_s), {},
                            [&size](platform::WalkedFile &&file) { size += file.size; });
        QCOMPARE(size, ownSize);
        QCOMPARE(remove(shortcut).status, Status::Removed);
        QCOMPARE(content(shortcut), QByteArray());
        QCOMPARE(content(target).size(), 3000);
    }

    void aFolderOfManyLevelsIsRemoved()
    {
        const TestTree tree;
        QString folder = tree.path(u"top"_s);
        makeFolder(folder);
        for (int i = 0; i < 300; ++i) {
            makeFile(folder + "/file"_L1);
            makeFolder(folder + "/d"_L1);
            folder += "/d"_L1;
        }
        QCOMPARE(walk(tree.path(u"top"_s)).size(), 300);
        QCOMPARE(remove(tree.path(u"top"_s)).status, Status::Removed);
        QVERIFY(!tree.has(u"top"_s));
    }

    void nothingIsRemovedByAPathThatNamesNoEntry_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &path :
             {u""_s, u"C:"_s, u"C:/"_s, u"relative"_s, u"C:relative"_s, u"//server/share"_s,
              u"TREE/"_s, u"TREE/."_s, u"TREE/folder/.."_s})
            QTest::addRow("%s", qPrintable(path)) << path;
    }

    void nothingIsRemovedByAPathThatNamesNoEntry()
    {
        QFETCH(QString, path);
        const TestTree tree;
        tree.file(u"folder/file"_s);
        const FileRemover::Outcome outcome = remove(path.replace("TREE"_L1, tree.path()));
        QCOMPARE(outcome.status, Status::Failed);
        QVERIFY(!outcome.error.isEmpty());
        QVERIFY(tree.has(u"folder/file"_s));
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    TestWindowsFiles test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_windowsfiles.moc"
