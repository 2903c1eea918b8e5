#include "registrysettings.h"

#include "registry_p.h"

#include <QCoreApplication>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace platform::registrysettings {

namespace {

bool fail(QString &error, const QString &reason)
{
    error = reason;
    return false;
}

// Whether QSettings stores name and text unchanged. QSettings splits a name at slashes and turns a
// backslash into a slash. So a slash is passed as a backslash, and a name with a backslash cannot
// be written. "." and "Default" mean the key's default value. A text that begins with "@" has
// another meaning.
bool canBeWritten(const QString &name, const QString &text)
{
    return !name.contains(u'\\') && name != "."_L1
        && name.compare("Default"_L1, Qt::CaseInsensitive) != 0 && !text.startsWith(u'@');
}

QString escapedName(QString name)
{
    return name.replace(u'/', u'\\');
}

} // namespace

bool setText(Hive hive, const QString &key, const QString &name, const QString &text,
             QString &error)
{
    if (name.isEmpty())
        return fail(error, RegistryTexts::tr("A value without a name is not written"));
    if (name.contains(QChar(u'\0')) || text.contains(QChar(u'\0')))
        return fail(error, RegistryTexts::tr("The name or the text cannot be stored as it is"));
    Registry registry;
    if (!registry.createKey(hive, key)) {
        error = registry.errorString();
        return false;
    }
    bool isWritten = false;
    if (canBeWritten(name, text)) {
        QSettings settings(hiveName(hive) + u'\\' + key, QSettings::NativeFormat);
        settings.setFallbacksEnabled(false);
        settings.setValue(escapedName(name), text);
        settings.sync();
        isWritten = settings.status() == QSettings::NoError;
    } else {
        const QByteArray data(reinterpret_cast<const char *>(text.utf16()), (text.size() + 1) * 2);
        isWritten = registry.setValue(hive, key, {name, RegistryText, data});
    }
    const std::optional<RegistryValue> stored = registry.value(hive, key, name);
    if (!isWritten || !stored || stored->type != RegistryText
        || registry.text(hive, key, name) != text)
        return fail(error, RegistryTexts::tr("The registry did not take the value"));
    return true;
}

// QSettings is not used: it would also remove a key of the same name with everything below it.
bool remove(Hive hive, const QString &key, const QStringList &names, QString &error)
{
    Registry registry;
    for (const QString &name : names) {
        if (registry.value(hive, key, name) && !registry.deleteValue(hive, key, name))
            return fail(error, registry.errorString());
        if (registry.value(hive, key, name))
            return fail(error, RegistryTexts::tr("The registry did not let go of the value"));
    }
    // A value that could not be read may still be there.
    if (!registry.readFailures().isEmpty())
        return fail(error, registry.readFailures().lines().join(u'\n'));
    return true;
}

} // namespace platform::registrysettings
