#include "browserpage.h"
#include "browsersubitem.h"
#include "categorywidget.h"
#include "circleprogresswidget.h"
#include "cleanitemwidget.h"
#include "dashboardpage.h"
#include "drivecard.h"
#include "figures.h"
#include "filecard.h"
#include "junkpage.h"
#include "largefilepage.h"
#include "mainwindow.h"
#include "navbutton.h"
#include "registrypage.h"
#include "startupcard.h"
#include "startuppage.h"
#include "svgicon.h"
#include "titlebar.h"
#include "winbutton.h"

#include "appinfo.h"
#include "application.h"
#include "scriptedengine.h"
#include "startupmanager.h"
#include "testhome.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDirIterator>
#include <QFrame>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMessageBox>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QSystemTrayIcon>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 gibibyte = 1'073'741'824;

/// Sees the interval of every timer that fires, and holds back those that fire once.
class TimerWatch final : public QObject
{
    Q_OBJECT
public:
    TimerWatch() { qApp->installEventFilter(this); }

    QSet<int> once; ///< milliseconds
    QSet<int> again; ///< milliseconds

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (event->type() != QEvent::Timer)
            return false;
        if (const auto *timer = qobject_cast<QTimer *>(receiver)) {
            if (!timer->isSingleShot())
                again.insert(timer->interval());
            return false;
        }
        if (!receiver->inherits("QSingleShotTimer"))
            return false;
        for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(receiver))
            once.insert(timer.interval);
        return true;
    }
};

/// A page in a parent with the application's style.
template<typename Page, typename... Arguments>
class Styled final
{
public:
    explicit Styled(Arguments... arguments)
        : page(arguments..., &m_parent)
    {
    }

private:
    StyledParent m_parent;

public:
    Page page;
};

} // namespace

/// The sizes, texts, fonts, icons and colours of the window and its pages, one table for each.
class TestPageFigures : public QObject
{
    Q_OBJECT
public:
    explicit TestPageFigures(const TestHome &) { }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }

    // --- the window

    void window()
    {
        MainWindow window;
        COMPARE_FIGURES(
            window,
            (Figures{
                {"", "least", "970 x 670"},
                {"", "now", "970 x 670"},
                {"", "margins", "10 10 10 10"},
                {"", "order", "#mainContainer"},
                {"#mainContainer", "margins", "0 0 0 0"},
                {"#mainContainer", "order", "#navWidget | #rightContent"},
                {"#rightContent", "margins", "0 0 0 0"},
                {"#rightContent", "order", "#titleBar | #pageStack"},
                {"#navWidget", "width", "240"},
                {"#navWidget", "margins", "16 20 16 20"},
                {"#navWidget", "spacing", "6"},
                {"#navWidget", "order",
                 "#logoWidget | #navSeparator | 10 | Dashboard | Junk Cleaner | Browser Cleaner | "
                 "Registry Cleaner | Startup Manager | Large Files | stretch | Settings"},
                {"#logoWidget", "margins", "0 8 0 16"},
                {"#logoWidget", "spacing", "10"},
                {"#logoWidget", "content at", "centre"},
                {"#logoWidget", "order", "QWidget | Sweepwise 5.0"},
                {"#logoWidget > .QWidget", "size", "72 x 72"},
                {"#logoWidget > =🧹", "now", "52 x 52"},
                {"#logoWidget > =🧹", "text at", "centre"},
                {"#logoWidget > =🧹", "style",
                 "font-size: 28px;background-color: white;border-radius: 12px;border: none;"},
                {"#logoWidget > =🧹", "background", "#ffffff"},
                {"#logoWidget > =✨", "now", "24 x 24"},
                {"#logoWidget > =✨", "text at", "centre"},
                {"#logoWidget > =✨", "style",
                 "font-size: 14px;background-color: #FCD34D;border-radius: 12px;border: none;"},
                {"#logoWidget > =✨", "background", "#fcd34d"},
                {"#logoLabel", "text", "Sweepwise 5.0"},
                {"#logoLabel", "text at", "centre"},
                {"#logoLabel", "font", "20px 700"},
                {"#logoLabel", "colour", "#ffffff"},
                {"#logoLabel", "style",
                 "font-size: 20px;font-weight: 700;color: white;background: transparent;"
                 "border: none;"},
                {"#navSeparator", "style",
                 "background-color: rgba(255,255,255,0.2); max-height: 1px; border: none;"},
            }));
        const auto *separator = window.findChild<QFrame *>(u"navSeparator"_s);
        QCOMPARE(separator->frameShape(), QFrame::HLine);
    }

    void navigation_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("icon");
        QTest::newRow("dashboard") << 0 << u"Dashboard"_s << QByteArray("dashboard.svg");
        QTest::newRow("junk") << 1 << u"Junk Cleaner"_s << QByteArray("trash.svg");
        QTest::newRow("browser") << 2 << u"Browser Cleaner"_s << QByteArray("browser.svg");
        QTest::newRow("registry") << 3 << u"Registry Cleaner"_s << QByteArray("registry.svg");
        QTest::newRow("startup") << 4 << u"Startup Manager"_s << QByteArray("startup.svg");
        QTest::newRow("large files") << 5 << u"Large Files"_s << QByteArray("largefile.svg");
        QTest::newRow("settings") << 6 << u"Settings"_s << QByteArray("settings.svg");
    }

    void navigation()
    {
        QFETCH(int, index);
        QFETCH(QString, text);
        QFETCH(QByteArray, icon);
        MainWindow window;
        NavButton *button = window.findChildren<NavButton *>().at(index);
        QCOMPARE(button->text(), text);
        const bool isChecked = index == 0;
        const bool isSettings = index == 6;
        COMPARE_FIGURES(*button,
                        (Figures{
                            {"", "height", "48"},
                            {"", "margins", "14 0 14 0"},
                            {"", "cursor", "hand"},
                            {"", "content at", isSettings ? "centre" : "left"},
                            {".QLabel@0", "size", "24 x 24"},
                            {".QLabel@0", "picture", icon.constData()},
                            {".QLabel@1", "font", isChecked ? "14px 600" : "14px 500"},
                            {".QLabel@1", "colour", isChecked ? "#10b981" : "#e6ffffff"},
                        }));
        QVERIFY(button->hasMouseTracking());
        QCOMPARE(button->property("isSettings").toBool(), isSettings);
    }

    void tray()
    {
        MainWindow window;
        const auto *tray = window.findChild<QSystemTrayIcon *>();
        const QImage expected = QIcon(u":/icons/app.svg"_s).pixmap({64, 64}).toImage();
        QVERIFY(!expected.isNull());
        QCOMPARE(tray->icon().pixmap({64, 64}).toImage(), expected);
    }

    void titleBar()
    {
        MainWindow window;
        auto *bar = window.findChild<TitleBar *>();
        COMPARE_FIGURES(*bar,
                        (Figures{
                            {"", "height", "48"},
                            {"", "margins", "16 0 1 0"},
                            {"", "spacing", "0"},
                            {"", "order",
                             "#titleIcon | #titleLabel | stretch | 8 | WinButton | WinButton | "
                             "WinButton | WinButton"},
                            {"#titleIcon", "state", "enabled hidden"},
                            {"#titleLabel", "state", "enabled hidden"},
                            {".WinButton@0", "tip", "Menu"},
                            {".WinButton@1", "tip", "Minimize"},
                            {".WinButton@2", "tip", "Maximize"},
                            {".WinButton@3", "tip", "Close"},
                            {".WinButton@0", "size", "46 x 32"},
                            {".WinButton@1", "size", "46 x 32"},
                            {".WinButton@2", "size", "46 x 32"},
                            {".WinButton@3", "size", "46 x 32"},
                            {".WinButton@0", "cursor", "hand"},
                            {".WinButton@1", "cursor", "hand"},
                            {".WinButton@2", "cursor", "hand"},
                            {".WinButton@3", "cursor", "hand"},
                        }));
        COMPARE_FIGURES(*bar->menu(),
                        (Figures{{"", "style QMenu",
                                  "background-color: white; border: 1px solid #e2e8f0;"
                                  "border-radius: 8px; padding: 8px 4px; min-width: 180px"}}));
    }

    void windowButtons_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("isUnderMouse");
        QTest::addColumn<QString>("symbol");
        QTest::newRow("minimise") << 0 << false << u"#6b7280"_s;
        QTest::newRow("maximise") << 1 << false << u"#6b7280"_s;
        QTest::newRow("restore") << 2 << false << u"#6b7280"_s;
        QTest::newRow("close") << 3 << false << u"#6b7280"_s;
        QTest::newRow("menu") << 4 << false << u"#6b7280"_s;
        QTest::newRow("close, under the mouse") << 3 << true << u"#ffffff"_s;
    }

    void windowButtons()
    {
        QFETCH(int, type);
        QFETCH(bool, isUnderMouse);
        QFETCH(QString, symbol);
        WinButton button(static_cast<WinButton::Type>(type));
        button.setAttribute(Qt::WA_UnderMouse, isUnderMouse);
        QImage picture(button.size() * 4, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(4);
        picture.fill(Qt::transparent);
        button.render(&picture, {}, {}, {});
        QSet<QString> colours; // of the pixels that are wholly covered
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y).alpha() == 255)
                    colours.insert(picture.pixelColor(x, y).name());
            }
        }
        QVERIFY(colours.contains(symbol));
        QCOMPARE(colours.contains(u"#e81123"_s), isUnderMouse);
        if (!isUnderMouse)
            QCOMPARE(colours, QSet<QString>{symbol});
    }

    void aboutBox()
    {
        MainWindow window;
        window.show();
        QStringList found;
        QString title;
        Qt::TextFormat format = Qt::AutoText;
        QSize icon;
        bool wasShown = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            wasShown = box->parentWidget() == &window;
            title = box->windowTitle();
            format = box->textFormat();
            icon = box->iconPixmap().deviceIndependentSize().toSize();
            found = differences(
                *box,
                {{"", "style QMessageBox", "background-color: #ffffff"},
                 {"", "style QMessageBox QLabel", "color: #333333; font-size: 13px"},
                 {"", "style QPushButton",
                  "background-color: #10B981; color: white; border: none; border-radius: 6px;"
                  "padding: 8px 24px; font-size: 13px; min-width: 80px"},
                 {"", "style QPushButton:hover", "background-color: #059669"},
                 {"#qt_msgbox_label", "font", "13px 400"},
                 {"#qt_msgbox_label", "colour", "#333333"},
                 {"#qt_msgboxex_icon_label", "picture", "app.svg"},
                 {".QPushButton", "colour", "#ffffff"},
                 {".QPushButton", "background", "#10b981"},
                 {".QPushButton", "font", "13px 400"}});
            box->accept();
        });
        timer.start(10);
        window.onAboutClicked();
        QVERIFY(wasShown);
        QVERIFY2(found.isEmpty(), qPrintable(found.join(u'\n')));
        QCOMPARE(title, u"About Sweepwise"_s);
        QCOMPARE(format, Qt::RichText);
        QCOMPARE(icon, QSize(64, 64));
    }

    // --- the dashboard

    void dashboardStart()
    {
        Styled<DashboardPage> dashboard;
        COMPARE_FIGURES(dashboard.page, (Figures{{"", "margins", "0 0 0 0"}}));
        QWidget *start = dashboard.page.findChild<QStackedWidget *>()->widget(0);
        COMPARE_FIGURES(
            *start,
            (Figures{
                {".QLabel@0", "size", "120 x 120"},
                {".QLabel@0", "style",
                 "background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 #d1fae5, "
                 "stop:1 #a7f3d0);border-radius: 60px;font-size: 50px;"},
                {"=Ready to Clean Your PC", "style",
                 "font-size: 20px; font-weight: 600; color: #111827;"},
                {"=Ready to Clean Your PC", "font", "20px 600"},
                {"=Ready to Clean Your PC", "colour", "#111827"},
                {"=Click the button below to scan for junk files and free up space", "style",
                 "font-size: 14px; color: #6b7280;"},
                {"=Click the button below to scan for junk files and free up space", "font",
                 "14px 400"},
                {"=Click the button below to scan for junk files and free up space", "colour",
                 "#6b7280"},
                {"#startFullScanBtn", "text", "🔍  Start Full Scan"},
                {"#startFullScanBtn", "size", "200 x 50"},
                {"#startFullScanBtn", "style QPushButton",
                 "background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #10b981, "
                 "stop:1 #059669); border-radius: 12px; font-size: 16px"},
                {"#progressArea", "state", "enabled hidden"},
                {"#percentLabel", "style", "font-size: 24px; font-weight: 700; color: #10b981;"},
                {"#percentLabel", "font", "24px 700"},
                {"#percentLabel", "colour", "#10b981"},
                {"#progressFill > ..", "size", "400 x 8"},
                {"#progressFill > ..", "style", "background: #e5e7eb; border-radius: 4px;"},
                {"#progressFill", "height", "8"},
                {"#progressFill", "style",
                 "background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #10b981, "
                 "stop:1 #059669);border-radius: 4px;"},
                {"#pathLabel", "text", "Preparing..."},
                {"#pathLabel", "style", "font-size: 12px; color: #9ca3af;"},
                {"#pathLabel", "font", "12px 400"},
                {"#pathLabel", "colour", "#9ca3af"},
            }));
    }

    void dashboardResults()
    {
        Styled<DashboardPage> dashboard;
        QWidget *results = dashboard.page.findChild<QStackedWidget *>()->widget(1);
        COMPARE_FIGURES(
            *results,
            (Figures{
                {"", "order",
                 "(Sweepwise 5.0 | Keep Your PC Running at Peak Performance) | #circleCard | "
                 "(#statCard | #statCard | #statCard) | #tipBox"},
                {"=Keep Your PC Running at Peak Performance", "style",
                 "font-size: 14px;color: #6b7280;background: transparent;"},
                {"=Keep Your PC Running at Peak Performance", "font", "14px 400"},
                {"=Keep Your PC Running at Peak Performance", "colour", "#6b7280"},
                {"#circleCard", "style #circleCard",
                 "background: white;border: none;border-radius: 16px;"},
                {"#statusDot", "row widgets", "#statusDot | Ready to scan"},
                {"#dashboardScanBtn", "row widgets", "🔍 Start Scan | 🗑️ Clean All"},
                {".CircleProgressWidget", "size", "180 x 180"},
                {"#statusDot", "size", "10 x 10"},
                {"#statusDot", "style", "background: #10b981; border-radius: 5px;"},
                {"#statusLabel", "text", "Ready to scan"},
                {"#dashboardScanBtn", "text", "🔍 Start Scan"},
                {"#dashboardScanBtn", "size", "145 x 44"},
                {"#dashboardScanBtn", "state", "enabled shown"},
                {"#dashboardScanBtn", "style QPushButton",
                 "background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #10b981, "
                 "stop:1 #059669); border-radius: 10px"},
                {"#dashboardCleanBtn", "text", "🗑️ Clean All"},
                {"#dashboardCleanBtn", "size", "145 x 44"},
                {"#dashboardCleanBtn", "state", "enabled shown"},
                {"#dashboardCleanBtn", "colour", "#ef4444"},
                {"#dashboardCleanBtn", "style QPushButton",
                 "background: white; color: #ef4444; border: 2px solid #ef4444;"
                 "border-radius: 10px"},
                {"#tipBox", "height", "50"},
                {"#tipBox", "style #tipBox",
                 "background: #f0fdf4;border: 1px solid #bbf7d0;border-radius: 12px;"},
                {"#tipBox > .QLabel", "text",
                 "<span style='font-weight:600;'>Tip:</span> Regular cleaning can improve your "
                 "PC performance by up to 30%"},
                {"#tipBox > .QLabel", "style",
                 "font-size: 13px; color: #166534; background: transparent; border: none;"},
                {"#tipBox > .QLabel", "font", "13px 400"},
                {"#tipBox > .QLabel", "colour", "#166534"},
            }));
    }

    void dashboardCards_data()
    {
        QTest::addColumn<QByteArray>("card");
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QByteArray>("bar");
        QTest::addColumn<QByteArray>("icon");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QByteArray>("width");
        QTest::newRow("junk") << QByteArray(".StatCard@0") << QByteArray("Junk Files")
                              << QByteArray("background: #22c55e; border-radius: 2px;")
                              << QByteArray("background: #dcfce7;border: none;"
                                            "border-radius: 12px;font-size: 20px;")
                              << QByteArray("3.0 GB") << QByteArray("100");
        QTest::newRow("browser") << QByteArray(".StatCard@1") << QByteArray("Browser Data")
                                 << QByteArray("background: #3b82f6; border-radius: 2px;")
                                 << QByteArray("background: #dbeafe;border: none;"
                                               "border-radius: 12px;font-size: 20px;")
                                 << QByteArray("1.5 GB") << QByteArray("50");
        QTest::newRow("registry") << QByteArray(".StatCard@2") << QByteArray("Registry Issues")
                                  << QByteArray("background: #f59e0b; border-radius: 2px;")
                                  << QByteArray("background: #fef3c7;border: none;"
                                                "border-radius: 12px;font-size: 20px;")
                                  << QByteArray("7 items") << QByteArray("60");
    }

    void dashboardCards()
    {
        QFETCH(QByteArray, card);
        QFETCH(QByteArray, title);
        QFETCH(QByteArray, bar);
        QFETCH(QByteArray, icon);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, width);
        Styled<DashboardPage> dashboard;
        dashboard.page.showResults(3 * gibibyte, gibibyte * 3 / 2, 7);
        QWidget *shown = dashboard.page.findChildren<QWidget *>(u"statCard"_s)
                             .at(QString::fromLatin1(card).last(1).toInt());
        COMPARE_FIGURES(
            *shown,
            (Figures{
                {"", "cursor", "hand"},
                {"", "style #statCard",
                 "background: white;border: 1px solid #e5e7eb;border-radius: 14px;"},
                {".SvgLabel", "style", icon.constData()},
                {".QLabel@0", "text", title.constData()},
                {".QLabel@0", "style",
                 "font-size: 13px; color: #6b7280; background: transparent; border: none;"},
                {".QLabel@0", "font", "13px 400"},
                {".QLabel@0", "colour", "#6b7280"},
                {"#statValue", "text", value.constData()},
                {"#statValue", "style",
                 "font-size: 15px; font-weight: 700; color: #111827; background: transparent;"
                 "border: none;"},
                {"#statValue", "font", "15px 700"},
                {"#statValue", "colour", "#111827"},
                {"#statBar > ..", "style", "background: #f3f4f6; border-radius: 2px;"},
                {"#statBar", "style", bar.constData()},
                {"#statBar", "width", width.constData()},
                {".QLabel@3", "style",
                 "font-size:14px; color: #9ca3af; background: transparent; border: none;"},
                {".QLabel@3", "font", "14px 400"},
                {".QLabel@3", "colour", "#9ca3af"},
            }));
    }

    void dashboardStates()
    {
        Styled<DashboardPage> dashboard;
        DashboardPage &page = dashboard.page;
        page.setScanning(true);
        COMPARE_FIGURES(page,
                        (Figures{
                            {"#startFullScanBtn", "text", "Scanning..."},
                            {"#startFullScanBtn", "state", "disabled shown"},
                            {"#progressArea", "state", "enabled shown"},
                            {"#percentLabel", "text", "0%"},
                            {"#progressFill", "width", "0"},
                            {"#pathLabel", "text", "Preparing..."},
                            {"#dashboardScanBtn", "state", "disabled shown"},
                            {"#dashboardCleanBtn", "state", "disabled shown"},
                            {"#statusLabel", "text", "Scanning..."},
                            {"#statusDot", "style", "background: #f59e0b; border-radius: 5px;"},
                        }));
        page.updateProgress(37, u"C:/Windows"_s);
        COMPARE_FIGURES(page,
                        (Figures{
                            {"#percentLabel", "text", "37%"},
                            {"#progressFill", "width", "148"},
                            {"#pathLabel", "text", "C:/Windows"},
                        }));
        page.setScanning(false);
        COMPARE_FIGURES(page,
                        (Figures{
                            {"#startFullScanBtn", "text", "🔍  Start Full Scan"},
                            {"#startFullScanBtn", "state", "enabled shown"},
                            {"#progressArea", "state", "enabled hidden"},
                            {"#dashboardScanBtn", "state", "enabled shown"},
                            {"#dashboardCleanBtn", "state", "enabled shown"},
                            {"#statusLabel", "text", "Ready to scan"},
                            {"#statusDot", "style", "background: #10b981; border-radius: 5px;"},
                        }));
    }

    // The arc lies between two greens, the track is grey, and the caption is grey too.
    void circle()
    {
        CircleProgressWidget widget;
        widget.setUnit(u"GB"_s);
        widget.setCaption(u"MMMM"_s);
        constexpr int ratio = 4; // so that the lines of a letter are wholly covered
        const auto drawn = [&widget](int progress) {
            widget.setProgress(progress);
            QImage picture(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
            picture.setDevicePixelRatio(ratio);
            picture.fill(Qt::white);
            widget.render(&picture);
            return picture;
        };
        const QImage full = drawn(100);
        const QImage empty = drawn(0);
        const CircleGeometry geometry(widget.size(), 100);
        for (int degrees = 0; degrees < 360; degrees += 15) {
            const double angle = qDegreesToRadians(double(degrees));
            const QPointF spot = geometry.ring.center()
                + QPointF(qSin(angle), -qCos(angle)) * geometry.ring.width() / 2;
            const QPoint pixel = (spot * ratio).toPoint();
            QCOMPARE(empty.pixelColor(pixel).name(), u"#e5e7eb"_s);
            const QColor arc = full.pixelColor(pixel);
            QVERIFY2(arc.red() >= 0x05 && arc.red() <= 0x10 && arc.green() >= 0x96
                         && arc.green() <= 0xB9 && arc.blue() >= 0x69 && arc.blue() <= 0x81,
                     qPrintable(arc.name()));
        }
        const QRectF box(geometry.captionBox.topLeft() * ratio, geometry.captionBox.size() * ratio);
        int count = 0;
        for (int y = qCeil(box.top()); y < qFloor(box.bottom()); ++y) {
            for (int x = qCeil(box.left()); x < qFloor(box.right()); ++x)
                count += empty.pixelColor(x, y) == QColor(0x9C, 0xA3, 0xAF) ? 1 : 0;
        }
        QVERIFY(count > 0);
    }

    // --- the pages of the rule-driven engines

    void basePage()
    {
        Styled<BasePage> base;
        COMPARE_FIGURES(
            base.page,
            (Figures{
                {"=Cleanup Tool", "font", "24px 600"},
                {"=Cleanup Tool", "colour", "#111827"},
                {"=Scan and clean up unnecessary files", "font", "14px 400"},
                {"=Scan and clean up unnecessary files", "colour", "#6b7280"},
                {"#pageIcon", "picture", "trash.svg"},
                {"=Cleanable", "text", "Cleanable"},
                {"#statisticValue", "text", "--"},
                {"#emptyState > .QLabel@1", "text",
                 "Click \"Start Scanning\" to find cleanable items"},
                {"#emptyState > .QLabel@0", "style", "font-size: 48px;"},
                {"#emptyState > .QLabel@0", "font", "48px 400"},
                {"#emptyState > .QLabel@1", "font", "14px 400"},
                {"#emptyState > .QLabel@1", "colour", "#9ca3af"},
                {"#selectionLabel", "text", "Selected: --"},
                {"#selectionLabel", "font", "13px 400"},
                {"#selectionLabel", "colour", "#6b7280"},
                {"#contentScrollArea", "style QScrollArea", "background: transparent"},
                {"#scanBtn", "text", "Start Scanning"},
                {"#scanBtn", "state", "enabled shown"},
                {"#scanBtn", "font", "14px 500"},
                {"#scanBtn", "colour", "#ffffff"},
                {"#scanBtn", "background", "#10b981"},
                {"#scanBtn", "style QPushButton",
                 "background-color: #10B981; border-radius: 10px; font-size: 14px"},
                {"#scanBtn", "style QPushButton:hover", "background-color: #059669"},
                {"#cleanBtn", "text", "Clean Now"},
                {"#cleanBtn", "state", "disabled shown"},
                {"#cleanBtn", "font", "14px 500"},
                {"#cleanBtn", "style QPushButton",
                 "background-color: #EF4444; border-radius: 10px; font-size: 14px"},
                {"#cleanBtn", "style QPushButton:hover", "background-color: #DC2626"},
                {"=Cleanup Tool", "row order",
                 "Cleanup Tool | Scan and clean up unnecessary files"},
                {"=Cleanable", "row order", "Cleanable | --"},
                {"#scanBtn", "row widgets", "Selected: -- | Start Scanning | Clean Now"},
            }));
    }

    void junkPage()
    {
        Styled<JunkPage> junk;
        COMPARE_FIGURES(
            junk.page,
            (Figures{{"=Junk Cleaner", "row order",
                      "Junk Cleaner | Clean system temp files, cache and logs"},
                     {"=Cleanable Space", "row order", "Cleanable Space | --"},
                     {"#scanBtn", "row widgets", "Selected: -- | Start Scanning | Clean Now"}}));
    }

    void browserPage()
    {
        Styled<BrowserPage> browser;
        COMPARE_FIGURES(
            browser.page,
            (Figures{{"=Browser Cleaner", "row order",
                      "Browser Cleaner | Clean browser cache, cookies and history"},
                     {"=Cleanable Data", "row order", "Cleanable Data | --"},
                     {"#scanBtn", "row widgets", "Selected: -- | Start Scanning | Clean Now"},
                     {"=Select Browser:", "font", "13px 400"},
                     {"=Select Browser:", "colour", "#6b7280"}}));
        CleanCategory category = scriptedCategory(u"opera_cache"_s, 3);
        StyledParent parent;
        BrowserSubItem item(&category, &parent);
        COMPARE_FIGURES(item,
                        (Figures{{"=View Details", "picture", "chevron-right.svg"},
                                 {"=3 items", "text", "3 items"}}));
    }

    void registryPage()
    {
        Styled<RegistryPage> registry;
        COMPARE_FIGURES(
            registry.page,
            (Figures{{"=Registry Cleaner", "row order",
                      "Registry Cleaner | Clean invalid registry entries"},
                     {"=Issues Found", "row order", "Issues Found | --"},
                     {"#scanBtn", "row widgets", "选中: -- | Start Scanning | Clean Now"}}));
    }

    // --- the list of results

    void categoryWidget()
    {
        StyledParent parent;
        CleanCategory category = scriptedCategory(u"temp_files"_s, 25);
        CategoryWidget widget(&category, &parent);
        COMPARE_FIGURES(widget,
                        (Figures{{"#expandBtn", "text", "▼"},
                                 {"#categoryContent", "state", "enabled hidden"}}));
        widget.toggleExpanded();
        COMPARE_FIGURES(
            widget,
            (Figures{
                {"#categoryContent", "state", "enabled shown"},
                {"=Category temp_files", "font", "14px 500"},
                {"=Category temp_files", "colour", "#111827"},
                {"#itemCount", "text", "25 items"},
                {"#itemCount", "style QPushButton",
                 "color: #6B7280; background-color: #F3F4F6; padding: 2px 8px;"
                 "border-radius: 10px; font-size: 12px"},
                {"#itemCount", "font", "12px 400"},
                {"#itemCount", "colour", "#6b7280"},
                {"#itemCount", "background", "#f3f4f6"},
                {"#categorySize", "text", "25.0 KB"},
                {"#categorySize", "font", "13px 600"},
                {"#categorySize", "colour", "#10b981"},
                {"#categoryIcon", "style",
                 "background-color: #10B981; border-radius: 6px; padding: 4px;"},
                {"#categoryIcon", "background", "#10b981"},
                {"#expandBtn", "text", "▲"},
                {"#expandBtn", "style QPushButton",
                 "border: none; color: #9CA3AF; font-size: 10px"},
                {"#expandBtn", "style QPushButton:hover", "color: #10B981"},
                {"#expandBtn", "font", "10px 400"},
                {"#expandBtn", "colour", "#9ca3af"},
                {"#loadMoreBtn", "text", "Load more (15 remaining)"},
                {"#loadMoreBtn", "style QPushButton",
                 "background-color: #F9FAFB; color: #10B981; border: 1px solid #E5E7EB;"
                 "border-radius: 6px; padding: 8px 16px; font-size: 13px"},
                {"#loadMoreBtn", "style QPushButton:hover", "background-color: #F3F4F6"},
                {"#loadMoreBtn", "font", "13px 400"},
                {"#loadMoreBtn", "colour", "#10b981"},
                {"#loadMoreBtn", "background", "#f9fafb"},
            }));
    }

    void itemWidget_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<QByteArray>("colour");
        // The word for a low risk is free.
        QTest::newRow("low") << 0 << QByteArray("Low") << QByteArray("#10b981");
        QTest::newRow("medium") << 1 << QByteArray("Medium") << QByteArray("#f59e0b");
        QTest::newRow("high") << 2 << QByteArray("High") << QByteArray("#ef4444");
    }

    void itemWidget()
    {
        QFETCH(int, level);
        QFETCH(QByteArray, word);
        QFETCH(QByteArray, colour);
        StyledParent parent;
        CleanCategory category = scriptedCategory(u"x"_s, 1);
        category.items[0].riskLevel = level;
        category.items[0].size = 1'572'864;
        CleanItemWidget row(&category, 0, &parent);
        COMPARE_FIGURES(
            row,
            (Figures{
                {"#itemName", "text", "item 0"},
                {"#itemName", "font", "13px 400"},
                {"#itemName", "colour", "#111827"},
                {"#itemPath", "text", "/folder/of/x/item 0"},
                {"#itemPath", "font", "11px 400"},
                {"#itemPath", "colour", "#9ca3af"},
                {"#itemSize", "text", "1.5 MB"},
                {"#itemSize", "font", "12px 500"},
                {"#itemSize", "colour", "#6b7280"},
                {"#itemRisk", "text", word.constData()},
                {"#itemRisk", "colour", colour.constData()},
                {"#itemRisk", "font", "11px 400"},
                {"#itemRisk", "style", "padding: 2px 8px; border-radius: 4px; font-size: 11px;"},
            }));
    }

    // The tables know an icon by its shape. Those of the browsers differ in colour, and no table
    // here has them.
    void noTwoIconsHaveOneShape()
    {
        QList<QImage> shapes;
        QDirIterator files(u":/icons"_s, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            if (path.startsWith(":/icons/browser-"_L1))
                continue;
            const QImage shape =
                svgPixmap(path, {22, 22}, 1).toImage().convertToFormat(QImage::Format_Alpha8);
            QVERIFY(!shape.isNull());
            QVERIFY2(!shapes.contains(shape), qPrintable(path));
            shapes.append(shape);
        }
        QVERIFY(shapes.size() > 28);
    }

    // An id has the icon of its own name, or the default icon.
    void categoryIcons_data()
    {
        QTest::addColumn<QByteArray>("id");
        QTest::addColumn<QByteArray>("icon");
        const auto add = [](const char *id, const char *icon) {
            QTest::newRow(id) << QByteArray(id) << QByteArray(icon);
        };
        add("temp_files", "categories/temp_files.svg");
        add("prefetch", "categories/prefetch.svg");
        add("thumbnails", "categories/thumbnails.svg");
        add("log_files", "categories/log_files.svg");
        add("windows_update", "categories/windows_update.svg");
        add("error_reports", "categories/error_reports.svg");
        add("delivery_optimization", "categories/delivery_optimization.svg");
        add("installer_cache", "categories/installer_cache.svg");
        add("recent_files", "categories/recent_files.svg");
        add("font_cache", "categories/font_cache.svg");
        add("cache", "categories/cache.svg");
        add("code_cache", "categories/code_cache.svg");
        add("gpu_cache", "categories/gpu_cache.svg");
        add("service_worker", "categories/service_worker.svg");
        add("cookies", "categories/cookies.svg");
        add("history", "categories/history.svg");
        add("downloads", "categories/downloads.svg");
        add("session", "categories/session.svg");
        add("form_data", "categories/form_data.svg");
        add("media_cache", "categories/media_cache.svg");
        add("invalid_software", "categories/invalid_software.svg");
        add("invalid_file_assoc", "categories/invalid_file_assoc.svg");
        add("invalid_com", "categories/invalid_com.svg");
        add("invalid_fonts", "categories/invalid_fonts.svg");
        add("invalid_startup", "categories/invalid_startup.svg");
        add("invalid_shared_dll", "categories/invalid_shared_dll.svg");
        add("mui_cache", "categories/mui_cache.svg");
        add("google_chrome_code_cache", "categories/code_cache.svg");
        add("google_chrome_cookies", "categories/cookies.svg");
        add("microsoft_edge_gpu_cache", "categories/gpu_cache.svg");
        add("microsoft_edge_service_worker", "categories/service_worker.svg");
        add("mozilla_firefox_form_data", "categories/form_data.svg");
        add("mozilla_firefox_downloads", "categories/downloads.svg");
        add("opera_history", "categories/history.svg");
        add("opera_media_cache", "categories/media_cache.svg");
        add("brave_session", "categories/session.svg");
        add("brave_cache", "categories/cache.svg");
        add("windows_update_log", "categories/default.svg");
        add("memory_dumps", "categories/default.svg");
        add("other_cookies", "categories/default.svg");
    }

    void categoryIcons()
    {
        QFETCH(QByteArray, id);
        QFETCH(QByteArray, icon);
        CleanCategory category = scriptedCategory(QString::fromLatin1(id), 1);
        CategoryWidget widget(&category);
        COMPARE_FIGURES(widget, (Figures{{"#categoryIcon", "picture", icon.constData()}}));
    }

    // --- the start-up page

    void startupPage()
    {
        Styled<StartupPage> startup;
        COMPARE_FIGURES(
            startup.page,
            (Figures{
                {"", "margins", "24 24 24 24"},
                {"", "order",
                 "((Startup Manager | Check programs to enable auto-start at boot) | 0 programs) "
                 "| (#searchEdit | Refresh | Checked programs will run automatically at startup) "
                 "| #loadingPanel | #startupScrollArea"},
                {"=Startup Manager", "font", "24px 700"},
                {"=Startup Manager", "colour", "#111827"},
                {"=Check programs to enable auto-start at boot", "font", "14px 400"},
                {"=Check programs to enable auto-start at boot", "colour", "#6b7280"},
                {"#countsLabel", "style",
                 "background-color: #10B981;color: white;padding: 6px 12px;border-radius: 12px;"
                 "font-size: 13px;font-weight: 500;"},
                {"#countsLabel", "font", "13px 500"},
                {"#countsLabel", "colour", "#ffffff"},
                {"#countsLabel", "background", "#10b981"},
                {"#searchEdit", "size", "250 x 36"},
                {"#searchEdit", "placeholder", "Search programs..."},
                {"#searchEdit", "style QLineEdit",
                 "background-color: white; border: 1px solid #E5E7EB; border-radius: 8px"},
                {"#searchEdit", "style QLineEdit:focus", "border-color: #10B981"},
                {"#refreshBtn", "text", "Refresh"},
                {"#refreshBtn", "size", "90 x 36"},
                {"#refreshBtn", "colour", "#111827"},
                {"#refreshBtn", "background", "#f3f4f6"},
                {"#refreshBtn", "style QPushButton:hover", "background-color: #E5E7EB"},
                {"=Checked programs will run automatically at startup", "font", "12px 400"},
                {"=Checked programs will run automatically at startup", "colour", "#9ca3af"},
                {"#loadingPanel", "order",
                 "#loadingSymbol | Scanning installed programs... | First load may take a few "
                 "seconds"},
                {"#loadingPanel > .QLabel@0", "font", "36px 400"},
                {"#loadingPanel > .QLabel@0", "colour", "#10b981"},
                {"#loadingPanel > .QLabel@1", "font", "15px 400"},
                {"#loadingPanel > .QLabel@1", "colour", "#6b7280"},
                {"#loadingPanel > .QLabel@2", "font", "13px 400"},
                {"#loadingPanel > .QLabel@2", "colour", "#9ca3af"},
                {"#startupScrollArea", "style QScrollArea", "background: transparent"},
            }));
        const auto *area = startup.page.findChild<QScrollArea *>(u"startupScrollArea"_s);
        QVERIFY(area->widgetResizable());
        QCOMPARE(area->widget()->layout()->contentsMargins().right(), 16);
    }

    void startupDelays()
    {
        Styled<StartupPage> startup;
        TimerWatch watch;
        startup.page.parentWidget()->show();
        QTRY_VERIFY(!watch.once.isEmpty() && !watch.again.isEmpty());
        QCOMPARE(watch.once, QSet<int>{100});
        QCOMPARE(watch.again, QSet<int>{400});
        watch.once.clear();
        startup.page.onRefreshClicked();
        QTRY_VERIFY(!watch.once.isEmpty());
        QCOMPARE(watch.once, QSet<int>{100});
    }

    void startupCard_data()
    {
        QTest::addColumn<bool>("isStartup");
        QTest::addColumn<bool>("hasIcon");
        QTest::addColumn<QByteArray>("iconStyle");
        QTest::newRow("in startup, with an icon")
            << true << true
            << QByteArray("background-color: #DCFCE7; border-radius: 8px; padding: 2px;");
        QTest::newRow("in startup, without an icon")
            << true << false
            << QByteArray("background-color: #DCFCE7; border-radius: 8px; font-size: 16px;");
        QTest::newRow("not in startup, with an icon")
            << false << true
            << QByteArray("background-color: #F3F4F6; border-radius: 8px; padding: 2px;");
        QTest::newRow("not in startup, without an icon")
            << false << false
            << QByteArray("background-color: #F3F4F6; border-radius: 8px; font-size: 16px;");
    }

    void startupCard()
    {
        QFETCH(bool, isStartup);
        QFETCH(bool, hasIcon);
        QFETCH(QByteArray, iconStyle);
        StyledParent parent;
        StartupApp app;
        app.name = u"A program"_s;
        app.exePath = u"C:\\A\\a.exe"_s;
        app.isStartup = isStartup;
        QPixmap picture(32, 32);
        picture.fill(Qt::red);
        StartupCard card(app, hasIcon ? QIcon(picture) : QIcon(), &parent);
        COMPARE_FIGURES(
            card,
            (Figures{
                {"", "height", "70"},
                {"", "margins", "16 10 16 10"},
                {"", "style #startupCard",
                 "background-color: white; border: 1px solid #E5E7EB; border-radius: 12px"},
                {".QCheckBox", "cursor", "hand"},
                {".QCheckBox", "state",
                 isStartup ? "checked enabled shown" : "unchecked enabled shown"},
                {"#iconLabel", "size", "36 x 36"},
                {"#iconLabel", "text", hasIcon ? "" : "📦"},
                {"#iconLabel", "style", iconStyle.constData()},
                {"#iconLabel", "background", isStartup ? "#dcfce7" : "#f3f4f6"},
                {"#appName", "text", "A program"},
                {"#appName", "font", "14px 600"},
                {"#appName", "colour", "#111827"},
                {"=C:\\A\\a.exe", "font", "11px 400"},
                {"=C:\\A\\a.exe", "colour", "#9ca3af"},
                {"=C:\\A\\a.exe", "tip", "C:\\A\\a.exe"},
                {"#statusLabel", "text", "Enabled"},
                {"#statusLabel", "state", isStartup ? "enabled shown" : "enabled hidden"},
                {"#statusLabel", "style",
                 "background-color: #DCFCE7;color: #166534;padding: 4px 10px;border-radius: 6px;"
                 "font-size: 12px;font-weight: 500;"},
                {"#statusLabel", "font", "12px 500"},
                {"#statusLabel", "colour", "#166534"},
                {"#statusLabel", "background", "#dcfce7"},
            }));
        QCOMPARE(card.findChild<QLabel *>(u"iconLabel"_s)->property("hasRealIcon").toBool(),
                 hasIcon);
    }

    // A path is whole up to 60 characters. A longer one keeps 30 at the beginning and 27 at the
    // end.
    void startupPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("shown");
        QTest::newRow("60 characters")
            << u"C:\\4567890123456789012345678901234567890123456789012345.exe!"_s
            << QByteArray("C:\\4567890123456789012345678901234567890123456789012345.exe!");
        QTest::newRow("61 characters")
            << u"C:\\45678901234567890123456789012345678901234567890123456.exe!"_s
            << QByteArray("C:\\456789012345678901234567890...5678901234567890123456.exe!");
    }

    void startupPaths()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, shown);
        StartupApp app;
        app.name = u"A program"_s;
        app.exePath = path;
        StartupCard card(app, QIcon());
        COMPARE_FIGURES(card, (Figures{{".QLabel@2", "text", shown.constData()}}));
    }

    // --- the page of large files

    void largeFileSelection()
    {
        StyledParent parent;
        LargeFilePage page({{u"C:\\"_s, u"System"_s, false, 4 * gibibyte, 3 * gibibyte}}, &parent);
        QWidget *view = page.findChild<QScrollArea *>(u"selectionView"_s)->widget();
        COMPARE_FIGURES(
            *view,
            (Figures{
                {"", "margins", "24 24 24 24"},
                {"", "spacing", "20"},
                {"", "widgets",
                 "(Find Large Files | Scan and clean files that take up a lot of disk space) | "
                 "Select Scan Location | (#driveCard) | "
                 "(Minimum File Size: | #sizeCombo) | 🔍 Start Scan"},
                {"=Find Large Files", "font", "24px 700"},
                {"=Find Large Files", "colour", "#111827"},
                {"=Scan and clean files that take up a lot of disk space", "font", "14px 400"},
                {"=Scan and clean files that take up a lot of disk space", "colour", "#6b7280"},
                {"=Select Scan Location", "font", "15px 600"},
                {"=Select Scan Location", "colour", "#111827"},
                {"#driveCard", "row margins", "0 0 0 0"},
                {"#driveCard", "row spacing", "12"},
                {"=Minimum File Size:", "font", "14px 400"},
                {"=Minimum File Size:", "colour", "#6b7280"},
                {"#sizeCombo", "size", "140 x 36"},
                {"#sizeCombo", "style QComboBox",
                 "background-color: white; border: 1px solid #E5E7EB; border-radius: 8px"},
                {"#sizeCombo", "style QComboBox:hover", "border-color: #10B981"},
                {"#startScanBtn", "text", "🔍 Start Scan"},
                {"#startScanBtn", "size", "140 x 48"},
                {"#startScanBtn", "font", "16px 600"},
                {"#startScanBtn", "colour", "#ffffff"},
                {"#startScanBtn", "background", "#10b981"},
                {"#startScanBtn", "style QPushButton",
                 "background-color: #10B981; border-radius: 12px"},
                {"#startScanBtn", "style QPushButton:hover", "background-color: #059669"},
            }));
    }

    void driveCard_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isRemovable");
        QTest::addColumn<QByteArray>("shown");
        QTest::addColumn<QByteArray>("tip");
        QTest::newRow("10 characters")
            << u"Ten letter"_s << false << QByteArray("Ten letter") << QByteArray("Ten letter");
        QTest::newRow("11 characters")
            << u"Eleven lett"_s << false << QByteArray("Eleven l...") << QByteArray("Eleven lett");
        QTest::newRow("removable")
            << u"Stick"_s << true << QByteArray("Stick 📱") << QByteArray("Stick (Removable)");
        QTest::newRow("removable, 11 characters")
            << u"Eleven lett"_s << true << QByteArray("Eleven l... 📱")
            << QByteArray("Eleven lett (Removable)");
        QTest::newRow("without a name")
            << QString() << false << QByteArray("Local Disk") << QByteArray("Local Disk");
    }

    void driveCard()
    {
        QFETCH(QString, name);
        QFETCH(bool, isRemovable);
        QFETCH(QByteArray, shown);
        QFETCH(QByteArray, tip);
        StyledParent parent;
        DriveCard card({u"D:\\"_s, name, isRemovable, 4 * gibibyte, 3 * gibibyte}, &parent);
        COMPARE_FIGURES(
            card,
            (Figures{
                {"", "size", "140 x 110"},
                {"", "cursor", "hand"},
                {"", "margins", "12 10 12 10"},
                {"", "style #driveCard",
                 "background-color: white; border: 2px solid #E5E7EB; border-radius: 12px"},
                {"", "style #driveCard QLabel", "border: none; background: transparent"},
                {"", "style #driveCard QCheckBox", "border: none; background: transparent"},
                {".QCheckBox", "state", "unchecked enabled shown"},
                {".QCheckBox", "row order",
                 isRemovable ? "QCheckBox | 🔌 | D: | stretch" : "QCheckBox | 💾 | D: | stretch"},
                {isRemovable ? "=🔌" : "=💾", "font", "16px 400"},
                {"=D:", "font", "14px 600"},
                {"=D:", "colour", "#111827"},
                {"#driveName", "text", shown.constData()},
                {"#driveName", "tip", tip.constData()},
                {"#driveName", "font", "12px 400"},
                {"#driveName", "colour", "#6b7280"},
                {"#driveUsage", "text", "1.00 GB/4.00 GB"},
                {"#driveUsage", "font", "11px 400"},
                {"#driveUsage", "colour", "#9ca3af"},
                {".QProgressBar", "range", "0 to 100"},
                {".QProgressBar", "value", "25"},
                {".QProgressBar", "text on bar", "hidden"},
                {".QProgressBar", "height", "4"},
                {".QProgressBar", "style QProgressBar", "background-color: #E5E7EB"},
                {".QProgressBar", "style QProgressBar::chunk", "background-color: #10B981"},
            }));
    }

    void largeFileResults()
    {
        StyledParent parent;
        LargeFilePage page(QList<DriveInfo>{}, &parent);
        QWidget *view = page.findChild<QWidget *>(u"resultsView"_s);
        COMPARE_FIGURES(
            *view,
            (Figures{
                {"", "margins", "24 24 24 24"},
                {"", "spacing", "16"},
                {"=Scan Results", "font", "24px 700"},
                {"=Scan Results", "colour", "#111827"},
                {"#summaryLabel", "text", "Found 0 large files, total 0 B"},
                {"#summaryLabel", "font", "14px 400"},
                {"#summaryLabel", "colour", "#6b7280"},
                {"#backBtn", "text", "← Back"},
                {"#backBtn", "size", "80 x 40"},
                {"#backBtn", "background", "#f3f4f6"},
                {"#backBtn", "style QPushButton", "background-color: #F3F4F6; border-radius: 10px"},
                {"#backBtn", "style QPushButton:hover", "background-color: #E5E7EB"},
                {"#selectedLabel", "text", "Selected: 0 files (0 B)"},
                {"#deleteBtn", "text", "🗑️ Delete Selected"},
                {"#deleteBtn", "state", "disabled shown"},
                {"#deleteBtn", "style QPushButton", "background-color: #FEE2E2; color: #DC2626"},
                {"#deleteBtn", "style QPushButton:hover", "background-color: #FECACA"},
                {"#selectedLabel", "row order",
                 "Selected: 0 files (0 B) | 🗑️ Delete Selected"},
                {"#fileCardList", "style #fileCard",
                 "background-color: white; border: 1px solid #E5E7EB; border-radius: 12px"},
                {"#fileCardList", "style #fileCard:hover", "border-color: #10B981"},
            }));
    }

    void fileMenu()
    {
        StyledParent parent;
        LargeFilePage page(QList<DriveInfo>{}, &parent);
        page.resize(710, 600);
        page.findChild<QStackedWidget *>()->setCurrentIndex(1);
        parent.show();
        page.model()->setFiles({{u"C:/f"_s, u"f"_s, u"C:/"_s, 1, {}, u"other"_s}});
        QTRY_VERIFY(page.findChild<FileCard *>());
        auto *card = page.findChild<FileCard *>();
        Q_EMIT card->customContextMenuRequested({5, 5});
        auto *menu = card->findChild<QMenu *>();
        QVERIFY(menu);
        COMPARE_FIGURES(*menu,
                        (Figures{{"", "style QMenu",
                                  "background-color: white; border: 1px solid #E5E7EB;"
                                  "border-radius: 8px"}}));
        QStringList texts;
        for (const QAction *action : menu->actions())
            texts.append(action->isSeparator() ? u"-"_s : action->text());
        QCOMPARE(texts,
                 (QStringList{u"📂 Open file location"_s, u"-"_s, u"🗑️ Delete this file"_s}));
        menu->close();
    }

    void deletionIsAskedWithNoAsTheDefault()
    {
        StyledParent parent;
        LargeFilePage page(QList<DriveInfo>{}, &parent);
        parent.show();
        page.model()->setFiles({{u"C:/f"_s, u"f"_s, u"C:/"_s, 1'572'864, {}, u"other"_s},
                                {u"C:/g"_s, u"g"_s, u"C:/"_s, 1'048'576, {}, u"other"_s}});
        page.model()->setTicked(0, true);
        page.model()->setTicked(1, true);
        QString text;
        QMessageBox::StandardButtons buttons;
        bool isNo = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            text = box->windowTitle() + u'|' + box->text();
            buttons = box->standardButtons();
            isNo = box->defaultButton() == box->button(QMessageBox::No);
            box->reject();
        });
        timer.start(10);
        page.onDeleteSelected();
        QCOMPARE(text,
                 u"Confirm Delete|Are you sure you want to delete the selected 2 files?\n\n"
                 "Total: 2.5 MB\n\nThis action cannot be undone!"_s);
        QCOMPARE(buttons, QMessageBox::Yes | QMessageBox::No);
        QVERIFY(isNo);
    }

    void fileCard_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QByteArray>("icon");
        QTest::addColumn<qint64>("size");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("badge");
        const QByteArray grey("background-color: #F3F4F6;color: #111827;");
        const QByteArray red("background-color: #FEE2E2;color: #DC2626;");
        QTest::newRow("video") << u"video"_s << QByteArray("🎬") << qint64{1'572'864}
                               << QByteArray("1.5 MB") << grey;
        QTest::newRow("audio") << u"audio"_s << QByteArray("🎵") << qint64{1'073'741'823}
                               << QByteArray("1024.0 MB") << grey;
        QTest::newRow("archive") << u"archive"_s << QByteArray("📦") << qint64{1'073'741'824}
                                 << QByteArray("1.00 GB") << grey;
        QTest::newRow("image") << u"image"_s << QByteArray("🖼️") << qint64{1'073'741'825}
                               << QByteArray("1.00 GB") << red;
        QTest::newRow("document") << u"document"_s << QByteArray("📄") << qint64{2'684'354'560}
                                  << QByteArray("2.50 GB") << red;
        QTest::newRow("other") << u"other"_s << QByteArray("📁") << qint64{1023}
                               << QByteArray("1023 B") << grey;
        QTest::newRow("unknown") << u"program"_s << QByteArray("📁") << qint64{1024}
                                 << QByteArray("1.0 KB") << grey;
    }

    void fileCard()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, icon);
        QFETCH(qint64, size);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, badge);
        StyledParent parent;
        FileCard card(&parent);
        card.bind({u"C:/A folder/a file"_s, u"a file"_s, u"C:/A folder"_s, size, {}, type}, false);
        card.resize(600, 70);
        COMPARE_FIGURES(
            card,
            (Figures{
                {"", "height", "70"},
                {"", "margins", "16 10 16 10"},
                {".QCheckBox", "state", "unchecked enabled shown"},
                {"#fileIcon", "text", icon.constData()},
                {"#fileIcon", "text at", "centre"},
                {"#fileIcon", "size", "36 x 36"},
                {"#fileIcon", "style",
                 "background-color: #F3F4F6; border-radius: 8px; font-size: 16px;"},
                {"#fileIcon", "font", "16px 400"},
                {"#fileIcon", "background", "#f3f4f6"},
                {"#fileName", "font", "14px 600"},
                {"#fileName", "colour", "#111827"},
                {"#fileFolder", "text", "C:/A folder"},
                {"#fileFolder", "tip", "C:/A folder"},
                {"#fileFolder", "font", "11px 400"},
                {"#fileFolder", "colour", "#9ca3af"},
                {"#sizeBadge", "text", text.constData()},
                {"#sizeBadge", "style", badge.constData()},
                {"#sizeBadge", "style",
                 "padding: 4px 10px;border-radius: 6px;font-size: 12px;font-weight: 600;"},
                {"#sizeBadge", "font", "12px 600"},
            }));
        QCOMPARE(card.contextMenuPolicy(), Qt::CustomContextMenu);
    }

    // A folder is whole up to 50 characters. A longer one keeps 25 at the beginning and 22 at the
    // end.
    void fileFolders_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QByteArray>("shown");
        QTest::newRow("50 characters")
            << u"C:/45678901234567890123456789012345678901234567890"_s
            << QByteArray("C:/45678901234567890123456789012345678901234567890");
        QTest::newRow("51 characters")
            << u"C:/45678901234567890123456789012345678901234567890X"_s
            << QByteArray("C:/4567890123456789012345...012345678901234567890X");
    }

    void fileFolders()
    {
        QFETCH(QString, folder);
        QFETCH(QByteArray, shown);
        FileCard card;
        card.bind({folder + "/f"_L1, u"f"_s, folder, 1, {}, u"other"_s}, false);
        COMPARE_FIGURES(card, (Figures{{"#fileFolder", "text", shown.constData()}}));
    }
};

SWEEPWISE_TEST_MAIN(TestPageFigures, QApplication)
#include "tst_pagefigures.moc"
