#include "application.h"

#include "appinfo.h"
#include "browsercleaner.h"
#include "junkcleaner.h"
#include "language.h"
#include "logger.h"
#include "mainwindow.h"
#include "options.h"
#include "testhome.h"
#include "testtree.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QWidget>

#include <cstdio>
#include <cstring>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

/// A window that refuses to close.
class StubbornWindow : public QWidget
{
protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

/// Start-up of the whole program in a home of its own. The one application object keeps its state
/// from test to test, so the tests stand in the order of a program's life.
class TestApplication : public QObject
{
    Q_OBJECT
public:
    explicit TestApplication(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void beforeTheStartThereIsNothing()
    {
        QVERIFY(Application::instance());
        QCOMPARE(Application::instance(), Application::instance());
        QVERIFY(!Application::instance()->settings());
        QVERIFY(!Application::instance()->junkCleaner());
        QVERIFY(!Application::instance()->browserCleaner());
        QVERIFY(!Application::instance()->mainWindow());
    }

    void unreadableSettingsGiveTheDefaultsAndAreKept_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("setAside");
        QTest::newRow("not an INI file") << QByteArray("\x00\xff[[[=\n==\n", 10) << false;
        QTest::newRow("cut off") << QByteArray("[general]\nminimizeToTr") << false;
        QTest::newRow("huge") << QByteArray(3 * 1024 * 1024, 'x') << true;
    }

    void unreadableSettingsGiveTheDefaultsAndAreKept()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, setAside);
        const QString path = settingsPath();
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        Application::instance()->initialize();
        const QSettings *settings = Application::instance()->settings();
        QCOMPARE(settings->value("general/minimizeToTray"_L1, false).toBool(), false);
        QCOMPARE(settings->value("clean/confirmClean"_L1, true).toBool(), true);
        QFile log(Logger::instance().fileName());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString line = "[WARN] Unusable settings were set aside: "_L1 + path;
        QCOMPARE(QString::fromUtf8(log.readAll()).contains(line), setAside);
        QFile kept(setAside ? path + ".damaged"_L1 : path);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), content);
        kept.remove();
    }

#ifdef Q_OS_UNIX
    void aLinkInThePlaceOfTheSettingsIsNotFollowed()
    {
        const QString native = QSettings(appinfo::organisation, appinfo::name).fileName();
        for (const QString &path : {settingsPath(), native}) {
            const QString target = m_home.path() + "/target of a link"_L1;
            QFile file(target);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[clean]\nconfirmClean=false\n");
            file.close();
            QFile::remove(path);
            QVERIFY(QFile::link(target, path));
            QTranslator translator;
            language::install(translator);
            Application::instance()->initialize();
            QSettings &settings = *Application::instance()->settings();
            QCOMPARE(settings.value("clean/confirmClean"_L1, true).toBool(), true);
            settings.setValue("test/link"_L1, 1);
            QSettings(appinfo::organisation, appinfo::name).setValue("language"_L1, u"de"_s);
            settings.sync();
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), QByteArray("[clean]\nconfirmClean=false\n"));
            QVERIFY(QFileInfo(path + ".damaged"_L1).isSymLink());
            QVERIFY(!QFileInfo(path).isSymLink());
            for (const QString &made : {path, native, settingsPath()})
                QFile::remove(made);
            QVERIFY(QFile::remove(path + ".damaged"_L1));
        }
    }

    void whatTheProgramWritesIsForTheUserAlone()
    {
        const FileMask none;
        const QString native = QSettings(appinfo::organisation, appinfo::name).fileName();
        const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QVERIFY(QDir(QFileInfo(data).path()).removeRecursively());
        QVERIFY(QDir(QFileInfo(native).path()).removeRecursively());
        QTranslator translator;
        language::install(translator);
        Application::instance()->initialize();
        Application::instance()->settings()->setValue("test/mode"_L1, 1);
        Application::instance()->settings()->sync();
        QSettings store(appinfo::organisation, appinfo::name);
        store.setValue("language"_L1, u"de"_s);
        store.sync();
        QCOMPARE(modeOf(native), 0600);
        QCOMPARE(modeOf(settingsPath()), 0600);
        QCOMPARE(modeOf(Logger::instance().fileName()), 0600);
        for (const QString &folder : {QFileInfo(native).path(), QFileInfo(data).path(), data,
                                      data + "/logs"_L1, data + "/backups"_L1})
            QCOMPARE(modeOf(folder), 0700);
        QFile::remove(native);
        // What the program starts inherits the mask of its process.
        QFile file(m_home.path() + "/masked by nobody"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(modeOf(file.fileName()), 0666);
    }

    // The toolkit reports a line that it cannot read, and saves all the same.
    void settingsWithAnOddLineAreSaved()
    {
        const QString path = settingsPath();
        QFile::remove(path);
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("no group\n=\n[clean]\nconfirmClean=false\n");
        }
        Application::instance()->initialize();
        QSettings &settings = *Application::instance()->settings();
        QVERIFY(!options::isOn(settings, options::confirmClean));
        options::set(settings, options::minimizeToTray, true);
        QVERIFY(options::save(settings));
        const QSettings saved(path, QSettings::IniFormat);
        QVERIFY(saved.value("general/minimizeToTray"_L1).toBool());
        QVERIFY(!saved.value("clean/confirmClean"_L1, true).toBool());
        QFile::remove(path);
    }

    void aLinkThatComesLaterIsNotFollowedEither()
    {
        const QString path = settingsPath();
        QFile::remove(path);
        Application::instance()->initialize();
        QFile target(m_home.path() + "/precious"_L1);
        QVERIFY(target.open(QIODevice::ReadWrite));
        target.write("keep");
        QVERIFY(target.flush());
        QFile::remove(path);
        QVERIFY(QFile::link(target.fileName(), path));
        QSettings &settings = *Application::instance()->settings();
        options::set(settings, options::minimizeToTray, true);
        QVERIFY(options::save(settings));
        target.seek(0);
        QCOMPARE(target.readAll(), "keep");
        QCOMPARE(modeOf(path), 0600);
        QVERIFY(QSettings(path, QSettings::IniFormat).value("general/minimizeToTray"_L1).toBool());
        QVERIFY(QFile::remove(path + ".damaged"_L1));
        QFile::remove(path);
    }

    void aPipeInThePlaceOfTheSettingsDoesNotHoldUpTheStart()
    {
        const QString native = QSettings(appinfo::organisation, appinfo::name).fileName();
        for (const QString &path : {settingsPath(), native}) {
            QFile::remove(path);
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        }
        QTranslator translator;
        language::install(translator); // would wait for somebody to write into the pipe
        Application::instance()->initialize();
        for (const QString &path : {settingsPath(), native})
            QVERIFY(QFile::remove(path + ".damaged"_L1));
    }

    // The toolkit would look into the files of the organisation and of the system, too, and into
    // the lock of another program.
    void aPipeBesideTheSettingsDoesNotHoldUpTheStart()
    {
        const QString system = m_home.folder(u"system/Norvak"_s);
        const QString folder = QFileInfo(settingsPath()).path();
        QStringList pipes{settingsPath() + ".lock"_L1};
        for (const QString &place : {QFileInfo(folder).path(), QFileInfo(system).path()})
            pipes += {place + "/Norvak.conf"_L1, place + "/Norvak.ini"_L1};
        pipes += {system + "/Sweepwise.conf"_L1, system + "/Sweepwise.ini"_L1};
        QFile::remove(settingsPath());
        for (const QString &pipe : std::as_const(pipes))
            QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QProcess process;
        process.setEnvironment(QProcess::systemEnvironment()
                               + QStringList{"XDG_CONFIG_DIRS="_L1 + QFileInfo(system).path(),
                                             u"QT_QPA_PLATFORM=offscreen"_s});
        process.start(QCoreApplication::applicationFilePath(), {u"start"_s});
        const bool hasEnded = process.waitForFinished(20'000);
        process.kill();
        process.waitForFinished();
        for (const QString &pipe : std::as_const(pipes)) {
            QFile::remove(pipe);
            QFile::remove(pipe + ".damaged"_L1);
        }
        QVERIFY(hasEnded);
        QVERIFY2(process.readAllStandardOutput().contains("saved: 1"),
                 process.readAllStandardError().constData());
        QFile::remove(settingsPath());
    }

    // Neither the damaged file nor what is in the place of its new name is lost or opened. The next
    // start finds the same settings again.
    void settingsThatCannotBeSetAsideAreLeftAlone()
    {
        const QString path = settingsPath();
        QStringList taken;
        for (int number = 1; number <= 100; ++number)
            taken.append(path + ".damaged"_L1
                         + (number == 1 ? QString() : QString::number(number)));
        for (const QString &name : std::as_const(taken))
            QVERIFY(QDir().mkpath(name));
        QFile::remove(path);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        Application::instance()->initialize(); // would wait for somebody to write into the pipe
        Application::instance()->settings()->setValue("test/kept"_L1, 7);
        Application::instance()->initialize();
        QCOMPARE(Application::instance()->settings()->value("test/kept"_L1).toInt(), 7);
        QVERIFY(Application::instance()->settings()->fileName() != path);
        for (const QString &name : std::as_const(taken))
            QVERIFY(QDir().rmdir(name));
        QVERIFY(QFile::remove(Application::instance()->settings()->fileName()));
        QFile::remove(path);
    }
#endif

    void settingsThatAnotherProcessHasLockedDoNotHoldUpTheStart()
    {
        QLockFile lock(settingsPath() + ".lock"_L1);
        lock.setStaleLockTime(0);
        QVERIFY(lock.lock());
        QElapsedTimer timer;
        timer.start();
        Application::instance()->initialize();
        QVERIFY(timer.elapsed() < 5'000);
    }

    void theStartMakesFoldersLogAndEngine()
    {
        Application::instance()->initialize();
        const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QVERIFY(data.endsWith("/Norvak/Sweepwise"_L1));
        QVERIFY(QFileInfo(data + "/logs"_L1).isDir());
        QVERIFY(QFileInfo(data + "/backups"_L1).isDir());
        QFile log(Logger::instance().fileName());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString content = QString::fromUtf8(log.readAll());
        QVERIFY(content.contains("[INFO] Application initializing..."_L1));
        QVERIFY(content.contains("[INFO] Loaded 25 junk rules"_L1));
        QVERIFY(content.contains("[INFO] Loaded 23 browser rules"_L1));
        QVERIFY(content.trimmed().endsWith("[INFO] Application initialized successfully"_L1));
        QCOMPARE(Application::instance()->junkCleaner()->rules().size(), 25);
    }

    void theTwoStoresAreTwoFiles()
    {
        const QString ini = Application::instance()->settings()->fileName();
        const QString native = QSettings(appinfo::organisation, appinfo::name).fileName();
        QVERIFY(ini.endsWith("Norvak/Sweepwise.ini"_L1));
        QVERIFY(ini != native);
    }

    void aSecondShowShowsTheSameWindow()
    {
        Application::instance()->showMainWindow();
        MainWindow *window = Application::instance()->mainWindow();
        QVERIFY(window);
        QVERIFY(window->isVisible());
        window->hide();
        Application::instance()->showMainWindow();
        QCOMPARE(Application::instance()->mainWindow(), window);
        QVERIFY(window->isVisible());
        QCOMPARE(QApplication::topLevelWidgets().count(window), 1);
    }

    void noWindowRefusesARequestToQuit()
    {
        StubbornWindow window;
        window.show();
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QTimer::singleShot(5'000, &window, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(window.isVisible());
    }

    void whatIsNotYetInTheSettingsFileIsSavedOnQuitting()
    {
        QSettings &settings = *Application::instance()->settings();
        const auto change = [&settings] {
            settings.setValue("test/late"_L1, 7);
            QCoreApplication::quit();
        };
        QTimer::singleShot(0, qApp, change);
        QCOMPARE(QCoreApplication::exec(), 0);
        QFile file(settings.fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("late=7"));
    }

    void quittingStopsTheEngines()
    {
        JunkCleaner *cleaner = Application::instance()->junkCleaner();
        // A run that would take long: the same large folder again and again.
        const QString folder = m_home.folder(u"many"_s);
        for (int i = 0; i < 3000; ++i) {
            QFile file(folder + u"/f%1"_s.arg(i));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QByteArray rules = "{\"rules\": [{\"paths\": [\"" + folder.toUtf8() + "\"";
        for (int i = 0; i < 2000; ++i)
            rules += ", \"" + folder.toUtf8() + "\"";
        QFile file(m_home.path() + "/rules.json"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(rules + "]}]}");
        file.close();
        cleaner->loadRules(file.fileName());
        cleaner->startScan();
        QTimer::singleShot(20, qApp, &QCoreApplication::quit);
        Application::instance()->mainWindow()->hide();
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(cleaner->state(), CleanEngine::State::Cancelled);
        QVERIFY(cleaner->result().totalCount() < 3000 * 2000);
    }

private:
#ifdef Q_OS_UNIX
    static int modeOf(const QString &path)
    {
        struct stat data {
        };
        return ::lstat(QFile::encodeName(path).constData(), &data) == 0
            ? static_cast<int>(data.st_mode & 07777)
            : -1;
    }
#endif

    static QString settingsPath()
    {
        return QSettings(QSettings::IniFormat, QSettings::UserScope, appinfo::organisation,
                         appinfo::name)
            .fileName();
    }

    const TestHome &m_home;
};

namespace {

/// Starts the program in the home of the calling test, saves a setting and says whether it is
/// saved.
int startAndSave()
{
    QTranslator translator;
    language::install(translator);
    Application::instance()->initialize();
    QSettings &settings = *Application::instance()->settings();
    settings.setValue("test/start"_L1, 1);
    settings.sync();
    Application::instance()->showMainWindow();
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    std::printf("saved: %d\n", settings.status() == QSettings::NoError);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const bool isChild = argc == 2 && std::strcmp(argv[1], "start") == 0;
    const auto home = isChild ? nullptr : std::make_unique<TestHome>();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setApplicationVersion(appinfo::version);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    if (isChild)
        return startAndSave();
    TestApplication test(*home);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_application.moc"
