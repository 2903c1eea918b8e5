#include "namefilter.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestNameFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void matchesLikeQDir_data()
    {
        QTest::addColumn<QString>("wildcard");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("expected");

        QTest::newRow("everything") << u"*"_s << u"any name"_s << true;
        QTest::newRow("suffix") << u"*.log"_s << u"a.log"_s << true;
        QTest::newRow("suffix, other case") << u"*.log"_s << u"A.LOG"_s << true;
        QTest::newRow("suffix with nothing before it") << u"*.log"_s << u".log"_s << true;
        QTest::newRow("suffix in the middle") << u"*.log"_s << u"a.log.1"_s << false;
        QTest::newRow("prefix") << u"~FontCache-*"_s << u"~fontcache-S-1"_s << true;
        QTest::newRow("prefix alone") << u"~FontCache-*"_s << u"~FontCache-"_s << true;
        QTest::newRow("exact") << u"MEMORY.DMP"_s << u"memory.dmp"_s << true;
        QTest::newRow("exact with more") << u"MEMORY.DMP"_s << u"memory.dmp2"_s << false;
        QTest::newRow("star in the middle")
            << u"thumbcache_*.db"_s << u"thumbcache_32.db"_s << true;
        QTest::newRow("star for nothing") << u"thumbcache_*.db"_s << u"thumbcache_.db"_s << true;
        QTest::newRow("star in the middle, no match")
            << u"thumbcache_*.db"_s << u"iconcache_32.db"_s << false;
        QTest::newRow("question mark") << u"a?c"_s << u"aBc"_s << true;
        QTest::newRow("question mark for nothing") << u"a?c"_s << u"ac"_s << false;
        QTest::newRow("set") << u"[ab].txt"_s << u"B.txt"_s << true;
        QTest::newRow("dots are no wildcards") << u"a.b"_s << u"axb"_s << false;
        QTest::newRow("plus is no wildcard") << u"*+.txt"_s << u"a+.txt"_s << true;
        QTest::newRow("line break in the name") << u"*.txt"_s << u"a\nb.txt"_s << true;
        QTest::newRow("umlaut, other case") << u"*.Ä"_s << u"x.ä"_s << true;
        QTest::newRow("emoji") << u"*🧹"_s << u"a🧹"_s << true;
        QTest::newRow("star-dot-star wants a dot") << u"*.*"_s << u"Makefile"_s << false;
    }

    void matchesLikeQDir()
    {
        QFETCH(QString, wildcard);
        QFETCH(QString, name);
        QFETCH(bool, expected);
        QCOMPARE(platform::NameFilter({wildcard}).matches(name), expected);
        QCOMPARE(QDir::match(wildcard, name), expected);
    }

    void anyOfSeveralIsEnough()
    {
        const platform::NameFilter filter({u"*.dmp"_s, u"*.mdmp"_s});
        QVERIFY(filter.matches(u"a.mdmp"_s));
        QVERIFY(filter.matches(u"a.dmp"_s));
        QVERIFY(!filter.matches(u"a.txt"_s));
    }

    void emptyListMatchesEverything()
    {
        QVERIFY(platform::NameFilter({}).matchesEverything());
        QVERIFY(platform::NameFilter({}).matches(u"x"_s));
    }

    void emptyWildcardMatchesNothing()
    {
        QVERIFY(!platform::NameFilter({QString()}).matches(u"x"_s));
    }
};

QTEST_GUILESS_MAIN(TestNameFilter)
#include "tst_namefilter.moc"
