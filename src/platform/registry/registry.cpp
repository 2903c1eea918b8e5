#include "registry_p.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

bool Registry::isKeyPath(const QString &key)
{
    const QStringList names = key.split(u'\\');
    return std::none_of(names.begin(), names.end(),
                        [](const QString &name) { return name.isEmpty(); });
}

QString Registry::classPath(const QString &key)
{
    return key.isEmpty() ? u"Software\\Classes"_s : "Software\\Classes\\"_L1 + key;
}

Registry::ClassText Registry::classText(const QString &key, const QString &name) const
{
    for (const Hive hive : {Hive::CurrentUser, Hive::LocalMachine}) {
        if (const std::optional<RegistryValue> found = value(hive, classPath(key), name))
            return {registryText(*found), hive};
    }
    return {};
}

QString Registry::text(Hive hive, const QString &key, const QString &name) const
{
    const std::optional<RegistryValue> found = value(hive, key, name);
    return found ? registryText(*found) : QString();
}

bool beginsAsRegistryFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(21);
    return start == "WINE REGISTRY Version" || start.startsWith("regf");
}

QString registryText(const RegistryValue &value)
{
    switch (value.type) {
    case RegistryText:
    case RegistryExpandText: {
        QString text(value.data.size() / 2, Qt::Uninitialized);
        qFromLittleEndian<char16_t>(value.data.constData(), text.size(),
                                    reinterpret_cast<char16_t *>(text.data()));
        const qsizetype end = text.indexOf(QChar(u'\0'));
        return end < 0 ? text : text.first(end);
    }
    case RegistryDword:
        return value.data.size() < 4
            ? QString()
            : QString::number(qFromLittleEndian<quint32>(value.data.constData()));
    case RegistryQword:
        return value.data.size() < 8
            ? QString()
            : QString::number(qFromLittleEndian<quint64>(value.data.constData()));
    default:
        return {};
    }
}

} // namespace platform
