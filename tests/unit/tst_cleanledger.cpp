#include "cleanledger.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using Status = platform::FileRemover::Status;

namespace {

CleanItem folder(const QString &path, qint64 size)
{
    CleanItem item(path.section(u'/', -1), path, size);
    item.isDirectory = true;
    return item;
}

CleanItem file(const QString &path, qint64 size)
{
    return {path.section(u'/', -1), path, size};
}

ScanResult selectionOf(const QList<CleanItem> &items)
{
    ScanResult result;
    result.categories.append(CleanCategory(u"id"_s, u"name"_s, {}));
    result.categories.last().items = items;
    return result;
}

const platform::FileRemover::Outcome removed{Status::Removed, false, {}};
const platform::FileRemover::Outcome missing{Status::NotFound, false, {}};
const platform::FileRemover::Outcome stuck{Status::Failed, false, QStringLiteral("busy")};
const platform::FileRemover::Outcome replaced{Status::Replaced, false, {}};
const platform::FileRemover::Outcome replacedFolder{Status::Replaced, true, {}};
const platform::FileRemover::Outcome partly{Status::Failed, true, QStringLiteral("busy")};

/// A ledger and what a clean counts with it.
class Clean
{
public:
    explicit Clean(const ScanResult &selection)
        : m_ledger(selection)
    {
    }

    bool record(const CleanItem &item, const platform::FileRemover::Outcome &outcome)
    {
        const std::optional<qint64> freed = m_ledger.record(item, outcome);
        ++(freed ? m_cleanedCount : m_failedCount);
        m_cleanedSize += freed.value_or(0);
        return freed.has_value();
    }
    [[nodiscard]] qint64 cleanedSize() const { return m_cleanedSize; }
    [[nodiscard]] int cleanedCount() const { return m_cleanedCount; }
    [[nodiscard]] int failedCount() const { return m_failedCount; }

private:
    CleanLedger m_ledger;
    qint64 m_cleanedSize = 0;
    int m_cleanedCount = 0;
    int m_failedCount = 0;
};

} // namespace

class TestCleanLedger : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filesAreCountedOneByOne()
    {
        Clean ledger(selectionOf({}));
        QVERIFY(ledger.record(file(u"/p/a"_s, 3), removed));
        QVERIFY(ledger.record(file(u"/p/b"_s, 4), removed));
        QVERIFY(!ledger.record(file(u"/p/c"_s, 5), stuck));
        QVERIFY(!ledger.record(file(u"/p/d"_s, 6), missing));
        expect(ledger, 7, 2, 2);
    }

    void anItemRemovedWithItsFolderIsCleanedAndCountedOnce()
    {
        const QList<CleanItem> items{folder(u"/p/f"_s, 10), file(u"/p/f/a"_s, 4),
                                     folder(u"/p/f/g"_s, 6), file(u"/p/f/g/b"_s, 6)};
        Clean ledger(selectionOf(items));
        QVERIFY(ledger.record(items.at(0), removed));
        for (int i = 1; i < 4; ++i)
            QVERIFY(ledger.record(items.at(i), missing));
        expect(ledger, 10, 4, 0);
    }

    void anItemRemovedBeforeItsFolderIsCountedOnce()
    {
        const QList<CleanItem> items{file(u"/p/f/g/b"_s, 6), folder(u"/p/f/g"_s, 7),
                                     folder(u"/p/f"_s, 10)};
        Clean ledger(selectionOf(items));
        for (const CleanItem &item : items)
            QVERIFY(ledger.record(item, removed));
        expect(ledger, 10, 3, 0);
    }

    void aFileThatTwoRulesTakeIsCountedOnce()
    {
        Clean ledger(selectionOf({}));
        QVERIFY(ledger.record(file(u"/p/History"_s, 9), removed));
        QVERIFY(ledger.record(file(u"/p/History"_s, 9), missing));
        QVERIFY(ledger.record(file(u"/p/History"_s, 9), removed));
        expect(ledger, 9, 3, 0);
    }

    void theRemovedItemsOfAPartlyRemovedFolderAreCounted()
    {
        const QList<CleanItem> items{folder(u"/p/f"_s, 10), file(u"/p/f/a"_s, 4),
                                     folder(u"/p/f/g"_s, 6), file(u"/p/f/g/b"_s, 6)};
        Clean ledger(selectionOf(items));
        QVERIFY(!ledger.record(items.at(0), partly));
        QVERIFY(ledger.record(items.at(1), missing));
        QVERIFY(!ledger.record(items.at(2), partly));
        QVERIFY(!ledger.record(items.at(3), stuck));
        expect(ledger, 4, 1, 3);
    }

    void aReplacedItemIsNeverCleaned()
    {
        const QList<CleanItem> items{folder(u"/p/f"_s, 10), file(u"/p/f/a"_s, 4),
                                     file(u"/p/f/b"_s, 6)};
        Clean ledger(selectionOf(items));
        QVERIFY(!ledger.record(items.at(0), replacedFolder));
        QVERIFY(!ledger.record(items.at(1), replaced));
        QVERIFY(!ledger.record(items.at(2), missing));
        expect(ledger, 0, 0, 3);
    }

    void aReplacedItemInAPartlyRemovedFolderIsNotCleaned()
    {
        const QList<CleanItem> items{folder(u"/p/f"_s, 10), folder(u"/p/f/g"_s, 6),
                                     file(u"/p/f/g/b"_s, 6)};
        Clean ledger(selectionOf(items));
        QVERIFY(!ledger.record(items.at(0), partly));
        QVERIFY(!ledger.record(items.at(1), replacedFolder));
        QVERIFY(!ledger.record(items.at(2), replaced));
        expect(ledger, 0, 0, 3);
    }

    void aNeighbourWithALikeNameIsNotBelow()
    {
        Clean ledger(selectionOf({folder(u"C:/p/f"_s, 1)}));
        QVERIFY(ledger.record(folder(u"C:/p/f"_s, 1), removed));
        QVERIFY(!ledger.record(file(u"C:/p/f2/a"_s, 1), missing));
        QVERIFY(!ledger.record(file(u"f"_s, 1), missing));
    }

private:
    static void expect(const Clean &ledger, qint64 size, int cleaned, int failed)
    {
        QCOMPARE(ledger.cleanedSize(), size);
        QCOMPARE(ledger.cleanedCount(), cleaned);
        QCOMPARE(ledger.failedCount(), failed);
    }
};

QTEST_GUILESS_MAIN(TestCleanLedger)
#include "tst_cleanledger.moc"
