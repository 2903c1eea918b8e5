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
/// Made on first use, after the toolkit's application object, and never deleted. A request to quit,
/// the session's end or a signal that ends the program leads out of the event loop. Then it cancels
/// the engines, waits for them and saves the settings.
/// The window and its pages see only this declaration, which is a library of its own. The
/// definition owns the window, so it belongs to a higher layer.
class Application final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Application)
public:
    static Application *instance();
    ~Application() override;

    /// Opens settings, data folders and log, makes the engines and loads their rules. Called once.
    /// A failure in it does not end the program.
    void initialize();
    /// Shows the main window, which is made on the first call.
    void showMainWindow();

    // Null before initialize(). The window is null before showMainWindow().
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
