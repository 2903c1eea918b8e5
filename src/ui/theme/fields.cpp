#include "fields.h"

#include "styletemplate.h"

namespace theme {

QString lineEdit(int radius)
{
    return fill(uR"(
QLineEdit {
    background-color: {white};
    color: {text};
    border: 1px solid {border};
    border-radius: {radius}px;
    padding: 0 8px;
    font-size: 13px;
}
QLineEdit:focus { border-color: {accent}; }
QLineEdit:disabled { background-color: {buttonBackground}; color: {faint}; }
)",
                {{"radius", radius}});
}

QString comboBox()
{
    return fill(uR"(
QComboBox {
    background-color: {white};
    color: {text};
    border: 1px solid {border};
    border-radius: {controlRadius}px;
    padding: 0 12px;
    font-size: 14px;
}
QComboBox:hover, QComboBox:focus { border-color: {accent}; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: url(:/icons/chevron-down.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView {
    background-color: {white};
    color: {text};
    border: 1px solid {border};
    selection-background-color: {accentTint};
    selection-color: {accentText};
    outline: none;
}
)");
}

QString browserCheckBox()
{
    return fill(u"QCheckBox { color: {text}; font-size: 13px; spacing: 8px; }"
                "QCheckBox::indicator { width: 16px; height: 16px; }");
}

QString transparentScrollArea()
{
    return fill(u"QScrollArea { background: transparent; }");
}

QString groupBox()
{
    return fill(u"QGroupBox { font-size: 14px; font-weight: 500; color: {text};"
                " border: 1px solid {border}; border-radius: {controlRadius}px;"
                " margin-top: 8px; padding-top: 16px; }"
                "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }");
}

QString progressBar()
{
    return thinProgressBar(accent, 4);
}

QString thinProgressBar(Colour colour, int radius)
{
    return fill(uR"(
QProgressBar { background-color: {border}; border: none; border-radius: {radius}px; }
QProgressBar::chunk { background-color: {colour}; border-radius: {radius}px; }
)",
                {{"colour", colour}, {"radius", radius}});
}

QString bar(Colour colour, int radius)
{
    return fill(u"background: {colour}; border-radius: {radius}px;",
                {{"colour", colour}, {"radius", radius}});
}

QString gradientBar()
{
    return fill(u"background: qlineargradient(x1:0, y1:0, x2:1, y2:0,"
                " stop:0 {accent}, stop:1 {accentHover});border-radius: 4px;");
}

QString statusDot(Colour colour)
{
    return bar(colour, 5);
}

} // namespace theme
