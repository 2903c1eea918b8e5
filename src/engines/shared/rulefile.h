#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QStringList>

/// Reads the rule files, which say what an engine looks for. A rule file is a JSON object with an
/// array of objects named "rules". A byte-order mark may come first.
namespace rulefile {

/// Why a rule file cannot be used.
enum class Problem {
    None,
    NotOpened,
    NoJson,
    NoObject, ///< JSON, but an array
};

/// A rule file as it was read, and what is wrong with it.
struct Content {
    Problem problem = Problem::None;
    QString error; ///< the reason for NotOpened or NoJson, from the system or the parser
    int errorOffset = 0; ///< for NoJson: bytes after the byte-order mark
    bool hasByteOrderMark = false;
    qsizetype size = 0; ///< bytes, including the byte-order mark
    QString start; ///< the first 100 bytes after the byte-order mark
    QJsonDocument document; ///< empty for NoJson
};

/// Reads the file at @p path, a resource or a file on disk.
[[nodiscard]] Content read(const QString &path);

/// The name or description of a rule in the language of the interface. Without an entry under
/// @p context in the catalogue it stays as it is.
[[nodiscard]] QString text(const char *context, const QJsonValue &value);

/// The elements of the array as text. An element that is not a string becomes an empty text and
/// stays in the list.
[[nodiscard]] QStringList stringList(const QJsonValue &value);

/// Whether @p patterns match all file names or nearly all. An empty list matches all.
[[nodiscard]] bool matchesNearlyAll(const QStringList &patterns);

/// Sets the members that the rules of every file have. A member that is missing or of another type
/// becomes an empty text or list. A rule then starts ticked and has the lowest risk. See text() for
/// @p context.
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

/// One rule for each element of the file's "rules". Empty when the file has a problem or "rules" is
/// not an array. An element that is not an object gives a rule without members.
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
