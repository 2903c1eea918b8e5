#include "fuzzing.h"

#include "commandline.h"
#include "commands.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

// A command line is a command with arguments and options that it takes, a text, or a refusal.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 1;
    static char name[] = "sweepwise-cli";
    static char *names[] = {name, nullptr};
    static const QCoreApplication application(count, names);
    QStringList arguments{u"sweepwise-cli"_s};
    for (const QByteArray &word : fuzzing::bytesOf(data, size).split('\n'))
        arguments.append(QString::fromUtf8(word));
    const cli::ParsedLine line = cli::parseCommandLine(arguments);
    const int answers =
        int(line.command != nullptr) + int(line.text.has_value()) + int(!line.refusal.isEmpty());
    fuzzing::expect(answers == 1, "there is one answer");
    if (!line.command)
        return 0;
    const qsizetype given = line.invocation.arguments().size();
    fuzzing::expect(given >= line.command->arguments.minimum
                        && given <= line.command->arguments.maximum,
                    "the command takes so many arguments");
    for (const cli::OptionInfo &option : cli::options()) {
        if (line.invocation.has(option.option))
            fuzzing::expect(line.command->options.testFlag(option.option),
                            "the command takes the option");
    }
    return 0;
}
