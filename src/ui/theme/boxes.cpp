#include "boxes.h"

#include "styletemplate.h"

namespace theme {

QString menu()
{
    return fill(uR"(
        QMenu {
            background-color: {panel};
            border: 1px solid {menuBorder};
            border-radius: {controlRadius}px;
            padding: 8px 4px;
            min-width: 180px;
        }
        QMenu::item {
            color: {text};
            padding: 8px 28px;
            border-radius: {smallRadius}px;
            margin: 1px 4px;
        }
        QMenu::item:selected {
            background-color: {accentTint};
            color: {accentText};
        }
        QMenu::separator {
            height: 1px;
            background: {menuBorder};
            margin: 4px 12px;
        }
)");
}

QString contextMenu()
{
    return fill(uR"(
QMenu {
    background-color: {white};
    border: 1px solid {border};
    border-radius: {controlRadius}px;
    padding: 6px 4px;
}
QMenu::item {
    color: {text};
    padding: 8px 24px;
    border-radius: {smallRadius}px;
    margin: 1px 4px;
}
QMenu::item:selected { background-color: {buttonBackground}; }
QMenu::separator { height: 1px; background: {border}; margin: 4px 12px; }
)");
}

QString aboutBox()
{
    return fill(uR"(
QMessageBox { background-color: {boxBackground}; }
QMessageBox QLabel { color: {boxText}; font-size: 13px; }
QPushButton {
    background-color: {accent};
    color: {onColour};
    border: none;
    border-radius: {smallRadius}px;
    padding: 8px 24px;
    font-size: 13px;
    min-width: 80px;
}
QPushButton:hover { background-color: {accentHover}; }
)");
}

QString messageBox()
{
    return aboutBox() + fill(uR"(
QPushButton:pressed { background-color: {accentHover}; }
QPushButton:focus { border: 2px solid {text}; padding: 6px 22px; }
)");
}

QString inputDialog()
{
    return messageBox() + fill(uR"(
QInputDialog { background-color: {white}; }
QLabel { color: {text}; font-size: 13px; }
QSpinBox {
    background-color: {white};
    color: {text};
    border: 1px solid {border};
    border-radius: {smallRadius}px;
    padding: 6px 8px;
    font-size: 13px;
}
QSpinBox:focus { border-color: {accent}; }
QSpinBox::up-button, QSpinBox::down-button { border: none; width: 20px; }
QSpinBox::up-arrow { image: url(:/icons/chevron-up.svg); width: 10px; height: 10px; }
QSpinBox::down-arrow { image: url(:/icons/chevron-down.svg); width: 10px; height: 10px; }
)");
}

} // namespace theme
