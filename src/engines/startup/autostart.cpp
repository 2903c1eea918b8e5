#include "autostart.h"

#include "appinfo.h"
#include "logger.h"
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
    const bool isStored = on ? platform::registrysettings::setText(
                              Hive::CurrentUser, registrykeys::userRun, appinfo::name,
                              command(QCoreApplication::applicationFilePath()), error)
                             : platform::registrysettings::remove(
                                 Hive::CurrentUser, registrykeys::userRun, {appinfo::name}, error);
    if (!isStored)
        Logger::instance().error(u"The start with the session cannot be turned %1: %2"_s.arg(
            on ? u"on"_s : u"off"_s, error));
    return isStored;
}

} // namespace autostart
