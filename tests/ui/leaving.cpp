#include "appinfo.h"
#include "application.h"
#include "basepage.h"
#include "browsercleaner.h"
#include "browserpage.h"
#include "filecardlist.h"
#include "junkcleaner.h"
#include "junkpage.h"
#include "largefilemodel.h"
#include "largefilepage.h"
#include "largefileviews.h"
#include "mainwindow.h"
#include "registrybackupdialog.h"
#include "registrycleaner.h"
#include "registrypage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <csignal>

#include <unistd.h>
#endif

// The program that tst_leaving starts: the real application, in which one page scans and cleans as
// if a user had pressed its buttons, and which leaves in the middle of that.
//
//   leaving --home FOLDER --page PAGE --way WAY (--after MICROSECONDS | --at-step NUMBER)
//
// PAGE is junk, browser, registry or large. WAY is close, tray, quit, session, terminate, interrupt
// or hangup. The time counts from the press of the scan button. A negative time leaves after the
// clean and prints how long scan and both took. --at-step leaves in the given step of the clean
// instead. --last-step MILLISECONDS is how long the item in hand takes when the program leaves. The
// last line of the output is "left".

using namespace Qt::StringLiterals;

namespace {

/// How the program is left. The last three are signals.
enum class Way { Close, Tray, Quit, Session, Terminate, Interrupt, Hangup };

Way wayOf(const QString &name)
{
    static const QStringList names{u"close"_s,     u"tray"_s,      u"quit"_s,  u"session"_s,
                                   u"terminate"_s, u"interrupt"_s, u"hangup"_s};
    const qsizetype index = names.indexOf(name);
    if (index < 0)
        qFatal("there is no way %s", qPrintable(name));
    return static_cast<Way>(index);
}

/// Leads everything that the program reads and writes into @p home, where the system allows it.
void useHome(const QString &home)
{
    const auto lead = [&home](const char *variable, const QString &folder) {
        const QString path = home + u'/' + folder;
        QDir().mkpath(path);
        qputenv(variable, path.toUtf8());
    };
    lead("HOME", u"home"_s);
    lead("XDG_CONFIG_HOME", u"config"_s);
    lead("XDG_DATA_HOME", u"data"_s);
    lead("XDG_CACHE_HOME", u"cache"_s);
    lead("WINEPREFIX", u"prefix"_s);
    for (const char *variable : {"TMPDIR", "TEMP", "TMP"})
        lead(variable, u"Temp"_s);
    lead("WINDIR", u"Windows"_s);
    lead("LOCALAPPDATA", u"Local"_s);
    lead("SYSTEMDRIVE", u"Drive"_s);
    lead("PROGRAMDATA", u"ProgramData"_s);
    lead("USERPROFILE", u"User"_s);
}

/// A slow disk: each step of a worker takes a while, and longer once the program leaves. Then it is
/// the step that the program must wait for. All threads.
class SlowDisk final
{
    Q_DISABLE_COPY_MOVE(SlowDisk)
public:
    explicit SlowDisk(std::chrono::milliseconds lastStep)
        : m_lastStep(lastStep)
    {
    }

    /// Slows down an engine's scan and clean.
    void slowDown(CleanEngine *engine)
    {
        QObject::connect(
            engine, &CleanEngine::scanProgress, engine, [this] { step(); }, Qt::DirectConnection);
        QObject::connect(
            engine, &CleanEngine::cleanProgress, engine, [this] { cleanStep(); },
            Qt::DirectConnection);
    }

    /// Slows down the deletion of large files. It reports progress too seldom, but logs each file.
    void slowDownDeletion()
    {
        s_deletionDisk = this;
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (text.contains("Deleted file"_L1))
                s_deletionDisk->cleanStep();
            else if (type != QtDebugMsg)
                std::fputs(qPrintable(text + u'\n'), stderr);
        });
    }

    /// Calls @p leaver in the step of the clean with this number. The first one is 1.
    void leaveAtStep(int number, std::function<void()> leaver)
    {
        m_lastNumber = number;
        m_leaver = std::move(leaver);
    }

    void leave() { m_isLeaving = true; }
    /// Whether a worker is in the middle of a step.
    [[nodiscard]] bool isBusy() const { return m_isBusy; }

private:
    void cleanStep()
    {
        if (++m_cleanSteps == m_lastNumber)
            m_leaver();
        step();
    }

    void step()
    {
        m_isBusy = true;
        std::this_thread::sleep_for(m_isLeaving ? m_lastStep : std::chrono::microseconds(300));
        m_isBusy = false;
    }

    static inline SlowDisk *s_deletionDisk = nullptr;

    const std::chrono::microseconds m_lastStep;
    int m_lastNumber = 0; ///< of the step of the clean that leaves; 0: none
    std::function<void()> m_leaver;
    std::atomic_int m_cleanSteps = 0;
    std::atomic_bool m_isLeaving = false;
    std::atomic_bool m_isBusy = false;
};

/// Plays the user: scans with one page, cleans what was found, answers the questions.
class User final : public QObject
{
    Q_DISABLE_COPY_MOVE(User)
public:
    User(const QString &home, const QString &page, SlowDisk &disk)
        : m_home(home)
        , m_disk(disk)
        , m_window(Application::instance()->mainWindow())
    {
        if (page == "large"_L1)
            useLargeFilePage();
        else if (page == "junk"_L1)
            usePage(m_window->findChild<JunkPage *>(), 1, Application::instance()->junkCleaner());
        else if (page == "browser"_L1)
            usePage(m_window->findChild<BrowserPage *>(), 2,
                    Application::instance()->browserCleaner());
        else
            usePage(m_window->findChild<RegistryPage *>(), 3,
                    Application::instance()->registryCleaner());
        // The shadow around the window only makes painting slow.
        m_window->findChild<QWidget *>(u"mainContainer"_s)->setGraphicsEffect(nullptr);
        connect(&m_answers, &QTimer::timeout, this, &User::answer);
        m_answers.start(3);
    }

    void leaveAfterClean(Way way) { m_wayAfterClean = way; }

    void scan()
    {
        m_timer.start();
        m_scanButton->click();
    }

    void leave(Way way)
    {
        // Not yet on the disk: the program saves it.
        QSettings &settings = *Application::instance()->settings();
        settings.setValue("test/leaving"_L1, settings.value("test/leaving"_L1).toInt() + 1);
        switch (way) {
        case Way::Close:
            m_window->onCloseClicked();
            break;
        case Way::Tray:
            m_window->onTrayExit();
            break;
        case Way::Session:
            endSession();
            break;
        default:
            QCoreApplication::quit();
        }
    }

private:
    void usePage(BasePage *page, int index, CleanEngine *engine)
    {
        m_disk.slowDown(engine);
        m_window->onDashboardNavigate(index);
        m_scanButton = page->findChild<QPushButton *>(u"scanBtn"_s);
        auto *clean = page->findChild<QPushButton *>(u"cleanBtn"_s);
        connect(
            page, &BasePage::scanFinished, this,
            [this, engine, clean] {
                untickForeignItems(engine);
                m_scanTime = m_timer.nsecsElapsed() / 1'000;
                clean->click();
            },
            Qt::QueuedConnection);
        connect(page, &BasePage::cleanFinished, this, &User::onCleaned, Qt::QueuedConnection);
    }

    /// Replaces the page by one that offers a folder of the test as a drive.
    void useLargeFilePage()
    {
        auto *stack = m_window->findChild<QStackedWidget *>(u"pageStack"_s);
        auto *old = stack->findChild<LargeFilePage *>();
        const int index = stack->indexOf(old);
        delete old;
        const QList<DriveInfo> drives{
            {m_home + "/Big"_L1, u"Drive"_s, false, 1'000'000'000, 1'000'000}};
        auto *page = new LargeFilePage(drives, stack);
        stack->insertWidget(index, page);
        m_window->onDashboardNavigate(index);
        auto *selection = page->findChild<LargeFileSelectionView *>();
        selection->driveBoxes().first()->setChecked(true);
        selection->sizeCombo()->setCurrentIndex(0);
        m_scanButton = selection->startButton();
        m_disk.slowDownDeletion();
        auto *remove = page->findChild<LargeFileResultsView *>()->deleteButton();
        connect(
            page->scanner(), &LargeFileScanner::scanFinished, this,
            [this, page, remove] {
                m_scanTime = m_timer.nsecsElapsed() / 1'000;
                for (int row = 0; row < page->model()->rowCount(); ++row)
                    page->model()->setTicked(row, true);
                page->updateSelectedInfo();
                remove->click();
            },
            Qt::QueuedConnection);
        connect(page->scanner(), &LargeFileScanner::deleteFinished, this, &User::onCleaned,
                Qt::QueuedConnection);
    }

    /// Leaves only the test's own things ticked. On Windows the registry and some folders are those
    /// of the user.
    void untickForeignItems(CleanEngine *engine) const
    {
        for (CleanCategory &category : engine->result().categories) {
            for (CleanItem &item : category.items) {
                const bool isOwn = item.path.startsWith(m_home + u'/', Qt::CaseInsensitive)
                    || item.path.contains("Profile Sweepwise test"_L1)
                    || item.registryKey.contains("Sweepwise #"_L1);
                item.checked = item.checked && isOwn;
            }
        }
    }

    void answer()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
            QAbstractButton *button = box->button(QMessageBox::Yes);
            (button ? button : box->button(QMessageBox::Ok))->click();
        } else if (auto *backup = qobject_cast<RegistryBackupDialog *>(dialog)) {
            backup->findChild<QLineEdit *>(u"backupPathEdit"_s)->setText(m_home + "/backup.reg"_L1);
            backup->findChild<QPushButton *>(u"startCleanBtn"_s)->click();
        }
    }

    void onCleaned()
    {
        if (!m_wayAfterClean)
            return;
        const qint64 time = m_timer.nsecsElapsed() / 1'000;
        std::puts((QByteArray::number(m_scanTime) + ' ' + QByteArray::number(time)).constData());
        std::fflush(stdout);
        leave(*m_wayAfterClean);
    }

    // The end of a session on Windows: the toolkit says that the program is about to quit, and then
    // asks it to quit. A native window gets the messages themselves.
    void endSession()
    {
#ifdef Q_OS_WIN
        if (QGuiApplication::platformName() == "windows"_L1) {
            auto *window = reinterpret_cast<HWND>(m_window->winId());
            if (::SendMessageW(window, WM_QUERYENDSESSION, 0, 0) == 0)
                qFatal("the program refuses the end of the session");
            ::SendMessageW(window, WM_ENDSESSION, 1, 0);
            return;
        }
#endif
        const int index = QGuiApplication::staticMetaObject.indexOfSignal("aboutToQuit()");
        qApp->qt_metacall(QMetaObject::InvokeMetaMethod, index, nullptr);
        QCoreApplication::quit();
    }

    QString m_home;
    SlowDisk &m_disk;
    MainWindow *m_window;
    QPushButton *m_scanButton = nullptr;
    QTimer m_answers;
    QElapsedTimer m_timer;
    qint64 m_scanTime = 0; ///< microseconds
    std::optional<Way> m_wayAfterClean;
};

/// Leaves as the outside world does. Any thread.
void leave(Way way, User *user, SlowDisk *disk)
{
    disk->leave();
    switch (way) {
#ifdef Q_OS_UNIX
    case Way::Terminate:
        ::kill(::getpid(), SIGTERM);
        break;
    case Way::Interrupt:
        ::kill(::getpid(), SIGINT);
        break;
    case Way::Hangup:
        ::kill(::getpid(), SIGHUP);
        break;
#endif
    default:
        QMetaObject::invokeMethod(
            user, [user, way] { user->leave(way); }, Qt::QueuedConnection);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    QCommandLineParser parser;
    const QCommandLineOption homeOption(u"home"_s, {}, u"FOLDER"_s);
    const QCommandLineOption pageOption(u"page"_s, {}, u"PAGE"_s);
    const QCommandLineOption wayOption(u"way"_s, {}, u"WAY"_s);
    const QCommandLineOption afterOption(u"after"_s, {}, u"MICROSECONDS"_s);
    const QCommandLineOption stepOption(u"last-step"_s, {}, u"MILLISECONDS"_s, u"20"_s);
    const QCommandLineOption atStepOption(u"at-step"_s, {}, u"NUMBER"_s, u"0"_s);
    parser.addOptions({homeOption, pageOption, wayOption, afterOption, stepOption, atStepOption});
    if (!parser.parse(arguments) || !parser.isSet(homeOption))
        qFatal("leaving: wrong arguments");
    const QString home = parser.value(homeOption);
    const Way way = wayOf(parser.value(wayOption));
    const int after = parser.value(afterOption).toInt();
    const int atStep = parser.value(atStepOption).toInt();

    useHome(home);
    QApplication application(argc, argv);
    QApplication::setApplicationName(appinfo::name);
    QApplication::setApplicationVersion(appinfo::version);
    QApplication::setOrganizationName(appinfo::organisation);
    Application::instance()->initialize();
    Application::instance()->showMainWindow();

    SlowDisk disk(std::chrono::milliseconds(parser.value(stepOption).toInt()));
    User user(home, parser.value(pageOption), disk);
    std::thread leaver;
    QTimer::singleShot(0, &user, [&] {
        const auto moment = std::chrono::steady_clock::now() + std::chrono::microseconds(after);
        if (atStep > 0)
            disk.leaveAtStep(atStep, [&] { leave(way, &user, &disk); });
        else if (after < 0)
            user.leaveAfterClean(way);
        else
            leaver = std::thread([&, moment] {
                std::this_thread::sleep_until(moment);
                leave(way, &user, &disk);
            });
        user.scan();
    });
    const int status = QApplication::exec();
    if (leaver.joinable())
        leaver.join();
    if (disk.isBusy()) {
        std::fputs("a worker was not waited for\n", stderr);
        return 70;
    }
    std::puts("left");
    return status;
}
