#include "namefilter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool isPlain(QStringView text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) {
        return c == u'*' || c == u'?' || c == u'[' || c == u']' || c == u'\\' || c == u'/';
    });
}

// The characters in the form in which they are compared.
QList<char32_t> foldedCharacters(QStringView text)
{
    QList<char32_t> characters;
    const QList<uint> codes = text.toUcs4();
    characters.reserve(codes.size());
    for (const uint code : codes)
        characters.append(QChar::toCaseFolded(code));
    return characters;
}

// Whether the name matches the pattern: "?" stands for one character, "*" for any number. If the
// rest of the name does not fit, the last star stands for one character more.
bool matchesGlob(const QList<char32_t> &pattern, const QList<char32_t> &name)
{
    qsizetype patternIndex = 0;
    qsizetype nameIndex = 0;
    qsizetype star = -1;
    qsizetype starEnd = 0; // end of the characters that the last star stands for
    while (nameIndex < name.size()) {
        if (patternIndex < pattern.size() && pattern.at(patternIndex) == U'*') {
            star = patternIndex++;
            starEnd = nameIndex;
        } else if (patternIndex < pattern.size()
                   && (pattern.at(patternIndex) == U'?'
                       || pattern.at(patternIndex) == name.at(nameIndex))) {
            ++patternIndex;
            ++nameIndex;
        } else if (star >= 0) {
            patternIndex = star + 1;
            nameIndex = ++starEnd;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + patternIndex, pattern.end(),
                       [](char32_t c) { return c == U'*'; });
}

} // namespace

NameFilter::NameFilter(const QStringList &wildcards)
    : m_matchesEverything(wildcards.isEmpty() || wildcards.contains("*"_L1))
{
    if (m_matchesEverything)
        return;
    m_rules.reserve(wildcards.size());
    for (const QString &wildcard : wildcards) {
        if (wildcard.isEmpty())
            continue;
        const QStringView view(wildcard);
        if (isPlain(view)) {
            m_rules.append({Kind::Exact, wildcard, {}, {}});
        } else if (view.front() == u'*' && isPlain(view.mid(1))) {
            m_rules.append({Kind::Suffix, view.mid(1).toString(), {}, {}});
        } else if (view.back() == u'*' && isPlain(view.chopped(1))) {
            m_rules.append({Kind::Prefix, view.chopped(1).toString(), {}, {}});
        } else if (!wildcard.contains(u'[') && !wildcard.contains(u'\\')
                   && !wildcard.contains(u'/')) {
            m_rules.append({Kind::Glob, {}, foldedCharacters(view), {}});
        } else {
            QRegularExpression expression =
                QRegularExpression::fromWildcard(view, Qt::CaseInsensitive);
            if (expression.isValid())
                m_rules.append({Kind::Expression, {}, {}, expression});
        }
    }
}

bool NameFilter::matches(QStringView name) const
{
    if (m_matchesEverything)
        return true;
    return std::any_of(m_rules.begin(), m_rules.end(), [name](const Rule &rule) {
        switch (rule.kind) {
        case Kind::Exact:
            return name.compare(rule.text, Qt::CaseInsensitive) == 0;
        case Kind::Prefix:
            return name.startsWith(rule.text, Qt::CaseInsensitive);
        case Kind::Suffix:
            return name.endsWith(rule.text, Qt::CaseInsensitive);
        case Kind::Glob:
            return matchesGlob(rule.glob, foldedCharacters(name));
        case Kind::Expression:
            return rule.expression.match(name.toString()).hasMatch();
        }
        return false;
    });
}

} // namespace platform
