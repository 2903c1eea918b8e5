#include "labels.h"

#include "styletemplate.h"

using namespace Qt::StringLiterals;

namespace theme {

QString label(Colour colour, int fontSize, int weight)
{
    return fill(u"color: {colour}; ", {{"colour", colour}}) + uncolouredLabel(fontSize, weight);
}

QString labelSizeFirst(Colour colour, int fontSize, int weight)
{
    if (weight == 0)
        return fill(u"font-size: {fontSize}px; color: {colour};",
                    {{"colour", colour}, {"fontSize", fontSize}});
    return fill(u"font-size: {fontSize}px; font-weight: {weight}; color: {colour};",
                {{"colour", colour}, {"fontSize", fontSize}, {"weight", weight}});
}

QString transparentLabel(Colour colour, int fontSize, int weight)
{
    return label(colour, fontSize, weight) + u' ' + transparentBackground();
}

QString uncolouredLabel(int fontSize, int weight)
{
    const QString style = fill(u"font-size: {fontSize}px;", {{"fontSize", fontSize}});
    return weight == 0 ? style : style + fill(u" font-weight: {weight};", {{"weight", weight}});
}

QString transparentBackground()
{
    return fill(u"background: transparent; border: none;");
}

QString dashboardSubtitle()
{
    return fill(u"font-size: 14px;color: {muted};background: transparent;");
}

QString cardArrow()
{
    return fill(u"font-size:14px; color: {faint}; background: transparent; border: none;");
}

QString badge(const Badge &look)
{
    return fill(u"color: {colour}; background-color: {background}; padding: 2px 8px;"
                " border-radius: {radius}px; font-size: {fontSize}px;",
                {{"colour", look.colour},
                 {"background", look.background},
                 {"radius", look.radius},
                 {"fontSize", look.fontSize}});
}

QString pill(const Pill &look)
{
    return fill(
        u"background-color: {background};color: {colour};padding: 4px 10px;"
        "border-radius: {smallRadius}px;font-size: 12px;font-weight: {weight};",
        {{"colour", look.colour}, {"background", look.background}, {"weight", look.weight}});
}

QString countBadge()
{
    return fill(u"background-color: {accent};color: {onColour};padding: 6px 12px;"
                "border-radius: 12px;font-size: 13px;font-weight: 500;");
}

QString iconBox(Colour background)
{
    return fill(u"background: {background};border: none;border-radius: {cardRadius}px;"
                "font-size: 20px;",
                {{"background", background}});
}

QString emojiBox(Colour background)
{
    return fill(
        u"background-color: {background}; border-radius: {controlRadius}px; font-size: 16px;",
        {{"background", background}});
}

QString pictureBox(Colour background)
{
    return fill(u"background-color: {background}; border-radius: {controlRadius}px; padding: 2px;",
                {{"background", background}});
}

QString categoryIcon()
{
    return fill(u"background-color: {accent}; border-radius: {smallRadius}px; padding: 4px;");
}

QString browserIcon()
{
    return fill(
        u"background: {buttonBackground}; border-radius: {controlRadius}px; color: {onColour};"
        " font-size: 16px; font-weight: bold;");
}

QString resultIcon(Colour background)
{
    return fill(u"background-color: {background}; border-radius: 32px; font-size: 30px;"
                " color: {onColour};",
                {{"background", background}});
}

QString aboutIcon()
{
    return fill(u"background-color: {accent}; border-radius: 16px; font-size: 36px;");
}

QString aboutFeatures()
{
    return label(faint, 13) + " line-height: 1.5;"_L1;
}

QString emblem()
{
    return fill(u"background: qlineargradient(x1:0, y1:0, x2:1, y2:1,"
                " stop:0 {accentTint}, stop:1 {emblemTint});border-radius: 60px;font-size: 50px;");
}

} // namespace theme
