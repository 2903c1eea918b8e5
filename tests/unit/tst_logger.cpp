#include "logger.h"

#include "logcapture.h"
#include "testtree.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <thread>
#include <vector>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

QString contentOf(const Logger &logger)
{
    QFile file(logger.fileName());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

QString lastLineOf(const Logger &logger)
{
    return contentOf(logger).split(u'\n', Qt::SkipEmptyParts).last();
}

} // namespace

class TestLogger : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theFileIsNamedAfterTheDay()
    {
        const TestTree tree;
        const QDate before = QDate::currentDate();
        Logger logger;
        logger.init(tree.path(u"new/logs"_s));
        const QDate after = QDate::currentDate();
        const QStringList names{u"sweepwise_%1.log"_s.arg(before.toString(u"yyyyMMdd"_s)),
                                u"sweepwise_%1.log"_s.arg(after.toString(u"yyyyMMdd"_s))};
        QVERIFY(names.contains(QFileInfo(logger.fileName()).fileName()));
        QVERIFY(QFileInfo(logger.fileName()).isFile());
    }

    void theBannerStandsInTheFileAtOnce()
    {
        const TestTree tree;
        Logger logger;
        logger.init(tree.path());
        const QString rule(40, u'=');
        const QStringList lines = contentOf(logger).split(u'\n');
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines.at(0), QString());
        QCOMPARE(lines.at(1), rule);
        QVERIFY(lines.at(2).startsWith("Sweepwise Log Started: "_L1));
        QVERIFY(QDateTime::fromString(lines.at(2).mid(23), Qt::TextDate).isValid());
        QCOMPARE(lines.at(3), rule);
        QCOMPARE(lines.at(4), QString());
    }

    void twoStartsOnTheSameDayAppendToTheSameFile()
    {
        const TestTree tree;
        {
            Logger first;
            first.init(tree.path());
            first.info(u"one"_s);
        }
        Logger second;
        second.init(tree.path());
        second.info(u"two"_s);
        const QString content = contentOf(second);
        QCOMPARE(content.count("Sweepwise Log Started: "_L1), 2);
        QVERIFY(content.contains("one\n\n========================================\n"_L1));
        QVERIFY(content.indexOf("one"_L1) < content.indexOf("two"_L1));
    }

    void aLineHasTimeLevelAndMessage_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("text");
        QTest::newRow("info") << 1 << u"INFO"_s;
        QTest::newRow("warning") << 2 << u"WARN"_s;
        QTest::newRow("error") << 3 << u"ERROR"_s;
        QTest::newRow("any other") << 7 << u"UNKNOWN"_s;
    }

    void aLineHasTimeLevelAndMessage()
    {
        QFETCH(int, level);
        QFETCH(QString, text);
        const TestTree tree;
        Logger logger;
        logger.init(tree.path());
        logger.log(level, u"the message"_s);
        const QRegularExpression pattern(
            u"^\\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\] \\[%1\\] the message$"_s
                .arg(text));
        QVERIFY2(pattern.match(lastLineOf(logger)).hasMatch(), qPrintable(lastLineOf(logger)));
    }

    void debugMessagesAreDroppedEverywhere()
    {
        const TestTree tree;
        Logger logger;
        logger.init(tree.path());
        const LogCapture capture;
        logger.log(Logger::Debug, u"quiet"_s);
        QVERIFY(!contentOf(logger).contains("quiet"_L1));
        QVERIFY(!capture.contains(u"quiet"_s));
    }

    void percentSignsInAMessageAreLiteral()
    {
        const TestTree tree;
        Logger logger;
        logger.init(tree.path());
        logger.info(u"100%1 %2 %L3 %%"_s);
        QVERIFY(lastLineOf(logger).endsWith("[INFO] 100%1 %2 %L3 %%"_L1));
    }

    void aLineBreakInAMessageForgesNoLine()
    {
        const TestTree tree;
        Logger logger;
        logger.init(tree.path());
        logger.warning(
            u"File not found: /tmp/a\n[2026-01-01 00:00:00.000] [INFO] all is well\u202e"_s);
        const QStringList lines = contentOf(logger).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.last().contains(u"/tmp/a\uFFFD[2026-01-01"_s));
        QVERIFY(lines.last().endsWith(u'\uFFFD'));
    }

    void anUnwritableFolderLeavesTheDebugOutput()
    {
        const TestTree tree;
        const QString blocked = tree.file(u"not a folder"_s);
        Logger logger;
        logger.init(blocked + "/logs"_L1);
        const LogCapture capture;
        logger.info(u"still heard"_s);
        QCOMPARE(capture.lines().size(), 1);
        QVERIFY(capture.lines().constFirst().startsWith(u'['));
        QVERIFY(capture.lines().constFirst().endsWith("[INFO] still heard"_L1));
        QVERIFY(!QFileInfo::exists(logger.fileName()));
    }

#ifdef Q_OS_UNIX
    void aFullDiskLeavesNoPartialLine()
    {
        const TestTree tree;
        const QByteArray disk = QFile::encodeName(tree.folder(u"disk"_s));
        if (::mount("none", disk.constData(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("mounting is not allowed here");
        QString content;
        QString failure;
        qsizetype heard = 0;
        {
            Logger logger;
            logger.init(tree.path(u"disk/logs"_s));
            logger.info(u"before the disk was full"_s);
            QCOMPARE(logger.failure(), QString());
            QFile filler(tree.path(u"disk/filler"_s));
            if (filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
                while (filler.write(QByteArray(1024, 'x')) > 0) { }
            }
            const LogCapture capture;
            for (int i = 0; i < 200; ++i)
                logger.info(u"while the disk is full, line %1 end"_s.arg(i));
            heard = capture.count(u"while the disk is full"_s);
            filler.remove();
            logger.info(u"after the disk was full"_s);
            content = contentOf(logger);
            failure = logger.failure();
        }
        ::umount2(disk.constData(), MNT_DETACH);
        QCOMPARE(heard, 200);
        QVERIFY(!failure.isEmpty()); // the first one, although the disk has room again
        QVERIFY(content.contains("[INFO] before the disk was full\n"_L1));
        QVERIFY(content.endsWith("[INFO] after the disk was full\n"_L1));
        const QStringList lines = content.split(u'\n', Qt::SkipEmptyParts).mid(3);
        for (const QString &line : lines)
            QVERIFY2(line.startsWith(u'[') && line.count("[INFO]"_L1) == 1, qPrintable(line));
    }
#endif

#ifdef Q_OS_UNIX
    void nothingButAFileOfTheUserIsTakenForTheLog_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("a pipe") << u"pipe"_s; // nobody reads it: to open it would wait for ever
        QTest::newRow("a pipe with a reader") << u"read pipe"_s;
        QTest::newRow("a link to a file") << u"link"_s;
        QTest::newRow("a link to nothing") << u"broken link"_s;
        QTest::newRow("a second name of a file") << u"hard link"_s;
        QTest::newRow("a folder") << u"folder"_s;
        QTest::newRow("a file of somebody else") << u"foreign file"_s;
    }

    void nothingButAFileOfTheUserIsTakenForTheLog()
    {
        QFETCH(QString, kind);
        const TestTree tree;
        const QString target = tree.file(u"target"_s);
        const QString name =
            "logs/sweepwise_"_L1 + QDate::currentDate().toString(u"yyyyMMdd"_s) + ".log"_L1;
        tree.folder(u"logs"_s);
        const QByteArray path = QFile::encodeName(tree.path(name));
        int reader = -1;
        if (kind.endsWith("pipe"_L1))
            QCOMPARE(::mkfifo(path.constData(), S_IRUSR | S_IWUSR), 0);
        if (kind == "read pipe"_L1)
            reader = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        const auto closeReader = qScopeGuard([&reader] {
            if (reader >= 0)
                ::close(reader);
        });
        if (kind == "link"_L1)
            tree.link(target, name);
        if (kind == "broken link"_L1)
            tree.link(tree.path(u"missing"_s), name);
        if (kind == "hard link"_L1)
            QCOMPARE(::link(QFile::encodeName(target).constData(), path.constData()), 0);
        if (kind == "folder"_L1)
            tree.folder(name);
        if (kind == "foreign file"_L1) {
            tree.file(name);
            if (::chown(path.constData(), 12345, 12345) != 0)
                QSKIP("only root can give a file away");
        }
        const QMap<QString, QString> before = tree.snapshot();
        const LogCapture capture;
        Logger logger;
        logger.init(tree.path(u"logs"_s));
        logger.info(u"a line"_s);
        QCOMPARE(capture.lines().size(), 1); // no line says it
        QVERIFY(!logger.failure().isEmpty());
        QCOMPARE(tree.snapshot(), before);
        char byte = 0;
        if (reader >= 0)
            QVERIFY(::read(reader, &byte, 1) <= 0);
    }

    void theLogIsForTheUserAlone()
    {
        const TestTree tree;
        const mode_t mask = ::umask(0);
        const auto restore = qScopeGuard([mask] { ::umask(mask); });
        Logger logger;
        logger.init(tree.path());
        QCOMPARE(
            QFileInfo(logger.fileName()).permissions()
                & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
            QFile::Permissions());
    }
#endif

    void messagesBeforeTheStartReachTheDebugOutputOnly()
    {
        Logger logger;
        const LogCapture capture;
        logger.error(u"early"_s);
        QVERIFY(capture.contains(u"[ERROR] early"_s));
    }

    void linesOfManyThreadsAreEachWrittenWhole()
    {
        const TestTree tree;
        Logger logger;
        logger.init(tree.path());
        const LogCapture capture;
        {
            std::vector<std::jthread> threads;
            for (int t = 0; t < 4; ++t) {
                threads.emplace_back([&logger, t] {
                    for (int i = 0; i < 250; ++i)
                        logger.info(
                            u"thread %1 line %2 end"_s.arg(QString::number(t), QString::number(i)));
                });
            }
        }
        const QStringList lines = contentOf(logger).split(u'\n', Qt::SkipEmptyParts).mid(3);
        QCOMPARE(lines.size(), 1000);
        const QRegularExpression whole(u"^\\[[^]]+\\] \\[INFO\\] thread \\d line \\d+ end$"_s);
        for (const QString &line : lines)
            QVERIFY2(whole.match(line).hasMatch(), qPrintable(line));
        QCOMPARE(capture.count(u"end"_s), 1000);
    }
};

QTEST_GUILESS_MAIN(TestLogger)
#include "tst_logger.moc"
