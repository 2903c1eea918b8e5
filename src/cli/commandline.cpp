#include "commandline.h"

#include "commands.h"
#include "logger.h"
#include "output.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

QStringList wordsOf(const Command &command)
{
    return QString(command.name).split(u' ');
}

QStringList firstWords()
{
    QStringList words;
    for (const Command &command : commands())
        words.append(wordsOf(command).constFirst());
    words.removeDuplicates();
    return words;
}

/// The second words of the commands that begin with @p first.
QStringList wordsAfter(const QString &first)
{
    QStringList words;
    for (const Command &command : commands()) {
        if (wordsOf(command).constFirst() == first)
            words += wordsOf(command).sliced(1);
    }
    return words;
}

/// The names of the commands that accept the option. If all commands with the same first word
/// accept it, that word stands for them.
QStringList commandsTaking(Option option)
{
    QStringList names;
    for (const Command &command : commands()) {
        if (!command.options.testFlag(option))
            continue;
        const QString first = wordsOf(command).constFirst();
        const bool isForAll = std::all_of(
            commands().begin(), commands().end(), [&first, option](const Command &other) {
                return wordsOf(other).constFirst() != first || other.options.testFlag(option);
            });
        names.append(isForAll ? first : QString(command.name));
    }
    names.removeDuplicates();
    return names;
}

QString programHelp()
{
    QList<CommandHelp> lines;
    qsizetype width = 0;
    for (const Command &command : commands()) {
        if (!lines.isEmpty() && lines.constLast().form == command.help.form)
            continue;
        lines.append(command.help);
        width = std::max(width, command.help.form.size());
    }
    QString text = u"Finds clutter and removes it, without a window.\n\n"_s;
    for (const CommandHelp &line : lines)
        text += "  "_L1 + QString(line.form).leftJustified(width) + "  "_L1 + line.text + u'\n';
    text += "\nEngines: "_L1 + wordsAfter(u"scan"_s).join(", "_L1) + ".\n"_L1;
    return text + "\nExit status:\n"_L1 + exitStatusHelp();
}

QString optionHelp(const OptionInfo &option)
{
    const QStringList names = commandsTaking(option.option);
    return (names == firstWords() ? QString() : names.join(", "_L1) + ": "_L1) + option.help;
}

/// The command whose name begins @p words; null when there is none.
const Command *findCommand(const QStringList &words)
{
    const auto command =
        std::find_if(commands().begin(), commands().end(), [&words](const Command &candidate) {
            const QStringList name = wordsOf(candidate);
            return words.first(std::min(name.size(), words.size())) == name;
        });
    return command == commands().end() ? nullptr : &*command;
}

ParsedLine refused(const QString &reason)
{
    ParsedLine line;
    line.refusal = reason;
    return line;
}

ParsedLine refuseCommand(const QStringList &words)
{
    if (words.isEmpty())
        return refused(u"a command is missing, for example 'scan junk'"_s);
    const QStringList nextWords = wordsAfter(words.constFirst());
    if (nextWords.isEmpty())
        return refused(u"there is no command '%1'"_s.arg(words.constFirst()));
    return refused(
        u"'%1' needs one of these words: %2"_s.arg(words.constFirst(), nextWords.join(", "_L1)));
}

ParsedLine parseCommand(const QCommandLineParser &parser)
{
    const QStringList words = parser.positionalArguments();
    const Command *command = findCommand(words);
    if (!command)
        return refuseCommand(words);
    QMap<Option, QStringList> givenOptions;
    for (const OptionInfo &option : options()) {
        if (!parser.isSet(option.name))
            continue;
        if (!command->options.testFlag(option.option))
            return refused(u"--%1 goes with '%2'"_s.arg(
                option.name, commandsTaking(option.option).join("' and '"_L1)));
        givenOptions.insert(option.option, parser.values(option.name));
    }
    const QStringList arguments = words.sliced(wordsOf(*command).size());
    if (arguments.size() < command->arguments.minimum
        || arguments.size() > command->arguments.maximum)
        return refused(u"the command is used as '%1'"_s.arg(command->help.form));
    ParsedLine line;
    line.command = command;
    line.invocation = {arguments, givenOptions};
    return line;
}

} // namespace

ParsedLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(programHelp());
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    for (const OptionInfo &option : options())
        parser.addOption({option.name, optionHelp(option), option.value});
    parser.addPositionalArgument(u"command"_s, firstWords().join(", "_L1));
    parser.addPositionalArgument(u"argument"_s, u"an engine, a file, folders, or what to do"_s);

    if (!parser.parse(arguments))
        return refused(parser.errorText());
    // The parser adds --help-all by itself and does nothing about it.
    ParsedLine line;
    if (parser.isSet(help) || parser.isSet(u"help-all"_s))
        line.text = parser.helpText();
    else if (parser.isSet(version))
        line.text = u"%1 %2\n"_s.arg(QCoreApplication::applicationName(),
                                     QCoreApplication::applicationVersion());
    else
        return parseCommand(parser);
    return line;
}

ExitStatus runCommandLine(const QStringList &arguments)
{
    const ParsedLine line = parseCommandLine(arguments);
    // What the parser prints itself goes to a message box on Windows, where there is no console.
    if (line.text)
        return printText(*line.text);
    if (!line.command)
        return refuse(line.refusal);
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    Logger::instance().init(dataFolder + "/logs"_L1);
    return line.command->run(line.invocation);
}

} // namespace cli
