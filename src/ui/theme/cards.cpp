#include "cards.h"

#include "styletemplate.h"

using namespace Qt::StringLiterals;

namespace theme {

QString card(const Card &look)
{
    const QString style = fill(uR"(
#{name} {
    background-color: {white};
    border: {borderWidth}px solid {border};
    border-radius: {cardRadius}px;
}
#{name} QLabel, #{name} QCheckBox { border: none; background: transparent; }
)",
                               {{"name", look.objectName}, {"borderWidth", look.borderWidth}});
    if (!look.isHoverable)
        return style;
    return style + fill(u"#{name}:hover { border-color: {accent}; }", {{"name", look.objectName}});
}

QString fileCardList()
{
    return fill(u"QAbstractScrollArea { background: transparent; }")
        + card({.objectName = u"fileCard"_s, .isHoverable = true});
}

QString circleCard(const QString &objectName)
{
    return fill(u"#{name} { background: {panel};border: none;border-radius: 16px; }",
                {{"name", objectName}});
}

QString statCard(const QString &objectName)
{
    return fill(u"#{name} { background: {panel};border: 1px solid {border};border-radius: 14px; }"
                "#{name}:hover { border-color: {accent}; }"
                "#{name}:focus { border: 2px solid {text}; }",
                {{"name", objectName}});
}

QString tipBox(const QString &objectName)
{
    return fill(u"#{name} { background: {tipBackground};border: 1px solid {tipBorder};"
                "border-radius: {cardRadius}px; }",
                {{"name", objectName}});
}

QString browserGroupHeader(bool isExpanded)
{
    return fill(uR"(
#browserGroupHeader {
    background-color: {white};
    border: 1px solid {border};
    border-top-left-radius: {cardRadius}px;
    border-top-right-radius: {cardRadius}px;
    border-bottom-left-radius: {lowerRadius}px;
    border-bottom-right-radius: {lowerRadius}px;
}
#browserGroupHeader:hover { background-color: {pageBackground}; }
)",
                {{"lowerRadius", isExpanded ? 0 : cardRadius}});
}

QString browserGroupContent()
{
    return fill(uR"(
#browserGroupContent {
    background-color: {white};
    border: 1px solid {border};
    border-top: none;
    border-bottom-left-radius: {cardRadius}px;
    border-bottom-right-radius: {cardRadius}px;
}
#browserSubItem { background: transparent; }
#browserSubItem:hover { background-color: {pageBackground}; }
)");
}

} // namespace theme
