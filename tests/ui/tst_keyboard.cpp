#include "application.h"

#include "appinfo.h"
#include "categorywidget.h"
#include "circleprogresswidget.h"
#include "cleanitemwidget.h"
#include "dashboardpage.h"
#include "filecard.h"
#include "junkcleaner.h"
#include "junkpage.h"
#include "largefileinfo.h"
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
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30'000;
constexpr int mostStops = 200;

/// Presses a key where the focus is, as the desktop would deliver it.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget *target = QApplication::activePopupWidget();
    if (!target)
        target = QApplication::focusWidget();
    if (!target)
        target = QApplication::activeWindow();
    QVERIFY(target);
    QTest::keyClick(target, key, modifiers);
}

/// Tabs until the focus is on @p target; false when it never gets there.
bool tabTo(const QWidget *target)
{
    for (int stop = 0; stop < mostStops; ++stop) {
        if (QApplication::focusWidget() == target)
            return true;
        press(Qt::Key_Tab);
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

QAccessibleInterface *accessOf(QObject *object)
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
        m_temp = m_home.point("TMPDIR", u"Temp"_s);
        for (const char *variable : {"TEMP", "TMP"})
            m_home.point(variable, u"Temp"_s);
        m_home.point("WINDIR", u"Windows"_s);
        m_home.point("LOCALAPPDATA", u"Local"_s);
        m_home.point("SYSTEMDRIVE", u"Drive"_s);
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

        // To the page.
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
            QVERIFY(box);
            const QAbstractButton *yes = box->button(QMessageBox::Yes);
            wasAsked = tabTo(yes);
            press(Qt::Key_Space);
        });
        press(Qt::Key_Return);
        QVERIFY(wasAsked);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, patience);
        QCOMPARE(QDir(m_temp + "/setup"_L1).entryList(QDir::Files).size(), 1);

        // The dialog tells the result and goes by a key.
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
        ProgressDialog dialog(ProgressDialog::Scanning, m_window.get());
        SignalSpy cancelled(&dialog, &ProgressDialog::cancelRequested);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(cancelled.size(), 1);
    }

    void arrowsLeadAlongTheNavigation()
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
            QVERIFY(dialog);
            auto *box = dialog->findChild<QCheckBox *>(u"confirmCleanCheck"_s);
            QVERIFY(tabTo(box));
            press(Qt::Key_Space);
            press(Qt::Key_Return); // the default button is the one that saves
        });
        QVERIFY(tabTo(nav(6)));
        press(Qt::Key_Return);
        QVERIFY(!shownDialog<SettingsDialog>());
        QCOMPARE(Application::instance()->option("clean/confirmClean"_L1, true), false);
    }

    void aCardsMenuOpensByItsKey()
    {
        LargeFileInfo file;
        file.path = u"/a/b.iso"_s;
        file.name = u"b.iso"_s;
        file.directory = u"/a"_s;
        FileCard card(file);
        card.show();
        SignalSpy asked(&card, &QWidget::customContextMenuRequested);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5},
                                card.checkBox()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(card.checkBox(), &event);
        QCOMPARE(asked.size(), 1);
    }

    void theDashboardsCardsLeadOnByKeys()
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

    void paintedControlsTellWhatTheyAre()
    {
        QAccessibleInterface *entry = accessOf(nav(2));
        QCOMPARE(entry->role(), QAccessible::Button);
        QCOMPARE(entry->text(QAccessible::Name), nav(2)->text());
        QVERIFY(!entry->state().checked);
        QVERIFY(entry->actionInterface());
        QVERIFY(entry->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
        entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(stack()->currentIndex(), 2);
        QVERIFY(entry->state().checked);

        auto *page = m_window->findChild<DashboardPage *>();
        page->showResults(1024, 2, 3);
        QAccessibleInterface *card = accessOf(page->findChild<StatCard *>());
        QCOMPARE(card->role(), QAccessible::Button);
        QVERIFY(card->text(QAccessible::Name).contains(u"1.0 KB"_s));
        card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(stack()->currentIndex(), 1);

        QAccessibleInterface *circle = accessOf(page->findChild<CircleProgressWidget *>());
        QCOMPARE(circle->role(), QAccessible::ProgressBar);
        QVERIFY(circle->valueInterface());
        QCOMPARE(circle->valueInterface()->currentValue().toInt(), 75);
        QCOMPARE(circle->valueInterface()->maximumValue().toInt(), 100);
    }

    void anExpanderTellsWhetherItIsOpen()
    {
        CleanCategory category(u"temp_files"_s, u"Temporary"_s, {});
        category.items.append(CleanItem(u"a"_s, u"/a"_s, 1));
        CategoryWidget widget(&category);
        QAccessibleInterface *expander = accessOf(widget.findChild<QPushButton *>(u"expandBtn"_s));
        QCOMPARE(expander->text(QAccessible::Description), u"Collapsed"_s);
        widget.toggleExpanded();
        QCOMPARE(expander->text(QAccessible::Description), u"Expanded"_s);
    }

private:
    /// What a desktop does when the window in front has gone.
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
