#include "drives.h"

#include <QDir>

#include <windows.h>

namespace platform {

DriveKind driveKind(const QString &root)
{
    QString native = QDir::toNativeSeparators(root);
    if (!native.endsWith(u'\\'))
        native += u'\\';
    switch (::GetDriveTypeW(reinterpret_cast<const wchar_t *>(native.utf16()))) {
    case DRIVE_REMOVABLE:
        return DriveKind::Removable;
    case DRIVE_CDROM:
        return DriveKind::Optical;
    default:
        return DriveKind::Fixed;
    }
}

} // namespace platform
