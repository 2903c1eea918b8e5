#pragma once

#include "winbutton.h"

#include <QString>
#include <QWidget>

class QActionGroup;
class QMenu;

/// The title strip of the frameless main window: window buttons, main menu, language menu.
///
/// Choosing another language stores it, tells the user and starts the program anew.
class TitleBar : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TitleBar)
public:
    explicit TitleBar(QWidget *parent = nullptr);

    /// Gives the maximise button the glyph and the tip that fit the window's state.
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
    /// Starts another process; false when that failed.
    virtual bool startDetached(const QString &program, const QStringList &arguments);

private:
    WinButton *addButton(WinButton::Type type, const QString &name);
    void buildMenu();
    void changeLanguage(const QString &code);
    void restartProgram();

    QString m_currentLanguage;
    bool m_isMaximized = false;
    WinButton *m_menuButton = nullptr;
    WinButton *m_maximizeButton = nullptr;
    QMenu *m_menu = nullptr;
    QActionGroup *m_languages = nullptr;
};
