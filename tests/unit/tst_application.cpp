#include "application.h"

#include "appinfo.h"
#include "browsercleaner.h"
#include "junkcleaner.h"
#include "language.h"
#include "logger.h"
#include "mainwindow.h"
#include "testhome.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

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
        QFile kept(setAside ? path + ".damaged"_L1 : path);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), content);
        kept.remove();
    }

#ifdef Q_OS_UNIX
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
        QElapsedTimer timer;
        QTimer::singleShot(20, qApp, &QCoreApplication::quit);
        connect(qApp, &QCoreApplication::aboutToQuit, this, [&timer] { timer.start(); });
        Application::instance()->mainWindow()->hide();
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(cleaner->state(), CleanEngine::State::Cancelled);
        QVERIFY(cleaner->result().totalCount() < 3000 * 2000);
        QVERIFY2(timer.elapsed() < 2'000, "the program took long to end");
    }

private:
    static QString settingsPath()
    {
        return QSettings(QSettings::IniFormat, QSettings::UserScope, appinfo::organisation,
                         appinfo::name)
            .fileName();
    }

    const TestHome &m_home;
};

SWEEPWISE_TEST_MAIN(TestApplication, QApplication)
#include "tst_application.moc"
