#pragma once

#include "winbutton.h"

#include <QString>
#include <QWidget>

class QActionGroup;
class QMenu;

/// The title bar of the frameless main window: window buttons, main menu, language menu. MainWindow
/// owns it. GUI thread.
///
/// A change of the language is stored at once; then the user is told and the program restarts.
class TitleBar : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TitleBar)
public:
    explicit TitleBar(QWidget *parent = nullptr);

    /// Sets the glyph, the tool tip and the accessible name of the maximise button.
    void setMaximized(bool maximized);

    [[nodiscard]] QString currentLanguage() const { return m_currentLanguage; }
    [[nodiscard]] QMenu *menu() const { return m_menu; }

public Q_SLOTS:
    /// Opens the main menu below its button.
    void showMenu();

Q_SIGNALS:
    void minimizeClicked();
    void maximizeClicked();
    void closeClicked();
    void aboutClicked();
    void helpClicked();
    void supportClicked();
    void languageChanged(QString langCode);

protected:
    /// Starts another process. Returns false when that fails. Tests override it.
    virtual bool startDetached(const QString &program, const QStringList &arguments);

private:
    WinButton *addButton(WinButton::Type type, const QString &name);
    void buildMenu();
    void addLanguages(QMenu *menu);
    /// Checks the action of the current language.
    void checkLanguage();
    /// Stores @p code, tells everybody and restarts the program. If the code cannot be stored, a
    /// box says so and nothing changes.
    void changeLanguage(const QString &code);
    void restartProgram();

    QString m_currentLanguage;
    bool m_isMaximized = false;
    WinButton *m_menuButton = nullptr;
    WinButton *m_maximizeButton = nullptr;
    QMenu *m_menu = nullptr;
    QActionGroup *m_languages = nullptr; ///< null until their menu is opened
};
