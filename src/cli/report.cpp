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

void writeCategory(cli::JsonWriter &json, const CleanCategory &category, Items items)
{
    json.member("id"_L1, category.id);
    json.member("name"_L1, category.name);
    json.member("description"_L1, category.description);
    json.member("checked"_L1, category.checked);
    json.member("riskLevel"_L1, category.riskLevel);
    json.member("totalSize"_L1, category.totalSize());
    json.member("checkedCount"_L1, category.checkedCount());
    if (items == Items::Listed)
        json.array("items"_L1, category.items, itemAsJson);
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

void writeScan(cli::JsonWriter &json, const Subject &subject, const ScanResult &result, Items items)
{
    json.member("engine"_L1, subject.engine);
    json.member("scanTime"_L1, timeStamp(result.scanTime));
    json.member("totalCount"_L1, result.totalCount());
    json.member("totalSize"_L1, result.totalSize());
    json.member("checkedCount"_L1, result.checkedCount());
    json.member("checkedSize"_L1, result.checkedSize());
    json.array("categories"_L1, result.categories,
               [items](cli::JsonWriter &writer, const CleanCategory &category) {
                   writeCategory(writer, category, items);
               });
}

void writeScan(QTextStream &stream, const Subject &subject, const ScanResult &result, Items items)
{
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
}

void writeClean(cli::JsonWriter &json, const Subject &subject, const CleanOutcome &outcome)
{
    json.member("engine"_L1, subject.engine);
    json.member("cleanedCount"_L1, outcome.cleanedCount);
    json.member("cleanedSize"_L1, outcome.cleanedSize);
    json.member("failedCount"_L1, outcome.failures.size());
    json.array("failures"_L1, outcome.failures, failureAsJson);
}

void writeClean(QTextStream &stream, const Subject &subject, const CleanOutcome &outcome)
{
    for (const CleanFailure &failure : outcome.failures)
        stream << "Not cleaned: " << singleLine(failure.path) << " - " << singleLine(failure.reason)
               << '\n';
    stream << "Cleaned " << outcome.cleanedCount << " items";
    if (subject.unit == Unit::Bytes)
        stream << ", freed " << formatSize(outcome.cleanedSize);
    stream << "; " << outcome.failures.size() << " failed.\n";
}

} // namespace report
