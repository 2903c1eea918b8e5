#pragma once

#include "cleanengine.h"
#include "scanresult.h"

#include <QJsonObject>
#include <QString>

/// How a scan and a clean are told on standard output: the same shape for every engine.
namespace report {

enum class Items { Omitted, Listed };
enum class Unit { Bytes, Entries }; ///< Entries have no size: they are counted

/// What is told of.
struct Subject {
    QString engine; ///< as the command line names it
    Unit unit = Unit::Bytes;
};

/// @p result with members that are named as the records' fields are.
[[nodiscard]] QJsonObject scanAsJson(const Subject &subject, const ScanResult &result, Items items);
/// @p result as text for people, one line a category and, when listed, one an item.
[[nodiscard]] QString scanAsText(const Subject &subject, const ScanResult &result, Items items);

struct CleanOutcome {
    qint64 cleanedSize = 0; ///< bytes
    int cleanedCount = 0;
    QList<CleanFailure> failures;
};

[[nodiscard]] QJsonObject cleanAsJson(const Subject &subject, const CleanOutcome &outcome);
[[nodiscard]] QString cleanAsText(const Subject &subject, const CleanOutcome &outcome);

} // namespace report
