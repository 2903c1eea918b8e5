#include "browserrule.h"

#include "rulefile.h"

using namespace Qt::StringLiterals;

BrowserRule BrowserRule::fromJson(const QJsonObject &object)
{
    BrowserRule rule;
    rulefile::setCommonMembers(rule, object, "BrowserRule");
    rule.subPath = object["subPath"_L1].toString();
    rule.firefoxSubPath = object["firefoxSubPath"_L1].toString();
    rule.firefoxPatterns = rulefile::stringList(object["firefoxPatterns"_L1]);
    return rule;
}

bool BrowserRule::matchesEverything() const
{
    return rulefile::matchesNearlyAll(patterns);
}
