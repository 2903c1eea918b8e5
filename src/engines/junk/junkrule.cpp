#include "junkrule.h"

#include "rulefile.h"

using namespace Qt::StringLiterals;

JunkRule JunkRule::fromJson(const QJsonObject &object)
{
    JunkRule rule;
    rulefile::setCommonMembers(rule, object, "JunkRule");
    rule.paths = rulefile::stringList(object["paths"_L1]);
    rule.recursive = object["recursive"_L1].toBool(true);
    return rule;
}

bool JunkRule::matchesWholeTrees() const
{
    return recursive && rulefile::matchesNearlyAll(patterns);
}
