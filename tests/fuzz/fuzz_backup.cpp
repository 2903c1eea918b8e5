#include "fuzzing.h"

#include "registrybackup.h"
#include "registryrestore.h"

// A backup gives keys below a known hive, or an error that names the reason.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const bool isUtf16 = (fuzzing::takeByte(data, size) & 1U) != 0;
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    QString text = QString::fromUtf8(bytes);
    if (isUtf16) {
        const std::optional<QString> decoded = RegistryBackup::decode(bytes);
        if (!decoded)
            return 0;
        text = *decoded;
    }
    QString error;
    const std::optional<QList<RestoredKey>> keys = RegistryRestore::parse(text, error);
    if (!keys) {
        fuzzing::expect(!error.isEmpty(), "a refusal has a reason");
        return 0;
    }
    for (const RestoredKey &key : *keys) {
        fuzzing::expect(key.hive == platform::Hive::LocalMachine
                            || key.hive == platform::Hive::CurrentUser,
                        "a class has the hive that it came from");
        fuzzing::expect(!key.path.isEmpty() && !key.path.startsWith(u'\\')
                            && !key.path.endsWith(u'\\'),
                        "a key is no hive");
        fuzzing::expect(!key.name.isEmpty(), "a key has a name");
    }
    return 0;
}
