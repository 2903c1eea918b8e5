#include "enginecommand.h"

#include "browsercleaner.h"
#include "junkcleaner.h"
#include "output.h"
#include "registrycleaner.h"
#include "report.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

/// Runs the engine's scan to its end.
void scan(CleanEngine &engine)
{
    QObject::connect(&engine, &CleanEngine::scanFinished, qApp, &QCoreApplication::quit);
    engine.startScan();
    QCoreApplication::exec();
}

report::CleanOutcome clean(CleanEngine &engine)
{
    report::CleanOutcome outcome;
    QObject::connect(&engine, &CleanEngine::cleanFinished, qApp,
                     [&outcome](qint64 totalCleaned, int itemsCleaned) {
                         outcome.cleanedSize = totalCleaned;
                         outcome.cleanedCount = itemsCleaned;
                         QCoreApplication::quit();
                     });
    engine.startClean();
    QCoreApplication::exec();
    engine.stopAndWait();
    outcome.failures = engine.failures();
    return outcome;
}

int runScan(CleanEngine &engine, const report::Subject &subject, const EngineOptions &options)
{
    scan(engine);
    const auto items = options.items ? report::Items::Listed : report::Items::Left;
    const ScanResult &result = std::as_const(engine).result();
    return finish(options.json ? report::scanAsJson(subject, result, items)
                               : report::scanAsText(subject, result, items).toLocal8Bit(),
                  Success);
}

report::CleanOutcome runClean(CleanEngine &engine, const EngineOptions &options)
{
    scan(engine);
    if (!options.categories.isEmpty()) {
        for (CleanCategory &category : engine.result().categories)
            category.checked = category.checked && options.categories.contains(category.id);
    }
    return clean(engine);
}

int reportClean(const report::Subject &subject, const report::CleanOutcome &outcome, bool asJson)
{
    return finish(asJson ? report::cleanAsJson(subject, outcome)
                         : report::cleanAsText(subject, outcome).toLocal8Bit(),
                  outcome.failures.isEmpty() ? Success : SomeFailed);
}

// Empty when all of them are known.
QString unknownCategory(const QStringList &wanted, const QStringList &known)
{
    const auto unknown = std::find_if(wanted.begin(), wanted.end(),
                                      [&known](const QString &id) { return !known.contains(id); });
    return unknown == wanted.end() ? QString() : u"there is no category '%1'"_s.arg(*unknown);
}

int runJunk(const QString &command, const EngineOptions &options)
{
    JunkCleaner cleaner;
    cleaner.loadRules(u":/rules/junk_rules.json"_s);
    if (cleaner.rules().isEmpty())
        return refuse(u"the junk rules could not be read"_s);
    QStringList known;
    for (const JunkRule &rule : cleaner.rules())
        known.append(rule.id);
    if (const QString error = unknownCategory(options.categories, known); !error.isEmpty())
        return refuse(error);
    const report::Subject subject{u"junk"_s, report::Unit::Bytes};
    if (command == "scan"_L1)
        return runScan(cleaner, subject, options);
    return reportClean(subject, runClean(cleaner, options), options.json);
}

// By its id ("google_chrome"), its name ("Google Chrome") or a word of that ("chrome").
bool isCalled(const Browser &browser, const QString &name)
{
    const QString id = name.toLower().replace(u' ', u'_');
    return browser.id == id || browser.id.split(u'_').contains(id);
}

int runBrowser(const QString &command, const EngineOptions &options)
{
    BrowserCleaner cleaner;
    cleaner.loadRules(u":/rules/browser_rules.json"_s);
    if (cleaner.rules().isEmpty())
        return refuse(u"the browser rules could not be read"_s);
    const QList<Browser> browsers = cleaner.browsers();
    for (const QString &name : options.browsers) {
        const auto browser =
            std::find_if(browsers.begin(), browsers.end(),
                         [&name](const Browser &candidate) { return isCalled(candidate, name); });
        if (browser == browsers.end())
            return refuse(u"there is no browser '%1'"_s.arg(name));
        cleaner.setBrowserEnabled(browser->type, true);
    }
    QStringList known;
    for (const Browser &browser : browsers) {
        for (const BrowserRule &rule : cleaner.rules())
            known.append(browser.id + u'_' + rule.id);
    }
    if (const QString error = unknownCategory(options.categories, known); !error.isEmpty())
        return refuse(error);
    const report::Subject subject{u"browser"_s, report::Unit::Bytes};
    if (command == "scan"_L1)
        return runScan(cleaner, subject, options);
    return reportClean(subject, runClean(cleaner, options), options.json);
}

int runRegistry(const QString &command, const EngineOptions &options)
{
    RegistryCleaner cleaner;
    if (const QString error = unknownCategory(options.categories, cleaner.categoryIds());
        !error.isEmpty())
        return refuse(error);
    const report::Subject subject{u"registry"_s, report::Unit::Entries};
    if (command == "scan"_L1)
        return runScan(cleaner, subject, options);
    if (options.backup.isEmpty() == !options.noBackup)
        return refuse(u"say where the removed entries are to be kept with --backup FILE, or "
                      "--no-backup"_s);
    const QFileInfo backup(options.backup);
    if (backup.isFile() && !backup.isSymLink())
        return refuse(u"there is a file of this name already: %1"_s.arg(options.backup));
    cleaner.setBackupPath(options.backup);
    report::CleanOutcome outcome = runClean(cleaner, options);
    if (cleaner.backupError())
        outcome.failures.prepend(
            {options.backup, u"the backup could not be written: %1"_s.arg(*cleaner.backupError())});
    return reportClean(subject, outcome, options.json);
}

} // namespace

int runEngine(const QString &command, const QString &engine, const EngineOptions &options)
{
    if (command == "scan"_L1 && (options.yes || !options.categories.isEmpty()))
        return refuse(u"--yes and --category go with 'clean'"_s);
    if (command == "clean"_L1 && options.items)
        return refuse(u"--items goes with 'scan'"_s);
    if ((options.noBackup || !options.backup.isEmpty())
        && (command != "clean"_L1 || engine != "registry"_L1))
        return refuse(u"--backup and --no-backup go with 'clean registry'"_s);
    if (!options.browsers.isEmpty() && engine != "browser"_L1)
        return refuse(u"--browser goes with 'scan browser' and 'clean browser'"_s);
    if (engine != "junk"_L1 && engine != "browser"_L1 && engine != "registry"_L1)
        return refuse(u"there is no engine '%1'"_s.arg(engine));
    if (command == "clean"_L1 && !options.yes)
        return refuse(u"cleaning deletes for good: say so with --yes"_s);
    if (engine == "junk"_L1)
        return runJunk(command, options);
    return engine == "browser"_L1 ? runBrowser(command, options) : runRegistry(command, options);
}

} // namespace cli
