#include "ownfile.h"

#include "testtree.h"

#include <QDir>
#include <QFile>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

#ifdef Q_OS_UNIX
int modeOf(const QString &path)
{
    struct stat data {
    };
    return ::lstat(QFile::encodeName(path).constData(), &data) == 0
        ? static_cast<int>(data.st_mode & 07777)
        : -1;
}

// The modes of the files below the folder that this process has open, also of those without a name.
QList<int> modesOfOpenFiles(const QString &folder)
{
    QList<int> modes;
    const QDir open(u"/proc/self/fd"_s);
    for (const QString &number : open.entryList(QDir::AllEntries | QDir::System)) {
        struct stat data {
        };
        const QString path = QFile::symLinkTarget(open.filePath(number));
        if (path.startsWith(folder + u'/') && ::fstat(number.toInt(), &data) == 0
            && S_ISREG(data.st_mode))
            modes.append(static_cast<int>(data.st_mode & 07777));
    }
    return modes;
}
#endif

} // namespace

/// Folders and files that are for the user alone.
class TestOwnFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFoldersAreForTheUserAlone()
    {
        const TestTree tree;
        const FileMask none;
        tree.folder(u"there"_s);
        QString error;
        QVERIFY(platform::makePrivateFolder(tree.path(u"there/a/b"_s), error));
        QVERIFY(platform::makePrivateFolder(tree.path(u"there/a/b"_s), error));
        QVERIFY(error.isEmpty());
        QVERIFY(QFileInfo(tree.path(u"there/a/b"_s)).isDir());
#ifdef Q_OS_UNIX
        QCOMPARE(modeOf(tree.path(u"there/a"_s)), 0700);
        QCOMPARE(modeOf(tree.path(u"there/a/b"_s)), 0700);
        QCOMPARE(modeOf(tree.path(u"there"_s)), 0777); // it was there before
#endif
    }

    void aFileInTheWayOfAFolderIsAFailure()
    {
        const TestTree tree;
        tree.file(u"file"_s);
        for (const QString &path : {u"file/a"_s, u"file"_s}) {
            QString error;
            QVERIFY(!platform::makePrivateFolder(tree.path(path), error));
            QVERIFY(!error.isEmpty());
        }
    }

#ifdef Q_OS_UNIX
    void aMissingFileIsMadeForTheUserAlone()
    {
        const TestTree tree;
        const FileMask none;
        platform::makePrivateFile(tree.path(u"new"_s));
        QCOMPARE(modeOf(tree.path(u"new"_s)), 0600);
        QCOMPARE(contentOf(tree.path(u"new"_s)), QByteArray());
        const QString old = tree.file(u"old"_s, "old");
        platform::makePrivateFile(old);
        QCOMPARE(contentOf(old), QByteArray("old"));
        QCOMPARE(modeOf(old), 0666);
        // A link to nowhere is not followed.
        tree.link(tree.path(u"elsewhere"_s), u"link"_s);
        platform::makePrivateFile(tree.path(u"link"_s));
        QVERIFY(!tree.has(u"elsewhere"_s));
    }

    void aFileIsForTheUserAloneFromItsFirstByte()
    {
        const TestTree tree;
        const FileMask none;
        const QString path = tree.file(u"file"_s, "old");
        QList<int> during;
        QString error;
        QVERIFY2(platform::replaceFile(
                     path, "new",
                     [&] {
                         during = modesOfOpenFiles(tree.path());
                         return QString();
                     },
                     error),
                 qPrintable(error));
        QCOMPARE(during, QList<int>{0600});
        QCOMPARE(modeOf(path), 0600); // not that of the old file
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void aLinkIsReplacedAndNotFollowed()
    {
        const TestTree tree;
        const QString target = tree.file(u"target"_s, "target");
        const QString path = tree.link(target, u"link"_s);
        QString error;
        QVERIFY(platform::replaceFile(
            path, "new", [] { return QString(); }, error));
        QCOMPARE(contentOf(target), QByteArray("target"));
        QVERIFY(!QFileInfo(path).isSymLink());
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void aWriteProtectedFileStays()
    {
        const TestTree tree;
        const QString path = tree.file(u"file"_s, "old");
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadOther));
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0777), 0);
        QString error;
        {
            const OrdinaryUser user;
            QVERIFY(!platform::replaceFile(
                path, "new", [] { return QString(); }, error));
        }
        QVERIFY(!error.isEmpty());
        QCOMPARE(contentOf(path), QByteArray("old"));
    }
#endif

    void aReplacedFileHasTheNewContent()
    {
        const TestTree tree;
        for (const QString &name : {u"old"_s, u"文件 new"_s}) {
            const QString path = name == "old"_L1 ? tree.file(name, "old") : tree.path(name);
            QString error;
            QVERIFY2(platform::replaceFile(
                         path, "new", [] { return QString(); }, error),
                     qPrintable(error));
            QCOMPARE(contentOf(path), QByteArray("new"));
        }
        QCOMPARE(QDir(tree.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    void aReasonAgainstItKeepsTheOldFile()
    {
        const TestTree tree;
        const QString path = tree.file(u"file"_s, "old");
        QString error;
        QVERIFY(!platform::replaceFile(
            path, "new", [] { return u"no"_s; }, error));
        QCOMPARE(error, u"no"_s);
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(QDir(tree.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"file"_s});
    }

    void aPlaceThatCannotBeWrittenIsAFailure()
    {
        const TestTree tree;
        tree.folder(u"folder/in it"_s);
        for (const QString &name : {u"no folder/file"_s, u"folder"_s}) {
            QString error;
            QVERIFY(!platform::replaceFile(
                tree.path(name), "new", [] { return QString(); }, error));
            QVERIFY(!error.isEmpty());
        }
        QCOMPARE(QDir(tree.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestOwnFile)
#include "tst_ownfile.moc"
