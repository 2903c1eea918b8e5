#include "restorecommand.h"

#include "interrupt.h"
#include "output.h"
#include "readfile.h"
#include "registrybackup.h"
#include "registryrestore.h"
#include "text.h"

#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

constexpr qint64 maximumSize = 1 << 30; // bytes, more than any registry has

void writeOutcomes(QTextStream &stream, const QList<RegistryRestore::Outcome> &outcomes,
                   qsizetype restored)
{
    for (const RegistryRestore::Outcome &outcome : outcomes) {
        stream << (outcome.isRestored ? "Restored: " : "Not restored: ")
               << singleLine(outcome.entry);
        if (!outcome.isRestored)
            stream << " - " << singleLine(outcome.error);
        stream << '\n';
    }
    stream << "Restored " << restored << " keys and values; " << outcomes.size() - restored
           << " failed.\n";
}

QJsonObject asObject(const RegistryRestore::Outcome &outcome)
{
    return {{u"entry"_s, outcome.entry},
            {u"restored"_s, outcome.isRestored},
            {u"error"_s, outcome.error}};
}

void writeOutcomes(JsonWriter &json, const QList<RegistryRestore::Outcome> &outcomes,
                   qsizetype restored)
{
    json.member("restoredCount"_L1, restored);
    json.member("failedCount"_L1, outcomes.size() - restored);
    json.array("entries"_L1, outcomes, asObject);
}

} // namespace

ExitStatus restore(const Invocation &invocation)
{
    const QString path = invocation.arguments().constFirst();
    QString error;
    const std::optional<QByteArray> bytes = platform::readFile(path, maximumSize, error);
    if (!bytes)
        return refuse(u"%1 cannot be read: %2"_s.arg(path, error));
    const std::optional<QString> text = RegistryBackup::decode(*bytes);
    error = u"it ends in the middle of a character"_s;
    const auto keys = text ? RegistryRestore::parse(*text, error) : std::nullopt;
    if (!keys)
        return refuse(u"%1 is damaged, nothing was restored: %2"_s.arg(path, error));

    platform::interrupt::catchRequests();
    platform::Registry registry;
    const QList<RegistryRestore::Outcome> outcomes =
        RegistryRestore::restore(registry, *keys, platform::interrupt::isRequested());
    const auto restored =
        std::count_if(outcomes.begin(), outcomes.end(),
                      [](const RegistryRestore::Outcome &outcome) { return outcome.isRestored; });
    // A request after the last entry comes too late to cancel anything.
    const bool isCancelled =
        std::any_of(outcomes.begin(), outcomes.end(),
                    [](const RegistryRestore::Outcome &outcome) { return outcome.isCancelled; });
    return printRun(
        invocation, {registry.readFailures(), isCancelled},
        [&](JsonWriter &json) { writeOutcomes(json, outcomes, restored); },
        [&](QTextStream &stream) { writeOutcomes(stream, outcomes, restored); },
        restored == outcomes.size() ? Success : SomeFailed);
}

} // namespace cli
