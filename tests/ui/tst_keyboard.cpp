#include "application.h"
#include "options.h"

#include "appinfo.h"
#include "categorywidget.h"
#include "circleprogresswidget.h"
#include "cleanitemwidget.h"
#include "dashboardpage.h"
#include "filecard.h"
#include "focuskeeper.h"
#include "itemdetaildialog.h"
#include "junkcleaner.h"
#include "junkpage.h"
#include "largefileinfo.h"
#include "largefilepage.h"
#include "mainwindow.h"
#include "navbutton.h"
#include "progressdialog.h"
#include "settingsdialog.h"
#include "signalspy.h"
#include "statcard.h"
#include "testhome.h"
#include "titlebar.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30'000;
constexpr int maxStops = 200;

/// Sends a key to the open menu, the focus or the active window, as the desktop does. False when
/// there is none of them.
bool press(Qt::Key key)
{
    QWidget *target = QApplication::activePopupWidget();
    if (!target)
        target = QApplication::focusWidget();
    if (!target)
        target = QApplication::activeWindow();
    if (target)
        QTest::keyClick(target, key);
    return target;
}

/// Presses Tab until the focus is on @p target; false when it never gets there.
bool tabTo(const QWidget *target)
{
    for (int stop = 0; stop < maxStops; ++stop) {
        if (QApplication::focusWidget() == target)
            return true;
        if (!press(Qt::Key_Tab))
            return false;
    }
    return false;
}

void write(const QString &path, int size)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(size));
}

template<class Dialog>
Dialog *shownDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<Dialog *>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// Fails the test because an expected dialog is missing. Closes another open dialog, which would
/// otherwise wait for ever.
void failAndCloseModal()
{
    if (QWidget *dialog = QApplication::activeModalWidget())
        dialog->close();
    QFAIL("there is no such dialog");
}

QAccessibleInterface *accessibleOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT
public:
    explicit TestKeyboard(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        m_temp = m_home.setFolderVariable("TMPDIR", u"Temp"_s);
        for (const char *variable : {"TEMP", "TMP"})
            m_home.setFolderVariable(variable, u"Temp"_s);
        m_home.setFolderVariable("WINDIR", u"Windows"_s);
        m_home.setFolderVariable("LOCALAPPDATA", u"Local"_s);
        m_home.setFolderVariable("SYSTEMDRIVE", u"Drive"_s);
        Application::instance()->initialize();
    }

    void cleanupTestCase() { QSettings(appinfo::organisation, appinfo::name).clear(); }

    void init()
    {
        Application::instance()->settings()->setValue("clean/confirmClean"_L1, true);
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        activate();
    }

    void cleanup() { m_window.reset(); }

    void scanReviewAndCleanWithoutTheMouse()
    {
        for (int i = 0; i < 12; ++i)
            write(u"%1/setup/file%2.tmp"_s.arg(m_temp, QString::number(i)), 1000);
        auto *page = m_window->findChild<JunkPage *>();

        // Go to the page.
        QVERIFY(tabTo(nav(0)));
        press(Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), nav(1));
        press(Qt::Key_Return);
        QCOMPARE(stack()->currentIndex(), 1);

        // Scan.
        SignalSpy scanned(page, &BasePage::scanFinished);
        QVERIFY(tabTo(page->findChild<QPushButton *>(u"scanBtn"_s)));
        press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(scanned.size(), 1, patience);
        activate();
        QCOMPARE(QApplication::focusWidget(), page->findChild<QPushButton *>(u"scanBtn"_s));

        // Review: open the category of the temporary files, untick one of them.
        auto *category = page->findChild<CategoryWidget *>();
        QVERIFY(category);
        auto *expander = category->findChild<QPushButton *>(u"expandBtn"_s);
        QVERIFY(tabTo(expander));
        press(Qt::Key_Right);
        QVERIFY(category->isExpanded());
        press(Qt::Key_Left);
        QVERIFY(!category->isExpanded());
        press(Qt::Key_Return);
        QVERIFY(category->isExpanded());
        auto *kept = category->findChild<CleanItemWidget *>()->findChild<QCheckBox *>();
        QVERIFY(tabTo(kept));
        QVERIFY(kept->isChecked());
        press(Qt::Key_Space);
        QVERIFY(!kept->isChecked());
        auto *more = category->findChild<QPushButton *>(u"loadMoreBtn"_s);
        QVERIFY(tabTo(more));
        press(Qt::Key_Return);
        QCOMPARE(category->findChildren<CleanItemWidget *>().size(), 12);

        // Clean: the question is answered by keys as well.
        SignalSpy cleaned(page, &BasePage::cleanFinished);
        QVERIFY(tabTo(page->findChild<QPushButton *>(u"cleanBtn"_s)));
        bool wasAsked = false;
        QTimer::singleShot(200, this, [&wasAsked] {
            auto *box = shownDialog<QMessageBox>();
            if (!box)
                return failAndCloseModal();
            const QAbstractButton *yes = box->button(QMessageBox::Yes);
            wasAsked = tabTo(yes);
            press(Qt::Key_Space);
        });
        press(Qt::Key_Return);
        QVERIFY(wasAsked);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QCOMPARE(QDir(m_temp + "/setup"_L1).entryList(QDir::Files).size(), 1);

        // The dialog shows the result and closes by a key.
        auto *dialog = shownDialog<ProgressDialog>();
        QVERIFY(dialog);
        QCOMPARE(QApplication::focusWidget(), dialog->findChild<QPushButton *>(u"closeBtn"_s));
        press(Qt::Key_Return);
        QVERIFY(!shownDialog<ProgressDialog>());
        activate();
        QCOMPARE(QApplication::focusWidget(), page->findChild<QPushButton *>(u"scanBtn"_s));
    }

    void escapeCancelsAScan()
    {
        for (int i = 0; i < 3000; ++i)
            write(u"%1/many/%2/file.tmp"_s.arg(m_temp, QString::number(i)), 1);
        auto *page = m_window->findChild<JunkPage *>();
        m_window->onDashboardNavigate(1);
        SignalSpy scanned(page, &BasePage::scanFinished);
        page->startScan();
        auto *dialog = shownDialog<ProgressDialog>();
        QVERIFY(dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!shownDialog<ProgressDialog>());
        page->engine()->stopAndWait();
        QCoreApplication::processEvents();
        QCOMPARE(scanned.size(), 0);
        QCOMPARE(page->engine()->state(), CleanEngine::State::Cancelled);
    }

    void enterPressesTheButtonThatHasTheFocus_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("saves");
        QTest::newRow("cancel") << u"cancelBtn"_s << false;
        QTest::newRow("save") << u"saveBtn"_s << true;
    }

    void enterPressesTheButtonThatHasTheFocus()
    {
        QFETCH(QString, button);
        QFETCH(bool, saves);
        SettingsDialog dialog(m_window.get());
        dialog.show();
        auto *box = dialog.findChild<QCheckBox *>(u"confirmCleanCheck"_s);
        QVERIFY(box->isChecked());
        box->click();
        dialog.findChild<QPushButton *>(button)->setFocus();
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(options::isOn(*Application::instance()->settings(), options::confirmClean),
                 !saves);
    }

    void theDetailsCloseByEnterOnTheirButtonAndByEscape()
    {
        CleanCategory category(u"temp_files"_s, u"Temporary"_s, {});
        category.items.append(CleanItem(u"a"_s, u"/a"_s, 1));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            ItemDetailDialog dialog(&category, m_window.get());
            dialog.show();
            QTest::keyClick(&dialog, Qt::Key_Return);
            QVERIFY(dialog.isVisible()); // the list has the focus
            dialog.findChild<QPushButton *>()->setFocus();
            QTest::keyClick(&dialog, key);
            QVERIFY(!dialog.isVisible());
        }
    }

    void aKeyThatIsHeldDownPressesOnce()
    {
        SettingsDialog dialog(m_window.get());
        dialog.show();
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
        QApplication::sendEvent(&dialog, &held);
        QVERIFY(dialog.isVisible());
        SignalSpy clicked(nav(1), &NavButton::clicked);
        QApplication::sendEvent(nav(1), &held);
        QCOMPARE(clicked.size(), 0);
        QTest::keyClick(nav(1), Qt::Key_Return);
        QCOMPARE(clicked.size(), 1);
    }

    void theFocusReturnsOnlyIfNothingElseTookIt_data()
    {
        QTest::addColumn<QString>("meanwhile");
        QTest::newRow("nothing") << u"nothing"_s;
        QTest::newRow("the focus is moved") << u"moved"_s;
        QTest::newRow("the part is hidden") << u"hidden"_s;
        QTest::newRow("the control stays disabled") << u"disabled"_s;
        QTest::newRow("the control is deleted") << u"deleted"_s;
    }

    void theFocusReturnsOnlyIfNothingElseTookIt()
    {
        QFETCH(QString, meanwhile);
        QWidget window;
        QWidget part(&window);
        auto *control = new QPushButton(&part);
        QPushButton fallback(&part);
        QPushButton first(&window);
        QPushButton second(&window);
        window.show();
        control->setFocus();
        FocusKeeper keeper;
        keeper.keep(&part, [&control, &fallback] {
            control->setEnabled(false);
            fallback.setEnabled(false);
        });
        const QWidget *stray = window.focusWidget();
        QVERIFY(stray != control);
        fallback.setEnabled(true);
        control->setEnabled(meanwhile != "disabled"_L1);
        if (meanwhile == "moved"_L1)
            (stray == &first ? second : first).setFocus();
        if (meanwhile == "hidden"_L1)
            part.hide();
        if (meanwhile == "deleted"_L1)
            delete std::exchange(control, nullptr);
        const QWidget *before = window.focusWidget();
        keeper.restore(&fallback);
        const QWidget *expected = meanwhile == "nothing"_L1 ? control
            : meanwhile == "disabled"_L1                    ? &fallback
                                                            : before;
        QCOMPARE(window.focusWidget(), expected);
    }

    void theTabKeyScrollsToTheFocus()
    {
        for (int i = 0; i < 30; ++i)
            write(u"%1/file %2.tmp"_s.arg(m_temp, QString::number(i)), 1);
        auto *page = m_window->findChild<JunkPage *>();
        m_window->onDashboardNavigate(1);
        const SignalSpy scanned(page, &BasePage::scanFinished);
        page->startScan();
        QVERIFY(scanned.size() == 1 || scanned.wait(patience));
        activate();
        page->findChild<CategoryWidget *>()->toggleExpanded();
        auto *area = page->findChild<QScrollArea *>(u"contentScrollArea"_s);
        const auto isInSight = [area] {
            const QWidget *focus = QApplication::focusWidget();
            return area->widget()->isAncestorOf(focus)
                && area->viewport()->rect().contains(
                    focus->mapTo(area->viewport(), focus->rect().center()));
        };
        QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);

        // Tab from above into a list that is scrolled down. Then back from below into one that is
        // not.
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
        nav(6)->setFocus();
        for (int stop = 0; stop < maxStops && !area->isAncestorOf(QApplication::focusWidget());
             ++stop)
            QVERIFY(press(Qt::Key_Tab));
        QVERIFY(isInSight());
        area->verticalScrollBar()->setValue(0);
        page->findChild<QPushButton *>(u"scanBtn"_s)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(isInSight());
    }

    void theTabKeyScrollsToTheLastRowOfTheDetails()
    {
        CleanCategory category(u"temp_files"_s, u"Temporary"_s, {});
        for (int i = 0; i < 40; ++i)
            category.items.append(CleanItem(u"a"_s, u"/a%1"_s.arg(i), 1));
        ItemDetailDialog dialog(&category);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        dialog.findChild<QPushButton *>(u"backBtn"_s)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        const QWidget *focus = QApplication::focusWidget();
        QCOMPARE(focus->objectName(), u"openLocationBtn"_s);
        QVERIFY(!focus->visibleRegion().isEmpty());
    }

    void noFocusStaysInAHiddenView()
    {
        const QString folder = m_home.folder(u"Big"_s);
        write(folder + "/large.bin"_L1, 60 * 1'048'576);
        auto *page = new LargeFilePage({{folder, u"Data"_s, false, 1, 1}}, stack());
        m_window->onDashboardNavigate(5);
        auto *old = stack()->widget(5);
        stack()->insertWidget(5, page);
        delete old;
        stack()->setCurrentIndex(5);
        page->findChild<QCheckBox *>()->setChecked(true);
        auto *start = page->findChild<QPushButton *>(u"startScanBtn"_s);
        start->setFocus();
        page->findChild<QComboBox *>()->setCurrentIndex(0); // 50 MB
        const SignalSpy scanned(page->scanner(), &LargeFileScanner::scanFinished);
        page->onStartScan();
        m_window->onDashboardNavigate(0);
        QVERIFY(scanned.size() == 1 || scanned.wait(patience));
        QTRY_VERIFY(!start->isVisibleTo(page));
        activate();

        m_window->onDashboardNavigate(5);
        QVERIFY(QApplication::focusWidget());
        QVERIFY(QApplication::focusWidget()->isVisible());
    }

    void arrowsMoveAlongTheNavigation()
    {
        QVERIFY(tabTo(nav(0)));
        for (int index = 1; index < 7; ++index) {
            press(Qt::Key_Down);
            QCOMPARE(QApplication::focusWidget(), nav(index));
        }
        for (int index = 5; index >= 0; --index) {
            press(Qt::Key_Up);
            QCOMPARE(QApplication::focusWidget(), nav(index));
        }
        press(Qt::Key_Space);
        QCOMPARE(stack()->currentIndex(), 0);
    }

    void theMenuOpensAndClosesByKeys()
    {
        auto *titleBar = m_window->findChild<TitleBar *>();
        QVERIFY(tabTo(titleBar->findChild<QPushButton *>()));
        press(Qt::Key_Return);
        QVERIFY(titleBar->menu()->isVisible());
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        QVERIFY(titleBar->menu()->activeAction()->menu()); // the languages
        press(Qt::Key_Right);
        const QMenu *languages = titleBar->menu()->activeAction()->menu();
        QVERIFY(languages->isVisible());
        QVERIFY(languages->activeAction());
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        QVERIFY(!titleBar->menu()->isVisible());
    }

    void theSettingsAreChangedAndSavedByKeys()
    {
        QTimer::singleShot(200, this, [] {
            auto *dialog = shownDialog<SettingsDialog>();
            if (!dialog)
                return failAndCloseModal();
            auto *box = dialog->findChild<QCheckBox *>(u"confirmCleanCheck"_s);
            QVERIFY(tabTo(box));
            press(Qt::Key_Space);
            press(Qt::Key_Return); // the default button is the one that saves
        });
        QVERIFY(tabTo(nav(6)));
        press(Qt::Key_Return);
        QVERIFY(!shownDialog<SettingsDialog>());
        QCOMPARE(options::isOn(*Application::instance()->settings(), options::confirmClean), false);
    }

    void aCardsMenuOpensByItsKey()
    {
        LargeFileInfo file;
        file.path = u"/a/b.iso"_s;
        file.name = u"b.iso"_s;
        file.directory = u"/a"_s;
        FileCard card;
        card.bind(file, false);
        card.show();
        SignalSpy asked(&card, &QWidget::customContextMenuRequested);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5},
                                card.checkBox()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(card.checkBox(), &event);
        QCOMPARE(asked.size(), 1);
    }

    void theDashboardsCardsOpenPagesByKeys()
    {
        auto *page = m_window->findChild<DashboardPage *>();
        page->showResults(1, 2, 3);
        const auto cards = page->findChildren<StatCard *>();
        QCOMPARE(cards.size(), 3);
        QVERIFY(tabTo(cards.at(0)));
        press(Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget(), cards.at(1));
        press(Qt::Key_Return);
        QCOMPARE(stack()->currentIndex(), 2);
    }

    void paintedControlsHaveNameRoleAndValue()
    {
        QAccessibleInterface *entry = accessibleOf(nav(2));
        QCOMPARE(entry->role(), QAccessible::Button);
        QCOMPARE(entry->text(QAccessible::Name), nav(2)->text());
        QVERIFY(!entry->state().checked);
        QVERIFY(entry->actionInterface());
        QVERIFY(entry->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
        entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(stack()->currentIndex(), 2);
        QVERIFY(entry->state().checked);

        auto *page = m_window->findChild<DashboardPage *>();
        page->showResults(1024, 2, 3);
        QAccessibleInterface *card = accessibleOf(page->findChild<StatCard *>());
        QCOMPARE(card->role(), QAccessible::Button);
        QVERIFY(card->text(QAccessible::Name).contains(u"1.0 KB"_s));
        card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(stack()->currentIndex(), 1);

        QAccessibleInterface *circle = accessibleOf(page->findChild<CircleProgressWidget *>());
        QCOMPARE(circle->role(), QAccessible::ProgressBar);
        QVERIFY(circle->valueInterface());
        QCOMPARE(circle->valueInterface()->currentValue().toInt(), 75);
        QCOMPARE(circle->valueInterface()->maximumValue().toInt(), 100);
    }

    void anExpanderReportsWhetherItIsOpen()
    {
        CleanCategory category(u"temp_files"_s, u"Temporary"_s, {});
        category.items.append(CleanItem(u"a"_s, u"/a"_s, 1));
        CategoryWidget widget(&category);
        QAccessibleInterface *expander =
            accessibleOf(widget.findChild<QPushButton *>(u"expandBtn"_s));
        QCOMPARE(expander->role(), QAccessible::Button);
        QCOMPARE(expander->text(QAccessible::Description), u"Collapsed"_s);
        QVERIFY(expander->state().expandable && expander->state().collapsed);
        expander->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_VERIFY(widget.isExpanded());
        QCOMPARE(expander->text(QAccessible::Description), u"Expanded"_s);
        QVERIFY(expander->state().expanded && !expander->state().collapsed);
    }

    void checkBoxesDescribeRiskSizeAndPath()
    {
        CleanCategory category(u"google_chrome_cookies"_s, u"Cookies"_s, u"Signs you out"_s);
        category.riskLevel = HighRisk;
        CleanItem item(u"a"_s, u"/b/a"_s, 1024);
        item.riskLevel = MediumRisk;
        category.items.append(item);
        CategoryWidget widget(&category);
        widget.toggleExpanded();
        const auto *header = widget.findChild<QCheckBox *>(u"categoryCheck"_s);
        QCOMPARE(header->accessibleDescription(), u"Risk: High. Signs you out"_s);
        const auto *box = widget.findChild<CleanItemWidget *>()->findChild<QCheckBox *>();
        QCOMPARE(box->accessibleDescription(), u"Risk: Medium, 1.0 KB, /b/a"_s);
    }

private:
    /// Activates the main window, as a desktop does when the window in front is closed.
    void activate()
    {
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    [[nodiscard]] NavButton *nav(int index) const
    {
        return m_window->findChildren<NavButton *>().at(index);
    }
    [[nodiscard]] QStackedWidget *stack() const
    {
        return m_window->findChild<QStackedWidget *>(u"pageStack"_s);
    }

    const TestHome &m_home;
    QString m_temp;
    std::unique_ptr<MainWindow> m_window;
};

SWEEPWISE_TEST_MAIN(TestKeyboard, QApplication)
#include "tst_keyboard.moc"
