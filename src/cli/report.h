#pragma once

#include "cleanengine.h"
#include "scanresult.h"

#include <QString>

class QTextStream;

namespace cli {
class JsonWriter;
}

/// Formats the results of a scan and of a clean for standard output, in the same way for every
/// engine.
namespace report {

/// Whether a report lists the items of the categories.
enum class Items { Omitted, Listed };
enum class Unit { Bytes, Entries }; ///< entries have no size and are only counted

/// What a report is about.
struct Subject {
    QString engine; ///< as the command line names it
    Unit unit = Unit::Bytes;
};

/// Writes @p result as JSON. The members have the names of the fields of the records.
void writeScan(cli::JsonWriter &json, const Subject &subject, const ScanResult &result,
               Items items);
/// Writes @p result as text for people: one line for each category and, if listed, one for each
/// item.
void writeScan(QTextStream &stream, const Subject &subject, const ScanResult &result, Items items);

/// The result of a clean.
struct CleanOutcome {
    qint64 cleanedSize = 0; ///< bytes
    int cleanedCount = 0;
    QList<CleanFailure> failures;
};

void writeClean(cli::JsonWriter &json, const Subject &subject, const CleanOutcome &outcome);
void writeClean(QTextStream &stream, const Subject &subject, const CleanOutcome &outcome);

} // namespace report
