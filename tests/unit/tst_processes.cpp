#include "processes.h"

#include "testtree.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr char sleepArgument[] = "--sleep";

} // namespace

class TestProcesses : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theTestItselfIsRunning()
    {
        const QString own = QFileInfo(QCoreApplication::applicationFilePath()).fileName().toLower();
        QVERIFY2(platform::runningPrograms()->contains(own), qPrintable(own));
    }

    void aProgramIsListedWhileItRuns()
    {
        // A copy of this test with a name that no other program has. The kernel's short name would
        // cut it off.
        const TestTree tree;
        const QString program = tree.path(u"Some Browser With Long Name.exe"_s);
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        const QString name = u"some browser with long name.exe"_s;
        QVERIFY(!platform::runningPrograms()->contains(name));
        QProcess process;
        process.start(program, {QString::fromLatin1(sleepArgument)});
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(platform::runningPrograms()->contains(name), 10'000);
        process.kill();
        QVERIFY(process.waitForFinished());
        QTRY_VERIFY_WITH_TIMEOUT(!platform::runningPrograms()->contains(name), 10'000);
    }

    void aPartOfANameIsNotListed()
    {
        const QString own = QFileInfo(QCoreApplication::applicationFilePath()).fileName().toLower();
        QVERIFY(!platform::runningPrograms()->contains(own.mid(1)));
        QVERIFY(!platform::runningPrograms()->contains(QString()));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], sleepArgument) == 0) {
        QThread::sleep(30);
        return 0;
    }
    TestProcesses test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_processes.moc"
