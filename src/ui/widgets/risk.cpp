#include "risk.h"

#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

QString risk::text(int level)
{
    switch (level) {
    case HighRisk:
        return QCoreApplication::translate("CleanItemWidget", "High");
    case MediumRisk:
        return QCoreApplication::translate("CleanItemWidget", "Medium");
    default:
        return QCoreApplication::translate("CleanItemWidget", "Low");
    }
}

QString risk::style(int level)
{
    switch (level) {
    case HighRisk:
        return theme::badge(theme::danger, theme::highRiskTint, 4, 11);
    case MediumRisk:
        return theme::badge(theme::warning, theme::mediumRiskTint, 4, 11);
    default:
        return theme::badge(theme::accent, theme::lowRiskTint, 4, 11);
    }
}

QString risk::spoken(int level)
{
    return QCoreApplication::translate("CleanItemWidget", "Risk: %1").arg(text(level));
}

QString risk::described(const CleanCategory &category)
{
    const QString description = singleLine(category.description);
    return category.riskLevel > LowRisk ? spoken(category.riskLevel) + ". "_L1 + description
                                        : description;
}
