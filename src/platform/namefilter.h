#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QStringView>

namespace platform {

/// Decides whether a file name matches any of a list of wildcards, ignoring case.
///
/// The wildcards are those of QDir's name filters ("*", "?", "[...]"). The common forms ("*",
/// "*.log", "MEMORY.DMP", "~Font*") are compared directly, since every entry of every folder passes
/// through here; all others become a regular expression. An empty list matches every name.
class NameFilter
{
public:
    explicit NameFilter(const QStringList &wildcards);

    [[nodiscard]] bool matches(QStringView name) const;
    [[nodiscard]] bool matchesEverything() const { return m_everything; }

private:
    enum class Kind { Exact, Prefix, Suffix, Expression };
    struct Rule {
        Kind kind;
        QString text;
        QRegularExpression expression;
    };

    QList<Rule> m_rules;
    bool m_everything = false;
};

} // namespace platform
