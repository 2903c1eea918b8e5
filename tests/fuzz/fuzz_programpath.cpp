#include "fuzzing.h"

#include "pathcheck.h"

namespace {

QString plainProgramPath(const QString &command)
{
    if (command.startsWith(u'"')) {
        const qsizetype end = command.indexOf(u'"', 1);
        return end > 0 ? command.mid(1, end - 1) : command;
    }
    const qsizetype blank = command.indexOf(u' ');
    return blank > 0 ? command.left(blank) : command;
}

} // namespace

// The program of a command line is cut out as plainly as it is laid down, and any text can be
// looked up.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(fuzzing::bytesOf(data, size));
    fuzzing::expect(PathCheck::programPath(text) == plainProgramPath(text), "the program is cut");
    const QString part = PathCheck::quotedPart(text);
    fuzzing::expect(part == (text.startsWith(u'"') ? plainProgramPath(text) : text),
                    "the quoted part is cut");
    static const platform::Registry registry;
    PathCheck check(registry);
    const bool exists = check.exists(text);
    fuzzing::expect(!text.isEmpty() || !exists, "no path does not exist");
    fuzzing::expect(check.exists(text) == exists, "a second look has the same answer");
    return 0;
}
