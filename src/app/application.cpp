#include "application.h"

#include "appinfo.h"
#include "browsercleaner.h"
#include "junkcleaner.h"
#include "logger.h"
#include "mainwindow.h"
#include "registrycleaner.h"
#include "settingsguard.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// The key as it comes back from the file.
QString keyInFile(QLatin1StringView key)
{
    QString name = key;
    if (name.startsWith("general/"_L1))
        name[0] = u'G';
    return name;
}

} // namespace

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
    m_browserCleaner = std::make_unique<BrowserCleaner>();
    m_registryCleaner = std::make_unique<RegistryCleaner>();
    m_junkCleaner->loadRules(u":/rules/junk_rules.json"_s);
    m_browserCleaner->loadRules(u":/rules/browser_rules.json"_s);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Application::stopEngines);

    Logger::instance().info(u"Application initialized successfully"_s);
}

void Application::showMainWindow()
{
    if (!m_mainWindow)
        m_mainWindow = std::make_unique<MainWindow>();
    m_mainWindow->show();
}

bool Application::option(QLatin1StringView key, bool otherwise) const
{
    return m_settings->value(key, m_settings->value(keyInFile(key), otherwise)).toBool();
}

void Application::setOption(QLatin1StringView key, bool on)
{
    m_settings->remove(keyInFile(key));
    m_settings->setValue(key, on);
}

void Application::stopEngines()
{
    const std::array<CleanEngine *, 3> engines{m_junkCleaner.get(), m_browserCleaner.get(),
                                               m_registryCleaner.get()};
    for (CleanEngine *engine : engines)
        engine->cancel();
    for (CleanEngine *engine : engines)
        engine->stopAndWait();
}
