#pragma once

#include <QObject>

#include <memory>

class JunkCleaner;
class MainWindow;
class QSettings;

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
    [[nodiscard]] MainWindow *mainWindow() const { return m_mainWindow.get(); }
    [[nodiscard]] QSettings *settings() const { return m_settings.get(); }

private:
    Application();
    void stopEngines();

    std::unique_ptr<JunkCleaner> m_junkCleaner;
    std::unique_ptr<MainWindow> m_mainWindow;
    std::unique_ptr<QSettings> m_settings;
};
