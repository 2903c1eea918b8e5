#include "tour.h"

#include "aboutdialog.h"
#include "application.h"
#include "browsergroupwidget.h"
#include "browserpage.h"
#include "browserprofiles.h"
#include "dashboardpage.h"
#include "fullscan.h"
#include "itemdetaildialog.h"
#include "junkcleaner.h"
#include "junkpage.h"
#include "largefilepage.h"
#include "linkmanager.h"
#include "mainwindow.h"
#include "navbutton.h"
#include "progressdialog.h"
#include "registryfixture.h"
#include "registrypage.h"
#include "scanprogressdialog.h"
#include "startupcard.h"
#include "statcard.h"
#include "testhome.h"
#include "testtree.h"
#include "theme.h"
#include "titlebar.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// Calls the visitor at each stop. stop() first waits until the window has its final look.
class Tour
{
public:
    explicit Tour(const TourVisitor &visit)
        : m_visit(visit)
    {
    }

    void stop(const QString &name, QWidget *window, const QList<QWidget *> &above = {})
    {
        QTest::qWait(150);
        stopNow(name, window, above);
    }

    void stopNow(const QString &name, QWidget *window, const QList<QWidget *> &above = {})
    {
        m_visit(name, window, above);
    }

private:
    const TourVisitor &m_visit;
};

void fillJunk(const TestHome &home)
{
    const QString temp = home.setFolderVariable("TMPDIR", u"Temp"_s);
    const QString windows = home.setFolderVariable("WINDIR", u"Windows"_s);
    const QString local = home.setFolderVariable("LOCALAPPDATA", u"Local"_s);
    const QString drive = home.setFolderVariable("SYSTEMDRIVE", u"Drive"_s);
    const auto write = [](const QString &path, int size) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
            qFatal("cannot write %s", qPrintable(path));
    };
    for (int i = 0; i < 25; ++i)
        write(u"%1/setup/session-%2/downloaded package with a rather long name %2.tmp"_s.arg(
                  temp, QString::number(i)),
              40'000 * (i + 1));
    for (int i = 0; i < 130; ++i)
        write(u"%1/Logs/CBS/CBS-%2.log"_s.arg(windows, QString::number(i)), 9'000 + i * 731);
    write(windows + "/MEMORY.DMP"_L1, 734'003'200);
    write(windows + "/SoftwareDistribution/Download/update.cab"_L1, 48'000'000);
    write(local + "/D3DSCache/f1/shader.bin"_L1, 1'200'000);
    write(local + "/Microsoft/Windows/Explorer/thumbcache_256.db"_L1, 5'000'000);
    write(drive + "/Windows.old/system32/old.dll"_L1, 20'000'000);
}

void fillBrowsers(const TestHome &home)
{
    const TestTree tree;
    browserprofiles::makeAll(tree);
    const QString roaming =
        home.setFolderVariable("USERPROFILE", u"User"_s) + "/AppData/Roaming"_L1;
    const QString local = home.folder(u"Local"_s);
    for (const auto &[from, to] :
         {std::pair(tree.path(u"Local"_s), local), std::pair(tree.path(u"Roaming"_s), roaming)}) {
        QDir().mkpath(to);
        const QStringList makers = QDir(from).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &maker : makers) {
            if (!QDir(to + u'/' + maker).exists()
                && !QFile::rename(from + u'/' + maker, to + u'/' + maker))
                qFatal("cannot move the profiles of %s", qPrintable(maker));
        }
    }
}

template<class Widget>
Widget *findWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *found = qobject_cast<Widget *>(widget);
        if (found && found->isVisible())
            return found;
    }
    return nullptr;
}

/// Calls @p open, which runs a modal dialog, and stops at the dialog. With @p change it changes the
/// dialog and stops a second time.
void visitDialog(Tour &tour, const QString &name, QWidget *window,
                 const std::function<void()> &open,
                 const std::function<void(QWidget *)> &change = {})
{
    QTimer::singleShot(300, window, [&tour, &name, window, &change] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            qFatal("no dialog for %s", qPrintable(name));
        tour.stop(name, window, {dialog});
        if (change) {
            change(dialog);
            tour.stop(name + "-changed"_L1, window, {dialog});
        }
        dialog->close();
    });
    open();
}

/// Waits for what @p spy looks for, which may have come already. Ends the tour when it does not
/// come.
void awaitSignal(QSignalSpy &spy)
{
    if (spy.isEmpty() && !spy.wait(60'000))
        qFatal("no signal %s", spy.signal().constData());
}

/// Waits until @p holds is true. Ends the tour when that does not come.
void awaitThat(const char *what, const std::function<bool()> &holds)
{
    if (!QTest::qWaitFor(holds, 60'000))
        qFatal("it does not come to it that %s", what);
}

void visitBrowsers(Tour &tour, MainWindow *window)
{
    auto *page = window->findChild<BrowserPage *>();
    window->onDashboardNavigate(2);
    QSignalSpy scanned(page, &BasePage::scanFinished);
    page->startScan();
    awaitSignal(scanned);
    tour.stop(u"browser-results"_s, window);
    const auto groups = page->findChildren<BrowserGroupWidget *>();
    groups.at(0)->toggleExpanded();
    tour.stop(u"browser-results-open"_s, window);
    groups.at(0)->findChildren<QPushButton *>(u"viewDetailsBtn"_s).at(6)->click();
    auto *details = findWindow<ItemDetailDialog>();
    tour.stop(u"browser-details"_s, window, {details});
    details->reject();
}

// The files are sparse: they have a size but use no disk space.
void fillWithLargeFiles(const QString &folder)
{
    const auto write = [&folder](const QString &path, qint64 size) {
        QDir().mkpath(QFileInfo(folder + u'/' + path).path());
        QFile file(folder + u'/' + path);
        if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
            qFatal("cannot write %s", qPrintable(path));
    };
    write(u"Videos/Holiday in the mountains, uncut.mkv"_s, 7'300'000'000);
    write(u"Downloads/installation-medium.iso"_s, 4'700'000'000);
    write(u"Backups/2023/a folder with a rather long name/another one/phone.tar"_s, 1'073'741'825);
    write(u"Backups/exactly one gibibyte.zip"_s, 1'073'741'824);
    write(u"Music/Everything in one file, with a name that goes on and on and on and does not "
          u"fit into any window.flac"_s,
          600'000'000);
    write(u"Pictures/panorama.psd"_s, 300'000'000);
    write(u"Documents/atlas.pdf"_s, 150'000'000);
    write(u"Machines/disk.vdi"_s, 120'000'000);
}

void visitLargeFiles(Tour &tour, const TestHome &home)
{
    MainWindow *window = Application::instance()->mainWindow();
    constexpr qint64 gibibyte = 1'073'741'824;
    const QString folder = home.folder(u"Big"_s);
    fillWithLargeFiles(folder);
    const QList<DriveInfo> drives{
        {u"C:/"_s, u"Windows"_s, false, 500 * gibibyte, 50 * gibibyte},
        {u"D:/"_s, u"Photographs and films"_s, false, 4000 * gibibyte, 300 * gibibyte},
        {u"E:/"_s, {}, false, 250 * gibibyte, 200 * gibibyte},
        {u"F:/"_s, u"STICK"_s, true, 32 * gibibyte, 10 * gibibyte},
        {folder, u"Network share"_s, false, 2000 * gibibyte, 900 * gibibyte},
    };
    auto *stack = window->findChild<QStackedWidget *>(u"pageStack"_s);
    auto *page = new LargeFilePage(drives, stack);
    window->onDashboardNavigate(5);
    stack->addWidget(page);
    stack->setCurrentWidget(page);
    const auto cards = page->findChildren<DriveCard *>();
    cards.at(4)->checkBox()->setChecked(true);
    tour.stop(u"large-selection"_s, window);
    auto *combo = page->findChild<QComboBox *>(u"sizeCombo"_s);
    combo->showPopup();
    tour.stop(u"large-sizes"_s, window, {combo->findChild<QFrame *>()});
    combo->hidePopup();
    visitDialog(tour, u"large-custom"_s, window,
                [combo] { combo->setCurrentIndex(combo->count() - 1); });

    ScanProgressDialog scanning(window);
    scanning.show();
    scanning.updateProgress(
        u"C:/Users/Somebody/AppData/Local/Packages/A package with a long name/LocalCache"_s, 12,
        17 * gibibyte);
    tour.stop(u"large-scanning"_s, window, {&scanning});
    scanning.hide();

    QSignalSpy scanned(page->scanner(), &LargeFileScanner::scanFinished);
    page->findChild<QPushButton *>(u"startScanBtn"_s)->click();
    awaitSignal(scanned);
    awaitThat("the list of files is shown", [page] {
        const auto *card = page->findChild<QWidget *>(u"fileCard"_s);
        return card && card->isVisible();
    });
    auto *first = page->findChild<QWidget *>(u"fileCard"_s);
    first->findChild<QCheckBox *>()->setChecked(true);
    tour.stop(u"large-results"_s, window);
    Q_EMIT first->customContextMenuRequested({300, 40});
    tour.stop(u"large-menu"_s, window, {first->findChild<QMenu *>()});
    first->findChild<QMenu *>()->close();
    visitDialog(tour, u"large-question"_s, window, [page] { page->onDeleteSelected(); });
    window->onDashboardNavigate(1);
}

// Call it before the first scan: the pages show the results of the dashboard's scan too.
void visitEmptyPages(Tour &tour, MainWindow *window)
{
    window->onDashboardNavigate(1);
    tour.stop(u"junk-empty"_s, window);
    window->onDashboardNavigate(2);
    tour.stop(u"browser-empty"_s, window);
    window->onDashboardNavigate(3);
    tour.stop(u"registry-empty"_s, window);
    window->onDashboardNavigate(0);
}

/// Gives the focus to @p control and stops, to show the focus frame.
void visitFocus(Tour &tour, const QString &name, MainWindow *window, QWidget *control)
{
    window->activateWindow();
    control->setFocus(Qt::TabFocusReason);
    tour.stop(u"focus-"_s + name, window);
    window->findChild<QStackedWidget *>(u"pageStack"_s)->setFocus();
}

void visitDashboard(Tour &tour, MainWindow *window)
{
    auto *page = window->findChild<DashboardPage *>();
    const QString path =
        u"/Windows/SoftwareDistribution/Download/a folder with a long name/文件/update.cab"_s;
    tour.stop(u"dashboard-start"_s, window);
    page->setScanning(true);
    page->updateProgress(64, path);
    tour.stop(u"dashboard-scanning"_s, window);
    QSignalSpy shown(window->findChild<FullScan *>(), &FullScan::finished);
    page->onScanClicked();
    awaitSignal(shown);
    tour.stop(u"dashboard-results"_s, window);
    visitFocus(tour, u"card"_s, window, page->findChild<StatCard *>());
    visitFocus(tour, u"navigation"_s, window, window->findChildren<NavButton *>().at(3));
    page->setScanning(true);
    page->updateProgress(64, path);
    tour.stop(u"dashboard-scanning-again"_s, window);
    page->setScanning(false);
    page->showResults(1'234'567'890'123, 45'678'901, 12'345);
    tour.stop(u"dashboard-much"_s, window);

    visitDialog(tour, u"settings"_s, window, [window] { window->onSettingsClicked(); });
    AboutDialog about(window);
    about.show();
    tour.stop(u"settings-about"_s, window, {&about});
    about.hide();
    visitDialog(tour, u"help-missing"_s, window,
                [window] { LinkManager::instance()->openLink(u"none"_s, u"none"_s, window); });
}

void visitJunk(Tour &tour)
{
    auto *application = Application::instance();
    application->settings()->setValue("clean/confirmClean"_L1, false);
    MainWindow *window = application->mainWindow();
    const auto *page = window->findChild<JunkPage *>();
    auto *scan = page->findChild<QPushButton *>(u"scanBtn"_s);
    auto *clean = page->findChild<QPushButton *>(u"cleanBtn"_s);

    window->onDashboardNavigate(1);
    // A scan of so few files ends at once. So the dialog is shown with the values of a long scan.
    ProgressDialog scanning(ProgressDialog::Scanning, window);
    scanning.show();
    scanning.setProgress(11, 25);
    scanning.setDetail(Application::instance()->junkCleaner()->rules().at(10).name);
    tour.stop(u"junk-scanning"_s, window, {&scanning});
    scanning.hide();

    QSignalSpy scanned(application->junkCleaner(), &CleanEngine::scanFinished);
    scan->click();
    awaitSignal(scanned);
    tour.stop(u"junk-results"_s, window);
    page->findChild<QPushButton *>(u"expandBtn"_s)->click();
    tour.stop(u"junk-results-open"_s, window);
    visitFocus(tour, u"check"_s, window, page->findChild<QCheckBox *>(u"categoryCheck"_s));
    visitFocus(tour, u"expander"_s, window, page->findChild<QPushButton *>(u"expandBtn"_s));
    visitFocus(tour, u"button"_s, window, scan);

    page->findChildren<QPushButton *>(u"itemCount"_s).at(1)->click();
    auto *details = findWindow<ItemDetailDialog>();
    tour.stop(u"junk-details"_s, window, {details});
    details->reject();

    auto *titleBar = window->findChild<TitleBar *>();
    titleBar->showMenu();
    QMenu *languages = titleBar->menu()->findChild<QMenu *>();
    languages->popup(titleBar->menu()->geometry().topLeft()
                     - QPoint(titleBar->menu()->width() + 20, -20));
    tour.stop(u"language-menu"_s, window, {titleBar->menu(), languages});
    languages->close();
    titleBar->menu()->close();

    visitDialog(tour, u"about"_s, window, [window] { window->onAboutClicked(); });
    visitDialog(tour, u"language-changed"_s, window, [window] {
        QMessageBox box(
            QMessageBox::Information, QCoreApplication::translate("TitleBar", "Language Changed"),
            QCoreApplication::translate("TitleBar",
                                        "Language has been changed.\n\nThe application will "
                                        "restart now."),
            QMessageBox::Ok, window);
        box.setStyleSheet(theme::messageBox());
        box.exec();
    });
    application->settings()->setValue("clean/confirmClean"_L1, true);
    visitDialog(tour, u"junk-question"_s, window, [clean] { clean->click(); });
    application->settings()->setValue("clean/confirmClean"_L1, false);
    ProgressDialog cleaning(ProgressDialog::Cleaning, window);
    cleaning.show();
    cleaning.setProgress(11, 25);
    cleaning.setCleanedSize(1'234'567'890);
    tour.stop(u"junk-cleaning"_s, window, {&cleaning});
    cleaning.showResult(false, u"C:/Windows/Temp: Access is denied"_s);
    tour.stop(u"junk-failed"_s, window, {&cleaning});
    cleaning.hide();

    QSignalSpy cleaned(application->junkCleaner(), &CleanEngine::cleanFinished);
    clean->click();
    awaitSignal(cleaned);
    awaitThat("the dialog tells the end", [] {
        const auto *dialog = findWindow<ProgressDialog>();
        return dialog && dialog->findChild<QPushButton *>(u"closeBtn"_s)->isVisible();
    });
    tour.stop(u"junk-cleaned"_s, window, {findWindow<ProgressDialog>()});
    findWindow<ProgressDialog>()->accept();
}

void visitStartup(Tour &tour, const TestHome &home)
{
    MainWindow *window = Application::instance()->mainWindow();
    RegistryFixture registry(home);
    const QString uninstallKey =
        u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
    const QStringList names{
        u"Archiver"_s,
        u"Photo Studio 2026"_s,
        u"音乐播放器"_s,
        u"A product whose name is so long that it cannot be shown in one line of "
        "the page, whatever the window's width is"_s,
        u"Notes"_s,
        u"Player"_s,
        u"Torrents"_s,
        u"Zebra"_s};
    for (const QString &name : names) {
        const QString folder = u"A folder with a rather long name/"_s + name.left(20);
        QFile file(home.folder(u"prefix/drive_c/"_s + folder) + "/app.exe"_L1);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(file.fileName()));
        const QString path = "C:\\"_L1 + QString(folder).replace(u'/', u'\\') + "\\app.exe"_L1;
        registry.addText(uninstallKey + name, u"DisplayName"_s, name);
        registry.addText(uninstallKey + name, u"DisplayIcon"_s, path);
        if (name.size() % 2 == 0)
            registry.addText(
                u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s, name,
                u'"' + path + u'"');
    }
    registry.write();
    window->onDashboardNavigate(4);
    const auto *symbol = window->findChild<QWidget *>(u"loadingSymbol"_s);
    awaitThat("the sign of the loading has its place",
              [symbol] { return symbol->isVisible() && symbol->height() >= 50; });
    tour.stopNow(u"startup-loading"_s, window);
    awaitThat("the entries are listed", [window] {
        const auto *card = window->findChild<QWidget *>(u"startupCard"_s);
        return card && card->isVisible();
    });
    tour.stop(u"startup-list"_s, window);
    window->findChild<QLineEdit *>(u"searchEdit"_s)->setText(u"p"_s);
    tour.stop(u"startup-search"_s, window);
    // The program must not write a prefix that has changed since it was read.
    QFile::remove(registry.file(u"HKEY_CURRENT_USER"_s));
    visitDialog(tour, u"startup-warning"_s, window,
                [window] { window->findChild<StartupCard *>()->checkBox()->click(); });
}

void fillRegistry(RegistryFixture &registry)
{
    const QString current = u"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"_s;
    const QString machine = u"HKEY_LOCAL_MACHINE"_s;
    const QString user = u"HKEY_CURRENT_USER"_s;
    const QString missingFolder = u"C:\\Program Files\\Removed Product\\"_s;
    for (const QString &name : {u"photo"_s, u"archiver"_s, u"player"_s, u"notes"_s}) {
        registry.addText(machine + current + "App Paths\\"_L1 + name + ".exe"_L1, {},
                         missingFolder + "Binaries Of A Long Forgotten Version\\"_L1 + name
                             + ".exe"_L1);
        registry.addText(u"HKEY_CLASSES_ROOT\\."_s + name, {}, name + ".document.1"_L1);
        registry.addText(u"HKEY_CLASSES_ROOT\\"_s + name + ".document.1\\shell\\open\\command"_L1,
                         {}, u'"' + missingFolder + name + ".exe\" \"%1\""_L1);
        registry.addText(machine + current + "SharedDLLs"_L1, missingFolder + name + ".dll"_L1,
                         u"1"_s);
    }
    registry.addText(machine + current + "Uninstall\\{6A0F2C1E}"_L1, u"InstallLocation"_s,
                     missingFolder);
    registry.addText(machine + current + "Uninstall\\{6A0F2C1E}"_L1, u"DisplayName"_s,
                     u"Removed Product 文件 <b>12</b>"_s);
    registry.addText(user + current + "Run"_L1, u"Updater"_s,
                     missingFolder + "update.exe /silent"_L1);
    registry.write();
}

void visitRegistry(Tour &tour, const TestHome &home)
{
    auto *application = Application::instance();
    MainWindow *window = application->mainWindow();
    const auto *page = window->findChild<RegistryPage *>();
    RegistryFixture registry(home);
    fillRegistry(registry);
    window->onDashboardNavigate(3);
    QSignalSpy scanned(page, &BasePage::scanFinished);
    page->findChild<QPushButton *>(u"scanBtn"_s)->click();
    awaitSignal(scanned);
    tour.stop(u"registry-results"_s, window);
    page->findChild<QPushButton *>(u"expandBtn"_s)->click();
    tour.stop(u"registry-results-open"_s, window);
    page->findChildren<QPushButton *>(u"itemCount"_s).at(0)->click();
    auto *details = findWindow<ItemDetailDialog>();
    tour.stop(u"registry-details"_s, window, {details});
    details->reject();

    visitDialog(
        tour, u"registry-backup"_s, window,
        [page] { page->findChild<QPushButton *>(u"cleanBtn"_s)->click(); },
        [](QWidget *dialog) { dialog->findChild<QCheckBox *>()->click(); });
}

} // namespace

void takeTour(const TestHome &home, const TourVisitor &visit)
{
    fillBrowsers(home);
    fillJunk(home);
    Application::instance()->initialize();
    Application::instance()->showMainWindow();
    Tour tour(visit);
    visitEmptyPages(tour, Application::instance()->mainWindow());
    visitDashboard(tour, Application::instance()->mainWindow());
    visitJunk(tour);
    visitRegistry(tour, home);
    visitStartup(tour, home);
    visitBrowsers(tour, Application::instance()->mainWindow());
    visitLargeFiles(tour, home);
}
