#include "theme.h"

using namespace Qt::StringLiterals;

namespace theme {

QColor color(QLatin1StringView name)
{
    return QColor(name);
}

QColor color(QLatin1StringView name, int alpha)
{
    QColor result(name);
    result.setAlpha(alpha);
    return result;
}

QString label(QLatin1StringView colour, int pixels, int weight)
{
    QString style = u"color: %1; font-size: %2px;"_s.arg(QString(colour), QString::number(pixels));
    if (weight != 0)
        style += u" font-weight: %1;"_s.arg(weight);
    return style;
}

QString badge(QLatin1StringView colour, QLatin1StringView background, int radius, int pixels)
{
    return u"color: %1; background-color: %2; padding: 2px 8px; border-radius: %3px; font-size: %4px;"_s
        .arg(QString(colour), QString(background), QString::number(radius),
             QString::number(pixels));
}

QString badgeButton(QLatin1StringView colour, QLatin1StringView background, int radius, int pixels)
{
    return u"QPushButton { %1 border: none; }QPushButton:hover { background-color: %2; }"
           "QPushButton:pressed { background-color: %3; }"
           "QPushButton:focus { border: 2px solid %4; padding: 0 6px; }"_s.arg(
               badge(colour, background, radius, pixels), QString(border), QString(disabled),
               QString(text));
}

QString filledButton(QLatin1StringView background, QLatin1StringView hovered, int radius,
                     int pixels, const QString &padding, int weight)
{
    return u"QPushButton { background-color: %1; color: white; border: 2px solid %1; "
           u"border-radius: %2px; "
           "font-size: %3px; font-weight: %9; padding: %4; }"
           "QPushButton:hover { background-color: %5; border-color: %5; }"
           "QPushButton:pressed { background-color: %5; border-color: %5; padding-top: 2px; }"
           "QPushButton:focus { border-color: %6; }"
           "QPushButton:disabled { background-color: %7; border-color: %7; color: %8; }"_s.arg(
               QString(background), QString::number(radius), QString::number(pixels), padding,
               QString(hovered), QString(text), QString(border), QString(faint),
               QString::number(weight));
}

QString dangerButton(int radius, int pixels, const QString &padding)
{
    return u"QPushButton { background-color: %1; color: %2; border: 2px solid %1; "
           u"border-radius: %3px; font-size: %4px; font-weight: 500; padding: %8; }"
           "QPushButton:hover { background-color: %5; border-color: %5; }"
           "QPushButton:pressed { background-color: %5; border-color: %5; padding-top: 2px; }"
           "QPushButton:focus { border-color: %9; }"
           "QPushButton:disabled { background-color: %6; border-color: %6; color: %7; }"_s.arg(
               QString(dangerTint), QString(dangerHover), QString::number(radius),
               QString::number(pixels), QString(dangerTintHover), QString(button), QString(faint),
               padding, QString(text));
}

QString card(const QString &objectName, int borderPixels, bool hoverable)
{
    QString style = u"#%1 { background-color: %2; border: %3px solid %4; border-radius: 12px; }"
                    u"#%1 QLabel, #%1 QCheckBox { border: none; background: transparent; }"_s.arg(
                        objectName, QString(white), QString::number(borderPixels), QString(border));
    if (hoverable)
        style += u"#%1:hover { border-color: %2; }"_s.arg(objectName, QString(accent));
    return style;
}

QString sizeBadge(QLatin1StringView colour, QLatin1StringView background)
{
    return u"background-color: %1;color: %2;padding: 4px 10px;border-radius: 6px;font-size: 12px;"
           u"font-weight: 600;"_s.arg(QString(background), QString(colour));
}

QString scrolledList()
{
    return u"QScrollArea { border: 1px solid %1; }QScrollArea:focus { border-color: %2; }"_s.arg(
        QString(white), QString(accent));
}

QString comboBox()
{
    return u"QComboBox { background-color: %1; color: %2; border: 1px solid %3; border-radius: "
           u"8px; "
           u"padding: 0 12px; font-size: 14px; }"
           "QComboBox:hover, QComboBox:focus { border-color: %4; }"
           "QComboBox::drop-down { border: none; width: 24px; }"
           "QComboBox::down-arrow { image: url(:/icons/chevron-down.svg); width: 12px; height: "
           "12px; }"
           "QComboBox QAbstractItemView { background-color: %1; color: %2; border: 1px solid %3; "
           "selection-background-color: %5; selection-color: %6; outline: none; }"_s.arg(
               QString(white), QString(text), QString(border), QString(accent),
               QString(lowRiskTint), QString(accentText));
}

QString quietButton(int radius, int pixels)
{
    return u"QPushButton { background-color: %1; color: %2; border: 2px solid %1; border-radius: "
           u"%3px; "
           "font-size: %4px; }"
           "QPushButton:hover { background-color: %5; border-color: %5; }"
           "QPushButton:pressed { background-color: %6; border-color: %6; }"
           "QPushButton:focus { border-color: %7; }"
           "QPushButton:disabled { color: %8; }"_s.arg(
               QString(button), QString(text), QString::number(radius), QString::number(pixels),
               QString(border), QString(disabled), QString(text), QString(faint));
}

QString loadMoreButton()
{
    return u"QPushButton {  background-color: %1;  color: %2;  border: 1px solid %3;  "
           u"border-radius: 6px;"
           "  padding: 8px 16px;  font-size: 13px;}QPushButton:hover {  background-color: %4;}"_s
               .arg(QString(hover), QString(accent), QString(border), QString(button))
        + u"QPushButton:pressed {  background-color: %1;}"
          "QPushButton:focus {  border: 2px solid %2;  padding: 7px 15px;}"_s.arg(QString(border),
                                                                                  QString(text));
}

QString expandButton()
{
    return u"QPushButton { border: none; color: %1; font-size: 10px; }QPushButton:hover { color: %2; }"_s
               .arg(QString(faint), QString(accent))
        + u"QPushButton:pressed { color: %1; }"
          "QPushButton:focus { border: 2px solid %1; border-radius: 6px; }"_s.arg(text);
}

QString linkButton()
{
    return u"QPushButton { border: 2px solid transparent; border-radius: 6px; color: %1; "
           u"font-size: 12px; padding: 2px 0; }"
           "QPushButton:hover { text-decoration: underline; }"
           "QPushButton:pressed { background-color: %2; }"
           "QPushButton:focus { border-color: %1; }"_s.arg(QString(text), QString(button));
}

QString iconButton()
{
    return u"QPushButton { border: 2px solid transparent; border-radius: 6px; background: "
           u"transparent; }"
           "QPushButton:hover { background-color: %1; }"
           "QPushButton:pressed { background-color: %2; }"
           "QPushButton:focus { border-color: %3; }"_s.arg(QString(button), QString(border),
                                                           QString(text));
}

QString browserCheckBox()
{
    return u"QCheckBox { color: %1; font-size: 13px; spacing: 8px; }QCheckBox::indicator { width: "
           u"16px; height: 16px; }"_s.arg(QString(text));
}

QString browserIcon()
{
    return u"background: %1; border-radius: 8px; color: white; font-size: 16px; font-weight: bold;"_s
        .arg(QString(button));
}

QString browserGroupHeader(bool expanded)
{
    return u"#browserGroupHeader { background-color: %1; border: 1px solid %2; "
           "border-top-left-radius: 12px; border-top-right-radius: 12px; "
           "border-bottom-left-radius: %3; border-bottom-right-radius: %3; }"
           "#browserGroupHeader:hover { background-color: %4; }"_s.arg(
               QString(white), QString(border), expanded ? u"0px"_s : u"12px"_s, QString(hover));
}

QString browserGroupContent()
{
    return u"#browserGroupContent { background-color: %1; border: 1px solid %2; border-top: none; "
           "border-bottom-left-radius: 12px; border-bottom-right-radius: 12px; }"
           "#browserSubItem { background: transparent; }"
           "#browserSubItem:hover { background-color: %3; }"_s.arg(QString(white), QString(border),
                                                                   QString(hover));
}

QString menu()
{
    return u"\n        QMenu {\n            background-color: white;\n            border: 1px "
           u"solid %1;\n"
           "            border-radius: 8px;\n            padding: 8px 4px;\n            min-width: "
           "180px;\n"
           "        }\n        QMenu::item {\n            color: %2;\n            padding: 8px "
           "28px;\n"
           "            border-radius: 6px;\n            margin: 1px 4px;\n        }\n"
           "        QMenu::item:selected {\n            background-color: %3;\n            color: "
           "%4;\n"
           "        }\n        QMenu::separator {\n            height: 1px;\n"
           "            background: %1;\n            margin: 4px 12px;\n        }\n"_s.arg(
               QString(menuBorder), QString(text), QString(lowRiskTint), QString(accentText));
}

QString contextMenu()
{
    return u"QMenu { background-color: %1; border: 1px solid %2; border-radius: 8px; padding: 6px "
           u"4px; }"
           "QMenu::item { color: %3; padding: 8px 24px; border-radius: 6px; margin: 1px 4px; }"
           "QMenu::item:selected { background-color: %4; }"
           "QMenu::separator { height: 1px; background: %2; margin: 4px 12px; }"_s.arg(
               QString(white), QString(border), QString(text), QString(button));
}

QString aboutBox()
{
    return u"QMessageBox { background-color: #ffffff; }"
           "QMessageBox QLabel { color: %1; font-size: 13px; }"
           "QPushButton { background-color: %2; color: white; border: none; border-radius: 6px; "
           "padding: 8px 24px; font-size: 13px; min-width: 80px; }"
           "QPushButton:hover { background-color: %3; }"_s.arg(QString(boxText), QString(accent),
                                                               QString(accentHover));
}

QString messageBox()
{
    return aboutBox()
        + u"QPushButton:pressed { background-color: %1; }"
          "QPushButton:focus { border: 2px solid %2; padding: 6px 22px; }"_s.arg(
              QString(accentHover), QString(text));
}

QString inputDialog()
{
    return messageBox()
        + u"QInputDialog { background-color: %1; }QLabel { color: %2; font-size: 13px; }"
          "QSpinBox { background-color: %1; color: %2; border: 1px solid %3; border-radius: 6px; "
          "padding: 6px 8px; font-size: 13px; }"
          "QSpinBox:focus { border-color: %4; }"
          "QSpinBox::up-button, QSpinBox::down-button { border: none; width: 20px; }"
          "QSpinBox::up-arrow { image: url(:/icons/chevron-up.svg); width: 10px; height: 10px; }"
          "QSpinBox::down-arrow { image: url(:/icons/chevron-down.svg); width: 10px; "
          "height: 10px; }"_s.arg(QString(white), QString(text), QString(border), QString(accent));
}

QString progressBar()
{
    return u"QProgressBar { background-color: %1; border: none; border-radius: 4px; }"
           "QProgressBar::chunk { background-color: %2; border-radius: 4px; }"_s.arg(
               QString(border), QString(accent));
}

QString lineEdit(int pixels, int radius)
{
    return u"QLineEdit { background-color: %1; color: %2; border: 1px solid %3; border-radius: "
           u"%4px; "
           "padding: 0 8px; font-size: %5px; }"
           "QLineEdit:focus { border-color: %6; }"
           "QLineEdit:disabled { background-color: %7; color: %8; }"_s.arg(
               QString(white), QString(text), QString(border), QString::number(radius),
               QString::number(pixels), QString(accent), QString(button), QString(faint));
}

QString thinBar(QLatin1StringView colour, int radius)
{
    return u"QProgressBar { background-color: %1; border: none; border-radius: %3px; }"
           "QProgressBar::chunk { background-color: %2; border-radius: %3px; }"_s.arg(
               QString(border), QString(colour), QString::number(radius));
}

QString groupBox()
{
    return u"QGroupBox { font-size: 14px; font-weight: 500; color: %1; border: 1px solid %2; "
           u"border-radius: 8px; margin-top: 8px; padding-top: 16px; }"
           "QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }"_s.arg(
               QString(text), QString(border));
}

QString dialogButton(QLatin1StringView background, QLatin1StringView colour,
                     QLatin1StringView hovered, int pixels)
{
    return u"QPushButton { background-color: %1; color: %2; border: none; border-radius: 8px; "
           u"font-size: %4px; }QPushButton:hover { background-color: %3; }"
           "QPushButton:pressed { background-color: %3; padding-top: 2px; }"
           "QPushButton:focus { border: 2px solid %5; }"_s.arg(
               QString(background), QString(colour), QString(hovered), QString::number(pixels),
               QString(text));
}

QString framedButton()
{
    return u"QPushButton { background-color: transparent; color: %1; border: 1px solid %2; "
           u"border-radius: 8px; font-size: 13px; }QPushButton:hover { background-color: %3; }"
           "QPushButton:pressed { background-color: %2; }"
           "QPushButton:focus { border: 2px solid %4; }"_s.arg(QString(text), QString(border),
                                                               QString(button), QString(text));
}

namespace {

QString accentGradient(int x2, int y2)
{
    return u"qlineargradient(x1:0, y1:0, x2:%1, y2:%2, stop:0 %3, stop:1 %4)"_s.arg(
        QString::number(x2), QString::number(y2), QString(accent), QString(accentHover));
}

} // namespace

QString gradientButton(int radius, int pixels)
{
    return u"QPushButton { background: %1; color: white; border: none; border-radius: %2px; "
           u"font-size: %3px; font-weight: 600; }"
           "QPushButton:hover, QPushButton:pressed { background: %4; }"
           "QPushButton:focus { border: 2px solid %5; }"
           "QPushButton:disabled { background: %6; color: %7; }"_s.arg(
               accentGradient(1, 0), QString::number(radius), QString::number(pixels),
               QString(accentHover), QString(text), QString(border), QString(faint));
}

QString dangerOutlineButton(int radius, int pixels)
{
    return u"QPushButton { background: white; color: %1; border: 2px solid %1; border-radius: "
           u"%2px; font-size: %3px; font-weight: 600; }"
           "QPushButton:hover, QPushButton:pressed { background: %4; }"
           "QPushButton:focus { border-color: %5; }"
           "QPushButton:disabled { color: %6; border-color: %7; }"_s.arg(
               QString(danger), QString::number(radius), QString::number(pixels),
               QString(dangerTint), QString(text), QString(faint), QString(border));
}

QString emblem()
{
    return u"background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 %1, stop:1 %2);"
           "border-radius: 60px;font-size: 50px;"_s.arg(QString(lowRiskTint), QString(emblemTint));
}

QString bar(QLatin1StringView colour, int radius)
{
    return u"background: %1; border-radius: %2px;"_s.arg(QString(colour), QString::number(radius));
}

QString gradientBar()
{
    return u"background: %1;border-radius: 4px;"_s.arg(accentGradient(1, 0));
}

QString statusDot(QLatin1StringView colour)
{
    return bar(colour, 5);
}

QString iconBox(QLatin1StringView background)
{
    return u"background: %1;border: none;border-radius: 12px;font-size: 20px;"_s.arg(background);
}

QString clearLabel(QLatin1StringView colour, int pixels, int weight)
{
    return label(colour, pixels, weight) + " background: transparent; border: none;"_L1;
}

QString plainCard(const QString &objectName)
{
    return u"#%1 { background: white;border: none;border-radius: 16px; }"_s.arg(objectName);
}

QString statCard(const QString &objectName)
{
    return u"#%1 { background: white;border: 1px solid %2;border-radius: 14px; }"
           "#%1:hover { border-color: %3; }#%1:focus { border: 2px solid %4; }"_s.arg(
               objectName, QString(border), QString(accent), QString(text));
}

QString tipBox(const QString &objectName)
{
    return u"#%1 { background: %2;border: 1px solid %3;border-radius: 12px; }"_s.arg(
        objectName, QString(tipTint), QString(tipBorder));
}

} // namespace theme
