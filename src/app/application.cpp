#include "application.h"

#include "appinfo.h"
#include "junkcleaner.h"
#include "logger.h"
#include "mainwindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

// The settings are four switches. A file of another order of size is damaged, and reading it would
// hold up the start.
constexpr qint64 largestSettingsFile = 1'048'576;

std::unique_ptr<QSettings> openSettings()
{
    const auto open = [] {
        return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                           appinfo::organisation, appinfo::name);
    };
    std::unique_ptr<QSettings> settings = open();
    const QFileInfo info(settings->fileName());
    if (info.exists() && (!info.isFile() || info.size() > largestSettingsFile)) {
        settings.reset();
        const QString aside = info.filePath() + ".damaged"_L1;
        QFile::remove(aside);
        QFile::rename(info.filePath(), aside);
        settings = open();
    }
    return settings;
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
    m_settings = openSettings();

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
