#include "windowspaths.h"

namespace platform {

QString localPath(const QString &path)
{
    return path;
}

QString windowsVariable(const QString &name)
{
    return qEnvironmentVariable(name.toLatin1().constData());
}

} // namespace platform
