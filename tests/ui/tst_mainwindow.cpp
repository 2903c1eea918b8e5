#include "mainwindow.h"

#include "appinfo.h"
#include "application.h"
#include "categorywidget.h"
#include "junkcleaner.h"
#include "junkpage.h"
#include "linkmanager.h"
#include "logcapture.h"
#include "logger.h"
#include "navbutton.h"
#include "progressdialog.h"
#include "settingsdialog.h"
#include "signalspy.h"
#include "testhome.h"
#include "titlebar.h"
#include "uisupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSemaphore>
#include <QSettings>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// A main window on a desktop that shows tray icons. Records the tray messages.
class TrayWindow final : public MainWindow
{
public:
    QStringList messages;

protected:
    bool isTrayShown() const override { return findChild<QSystemTrayIcon *>()->isVisible(); }
    void showTrayMessage(const QString &title, const QString &text, int milliseconds) override
    {
        messages.append(u"%1|%2|%3"_s.arg(title, text, QString::number(milliseconds)));
    }
};

QList<NavButton *> navButtons(const MainWindow &window)
{
    return window.findChildren<NavButton *>();
}

QList<bool> checks(const MainWindow &window)
{
    QList<bool> list;
    for (const NavButton *button : navButtons(window))
        list.append(button->isChecked());
    return list;
}

QStackedWidget *stack(const MainWindow &window)
{
    return window.findChild<QStackedWidget *>(u"pageStack"_s);
}

bool hasText(const QWidget &widget, const QString &text)
{
    const auto labels = widget.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel *label) { return label->text() == text; });
}

void drag(QWidget *target, QPoint from, QPoint by)
{
    QTest::mousePress(target, Qt::LeftButton, {}, from);
    const QPointF to = QPointF(from + by);
    QMouseEvent move(QEvent::MouseMove, to, target->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(target, &move);
    QTest::mouseRelease(target, Qt::LeftButton, {}, from);
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT
public:
    explicit TestMainWindow(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        Application::instance()->initialize();
        Logger::instance().init(m_home.folder(u"logs"_s));
    }

    void cleanupTestCase() { QSettings(appinfo::organisation, appinfo::name).clear(); }

    void init()
    {
        Application::instance()->settings()->setValue("general/minimizeToTray"_L1, false);
        Application::instance()->settings()->setValue("clean/confirmClean"_L1, true);
    }

    void theWindowHasItsFlagsSizesAndShadow()
    {
        const MainWindow window;
        QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(window.minimumSize(), QSize(970, 670));
        QCOMPARE(window.size(), QSize(970, 670));
        QVERIFY(window.styleSheet().contains(u"#navWidget"_s));
        const auto *container = window.findChild<QFrame *>(u"mainContainer"_s);
        const auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(container->graphicsEffect());
        QVERIFY(shadow);
        QCOMPARE(shadow->blurRadius(), 20);
        QCOMPARE(shadow->offset(), QPointF(0, 5));
        QCOMPARE(shadow->color(), QColor(0, 0, 0, 50));
        QCOMPARE(window.findChild<QWidget *>(u"navWidget"_s)->minimumWidth(), 240);
        QCOMPARE(window.findChild<QLabel *>(u"logoLabel"_s)->text(), u"Sweepwise 5.0"_s);
        QVERIFY(hasText(window, u"🧹"_s));
        QVERIFY(hasText(window, u"✨"_s));
        QVERIFY(window.findChild<QFrame *>(u"navSeparator"_s));
    }

    void sevenButtonsAndSixPages()
    {
        const MainWindow window;
        QStringList texts;
        for (const NavButton *button : navButtons(window))
            texts.append(button->text());
        QCOMPARE(texts,
                 (QStringList{u"Dashboard"_s, u"Junk Cleaner"_s, u"Browser Cleaner"_s,
                              u"Registry Cleaner"_s, u"Startup Manager"_s, u"Large Files"_s,
                              u"Settings"_s}));
        QCOMPARE(stack(window)->count(), 6);
        QVERIFY(navButtons(window).last()->property("isSettings").toBool());
        QCOMPARE(window.currentPage(), 0);
        QCOMPARE(checks(window), (QList<bool>{true, false, false, false, false, false, false}));
    }

    void aClickOnAButtonShowsItsPage()
    {
        MainWindow window;
        show(window);
        for (int index : {1, 4, 5, 2, 3, 0}) {
            QTest::mouseClick(navButtons(window).at(index), Qt::LeftButton);
            QCOMPARE(window.currentPage(), index);
            QCOMPARE(stack(window)->currentIndex(), index);
            QCOMPARE(checks(window).indexOf(true), index);
            QCOMPARE(checks(window).count(true), 1);
        }
    }

    void settingsLeaveTheCheckedPageChecked()
    {
        MainWindow window;
        show(window);
        QTest::mouseClick(navButtons(window).at(3), Qt::LeftButton);
        QList<QWidget *> dialogs;
        QTimer closer;
        connect(&closer, &QTimer::timeout, &closer, [&dialogs] {
            auto *dialog = qobject_cast<SettingsDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            dialogs.append(dialog);
            dialog->onCancelClicked();
        });
        closer.start(10);
        QTest::mouseClick(navButtons(window).at(6), Qt::LeftButton);
        window.onSettingsClicked();
        QCOMPARE(dialogs.size(), 2);
        QCOMPARE(dialogs.at(0), dialogs.at(1)); // the window keeps one dialog
        QCOMPARE(window.currentPage(), 3);
        QCOMPARE(checks(window), (QList<bool>{false, false, false, true, false, false, false}));
    }

    void pagesOutsideTheStackAreIgnored()
    {
        MainWindow window;
        window.onDashboardNavigate(2);
        window.onDashboardNavigate(-1);
        window.onDashboardNavigate(6);
        QCOMPARE(window.currentPage(), 2);
        QCOMPARE(stack(window)->currentIndex(), 2);
    }

    void theTitleBarControlsTheWindow()
    {
        MainWindow window;
        show(window);
        auto *bar = window.findChild<TitleBar *>();
        Q_EMIT bar->maximizeClicked();
        QTRY_VERIFY(window.isMaximized());
        QVERIFY(hasRestore(bar));
        Q_EMIT bar->maximizeClicked();
        QTRY_VERIFY(!window.isMaximized());
        QVERIFY(!hasRestore(bar));
        Q_EMIT bar->minimizeClicked();
        QTRY_VERIFY(window.isMinimized());
        window.showNormal();
        Q_EMIT bar->closeClicked();
        QVERIFY(!window.isVisible());
    }

    void theTitleBarAndTheNavigationMoveTheWindow()
    {
        MainWindow window;
        show(window);
        window.move(200, 150);
        drag(window.findChild<TitleBar *>(), {100, 20}, {30, 40});
        QTRY_COMPARE(window.pos(), QPoint(230, 190));
        drag(window.findChild<QWidget *>(u"navWidget"_s), {20, 560}, {-10, -20});
        QTRY_COMPARE(window.pos(), QPoint(220, 170));
    }

    void aPressInsideAPageNeverMovesTheWindow()
    {
        MainWindow window;
        show(window);
        window.move(200, 150);
        window.onDashboardNavigate(1);
        for (const QPoint spot : {QPoint(50, 20), QPoint(300, 200), QPoint(600, 500)}) {
            QWidget *target = stack(window)->currentWidget();
            drag(target, spot, {30, 40});
            drag(&window, inWindow(window, target, spot), {30, 40});
            QCOMPARE(window.pos(), QPoint(200, 150));
        }
        // The border with the shadow does not move the window either.
        drag(&window, {3, 3}, {30, 40});
        QCOMPARE(window.pos(), QPoint(200, 150));
    }

    void aMoveAfterTheReleaseDoesNothing()
    {
        MainWindow window;
        show(window);
        window.move(200, 150);
        const QPoint spot = inWindow(window, window.findChild<TitleBar *>(), {100, 20});
        QTest::mousePress(&window, Qt::LeftButton, {}, spot);
        QTest::mouseRelease(&window, Qt::LeftButton, {}, spot);
        QMouseEvent move(QEvent::MouseMove, spot + QPoint(50, 50),
                         window.mapToGlobal(spot + QPoint(50, 50)), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&window, &move);
        QCOMPARE(window.pos(), QPoint(200, 150));
    }

    void theTrayHasItsIconAndMenu()
    {
        MainWindow window;
        auto *tray = window.findChild<QSystemTrayIcon *>();
        QVERIFY(tray->isVisible());
        QCOMPARE(tray->toolTip(), u"Sweepwise - PC Cleaning Tool"_s);
        QVERIFY(!tray->icon().isNull());
        const QList<QAction *> actions = tray->contextMenu()->actions();
        QCOMPARE(actions.size(), 3);
        QCOMPARE(actions.at(0)->text(), u"显示主窗口"_s);
        QVERIFY(actions.at(1)->isSeparator());
        QCOMPARE(actions.at(2)->text(), u"退出"_s);
    }

    void closingQuitsAndRemovesTheTrayIcon()
    {
        TrayWindow window;
        show(window);
        QVERIFY(window.close());
        QVERIFY(!window.isVisible());
        QVERIFY(!window.findChild<QSystemTrayIcon *>()->isVisible());
        QVERIFY(window.messages.isEmpty());
    }

    void closingTheWindowEndsTheProgram()
    {
        QGuiApplication::setQuitOnLastWindowClosed(true);
        TrayWindow window;
        show(window);
        QTimer::singleShot(20, &window, &MainWindow::onCloseClicked);
        QTimer::singleShot(5'000, &window, [] { QCoreApplication::exit(7); });
        const int code = QCoreApplication::exec();
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QCOMPARE(code, 0);
    }

    void closingToTheTrayHidesTheWindowAndShowsAMessage()
    {
        Application::instance()->settings()->setValue("general/minimizeToTray"_L1, true);
        TrayWindow window;
        show(window);
        QVERIFY(!window.close());
        QVERIFY(!window.isVisible());
        QVERIFY(window.findChild<QSystemTrayIcon *>()->isVisible());
        QCOMPARE(window.messages,
                 QStringList{u"Sweepwise|Program minimized to system tray. "
                             "Double-click the icon to restore.|2000"_s});
    }

    void withoutATrayClosingCloses()
    {
        Application::instance()->settings()->setValue("general/minimizeToTray"_L1, true);
        MainWindow window; // the desktop of the test shows no tray icons
        show(window);
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        QVERIFY(window.close());
    }

    void aClickOrADoubleClickOnTheTrayBringsTheWindowBack_data()
    {
        QTest::addColumn<int>("reason");
        QTest::addColumn<bool>("expected");
        QTest::newRow("click") << int(QSystemTrayIcon::Trigger) << true;
        QTest::newRow("double click") << int(QSystemTrayIcon::DoubleClick) << true;
        QTest::newRow("context menu") << int(QSystemTrayIcon::Context) << false;
        QTest::newRow("middle click") << int(QSystemTrayIcon::MiddleClick) << false;
    }

    void aClickOrADoubleClickOnTheTrayBringsTheWindowBack()
    {
        QFETCH(int, reason);
        QFETCH(bool, expected);
        MainWindow window;
        show(window);
        window.hide();
        Q_EMIT window.findChild<QSystemTrayIcon *>()->activated(
            static_cast<QSystemTrayIcon::ActivationReason>(reason));
        QCOMPARE(window.isVisible(), expected);
    }

    void aMinimizedWindowIsRestored()
    {
        MainWindow window;
        show(window);
        window.showMinimized();
        window.onTrayShowWindow();
        QTRY_VERIFY(!window.isMinimized());
        QVERIFY(window.isVisible());
    }

    void theTraysExitEndsTheProgramEvenWhenClosingWouldHide()
    {
        Application::instance()->settings()->setValue("general/minimizeToTray"_L1, true);
        TrayWindow window;
        show(window);
        bool ended = false;
        QTimer::singleShot(20, &window, [&] {
            window.findChild<QSystemTrayIcon *>()->contextMenu()->actions().at(2)->trigger();
        });
        QTimer::singleShot(5'000, &window, [] { QCoreApplication::exit(7); });
        ended = QCoreApplication::exec() == 0;
        QVERIFY(ended);
        QVERIFY(!window.findChild<QSystemTrayIcon *>()->isVisible());
    }

    void aDialogThatClosesBehindAHiddenWindowDoesNotEndTheProgram()
    {
        QGuiApplication::setQuitOnLastWindowClosed(true);
        TrayWindow window;
        show(window);
        ProgressDialog dialog(ProgressDialog::Cleaning, stack(window));
        dialog.show();
        window.hide();
        bool quit = false;
        const auto connection =
            connect(qApp, &QCoreApplication::aboutToQuit, &window, [&quit] { quit = true; });
        QTimer::singleShot(20, &dialog, [&dialog] {
            dialog.showResult(true, u"done"_s);
            dialog.accept();
        });
        QTimer::singleShot(200, &window, [] { QCoreApplication::exit(7); });
        const int code = QCoreApplication::exec();
        disconnect(connection);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QCOMPARE(code, 7);
    }

    void theSavedOptionsAreUsed()
    {
        SettingsDialog dialog;
        dialog.findChild<QCheckBox *>(u"minimizeToTrayCheck"_s)->setChecked(true);
        dialog.onSaveClicked();
        TrayWindow window;
        show(window);
        QVERIFY(!window.close());
        QCOMPARE(window.messages.size(), 1);
        dialog.findChild<QCheckBox *>(u"minimizeToTrayCheck"_s)->setChecked(false);
        dialog.onSaveClicked();
        show(window);
        QVERIFY(window.close());

        // The junk page asks before a clean only when the option is on.
        const auto *page = window.findChild<JunkPage *>();
        SignalSpy scanned(page, &BasePage::scanFinished);
        const QString temp = m_home.setFolderVariable("TMPDIR", u"temp"_s);
        qputenv("TMP", temp.toUtf8());
        qputenv("TEMP", temp.toUtf8());
        for (const bool asks : {true, false}) {
            QFile file(temp + "/junk.tmp"_L1);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.close();
            dialog.findChild<QCheckBox *>(u"confirmCleanCheck"_s)->setChecked(asks);
            dialog.onSaveClicked();
            page->findChild<QPushButton *>(u"scanBtn"_s)->click();
            QVERIFY(scanned.wait(30'000));
            const MessageBoxes boxes(QMessageBox::No);
            SignalSpy cleaned(page, &BasePage::cleanFinished);
            page->findChild<QPushButton *>(u"cleanBtn"_s)->click();
            QCOMPARE(boxes.seen().size(), asks ? 1 : 0);
            QVERIFY(asks || cleaned.size() == 1 || cleaned.wait(30'000));
            QCOMPARE(QFile::exists(temp + "/junk.tmp"_L1), asks);
        }
    }

    void helpAndSupportOpenTheirPages()
    {
        MainWindow window;
        show(window);
        LinkManager::instance()->setLanguage(u"fr"_s);
        QDesktopServices::setUrlHandler(u"https"_s, this, "onUrl");
        Q_EMIT window.findChild<TitleBar *>()->helpClicked();
        Q_EMIT window.findChild<TitleBar *>()->supportClicked();
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QCOMPARE(m_opened,
                 (QList<QUrl>{QUrl(u"https://sweepwise.example/fr/help"_s),
                              QUrl(u"https://sweepwise.example/fr/contact"_s)}));
    }

    void aLanguageChangeIsLogged()
    {
        const MainWindow window;
        const LogCapture log;
        LinkManager::instance()->setLanguage(u"it"_s);
        QCOMPARE(log.count(u"[MainWindow] 语言已切换为: \"it\""_s), 1);
        Q_EMIT window.findChild<TitleBar *>()->languageChanged(u"de"_s);
        QCOMPARE(log.count(u"[MainWindow] 语言已切换为: \"de\""_s), 1);
    }

    void theAboutBoxShowsNameAndVersion()
    {
        MainWindow window;
        show(window);
        const MessageBoxes boxes(QMessageBox::Ok);
        Q_EMIT window.findChild<TitleBar *>()->aboutClicked();
        QCOMPARE(boxes.seen().size(), 1);
        QVERIFY(boxes.seen().constFirst().startsWith(
            u"About Sweepwise|<h3>Sweepwise - PC Cleaning Tool</h3><p>Version 1.0.0</p>"
            "<p>Clean your PC with one click!<br>Remove junk files, browser data, and registry issues.</p>"_s));
    }

    /// The whole way of a user: real files, real engine, real clicks.
    void junkIsScannedReviewedAndCleaned()
    {
        const QString temp = m_home.setFolderVariable("TMPDIR", u"temp"_s);
        qputenv("TMP", temp.toUtf8());
        qputenv("TEMP", temp.toUtf8());
        for (int i = 0; i < 25; ++i) {
            QFile file(temp + u"/junk %1.tmp"_s.arg(i));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(2048, 'x'));
        }
        MainWindow window;
        show(window);
        QTest::mouseClick(navButtons(window).at(1), Qt::LeftButton);
        const auto *page = window.findChild<JunkPage *>();
        auto *engine = Application::instance()->junkCleaner();
        SignalSpy scanned(engine, &CleanEngine::scanFinished);
        QTest::mouseClick(page->findChild<QPushButton *>(u"scanBtn"_s), Qt::LeftButton);
        QVERIFY(scanned.wait(30'000));
        auto *category = page->findChild<CategoryWidget *>();
        QVERIFY(category);
        QVERIFY(hasText(*category, u"System Temporary Files"_s));
        category->toggleExpanded();

        const QString kept = engine->result().categories.constFirst().items.constFirst().path;
        QTest::mouseClick(category->findChildren<QCheckBox *>().at(1), Qt::LeftButton, {}, {8, 8});

        const MessageBoxes boxes(QMessageBox::Yes);
        SignalSpy cleaned(engine, &CleanEngine::cleanFinished);
        QTest::mouseClick(page->findChild<QPushButton *>(u"cleanBtn"_s), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(cleaned.size(), 1, 30'000);
        QCOMPARE(boxes.seen().size(), 1);
        QTRY_VERIFY(hasText(window, u"Cleaned 24 items, freed 48.0 KB"_s));
        QCOMPARE(QDir(temp).entryList(QDir::Files), QStringList{QFileInfo(kept).fileName()});

        QFile log(Logger::instance().fileName());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray content = log.readAll();
        QVERIFY(content.contains("[INFO] Starting junk scan..."));
        QVERIFY(content.contains("[INFO] Junk scan finished. Found 25 items, 50.0 KB"));
        QVERIFY(content.contains(
            "[INFO] Junk clean finished. Cleaned 24 items, 48.0 KB. Failed: 0 items"));
    }

    void aFullScanDoesNotInterruptAClean()
    {
        const QString temp = m_home.setFolderVariable("TMPDIR", u"temp"_s);
        qputenv("TMP", temp.toUtf8());
        qputenv("TEMP", temp.toUtf8());
        for (int i = 0; i < 25; ++i) {
            QFile file(temp + u"/junk %1.tmp"_s.arg(i));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        MainWindow window;
        show(window);
        auto *engine = Application::instance()->junkCleaner();
        SignalSpy scanned(engine, &CleanEngine::scanFinished);
        engine->startScan();
        QVERIFY(scanned.wait(30'000));
        QSemaphore held;
        const auto hold = connect(
            engine, &CleanEngine::cleanProgress, engine, [&held] { held.acquire(); },
            Qt::DirectConnection);
        SignalSpy cleaned(engine, &CleanEngine::cleanFinished);
        engine->startClean();
        {
            const MessageBoxes boxes(QMessageBox::Ok);
            window.onDashboardScanRequested();
            QCOMPARE(
                boxes.seen(),
                QStringList{u"Notice|A clean is still running. Start the scan when it is over."_s});
        }
        QCOMPARE(engine->state(), CleanEngine::State::Cleaning);
        disconnect(hold);
        held.release(1000);
        QVERIFY(cleaned.size() == 1 || cleaned.wait(30'000));
        QVERIFY(QDir(temp).entryList(QDir::Files).isEmpty());
        window.onDashboardScanRequested();
        QCOMPARE(engine->state(), CleanEngine::State::Scanning);
        engine->stopAndWait();
    }

public Q_SLOTS:
    void onUrl(const QUrl &url) { m_opened.append(url); }

private:
    static void show(MainWindow &window)
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    static QPoint inWindow(const MainWindow &window, const QWidget *part, QPoint position)
    {
        return part->mapTo(&window, position);
    }

    static bool hasRestore(const TitleBar *bar)
    {
        const auto buttons = bar->findChildren<WinButton *>();
        return std::any_of(buttons.begin(), buttons.end(), [](const WinButton *button) {
            return button->type() == WinButton::Restore;
        });
    }

    const TestHome &m_home;
    QList<QUrl> m_opened;
};

SWEEPWISE_TEST_MAIN(TestMainWindow, QApplication)
#include "tst_mainwindow.moc"
