#include "junkrule.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList stringList(const QJsonValue &value)
{
    QStringList list;
    const QJsonArray array = value.toArray();
    for (const auto &element : array)
        list.append(element.toString());
    return list;
}

} // namespace

JunkRule JunkRule::fromJson(const QJsonObject &object)
{
    JunkRule rule;
    rule.id = object["id"_L1].toString();
    rule.name = object["name"_L1].toString();
    rule.description = object["description"_L1].toString();
    rule.paths = stringList(object["paths"_L1]);
    rule.patterns = stringList(object["patterns"_L1]);
    rule.defaultChecked = object["defaultChecked"_L1].toBool(true);
    rule.riskLevel = object["riskLevel"_L1].toInt(0);
    rule.recursive = object["recursive"_L1].toBool(true);
    return rule;
}

bool JunkRule::takesWholeTrees() const
{
    // "*.*" and the like leave out a few names only.
    const auto takesNearlyAll = [](const QString &pattern) {
        return pattern.contains(u'*') && std::all_of(pattern.begin(), pattern.end(), [](QChar c) {
                   return c == u'*' || c == u'?' || c == u'.';
               });
    };
    return recursive
        && (patterns.isEmpty() || std::any_of(patterns.begin(), patterns.end(), takesNearlyAll));
}
