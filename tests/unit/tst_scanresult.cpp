#include "scanresult.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

CleanCategory category(const QString &id, const QList<qint64> &sizes)
{
    CleanCategory result(id, id, {});
    for (const qint64 size : sizes)
        result.items.append(
            CleanItem(QString::number(size), u"/x/"_s + QString::number(size), size));
    return result;
}

} // namespace

class TestScanResult : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void recordsStartWithTheirDefaults()
    {
        const CleanItem item(u"n"_s, u"/p"_s, 7);
        QCOMPARE(item.name, u"n"_s);
        QCOMPARE(item.path, u"/p"_s);
        QCOMPARE(item.size, 7);
        QVERIFY(item.checked);
        QCOMPARE(item.riskLevel, 0);
        QVERIFY(item.description.isEmpty());
        QVERIFY(!item.isDirectory);
        QVERIFY(item.registryRoot.isEmpty());
        QVERIFY(item.registryKey.isEmpty());

        const CleanCategory empty(u"i"_s, u"n"_s, u"d"_s);
        QVERIFY(empty.checked);
        QVERIFY(!empty.expanded);
        QVERIFY(empty.icon.isEmpty());
        QCOMPARE(empty.riskLevel, 0);
        QVERIFY(empty.items.isEmpty());
    }

    void aNameThatEndsThePathSharesItsMemory()
    {
        QString path = u"/folder/"_s + u"name of the file"_s;
        CleanItem item(u"name of the file"_s, path, 7);
        QCOMPARE(item.name, u"name of the file"_s);
        QCOMPARE(item.name.constData(), std::as_const(item.path).constData() + 8);
        QCOMPARE(item.name.utf16()[item.name.size()], u'\0');
        // Each is a text of its own all the same.
        CleanItem other = item;
        other.name.prepend(u"new "_s);
        other.path.append(u" too"_s);
        QCOMPARE(other.name, u"new name of the file"_s);
        QCOMPARE(item.path, u"/folder/name of the file"_s);
        path.clear();
        item.path.replace(u"folder"_s, u"x"_s);
        QCOMPARE(item.name, u"name of the file"_s);
        item.name += u" and more"_s;
        QCOMPARE(item.name, u"name of the file and more"_s);
        QCOMPARE(item.path, u"/x/name of the file"_s);
        for (const QString &name : {u"name"_s, QString(), u"/folder/name and more"_s})
            QCOMPARE(CleanItem(name, u"/folder/file"_s, 7).name, name);
        // Five texts, the size, and the small members in one word.
        QVERIFY(QTypeInfo<CleanItem>::isRelocatable); // else a list is copied when it grows
        QCOMPARE(sizeof(CleanItem), 5 * sizeof(QString) + 2 * sizeof(qint64));
    }

    void aSelectionHasNumberAndSize()
    {
        ScanResult result;
        result.categories = {category(u"a"_s, {1, 20, 300}), category(u"b"_s, {4000})};
        result.categories[0].items[1].checked = false;
        QCOMPARE(result.categories.at(0).checkedItems().count, 2);
        QCOMPARE(result.categories.at(0).checkedItems().size, 301);
        QCOMPARE(result.selection().count, 3);
        QCOMPARE(result.selection().size, 4301);
        result.categories[1].checked = false;
        QCOMPARE(result.selection().count, 2);
        QCOMPARE(result.selection().size, 301);
        QCOMPARE(result.categories.at(1).checkedItems().count, 1); // whatever the category's mark
        QCOMPARE(result.categories.at(0).checkState(2), Qt::PartiallyChecked);
        QCOMPARE(result.categories.at(0).checkState(3), Qt::Checked);
        QCOMPARE(result.categories.at(0).checkState(0), Qt::Unchecked);
        QCOMPARE(result.categories.at(1).checkState(1), Qt::Unchecked);
    }

    void anEmptyResultYieldsZeroForAllAggregates()
    {
        const ScanResult result;
        QCOMPARE(result.totalCount(), 0);
        QCOMPARE(result.totalSize(), 0);
        QCOMPARE(result.checkedCount(), 0);
        QCOMPARE(result.checkedSize(), 0);
        QCOMPARE(formatSize(0), u"0 B"_s);
        QVERIFY(qAbs(result.scanTime.msecsTo(QDateTime::currentDateTime())) < 60'000);
    }

    void anUncheckedCategoryCountsInTheTotalsOnly()
    {
        ScanResult result;
        result.categories = {category(u"a"_s, {1, 2}), category(u"b"_s, {4})};
        result.categories[0].checked = false;
        QCOMPARE(result.totalCount(), 3);
        QCOMPARE(result.totalSize(), 7);
        QCOMPARE(result.checkedCount(), 1);
        QCOMPARE(result.checkedSize(), 4);
        QCOMPARE(result.categories.at(0).checkedCount(), 2);
        QCOMPARE(result.categories.at(0).checkedSize(), 3);
    }

    void settingACategoryKeepsTheTwoLevelsConsistent()
    {
        CleanCategory one = category(u"a"_s, {1, 2, 3});
        one.items[1].checked = false;
        QCOMPARE(one.checkedCount(), 2);
        QCOMPARE(one.checkedSize(), 4);
        one.setChecked(false);
        QVERIFY(!one.checked);
        QCOMPARE(one.checkedCount(), 0);
        one.setChecked(true);
        QVERIFY(one.checked);
        QCOMPARE(one.checkedCount(), 3);
    }

    void aPartlyCheckedCategorySaysSo()
    {
        CleanCategory one = category(u"a"_s, {1, 2});
        QCOMPARE(one.checkState(), Qt::Checked);
        one.items[0].checked = false;
        QCOMPARE(one.checkState(), Qt::PartiallyChecked);
        // No item would be cleaned, whatever the category's own mark says.
        one.items[1].checked = false;
        QCOMPARE(one.checkState(), Qt::Unchecked);
        QVERIFY(one.checked);
        one.setChecked(true);
        one.checked = false;
        QCOMPARE(one.checkState(), Qt::Unchecked);
        CleanCategory empty = category(u"b"_s, {});
        QCOMPARE(empty.checkState(), Qt::Checked);
        empty.checked = false;
        QCOMPARE(empty.checkState(), Qt::Unchecked);
    }

    void checkedOnlyHoldsWhatIsChecked()
    {
        ScanResult result;
        result.categories = {category(u"a"_s, {1, 2}), category(u"b"_s, {4})};
        result.categories[0].items[0].checked = false;
        result.categories[1].checked = false;
        const ScanResult chosen = CheckedRecords(result).records(false);
        QCOMPARE(chosen.categories.size(), 1);
        QCOMPARE(chosen.categories.at(0).id, u"a"_s);
        QCOMPARE(chosen.categories.at(0).items.size(), 1);
        QCOMPARE(chosen.categories.at(0).items.at(0).size, 2);
        QCOMPARE(chosen.checkedCount(), result.checkedCount());
    }

    void checkedOnlySharesNoRecord()
    {
        ScanResult result;
        result.categories = {category(u"a"_s, {1, 2})};
        CleanItem *bound = &result.categories[0].items[0];
        const ScanResult chosen = CheckedRecords(result).records(false);
        bound->checked = false;
        QVERIFY(chosen.categories.at(0).items.at(0).checked);
        // The copy has not detached the original either: the bound record is still the result's
        // own.
        QCOMPARE(&result.categories[0].items[0], bound);
    }

    void formatsSizes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("negative") << qint64(-1) << u"0 B"_s;
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << u"0 B"_s;
        QTest::newRow("zero") << qint64(0) << u"0 B"_s;
        QTest::newRow("one") << qint64(1) << u"1 B"_s;
        QTest::newRow("last of B") << qint64(1023) << u"1023 B"_s;
        QTest::newRow("first of KB") << qint64(1024) << u"1.0 KB"_s;
        QTest::newRow("half") << qint64(1536) << u"1.5 KB"_s;
        QTest::newRow("rounds up inside KB") << qint64(1'048'575) << u"1024.0 KB"_s;
        QTest::newRow("first of MB") << qint64(1'048'576) << u"1.0 MB"_s;
        QTest::newRow("last of MB") << qint64(1'073'741'823) << u"1024.0 MB"_s;
        QTest::newRow("first of GB") << qint64(1'073'741'824) << u"1.00 GB"_s;
        QTest::newRow("three GB") << qint64(3) * 1'073'741'824 << u"3.00 GB"_s;
        QTest::newRow("no TB") << qint64(5) * 1'099'511'627'776 << u"5120.00 GB"_s;
    }

    void formatsSizes()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, expected);
        QCOMPARE(formatSize(bytes), expected);
    }
};

QTEST_GUILESS_MAIN(TestScanResult)
#include "tst_scanresult.moc"
