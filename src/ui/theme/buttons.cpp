#include "buttons.h"

#include "labels.h"
#include "styletemplate.h"

namespace theme {

QString filledButton(const FilledButton &look)
{
    return fill(uR"(
QPushButton {
    background-color: {background};
    color: {onColour};
    border: 2px solid {background};
    border-radius: {radius}px;
    font-size: {fontSize}px;
    font-weight: {weight};
    padding: {padding};
}
QPushButton:hover { background-color: {hovered}; border-color: {hovered}; }
QPushButton:pressed { background-color: {hovered}; border-color: {hovered}; padding-top: 2px; }
QPushButton:focus { border-color: {text}; }
QPushButton:disabled { background-color: {border}; border-color: {border}; color: {faint}; }
)",
                {{"background", look.background},
                 {"hovered", look.hovered},
                 {"radius", look.radius},
                 {"fontSize", look.fontSize},
                 {"padding", look.padding},
                 {"weight", look.weight}});
}

QString dangerButton(const DangerButton &look)
{
    return fill(uR"(
QPushButton {
    background-color: {dangerTint};
    color: {dangerHover};
    border: 2px solid {dangerTint};
    border-radius: {radius}px;
    font-size: 14px;
    font-weight: 500;
    padding: {padding};
}
QPushButton:hover { background-color: {dangerTintHover}; border-color: {dangerTintHover}; }
QPushButton:pressed {
    background-color: {dangerTintHover};
    border-color: {dangerTintHover};
    padding-top: 2px;
}
QPushButton:focus { border-color: {text}; }
QPushButton:disabled {
    background-color: {buttonBackground};
    border-color: {buttonBackground};
    color: {faint};
}
)",
                {{"radius", look.radius}, {"padding", look.padding}});
}

QString quietButton(const ButtonShape &shape)
{
    return fill(uR"(
QPushButton {
    background-color: {buttonBackground};
    color: {text};
    border: 2px solid {buttonBackground};
    border-radius: {radius}px;
    font-size: {fontSize}px;
}
QPushButton:hover { background-color: {border}; border-color: {border}; }
QPushButton:pressed { background-color: {pressedBackground}; border-color: {pressedBackground}; }
QPushButton:focus { border-color: {text}; }
QPushButton:disabled { color: {faint}; }
)",
                {{"radius", shape.radius}, {"fontSize", shape.fontSize}});
}

QString gradientButton(const ButtonShape &shape)
{
    return fill(uR"(
QPushButton {
    background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 {accent}, stop:1 {accentHover});
    color: {onColour};
    border: none;
    border-radius: {radius}px;
    font-size: {fontSize}px;
    font-weight: 600;
}
QPushButton:hover, QPushButton:pressed { background: {accentHover}; }
QPushButton:focus { border: 2px solid {text}; }
QPushButton:disabled { background: {border}; color: {faint}; }
)",
                {{"radius", shape.radius}, {"fontSize", shape.fontSize}});
}

QString dangerOutlineButton(const ButtonShape &shape)
{
    return fill(uR"(
QPushButton {
    background: {panel};
    color: {danger};
    border: 2px solid {danger};
    border-radius: {radius}px;
    font-size: {fontSize}px;
    font-weight: 600;
}
QPushButton:hover, QPushButton:pressed { background: {dangerTint}; }
QPushButton:focus { border-color: {text}; }
QPushButton:disabled { color: {faint}; border-color: {border}; }
)",
                {{"radius", shape.radius}, {"fontSize", shape.fontSize}});
}

QString dialogButton(const DialogButton &look)
{
    return fill(u"QPushButton { background-color: {background}; color: {colour}; border: none;"
                " border-radius: {controlRadius}px; font-size: {fontSize}px; }"
                "QPushButton:hover { background-color: {hovered}; }"
                "QPushButton:pressed { background-color: {hovered}; padding-top: 2px; }"
                "QPushButton:focus { border: 2px solid {text}; }",
                {{"background", look.background},
                 {"colour", look.colour},
                 {"hovered", look.hovered},
                 {"fontSize", look.fontSize}});
}

QString framedButton()
{
    return fill(u"QPushButton { background-color: transparent; color: {text};"
                " border: 1px solid {border}; border-radius: {controlRadius}px; font-size: 13px; }"
                "QPushButton:hover { background-color: {buttonBackground}; }"
                "QPushButton:pressed { background-color: {border}; }"
                "QPushButton:focus { border: 2px solid {text}; }");
}

QString badgeButton()
{
    const QString look = badge({.colour = muted, .background = buttonBackground});
    return fill(uR"(
QPushButton { {badge} border: none; }
QPushButton:hover { background-color: {border}; }
QPushButton:pressed { background-color: {pressedBackground}; }
QPushButton:focus { border: 2px solid {text}; padding: 0 6px; }
)",
                {{"badge", look}});
}

QString loadMoreButton()
{
    return fill(u"QPushButton {  background-color: {pageBackground};  color: {accent};"
                "  border: 1px solid {border};  border-radius: {smallRadius}px;"
                "  padding: 8px 16px;  font-size: 13px;}"
                "QPushButton:hover {  background-color: {buttonBackground};}"
                "QPushButton:pressed {  background-color: {border};}"
                "QPushButton:focus {  border: 2px solid {text};  padding: 7px 15px;}");
}

QString expandButton()
{
    return fill(u"QPushButton { border: none; color: {faint}; font-size: 10px; }"
                "QPushButton:hover { color: {accent}; }"
                "QPushButton:pressed { color: {text}; }"
                "QPushButton:focus { border: 2px solid {text}; border-radius: {smallRadius}px; }");
}

QString linkButton()
{
    return fill(uR"(
QPushButton {
    border: 2px solid transparent;
    border-radius: {smallRadius}px;
    color: {text};
    font-size: 12px;
    padding: 2px 0;
}
QPushButton:hover { text-decoration: underline; }
QPushButton:pressed { background-color: {buttonBackground}; }
QPushButton:focus { border-color: {text}; }
)");
}

QString iconButton()
{
    return fill(uR"(
QPushButton {
    border: 2px solid transparent;
    border-radius: {smallRadius}px;
    background: transparent;
}
QPushButton:hover { background-color: {buttonBackground}; }
QPushButton:pressed { background-color: {border}; }
QPushButton:focus { border-color: {text}; }
)");
}

} // namespace theme
