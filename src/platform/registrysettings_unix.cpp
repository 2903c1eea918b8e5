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

QString noName()
{
    return RegistryTexts::tr("A value without a name is not written");
}

} // namespace

bool setText(Hive hive, const QString &key, const QString &name, const QString &text,
             QString &error)
{
    if (name.isEmpty())
        return fail(error, noName());
    const QString stored = text + QChar(u'\0');
    QByteArray data(stored.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(stored.utf16(), stored.size(), data.data());
    Registry registry;
    return (registry.createKey(hive, key)
            && registry.setValue(hive, key, {name, RegistryText, data}) && registry.save())
        || fail(error, registry.errorString());
}

bool remove(Hive hive, const QString &key, const QString &name, QString &error)
{
    if (name.isEmpty())
        return fail(error, noName());
    Registry registry;
    if (!registry.value(hive, key, name))
        return true;
    return (registry.deleteValue(hive, key, name) && registry.save())
        || fail(error, registry.errorString());
}

} // namespace platform::registrysettings
