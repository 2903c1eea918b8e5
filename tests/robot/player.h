#pragma once

#include "action.h"
#include "hands.h"

#include <QList>

class Dice;
class MainWindow;
class QDialog;
class QMessageBox;

/// Chooses the next action by the dice and by what is visible, and sends it through Hands. Owned by
/// the Robot; GUI thread only.
class Player final
{
    Q_DISABLE_COPY_MOVE(Player)
public:
    /// @p probes are the probes of the window's pages, in the order of the pages. @p home is the
    /// name of the page that the player returns to; empty for all pages.
    Player(MainWindow *window, const QList<PageProbe *> &probes, const QString &home);

    /// Chooses and sends one action. @p rows are the visible rows of the shown list.
    [[nodiscard]] Action act(Dice &dice, const QList<Row> &rows);
    /// Closes the uppermost menu or dialog above the main window; false when none is open.
    [[nodiscard]] bool closeTopWindow();
    [[nodiscard]] PageProbe *currentProbe() const;

private:
    void actOnPopup(Dice &dice);
    void actOnMessage(Dice &dice, const QMessageBox *box);
    void actOnDialog(Dice &dice, QWidget *dialog);
    void actOnWindow(Dice &dice);
    void actOnRow(Dice &dice);
    void navigate(Dice &dice);
    void useKeys(Dice &dice);
    void useWheel(Dice &dice, QWidget *window);
    void dragSomething(Dice &dice, QWidget *window);
    void resizeWindow(Dice &dice);

    void clickControl(Dice &dice, QWidget *window, const QString &name);
    void clickSomewhere(Dice &dice, const QWidget *area);
    /// Clicks a pixel of the screen, whatever is there. Leaves out clicks that would end the game.
    void click(QPoint global, Qt::MouseButton button = Qt::LeftButton, int times = 1);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);

    // Fill in the effects that the action will have.
    void predictClick(QPoint position, Qt::MouseButton button, int times);
    void predictPress(const QWidget *button);
    void noteFocus();
    [[nodiscard]] const Row *rowAt(QPoint position) const;

    MainWindow *m_window;
    QList<PageProbe *> m_probes;
    int m_home; ///< index of the page to return to; -1 for none
    Hands m_hands;
    Action m_action;
    QList<Row> m_rows;
    QString m_menuPath; ///< the file of the last context menu
};
