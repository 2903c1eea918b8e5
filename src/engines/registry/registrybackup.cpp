#include "registrybackup.h"

#include "entry.h"
#include "itemhive.h"
#include "ownfile.h"
#include "rulefolders.h"
#include "text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringConverter>
#include <QTextStream>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;
using platform::RegistryValue;

namespace {

/// Bytes; longer values are left out of a key's export.
constexpr qsizetype maxListedValueSize = 65536;
constexpr int maxLineLength = 70; ///< characters; a longer list of bytes is wrapped

/// Gives the texts of this file the context of RegistryBackup.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(RegistryBackup)
};

QString escaped(QString text)
{
    text.replace(u'\\', "\\\\"_L1);
    return text.replace(u'"', "\\\""_L1);
}

QString hexList(const QByteArray &data)
{
    QString list;
    list.reserve(data.size() * 3 + data.size() / 20 * 4);
    int column = 0;
    for (qsizetype i = 0; i < data.size(); ++i) {
        if (i > 0) {
            list += u',';
            ++column;
        }
        if (column > maxLineLength) {
            list += "\\\r\n  "_L1;
            column = 2;
        }
        list += QLatin1StringView(data.sliced(i, 1).toHex());
        column += 2;
    }
    return list;
}

// All characters but the last. The last one is taken for the terminating NUL and not checked.
QString storedText(const QByteArray &data)
{
    QString text(std::max<qsizetype>(data.size() / 2 - 1, 0), Qt::Uninitialized);
    qFromLittleEndian<char16_t>(data.constData(), text.size(),
                                reinterpret_cast<char16_t *>(text.data()));
    return text;
}

QString keyLine(const ItemHive &hive, const QString &key)
{
    const bool isUserClass = hive.isClass() && hive.stored == Hive::CurrentUser;
    const QString mark = isUserClass ? RegistryBackup::userClassMark + "\r\n"_L1 : QString();
    return mark + u'[' + hiveName(hive.named) + u'\\' + key + "]\r\n"_L1;
}

bool hasLineBreak(const QString &text)
{
    return text.contains(u'\r') || text.contains(u'\n');
}

// Whether the path of a key can be written to the file. A path with an empty name in it would be
// read as the path of another key.
bool canExport(const QString &key)
{
    return !hasLineBreak(key) && Registry::isKeyPath(key);
}

QString warningLine(const ItemHive &hive, const QString &path, QLatin1StringView what)
{
    return "; WARNING: Could not read registry "_L1 + what + ": "_L1 + hiveName(hive.named) + u'\\'
        + singleLine(path) + "\r\n"_L1;
}

// Empty when the key cannot be opened.
QString exportKey(const Registry &registry, const ItemHive &hive, const QString &key)
{
    const auto values = canExport(key)
        ? registry.values(hive.stored, hive.storedPath(key), maxListedValueSize)
        : std::nullopt;
    if (!values)
        return {};
    QString block = keyLine(hive, key);
    for (const RegistryValue &value : *values)
        block += hasLineBreak(value.name) ? warningLine(hive, key + u'\\' + value.name, "entry"_L1)
                                          : RegistryBackup::valueLine(value);
    return block + "\r\n"_L1;
}

// Empty when the value cannot be read.
QString exportValue(const Registry &registry, const ItemHive &hive, const QString &key,
                    const QString &name)
{
    std::optional<RegistryValue> value = canExport(key) && !hasLineBreak(name)
        ? registry.value(hive.stored, hive.storedPath(key), name)
        : std::nullopt;
    if (!value)
        return {};
    value->name = name;
    return keyLine(hive, key) + RegistryBackup::valueLine(*value) + "\r\n"_L1;
}

QString exportItem(const Registry &registry, const CleanItem &item)
{
    const ItemHive hive = ItemHive::forBackup(item);
    const QString &path = item.registryKey;
    const qsizetype separator = path.lastIndexOf(u'\\');
    QString block;
    if (separator >= 0 && item.registryEntry != RegistryEntry::Key)
        block = exportValue(registry, hive, path.first(separator), path.mid(separator + 1));
    if (block.isEmpty() && item.registryEntry != RegistryEntry::Value)
        block = exportKey(registry, hive, path);
    if (!block.isEmpty())
        return block;
    return warningLine(hive, path, separator < 0 ? "key"_L1 : "entry"_L1) + "\r\n"_L1;
}

} // namespace

QString RegistryBackup::text(const ScanResult &result, const Registry &registry,
                             const QDateTime &created)
{
    QString text = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;
    text += "; Sweepwise Registry Backup\r\n"_L1;
    text += "; Created: "_L1 + created.toLocalTime().toString(u"yyyy-MM-dd hh:mm:ss"_s) + "\r\n"_L1;
    text += "; This file can be double-clicked to restore deleted registry entries\r\n\r\n"_L1;
    for (const CleanCategory &category : result.categories) {
        if (!category.checked)
            continue;
        text += "; === Category: "_L1 + singleLine(category.name) + " ===\r\n\r\n"_L1;
        for (const CleanItem &item : category.items) {
            if (item.checked)
                text += "; "_L1 + singleLine(item.name) + "\r\n"_L1 + exportItem(registry, item);
        }
    }
    return text;
}

QString RegistryBackup::valueLine(const RegistryValue &value)
{
    const QString name = value.name.isEmpty() ? u"@"_s : u'"' + escaped(value.name) + u'"';
    const auto list = [&](const QString &kind) {
        return name + "=hex"_L1 + kind + u':' + hexList(value.data) + "\r\n"_L1;
    };
    switch (value.type) {
    case platform::RegistryText:
        if (value.data.size() >= 2)
            return name + "=\""_L1 + escaped(storedText(value.data)) + "\"\r\n"_L1;
        break;
    case platform::RegistryDword:
        if (value.data.size() >= 4) {
            const auto number = qFromLittleEndian<quint32>(value.data.constData());
            return name + u"=dword:%1\r\n"_s.arg(number, 8, 16, QChar(u'0'));
        }
        break;
    case platform::RegistryBinary:
        return list({});
    default:
        break;
    }
    return list(u"(%1)"_s.arg(value.type, 0, 16));
}

QString RegistryBackup::targetProblem(const QString &path)
{
    const QFileInfo info(path);
    const QString target = platform::locate(info.absolutePath(), info.fileName());
    if (target.isEmpty() || info.fileName().isEmpty())
        return Text::tr("There is no such folder");
    switch (platform::inspect(target).kind) {
    case platform::EntryKind::Missing:
    case platform::EntryKind::File:
        return platform::isRegistryFile(target) ? Text::tr("It is a file of the registry itself")
                                                : QString();
    case platform::EntryKind::Folder:
        return Text::tr("A folder stands there");
    case platform::EntryKind::Link:
        return Text::tr("A link stands there, which leads elsewhere");
    case platform::EntryKind::Other:
        break;
    }
    return Text::tr("What stands there is not a file");
}

bool RegistryBackup::write(const QString &path, const QString &text, QString &error)
{
    error = targetProblem(path);
    if (!error.isEmpty())
        return false;
    QByteArray bytes;
    QTextStream stream(&bytes);
    stream.setEncoding(QStringConverter::Utf16LE);
    stream.setGenerateByteOrderMark(false);
    stream << QChar(QChar::ByteOrderMark) << text;
    stream.flush();
    // The file replaces whatever is at the path by then, so the path is checked again.
    return platform::replaceFile(
        path, bytes, [&path] { return targetProblem(path); }, error);
}

std::optional<QString> RegistryBackup::decode(const QByteArray &data)
{
    if (data.size() % 2 != 0)
        return std::nullopt;
    QString text(data.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(data.constData(), text.size(),
                                reinterpret_cast<char16_t *>(text.data()));
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    // A text mode puts a CR before every LF, even after another CR.
    const qsizetype end = text.indexOf(u'\n');
    if (end >= 2 && text.at(end - 1) == u'\r' && text.at(end - 2) == u'\r')
        text.replace("\r\n"_L1, "\n"_L1);
    return text;
}
