#include "registrysettings.h"

#include "registry_p.h"

#include <QCoreApplication>
#include <QtEndian>

namespace platform::registrysettings {

namespace {

bool fail(QString &error, const QString &reason)
{
    error = reason;
    return false;
}

} // namespace

bool setText(Hive hive, const QString &key, const QString &name, const QString &text,
             QString &error)
{
    if (name.isEmpty())
        return fail(error, RegistryTexts::tr("A value without a name is not written"));
    const QString stored = text + QChar(u'\0');
    QByteArray data(stored.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(stored.utf16(), stored.size(), data.data());
    Registry registry;
    return (registry.createKey(hive, key)
            && registry.setValue(hive, key, {name, RegistryText, data}) && registry.save())
        || fail(error, registry.errorString());
}

bool remove(Hive hive, const QString &key, const QStringList &names, QString &error)
{
    Registry registry;
    for (const QString &name : names) {
        if (registry.value(hive, key, name) && !registry.deleteValue(hive, key, name))
            return fail(error, registry.errorString());
    }
    // A value that could not be read may still be there.
    if (!registry.readFailures().isEmpty())
        return fail(error, registry.readFailures().lines().join(u'\n'));
    return registry.save() || fail(error, registry.errorString());
}

} // namespace platform::registrysettings
