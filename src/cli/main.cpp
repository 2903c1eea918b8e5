#include "appinfo.h"
#include "junkcleaner.h"
#include "logger.h"
#include "process.h"
#include "report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

enum ExitStatus { Success = 0, SomeFailed = 1, WrongUse = 2 };

void complain(const QString &text)
{
    std::fputs(qPrintable(text), stderr);
}

/// Writes a whole report; false when it did not get out, for instance because the disk is full.
bool print(const QByteArray &report)
{
    const auto size = static_cast<std::size_t>(report.size());
    return std::fwrite(report.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

int refuse(const QString &message)
{
    complain("sweepwise-cli: "_L1 + message + "\nSee sweepwise-cli --help.\n"_L1);
    return WrongUse;
}

// The engines tell the debug output what they do; here that would mix with the report.
void dropDebugOutput(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        complain(message + u'\n');
}

struct Options {
    bool items = false;
    bool json = false;
    bool yes = false;
    QStringList categories;
};

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

int runScan(CleanEngine &engine, const QString &name, const Options &options)
{
    scan(engine);
    const auto items = options.items ? report::Items::Listed : report::Items::Left;
    const ScanResult &result = std::as_const(engine).result();
    const QByteArray text = options.json ? report::scanAsJson(name, result, items)
                                         : report::scanAsText(result, items).toLocal8Bit();
    return print(text) ? Success : refuse(u"the report could not be written"_s);
}

int runClean(CleanEngine &engine, const QString &name, const Options &options)
{
    if (!options.yes)
        return refuse(u"cleaning deletes files for good: say so with --yes"_s);
    scan(engine);
    if (!options.categories.isEmpty()) {
        for (CleanCategory &category : engine.result().categories)
            category.checked = category.checked && options.categories.contains(category.id);
    }
    const report::CleanOutcome outcome = clean(engine);
    const QByteArray text = options.json ? report::cleanAsJson(name, outcome)
                                         : report::cleanAsText(outcome).toLocal8Bit();
    if (!print(text))
        return refuse(u"the report could not be written"_s);
    return outcome.failures.isEmpty() ? Success : SomeFailed;
}

int runJunk(const QString &command, const Options &options)
{
    JunkCleaner cleaner;
    cleaner.loadRules(u":/rules/junk_rules.json"_s);
    if (cleaner.rules().isEmpty())
        return refuse(u"the junk rules could not be read"_s);
    for (const QString &id : options.categories) {
        const auto &rules = cleaner.rules();
        if (std::none_of(rules.begin(), rules.end(),
                         [&id](const JunkRule &rule) { return rule.id == id; }))
            return refuse(u"there is no category '%1'"_s.arg(id));
    }
    return command == "scan"_L1 ? runScan(cleaner, u"junk"_s, options)
                                : runClean(cleaner, u"junk"_s, options);
}

int run(const QStringList &words, const Options &options)
{
    if (words.size() != 2)
        return refuse(u"a command and an engine are wanted, such as 'scan junk'"_s);
    const QString &command = words.at(0);
    if (command != "scan"_L1 && command != "clean"_L1)
        return refuse(u"there is no command '%1'"_s.arg(command));
    if (words.at(1) != "junk"_L1)
        return refuse(u"there is no engine '%1'"_s.arg(words.at(1)));
    if (command == "scan"_L1 && (options.yes || !options.categories.isEmpty()))
        return refuse(u"--yes and --category go with 'clean'"_s);
    if (command == "clean"_L1 && options.items)
        return refuse(u"--items goes with 'scan'"_s);
    return runJunk(command, options);
}

} // namespace

int main(int argc, char *argv[])
{
    platform::hardenProcess();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setApplicationVersion(appinfo::version);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    qInstallMessageHandler(dropDebugOutput);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Finds clutter and removes it, without a window.\n\n"
        "  scan junk    lists what could be cleaned; deletes nothing\n"
        "  clean junk   scans, then deletes what is selected by default\n\n"
        "Exit status: 0 success, 1 some items could not be cleaned, 2 wrong use or failure."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption items(u"items"_s, u"scan: list every item."_s);
    const QCommandLineOption json(u"json"_s, u"Print one JSON object."_s);
    const QCommandLineOption yes(u"yes"_s, u"clean: really delete."_s);
    const QCommandLineOption category(
        u"category"_s,
        u"clean: only this one of the categories that are selected by default; may be repeated."_s,
        u"ID"_s);
    parser.addOptions({items, json, yes, category});
    parser.addPositionalArgument(u"command"_s, u"scan or clean"_s);
    parser.addPositionalArgument(u"engine"_s, u"junk"_s);

    if (!parser.parse(QCoreApplication::arguments()))
        return refuse(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp(Success);
    if (parser.isSet(version))
        parser.showVersion();

    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    Logger::instance().init(dataFolder + "/logs"_L1);
    return run(
        parser.positionalArguments(),
        {parser.isSet(items), parser.isSet(json), parser.isSet(yes), parser.values(category)});
}
