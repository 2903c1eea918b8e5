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

} // namespace

CleanItem::CleanItem(const QString &itemName, const QString &itemPath, qint64 itemSize)
    : name(sharedName(itemName, itemPath))
    , path(itemPath)
    , size(itemSize)
{
}

int CleanCategory::checkedCount() const
{
    return static_cast<int>(std::count_if(items.begin(), items.end(),
                                          [](const CleanItem &item) { return item.checked; }));
}

qint64 CleanCategory::checkedSize() const
{
    return std::accumulate(
        items.begin(), items.end(), qint64(0),
        [](qint64 sum, const CleanItem &item) { return item.checked ? sum + item.size : sum; });
}

qint64 CleanCategory::totalSize() const
{
    return std::accumulate(items.begin(), items.end(), qint64(0),
                           [](qint64 sum, const CleanItem &item) { return sum + item.size; });
}

Qt::CheckState CleanCategory::checkState() const
{
    if (!checked)
        return Qt::Unchecked;
    const qsizetype count = checkedCount();
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

int ScanResult::checkedCount() const
{
    int count = 0;
    for (const CleanCategory &category : categories) {
        if (category.checked)
            count += category.checkedCount();
    }
    return count;
}

qint64 ScanResult::checkedSize() const
{
    qint64 size = 0;
    for (const CleanCategory &category : categories) {
        if (category.checked)
            size += category.checkedSize();
    }
    return size;
}

ScanResult ScanResult::checkedOnly() const
{
    ScanResult selection;
    selection.scanTime = scanTime;
    for (const CleanCategory &category : categories) {
        if (!category.checked)
            continue;
        CleanCategory chosen = category;
        chosen.expanded = false;
        chosen.items = {};
        chosen.items.reserve(category.items.size());
        std::copy_if(category.items.begin(), category.items.end(), std::back_inserter(chosen.items),
                     [](const CleanItem &item) { return item.checked; });
        selection.categories.append(chosen);
    }
    return selection;
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
