#include "fuzzing.h"

#include "registry.h"
#include "unix/registryfile.h"

#include <QMap>

using namespace Qt::StringLiterals;
using platform::RegistryFile;
using platform::RegistryValue;

namespace {

constexpr qsizetype mostKeys = 200;

/// The values of a key and of all keys below it. Keys are separated by backslashes, as in find().
void collect(const RegistryFile &file, RegistryFile::Key key, const QString &path,
             QMap<QString, QMap<QString, std::pair<quint32, QByteArray>>> &values)
{
    if (values.size() >= mostKeys)
        return;
    auto &own = values[path];
    for (const QString &name : file.valueNames(key)) {
        if (const std::optional<RegistryValue> value = file.value(key, name))
            own.insert(name, {value->type, value->data});
    }
    for (const QString &name : file.subkeys(key)) {
        // Such a name cannot be asked for by its path.
        if (name.isEmpty() || name.contains(u'\\'))
            continue;
        const QString below = path.isEmpty() ? name : path + u'\\' + name;
        const RegistryFile::Key found = file.find(below);
        fuzzing::expect(found != RegistryFile::none, "a listed key is found");
        collect(file, found, below, values);
    }
}

auto collect(const RegistryFile &file)
{
    QMap<QString, QMap<QString, std::pair<quint32, QByteArray>>> values;
    collect(file, RegistryFile::root, {}, values);
    return values;
}

} // namespace

// What is read, changed and written is read again with the change and nothing else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::uint8_t choice = fuzzing::takeByte(data, size);
    const QByteArray text = "WINE REGISTRY Version 2\n" + fuzzing::bytesOf(data, size);
    std::optional<RegistryFile> file = RegistryFile::parse(text);
    if (!file)
        return 0;
    fuzzing::expect(file->text() == text, "an unchanged file is written as it was read");
    auto expected = collect(*file);

    const QString added = u"Fuzzed Key"_s;
    const RegistryValue value{u"fuzzed \"value\""_s, choice,
                              text.last(qMin(text.size(), qsizetype(9)))};
    const RegistryFile::Key key = file->create(added);
    file->setValue(key, value);
    if ((choice & 1U) != 0 && !expected.isEmpty()) {
        const QString path = expected.lastKey();
        const RegistryFile::Key removed = file->find(path);
        if (removed != RegistryFile::root && removed != key) {
            file->removeTree(removed);
            for (auto entry = expected.begin(); entry != expected.end();)
                entry = entry.key() == path || entry.key().startsWith(path + u'\\')
                    ? expected.erase(entry)
                    : std::next(entry);
        }
    }
    const std::optional<RegistryFile> again = RegistryFile::parse(file->text());
    fuzzing::expect(again.has_value(), "a written file can be read");
    const RegistryFile::Key found = again->find(added);
    fuzzing::expect(found != RegistryFile::none, "the new key is there");
    const std::optional<RegistryValue> read = again->value(found, value.name);
    fuzzing::expect(read && read->type == value.type && read->data == value.data,
                    "the new value is there");
    const auto now = collect(*again);
    if (expected.size() >= mostKeys || now.size() >= mostKeys)
        return 0;
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        if (entry.key().compare(added, Qt::CaseInsensitive) == 0)
            continue;
        fuzzing::expect(now.contains(entry.key()), "another key is still there");
        fuzzing::expect(now.value(entry.key()) == entry.value(), "its values are the same");
    }
    return 0;
}
