#include "autostart.h"

#include "appinfo.h"
#include "registrykeys.h"
#include "registrysettings.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace autostart {

QString command(const QString &programPath)
{
    const QString path = QDir::toNativeSeparators(programPath);
    return path.contains(u' ') ? u"\"%1\""_s.arg(path) : path;
}

bool set(bool on)
{
    using platform::Hive;
    QString error;
    return on ? platform::registrysettings::setText(
               Hive::CurrentUser, registrykeys::userRun, appinfo::name,
               command(QCoreApplication::applicationFilePath()), error)
              : platform::registrysettings::remove(Hive::CurrentUser, registrykeys::userRun,
                                                   {appinfo::name}, error);
}

} // namespace autostart
