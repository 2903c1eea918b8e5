#include "readfailures.h"

#include <QTest>

using namespace Qt::StringLiterals;
using platform::ReadFailures;

/// The list of what could not be read.
class TestReadFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneLineTellsEachReason()
    {
        ReadFailures failures;
        QVERIFY(failures.isEmpty());
        failures.add(u"/a"_s, u"no rights"_s);
        failures.add(u"/b"_s, u"a fault"_s);
        failures.add(u"/c"_s, u"no rights"_s);
        failures.add(u"/d"_s, u"no rights"_s);
        QCOMPARE(failures.count(), 4);
        QCOMPARE(
            failures.lines(),
            (QStringList{u"Cannot read /a and 2 more: no rights"_s, u"Cannot read /b: a fault"_s}));
    }

    void aPlaceIsCountedOnceForAReason()
    {
        ReadFailures failures;
        failures.add(u"/a"_s, u"no rights"_s);
        failures.add(u"/a"_s, u"no rights"_s);
        failures.add(u"/a"_s, u"a fault"_s);
        QCOMPARE(failures.count(), 2);
        QCOMPARE(failures.kept().size(), 2);
    }

    void onlyTheFirstPlacesAreKept()
    {
        ReadFailures failures;
        for (int i = 0; i < 1000; ++i)
            failures.add(u"/%1"_s.arg(i), u"no rights"_s);
        QCOMPARE(failures.count(), 1000);
        QCOMPARE(failures.kept().size(), ReadFailures::maximumPlaces);
        QCOMPARE(failures.lines(), QStringList{u"Cannot read /0 and 999 more: no rights"_s});
    }

    void twoListsAreJoined()
    {
        ReadFailures failures;
        failures.add(u"/a"_s, u"no rights"_s);
        ReadFailures more;
        more.add(u"/a"_s, u"no rights"_s);
        for (int i = 0; i < 50; ++i)
            more.add(u"/%1"_s.arg(i), u"a fault"_s);
        failures.add(more);
        QCOMPARE(failures.count(), 51);
        QCOMPARE(failures.groups().size(), 2);
        QCOMPARE(failures.kept().size(), 1 + ReadFailures::maximumPlaces);
        // A second run has met the same places.
        failures.add(more);
        QCOMPARE(failures.count(), 51);
        failures.clear();
        QVERIFY(failures.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestReadFailures)
#include "tst_readfailures.moc"
