#pragma once

#include <QLatin1StringView>
#include <QObject>

#include <memory>

class BrowserCleaner;
class JunkCleaner;
class MainWindow;
class QSettings;
class RegistryCleaner;

/// The one object that owns what the whole program shares: settings, engines, main window. GUI
/// thread.
///
/// Made on first use and never deleted. When the program quits the engines are cancelled and
/// joined.
class Application final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Application)
public:
    static Application *instance();
    ~Application() override;

    /// Opens settings, data folders and log, makes the engines and loads their rules. Called once.
    /// Nothing that fails here ends the program.
    void initialize();
    /// Shows the main window, which is made on the first call.
    void showMainWindow();

    // Null before initialize(), respectively showMainWindow().
    [[nodiscard]] JunkCleaner *junkCleaner() const { return m_junkCleaner.get(); }
    [[nodiscard]] BrowserCleaner *browserCleaner() const { return m_browserCleaner.get(); }
    [[nodiscard]] RegistryCleaner *registryCleaner() const { return m_registryCleaner.get(); }
    [[nodiscard]] MainWindow *mainWindow() const { return m_mainWindow.get(); }
    [[nodiscard]] QSettings *settings() const { return m_settings.get(); }

    /// An option of the settings, such as "general/autoStart". Options are to be read and written
    /// by these two: the file gives back the group "general", whose name has a meaning of its own
    /// there, as "General", which is another one where capitals count.
    [[nodiscard]] bool option(QLatin1StringView key, bool otherwise) const;
    void setOption(QLatin1StringView key, bool on);

private:
    Application();
    void stopEngines();

    std::unique_ptr<JunkCleaner> m_junkCleaner;
    std::unique_ptr<BrowserCleaner> m_browserCleaner;
    std::unique_ptr<RegistryCleaner> m_registryCleaner;
    std::unique_ptr<MainWindow> m_mainWindow;
    std::unique_ptr<QSettings> m_settings;
};
