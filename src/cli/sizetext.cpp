#include "sizetext.h"

#include <limits>

namespace cli {

std::optional<qint64> parseSize(const QString &text)
{
    static constexpr QLatin1StringView units("KMG");
    QString digits = text;
    int shift = 0;
    if (!text.isEmpty()) {
        const qsizetype unit = units.indexOf(text.back().toUpper());
        if (unit >= 0) {
            shift = 10 * (static_cast<int>(unit) + 1);
            digits.chop(1);
        }
    }
    bool isNumber = false;
    const qint64 value = digits.toLongLong(&isNumber);
    if (!isNumber || value < 1 || value > (std::numeric_limits<qint64>::max() >> shift))
        return {};
    return value << shift;
}

} // namespace cli
