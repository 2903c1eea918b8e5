#include "navigation.h"

#include "styletemplate.h"

namespace theme {

QString logoBox()
{
    return fill(u"font-size: 28px;background-color: {panel};border-radius: {cardRadius}px;"
                "border: none;");
}

QString logoBadge()
{
    return fill(u"font-size: 14px;background-color: {logoCircle};border-radius: 12px;"
                "border: none;");
}

QString logoText()
{
    return fill(u"font-size: 20px;font-weight: 700;color: {onColour};background: transparent;"
                "border: none;");
}

QString navSeparator()
{
    return fill(u"background-color: {navLine}; max-height: 1px; border: none;");
}

QString navText(bool isChecked)
{
    return fill(u"font-size: 14px; font-weight: {weight}; color: {colour};"
                " background: transparent; border: none;",
                {{"weight", isChecked ? 600 : 500}, {"colour", isChecked ? accent : navEntry}});
}

} // namespace theme
