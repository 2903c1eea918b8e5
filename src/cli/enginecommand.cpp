#include "enginecommand.h"

#include "browsercleaner.h"
#include "junkcleaner.h"
#include "output.h"
#include "registrycleaner.h"
#include "report.h"
#include "waiting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

/// An engine that is ready to scan, with the names for the command line and the report.
struct Target {
    CleanEngine &engine;
    report::Subject subject;
    QStringList categories; ///< the ids of all categories that it can find
    /// The failures of a clean that are not in the engine's list. They come first in the report.
    std::function<QList<CleanFailure>()> otherFailures = {};
};

/// scan() or clean().
using Action = ExitStatus (*)(const Target &target, const Invocation &invocation);

/// Starts a run, waits for its end and adds it to @p end. Returns false, with a line on standard
/// error, if the system cannot start it.
bool runToEnd(CleanEngine &engine, void (CleanEngine::*start)(), RunEnd &end)
{
    const QMetaObject::Connection connection =
        QObject::connect(&engine, &CleanEngine::errorOccurred, qApp,
                         [](const QString &error) { (void)refuse(error); });
    (engine.*start)();
    end.isCancelled = waitForEnd(engine);
    end.incomplete.add(engine.incomplete());
    QObject::disconnect(connection);
    return engine.state() != CleanEngine::State::Error;
}

ExitStatus scan(const Target &target, const Invocation &invocation)
{
    platform::interrupt::catchRequests();
    RunEnd end;
    if (!runToEnd(target.engine, &CleanEngine::startScan, end))
        return WrongUse;
    const auto items =
        invocation.has(Option::Items) ? report::Items::Listed : report::Items::Omitted;
    const ScanResult &result = std::as_const(target.engine).result();
    return printRun(
        invocation, end,
        [&](JsonWriter &json) { report::writeScan(json, target.subject, result, items); },
        [&](QTextStream &stream) { report::writeScan(stream, target.subject, result, items); });
}

/// Every clean starts here, so --yes is checked in one place only.
ExitStatus clean(const Target &target, const Invocation &invocation)
{
    if (!invocation.has(Option::Yes))
        return refuse(u"cleaning deletes for good; add --yes to allow it"_s);
    const QStringList chosenIds = invocation.values(Option::Category);
    for (const QString &id : chosenIds) {
        if (!target.categories.contains(id))
            return refuse(u"there is no category '%1'"_s.arg(id));
    }
    platform::interrupt::catchRequests();
    CleanEngine &engine = target.engine;
    RunEnd end;
    if (!runToEnd(engine, &CleanEngine::startScan, end))
        return WrongUse;
    for (CleanCategory &category : engine.result().categories)
        category.checked =
            category.checked && (chosenIds.isEmpty() || chosenIds.contains(category.id));

    report::CleanOutcome outcome;
    ExitStatus status = Success;
    end.isCancelled = platform::interrupt::isRequested();
    if (end.isCancelled) {
        // Nothing was cleaned.
    } else if (!runToEnd(engine, &CleanEngine::startClean, end)) {
        status = WrongUse; // what the scan could not read is reported all the same
    } else {
        outcome.cleanedSize = engine.cleanedSize();
        outcome.cleanedCount = engine.cleanedCount();
        if (target.otherFailures)
            outcome.failures = target.otherFailures();
        outcome.failures += engine.failures();
        status = outcome.failures.isEmpty() ? Success : SomeFailed;
    }
    return printRun(
        invocation, end,
        [&](JsonWriter &json) { report::writeClean(json, target.subject, outcome); },
        [&](QTextStream &stream) { report::writeClean(stream, target.subject, outcome); }, status);
}

ExitStatus runWithJunk(Action action, const Invocation &invocation)
{
    JunkCleaner cleaner;
    cleaner.loadRules(u":/rules/junk_rules.json"_s);
    if (cleaner.rules().isEmpty())
        return refuse(u"the junk rules could not be read"_s);
    QStringList categories;
    for (const JunkRule &rule : cleaner.rules())
        categories.append(rule.id);
    return action({cleaner, {u"junk"_s, report::Unit::Bytes}, categories}, invocation);
}

ExitStatus runWithBrowsers(Action action, const Invocation &invocation)
{
    BrowserCleaner cleaner;
    cleaner.loadRules(u":/rules/browser_rules.json"_s);
    if (cleaner.rules().isEmpty())
        return refuse(u"the browser rules could not be read"_s);
    const QList<Browser> allBrowsers = cleaner.browsers();
    for (const QString &name : invocation.values(Option::Browser)) {
        const auto browser =
            std::find_if(allBrowsers.begin(), allBrowsers.end(), [&name](const Browser &candidate) {
                return browsers::isCalled(candidate, name);
            });
        if (browser == allBrowsers.end())
            return refuse(u"there is no browser '%1'"_s.arg(name));
        cleaner.setBrowserEnabled(browser->type, true);
    }
    return action({cleaner, {u"browser"_s, report::Unit::Bytes}, cleaner.categoryIds()},
                  invocation);
}

Target registryTarget(RegistryCleaner &cleaner)
{
    return {cleaner, {u"registry"_s, report::Unit::Entries}, cleaner.categoryIds()};
}

} // namespace

ExitStatus scanJunk(const Invocation &invocation)
{
    return runWithJunk(scan, invocation);
}

ExitStatus scanBrowser(const Invocation &invocation)
{
    return runWithBrowsers(scan, invocation);
}

ExitStatus scanRegistry(const Invocation &invocation)
{
    RegistryCleaner cleaner;
    return scan(registryTarget(cleaner), invocation);
}

ExitStatus cleanJunk(const Invocation &invocation)
{
    return runWithJunk(clean, invocation);
}

ExitStatus cleanBrowser(const Invocation &invocation)
{
    return runWithBrowsers(clean, invocation);
}

ExitStatus cleanRegistry(const Invocation &invocation)
{
    // An empty name counts as none, because no backup would be written to it.
    const QString backup = invocation.value(Option::Backup);
    if (backup.isEmpty() == !invocation.has(Option::NoBackup))
        return refuse(u"say where the removed entries are to be kept with --backup FILE, or "
                      "--no-backup"_s);
    const QFileInfo file(backup);
    if (file.isFile() && !file.isSymLink())
        return refuse(u"there is a file of this name already: %1"_s.arg(backup));
    RegistryCleaner cleaner;
    cleaner.setBackupPath(backup);
    Target target = registryTarget(cleaner);
    target.otherFailures = [&cleaner, &backup]() -> QList<CleanFailure> {
        if (!cleaner.backupError())
            return {};
        return {{backup, u"the backup could not be written: %1"_s.arg(*cleaner.backupError())}};
    };
    return clean(target, invocation);
}

} // namespace cli
