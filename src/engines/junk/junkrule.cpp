#include "junkrule.h"

#include "rulefile.h"

using namespace Qt::StringLiterals;

JunkRule JunkRule::fromJson(const QJsonObject &object)
{
    JunkRule rule;
    rule.id = object["id"_L1].toString();
    rule.name = rulefile::text("JunkRule", object["name"_L1]);
    rule.description = rulefile::text("JunkRule", object["description"_L1]);
    rule.paths = rulefile::stringList(object["paths"_L1]);
    rule.patterns = rulefile::stringList(object["patterns"_L1]);
    rule.defaultChecked = object["defaultChecked"_L1].toBool(true);
    rule.riskLevel = object["riskLevel"_L1].toInt(0);
    rule.recursive = object["recursive"_L1].toBool(true);
    return rule;
}

bool JunkRule::takesWholeTrees() const
{
    return recursive && rulefile::takesNearlyAll(patterns);
}
