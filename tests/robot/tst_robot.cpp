#include "actionlog.h"
#include "appinfo.h"
#include "application.h"
#include "basepage.h"
#include "browserpage.h"
#include "dashboardpage.h"
#include "dashboardprobe.h"
#ifdef Q_OS_WIN
#include "fakestart.h"
#endif
#include "fullscan.h"
#include "junkpage.h"
#include "largefilepage.h"
#include "largefileprobe.h"
#include "mainwindow.h"
#include "registrypage.h"
#include "registryworld.h"
#include "resultprobe.h"
#include "robot.h"
#include "startuppage.h"
#include "startupprobe.h"
#include "testhome.h"
#include "world.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStackedWidget>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
constexpr int patience = 120; ///< seconds
#else
constexpr int patience = 30;
#endif

/// Sets up a screen on which the window fits at any size. Empties the search path, so that no other
/// program is started by mistake.
void prepareSystem(const TestHome &home)
{
    QDir::setCurrent(home.folder(u"home"_s)); // a file name without a folder leads here
    QFile file(u"screen.json"_s); // relative: a colon in its path would end the path
    if (!file.open(QIODevice::WriteOnly)
        || file.write(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 3840,
                          "height": 2400, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
            < 0)
        qFatal("cannot describe the screen");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
    QFile::setPermissions(home.setFolderVariable("XDG_RUNTIME_DIR", u"runtime"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", home.folder(u"no programs"_s).toUtf8());
}

/// Replaces the large-file page by one that offers the drives of the test, not those of the
/// machine.
LargeFilePage *replaceLargeFilePage(MainWindow *window, const QStringList &roots)
{
    constexpr qint64 gibibyte = 1'073'741'824;
    QList<DriveInfo> drives;
    for (const QString &root : roots)
        drives.append({root, u"Drive %1"_s.arg(drives.size()), false, 100 * gibibyte, gibibyte});
    auto *stack = window->findChild<QStackedWidget *>(u"pageStack"_s);
    auto *old = stack->findChild<LargeFilePage *>();
    const int place = stack->indexOf(old);
    delete old;
    auto *page = new LargeFilePage(drives, stack);
    page->scanner()->setWalkerCount(1); // then files of equal size keep the order of the disk
    stack->insertWidget(place, page);
    return page;
}

/// Makes the check that a scan lists only files of @p owner. With @p isComplete it must list all of
/// them.
ResultProbe::ListingCheck makeFileCheck(const World *world, World::Owner owner, bool isComplete)
{
    return [world, owner, isComplete](const QStringList &paths) {
        for (const QString &path : paths)
            expect(world->mayBeListed(owner, path), [&] { return u"%1 is listed"_s.arg(path); });
        const QStringList expected = isComplete ? world->expectedPaths(owner) : QStringList();
        const QSet<QString> listed(paths.begin(), paths.end());
        for (const QString &path : expected)
            expect(listed.contains(path), [&] { return u"%1 is not listed"_s.arg(path); });
    };
}

void checkEntries(const RegistryWorld *registry, const QStringList &entries)
{
    const QSet<QString> listed(entries.begin(), entries.end());
    const QSet<QString> expected = registry->expectedItems();
    for (const QString &entry : listed)
        expect(expected.contains(entry), [&] { return u"%1 is listed"_s.arg(entry); });
    for (const QString &entry : expected)
        expect(listed.contains(entry), [&] {
            return u"%1 is not listed, though %2 of %3 are"_s.arg(
                entry, QString::number(listed.size()), QString::number(expected.size()));
        });
}

Robot::Options readOptions()
{
    Robot::Options options;
    options.seed = qEnvironmentVariable("SWEEPWISE_ROBOT_SEED", u"1"_s).toULongLong();
    options.actions = qEnvironmentVariable("SWEEPWISE_ROBOT_ACTIONS", u"2000"_s).toInt();
    QCommandLineParser parser;
    const QCommandLineOption seed(u"seed"_s, {}, u"NUMBER"_s);
    const QCommandLineOption actions(u"actions"_s, {}, u"NUMBER"_s);
    const QCommandLineOption page(
        u"page"_s, u"dashboard, junk, browser, registry, startup or large; else all"_s, u"NAME"_s);
    const QCommandLineOption trace(u"trace"_s, u"print every action"_s);
    parser.addOptions({seed, actions, page, trace});
    parser.addHelpOption();
    parser.process(*qApp);
    if (parser.isSet(seed))
        options.seed = parser.value(seed).toULongLong();
    if (parser.isSet(actions))
        options.actions = parser.value(actions).toInt();
    options.page = parser.value(page);
    options.isTraced = parser.isSet(trace);
    return options;
}

} // namespace

int main(int argc, char *argv[])
{
    const TestHome home;
    prepareSystem(home);
    QApplication application(argc, argv);
    QApplication::setApplicationName(appinfo::name);
    QApplication::setApplicationVersion(appinfo::version);
    QApplication::setOrganizationName(appinfo::organisation);
    QApplication::setQuitOnLastWindowClosed(false);
    const Robot::Options options = readOptions();
    ActionLog &log = ActionLog::instance();
    log.setTracing(options.isTraced);
    log.setCleanUp([&home] { QDir(home.path()).removeRecursively(); });
    log.open(options.seed, options.page.isEmpty() ? u"all"_s : options.page, patience);

    World world(home);
    RegistryWorld registry(home);
    world.checkFolders();
    Application::instance()->initialize();
    Application::instance()->showMainWindow();
    MainWindow *window = Application::instance()->mainWindow();
    // The shadow around the window only makes painting slow.
    window->findChild<QWidget *>(u"mainContainer"_s)->setGraphicsEffect(nullptr);
    LargeFilePage *large = replaceLargeFilePage(window, world.drives());

    DashboardProbe dashboard(window->findChild<DashboardPage *>(), window->findChild<FullScan *>());
    ResultProbe junk(u"junk"_s, window->findChild<JunkPage *>(),
                     makeFileCheck(&world, World::Owner::Junk, true));
    BrowserProbe browser(u"browser"_s, window->findChild<BrowserPage *>(),
                         makeFileCheck(&world, World::Owner::Browser, false));
    ResultProbe entries(u"registry"_s, window->findChild<RegistryPage *>(),
                        [&registry](const QStringList &keys) { checkEntries(&registry, keys); });
    StartupProbe startup(window->findChild<StartupPage *>(), &registry);
    LargeFileProbe files(large, &world);

#ifdef Q_OS_WIN
    const FakeStart noProgram; // Windows always has a file manager
#endif
    Robot robot(options, window, {&dashboard, &junk, &browser, &entries, &startup, &files}, &world,
                &registry);
    QObject::connect(&robot, &Robot::finished, &application, &QCoreApplication::quit);
    QElapsedTimer timer;
    timer.start();
    robot.start();
    QApplication::exec();
    std::printf("%d actions in %.1f s: %d ticks, %d deletions of %d entries\n", options.actions,
                double(timer.elapsed()) / 1000, robot.judge().tickCount(),
                robot.judge().deletionCount(), robot.judge().deletedCount());
    log.close();
    QDir::setCurrent(QDir::rootPath()); // not every system removes the current folder
    return 0;
}
