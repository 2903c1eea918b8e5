#include "startupcommand.h"

#include "output.h"
#include "startupmanager.h"
#include "text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cli {

namespace {

QJsonObject asObject(const StartupApp &app)
{
    return {{u"id"_s, app.id},
            {u"name"_s, app.name},
            {u"exePath"_s, app.exePath},
            {u"iconPath"_s, app.iconPath},
            {u"publisher"_s, app.publisher},
            {u"isStartup"_s, app.isStartup}};
}

ExitStatus switchStartup(const Invocation &invocation, bool enable)
{
    const QString name = invocation.arguments().constFirst();
    StartupManager manager;
    const QList<StartupApp> &apps = manager.apps();
    const auto hasName = [&name](const StartupApp &other) {
        return other.name.compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto count = std::count_if(apps.cbegin(), apps.cend(), hasName);
    if (count != 1)
        return refuse((count == 0 ? u"no installed program is called '%1'"_s
                                  : u"several installed programs are called '%1'"_s)
                          .arg(name));
    const StartupApp app = *std::find_if(apps.cbegin(), apps.cend(), hasName);
    // Nothing is done when the state is already right: an entry of that name may belong to another
    // program.
    if (app.isStartup != enable && !manager.setStartup(app, enable))
        return refuse(u"'%1' was not changed: %2"_s.arg(app.name, manager.errorString()));
    const StartupApp changed = *std::find_if(apps.cbegin(), apps.cend(), hasName);
    if (changed.isStartup != enable)
        return refuse(u"'%1' was changed by another program meanwhile"_s.arg(app.name));
    return printReport(
        invocation, [&] { return asObject(changed); },
        [&] {
            return (enable ? u"%1 starts with the session now.\n"_s
                           : u"%1 does not start with the session any more.\n"_s)
                .arg(singleLine(app.name));
        });
}

QString asText(const QList<StartupApp> &apps)
{
    QString text;
    for (const StartupApp &app : apps)
        text += tickMark(app.isStartup ? Qt::Checked : Qt::Unchecked) + singleLine(app.name)
            + "  "_L1 + singleLine(app.exePath) + u'\n';
    return text;
}

} // namespace

ExitStatus listStartup(const Invocation &invocation)
{
    StartupManager manager;
    const QList<StartupApp> &apps = manager.apps();
    return printReport(
        invocation,
        [&] {
            return QJsonObject{{u"apps"_s, jsonArray(apps, asObject)}};
        },
        [&] { return asText(apps); });
}

ExitStatus enableStartup(const Invocation &invocation)
{
    return switchStartup(invocation, true);
}

ExitStatus disableStartup(const Invocation &invocation)
{
    return switchStartup(invocation, false);
}

} // namespace cli
