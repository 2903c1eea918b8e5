#include "startupcommand.h"

#include "interrupt.h"
#include "output.h"
#include "startupmanager.h"
#include "text.h"

#include <QTextStream>

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

// The list of programs may lack the wanted one, or its state may be unknown.
ExitStatus reportUnread(const Invocation &invocation, const QString &name,
                        const StartupManager &manager)
{
    return printRun(
        invocation, {manager.incomplete()},
        [&name](JsonWriter &json) {
            json.member("name"_L1, name);
            json.member("changed"_L1, false);
        },
        [&name](QTextStream &stream) {
            stream << u"'%1' was not changed.\n"_s.arg(singleLine(name));
        },
        SomeFailed);
}

ExitStatus switchStartup(const Invocation &invocation, bool enable)
{
    const QString name = invocation.arguments().constFirst();
    StartupManager manager;
    const QList<StartupApp> &apps = manager.apps();
    if (!manager.isStartupListRead())
        return reportUnread(invocation, name, manager);
    const auto hasName = [&name](const StartupApp &other) {
        return other.name.compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto count = std::count_if(apps.cbegin(), apps.cend(), hasName);
    if (count == 0 && !manager.incomplete().isEmpty())
        return reportUnread(invocation, name, manager);
    if (count != 1)
        return refuse((count == 0 ? u"no installed program is called '%1'"_s
                                  : u"several installed programs are called '%1'"_s)
                          .arg(name));
    const StartupApp app = *std::find_if(apps.cbegin(), apps.cend(), hasName);
    // From here on the change is carried out as a whole.
    platform::interrupt::catchRequests();
    // Nothing is done when the state is already right: an entry of that name may belong to another
    // program.
    if (app.isStartup != enable && !manager.setStartup(app, enable))
        return refuse(u"'%1' was not changed: %2"_s.arg(app.name, manager.errorString()));
    StartupApp changed = app;
    changed.isStartup = enable;
    const bool isRead = manager.isStartupListRead();
    const auto now = std::find_if(apps.cbegin(), apps.cend(), hasName);
    if (isRead && (now == apps.cend() || now->isStartup != enable))
        return refuse(u"'%1' was changed by another program meanwhile"_s.arg(app.name));
    return printRun(
        invocation, {manager.incomplete()},
        [&](JsonWriter &json) { json.members(asObject(changed)); },
        [&](QTextStream &stream) {
            const char *change = "does not start with the session any more";
            if (!isRead)
                change = "was changed; its state now cannot be read";
            else if (enable)
                change = "starts with the session now";
            stream << singleLine(app.name) << ' ' << change << ".\n";
        });
}

void writeApps(QTextStream &stream, const QList<StartupApp> &apps)
{
    for (const StartupApp &app : apps)
        stream << tickMark(app.isStartup ? Qt::Checked : Qt::Unchecked) << singleLine(app.name)
               << "  " << singleLine(app.exePath) << '\n';
}

} // namespace

ExitStatus listStartup(const Invocation &invocation)
{
    StartupManager manager;
    const QList<StartupApp> &apps = manager.apps();
    return printRun(
        invocation, {manager.incomplete()},
        [&](JsonWriter &json) { json.array("apps"_L1, apps, asObject); },
        [&](QTextStream &stream) { writeApps(stream, apps); });
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
