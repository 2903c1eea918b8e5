#include "scanresult.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr qint64 kibi = 1024;
constexpr qint64 mebi = kibi * 1024;
constexpr qint64 gibi = mebi * 1024;

QString formatNumber(qint64 bytes, qint64 unit, int decimals)
{
    return QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f', decimals);
}

// The end of @p path with the memory of the path, if that is @p name; else @p name.
QString sharedName(const QString &name, const QString &path)
{
    if (name.isEmpty() || !path.endsWith(name))
        return name;
    // A text knows where it begins in its memory, which counts its owners.
    QString::DataPointer end = path.data_ptr();
    end.ptr += path.size() - name.size();
    end.size = name.size();
    return QString(std::move(end));
}

// Does not read the mark, which another thread may change.
CleanItem checkedCopy(const CleanItem &item)
{
    CleanItem copy(item.name, item.path, item.size);
    copy.riskLevel = item.riskLevel;
    copy.isDirectory = item.isDirectory;
    copy.isUserClass = item.isUserClass;
    copy.registryEntry = item.registryEntry;
    copy.description = item.description;
    copy.registryRoot = item.registryRoot;
    copy.registryKey = item.registryKey;
    return copy;
}

} // namespace

CleanItem::CleanItem(const QString &itemName, const QString &itemPath, qint64 itemSize)
    : name(sharedName(itemName, itemPath))
    , path(itemPath)
    , size(itemSize)
{
}

Selection &Selection::operator+=(const Selection &other)
{
    count += other.count;
    size += other.size;
    return *this;
}

Selection CleanCategory::checkedItems() const
{
    Selection sum;
    for (const CleanItem &item : items) {
        if (item.checked)
            sum += {1, item.size};
    }
    return sum;
}

qint64 CleanCategory::totalSize() const
{
    return std::accumulate(items.begin(), items.end(), qint64(0),
                           [](qint64 sum, const CleanItem &item) { return sum + item.size; });
}

Qt::CheckState CleanCategory::checkState(int count) const
{
    if (!checked)
        return Qt::Unchecked;
    if (count == items.size())
        return Qt::Checked;
    return count == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
}

void CleanCategory::setChecked(bool on)
{
    for (CleanItem &item : items)
        item.checked = on;
    checked = on;
}

int ScanResult::totalCount() const
{
    qsizetype count = 0;
    for (const CleanCategory &category : categories)
        count += category.items.size();
    return static_cast<int>(count);
}

qint64 ScanResult::totalSize() const
{
    qint64 size = 0;
    for (const CleanCategory &category : categories)
        size += category.totalSize();
    return size;
}

Selection ScanResult::selection() const
{
    Selection sum;
    for (const CleanCategory &category : categories) {
        if (category.checked)
            sum += category.checkedItems();
    }
    return sum;
}

CheckedRecords::CheckedRecords(const ScanResult &result)
{
    m_result.scanTime = result.scanTime;
    for (const CleanCategory &category : result.categories) {
        if (!category.checked)
            continue;
        m_result.categories.append(category);
        QBitArray marks(category.items.size());
        for (qsizetype i = 0; i < marks.size(); ++i)
            marks.setBit(i, category.items.at(i).checked);
        m_marks.append(marks);
    }
}

ScanResult CheckedRecords::records(const std::atomic_bool &stopRequested) const
{
    constexpr qsizetype itemsPerCheck = 1024;
    ScanResult records;
    records.scanTime = m_result.scanTime;
    for (qsizetype index = 0; index < m_marks.size(); ++index) {
        const CleanCategory &category = m_result.categories.at(index);
        const QBitArray &marks = m_marks.at(index);
        CleanCategory chosen = category;
        chosen.expanded = false;
        chosen.items = {};
        chosen.items.reserve(marks.count(true));
        for (qsizetype i = 0; i < marks.size(); ++i) {
            if (i % itemsPerCheck == 0 && stopRequested)
                return {};
            if (marks.testBit(i))
                chosen.items.append(checkedCopy(category.items.at(i)));
        }
        records.categories.append(chosen);
    }
    return records;
}

QString formatSize(qint64 bytes)
{
    if (bytes < 0)
        return QCoreApplication::translate("formatSize", "0 B");
    if (bytes >= gibi)
        return QCoreApplication::translate("formatSize", "%1 GB").arg(formatNumber(bytes, gibi, 2));
    if (bytes >= mebi)
        return QCoreApplication::translate("formatSize", "%1 MB").arg(formatNumber(bytes, mebi, 1));
    if (bytes < kibi)
        return QCoreApplication::translate("formatSize", "%1 B").arg(bytes);
    return QCoreApplication::translate("formatSize", "%1 KB").arg(formatNumber(bytes, kibi, 1));
}
