#include "text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isHarmless(QChar c)
{
    const char16_t code = c.unicode();
    const bool isControl = code < 0x20 || (code >= 0x7f && code < 0xa0);
    const bool isSeparator = code == 0x2028 || code == 0x2029;
    const bool isDirectionMark = code == 0x200e || code == 0x200f || code == 0x061c
        || (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    return !isControl && !isSeparator && !isDirectionMark;
}

} // namespace

QString singleLine(const QString &text)
{
    if (std::all_of(text.begin(), text.end(), isHarmless))
        return text;
    QString line = text;
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return !isHarmless(c); },
        QChar(QChar::ReplacementCharacter));
    return line;
}

QString shortPath(const QString &path, qsizetype head, qsizetype tail)
{
    const auto dots = "..."_L1;
    return path.size() > head + dots.size() + tail ? path.first(head) + dots + path.last(tail)
                                                   : path;
}
