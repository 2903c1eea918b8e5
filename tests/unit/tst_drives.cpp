#include "drives.h"

#include <QDir>
#include <QTest>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include "testtree.h"
#include "unix/blockdevices.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#endif

using namespace Qt::StringLiterals;
using platform::DriveKind;

#ifdef Q_OS_WIN
namespace {

// Fake drives of each kind, because no test machine has all of them.
UINT WINAPI fakeDriveType(LPCWSTR root)
{
    const QString path = QString::fromWCharArray(root);
    if (path == "R:\\"_L1)
        return DRIVE_REMOVABLE;
    if (path == "O:\\"_L1)
        return DRIVE_CDROM;
    if (path == "N:\\"_L1)
        return DRIVE_REMOTE;
    return path == "F:\\"_L1 ? DRIVE_FIXED : DRIVE_NO_ROOT_DIR;
}

} // namespace

// The linker takes this entry of the program's import table instead of the system's.
extern "C" {
extern decltype(&fakeDriveType) const importedDriveType asm("__imp_GetDriveTypeW");
decltype(&fakeDriveType) const importedDriveType = fakeDriveType;
}
#endif

#ifdef Q_OS_UNIX
namespace {

/// The numbers of the device that holds @p path, as in the name of the kernel's link.
QString numbersOf(const QString &path)
{
    struct stat status = {};
    if (::stat(qPrintable(path), &status) != 0)
        qFatal("cannot examine %s", qPrintable(path));
    return u"%1:%2"_s.arg(major(status.st_dev)).arg(minor(status.st_dev));
}

} // namespace
#endif

class TestDrives : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unknownVolumesAreFixed()
    {
        QCOMPARE(platform::driveKind(u"/no/such/volume"_s), DriveKind::Fixed);
        QCOMPARE(platform::driveKind(QString()), DriveKind::Fixed);
    }

#ifdef Q_OS_WIN
    void eachKindOfDriveIsReported_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<DriveKind>("kind");
        QTest::newRow("fixed") << u"F:/"_s << DriveKind::Fixed;
        QTest::newRow("removable") << u"R:/"_s << DriveKind::Removable;
        QTest::newRow("removable, without its slash") << u"R:"_s << DriveKind::Removable;
        QTest::newRow("optical") << u"O:/"_s << DriveKind::Optical;
        QTest::newRow("network") << u"N:/"_s << DriveKind::Fixed;
    }

    void eachKindOfDriveIsReported()
    {
        QFETCH(QString, root);
        QFETCH(DriveKind, kind);
        QCOMPARE(platform::driveKind(root), kind);
    }
#else
    void eachKindOfDeviceIsReported_data()
    {
        QTest::addColumn<QString>("device");
        QTest::addColumn<bool>("isPartition");
        QTest::addColumn<QByteArray>("removable");
        QTest::addColumn<DriveKind>("kind");
        QTest::newRow("disk") << u"sda"_s << false << "0\n"_ba << DriveKind::Fixed;
        QTest::newRow("stick") << u"sdb"_s << false << "1\n"_ba << DriveKind::Removable;
        QTest::newRow("partition of a disk") << u"sda"_s << true << "0\n"_ba << DriveKind::Fixed;
        QTest::newRow("partition of a stick")
            << u"sdb"_s << true << "1\n"_ba << DriveKind::Removable;
        QTest::newRow("optical") << u"sr0"_s << false << "1\n"_ba << DriveKind::Optical;
        QTest::newRow("unknown") << u"sdc"_s << false << QByteArray() << DriveKind::Fixed;
    }

    // No test machine has a drive of each kind, so the kernel's folder about them is a made one.
    void eachKindOfDeviceIsReported()
    {
        QFETCH(QString, device);
        QFETCH(bool, isPartition);
        QFETCH(QByteArray, removable);
        QFETCH(DriveKind, kind);
        const TestTree tree;
        QString folder = tree.folder("devices/"_L1 + device);
        if (!removable.isEmpty())
            tree.file(u"devices/%1/removable"_s.arg(device), removable);
        if (isPartition) {
            folder += "/partition"_L1;
            tree.file(u"devices/%1/partition/partition"_s.arg(device), "1\n");
        }
        tree.link(folder, "block/"_L1 + numbersOf(tree.path()));
        QCOMPARE(platform::driveKind(tree.path(), tree.path(u"block"_s)), kind);
    }

    void aVolumeOfAnotherDeviceIsFixed()
    {
        const TestTree tree;
        tree.file(u"devices/sdb/removable"_s, "1\n");
        tree.link(tree.path(u"devices/sdb"_s), "block/"_L1 + numbersOf(tree.path()));
        QCOMPARE(platform::driveKind(tree.path(), tree.path(u"block"_s)), DriveKind::Removable);
        QCOMPARE(platform::driveKind(u"/proc"_s, tree.path(u"block"_s)), DriveKind::Fixed);
    }
#endif
};

QTEST_GUILESS_MAIN(TestDrives)
#include "tst_drives.moc"
