#include "appinfo.h"
#include "commandline.h"
#include "hardening.h"
#include "idledispatcher.h"
#include "output.h"

#include <QCoreApplication>

namespace {

// The engines write what they do to the debug output. Here that would mix with the report, so it is
// dropped.
void writeWarningsOnly(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        cli::writeError(message + u'\n');
}

} // namespace

int main(int argc, char *argv[])
{
    platform::hardenProcess();
    QCoreApplication::setEventDispatcher(new IdleDispatcher); // the application owns it
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setApplicationVersion(appinfo::version);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    qInstallMessageHandler(writeWarningsOnly);
    return cli::runCommandLine(QCoreApplication::arguments());
}
