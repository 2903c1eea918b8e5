#pragma once

#include "action.h"
#include "hands.h"

#include <QList>

class Dice;
class MainWindow;
class QDialog;
class QMessageBox;

/// Chooses what to do next by the dice and by what is seen, and does it.
class Player final
{
    Q_DISABLE_COPY_MOVE(Player)
public:
    /// @p probes are those of the window's pages in their order. With a @p home, the name of one of
    /// them, it keeps coming back there.
    Player(MainWindow *window, const QList<PageProbe *> &probes, const QString &home);

    /// Does something. @p rows are those of the shown list.
    [[nodiscard]] Action act(Dice &dice, const QList<Row> &rows);
    /// Closes the uppermost of what stands open above the window; false when nothing does.
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
    /// Clicks a pixel of the screen, whatever is there.
    void click(QPoint global, Qt::MouseButton button = Qt::LeftButton, int times = 1);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);

    void predictClick(QPoint position, Qt::MouseButton button, int times);
    void predictPress(const QWidget *button);
    void noteFocus();
    [[nodiscard]] const Row *rowAt(QPoint position) const;

    MainWindow *m_window;
    QList<PageProbe *> m_probes;
    int m_home;
    Hands m_hands;
    Action m_action;
    QList<Row> m_rows;
    QString m_menuPath; ///< of the file that the last context menu was opened for
};
