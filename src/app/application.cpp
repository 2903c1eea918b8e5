#include "application.h"

#include "appinfo.h"
#include "junkcleaner.h"
#include "logger.h"
#include "mainwindow.h"
#include "settingsguard.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

Application *Application::instance()
{
    static auto *const application = new Application;
    return application;
}

Application::Application() = default;

Application::~Application() = default;

void Application::initialize()
{
    setAsideDamagedSettings(appinfo::name + ".ini"_L1);
    m_settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                             appinfo::organisation, appinfo::name);

    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(dataFolder + "/logs"_L1);
    QDir().mkpath(dataFolder + "/backups"_L1);
    Logger::instance().init(dataFolder + "/logs"_L1);
    Logger::instance().info(u"Application initializing..."_s);

    m_junkCleaner = std::make_unique<JunkCleaner>();
    m_junkCleaner->loadRules(u":/rules/junk_rules.json"_s);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Application::stopEngines);

    Logger::instance().info(u"Application initialized successfully"_s);
}

void Application::showMainWindow()
{
    if (!m_mainWindow)
        m_mainWindow = std::make_unique<MainWindow>();
    m_mainWindow->show();
}

void Application::stopEngines()
{
    m_junkCleaner->cancel();
    m_junkCleaner->stopAndWait();
}
