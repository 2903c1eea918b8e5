// Writes pictures of the window and its dialogs, as a user meets them one after the other.
//
// Usage: screenshots FOLDER

#include "appinfo.h"
#include "application.h"
#include "itemdetaildialog.h"
#include "junkcleaner.h"
#include "mainwindow.h"
#include "progressdialog.h"
#include "testhome.h"
#include "titlebar.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class Album
{
public:
    explicit Album(const QString &folder)
        : m_folder(folder)
    {
        QDir().mkpath(folder);
    }

    // The window with whatever stands above it, each where it is on the screen.
    void shoot(const QString &name, QWidget *window, const QList<QWidget *> &above = {})
    {
        QTest::qWait(150);
        QPixmap picture = window->grab();
        QPixmap page(picture.size());
        page.setDevicePixelRatio(picture.devicePixelRatio());
        page.fill(QColor(226, 232, 240));
        QPainter painter(&page);
        painter.drawPixmap(0, 0, picture);
        for (QWidget *widget : above)
            painter.drawPixmap(widget->frameGeometry().topLeft()
                                   - window->frameGeometry().topLeft(),
                               widget->grab());
        painter.end();
        const QString file = u"%1/%2-%3.png"_s.arg(
            m_folder, QString::number(++m_number).rightJustified(2, u'0'), name);
        if (!page.save(file))
            qFatal("cannot write %s", qPrintable(file));
    }

private:
    QString m_folder;
    int m_number = 0;
};

void fill(const TestHome &home)
{
    const QString temp = home.point("TMPDIR", u"Temp"_s);
    const QString windows = home.point("WINDIR", u"Windows"_s);
    const QString local = home.point("LOCALAPPDATA", u"Local"_s);
    const QString drive = home.point("SYSTEMDRIVE", u"Drive"_s);
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

void shootAll(Album &album)
{
    auto *application = Application::instance();
    application->settings()->setValue("clean/confirmClean"_L1, false);
    MainWindow *window = application->mainWindow();
    auto *scan = window->findChild<QPushButton *>(u"scanBtn"_s);
    auto *clean = window->findChild<QPushButton *>(u"cleanBtn"_s);

    window->onDashboardNavigate(1);
    album.shoot(u"junk-empty"_s, window);

    // A scan of so few files is over at once: the dialog is shown as it stands in the middle of a
    // long one.
    ProgressDialog scanning(ProgressDialog::Scanning, window);
    scanning.show();
    scanning.setProgress(11, 25);
    scanning.setDetail(u"Defender Scan History"_s);
    album.shoot(u"junk-scanning"_s, window, {&scanning});
    scanning.hide();

    QSignalSpy scanned(application->junkCleaner(), &CleanEngine::scanFinished);
    scan->click();
    scanned.wait(60'000);
    album.shoot(u"junk-results"_s, window);
    window->findChild<QPushButton *>(u"expandBtn"_s)->click();
    album.shoot(u"junk-results-open"_s, window);

    window->findChildren<QPushButton *>(u"itemCount"_s).at(1)->click();
    auto *details = findWindow<ItemDetailDialog>();
    album.shoot(u"junk-details"_s, window, {details});
    details->reject();

    auto *titleBar = window->findChild<TitleBar *>();
    titleBar->showMenu();
    QMenu *languages = titleBar->menu()->findChild<QMenu *>();
    languages->popup(titleBar->menu()->geometry().topLeft()
                     - QPoint(titleBar->menu()->width() + 20, -20));
    album.shoot(u"language-menu"_s, window, {titleBar->menu(), languages});
    languages->close();
    titleBar->menu()->close();

    QTimer::singleShot(300, window, [&album, window] {
        QWidget *box = QApplication::activeModalWidget();
        album.shoot(u"about"_s, window, {box});
        box->close();
    });
    window->onAboutClicked();

    QSignalSpy cleaned(application->junkCleaner(), &CleanEngine::cleanFinished);
    clean->click();
    cleaned.wait(60'000);
    QTest::qWait(100);
    album.shoot(u"junk-cleaned"_s, window, {findWindow<ProgressDialog>()});
}

} // namespace

int main(int argc, char *argv[])
{
    const TestHome home;
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    if (argc != 2)
        qFatal("usage: screenshots FOLDER");
    QApplication::setApplicationName(appinfo::name);
    QApplication::setOrganizationName(appinfo::organisation);
    QFont font(u"Segoe UI"_s, 10);
    font.setStyleStrategy(QFont::PreferAntialias);
    QApplication::setFont(font);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type != QtDebugMsg)
            fprintf(stderr, "%s\n", qPrintable(message));
    });

    fill(home);
    Application::instance()->initialize();
    Application::instance()->showMainWindow();
    Album album(QString::fromLocal8Bit(argv[1]));
    shootAll(album);
    return 0;
}
