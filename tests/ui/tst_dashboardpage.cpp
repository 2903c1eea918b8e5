#include "dashboardpage.h"

#include "appinfo.h"
#include "application.h"
#include "browsercleaner.h"
#include "browserprofiles.h"
#include "circleprogresswidget.h"
#include "fullscan.h"
#include "junkcleaner.h"
#include "mainwindow.h"
#include "registrycleaner.h"
#include "registryfixture.h"
#include "rulefolders.h"
#include "signalspy.h"
#include "statcard.h"
#include "testhome.h"
#include "testtree.h"
#include "uisupport.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000;
constexpr qint64 gibibyte = 1LL << 30;

QString text(const DashboardPage &page, const QString &label)
{
    return page.findChild<QLabel *>(label)->text();
}

QPushButton *button(const QWidget &page, const QString &name)
{
    return page.findChild<QPushButton *>(name);
}

CircleProgressWidget *circle(const QWidget &page)
{
    return page.findChild<CircleProgressWidget *>();
}

QList<StatCard *> cards(const QWidget &page)
{
    return page.findChildren<StatCard *>();
}

QStringList values(const QWidget &page)
{
    QStringList list;
    for (const StatCard *card : cards(page))
        list.append(card->value());
    return list;
}

int panel(const QWidget &page)
{
    return page.findChild<QStackedWidget *>()->currentIndex();
}

QString dotStyle(const DashboardPage &page)
{
    return page.findChild<QLabel *>(u"statusDot"_s)->styleSheet();
}

/// A parent that counts the mouse releases that reach it.
class ReleaseCounter final : public QWidget
{
public:
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
};

/// The totals of the three engines: bytes, bytes and entries.
struct Totals {
    qint64 junk;
    qint64 browser;
    int registry;
    bool operator==(const Totals &) const = default;
};

Totals totals()
{
    const auto *application = Application::instance();
    return {std::as_const(*application->junkCleaner()).result().totalSize(),
            std::as_const(*application->browserCleaner()).result().totalSize(),
            std::as_const(*application->registryCleaner()).result().totalCount()};
}

QList<CleanEngine *> engines()
{
    const auto *application = Application::instance();
    return {application->junkCleaner(), application->browserCleaner(),
            application->registryCleaner()};
}

} // namespace

class TestDashboardPage : public QObject
{
    Q_OBJECT
public:
    explicit TestDashboardPage(const TestHome &home)
        : m_fixture(home)
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *variable : {"TMPDIR", "TMP", "TEMP"})
            qputenv(variable, m_tree.folder(u"temp"_s).toUtf8());
        for (int i = 0; i < 40; ++i)
            m_tree.file(u"temp/junk %1.tmp"_s.arg(i), QByteArray(1000 + i, 'x'));
        // In test mode no real browser profile is in the local data folder.
        QStandardPaths::setTestModeEnabled(true);
        m_profiles = platform::localDataFolder() + "/Google"_L1;
        QDir(m_profiles).removeRecursively();
        browserprofiles::makeAll(m_tree);
        QVERIFY(QDir().mkpath(platform::localDataFolder()));
        QVERIFY(QDir().rename(m_tree.path(u"Local/Google"_s), m_profiles));
        for (int i = 0; i < 5; ++i)
            m_fixture.addText(
                u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s,
                u"Sweepwise %1"_s.arg(i), u"C:\\Sweepwise\\gone.exe"_s);
        m_fixture.write();
        Application::instance()->initialize();
    }

    void cleanupTestCase()
    {
        // As at the end of the program.
        for (CleanEngine *engine : engines())
            engine->stopAndWait();
        QVERIFY(QDir(m_profiles).removeRecursively());
    }

    // --- the circle

    void theRingFitsIntoItsWidget_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("square") << QSizeF(180, 180);
        QTest::newRow("wide") << QSizeF(300, 100);
        QTest::newRow("high") << QSizeF(90, 200);
        QTest::newRow("fractions") << QSizeF(120.5, 133.3);
    }

    void theRingFitsIntoItsWidget()
    {
        QFETCH(QSizeF, size);
        const CircleGeometry geometry(size, 30);
        const double half = geometry.penWidth / 2;
        const QRectF outer = geometry.ring.adjusted(-half, -half, half, half);
        QVERIFY(QRectF({}, size).adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(outer));
        QCOMPARE(outer.width(), outer.height());
        QCOMPARE(outer.width(), qMin(size.width(), size.height()));
        QCOMPARE(outer.center(), QRectF({}, size).center());
        // The corners of the texts' boxes are inside the ring.
        const double radius = geometry.ring.width() / 2 - half;
        for (const QRectF &text : {geometry.valueBox, geometry.captionBox}) {
            for (const QPointF &corner :
                 {text.topLeft(), text.topRight(), text.bottomLeft(), text.bottomRight()})
                QVERIFY(QLineF(corner, geometry.ring.center()).length() <= radius);
        }
        QVERIFY(!geometry.valueBox.intersects(geometry.captionBox));
    }

    void theArcShowsTheProgress_data()
    {
        QTest::addColumn<int>("progress");
        QTest::addColumn<int>("span");
        QTest::newRow("nothing") << 0 << 0;
        QTest::newRow("a quarter") << 25 << -90 * 16;
        QTest::newRow("the fixed arc") << 75 << -270 * 16;
        QTest::newRow("all") << 100 << -360 * 16;
        QTest::newRow("above 100") << 150 << -360 * 16;
        QTest::newRow("below 0") << -5 << 0;
    }

    void theArcShowsTheProgress()
    {
        QFETCH(int, progress);
        QFETCH(int, span);
        const CircleGeometry geometry({180, 180}, progress);
        QCOMPARE(geometry.startAngle, 90 * 16);
        QCOMPARE(geometry.spanAngle, span);
    }

    void theArcIsDrawnClockwiseFromTheTop()
    {
        CircleProgressWidget widget;
        widget.setProgress(25);
        const QImage picture = widget.grab().toImage();
        const double ratio = picture.devicePixelRatio();
        const CircleGeometry geometry(widget.size(), 25);
        const auto at = [&](double degrees) { // clockwise from the top
            const double angle = qDegreesToRadians(degrees);
            const double radius = geometry.ring.width() / 2;
            const QPointF spot =
                geometry.ring.center() + QPointF(qSin(angle), -qCos(angle)) * radius;
            return picture.pixelColor((spot * ratio).toPoint());
        };
        for (const double degrees : {10.0, 45.0, 80.0})
            QVERIFY2(at(degrees).green() - at(degrees).red() > 100, qPrintable(at(degrees).name()));
        for (const double degrees : {110.0, 180.0, 270.0, 345.0})
            QCOMPARE(at(degrees), QColor(0xe5, 0xe7, 0xeb));
    }

    void theFigureHasAsManyDecimalsAsItNeeds_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("expected");
        QTest::newRow("percent") << 50.0 << u"%"_s << u"50%"_s;
        QTest::newRow("above 100 percent") << 150.0 << u"%"_s << u"150%"_s;
        QTest::newRow("nothing") << 0.0 << u"GB"_s << u"0 GB"_s;
        QTest::newRow("hardly anything") << 0.001 << u"GB"_s << u"0 GB"_s;
        QTest::newRow("a quarter") << 0.25 << u"GB"_s << u"0.25 GB"_s;
        QTest::newRow("ten") << 10.0 << u"GB"_s << u"10 GB"_s;
        QTest::newRow("many") << 1234.56 << u"GB"_s << u"1234.6 GB"_s;
    }

    void theFigureHasAsManyDecimalsAsItNeeds()
    {
        QFETCH(double, value);
        QFETCH(QString, unit);
        QFETCH(QString, expected);
        QCOMPARE(CircleProgressWidget::valueText(value, unit), expected);
    }

    // --- the page

    void thePageStartsWithoutResults()
    {
        const DashboardPage page;
        QCOMPARE(panel(page), 0);
        QVERIFY(!page.hasResults());
        QVERIFY(page.findChild<QWidget *>(u"progressArea"_s)->isHidden());
        QCOMPARE(button(page, u"startFullScanBtn"_s)->text(), u"🔍  Start Full Scan"_s);
        QCOMPARE(button(page, u"startFullScanBtn"_s)->size(), QSize(200, 50));
        QCOMPARE(circle(page)->size(), QSize(180, 180));
        QCOMPARE(circle(page)->unit(), u"GB"_s);
        QCOMPARE(circle(page)->caption(), u"Can be cleaned"_s);
        QCOMPARE(text(page, u"statusLabel"_s), u"Ready to scan"_s);
    }

    void theButtonsEmitTheirRequests()
    {
        DashboardPage page;
        const SignalSpy scan(&page, &DashboardPage::scanRequested);
        const SignalSpy clean(&page, &DashboardPage::cleanRequested);
        for (const QString &name : {u"startFullScanBtn"_s, u"dashboardScanBtn"_s})
            QTest::mouseClick(button(page, name), Qt::LeftButton);
        QCOMPARE(scan.size(), 2);
        QCOMPARE(clean.size(), 0);
        QTest::mouseClick(button(page, u"dashboardCleanBtn"_s), Qt::LeftButton);
        QCOMPARE(scan.size(), 2);
        QCOMPARE(clean.size(), 1);
    }

    void scanningLocksTheButtonsAndShowsTheProgress()
    {
        DashboardPage page;
        page.showResults(gibibyte, 0, 1);
        page.updateProgress(30, u"x"_s);
        page.setScanning(true);
        QVERIFY(!page.findChild<QWidget *>(u"progressArea"_s)->isHidden());
        QCOMPARE(button(page, u"startFullScanBtn"_s)->text(), u"Scanning..."_s);
        for (const QString &name :
             {u"startFullScanBtn"_s, u"dashboardScanBtn"_s, u"dashboardCleanBtn"_s})
            QVERIFY(!button(page, name)->isEnabled());
        QCOMPARE(text(page, u"percentLabel"_s), u"0%"_s);
        QCOMPARE(page.findChild<QWidget *>(u"progressFill"_s)->width(), 0);
        QCOMPARE(text(page, u"pathLabel"_s), u"Preparing..."_s);
        QCOMPARE(text(page, u"statusLabel"_s), u"Scanning..."_s);
        QCOMPARE(dotStyle(page).toLower(), u"background: #f59e0b; border-radius: 5px;"_s);
        QCOMPARE(circle(page)->value(), 0.0);
        QCOMPARE(circle(page)->progress(), 0);
        QCOMPARE(circle(page)->unit(), u"%"_s);
        QCOMPARE(circle(page)->caption(), u"Scanning..."_s);
        QCOMPARE(panel(page), 1); // results of the last scan stay visible

        page.setScanning(false);
        QVERIFY(page.findChild<QWidget *>(u"progressArea"_s)->isHidden());
        QCOMPARE(button(page, u"startFullScanBtn"_s)->text(), u"🔍  Start Full Scan"_s);
        for (const QString &name :
             {u"startFullScanBtn"_s, u"dashboardScanBtn"_s, u"dashboardCleanBtn"_s})
            QVERIFY(button(page, name)->isEnabled());
        QCOMPARE(text(page, u"statusLabel"_s), u"Ready to scan"_s);
        QCOMPARE(dotStyle(page).toLower(), u"background: #10b981; border-radius: 5px;"_s);
    }

    // The percentage counts rules, and one rule may take long.
    void aSignMovesWhileTheScanWorks_data()
    {
        QTest::addColumn<bool>("hasResults");
        QTest::newRow("start panel") << false;
        QTest::newRow("results panel") << true;
    }
    void aSignMovesWhileTheScanWorks()
    {
        QFETCH(bool, hasResults);
        DashboardPage page;
        page.resize(720, 560);
        if (hasResults)
            page.showResults(gibibyte, 0, 1);
        page.setScanning(true);
        const auto picture = [&page] { return page.grab().toImage(); };
        const QImage still = picture();
        QList<QImage> turn;
        for (int step = 0; step < 12; ++step) {
            page.showActivity();
            turn.append(picture());
            QVERIFY(turn.constLast() != still);
            QCOMPARE(turn.count(turn.constLast()), 1);
        }
        page.showActivity();
        QCOMPARE(picture(), turn.constFirst());
        page.setScanning(true); // the next scan has not worked yet
        QCOMPARE(picture(), still);
        page.showActivity();
        page.setScanning(false);
        DashboardPage expected;
        expected.resize(720, 560);
        if (hasResults)
            expected.showResults(gibibyte, 0, 1);
        expected.setScanning(true);
        expected.setScanning(false);
        QCOMPARE(picture(), expected.grab().toImage());
    }

    void theSignOfTheWindowIsMovedByTheScan()
    {
        MainWindow window;
        auto *page = window.findChild<DashboardPage *>();
        page->setScanning(true);
        const QImage still = page->grab().toImage();
        Q_EMIT window.findChild<FullScan *>()->worked();
        QVERIFY(page->grab().toImage() != still);
    }

    void aLongPathIsShownByItsEnd_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("shown");
        const QString sixty = u"/0123456789"_s.repeated(6).left(60);
        QTest::newRow("60 characters, whole") << sixty << sixty;
        QTest::newRow("61 characters, the last 57")
            << sixty + u'x' << u"..."_s + (sixty + u'x').last(57);
        QTest::newRow("a line break") << u"/a\nb"_s << u"/a\uFFFDb"_s;
        QTest::newRow("markup") << u"/<b>a</b>"_s << u"/<b>a</b>"_s;
    }

    void aLongPathIsShownByItsEnd()
    {
        QFETCH(QString, path);
        QFETCH(QString, shown);
        DashboardPage page;
        page.updateProgress(40, path);
        QCOMPARE(text(page, u"pathLabel"_s), shown);
        QCOMPARE(page.findChild<QLabel *>(u"pathLabel"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(text(page, u"percentLabel"_s), u"40%"_s);
        QCOMPARE(page.findChild<QWidget *>(u"progressFill"_s)->width(), 160);
        QCOMPARE(circle(page)->progress(), 40);
        QCOMPARE(circle(page)->value(), 40.0);
    }

    void above100PercentTheArcIsFullAndTheNumberIsShown()
    {
        DashboardPage page;
        page.updateProgress(150, u"x"_s);
        QCOMPARE(circle(page)->progress(), 100);
        QCOMPARE(circle(page)->value(), 150.0);
        QCOMPARE(text(page, u"percentLabel"_s), u"150%"_s);
        QCOMPARE(page.findChild<QWidget *>(u"progressFill"_s)->width(), 600);
    }

    void theFiguresAreShown_data()
    {
        QTest::addColumn<qint64>("junk");
        QTest::addColumn<qint64>("browser");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<int>("junkBar");
        QTest::addColumn<int>("browserBar");
        QTest::newRow("3 GB and 1 KB")
            << 3 * gibibyte << qint64{1024} << QStringList{u"3.0 GB"_s, u"1.0 KB"_s} << 100 << 20;
        QTest::newRow("below each unit") << qint64{1023} << qint64{1024 * 1024 - 1}
                                         << QStringList{u"1023 B"_s, u"1024.0 KB"_s} << 20 << 100;
        QTest::newRow("MB, half as much") << qint64{5 * 1024 * 1024} << qint64{10 * 1024 * 1024}
                                          << QStringList{u"5.0 MB"_s, u"10.0 MB"_s} << 50 << 100;
        QTest::newRow("terabytes") << 4000 * gibibyte << 1333 * gibibyte
                                   << QStringList{u"4000.0 GB"_s, u"1333.0 GB"_s} << 100 << 33;
    }

    void theFiguresAreShown()
    {
        QFETCH(qint64, junk);
        QFETCH(qint64, browser);
        QFETCH(QStringList, shown);
        QFETCH(int, junkBar);
        QFETCH(int, browserBar);
        DashboardPage page;
        page.setScanning(true);
        page.showResults(junk, browser, 42);
        QCOMPARE(panel(page), 1);
        QVERIFY(page.hasResults());
        QCOMPARE(values(page), shown + QStringList{u"42 items"_s});
        QCOMPARE(cards(page).at(0)->barWidth(), junkBar);
        QCOMPARE(cards(page).at(1)->barWidth(), browserBar);
        QCOMPARE(cards(page).at(2)->barWidth(), 60);
        QCOMPARE(circle(page)->value(), static_cast<double>(junk + browser) / gibibyte);
        QCOMPARE(circle(page)->unit(), u"GB"_s);
        QCOMPARE(circle(page)->caption(), u"Can be cleaned"_s);
        QCOMPARE(circle(page)->progress(), 75);
        QCOMPARE(text(page, u"statusLabel"_s), u"Ready to scan"_s);
    }

    void emptyResultsDoNotChangeTheBars()
    {
        DashboardPage page;
        page.showResults(3 * gibibyte, gibibyte, 1);
        page.showResults(0, 0, 0);
        QCOMPARE(values(page), (QStringList{u"0 B"_s, u"0 B"_s, u"0 items"_s}));
        QCOMPARE(cards(page).at(0)->barWidth(), 100);
        QCOMPARE(cards(page).at(1)->barWidth(), 33);
        QCOMPARE(cards(page).at(2)->barWidth(), 60);
        QCOMPARE(circle(page)->value(), 0.0);
        QCOMPARE(circle(page)->progress(), 75);
    }

    void aCardOpensItsPage_data()
    {
        QTest::addColumn<int>("card");
        QTest::addColumn<int>("pageId");
        QTest::newRow("junk") << 0 << 1;
        QTest::newRow("browser") << 1 << 2;
        QTest::newRow("registry") << 2 << 3;
    }

    void aCardOpensItsPage()
    {
        QFETCH(int, card);
        QFETCH(int, pageId);
        ReleaseCounter parent;
        auto *page = new DashboardPage(&parent);
        page->resize(710, 600);
        page->showResults(1, 1, 1);
        parent.show();
        const SignalSpy navigate(page, &DashboardPage::navigateToPage);
        // A click on one of its texts counts too.
        QTest::mouseClick(cards(*page).at(card), Qt::LeftButton);
        QTest::mouseClick(cards(*page).at(card)->findChild<QLabel *>(u"statValue"_s),
                          Qt::LeftButton);
        QCOMPARE(navigate.size(), 2);
        QTest::keyClick(cards(*page).at(card), Qt::Key_Return);
        QTest::keyClick(cards(*page).at(card), Qt::Key_Space);
        QCOMPARE(navigate.size(), 4);
        for (const QVariantList &arguments : navigate)
            QCOMPARE(arguments.constFirst().toInt(), pageId);
        QCOMPARE(parent.releases, 0);
    }

    // --- the one-click scan

    void theOneClickScanEndsWithTheTotalsOfThreeScans()
    {
        MainWindow window;
        window.show();
        for (CleanEngine *engine : engines()) {
            const SignalSpy finished(engine, &CleanEngine::scanFinished);
            engine->startScan();
            QVERIFY(finished.wait(patience));
        }
        const Totals separate = totals();
        QVERIFY(separate.junk >= 40 * 1000);
        QVERIFY(separate.browser > 0);
        QVERIFY(separate.registry >= 5);

        auto *page = window.findChild<DashboardPage *>();
        QTest::mouseClick(button(*page, u"startFullScanBtn"_s), Qt::LeftButton);
        QVERIFY(!button(*page, u"startFullScanBtn"_s)->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(page->hasResults(), patience);
        QCOMPARE(totals(), separate);
        DashboardPage expected;
        expected.showResults(separate.junk, separate.browser, separate.registry);
        QCOMPARE(values(*page), values(expected));
        QCOMPARE(circle(*page)->value(), circle(expected)->value());
        QVERIFY(button(*page, u"dashboardScanBtn"_s)->isEnabled());
        QVERIFY(text(*page, u"percentLabel"_s).endsWith(u'%'));
        QVERIFY(text(*page, u"percentLabel"_s) != u"0%"_s);
    }

    void aSecondScanIsStartedFromTheResults()
    {
        MainWindow window;
        window.show();
        auto *page = window.findChild<DashboardPage *>();
        for (int i = 0; i < 2; ++i) {
            page->onScanClicked();
            QVERIFY(!button(*page, u"dashboardScanBtn"_s)->isEnabled());
            QTRY_VERIFY_WITH_TIMEOUT(button(*page, u"dashboardScanBtn"_s)->isEnabled(), patience);
            QCOMPARE(panel(*page), 1);
        }
    }

    void aCancelledEngineLeavesTheDashboardScanning()
    {
        MainWindow window;
        window.show();
        auto *page = window.findChild<DashboardPage *>();
        page->onScanClicked();
        Application::instance()->junkCleaner()->cancel();
        for (CleanEngine *engine : engines().mid(1))
            QTRY_COMPARE_WITH_TIMEOUT(engine->state(), CleanEngine::State::Finished, patience);
        QTest::qWait(100);
        QCOMPARE(Application::instance()->junkCleaner()->state(), CleanEngine::State::Cancelled);
        QCOMPARE(button(*page, u"startFullScanBtn"_s)->text(), u"Scanning..."_s);
        QVERIFY(!button(*page, u"startFullScanBtn"_s)->isEnabled());
        QVERIFY(!page->hasResults());
    }

    void cleanAllDoesNothing()
    {
        MainWindow window;
        window.show();
        auto *page = window.findChild<DashboardPage *>();
        page->onScanClicked();
        QTRY_VERIFY_WITH_TIMEOUT(page->hasResults(), patience);
        const Totals before = totals();
        const QMap<QString, QString> files = m_tree.snapshot();
        const MessageBoxes boxes(QMessageBox::Yes);
        QTest::mouseClick(button(*page, u"dashboardCleanBtn"_s), Qt::LeftButton);
        QTest::qWait(50);
        QVERIFY(boxes.seen().isEmpty());
        for (const CleanEngine *engine : engines())
            QCOMPARE(engine->state(), CleanEngine::State::Finished);
        QCOMPARE(totals(), before);
        QCOMPARE(m_tree.snapshot(), files);
    }

    void aCardShowsItsPageInTheWindow()
    {
        MainWindow window;
        window.show();
        auto *page = window.findChild<DashboardPage *>();
        page->showResults(1, 1, 1);
        QTest::mouseClick(cards(*page).at(2), Qt::LeftButton);
        QCOMPARE(window.currentPage(), 3);
    }

private:
    RegistryFixture m_fixture;
    TestTree m_tree;
    QString m_profiles;
};

SWEEPWISE_TEST_MAIN(TestDashboardPage, QApplication)
#include "tst_dashboardpage.moc"
