#include "styletemplate.h"
#include "theme.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Whether all braces are closed and no hole is left. A hole is a brace with a name directly after
// it.
bool isCompleteSheet(const QString &style)
{
    static const QRegularExpression hole(u"\\{\\w"_s);
    return style.count(u'{') == style.count(u'}') && !style.contains(hole);
}

/// Relative luminance and contrast as the Web Content Accessibility Guidelines 2 define them.
double luminance(const QColor &colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double lighter = qMax(luminance(one), luminance(other));
    const double darker = qMin(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

using Style = QString (*)();

/// A style function with its name.
struct NamedStyle {
    const char *name; // of the function; after a comma the variant
    Style style;
};

// Every function that makes a style, once for each of its variants.
QList<NamedStyle> styles()
{
    return {
        {"badge",
         [] {
             return theme::badge({.colour = theme::text,
                                  .background = theme::buttonBackground,
                                  .radius = 4,
                                  .fontSize = 11});
         }},
        {"pill",
         [] {
             return theme::pill(
                 {.colour = theme::text, .background = theme::buttonBackground, .weight = 600});
         }},
        {"label", [] { return theme::label(theme::text, 13, 600); }},
        {"labelSizeFirst", [] { return theme::labelSizeFirst(theme::text, 13, 600); }},
        {"transparentLabel", [] { return theme::transparentLabel(theme::text, 13); }},
        {"uncolouredLabel", [] { return theme::uncolouredLabel(13, 600); }},
        {"transparentBackground", [] { return theme::transparentBackground(); }},
        {"dashboardSubtitle", [] { return theme::dashboardSubtitle(); }},
        {"cardArrow", [] { return theme::cardArrow(); }},
        {"countBadge", [] { return theme::countBadge(); }},
        {"iconBox", [] { return theme::iconBox(theme::goodTint); }},
        {"emojiBox", [] { return theme::emojiBox(theme::goodTint); }},
        {"pictureBox", [] { return theme::pictureBox(theme::goodTint); }},
        {"categoryIcon", [] { return theme::categoryIcon(); }},
        {"browserIcon", [] { return theme::browserIcon(); }},
        {"resultIcon", [] { return theme::resultIcon(theme::danger); }},
        {"aboutIcon", [] { return theme::aboutIcon(); }},
        {"aboutFeatures", [] { return theme::aboutFeatures(); }},
        {"emblem", [] { return theme::emblem(); }},
        {"filledButton",
         [] {
             return theme::filledButton({.background = theme::accent,
                                         .hovered = theme::accentHover,
                                         .radius = 8,
                                         .fontSize = 14,
                                         .padding = u"0"_s});
         }},
        {"dangerButton", [] { return theme::dangerButton({.radius = 8, .padding = u"0"_s}); }},
        {"quietButton", [] { return theme::quietButton({.radius = 8, .fontSize = 13}); }},
        {"gradientButton", [] { return theme::gradientButton({.radius = 8, .fontSize = 13}); }},
        {"dangerOutlineButton",
         [] { return theme::dangerOutlineButton({.radius = 8, .fontSize = 13}); }},
        {"dialogButton",
         [] {
             return theme::dialogButton({.background = theme::accent,
                                         .colour = theme::onColour,
                                         .hovered = theme::accentHover,
                                         .fontSize = 14});
         }},
        {"framedButton", [] { return theme::framedButton(); }},
        {"badgeButton", [] { return theme::badgeButton(); }},
        {"loadMoreButton", [] { return theme::loadMoreButton(); }},
        {"expandButton", [] { return theme::expandButton(); }},
        {"linkButton", [] { return theme::linkButton(); }},
        {"iconButton", [] { return theme::iconButton(); }},
        {"card", [] { return theme::card({.objectName = u"card"_s}); }},
        {"card, hoverable",
         [] { return theme::card({.objectName = u"card"_s, .isHoverable = true}); }},
        {"fileCardList", [] { return theme::fileCardList(); }},
        {"circleCard", [] { return theme::circleCard(u"card"_s); }},
        {"statCard", [] { return theme::statCard(u"card"_s); }},
        {"tipBox", [] { return theme::tipBox(u"card"_s); }},
        {"browserGroupHeader, closed", [] { return theme::browserGroupHeader(false); }},
        {"browserGroupHeader, open", [] { return theme::browserGroupHeader(true); }},
        {"browserGroupContent", [] { return theme::browserGroupContent(); }},
        {"lineEdit", [] { return theme::lineEdit(6); }},
        {"comboBox", [] { return theme::comboBox(); }},
        {"browserCheckBox", [] { return theme::browserCheckBox(); }},
        {"transparentScrollArea", [] { return theme::transparentScrollArea(); }},
        {"groupBox", [] { return theme::groupBox(); }},
        {"progressBar", [] { return theme::progressBar(); }},
        {"thinProgressBar", [] { return theme::thinProgressBar(theme::warning, 3); }},
        {"bar", [] { return theme::bar(theme::warning, 3); }},
        {"gradientBar", [] { return theme::gradientBar(); }},
        {"statusDot", [] { return theme::statusDot(theme::warning); }},
        {"menu", [] { return theme::menu(); }},
        {"contextMenu", [] { return theme::contextMenu(); }},
        {"aboutBox", [] { return theme::aboutBox(); }},
        {"messageBox", [] { return theme::messageBox(); }},
        {"inputDialog", [] { return theme::inputDialog(); }},
        {"detailDialog", [] { return theme::detailDialog(); }},
        {"detailTitleBar", [] { return theme::detailTitleBar(); }},
        {"detailBackButton", [] { return theme::detailBackButton(); }},
        {"detailColumnHeader", [] { return theme::detailColumnHeader(); }},
        {"detailScrollArea", [] { return theme::detailScrollArea(); }},
        {"detailRows", [] { return theme::detailRows(); }},
        {"detailRow, plain", [] { return theme::detailRow(false); }},
        {"detailRow, striped", [] { return theme::detailRow(true); }},
        {"logoBox", [] { return theme::logoBox(); }},
        {"logoBadge", [] { return theme::logoBadge(); }},
        {"logoText", [] { return theme::logoText(); }},
        {"navSeparator", [] { return theme::navSeparator(); }},
        {"navText, checked", [] { return theme::navText(true); }},
        {"navText, unchecked", [] { return theme::navText(false); }},
        {"uncolouredLabel, without weight", [] { return theme::uncolouredLabel(13); }},
        {"label, without weight", [] { return theme::label(theme::text, 13); }},
        {"labelSizeFirst, without weight", [] { return theme::labelSizeFirst(theme::text, 13); }},
    };
}

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrastIsComputedAsDefined()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QVERIFY(std::abs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.01);
    }

    void holesAreFilled_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("filled");
        QTest::newRow("a colour of the table") << u"color: {accent};"_s << u"color: #10B981;"_s;
        QTest::newRow("a length") << u"{cardRadius}px"_s << u"12px"_s;
        QTest::newRow("two side by side") << u"{white}{cardRadius}"_s << u"#FFFFFF12"_s;
        QTest::newRow("nothing to fill") << u"border: none;"_s << u"border: none;"_s;
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("a rule around a hole")
            << u"A { color: {text}; }B { c: d; }"_s << u"A { color: #111827; }B { c: d; }"_s;
        QTest::newRow("a rule without blanks")
            << u"A {color: {text};}"_s << u"A {color: #111827;}"_s;
        QTest::newRow("an empty rule") << u"A {}"_s << u"A {}"_s;
        QTest::newRow("an open brace at the end") << u"A {text"_s << u"A {text"_s;
        QTest::newRow("line breaks stay")
            << u"\nA {\n  b: {text};\n}\n"_s << u"\nA {\n  b: #111827;\n}\n"_s;
    }

    void holesAreFilled()
    {
        QFETCH(QString, style);
        QFETCH(QString, filled);
        const theme::Filled result = theme::fillHoles(style);
        QCOMPARE(result.faults, QStringList());
        QCOMPARE(result.text, filled);
        QCOMPARE(theme::fill(style), filled);
    }

    void holesAreFilledByName()
    {
        const theme::Filled result =
            theme::fillHoles(u"#{name} { a: {size}px {colour}; } #{name}:hover { b: {text}; }",
                             {{"colour", theme::danger}, {"size", 7}, {"name", u"{card}"_s}});
        QCOMPARE(result.faults, QStringList());
        QCOMPARE(result.text, u"#{card} { a: 7px #EF4444; } #{card}:hover { b: #111827; }"_s);
    }

    void openHolesAndUnusedValuesAreFaults_data()
    {
        QTest::addColumn<theme::Filled>("result");
        QTest::addColumn<QStringList>("faults");
        QTest::newRow("a hole") << theme::fillHoles(u"a: {nowhere};")
                                << QStringList{u"no value for the hole \"nowhere\""_s};
        QTest::newRow("a hole that is nearly a token")
            << theme::fillHoles(u"a: {Accent} {accents};")
            << QStringList{u"no value for the hole \"Accent\""_s,
                           u"no value for the hole \"accents\""_s};
        QTest::newRow("a value") << theme::fillHoles(u"a: {one};", {{"one", 1}, {"two", 2}})
                                 << QStringList{u"no hole for the value \"two\""_s};
        QTest::newRow("a value twice") << theme::fillHoles(u"a: {one};", {{"one", 1}, {"one", 2}})
                                       << QStringList{u"no hole for the value \"one\""_s};
        QTest::newRow("a value in place of a token")
            << theme::fillHoles(u"a: {accent};", {{"accent", theme::danger}})
            << QStringList{u"the value \"accent\" is named like a token"_s};
    }

    void openHolesAndUnusedValuesAreFaults()
    {
        QFETCH(theme::Filled, result);
        QFETCH(QStringList, faults);
        QCOMPARE(result.faults, faults);
    }

    void everyStyleIsFilled_data()
    {
        QTest::addColumn<Style>("style");
        for (const NamedStyle &row : styles())
            QTest::newRow(row.name) << row.style;
    }

    void everyStyleIsFilled()
    {
        QFETCH(Style, style);
        QTest::failOnWarning(QRegularExpression(u"theme: "_s));
        const QString text = style();
        QVERIFY(!text.isEmpty());
        QVERIFY2(isCompleteSheet(text), qPrintable(text));
    }

    void everyStyleHasARow()
    {
        QSet<QString> rows;
        for (const NamedStyle &row : styles())
            rows.insert(QString::fromLatin1(row.name).section(u',', 0, 0));
        static const QRegularExpression declaration(u"\\] QString (\\w+)\\("_s);
        int count = 0;
        const QStringList headers = QDir(u":/headers"_s).entryList();
        for (const QString &header : headers) {
            auto found = declaration.globalMatch(read(u":/headers/"_s + header));
            while (found.hasNext()) {
                const QString name = found.next().captured(1);
                QVERIFY2(name == "fill"_L1 || rows.contains(name), qPrintable(name));
                ++count;
            }
        }
        QVERIFY(count >= rows.size());
    }

    void theWindowsStyleSheetHasNoOpenHole()
    {
        const QString style = read(u":/styles/style.qss"_s);
        QVERIFY(!style.isEmpty());
        const theme::Filled result = theme::fillHoles(style);
        QCOMPARE(result.faults, QStringList());
        QVERIFY(isCompleteSheet(result.text));
    }

    void eachColourHasOneName()
    {
        // White has several names: these colours may differ later.
        const QSet<QString> whites{u"white"_s, u"panel"_s, u"boxBackground"_s, u"onColour"_s};
        QHash<QRgb, QString> names;
        const auto add = [&](const QString &name, theme::Colour colour) {
            const bool isForPainting = !colour.value().startsWith("rgba("_L1);
            QCOMPARE(theme::color(colour).isValid(), isForPainting);
            if (!isForPainting || (whites.contains(name) && name != "white"_L1))
                return;
            const QRgb rgb = theme::color(colour).rgb();
            QVERIFY2(!names.contains(rgb), qPrintable(name + " is "_L1 + names.value(rgb)));
            names.insert(rgb, name);
        };
#define ADD(name, value) add(QStringLiteral(#name), theme::name);
        THEME_COLOURS(ADD)
#undef ADD
        QVERIFY(names.size() > 30);
    }

    // The text of these styles is fixed, including its blanks.
    void someStylesHaveAFixedText_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("beginning");
        QTest::newRow("menu")
            << theme::menu()
            << u"\n        QMenu {\n            background-color: white;\n            border: 1px solid #e2e8f0;\n            border-radius: 8px;\n"_s;
        QTest::newRow("expandButton")
            << theme::expandButton()
            << u"QPushButton { border: none; color: #9CA3AF; font-size: 10px; }QPushButton:hover { color: #10B981; }"_s;
        QTest::newRow("loadMoreButton")
            << theme::loadMoreButton()
            << u"QPushButton {  background-color: #F9FAFB;  color: #10B981;  border: 1px solid #E5E7EB;  border-radius: 6px;  padding: 8px 16px;  font-size: 13px;}QPushButton:hover {  background-color: #F3F4F6;}"_s;
        QTest::newRow("groupBox")
            << theme::groupBox()
            << u"QGroupBox { font-size: 14px; font-weight: 500; color: #111827; border: 1px solid #E5E7EB; border-radius: 8px; margin-top: 8px; padding-top: 16px; }QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }"_s;
        QTest::newRow("framedButton")
            << theme::framedButton()
            << u"QPushButton { background-color: transparent; color: #111827; border: 1px solid #E5E7EB; border-radius: 8px; font-size: 13px; }QPushButton:hover { background-color: #F3F4F6; }"_s;
        QTest::newRow("dialogButton")
            << theme::dialogButton({.background = theme::accent,
                                    .colour = theme::onColour,
                                    .hovered = theme::accentHover,
                                    .fontSize = 14})
            << u"QPushButton { background-color: #10B981; color: white; border: none; border-radius: 8px; font-size: 14px; }QPushButton:hover { background-color: #059669; }"_s;
        QTest::newRow("browserCheckBox")
            << theme::browserCheckBox()
            << u"QCheckBox { color: #111827; font-size: 13px; spacing: 8px; }QCheckBox::indicator { width: 16px; height: 16px; }"_s;
        QTest::newRow("badge")
            << theme::badge({.colour = theme::muted,
                             .background = theme::buttonBackground,
                             .radius = 10,
                             .fontSize = 12})
            << u"color: #6B7280; background-color: #F3F4F6; padding: 2px 8px; border-radius: 10px; font-size: 12px;"_s;
        QTest::newRow("tipBox")
            << theme::tipBox(u"tip"_s)
            << u"#tip { background: #F0FDF4;border: 1px solid #BBF7D0;border-radius: 12px; }"_s;
        QTest::newRow("statCard")
            << theme::statCard(u"stat"_s)
            << u"#stat { background: white;border: 1px solid #E5E7EB;border-radius: 14px; }"_s;
    }

    void someStylesHaveAFixedText()
    {
        QFETCH(QString, style);
        QFETCH(QString, beginning);
        QCOMPARE(style.left(beginning.size()), beginning);
    }

    // The pairs of text and background colours that this project chose itself.
    void textIsReadable_data()
    {
        QTest::addColumn<QColor>("foreground");
        QTest::addColumn<QColor>("background");
        const auto add = [](const char *name, theme::Colour foreground, theme::Colour background) {
            QTest::newRow(name) << theme::color(foreground) << theme::color(background);
        };
        add("text", theme::text, theme::pageBackground);
        add("quiet text on a page", theme::muted, theme::pageBackground);
        add("quiet text on a card", theme::muted, theme::white);
        add("badge of a browser", theme::text, theme::buttonBackground);
        add("link", theme::text, theme::white);
        add("link, pressed", theme::text, theme::buttonBackground);
        add("list of sizes", theme::text, theme::white);
        add("percentage and figure", theme::accentText, theme::pageBackground);
        add("chosen entry of a menu", theme::accentText, theme::accentTint);
        add("enabled", theme::goodText, theme::goodTint);
        add("tip", theme::goodText, theme::tipBackground);
        add("message", theme::boxText, theme::white);
        add("quiet button", theme::text, theme::buttonBackground);
        add("quiet button, pressed", theme::text, theme::pressedBackground);
    }

    void textIsReadable()
    {
        QFETCH(QColor, foreground);
        QFETCH(QColor, background);
        const double ratio = contrast(foreground, background);
        QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
    }
};

QTEST_GUILESS_MAIN(TestTheme)
#include "tst_theme.moc"
