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

} // namespace

NameFilter::NameFilter(const QStringList &wildcards)
    : m_everything(wildcards.isEmpty() || wildcards.contains("*"_L1))
{
    if (m_everything)
        return;
    m_rules.reserve(wildcards.size());
    for (const QString &wildcard : wildcards) {
        if (wildcard.isEmpty())
            continue;
        const QStringView view(wildcard);
        if (isPlain(view)) {
            m_rules.append({Kind::Exact, wildcard, {}});
        } else if (view.front() == u'*' && isPlain(view.mid(1))) {
            m_rules.append({Kind::Suffix, view.mid(1).toString(), {}});
        } else if (view.back() == u'*' && isPlain(view.chopped(1))) {
            m_rules.append({Kind::Prefix, view.chopped(1).toString(), {}});
        } else {
            QRegularExpression expression =
                QRegularExpression::fromWildcard(view, Qt::CaseInsensitive);
            if (expression.isValid())
                m_rules.append({Kind::Expression, {}, expression});
        }
    }
}

bool NameFilter::matches(QStringView name) const
{
    if (m_everything)
        return true;
    return std::any_of(m_rules.begin(), m_rules.end(), [name](const Rule &rule) {
        switch (rule.kind) {
        case Kind::Exact:
            return name.compare(rule.text, Qt::CaseInsensitive) == 0;
        case Kind::Prefix:
            return name.startsWith(rule.text, Qt::CaseInsensitive);
        case Kind::Suffix:
            return name.endsWith(rule.text, Qt::CaseInsensitive);
        case Kind::Expression:
            return rule.expression.match(name.toString()).hasMatch();
        }
        return false;
    });
}

} // namespace platform
