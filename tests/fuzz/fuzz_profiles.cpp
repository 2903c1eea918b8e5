#include "fuzzing.h"

#include "inifile.h"

// Groups and keys have no blanks or line ends around them, and no key is empty.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QList<IniGroup> groups = parseIni(fuzzing::bytesOf(data, size));
    for (const IniGroup &group : groups) {
        fuzzing::expect(group.name == group.name.trimmed(), "a name is trimmed");
        for (auto value = group.values.cbegin(); value != group.values.cend(); ++value) {
            fuzzing::expect(value.key() == value.key().trimmed().toLower(), "a key is folded");
            fuzzing::expect(!value.value().contains(u'\n') && !value.value().contains(u'\r'),
                            "a value is one line");
        }
    }
    return 0;
}
