#include "drives.h"

#include <QDir>
#include <QTest>

#ifdef Q_OS_WIN
#include <windows.h>
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
    void volumesWithoutABlockDeviceAreFixed()
    {
        QCOMPARE(platform::driveKind(u"/proc"_s), DriveKind::Fixed);
    }

    void theDiskOfTheSystemIsFixed()
    {
        QCOMPARE(platform::driveKind(u"/"_s), DriveKind::Fixed);
    }
#endif
};

QTEST_GUILESS_MAIN(TestDrives)
#include "tst_drives.moc"
