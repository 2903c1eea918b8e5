#include "options.h"

#include "logger.h"
#include "settingsfile.h"

#include <QSettings>
#include <QString>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

// The key as an INI file returns it.
QString keyInFile(QLatin1StringView key)
{
    QString name = key;
    if (name.startsWith("general/"_L1))
        name[0] = u'G';
    return name;
}

} // namespace

namespace options {

bool isOn(const QSettings &settings, const Option &option)
{
    const QVariant inFile = settings.value(keyInFile(option.key), option.defaultValue);
    return settings.value(option.key, inFile).toBool();
}

void set(QSettings &settings, const Option &option, bool on)
{
    settings.remove(keyInFile(option.key));
    settings.setValue(option.key, on);
}

bool save(const QSettings &settings)
{
    QStringList problems;
    const bool hasRoom = settingsfile::makeRoom(settings, problems);
    Logger::instance().warnings(problems);
    if (!hasRoom)
        return false;
    // Both objects share what is not saved yet. But each keeps its first failure for ever, so an
    // old object does not tell how this attempt has ended.
    QSettings sameFile(settings.fileName(), settings.format());
    sameFile.sync();
    // A line that could not be read does not keep the toolkit from writing the others.
    return sameFile.status() != QSettings::AccessError;
}

} // namespace options
