#include "restorecommand.h"

#include "output.h"
#include "registrybackup.h"
#include "registryrestore.h"
#include "text.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

QString asText(const QList<RegistryRestore::Outcome> &outcomes, qsizetype restored)
{
    QString text;
    for (const RegistryRestore::Outcome &outcome : outcomes) {
        text += (outcome.isRestored ? "Restored: "_L1 : "Not restored: "_L1)
            + singleLine(outcome.entry);
        if (!outcome.isRestored)
            text += " - "_L1 + singleLine(outcome.error);
        text += u'\n';
    }
    text += u"Restored %1 keys and values; %2 failed.\n"_s.arg(
        QString::number(restored), QString::number(outcomes.size() - restored));
    return text;
}

QJsonObject asObject(const RegistryRestore::Outcome &outcome)
{
    return {{u"entry"_s, outcome.entry},
            {u"restored"_s, outcome.isRestored},
            {u"error"_s, outcome.error}};
}

QJsonObject asJson(const QList<RegistryRestore::Outcome> &outcomes, qsizetype restored)
{
    return {{u"restoredCount"_s, restored},
            {u"failedCount"_s, outcomes.size() - restored},
            {u"entries"_s, jsonArray(outcomes, asObject)}};
}

} // namespace

ExitStatus restore(const Invocation &invocation)
{
    const QString path = invocation.arguments().constFirst();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(u"%1 cannot be read: %2"_s.arg(path, file.errorString()));
    const std::optional<QString> text = RegistryBackup::decode(file.readAll());
    QString error = u"it ends in the middle of a character"_s;
    const auto keys = text ? RegistryRestore::parse(*text, error) : std::nullopt;
    if (!keys)
        return refuse(u"%1 is damaged, nothing was restored: %2"_s.arg(path, error));

    platform::Registry registry;
    const QList<RegistryRestore::Outcome> outcomes = RegistryRestore::restore(registry, *keys);
    const auto restored =
        std::count_if(outcomes.begin(), outcomes.end(),
                      [](const RegistryRestore::Outcome &outcome) { return outcome.isRestored; });
    return printReport(
        invocation, [&] { return asJson(outcomes, restored); },
        [&] { return asText(outcomes, restored); },
        restored == outcomes.size() ? Success : SomeFailed);
}

} // namespace cli
