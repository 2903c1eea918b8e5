#include "appinfo.h"
#include "enginecommand.h"
#include "hardening.h"
#include "largefilescommand.h"
#include "logger.h"
#include "output.h"
#include "restorecommand.h"
#include "startupcommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The engines tell the debug output what they do; here that would mix with the report.
void dropDebugOutput(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        cli::complain(message + u'\n');
}

bool isLeft(const QCommandLineParser &parser, const QList<QCommandLineOption> &options)
{
    return std::none_of(
        options.begin(), options.end(),
        [&parser](const QCommandLineOption &option) { return parser.isSet(option); });
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
        "  scan ENGINE    lists what could be cleaned; deletes nothing\n"
        "  clean ENGINE   scans, then deletes what is selected by default\n"
        "  restore FILE   puts the registry entries of a backup back\n"
        "  startup list, startup enable NAME, startup disable NAME\n"
        "                 what starts with the session\n"
        "  large-files PATH...   lists the large files below, largest first\n\n"
        "Engines: junk, browser, registry.\n"
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
    const QCommandLineOption backup(
        u"backup"_s, u"clean registry: first write the entries to this new file."_s, u"FILE"_s);
    const QCommandLineOption noBackup(u"no-backup"_s, u"clean registry: keep no backup."_s);
    const QCommandLineOption browser(
        u"browser"_s, u"browser: only this one, such as 'chrome'; may be repeated."_s, u"NAME"_s);
    const QCommandLineOption minSize(
        u"min-size"_s, u"large-files: from this size on, such as 64K, 100M (the default) or 2G."_s,
        u"SIZE"_s);
    parser.addOptions({items, json, yes, category, backup, noBackup, browser, minSize});
    parser.addPositionalArgument(u"command"_s, u"scan, clean, restore, startup or large-files"_s);
    parser.addPositionalArgument(u"argument"_s, u"an engine, a file, folders, or what to do"_s);

    if (!parser.parse(QCoreApplication::arguments()))
        return cli::refuse(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp(cli::Success);
    if (parser.isSet(version))
        parser.showVersion();

    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    Logger::instance().init(dataFolder + "/logs"_L1);

    const QStringList words = parser.positionalArguments();
    if (!words.isEmpty() && words.constFirst() == "large-files"_L1) {
        if (!isLeft(parser, {items, yes, category, backup, noBackup, browser}))
            return cli::refuse(u"only --min-size and --json go with 'large-files'"_s);
        return cli::runLargeFiles(words.sliced(1), parser.value(minSize), parser.isSet(json));
    }
    if (parser.isSet(minSize))
        return cli::refuse(u"--min-size goes with 'large-files'"_s);
    if (words.size() >= 2 && words.size() <= 3 && words.at(0) == "startup"_L1) {
        if (!isLeft(parser, {items, yes, category, backup, noBackup, browser}))
            return cli::refuse(u"only --json goes with 'startup'"_s);
        return cli::runStartup(words.at(1), words.value(2), parser.isSet(json));
    }
    if (words.size() != 2)
        return cli::refuse(u"a command and what it is for are wanted, such as 'scan junk'"_s);
    const QString &command = words.at(0);
    if (command == "scan"_L1 || command == "clean"_L1)
        return cli::runEngine(command, words.at(1),
                              {parser.isSet(items), parser.isSet(json), parser.isSet(yes),
                               parser.values(category), parser.value(backup),
                               parser.isSet(noBackup), parser.values(browser)});
    if (command == "restore"_L1) {
        if (!isLeft(parser, {items, yes, category, backup, noBackup, browser}))
            return cli::refuse(u"only --json goes with 'restore'"_s);
        return cli::runRestore(words.at(1), parser.isSet(json));
    }
    return cli::refuse(u"there is no command '%1'"_s.arg(command));
}
