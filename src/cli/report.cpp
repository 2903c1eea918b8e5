#include "report.h"

#include "output.h"
#include "text.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace report {

namespace {

QJsonObject itemAsJson(const CleanItem &item)
{
    return {
        {u"name"_s, item.name},
        {u"path"_s, item.path},
        {u"size"_s, item.size},
        {u"checked"_s, item.checked},
        {u"riskLevel"_s, item.riskLevel},
        {u"description"_s, item.description},
        {u"isDirectory"_s, item.isDirectory},
        {u"registryRoot"_s, item.registryRoot},
        {u"registryKey"_s, item.registryKey},
    };
}

QJsonObject categoryAsJson(const CleanCategory &category, Items items)
{
    QJsonObject object{
        {u"id"_s, category.id},
        {u"name"_s, category.name},
        {u"description"_s, category.description},
        {u"checked"_s, category.checked},
        {u"riskLevel"_s, category.riskLevel},
        {u"totalSize"_s, category.totalSize()},
        {u"checkedCount"_s, category.checkedCount()},
    };
    if (items == Items::Listed)
        object.insert("items"_L1, cli::jsonArray(category.items, itemAsJson));
    return object;
}

QJsonObject failureAsJson(const CleanFailure &failure)
{
    return {{u"path"_s, failure.path}, {u"reason"_s, failure.reason}};
}

QString timeStamp(const QDateTime &time)
{
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
}

QString riskWord(int level)
{
    return level == HighRisk ? u"high risk"_s : level == MediumRisk ? u"medium risk"_s : QString();
}

void writeItem(QTextStream &stream, const CleanItem &item, const CleanCategory &category, Unit unit)
{
    if (unit == Unit::Entries) {
        stream << singleLine(item.registryRoot + u'\\' + item.registryKey) << "  "
               << singleLine(item.description) << '\n';
        return;
    }
    stream << formatSize(item.size) << "  " << singleLine(item.path);
    if (item.riskLevel > category.riskLevel)
        stream << " (" << riskWord(item.riskLevel) << ')';
    if (!item.description.isEmpty())
        stream << " - " << singleLine(item.description);
    stream << '\n';
}

} // namespace

QJsonObject scanAsJson(const Subject &subject, const ScanResult &result, Items items)
{
    const auto category = [items](const CleanCategory &found) {
        return categoryAsJson(found, items);
    };
    return {
        {u"engine"_s, subject.engine},
        {u"scanTime"_s, timeStamp(result.scanTime)},
        {u"totalCount"_s, result.totalCount()},
        {u"totalSize"_s, result.totalSize()},
        {u"checkedCount"_s, result.checkedCount()},
        {u"checkedSize"_s, result.checkedSize()},
        {u"categories"_s, cli::jsonArray(result.categories, category)},
    };
}

QString scanAsText(const Subject &subject, const ScanResult &result, Items items)
{
    QString text;
    QTextStream stream(&text);
    const bool hasSizes = subject.unit == Unit::Bytes;
    for (const CleanCategory &category : result.categories) {
        const Qt::CheckState state = category.checkState();
        stream << cli::tickMark(state);
        stream << qSetFieldWidth(32) << Qt::left << singleLine(category.name);
        stream << qSetFieldWidth(9) << Qt::right << category.items.size() << qSetFieldWidth(0)
               << " items  ";
        if (hasSizes)
            stream << qSetFieldWidth(11) << Qt::right << formatSize(category.totalSize())
                   << qSetFieldWidth(0);
        stream << "  " << singleLine(category.id);
        if (category.riskLevel > LowRisk)
            stream << " (" << riskWord(category.riskLevel) << ')';
        stream << '\n';
        if (items == Items::Omitted)
            continue;
        for (const CleanItem &item : category.items) {
            // Each item has its own tick box only when the items of the category differ.
            const bool isPartial = state == Qt::PartiallyChecked;
            stream << (isPartial ? "  " : "      ")
                   << (isPartial ? cli::tickMark(item.checked ? Qt::Checked : Qt::Unchecked)
                                 : QString());
            writeItem(stream, item, category, subject.unit);
        }
    }
    const auto writeTotal = [&](int count, qint64 size) {
        stream << count << " items";
        if (hasSizes)
            stream << ", " << formatSize(size);
    };
    stream << "Found ";
    writeTotal(result.totalCount(), result.totalSize());
    stream << "; selected ";
    writeTotal(result.checkedCount(), result.checkedSize());
    stream << ".\n";
    return text;
}

QJsonObject cleanAsJson(const Subject &subject, const CleanOutcome &outcome)
{
    return {
        {u"engine"_s, subject.engine},
        {u"cleanedCount"_s, outcome.cleanedCount},
        {u"cleanedSize"_s, outcome.cleanedSize},
        {u"failedCount"_s, outcome.failures.size()},
        {u"failures"_s, cli::jsonArray(outcome.failures, failureAsJson)},
    };
}

QString cleanAsText(const Subject &subject, const CleanOutcome &outcome)
{
    QString text;
    QTextStream stream(&text);
    for (const CleanFailure &failure : outcome.failures)
        stream << "Not cleaned: " << singleLine(failure.path) << " - " << singleLine(failure.reason)
               << '\n';
    stream << "Cleaned " << outcome.cleanedCount << " items";
    if (subject.unit == Unit::Bytes)
        stream << ", freed " << formatSize(outcome.cleanedSize);
    stream << "; " << outcome.failures.size() << " failed.\n";
    return text;
}

} // namespace report
