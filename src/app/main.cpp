#include "appinfo.h"
#include "application.h"
#include "applicationfont.h"
#include "hardening.h"
#include "language.h"

#include <QApplication>
#include <QTranslator>

int main(int argc, char *argv[])
{
    platform::hardenProcess();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(appinfo::name);
    QApplication::setApplicationVersion(appinfo::version);
    QApplication::setOrganizationName(appinfo::organisation);

    static QTranslator translator;
    language::install(translator);

    theme::installApplicationFont();

    Application::instance()->initialize();
    Application::instance()->showMainWindow();
    return QApplication::exec();
}
