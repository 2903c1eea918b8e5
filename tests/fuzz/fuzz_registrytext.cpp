#include "fuzzing.h"

#include "registry.h"
#include "unix/registryfile.h"
#include "unix/registrytext.h"

using namespace Qt::StringLiterals;
using namespace platform;

// Any name and any bytes of any type are read as they were written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::uint8_t type = fuzzing::takeByte(data, size);
    const std::uint8_t split = fuzzing::takeByte(data, size);
    const QByteArray bytes = fuzzing::bytesOf(data, size);

    qsizetype length = 0;
    if (const std::optional<QString> name = registrytext::decodeName(bytes, '"', length)) {
        fuzzing::expect(length < bytes.size() && bytes.at(length) == '"', "the name ends there");
        qsizetype end = 0;
        const QByteArray written = registrytext::encodeName(*name, "\"") + '"';
        fuzzing::expect(registrytext::decodeName(written, '"', end) == name, "a name is kept");
    }
    (void)registrytext::decodeData(bytes);

    const qsizetype nameSize = qMin<qsizetype>(split, bytes.size()) / 2;
    QString name(reinterpret_cast<const QChar *>(bytes.constData()), nameSize);
    const RegistryValue value{name, type, bytes.sliced(2 * nameSize)};
    std::optional<RegistryFile> file = RegistryFile::parse("WINE REGISTRY Version 2\n");
    file->setValue(file->create(u"Key"_s), value);
    const std::optional<RegistryFile> again = RegistryFile::parse(file->text());
    fuzzing::expect(again.has_value(), "the file can be read");
    const std::optional<RegistryValue> read = again->value(again->find(u"Key"_s), name);
    fuzzing::expect(read && read->type == type && read->data == value.data, "a value is kept");
    return 0;
}
