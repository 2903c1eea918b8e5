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

QString filledButton(QLatin1StringView background, QLatin1StringView hovered, int radius,
                     int pixels, const QString &padding)
{
    return u"QPushButton { background-color: %1; color: white; border: 2px solid %1; "
           u"border-radius: %2px; "
           "font-size: %3px; font-weight: 500; padding: %4; }"
           "QPushButton:hover { background-color: %5; border-color: %5; }"
           "QPushButton:pressed { background-color: %5; border-color: %5; padding-top: 2px; }"
           "QPushButton:focus { border-color: %6; }"
           "QPushButton:disabled { background-color: %7; border-color: %7; color: %8; }"_s.arg(
               QString(background), QString::number(radius), QString::number(pixels), padding,
               QString(hovered), QString(text), QString(border), QString(faint));
}

QString quietButton(int radius, int pixels)
{
    return u"QPushButton { background-color: %1; color: %2; border: 2px solid %1; border-radius: "
           u"%3px; "
           "font-size: %4px; }"
           "QPushButton:hover { background-color: %5; border-color: %5; }"
           "QPushButton:focus { border-color: %6; }"_s.arg(
               QString(button), QString(text), QString::number(radius), QString::number(pixels),
               QString(border), QString(faint));
}

QString loadMoreButton()
{
    return u"QPushButton {  background-color: %1;  color: %2;  border: 1px solid %3;  "
           u"border-radius: 6px;"
           "  padding: 8px 16px;  font-size: 13px;}QPushButton:hover {  background-color: %4;}"_s
               .arg(QString(hover), QString(accent), QString(border), QString(button));
}

QString expandButton()
{
    return u"QPushButton { border: none; color: %1; font-size: 10px; }QPushButton:hover { color: %2; }"_s
        .arg(QString(faint), QString(accent));
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
               QString(menuBorder), QString(text), QString(lowRiskTint), QString(accentHover));
}

QString messageBox()
{
    return u"QMessageBox { background-color: #ffffff; }"
           "QMessageBox QLabel { color: %1; font-size: 13px; }"
           "QPushButton { background-color: %2; color: white; border: none; border-radius: 6px; "
           "padding: 8px 24px; font-size: 13px; min-width: 80px; }"
           "QPushButton:hover { background-color: %3; }"_s.arg(QString(boxText), QString(accent),
                                                               QString(accentHover));
}

QString progressBar()
{
    return u"QProgressBar { background-color: %1; border: none; border-radius: 4px; }"
           "QProgressBar::chunk { background-color: %2; border-radius: 4px; }"_s.arg(
               QString(border), QString(accent));
}

} // namespace theme
