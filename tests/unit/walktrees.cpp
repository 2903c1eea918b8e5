#include "walktrees.h"

#include "fileremove.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// Unusual names that programs often handle wrongly. All of them are valid on a Linux disk.
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

} // namespace

void walktrees::fillRandomly(const TestTree &tree, QRandomGenerator &random)
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

void walktrees::makeBranches(const TestTree &tree, int depth)
{
    QString path = u"d"_s;
    for (int level = 0; level < depth; ++level) {
        tree.file(path + u"/f"_s, {});
        tree.file(path + u"/a/f"_s, {});
        tree.file(path + u"/z/f"_s, {});
        path += u"/m"_s;
    }
}

#ifdef Q_OS_UNIX
namespace {

const QByteArray nestedName(6, 'd');

} // namespace

walktrees::NestedFolders::NestedFolders(int depth)
{
    int fd = ::open(QFile::encodeName(path()).constData(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < depth; ++level) {
        QCOMPARE(::mkdirat(fd, nestedName.constData(), 0700), 0);
        const int next = ::openat(fd, nestedName.constData(), O_RDONLY | O_DIRECTORY);
        ::close(fd);
        fd = next;
    }
    ::close(::openat(fd, "deepest", O_CREAT | O_WRONLY, 0600));
    ::close(fd);
}

walktrees::NestedFolders::~NestedFolders()
{
    platform::FileRemover remover;
    QCOMPARE(remover.remove(m_tree.path(QString::fromLatin1(nestedName))).status,
             platform::FileRemover::Status::Removed);
}
#endif
