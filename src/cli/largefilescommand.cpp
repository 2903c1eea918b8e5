#include "largefilescommand.h"

#include "largefilescanner.h"
#include "output.h"
#include "scanresult.h"
#include "text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

QJsonObject asObject(const LargeFileInfo &file)
{
    return {
        {u"path"_s, file.path},
        {u"name"_s, file.name},
        {u"directory"_s, file.directory},
        {u"size"_s, file.size},
        {u"modified"_s, file.modified.toUTC().toString(Qt::ISODate)},
        {u"type"_s, file.type},
    };
}

QJsonObject asJson(const LargeFileScanner &scanner, const QList<LargeFileInfo> &files)
{
    return {
        {u"filesScanned"_s, scanner.filesScanned()},
        {u"totalCount"_s, files.size()},
        {u"totalSize"_s, scanner.totalSize()},
        {u"files"_s, jsonArray(files, asObject)},
    };
}

QString asText(const LargeFileScanner &scanner, const QList<LargeFileInfo> &files)
{
    QString text;
    QTextStream out(&text);
    for (const LargeFileInfo &file : files)
        out << formatSize(file.size).rightJustified(12) << "  "_L1 << singleLine(file.path) << '\n';
    out << "Found %1 large files, %2, among %3 files\n"_L1.arg(
        QString::number(files.size()), formatSize(scanner.totalSize()),
        QString::number(scanner.filesScanned()));
    return text;
}

// Nothing when the text is not a size or is less than one byte.
std::optional<qint64> parseSize(const QString &text)
{
    static constexpr QLatin1StringView units("KMG");
    QString digits = text;
    int shift = 0;
    if (!text.isEmpty()) {
        const qsizetype unit = units.indexOf(text.back().toUpper());
        if (unit >= 0) {
            shift = 10 * (static_cast<int>(unit) + 1);
            digits.chop(1);
        }
    }
    bool isNumber = false;
    const qint64 value = digits.toLongLong(&isNumber);
    if (!isNumber || value < 1 || value > (std::numeric_limits<qint64>::max() >> shift))
        return {};
    return value << shift;
}

} // namespace

ExitStatus listLargeFiles(const Invocation &invocation)
{
    for (const QString &path : invocation.arguments()) {
        if (!QFileInfo(path).isDir())
            return refuse(u"there is no folder '%1'"_s.arg(path));
    }
    LargeFileScanner scanner;
    scanner.setDrives(invocation.arguments());
    const QString minSize = invocation.value(Option::MinSize);
    if (!minSize.isEmpty()) {
        const std::optional<qint64> size = parseSize(minSize);
        if (!size)
            return refuse(u"'%1' is no size such as 100M"_s.arg(minSize));
        scanner.setMinSize(*size);
    }
    QObject::connect(&scanner, &LargeFileScanner::scanFinished, qApp, &QCoreApplication::quit);
    scanner.startScan();
    QCoreApplication::exec();

    QList<LargeFileInfo> files = scanner.results();
    std::sort(files.begin(), files.end(),
              [](const LargeFileInfo &left, const LargeFileInfo &right) {
                  return left.size != right.size ? left.size > right.size : left.path < right.path;
              });
    return printReport(
        invocation, [&] { return asJson(scanner, files); }, [&] { return asText(scanner, files); });
}

} // namespace cli
