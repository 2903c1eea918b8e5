#include "detaillist.h"

#include "styletemplate.h"

namespace theme {

QString detailDialog()
{
    return fill(u"#itemDetailDialog { background-color: {white}; border: 1px solid {border}; }");
}

QString detailTitleBar()
{
    return fill(uR"(
#detailTitleBar { background-color: {accent}; }
QLabel { background: transparent; color: {onColour}; }
)");
}

QString detailBackButton()
{
    return fill(uR"(
QPushButton {
    background: transparent;
    border: 2px solid transparent;
    border-radius: {controlRadius}px;
}
QPushButton:hover { background-color: {accentHover}; }
QPushButton:focus { border-color: {onColour}; }
)");
}

QString detailColumnHeader()
{
    return fill(u"#detailHeader { background-color: {pageBackground}; border-bottom: 1px solid "
                u"{border}; }");
}

QString detailScrollArea()
{
    return fill(uR"(
QScrollArea { border: 1px solid {white}; }
QScrollArea:focus { border-color: {accent}; }
)");
}

QString detailRows()
{
    return fill(u"#detailList { background-color: {white}; }");
}

QString detailRow(bool isStriped)
{
    return fill(uR"(
#detailItem { background-color: {background}; }
#detailItem:hover { background-color: {buttonBackground}; }
)",
                {{"background", isStriped ? stripe : white}});
}

} // namespace theme
