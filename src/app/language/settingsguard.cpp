#include "settingsguard.h"

#include "appinfo.h"
#include "rulefolders.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestSettingsFile = 1'048'576; // bytes

} // namespace

void setAsideDamagedSettings(const QString &fileName)
{
    const QString path =
        platform::settingsFolder() + u'/' + appinfo::organisation + u'/' + fileName;
    const QFileInfo info(path);
    const bool isMissing = !info.exists() && !info.isSymLink();
    if (isMissing || (info.isFile() && info.size() <= largestSettingsFile))
        return;
    const QString aside = path + ".damaged"_L1;
    QFile::remove(aside);
    if (QFile::rename(path, aside))
        qWarning() << "Unusable settings were set aside:" << aside;
    else
        qWarning() << "Unusable settings could not be set aside:" << path;
}
