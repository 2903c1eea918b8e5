#include "startuppage.h"

#include "appinfo.h"
#include "application.h"
#include "logcapture.h"
#include "registryfixture.h"
#include "startupcard.h"
#include "testhome.h"
#include "uisupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 30'000;
const QString userList =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
const QString runKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

QString counts(const StartupPage &page)
{
    return page.findChild<QLabel *>(u"countsLabel"_s)->text();
}

bool isLoading(const StartupPage &page)
{
    return page.findChild<QWidget *>(u"loadingPanel"_s)->isVisible();
}

QList<StartupCard *> cards(const StartupPage &page)
{
    return page.findChildren<StartupCard *>();
}

StartupCard *card(const StartupPage &page, const QString &name)
{
    for (StartupCard *candidate : cards(page)) {
        if (candidate->property("appName").toString() == name)
            return candidate;
    }
    return nullptr;
}

} // namespace

class TestStartupPage : public QObject
{
    Q_OBJECT
public:
    explicit TestStartupPage(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }
    void init() { m_fixture = std::make_unique<RegistryFixture>(m_home); }
    void cleanup() { m_fixture.reset(); }

    void thePageLoadsAfterItHasPainted()
    {
        addProduct(u"Sweepwise b"_s);
        const QString path = addProduct(u"Sweepwise A"_s);
        m_fixture->addText(runKey, u"Sweepwise A"_s, u'"' + path + u'"');
        m_fixture->write();
        StartupPage page;
        QCOMPARE(counts(page), u"0 programs"_s);
        page.show();
        QVERIFY(isLoading(page));
        QVERIFY(cards(page).isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(!isLoading(page), patience);
        QVERIFY(counts(page).endsWith(u" programs · 1 startup items"_s));
        QVERIFY(card(page, u"Sweepwise A"_s));
        QVERIFY(card(page, u"Sweepwise b"_s));
        QVERIFY(cards(page).indexOf(card(page, u"Sweepwise A"_s))
                < cards(page).indexOf(card(page, u"Sweepwise b"_s)));
    }

    void showingAgainDoesNotReload()
    {
        addProduct(u"Sweepwise A"_s);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        const LogCapture log;
        page.hide();
        page.show();
        QTest::qWait(200);
        QVERIFY(!isLoading(page));
        QVERIFY(!log.contains(u"installed apps"_s));
    }

    void refreshingReloads()
    {
        addProduct(u"Sweepwise A"_s);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        addProduct(u"Sweepwise B"_s);
        m_fixture->write();
        QTest::mouseClick(page.findChild<QPushButton *>(u"refreshBtn"_s), Qt::LeftButton);
        QVERIFY(isLoading(page));
        QTRY_VERIFY_WITH_TIMEOUT(!isLoading(page), patience);
        QVERIFY(card(page, u"Sweepwise B"_s));
    }

    void theAnimationRepeats()
    {
        StartupPage page;
        page.show();
        const auto *symbol = page.findChild<QLabel *>(u"loadingSymbol"_s);
        QStringList frames{symbol->text()};
        for (int i = 0; i < 4; ++i) {
            page.updateLoadingAnimation();
            frames.append(symbol->text());
        }
        QCOMPARE(frames, (QStringList{u"●"_s, u"◐"_s, u"◑"_s, u"◒"_s, u"●"_s}));
    }

    void aCardShowsTheProgram()
    {
        const QString name = u"Sweepwise <b>A</b>\n\u202ename"_s;
        const QString folder = u"a folder & its name makes the path much longer than sixty"_s;
        const QString path = addProduct(name, folder + "/app.exe"_L1);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        const StartupCard *shown = card(page, name);
        QVERIFY(shown);
        QCOMPARE(shown->objectName(), u"startupCard"_s);
        QCOMPARE(shown->minimumHeight(), 70);
        QCOMPARE(shown->property("appExePath").toString(), path);
        QCOMPARE(shown->checkBox()->property("displayName").toString(), name);
        QCOMPARE(shown->checkBox()->property("exePath").toString(), path);
        QVERIFY(shown->checkBox()->accessibleName().contains("Sweepwise"_L1));
        const auto *icon = shown->findChild<QLabel *>(u"iconLabel"_s);
        QCOMPARE(icon->size(), QSize(36, 36));
        QCOMPARE(icon->property("hasRealIcon").toBool(), icon->text().isEmpty());
        QVERIFY(icon->styleSheet().contains("#F3F4F6"_L1));
        QVERIFY(!shown->findChild<QLabel *>(u"statusLabel"_s)->isVisible());
        const QString shortened = path.first(30) + "..."_L1 + path.last(27);
        bool isPathShown = false;
        for (const QLabel *label : shown->findChildren<QLabel *>()) {
            QVERIFY(!label->text().contains(u'\n'));
            if (label->text() == shortened) {
                isPathShown = true;
                QCOMPARE(label->toolTip(), path);
            }
        }
        QVERIFY(isPathShown);
    }

    void tickingAddsAndRemovesTheEntry()
    {
        addProduct(u"Sweepwise A"_s);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        const StartupCard *shown = card(page, u"Sweepwise A"_s);
        const QString before = counts(page);
        const LogCapture log;
        QTest::mouseClick(shown->checkBox(), Qt::LeftButton, {},
                          {8, shown->checkBox()->height() / 2});
        QVERIFY(shown->checkBox()->isChecked());
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise A"_s));
        QVERIFY(shown->findChild<QLabel *>(u"statusLabel"_s)->isVisible());
        QVERIFY(shown->findChild<QLabel *>(u"iconLabel"_s)->styleSheet().contains("#DCFCE7"_L1));
        QVERIFY(counts(page).endsWith(u" programs · 1 startup items"_s));
        QVERIFY(log.contains(u"[INFO] Added \"Sweepwise A\" to startup"_s));

        shown->checkBox()->setFocus();
        QTest::keyClick(shown->checkBox(), Qt::Key_Space);
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise A"_s));
        QVERIFY(!shown->findChild<QLabel *>(u"statusLabel"_s)->isVisible());
        QVERIFY(log.contains(u"[INFO] Removed \"Sweepwise A\" from startup"_s));
        QCOMPARE(counts(page), before);
    }

    void aProgramWithAnothersNameReplacesItsEntryAndTick()
    {
        const QString name = u"Sweepwise Same"_s;
        addProduct(name, u"first/a.exe"_s);
        addProduct(name, u"second/b.exe"_s);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        QList<StartupCard *> shown;
        for (StartupCard *candidate : cards(page)) {
            if (candidate->property("appName").toString() == name)
                shown.append(candidate);
        }
        QCOMPARE(shown.size(), 2);
        shown.at(0)->checkBox()->click();
        shown.at(1)->checkBox()->click();
        QVERIFY(!shown.at(0)->checkBox()->isChecked());
        QVERIFY(!shown.at(0)->findChild<QLabel *>(u"statusLabel"_s)->isVisible());
        QVERIFY(shown.at(1)->checkBox()->isChecked());
        QVERIFY(counts(page).endsWith(u" programs · 1 startup items"_s));
        shown.at(1)->checkBox()->click();
        QVERIFY(!m_fixture->hasValue(runKey, name));
    }

#ifdef Q_OS_UNIX
    // On Windows every entry can be written.
    void aFailedToggleLeavesTheBoxAndWarnsOnce_data()
    {
        QTest::addColumn<bool>("isStartup");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("counted");
        QTest::newRow("turned on")
            << false << u"Operation Failed|Failed to add startup item"_s
            << u"Failed to add startup: Sweepwise A"_s << u" 0 startup items"_s;
        QTest::newRow("turned off")
            << true << u"Operation Failed|Failed to remove startup item"_s
            << u"Failed to remove startup: Sweepwise A"_s << u" 1 startup items"_s;
    }

    void aFailedToggleLeavesTheBoxAndWarnsOnce()
    {
        QFETCH(bool, isStartup);
        QFETCH(QString, warning);
        QFETCH(QString, line);
        QFETCH(QString, counted);
        const QString path = addProduct(u"Sweepwise A"_s);
        if (isStartup)
            m_fixture->addText(runKey, u"Sweepwise A"_s, u'"' + path + u'"');
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        struct stat data {
        };
        QCOMPARE(::stat(QFile::encodeName(m_home.folder(u"prefix"_s)).constData(), &data), 0);
        QProcess server;
        server.setWorkingDirectory(m_home.folder(u"run/server-%1-%2"_s.arg(
            QString::number(data.st_dev, 16), QString::number(data.st_ino, 16))));
        server.start(u"sleep"_s, {u"60"_s});
        QVERIFY(server.waitForStarted());
        const StartupCard *shown = card(page, u"Sweepwise A"_s);
        const LogCapture log;
        const MessageBoxes boxes(QMessageBox::Ok);
        shown->checkBox()->click();
        QCOMPARE(boxes.seen(), QStringList{warning});
        QCOMPARE(boxes.icons(), QList<QMessageBox::Icon>{QMessageBox::Warning});
        QCOMPARE(shown->checkBox()->isChecked(), isStartup);
        QCOMPARE(shown->findChild<QLabel *>(u"statusLabel"_s)->isVisible(), isStartup);
        QCOMPARE(log.count(line), 1);
        QVERIFY(counts(page).endsWith(counted));
        server.kill();
        QVERIFY(server.waitForFinished());
    }
#endif

    void searchingByNameAndPath()
    {
        addProduct(u"Sweepwise Photo"_s, u"pictures/x.exe"_s);
        addProduct(u"Sweepwise Player"_s, u"music/y.exe"_s);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        const QString all = counts(page);
        auto *search = page.findChild<QLineEdit *>(u"searchEdit"_s);
        QCOMPARE(search->size(), QSize(250, 36));
        QTest::keyClicks(search, u"SWEEPWISE PHO"_s);
        QCOMPARE(cards(page).size(), 1);
        QVERIFY(card(page, u"Sweepwise Photo"_s));
        search->setText(u"MUSIC"_s);
        QCOMPARE(cards(page).size(), 1);
        QVERIFY(card(page, u"Sweepwise Player"_s));
        search->setText(u"matches nothing"_s);
        QVERIFY(cards(page).isEmpty());
        QCOMPARE(counts(page), all);
        search->clear();
        QVERIFY(cards(page).size() >= 2);
    }

    void fiveHundredProgramsAreAllListed()
    {
        for (int i = 0; i < 500; ++i)
            addProduct(u"Sweepwise %1"_s.arg(i, 3, 10, QChar(u'0')));
        m_fixture->write();
        StartupPage page;
        page.resize(700, 600);
        showAndLoad(page);
        // The first cards are there at once, the others are added later.
        QVERIFY(cards(page).size() >= 10);
        QTRY_VERIFY_WITH_TIMEOUT(cards(page).size() >= 500, patience);
        QVERIFY(card(page, u"Sweepwise 499"_s));
        page.findChild<QLineEdit *>(u"searchEdit"_s)->setText(u"sweepwise 49"_s);
        QTRY_COMPARE_WITH_TIMEOUT(cards(page).size(), 10, patience);
    }

    void theKeyboardGoesFromSearchToTheCards()
    {
        addProduct(u"Sweepwise A"_s);
        m_fixture->write();
        StartupPage page;
        showAndLoad(page);
        QWidget *search = page.findChild<QLineEdit *>(u"searchEdit"_s);
        QWidget *refresh = page.findChild<QPushButton *>(u"refreshBtn"_s);
        QCOMPARE(nextByTab(search), refresh);
        QWidget *next = nextByTab(refresh);
        while (next && !qobject_cast<QCheckBox *>(next) && next != search)
            next = nextByTab(next);
        QVERIFY(qobject_cast<QCheckBox *>(next));
    }

private:
    void showAndLoad(StartupPage &page)
    {
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QTRY_VERIFY_WITH_TIMEOUT(!isLoading(page), patience);
    }

    // Adds an installed program and returns the Windows path of its executable.
    QString addProduct(const QString &name, const QString &relative = {})
    {
        const QString file = relative.isEmpty() ? u"%1/app.exe"_s.arg(m_products++) : relative;
#ifdef Q_OS_WIN
        const QString folder = m_home.folder(u"Sweepwise Files"_s);
        const QString path = QDir::toNativeSeparators(folder + u'/' + file);
#else
        const QString folder = m_home.folder(u"prefix/drive_c/Sweepwise Files"_s);
        const QString path = "C:\\Sweepwise Files\\"_L1 + QString(file).replace(u'/', u'\\');
#endif
        QDir().mkpath(QFileInfo(folder + u'/' + file).path());
        QFile executable(folder + u'/' + file);
        if (!executable.open(QIODevice::WriteOnly))
            qFatal("cannot write a file of the test");
        const QString key = userList + u"Sweepwise %1"_s.arg(m_products++);
        m_fixture->addBytes(
            key, u"DisplayName"_s, 1,
            QByteArray(reinterpret_cast<const char *>(name.utf16()), (name.size() + 1) * 2));
        m_fixture->addText(key, u"DisplayIcon"_s, path);
        return path;
    }

    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
    int m_products = 0;
};

SWEEPWISE_TEST_MAIN(TestStartupPage, QApplication)
#include "tst_startuppage.moc"
