#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QStringList>

/// Reads the files that say what an engine looks for: JSON, an object whose "rules" are an array of
/// objects, after an optional byte-order mark.
namespace rulefile {

enum class Problem {
    None,
    NotOpened,
    NoJson,
    NoObject, ///< JSON, but an array
};

struct Content {
    Problem problem = Problem::None;
    QString error; ///< why it was not opened or is no JSON, as the system or the parser says it
    int errorOffset = 0; ///< bytes after the mark; where it is no JSON
    bool hasByteOrderMark = false;
    qsizetype size = 0; ///< bytes, the mark included
    QString start; ///< its first 100 bytes after the mark
    QJsonDocument document; ///< empty where it is no JSON
};

/// The file at @p path, a resource or on disk.
[[nodiscard]] Content read(const QString &path);

/// A name or description of a rule in the language of the interface: what the catalogue has for it
/// under @p context, else as it stands.
[[nodiscard]] QString text(const char *context, const QJsonValue &value);

/// The array's elements as text; one that is no string becomes an empty one and is kept.
[[nodiscard]] QStringList stringList(const QJsonValue &value);

/// Whether file-name wildcards leave out hardly any name; no wildcards leave out none.
[[nodiscard]] bool matchesNearlyAll(const QStringList &patterns);

/// Sets what the rules of every file have. A member that is missing or of another type gives an
/// empty text or list, a rule that starts ticked and the lowest risk. For @p context see text().
template<typename Rule>
void setCommonMembers(Rule &rule, const QJsonObject &object, const char *context)
{
    rule.id = object[QLatin1StringView("id")].toString();
    rule.name = text(context, object[QLatin1StringView("name")]);
    rule.description = text(context, object[QLatin1StringView("description")]);
    rule.patterns = stringList(object[QLatin1StringView("patterns")]);
    rule.defaultChecked = object[QLatin1StringView("defaultChecked")].toBool(true);
    rule.riskLevel = object[QLatin1StringView("riskLevel")].toInt(0);
}

/// One rule for each element of the file's "rules": none where it has a problem or they are no
/// array. What is no object is a rule without members.
template<typename Rule>
[[nodiscard]] QList<Rule> rulesOf(const Content &content)
{
    QList<Rule> rules;
    const QJsonArray array = content.document[QLatin1StringView("rules")].toArray();
    for (const auto &element : array)
        rules.append(Rule::fromJson(element.toObject()));
    return rules;
}

} // namespace rulefile
