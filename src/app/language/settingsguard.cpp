#include "settingsguard.h"

#include "appinfo.h"
#include "rulefolders.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maxSettingsFileSize = 1'048'576; // bytes

} // namespace

void setAsideDamagedSettings(const QString &fileName)
{
    const QString path =
        platform::settingsFolder() + u'/' + appinfo::organisation + u'/' + fileName;
    const QFileInfo info(path);
    const bool isMissing = !info.exists() && !info.isSymLink();
    if (isMissing || (info.isFile() && info.size() <= maxSettingsFileSize))
        return;
    const QString damagedPath = path + ".damaged"_L1;
    QFile::remove(damagedPath);
    if (QFile::rename(path, damagedPath))
        qWarning() << "Unusable settings were set aside:" << damagedPath;
    else
        qWarning() << "Unusable settings could not be set aside:" << path;
}
