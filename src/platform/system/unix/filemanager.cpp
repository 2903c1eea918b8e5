#include "filemanager.h"

#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

bool revealFile(const QString &path)
{
    // No standard way exists to select a file, so its folder is opened.
    return QProcess::startDetached(u"xdg-open"_s, {QFileInfo(path).absolutePath()});
}

} // namespace platform
