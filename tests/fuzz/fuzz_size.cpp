#include "fuzzing.h"

#include "sizetext.h"

#include <cstring>
#include <limits>

// A number with a unit is that many bytes, unless there are too many. Other text is refused or at
// least one byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::optional<qint64> any =
        cli::parseSize(QString::fromUtf8(fuzzing::bytesOf(data, size)));
    fuzzing::expect(!any || *any >= 1, "a size is at least one byte");

    const unsigned unit = fuzzing::takeByte(data, size) % 4U;
    quint64 number = 0;
    std::memcpy(&number, data, qMin(size, sizeof number));
    constexpr const char *letters[] = {"", "k", "M", "G"};
    const QString text = QString::number(number) + QLatin1StringView(letters[unit]);
    __extension__ const unsigned __int128 bytes = static_cast<unsigned __int128>(number)
        << (10 * unit);
    const bool fits = bytes >= 1 && bytes <= std::numeric_limits<qint64>::max();
    const std::optional<qint64> parsed = cli::parseSize(text);
    fuzzing::expect(parsed.has_value() == fits, "a size fits or is refused");
    fuzzing::expect(!fits || *parsed == static_cast<qint64>(bytes), "a size has its bytes");
    return 0;
}
