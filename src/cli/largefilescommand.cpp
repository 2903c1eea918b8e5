#include "largefilescommand.h"

#include "largefilescanner.h"
#include "output.h"
#include "scanresult.h"
#include "sizetext.h"
#include "text.h"
#include "waiting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
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

void writeFiles(JsonWriter &json, const LargeFileScanner &scanner,
                const QList<LargeFileInfo> &files)
{
    json.member("filesScanned"_L1, scanner.filesScanned());
    json.member("totalCount"_L1, files.size());
    json.member("totalSize"_L1, scanner.totalSize());
    json.array("files"_L1, files, asObject);
}

void writeFiles(QTextStream &out, const LargeFileScanner &scanner,
                const QList<LargeFileInfo> &files)
{
    for (const LargeFileInfo &file : files)
        out << formatSize(file.size).rightJustified(12) << "  "_L1 << singleLine(file.path) << '\n';
    out << "Found %1 large files, %2, among %3 files\n"_L1.arg(
        QString::number(files.size()), formatSize(scanner.totalSize()),
        QString::number(scanner.filesScanned()));
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
    bool isStarted = true;
    QObject::connect(&scanner, &LargeFileScanner::errorOccurred, qApp,
                     [&isStarted](const QString &error) {
                         (void)refuse(error);
                         isStarted = false;
                     });
    platform::interrupt::catchRequests();
    scanner.startScan();
    const bool isCancelled = waitForEnd(scanner);
    if (!isStarted)
        return WrongUse;

    QList<LargeFileInfo> files = scanner.results();
    std::sort(files.begin(), files.end(),
              [](const LargeFileInfo &left, const LargeFileInfo &right) {
                  return left.size != right.size ? left.size > right.size : left.path < right.path;
              });
    return printRun(
        invocation, {scanner.incomplete(), isCancelled},
        [&](JsonWriter &json) { writeFiles(json, scanner, files); },
        [&](QTextStream &stream) { writeFiles(stream, scanner, files); });
}

} // namespace cli
