#include "appinfo.h"
#include "application.h"
#include "browsercleaner.h"
#include "junkcleaner.h"
#include "mainwindow.h"
#include "registrycleaner.h"

#include <QCoreApplication>
#include <QSettings>

using namespace Qt::StringLiterals;

// The Application for tests of the window and its pages. It has settings and engines. The program's
// own one also has the log, the data folders and the repair of damaged settings.

/// The engines, settings and window; GUI thread only.
class Application::Private
{
public:
    std::unique_ptr<JunkCleaner> junkCleaner;
    std::unique_ptr<BrowserCleaner> browserCleaner;
    std::unique_ptr<RegistryCleaner> registryCleaner;
    std::unique_ptr<MainWindow> mainWindow;
    std::unique_ptr<QSettings> settings;
};

Application::Application()
    : d(std::make_unique<Private>())
{
}

Application::~Application() = default;

// Never deleted, like the program's own: the window must not be destroyed after the toolkit.
Application *Application::instance()
{
    static auto *const application = new Application;
    return application;
}

void Application::initialize()
{
    d->settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                              appinfo::organisation, appinfo::name);
    d->junkCleaner = std::make_unique<JunkCleaner>();
    d->browserCleaner = std::make_unique<BrowserCleaner>();
    d->registryCleaner = std::make_unique<RegistryCleaner>();
    d->junkCleaner->loadRules(u":/rules/junk_rules.json"_s);
    d->browserCleaner->loadRules(u":/rules/browser_rules.json"_s);
    // The workers must end before the test's home is removed.
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        d->junkCleaner->stopAndWait();
        d->browserCleaner->stopAndWait();
        d->registryCleaner->stopAndWait();
    });
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
