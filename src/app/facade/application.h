#pragma once

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
/// joined. The window and its pages know this class by its declaration alone, which is a library
/// of its own: what owns the window is defined above it.
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
    [[nodiscard]] JunkCleaner *junkCleaner() const;
    [[nodiscard]] BrowserCleaner *browserCleaner() const;
    [[nodiscard]] RegistryCleaner *registryCleaner() const;
    [[nodiscard]] MainWindow *mainWindow() const;
    [[nodiscard]] QSettings *settings() const;

private:
    Application();

    class Private;
    const std::unique_ptr<Private> d;
};
