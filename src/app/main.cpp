#include "appinfo.h"
#include "application.h"
#include "hardening.h"
#include "language.h"

#include <QApplication>
#include <QFont>
#include <QTranslator>

using namespace Qt::StringLiterals;

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

    QFont font(u"Segoe UI"_s, 10);
    font.setStyleStrategy(QFont::PreferAntialias);
    QApplication::setFont(font);

    Application::instance()->initialize();
    Application::instance()->showMainWindow();
    return QApplication::exec();
}
