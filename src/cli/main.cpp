#include "appinfo.h"
#include "commandline.h"
#include "hardening.h"
#include "output.h"

#include <QCoreApplication>

namespace {

// The engines tell the debug output what they do; here that would mix with the report.
void dropDebugOutput(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        cli::complain(message + u'\n');
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
    return cli::runCommandLine(QCoreApplication::arguments());
}
