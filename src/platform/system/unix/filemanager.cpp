#include "filemanager.h"

#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace platform {

bool revealFile(const QString &path)
{
    // There is no common way to have a file selected, so its folder is opened.
    return QProcess::startDetached(u"xdg-open"_s, {QFileInfo(path).absolutePath()});
}

} // namespace platform
