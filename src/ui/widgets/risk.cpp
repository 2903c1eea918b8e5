#include "risk.h"

#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString badge(theme::Colour colour, theme::Colour background)
{
    return theme::badge({.colour = colour, .background = background, .radius = 4, .fontSize = 11});
}

} // namespace

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
        return badge(theme::danger, theme::dangerTint);
    case MediumRisk:
        return badge(theme::warning, theme::warningTint);
    default:
        return badge(theme::accent, theme::accentTint);
    }
}

QString risk::sentence(int level)
{
    return QCoreApplication::translate("CleanItemWidget", "Risk: %1").arg(text(level));
}

QString risk::description(const CleanCategory &category)
{
    const QString description = singleLine(category.description);
    return category.riskLevel > LowRisk ? sentence(category.riskLevel) + ". "_L1 + description
                                        : description;
}
