#include "browsercleaner.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The unticked items in ticked categories of a scan.
QJsonArray findUntickedItems(const ScanResult &result)
{
    QJsonArray list;
    for (const CleanCategory &category : result.categories) {
        for (const CleanItem &item : category.items) {
            if (category.checked && !item.checked)
                list.append(QJsonObject{{u"path"_s, item.path},
                                        {u"riskLevel"_s, item.riskLevel},
                                        {u"description"_s, item.description}});
        }
    }
    return list;
}

} // namespace

/// Cleans the browser profiles in the folders that the environment names. The argument decides
/// whether it cleans the items ticked by default or everything. Prints the result as one JSON
/// object.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QString what = QCoreApplication::arguments().value(1);
    if (argc != 2 || (what != "default"_L1 && what != "everything"_L1)) {
        std::fputs("Usage: clean-browsers default|everything\n", stderr);
        return 2;
    }
    BrowserCleaner cleaner;
    cleaner.loadRules(u":/rules/browser_rules.json"_s);
    QJsonObject outcome;
    QObject::connect(&cleaner, &CleanEngine::scanFinished, &cleaner, [&] {
        outcome.insert("found"_L1, std::as_const(cleaner).result().totalCount());
        outcome.insert("unticked"_L1, findUntickedItems(std::as_const(cleaner).result()));
        if (what == "everything"_L1) {
            for (CleanCategory &category : cleaner.result().categories)
                category.setChecked(true);
        }
        cleaner.startClean();
    });
    QObject::connect(&cleaner, &CleanEngine::cleanFinished, &cleaner, [&](qint64 size, int count) {
        outcome.insert("cleaned"_L1, count);
        outcome.insert("cleanedSize"_L1, size);
        QCoreApplication::quit();
    });
    QObject::connect(&cleaner, &CleanEngine::errorOccurred, &cleaner,
                     [] { QCoreApplication::exit(1); });
    cleaner.startScan();
    if (QCoreApplication::exec() != 0)
        return 1;
    cleaner.stopAndWait();
    QJsonArray failed;
    const QList<CleanFailure> failures = cleaner.failures();
    for (const CleanFailure &failure : failures)
        failed.append(failure.path + ": "_L1 + failure.reason);
    outcome.insert("failed"_L1, failed);
    const QByteArray report = QJsonDocument(outcome).toJson();
    return std::fwrite(report.constData(), 1, static_cast<std::size_t>(report.size()), stdout)
            == static_cast<std::size_t>(report.size())
        ? 0
        : 1;
}
