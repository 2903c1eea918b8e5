#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QStringView>
#include <QUtf8StringView>

namespace platform {

/// Decides whether a file name matches any of a list of wildcards, ignoring case.
///
/// The wildcards are those of QDir's name filters ("*", "?", "[...]"). Every entry of every folder
/// passes through here: those without sets are compared directly. The others become a regular
/// expression, which besides leaves something to each thread that some run-time libraries of
/// Windows do not clean up in time: a program then waits at its end for ever. An empty list matches
/// every name.
class NameFilter
{
public:
    explicit NameFilter(const QStringList &wildcards);

    [[nodiscard]] bool matches(QStringView name) const;
    [[nodiscard]] bool matches(QUtf8StringView name) const
    {
        return m_everything || matches(name.toString()); // most walks take every name as it comes
    }
    [[nodiscard]] bool matchesEverything() const { return m_everything; }

private:
    enum class Kind { Exact, Prefix, Suffix, Glob, Expression };
    struct Rule {
        Kind kind;
        QString text;
        QList<char32_t> glob; ///< folded
        QRegularExpression expression;
    };

    QList<Rule> m_rules;
    bool m_everything = false;
};

} // namespace platform
