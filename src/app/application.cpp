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

/// What the application owns. Members are destroyed in reverse order: the window before its
/// engines.
class Application::Private
{
public:
    void stopEngines() const
    {
        const std::array<CleanEngine *, 3> engines{junkCleaner.get(), browserCleaner.get(),
                                                   registryCleaner.get()};
        for (CleanEngine *engine : engines)
            engine->cancel();
        for (CleanEngine *engine : engines)
            engine->stopAndWait();
    }

    std::unique_ptr<JunkCleaner> junkCleaner;
    std::unique_ptr<BrowserCleaner> browserCleaner;
    std::unique_ptr<RegistryCleaner> registryCleaner;
    std::unique_ptr<MainWindow> mainWindow;
    std::unique_ptr<QSettings> settings;
};

Application *Application::instance()
{
    static auto *const application = new Application;
    return application;
}

Application::Application()
    : d(std::make_unique<Private>())
{
}

Application::~Application() = default;

void Application::initialize()
{
    setAsideDamagedSettings(appinfo::name + ".ini"_L1);
    d->settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                              appinfo::organisation, appinfo::name);

    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(dataFolder + "/logs"_L1);
    QDir().mkpath(dataFolder + "/backups"_L1);
    Logger::instance().init(dataFolder + "/logs"_L1);
    Logger::instance().info(u"Application initializing..."_s);

    d->junkCleaner = std::make_unique<JunkCleaner>();
    d->browserCleaner = std::make_unique<BrowserCleaner>();
    d->registryCleaner = std::make_unique<RegistryCleaner>();
    d->junkCleaner->loadRules(u":/rules/junk_rules.json"_s);
    d->browserCleaner->loadRules(u":/rules/browser_rules.json"_s);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { d->stopEngines(); });

    Logger::instance().info(u"Application initialized successfully"_s);
}

void Application::showMainWindow()
{
    if (!d->mainWindow)
        d->mainWindow = std::make_unique<MainWindow>();
    d->mainWindow->show();
}

JunkCleaner *Application::junkCleaner() const
{
    return d->junkCleaner.get();
}

BrowserCleaner *Application::browserCleaner() const
{
    return d->browserCleaner.get();
}

RegistryCleaner *Application::registryCleaner() const
{
    return d->registryCleaner.get();
}

MainWindow *Application::mainWindow() const
{
    return d->mainWindow.get();
}

QSettings *Application::settings() const
{
    return d->settings.get();
}
