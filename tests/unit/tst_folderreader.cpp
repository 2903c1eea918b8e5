#include "unix/folderreader.h"

#include "testtree.h"

#include <QFile>
#include <QTest>

#include <atomic>

#include <fcntl.h>

using namespace Qt::StringLiterals;
using platform::FolderReader;
using platform::UniqueFd;

namespace {

UniqueFd openForReading(const QString &path)
{
    return UniqueFd(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
}

QStringList readAll(FolderReader &reader, const UniqueFd &folder)
{
    QStringList names;
    reader.begin(folder.get());
    while (const dirent64 *entry = reader.next())
        names.append(QFile::decodeName(entry->d_name));
    names.sort();
    return names;
}

} // namespace

class TestFolderReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyEntryIsReadOnceWithoutDotAndDotDot()
    {
        const TestTree tree;
        tree.file(u"a/file"_s);
        tree.file(u"a/.hidden"_s);
        tree.file(u"a/..dots"_s);
        tree.folder(u"a/folder"_s);
        FolderReader reader(nullptr);
        QCOMPARE(readAll(reader, openForReading(tree.path(u"a"_s))),
                 (QStringList{u"..dots"_s, u".hidden"_s, u"file"_s, u"folder"_s}));
        QCOMPARE(reader.error(), 0);
    }

    void aFolderLargerThanTheBufferIsReadWhole()
    {
        const TestTree tree;
        QStringList expected;
        for (int i = 0; i < 1000; ++i) // names of 200 characters fill the buffer three times
            expected.append(
                QFileInfo(tree.file(u"%1"_s.arg(i, 200, 10, QChar(u'0')), {})).fileName());
        FolderReader reader(nullptr);
        const UniqueFd folder = openForReading(tree.path());
        int buffers = 0;
        QStringList names;
        reader.begin(folder.get());
        while (const dirent64 *entry = reader.next()) {
            names.append(QFile::decodeName(entry->d_name));
            buffers += reader.isBufferConsumed() ? 1 : 0;
        }
        names.sort();
        QCOMPARE(names, expected);
        QVERIFY2(buffers > 1 && buffers < 10, qPrintable(QString::number(buffers)));
    }

    void aStopIsSeenBeforeTheNextEntry()
    {
        const TestTree tree;
        for (int i = 0; i < 10; ++i)
            tree.file(u"f%1"_s.arg(i));
        std::atomic_bool stop = false;
        FolderReader reader(&stop);
        const UniqueFd folder = openForReading(tree.path());
        reader.begin(folder.get());
        QVERIFY(reader.next());
        stop = true;
        QVERIFY(!reader.next());
        QCOMPARE(reader.error(), 0);
    }

    void anErrorLastsUntilTheNextFolder()
    {
        const TestTree tree;
        const QString file = tree.file(u"file"_s);
        FolderReader reader(nullptr);
        QCOMPARE(readAll(reader, openForReading(file)), QStringList());
        QCOMPARE(reader.error(), ENOTDIR);
        QCOMPARE(readAll(reader, openForReading(tree.path())), QStringList{u"file"_s});
        QCOMPARE(reader.error(), 0);
    }

    void aMissingTypeIsLookedUp()
    {
        const TestTree tree;
        tree.folder(u"folder"_s);
        tree.file(u"file"_s);
        tree.link(u"folder"_s, u"link"_s);
        const UniqueFd folder = openForReading(tree.path());
        FolderReader reader(nullptr);
        reader.begin(folder.get());
        QHash<QString, int> types;
        while (const dirent64 *entry = reader.next()) {
            dirent64 withoutType = *entry;
            withoutType.d_type = DT_UNKNOWN;
            types.insert(QFile::decodeName(entry->d_name), reader.typeOf(withoutType));
        }
        QCOMPARE(
            types,
            (QHash<QString, int>{{u"folder"_s, DT_DIR}, {u"file"_s, DT_REG}, {u"link"_s, DT_LNK}}));
    }
};

QTEST_GUILESS_MAIN(TestFolderReader)
#include "tst_folderreader.moc"
