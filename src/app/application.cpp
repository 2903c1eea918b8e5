#include "application.h"

#include "appinfo.h"
#include "browsercleaner.h"
#include "endrequest.h"
#include "junkcleaner.h"
#include "logger.h"
#include "mainwindow.h"
#include "options.h"
#include "ownfile.h"
#include "registrycleaner.h"
#include "settingsfile.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Makes a request to quit final. It watches the events of the application object.
///
/// The toolkit asks every window to close and drops the request when one refuses. The progress
/// dialog of a deletion refuses while the deletion runs, and the main window would hide in the tray
/// and tell the user so. But then the end of the session, a signal or the tray's menu must end the
/// program all the same.
class QuitFilter final : public QObject
{
    Q_DISABLE_COPY_MOVE(QuitFilter)
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Quit || watched != QCoreApplication::instance())
            return QObject::eventFilter(watched, event);
        QCoreApplication::exit();
        return true;
    }
};

} // namespace

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

    /// Writes what has not reached the settings file yet. Nobody destroys the settings, which would
    /// write it.
    void saveSettings() const
    {
        if (!options::save(*settings))
            Logger::instance().error("The settings cannot be saved: "_L1 + settings->fileName());
    }

    QuitFilter quitFilter;
    std::unique_ptr<platform::EndRequest> endRequest;
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
    QStringList problems;
    d->settings = settingsfile::openOptions(problems);

    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString backupFolder = dataFolder + "/backups"_L1;
    QString error;
    if (!platform::makePrivateFolder(backupFolder, error))
        problems.append("The folder of the backups cannot be made: "_L1 + backupFolder + u' '
                        + error);
    Logger::instance().init(dataFolder + "/logs"_L1);
    Logger::instance().info(u"Application initializing..."_s);
    Logger::instance().warnings(problems);

    d->junkCleaner = std::make_unique<JunkCleaner>();
    d->browserCleaner = std::make_unique<BrowserCleaner>();
    d->registryCleaner = std::make_unique<RegistryCleaner>();
    d->junkCleaner->loadRules(u":/rules/junk_rules.json"_s);
    d->browserCleaner->loadRules(u":/rules/browser_rules.json"_s);
    qApp->installEventFilter(&d->quitFilter);
    // From here on a request waits for the event loop. Until then it ends the program at once.
    if (!d->endRequest)
        d->endRequest = std::make_unique<platform::EndRequest>();
    connect(d->endRequest.get(), &platform::EndRequest::requested, qApp, &QCoreApplication::quit);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
        d->stopEngines();
        d->saveSettings();
    });

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
