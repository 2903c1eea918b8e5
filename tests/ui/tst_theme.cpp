#include "theme.h"

#include <QTest>

#include <cmath>

namespace {

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

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMeasureIsRight()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QVERIFY(std::abs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.01);
    }

    // The pairs of text and ground that are of our own choice.
    void textIsReadable_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QColor>("ground");
        const auto add = [](const char *name, QLatin1StringView ink, QLatin1StringView ground) {
            QTest::newRow(name) << theme::color(ink) << theme::color(ground);
        };
        add("text", theme::text, theme::hover);
        add("quiet text on a page", theme::muted, theme::hover);
        add("quiet text on a card", theme::muted, theme::white);
        add("badge of a browser", theme::text, theme::button);
        add("link", theme::text, theme::white);
        add("link, pressed", theme::text, theme::button);
        add("list of sizes", theme::text, theme::white);
        add("percentage and figure", theme::accentText, theme::hover);
        add("chosen entry of a menu", theme::accentText, theme::lowRiskTint);
        add("enabled", theme::startupText, theme::startupTint);
        add("tip", theme::startupText, theme::tipTint);
        add("message", theme::boxText, theme::white);
        add("quiet button", theme::text, theme::button);
        add("quiet button, pressed", theme::text, theme::disabled);
    }

    void textIsReadable()
    {
        QFETCH(QColor, ink);
        QFETCH(QColor, ground);
        const double ratio = contrast(ink, ground);
        QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
    }
};

QTEST_GUILESS_MAIN(TestTheme)
#include "tst_theme.moc"
