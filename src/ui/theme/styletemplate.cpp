#include "styletemplate.h"

#include <QVarLengthArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace theme {

namespace {

/// A row of the token table: the name in styles and the value in CSS.
struct Token {
    QLatin1StringView name;
    QLatin1StringView value;
};

#define THEME_ROW(name, value) Token{QLatin1StringView(#name), QLatin1StringView(value)},
#define THEME_NUMBER_ROW(name, value) THEME_ROW(name, #value)
constexpr Token tokens[] = {THEME_COLOURS(THEME_ROW) THEME_LENGTHS(THEME_NUMBER_ROW)};
#undef THEME_NUMBER_ROW
#undef THEME_ROW

const Token *tokenOf(QStringView name)
{
    const auto *found = std::find_if(std::begin(tokens), std::end(tokens),
                                     [name](const Token &token) { return token.name == name; });
    return found == std::end(tokens) ? nullptr : found;
}

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

// The name of the hole whose brace is at @p begin; empty when there is no hole.
QStringView holeAt(QStringView style, qsizetype begin)
{
    qsizetype end = begin + 1;
    while (end < style.size() && isLetter(style[end]))
        ++end;
    const bool isClosed = end < style.size() && style[end] == u'}';
    return isClosed ? style.sliced(begin + 1, end - begin - 1) : QStringView();
}

} // namespace

Filled fillHoles(QStringView style, std::initializer_list<Value> values)
{
    Filled filled;
    filled.text.reserve(style.size() + style.size() / 4);
    QVarLengthArray<bool, 8> isUsed(static_cast<qsizetype>(values.size()), false);
    qsizetype copiedEnd = 0;
    for (qsizetype brace = style.indexOf(u'{'); brace >= 0;
         brace = style.indexOf(u'{', brace + 1)) {
        const QStringView hole = holeAt(style, brace);
        if (hole.isEmpty())
            continue;
        filled.text += style.sliced(copiedEnd, brace - copiedEnd);
        copiedEnd = brace + hole.size() + 2;
        const auto *value =
            std::find_if(values.begin(), values.end(),
                         [hole](const Value &candidate) { return candidate.hole == hole; });
        if (value != values.end()) {
            filled.text += value->text;
            isUsed[value - values.begin()] = true;
        } else if (const Token *token = tokenOf(hole)) {
            filled.text += token->value;
        } else {
            filled.faults += u"no value for the hole \"%1\""_s.arg(hole);
        }
    }
    filled.text += style.sliced(copiedEnd);
    for (const Value &value : values) {
        if (!isUsed[&value - values.begin()])
            filled.faults += u"no hole for the value \"%1\""_s.arg(value.hole);
        if (tokenOf(QString(value.hole)))
            filled.faults += u"the value \"%1\" is named like a token"_s.arg(value.hole);
    }
    return filled;
}

QString fill(QStringView style, std::initializer_list<Value> values)
{
    const Filled filled = fillHoles(style, values);
    for (const QString &fault : filled.faults)
        qWarning("theme: %s in the style:%s", qPrintable(fault), qPrintable(style.toString()));
    Q_ASSERT_X(filled.faults.isEmpty(), "theme::fill", "a hole or a value is left over");
    return filled.text;
}

} // namespace theme
