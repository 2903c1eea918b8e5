#include "risk.h"

#include "scanresult.h"
#include "theme.h"

#include <QCoreApplication>

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
