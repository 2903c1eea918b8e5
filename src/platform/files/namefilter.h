#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QStringView>
#include <QUtf8StringView>

namespace platform {

/// Decides whether a file name matches any of a list of wildcards, ignoring case. A value.
///
///
/// The wildcards are those of QDir's name filters ("*", "?", "[...]"). An empty list matches every
/// name. A walk calls this for every file. Therefore wildcards without sets are compared directly.
/// Only the others become regular expressions, which are slow.
class NameFilter
{
public:
    explicit NameFilter(const QStringList &wildcards);

    [[nodiscard]] bool matches(QStringView name) const;
    [[nodiscard]] bool matches(QUtf8StringView name) const
    {
        // an unfiltered walk needs no string
        return m_matchesEverything || matches(name.toString());
    }
    [[nodiscard]] bool matchesEverything() const { return m_matchesEverything; }

private:
    enum class Kind { Exact, Prefix, Suffix, Glob, Expression };
    /// One wildcard, prepared for the comparison that its kind needs.
    struct Rule {
        Kind kind;
        QString text;
        QList<char32_t> glob; ///< the pattern's case-folded characters
        QRegularExpression expression;
    };

    QList<Rule> m_rules;
    bool m_matchesEverything = false;
};

} // namespace platform
