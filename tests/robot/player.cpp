#include "player.h"

#include "application.h"
#include "dice.h"
#include "eyes.h"
#include "mainwindow.h"
#include "options.h"
#include "titlebar.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using eyes::describe;

namespace {

/// Pixels around the middle of a box that surely belong to the box.
constexpr int middleRadius = 3;

/// Chooses one of several actions: the larger its weight, the more often.
template<std::size_t count>
std::size_t chooseByWeight(Dice &dice, const std::array<int, count> &weights)
{
    int sum = 0;
    for (const int weight : weights)
        sum += weight;
    int rest = dice.below(sum);
    std::size_t choice = 0;
    while (rest >= weights.at(choice))
        rest -= weights.at(choice++);
    return choice;
}

QPoint randomPixel(Dice &dice, const QRect &rect)
{
    return {dice.between(rect.left(), rect.right()), dice.between(rect.top(), rect.bottom())};
}

QPoint toScreen(const QWidget *window, QPoint position)
{
    return window->geometry().topLeft() + position;
}

QWidget *uppermostDialog()
{
    const QList<QWidget *> shown = Hands::windows();
    const auto dialog = std::find_if(shown.begin(), shown.end(), [](QWidget *window) {
        return qobject_cast<QDialog *>(window);
    });
    return dialog == shown.end() ? nullptr : *dialog;
}

/// Whether @p widget is the box that makes the program start with the session. The robot must not
/// tick it: the test program itself would be entered in the registry. Cancelling does not help,
/// since the tick stays and is saved the next time.
bool isAutoStartBox(const QWidget *widget)
{
    return widget->objectName() == "autoStartCheck"_L1;
}

QPushButton *defaultButton(const QWidget *window)
{
    const auto buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->isDefault())
            return button;
    }
    return nullptr;
}

} // namespace

Player::Player(MainWindow *window, const QList<PageProbe *> &probes, const QString &home)
    : m_window(window)
    , m_probes(probes)
    , m_home(-1)
    , m_hands(window)
{
    for (qsizetype i = 0; i < probes.size(); ++i) {
        if (probes.at(i)->name() == home)
            m_home = static_cast<int>(i);
    }
}

PageProbe *Player::currentProbe() const
{
    return m_probes.at(m_window->currentPage());
}

Action Player::act(Dice &dice, const QList<Row> &rows)
{
    m_action = {};
    m_rows = rows;
    noteFocus();
    QWidget *modal = QApplication::activeModalWidget();
    if (QApplication::activePopupWidget()) {
        actOnPopup(dice);
    } else if (const auto *box = qobject_cast<QMessageBox *>(modal)) {
        actOnMessage(dice, box);
    } else if (modal) {
        actOnDialog(dice, modal);
    } else {
        // A progress dialog is not modal: the window below can be used too.
        QWidget *other = uppermostDialog();
        if (other && dice.chance(45))
            actOnDialog(dice, other);
        else
            actOnWindow(dice);
    }
    return std::exchange(m_action, {});
}

bool Player::closeTopWindow()
{
    QWidget *top = QApplication::activePopupWidget();
    if (!top)
        top = QApplication::activeModalWidget();
    if (!top)
        top = uppermostDialog();
    if (!top)
        return false;
    top->windowHandle()->requestActivate();
    m_hands.key(Qt::Key_Escape);
    return true;
}

// --- the effects of an action

void Player::noteFocus()
{
    QWidget *focus = QApplication::focusWidget();
    m_action.focusBefore = focus;
    m_action.focusPath = focus ? focus->property("filePath").toString() : QString();
}

const Row *Player::rowAt(QPoint position) const
{
    for (const Row &row : m_rows) {
        if (row.rect.contains(position))
            return &row;
    }
    return nullptr;
}

void Player::predictClick(QPoint position, Qt::MouseButton button, int times)
{
    const QWidget *top = eyes::topmostAt(m_window, position);
    m_action.text += u" on "_s + describe(top);
    const Row *row = rowAt(position);
    if (!row) {
        if (const std::optional<Row> boxRow = currentProbe()->rowWith(top)) {
            m_action.probe = currentProbe();
            m_action.row = *boxRow;
            m_action.effect = Action::Effect::Possible;
        }
        if (button == Qt::LeftButton)
            predictPress(top);
        return;
    }
    m_action.probe = currentProbe();
    m_action.row = *row;
    m_action.text += u" in row %1"_s.arg(row->first);
    if (button == Qt::RightButton)
        m_menuPath = row->widget->property("filePath").toString();
    const bool isOnBox = row->box && row->box == top;
    // The first click may open or close something. The second click goes to the new content.
    if (times > 1 && !isOnBox && row->meaning != Row::Meaning::Anywhere) {
        m_action.effect = Action::Effect::Unknown;
        return;
    }
    const bool togglesTick = row->meaning == Row::Meaning::Anywhere
        || (isOnBox && row->meaning != Row::Meaning::Nothing);
    if (!togglesTick || button != Qt::LeftButton || !top->isEnabled())
        return;
    const QPoint middle = isOnBox ? row->box->mapTo(m_window, row->box->rect().center()) : position;
    const bool isOnMiddle = (position - middle).manhattanLength() <= middleRadius;
    m_action.effect = times == 1 && isOnMiddle ? Action::Effect::Exact : Action::Effect::Possible;
}

// Notes a confirmation when the button starts a deletion.
void Player::predictPress(const QWidget *widget)
{
    const auto *button = qobject_cast<const QPushButton *>(widget);
    if (!button || !button->isEnabled())
        return;
    const QWidget *window = button->window();
    if (const auto *box = qobject_cast<const QMessageBox *>(window)) {
        if (box->button(QMessageBox::Yes) != button)
            return;
        m_action.isConfirmation = true;
        m_action.chosen = box->text().startsWith("Are you sure you want to delete this file?"_L1)
            ? QStringList{m_menuPath}
            : currentProbe()->chosen();
    } else if (button->objectName() == "startCleanBtn"_L1
               || (button->objectName() == "cleanBtn"_L1 && currentProbe()->name() != "registry"_L1
                   && !options::isOn(*Application::instance()->settings(),
                                     options::confirmClean))) {
        m_action.isConfirmation = true;
        m_action.chosen = currentProbe()->chosen();
    }
}

// --- mouse and keys

void Player::click(QPoint global, Qt::MouseButton button, int times)
{
    QWidget *window = Hands::windowAt(global);
    m_action.text += u"%1 (%2, %3)"_s.arg(button == Qt::RightButton ? u"right click"_s
                                              : times > 1           ? u"double click"_s
                                                                    : u"click"_s,
                                          QString::number(global.x()), QString::number(global.y()));
    if (!window || Hands::isBlocked(window)) {
        m_action.text += u", which a dialog blocks"_s;
    } else if (window == m_window && !QApplication::activePopupWidget()) {
        const QPoint position = global - window->geometry().topLeft();
        const auto *bar = m_window->findChild<TitleBar *>();
        const QWidget *top = eyes::topmostAt(window, position);
        if (bar == top || bar->isAncestorOf(top)) {
            m_action.text += u" not done: it would close the window"_s;
            return;
        }
        predictClick(position, button, times);
    } else {
        const QWidget *top = eyes::topmostAt(window, global - window->geometry().topLeft());
        m_action.text += u" on "_s + describe(top);
        if (isAutoStartBox(top)) {
            m_action.text += u" not done: it would start the test with the session"_s;
            return;
        }
        if (button == Qt::LeftButton)
            predictPress(top);
    }
    m_hands.click(global, button, times);
}

void Player::clickSomewhere(Dice &dice, const QWidget *area)
{
    const QRect rect = eyes::visibleRect(area);
    if (rect.isEmpty()) {
        m_action.text += u"nothing to click"_s;
        return;
    }
    click(toScreen(area->window(), randomPixel(dice, rect)));
}

void Player::clickControl(Dice &dice, QWidget *window, const QString &name)
{
    const auto found = window->findChildren<QWidget *>(name);
    QList<QWidget *> seen;
    for (QWidget *widget : found) {
        if (!eyes::visibleRect(widget).isEmpty())
            seen.append(widget);
    }
    if (seen.isEmpty())
        press(Qt::Key_Tab);
    else
        clickSomewhere(dice, dice.pick(seen));
}

void Player::press(int key, Qt::KeyboardModifiers modifiers)
{
    QWidget *focus = QApplication::focusWidget();
    const bool isPress = key == Qt::Key_Space || key == Qt::Key_Return;
    // A blank in the path of a backup would change it to a path outside of the test's home.
    if (key == Qt::Key_Space && qobject_cast<QLineEdit *>(focus))
        key = Qt::Key_Tab;
    // The buttons of the title bar would close or hide the window, and the game would end.
    if (focus && isPress
        && (qobject_cast<const TitleBar *>(focus->parentWidget()) || isAutoStartBox(focus)))
        key = Qt::Key_Tab;
    m_action.text += u"key %1 at %2"_s.arg(QString::number(key, 16), describe(focus));
    m_action.isTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    if (key == Qt::Key_Menu && focus)
        m_menuPath = focus->property("filePath").toString();
    const bool isInMainWindow = focus && focus->window() == m_window;
    if (key == Qt::Key_Space && isInMainWindow && qobject_cast<QCheckBox *>(focus)) {
        if (const std::optional<Row> row = currentProbe()->rowWith(focus)) {
            m_action.probe = currentProbe();
            m_action.row = *row;
            // The box of a browser above the list may restore the ticks that were there before.
            m_action.effect = focus->property("browserType").isValid() ? Action::Effect::Possible
                                                                       : Action::Effect::Exact;
        }
    } else if (isPress && !QApplication::activePopupWidget()) {
        const QWidget *button = qobject_cast<QPushButton *>(focus);
        const QWidget *window = QApplication::activeWindow();
        if (!button && key == Qt::Key_Return && window)
            button = defaultButton(window);
        if (button)
            predictPress(button);
    }
    m_hands.key(key, modifiers);
}

void Player::type(const QString &text)
{
    m_action.text += u"type \"%1\" at %2"_s.arg(text, describe(QApplication::focusWidget()));
    m_hands.type(text);
}

// --- choices

void Player::actOnPopup(Dice &dice)
{
    const QWidget *popup = QApplication::activePopupWidget();
    m_action.text = u"menu: "_s;
    switch (chooseByWeight(dice, std::array{50, 15, 15, 10, 10})) {
    case 0:
        clickSomewhere(dice, popup);
        break;
    case 1:
        press(Qt::Key_Down);
        break;
    case 2:
        press(Qt::Key_Return);
        break;
    case 3:
        press(Qt::Key_Escape);
        break;
    default:
        click(toScreen(m_window, randomPixel(dice, m_window->rect().adjusted(260, 70, -20, -20))));
        break;
    }
}

void Player::actOnMessage(Dice &dice, const QMessageBox *box)
{
    m_action.text = u"box \"%1\": "_s.arg(box->windowTitle());
    switch (chooseByWeight(dice, std::array{70, 8, 8, 5, 5, 4})) {
    case 0: {
        const QAbstractButton *yes = box->button(QMessageBox::Yes);
        clickSomewhere(dice, yes && dice.chance(70) ? yes : dice.pick(box->buttons()));
        break;
    }
    case 1:
        press(Qt::Key_Escape);
        break;
    case 2:
        press(Qt::Key_Tab);
        break;
    case 3:
        press(Qt::Key_Return);
        break;
    case 4:
        press(Qt::Key_Space);
        break;
    default:
        click(toScreen(m_window, randomPixel(dice, m_window->rect())));
        break;
    }
}

void Player::actOnDialog(Dice &dice, QWidget *dialog)
{
    m_action.text = u"dialog %1: "_s.arg(describe(dialog));
    if (!dialog->isModal() && dice.chance(50)) {
        dialog->windowHandle()->requestActivate();
        m_action.focusBefore.clear(); // the dialog takes the focus from the window
    }
    if (dialog->inherits("QFileDialog")) {
        // The file chooser could rename and delete files: only a name is typed in it.
        if (dice.chance(50)) {
            type(u"backup %1"_s.arg(dice.below(10)));
            press(Qt::Key_Return);
        } else {
            press(Qt::Key_Escape);
        }
        return;
    }
    QList<QWidget *> controls;
    for (QWidget *control : dialog->findChildren<QWidget *>()) {
        const bool isControl = qobject_cast<QAbstractButton *>(control)
            || qobject_cast<QLineEdit *>(control) || qobject_cast<QComboBox *>(control);
        if (isControl && !eyes::visibleRect(control).isEmpty())
            controls.append(control);
    }
    switch (chooseByWeight(dice, std::array{45, 10, 12, 5, 4, 5, 9, 6, 4})) {
    case 0:
        if (!controls.isEmpty())
            clickSomewhere(dice, dice.pick(controls));
        break;
    case 1:
        press(Qt::Key_Escape);
        break;
    case 2:
        useWheel(dice, dialog);
        break;
    case 3:
        if (dice.chance(60))
            press(Qt::Key_Tab);
        else
            press(Qt::Key_Backtab, Qt::ShiftModifier);
        break;
    case 4:
        press(Qt::Key_Return);
        break;
    case 5:
        press(Qt::Key_Space);
        break;
    case 6:
        press(dice.pick(QList<int>{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                   Qt::Key_Home, Qt::Key_End}));
        break;
    case 7:
        if (qobject_cast<QLineEdit *>(QApplication::focusWidget())) {
            m_hands.key(Qt::Key_A, Qt::ControlModifier); // the typed text replaces the old one
            type(QString::number(dice.below(1000)));
        } else {
            dragSomething(dice, dialog);
        }
        break;
    default:
        click(toScreen(m_window, randomPixel(dice, m_window->rect())));
        break;
    }
}

void Player::actOnWindow(Dice &dice)
{
    const bool isAwayFromHome = m_home >= 0 && m_window->currentPage() != m_home;
    if (dice.chance(isAwayFromHome ? 20 : m_home < 0 ? 4 : 1)) {
        navigate(dice);
        return;
    }
    PageProbe *probe = currentProbe();
    if (!probe->list() && dice.chance(60)) {
        m_action.text = u"begin: "_s;
        clickControl(dice, probe->page(), dice.pick(probe->startControls()));
        return;
    }
    switch (chooseByWeight(dice, std::array{36, 8, 6, 15, 20, 4, 1, 4})) {
    case 0:
        actOnRow(dice);
        break;
    case 1:
        clickControl(dice, probe->page(), dice.pick(probe->controls()));
        break;
    case 2:
        clickSomewhere(dice, probe->page());
        break;
    case 3:
        useWheel(dice, probe->page());
        break;
    case 4:
        useKeys(dice);
        break;
    case 5:
        dragSomething(dice, probe->page());
        break;
    case 6:
        resizeWindow(dice);
        break;
    default:
        m_action.text = u"hover"_s;
        m_action.keepsFocus = true;
        m_hands.move(toScreen(m_window, randomPixel(dice, m_window->rect())));
        break;
    }
}

void Player::actOnRow(Dice &dice)
{
    if (m_rows.isEmpty()) {
        clickSomewhere(dice, currentProbe()->page());
        return;
    }
    const Row &row = dice.pick(m_rows);
    QList<QWidget *> controls;
    for (QWidget *button : row.widget->findChildren<QAbstractButton *>())
        controls.append(button);
    const QRect box = row.box ? eyes::visibleRect(row.box) : QRect();
    switch (chooseByWeight(dice, std::array{55, 20, 15, 6, 4})) {
    case 0:
        click(toScreen(m_window,
                       box.isEmpty()
                           ? randomPixel(dice, row.rect)
                           : box.center() + QPoint(dice.between(-1, 1), dice.between(-1, 1))));
        break;
    case 1:
        click(toScreen(m_window, randomPixel(dice, row.rect)));
        break;
    case 2:
        clickSomewhere(dice, controls.isEmpty() ? row.widget : dice.pick(controls));
        break;
    case 3:
        click(toScreen(m_window, randomPixel(dice, row.rect)), Qt::RightButton);
        break;
    default:
        click(toScreen(m_window, randomPixel(dice, row.rect)), Qt::LeftButton, 2);
        break;
    }
}

void Player::navigate(Dice &dice)
{
    const auto *column = m_window->findChild<QWidget *>(u"navWidget"_s);
    const auto buttons = column->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QList<QWidget *> entries;
    for (QWidget *button : buttons) {
        if (button->inherits("NavButton"))
            entries.append(button);
    }
    const bool isAwayFromHome = m_home >= 0 && m_window->currentPage() != m_home;
    m_action.text = u"go to a page: "_s;
    clickSomewhere(dice, isAwayFromHome ? entries.at(m_home) : dice.pick(entries));
}

void Player::useKeys(Dice &dice)
{
    switch (chooseByWeight(dice, std::array{24, 12, 20, 12, 8, 14, 4, 3, 3})) {
    case 0:
        press(Qt::Key_Tab);
        break;
    case 1:
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        break;
    case 2:
        press(dice.pick(QList<int>{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}));
        break;
    case 3:
        press(dice.chance(50) ? Qt::Key_PageDown : Qt::Key_PageUp);
        break;
    case 4:
        press(dice.chance(50) ? Qt::Key_Home : Qt::Key_End);
        break;
    case 5:
        press(Qt::Key_Space);
        break;
    case 6:
        press(Qt::Key_Return);
        break;
    case 7:
        press(Qt::Key_Escape);
        break;
    default:
        if (qobject_cast<QLineEdit *>(QApplication::focusWidget())) {
            if (dice.chance(50))
                type(dice.pick(QList<QString>{u"pro"_s, u"a"_s, u"2"_s, u"xyz"_s}));
            else
                for (int i = 0; i < 4; ++i)
                    press(Qt::Key_Backspace);
        } else {
            press(Qt::Key_Menu);
        }
        break;
    }
}

void Player::useWheel(Dice &dice, QWidget *window)
{
    const QRect rect = eyes::visibleRect(window);
    const QPoint position = randomPixel(dice, rect);
    const int notches = dice.between(1, 5) * (dice.chance(40) ? 1 : -1);
    QWidget *top = eyes::topmostAt(window->window(), position);
    const QPoint global = toScreen(window->window(), position);
    m_action.text +=
        u"wheel %1 at (%2, %3) on %4"_s.arg(QString::number(notches), QString::number(global.x()),
                                            QString::number(global.y()), describe(top));
    // Another window may be in front, and some controls use the wheel themselves.
    const bool canScroll = Hands::windowAt(global) == window->window()
        && !top->inherits("QAbstractSpinBox") && !top->inherits("QComboBox")
        && !top->inherits("QScrollBar");
    QAbstractScrollArea *area = canScroll ? eyes::scrollAreaAround(top) : nullptr;
    if (canScroll)
        m_action.keepsFocus = true;
    if (area) {
        m_action.bar = area->verticalScrollBar();
        m_action.valueBefore = area->verticalScrollBar()->value();
        m_action.direction = notches > 0 ? -1 : 1;
    }
    m_hands.wheel(global, notches);
}

void Player::dragSomething(Dice &dice, QWidget *window)
{
    QList<QScrollBar *> bars;
    for (QScrollBar *bar : window->findChildren<QScrollBar *>()) {
        if (!eyes::visibleRect(bar).isEmpty())
            bars.append(bar);
    }
    const bool isBarDrag = !bars.isEmpty() && dice.chance(80);
    const QRect from =
        eyes::visibleRect(isBarDrag ? static_cast<QWidget *>(dice.pick(bars)) : window);
    const QRect to = isBarDrag ? from.adjusted(0, -40, 0, 40) : from;
    const QPoint start = randomPixel(dice, from);
    const QPoint end = randomPixel(dice, to);
    const QPoint global = toScreen(window->window(), start);
    if (Hands::windowAt(global) != window->window()) {
        m_action.text += u"drag not done: another window is in front"_s;
        return;
    }
    QWidget *top = eyes::topmostAt(window->window(), start);
    if (qobject_cast<QLineEdit *>(top) || isAutoStartBox(top)) {
        m_action.text += u"drag not done: it would move text about, or start with the session"_s;
        return;
    }
    m_action.text += u"drag (%1, %2) to (%3, %4) from %5"_s.arg(
        QString::number(start.x()), QString::number(start.y()), QString::number(end.x()),
        QString::number(end.y()), describe(top));
    // A drag that ends in the row where it began is a click.
    if (const Row *row = rowAt(start); row && window->window() == m_window) {
        m_action.probe = currentProbe();
        m_action.row = *row;
        m_action.effect = Action::Effect::Possible;
    }
    if (eyes::topmostAt(window->window(), end) == top)
        predictPress(top);
    m_hands.drag(global, toScreen(window->window(), end));
}

void Player::resizeWindow(Dice &dice)
{
    const QSize size(dice.between(970, 1500), dice.between(670, 1100));
    m_action.text = u"resize to %1 x %2"_s.arg(size.width()).arg(size.height());
    m_action.keepsFocus = true;
    m_window->resize(size);
}
