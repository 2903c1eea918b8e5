#include "commands.h"

#include "enginecommand.h"
#include "largefilescommand.h"
#include "restorecommand.h"
#include "startupcommand.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

constexpr OptionInfo optionTable[] = {
    {Option::Items, "items"_L1, {}, "list every item."_L1},
    {Option::Json, "json"_L1, {}, "Print one JSON object."_L1},
    {Option::Yes, "yes"_L1, {}, "really delete."_L1},
    {Option::Category, "category"_L1, "ID"_L1,
     "only this one of the categories that are selected by default; may be repeated."_L1},
    {Option::Backup, "backup"_L1, "FILE"_L1, "first write the entries to this new file."_L1},
    {Option::NoBackup, "no-backup"_L1, {}, "keep no backup."_L1},
    {Option::Browser, "browser"_L1, "NAME"_L1,
     "only this one, such as 'chrome'; may be repeated."_L1},
    {Option::MinSize, "min-size"_L1, "SIZE"_L1,
     "from this size on, such as 64K, 100M (the default) or 2G."_L1},
};

constexpr ArgumentCount noArguments{0, 0};
constexpr ArgumentCount oneArgument{1, 1};
constexpr ArgumentCount oneOrMoreArguments{1, std::numeric_limits<qsizetype>::max()};

constexpr CommandHelp scanHelp{"scan ENGINE"_L1, "lists what could be cleaned; deletes nothing"_L1};
constexpr CommandHelp cleanHelp{"clean ENGINE"_L1,
                                "scans, then deletes what is selected by default"_L1};

constexpr Options scanOptions = Option::Items | Option::Json;
constexpr Options cleanOptions = Option::Json | Option::Yes | Option::Category;

constexpr Command commandTable[] = {
    {"scan junk"_L1, scanHelp, noArguments, scanOptions, scanJunk},
    {"scan browser"_L1, scanHelp, noArguments, scanOptions | Option::Browser, scanBrowser},
    {"scan registry"_L1, scanHelp, noArguments, scanOptions, scanRegistry},
    {"clean junk"_L1, cleanHelp, noArguments, cleanOptions, cleanJunk},
    {"clean browser"_L1, cleanHelp, noArguments, cleanOptions | Option::Browser, cleanBrowser},
    {"clean registry"_L1, cleanHelp, noArguments, cleanOptions | Option::Backup | Option::NoBackup,
     cleanRegistry},
    {"restore"_L1,
     {"restore FILE"_L1, "puts the registry entries of a backup back"_L1},
     oneArgument,
     Option::Json,
     restore},
    {"startup list"_L1,
     {"startup list"_L1, "lists what starts with the session"_L1},
     noArguments,
     Option::Json,
     listStartup},
    {"startup enable"_L1,
     {"startup enable NAME"_L1, "lets an installed program start with the session"_L1},
     oneArgument,
     Option::Json,
     enableStartup},
    {"startup disable"_L1,
     {"startup disable NAME"_L1, "keeps it from starting with the session"_L1},
     oneArgument,
     Option::Json,
     disableStartup},
    {"large-files"_L1,
     {"large-files PATH..."_L1, "lists the large files below, largest first"_L1},
     oneOrMoreArguments,
     Option::Json | Option::MinSize,
     listLargeFiles},
};

} // namespace

std::span<const OptionInfo> options()
{
    return optionTable;
}

std::span<const Command> commands()
{
    return commandTable;
}

} // namespace cli
