#include "applicationfont.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QImage drawn(const QString &text)
{
    QImage image(80, 80, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font = QApplication::font();
    font.setPixelSize(40);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}

int colouredPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).hsvSaturation() > 60 ? 1 : 0;
    }
    return count;
}

} // namespace

class TestApplicationFont : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { theme::installApplicationFont(); }

    void itIsLaidDown()
    {
        QCOMPARE(QApplication::font().family(), u"Segoe UI"_s);
        QCOMPARE(QApplication::font().pointSize(), 10);
        QVERIFY(QApplication::font().styleStrategy() & QFont::PreferAntialias);
    }

    // Other fonts have some of them, too, but in black and white.
    void emojiAreInColour_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString &text : {u"🔍"_s, u"🧹"_s, u"🗑️"_s, u"📦"_s, u"⚠️"_s})
            QTest::newRow(qPrintable(text)) << text;
    }

    void emojiAreInColour()
    {
        if (!QFontDatabase::hasFamily(u"Noto Color Emoji"_s))
            QSKIP("the system has no emoji in colour");
        QFETCH(QString, text);
        QVERIFY(colouredPixels(drawn(text)) > 100);
    }

    // The font of the emoji has digits, too.
    void textIsNotDrawnWithEmoji()
    {
        const QImage text = drawn(u"5©#"_s);
        QCOMPARE(colouredPixels(text), 0);
        QVERIFY(text != drawn(QString()));
    }
};

QTEST_MAIN(TestApplicationFont)
#include "tst_applicationfont.moc"
