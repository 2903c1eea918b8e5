#include "fuzzing.h"

#include "namefilter.h"

#include <QString>

#include <vector>

namespace {

char32_t folded(char32_t character)
{
    return QChar::toCaseFolded(character);
}

/// Whether the wildcard matches, by a table of all their beginnings.
bool matchesPlainly(const QList<uint> &wildcard, const QList<uint> &name)
{
    std::vector<bool> row(static_cast<std::size_t>(name.size()) + 1);
    row[0] = true;
    for (const uint character : wildcard) {
        std::vector<bool> next(row.size());
        next[0] = character == U'*' && row[0];
        for (std::size_t i = 1; i < row.size(); ++i) {
            const uint other = name.at(static_cast<qsizetype>(i) - 1);
            if (character == U'*')
                next[i] = row[i] || next[i - 1];
            else
                next[i] = row[i - 1] && (character == U'?' || folded(character) == folded(other));
        }
        row = next;
    }
    return row.back();
}

} // namespace

// The quick comparison gives the answer of the plain one. Sets are left to the regular expressions.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::uint8_t length = fuzzing::takeByte(data, size);
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    const QString wildcard = QString::fromUtf8(bytes.first(qMin<qsizetype>(length, bytes.size())));
    const QString name = QString::fromUtf8(bytes.mid(length));
    const platform::NameFilter filter({wildcard});
    const bool matches = filter.matches(name);
    if (wildcard.isEmpty()) {
        fuzzing::expect(!matches, "an empty wildcard matches nothing");
        return 0;
    }
    if (wildcard.contains(u'[') || wildcard.contains(u'\\') || wildcard.contains(u'/'))
        return 0;
    fuzzing::expect(matches == matchesPlainly(wildcard.toUcs4(), name.toUcs4()),
                    "both comparisons agree");
    return 0;
}
