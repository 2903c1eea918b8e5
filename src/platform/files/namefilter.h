#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QStringView>
#include <QUtf8StringView>

namespace platform {

/// Decides whether a file name matches any of a list of wildcards, ignoring case.
///
/// The wildcards are those of QDir's name filters ("*", "?", "[...]"). An empty list matches every
/// name. Every file of a walk is asked here, so wildcards without sets are compared directly; only
/// the others become regular expressions, which are slow.
class NameFilter
{
public:
    explicit NameFilter(const QStringList &wildcards);

    [[nodiscard]] bool matches(QStringView name) const;
    [[nodiscard]] bool matches(QUtf8StringView name) const
    {
        return m_matchesEverything || matches(name.toString()); // no string for those who take all
    }
    [[nodiscard]] bool matchesEverything() const { return m_matchesEverything; }

private:
    enum class Kind { Exact, Prefix, Suffix, Glob, Expression };
    struct Rule {
        Kind kind;
        QString text;
        QList<char32_t> glob; ///< folded
        QRegularExpression expression;
    };

    QList<Rule> m_rules;
    bool m_matchesEverything = false;
};

} // namespace platform
