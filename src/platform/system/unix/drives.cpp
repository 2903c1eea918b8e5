#include "unix/blockdevices.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The kernel's folder about the block device of the volume. For a partition it is the folder above,
// that of the whole disk. Only that folder tells whether the disk is removable.
QString deviceFolder(const QString &root, const QString &blockDevices)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(root).constData(), &status) != 0)
        return {};
    const QString link = blockDevices
        + u"/%1:%2"_s.arg(QString::number(major(status.st_dev)),
                          QString::number(minor(status.st_dev)));
    const QString folder = QFileInfo(link).canonicalFilePath();
    return QFile::exists(folder + "/partition"_L1) ? QFileInfo(folder).path() : folder;
}

} // namespace

DriveKind driveKind(const QString &root)
{
    return driveKind(root, u"/sys/dev/block"_s);
}

DriveKind driveKind(const QString &root, const QString &blockDevices)
{
    const QString folder = deviceFolder(root, blockDevices);
    if (folder.isEmpty())
        return DriveKind::Fixed;
    if (QFileInfo(folder).fileName().startsWith("sr"_L1))
        return DriveKind::Optical;
    QFile removable(folder + "/removable"_L1);
    return removable.open(QIODevice::ReadOnly) && removable.read(1) == "1" ? DriveKind::Removable
                                                                           : DriveKind::Fixed;
}

} // namespace platform
