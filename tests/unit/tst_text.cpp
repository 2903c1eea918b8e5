#include "text.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void leavesOneHarmlessLine_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << u"C:/a b/ü 文.txt"_s << u"C:/a b/ü 文.txt"_s;
        QTest::newRow("line feed") << u"a\nb"_s << u"a\uFFFDb"_s;
        QTest::newRow("carriage return") << u"a\rb"_s << u"a\uFFFDb"_s;
        QTest::newRow("escape sequence") << u"\u001b[31m"_s << u"\uFFFD[31m"_s;
        QTest::newRow("line separator") << u"a\u2028b"_s << u"a\uFFFDb"_s;
        QTest::newRow("right-to-left override") << u"a\u202etxt.exe"_s << u"a\uFFFDtxt.exe"_s;
        QTest::newRow("right-to-left mark") << u"a\u200fb"_s << u"a\uFFFDb"_s;
        QTest::newRow("C1 control") << u"a\u0085b"_s << u"a\uFFFDb"_s;
        QTest::newRow("Arabic stays") << u"ملف.txt"_s << u"ملف.txt"_s;
        QTest::newRow("emoji stays") << u"🧹.txt"_s << u"🧹.txt"_s;
    }

    void leavesOneHarmlessLine()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(singleLine(text), expected);
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
