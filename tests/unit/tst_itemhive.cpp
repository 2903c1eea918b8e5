#include "itemhive.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::Hive;

/// The names of the hives, and which hive an item is taken to be in.
class TestItemHive : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aHiveHasTwoNames_data()
    {
        QTest::addColumn<Hive>("hive");
        QTest::addColumn<QString>("inFull");
        QTest::addColumn<QString>("inShort");
        QTest::newRow("machine") << Hive::LocalMachine << u"HKEY_LOCAL_MACHINE"_s << u"HKLM"_s;
        QTest::newRow("user") << Hive::CurrentUser << u"HKEY_CURRENT_USER"_s << u"HKCU"_s;
        QTest::newRow("classes") << Hive::ClassesRoot << u"HKEY_CLASSES_ROOT"_s << u"HKCR"_s;
    }
    void aHiveHasTwoNames()
    {
        QFETCH(Hive, hive);
        QFETCH(QString, inFull);
        QFETCH(QString, inShort);
        QCOMPARE(platform::hiveName(hive), inFull);
        QCOMPARE(platform::shortHiveName(hive), inShort);
        QVERIFY(platform::hiveNamed(inFull) == hive);
        QVERIFY(platform::hiveNamed(inShort) == hive);
        const auto path = platform::hivePath(inFull + u"\\a\\b"_s);
        QVERIFY(path && path->hive == hive);
        QCOMPARE(path->key, u"a\\b"_s);
        // Files and settings accept only the full name.
        QVERIFY(!platform::hivePath(inShort + u"\\a"_s));
        QVERIFY(!platform::hivePath(inFull));
        QVERIFY(!platform::hivePath(inFull.toLower() + u"\\a"_s));
    }

    void aCleanAndABackupTakeUnknownNamesForDifferentHives_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Hive>("clean");
        QTest::addColumn<Hive>("backup");
        const auto row = [](const char *title, const QString &name, Hive clean, Hive backup) {
            QTest::newRow(title) << name << clean << backup;
        };
        row("machine", u"HKEY_LOCAL_MACHINE"_s, Hive::LocalMachine, Hive::LocalMachine);
        row("machine, short", u"HKLM"_s, Hive::LocalMachine, Hive::LocalMachine);
        row("user", u"HKEY_CURRENT_USER"_s, Hive::CurrentUser, Hive::CurrentUser);
        row("user, short", u"HKCU"_s, Hive::CurrentUser, Hive::CurrentUser);
        row("classes", u"HKEY_CLASSES_ROOT"_s, Hive::ClassesRoot, Hive::ClassesRoot);
        row("classes, short", u"HKCR"_s, Hive::ClassesRoot, Hive::ClassesRoot);
        row("none", {}, Hive::ClassesRoot, Hive::LocalMachine);
        row("another hive", u"HKEY_USERS"_s, Hive::ClassesRoot, Hive::LocalMachine);
        row("in small letters", u"hkcu"_s, Hive::ClassesRoot, Hive::LocalMachine);
    }
    void aCleanAndABackupTakeUnknownNamesForDifferentHives()
    {
        QFETCH(QString, name);
        QFETCH(Hive, clean);
        QFETCH(Hive, backup);
        CleanItem item(u"name"_s, u"path"_s, 0);
        item.registryRoot = name;
        QCOMPARE(ItemHive::forClean(item).named, clean);
        QCOMPARE(ItemHive::forBackup(item).named, backup);
    }

    void aClassIsInTheHiveThatItWasReadFrom()
    {
        CleanItem item(u"name"_s, u"path"_s, 0);
        item.registryRoot = u"HKEY_CLASSES_ROOT"_s;
        for (const bool isUsers : {false, true}) {
            item.isUserClass = isUsers;
            for (const ItemHive hive : {ItemHive::forClean(item), ItemHive::forBackup(item)}) {
                QVERIFY(hive.isClass());
                QCOMPARE(hive.stored, isUsers ? Hive::CurrentUser : Hive::LocalMachine);
                QCOMPARE(hive.storedPath(u".txt"_s), u"Software\\Classes\\.txt"_s);
            }
        }
        item.registryRoot = u"HKLM"_s;
        QCOMPARE(ItemHive::forClean(item).stored, Hive::LocalMachine);
        QCOMPARE(ItemHive::forClean(item).storedPath(u"a\\b"_s), u"a\\b"_s);
    }
};

QTEST_GUILESS_MAIN(TestItemHive)
#include "tst_itemhive.moc"
