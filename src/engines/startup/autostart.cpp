#include "autostart.h"

#include "appinfo.h"
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
    const QString key = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
    QString error;
    return on
        ? platform::registrysettings::setText(Hive::CurrentUser, key, appinfo::name,
                                              command(QCoreApplication::applicationFilePath()),
                                              error)
        : platform::registrysettings::remove(Hive::CurrentUser, key, {appinfo::name}, error);
}

} // namespace autostart
