#include "appinfo.h"
#include "companion.h"
#include "registryfixture.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString runKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

/// How often the companion makes the system call @p name for paths that contain @p path; -1 if it
/// did not end well.
int callsOf(const QString &name, const QString &path, const QStringList &arguments)
{
    const QString report = QDir::homePath() + "/calls"_L1;
    QFile::remove(report);
    const companion::Run run = companion::run(
        arguments,
        {"LD_PRELOAD="_L1 + QString::fromLocal8Bit(FAILING_CALLS),
         u"FAILING_CALL=%1:-3:%2"_s.arg(name, path), "FAILING_CALL_FILE="_L1 + report});
    QFile file(report);
    bool isNumber = false;
    const int count = file.open(QIODevice::ReadOnly) ? file.readAll().toInt(&isNumber) : -1;
    return run.exitCode == 0 && isNumber ? count : -1;
}

} // namespace

/// What a scan costs, in system calls: they do not depend on how fast the machine is.
class TestCallCounts : public QObject
{
    Q_OBJECT
public:
    explicit TestCallCounts(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_temp = companion::fillTemporaryFolder(m_home);
        QDir(m_home.path() + "/prefix"_L1).removeRecursively();
    }

    void aRegistryScanListsAFolderOnce()
    {
        RegistryFixture fixture(m_home);
        const QString folder = m_home.folder(u"prefix/drive_c/Libraries"_s);
        for (int number = 0; number < 100; ++number) {
            companion::writeFile(folder, u"present %1.dll"_s.arg(number), 1);
            fixture.addText(runKey, QString::number(number),
                            u"\"C:\\Libraries\\missing %1.dll\""_s.arg(number));
        }
        fixture.write();
        // The second call tells that this was all.
        QCOMPARE(callsOf(u"getdents64"_s, u"/Libraries"_s, {u"scan"_s, u"registry"_s}), 2);
        // One for each file, and two that find the folder.
        QCOMPARE(callsOf(u"stat"_s, u"/Libraries"_s, {u"scan"_s, u"registry"_s}), 102);
    }

    void aRegistryScanLooksForAMissingFolderOnce()
    {
        RegistryFixture fixture(m_home);
        for (int number = 0; number < 100; ++number)
            fixture.addText(runKey, QString::number(number),
                            u"\"C:\\Gone Folder\\sub\\program %1.exe\""_s.arg(number));
        fixture.write();
        // The first file, and the folder that is missing.
        QCOMPARE(callsOf(u"stat"_s, u"/Gone Folder"_s, {u"scan"_s, u"registry"_s}), 2);
    }

    void aJunkScanReadsTheRegistryOnce()
    {
        RegistryFixture fixture(m_home);
        fixture.addText(runKey, u"Player"_s, u"C:\\player.exe"_s);
        fixture.write();
        QCOMPARE(callsOf(u"open"_s, u"/user.reg"_s, {u"scan"_s, u"junk"_s}), 1);
    }

    void aJunkScanAsksOnceForEachEntry()
    {
        constexpr int count = 3000;
        const QString folder = m_home.folder(u"temp/many files"_s);
        for (int number = 0; number < count; ++number)
            companion::writeFile(folder, u"a file with a rather long name %1.tmp"_s.arg(number), 1);
        const QStringList scan{u"scan"_s, u"junk"_s};
        QCOMPARE(callsOf(u"statx"_s, u"a file with a rather long name"_s, scan), count);
        // A call can return about a thousand of these names. The last one tells that this was all.
        const int listings = callsOf(u"getdents64"_s, u"/many files"_s, scan);
        QVERIFY2(listings >= 2 && listings <= 6, qPrintable(QString::number(listings)));
    }

private:
    const TestHome &m_home;
    QString m_temp;
};

SWEEPWISE_TEST_MAIN(TestCallCounts, QCoreApplication)
#include "tst_callcounts.moc"
