#include "browserrule.h"

#include "rulefile.h"

using namespace Qt::StringLiterals;

BrowserRule BrowserRule::fromJson(const QJsonObject &object)
{
    BrowserRule rule;
    rule.id = object["id"_L1].toString();
    rule.name = rulefile::text("BrowserRule", object["name"_L1]);
    rule.description = rulefile::text("BrowserRule", object["description"_L1]);
    rule.subPath = object["subPath"_L1].toString();
    rule.firefoxSubPath = object["firefoxSubPath"_L1].toString();
    rule.patterns = rulefile::stringList(object["patterns"_L1]);
    rule.firefoxPatterns = rulefile::stringList(object["firefoxPatterns"_L1]);
    rule.defaultChecked = object["defaultChecked"_L1].toBool(true);
    rule.riskLevel = object["riskLevel"_L1].toInt(0);
    return rule;
}

bool BrowserRule::takesEverything() const
{
    return rulefile::takesNearlyAll(patterns);
}
