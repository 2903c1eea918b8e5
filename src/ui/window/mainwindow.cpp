#include "mainwindow.h"

#include "accessible.h"
#include "appinfo.h"
#include "application.h"
#include "ask.h"
#include "browsercleaner.h"
#include "browserpage.h"
#include "dashboardpage.h"
#include "fullscan.h"
#include "junkcleaner.h"
#include "junkpage.h"
#include "keys.h"
#include "largefilepage.h"
#include "linkmanager.h"
#include "navbutton.h"
#include "options.h"
#include "parts.h"
#include "registrycleaner.h"
#include "registrypage.h"
#include "settingsdialog.h"
#include "startuppage.h"
#include "styletemplate.h"
#include "svgicon.h"
#include "theme.h"
#include "titlebar.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSettings>
#include <QStackedWidget>
#include <QTranslator>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int settingsIndex = 6;

} // namespace

MainWindow::MainWindow()
    : m_fullScan(new FullScan(this))
    , m_translator(new QTranslator(this))
{
    installAccessibleInterfaces();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setMinimumSize(970, 670);
    resize(970, 670);
    setWindowTitle(tr("Sweepwise"));
    setWindowIcon(QIcon(u":/icons/app.svg"_s));

    buildLayout();
    buildTray();
    connectTitleBar();
    connectDashboard();
    applyStyleSheet();
    connect(LinkManager::instance(), &LinkManager::languageChanged, this,
            &MainWindow::onLanguageChanged);
    switchToPage(0);
    // No control has the focus until the user presses Tab. A focus frame around the first button
    // would have no meaning yet.
    m_pageStack->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildLayout()
{
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(10, 10, 10, 10);

    auto *container = new QFrame(this);
    container->setObjectName("mainContainer"_L1);
    auto *shadow = new QGraphicsDropShadowEffect(container);
    shadow->setBlurRadius(20);
    shadow->setColor(theme::color(theme::shadow, 50));
    shadow->setOffset(0, 5);
    container->setGraphicsEffect(shadow);
    outer->addWidget(container);

    m_navWidget = new QWidget(container);
    m_navWidget->setObjectName("navWidget"_L1);
    auto *rightContent = new QWidget(container);
    rightContent->setObjectName("rightContent"_L1);
    auto *columns = new QHBoxLayout(container);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(m_navWidget, 0);
    columns->addWidget(rightContent, 1);

    m_titleBar = new TitleBar(rightContent);
    m_pageStack = new QStackedWidget(rightContent);
    m_pageStack->setObjectName("pageStack"_L1);
    auto *rows = new QVBoxLayout(rightContent);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_titleBar, 0);
    rows->addWidget(m_pageStack, 1);

    buildNavigation();
    buildPages();
}

QWidget *MainWindow::buildLogo()
{
    auto *logo = new QWidget(m_navWidget);
    logo->setObjectName("logoWidget"_L1);
    auto *layout = new QVBoxLayout(logo);
    layout->setContentsMargins(0, 8, 0, 16);
    layout->setSpacing(10);
    layout->setAlignment(Qt::AlignCenter);

    auto *box = new QWidget(logo);
    box->setFixedSize(72, 72);
    parts::centredLabel(u"🧹"_s, theme::logoBox(), box)->setGeometry(10, 10, 52, 52);
    parts::centredLabel(u"✨"_s, theme::logoBadge(), box)->setGeometry(48, 0, 24, 24);
    layout->addWidget(box, 0, Qt::AlignCenter);

    QLabel *label = parts::centredLabel(u"Sweepwise 5.0"_s, theme::logoText(), logo);
    label->setObjectName("logoLabel"_L1);
    layout->addWidget(label);
    return logo;
}

void MainWindow::buildNavigation()
{
    m_navWidget->setFixedWidth(240);
    m_navButtons = {
        new NavButton(tr("Dashboard"), u":/icons/dashboard.svg"_s, m_navWidget),
        new NavButton(tr("Junk Cleaner"), u":/icons/trash.svg"_s, m_navWidget),
        new NavButton(tr("Browser Cleaner"), u":/icons/browser.svg"_s, m_navWidget),
        new NavButton(tr("Registry Cleaner"), u":/icons/registry.svg"_s, m_navWidget),
        new NavButton(tr("Startup Manager"), u":/icons/startup.svg"_s, m_navWidget),
        new NavButton(tr("Large Files"), u":/icons/largefile.svg"_s, m_navWidget),
        new NavButton(tr("Settings"), u":/icons/settings.svg"_s, m_navWidget),
    };
    auto *separator = new QFrame(m_navWidget);
    separator->setObjectName("navSeparator"_L1);
    separator->setFrameShape(QFrame::HLine);
    separator->setStyleSheet(theme::navSeparator());

    auto *layout = new QVBoxLayout(m_navWidget);
    layout->setContentsMargins(16, 20, 16, 20);
    layout->setSpacing(6);
    layout->addWidget(buildLogo());
    layout->addWidget(separator);
    layout->addSpacing(10);
    for (int index = 0; index < m_navButtons.size(); ++index) {
        NavButton *button = m_navButtons.at(index);
        if (index == settingsIndex) {
            layout->addStretch();
            button->setProperty("isSettings", true);
            button->setCentered(true);
        }
        layout->addWidget(button);
        connect(button, &NavButton::clicked, this, [this, index] { onNavButtonClicked(index); });
    }
}

void MainWindow::buildPages()
{
    m_dashboardPage = new DashboardPage(m_pageStack);
    auto *junkPage = new JunkPage(m_pageStack);
    auto *browserPage = new BrowserPage(m_pageStack);
    auto *registryPage = new RegistryPage(m_pageStack);
    m_pageStack->addWidget(m_dashboardPage);
    m_pageStack->addWidget(junkPage);
    m_pageStack->addWidget(browserPage);
    m_pageStack->addWidget(registryPage);
    m_pageStack->addWidget(new StartupPage(m_pageStack));
    m_pageStack->addWidget(new LargeFilePage(m_pageStack));
    for (const BasePage *page :
         std::initializer_list<BasePage *>{junkPage, browserPage, registryPage})
        connect(page, &BasePage::scanFinished, this, &MainWindow::updateStats);
}

void MainWindow::buildTray()
{
    m_trayMenu = new QMenu(this);
    m_trayMenu->addAction(tr("显示主窗口"), this, &MainWindow::onTrayShowWindow);
    m_trayMenu->addSeparator();
    m_trayMenu->addAction(tr("退出"), this, &MainWindow::onTrayExit);

    m_trayIcon = new QSystemTrayIcon(QIcon(u":/icons/app.svg"_s), this);
    m_trayIcon->setToolTip(tr("Sweepwise - PC Cleaning Tool"));
    m_trayIcon->setContextMenu(m_trayMenu);
    connect(m_trayIcon, &QSystemTrayIcon::activated, this, &MainWindow::onTrayIconActivated);
    m_trayIcon->show();
    // The desktop would show the icon of an ended program until the mouse moves over it.
    connect(qApp, &QCoreApplication::aboutToQuit, m_trayIcon, &QSystemTrayIcon::hide);
}

void MainWindow::connectTitleBar()
{
    connect(m_titleBar, &TitleBar::minimizeClicked, this, &MainWindow::onMinimizeClicked);
    connect(m_titleBar, &TitleBar::maximizeClicked, this, &MainWindow::onMaximizeClicked);
    connect(m_titleBar, &TitleBar::closeClicked, this, &MainWindow::onCloseClicked);
    connect(m_titleBar, &TitleBar::aboutClicked, this, &MainWindow::onAboutClicked);
    connect(m_titleBar, &TitleBar::helpClicked, this, &MainWindow::onHelpClicked);
    connect(m_titleBar, &TitleBar::supportClicked, this, &MainWindow::onSupportClicked);
    connect(m_titleBar, &TitleBar::languageChanged, this, &MainWindow::onLanguageChanged);
}

void MainWindow::connectDashboard()
{
    connect(m_dashboardPage, &DashboardPage::scanRequested, this,
            &MainWindow::onDashboardScanRequested);
    connect(m_dashboardPage, &DashboardPage::cleanRequested, this,
            &MainWindow::onDashboardCleanRequested);
    connect(m_dashboardPage, &DashboardPage::navigateToPage, this,
            &MainWindow::onDashboardNavigate);
    connect(m_fullScan, &FullScan::progressed, m_dashboardPage, &DashboardPage::updateProgress);
    connect(m_fullScan, &FullScan::worked, m_dashboardPage, &DashboardPage::showActivity);
    connect(m_fullScan, &FullScan::finished, this,
            [this](qint64 junkSize, qint64 browserSize, int registryCount) {
                m_dashboardPage->setScanning(false);
                m_dashboardPage->showResults(junkSize, browserSize, registryCount);
            });
}

void MainWindow::applyStyleSheet()
{
    QFile file(u":/styles/style.qss"_s);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text))
        setStyleSheet(theme::fill(QString::fromUtf8(file.readAll())));
}

void MainWindow::switchToPage(int index)
{
    if (index < 0 || index >= m_pageStack->count())
        return;
    for (int i = 0; i < settingsIndex; ++i)
        m_navButtons.at(i)->setChecked(i == index);
    m_currentPage = index;
    m_pageStack->setCurrentIndex(index);
    // The page may have changed its view while it was hidden. The focused control is then
    // invisible, and the next key would press it.
    if (const QWidget *focus = focusWidget(); focus && !focus->isVisibleTo(this))
        m_pageStack->setFocus();
}

void MainWindow::onNavButtonClicked(int index)
{
    if (index == settingsIndex)
        onSettingsClicked();
    else
        switchToPage(index);
}

void MainWindow::onMinimizeClicked()
{
    showMinimized();
}

void MainWindow::onMaximizeClicked()
{
    const bool maximize = !isMaximized();
    if (maximize)
        showMaximized();
    else
        showNormal();
    m_titleBar->setMaximized(maximize);
}

void MainWindow::onCloseClicked()
{
    close();
}

void MainWindow::onSettingsClicked()
{
    if (!m_settingsDialog)
        m_settingsDialog = new SettingsDialog(this);
    m_settingsDialog->exec();
}

void MainWindow::onHelpClicked()
{
    LinkManager::instance()->openLink(u"support"_s, u"help"_s, this);
}

void MainWindow::onSupportClicked()
{
    LinkManager::instance()->openLink(u"support"_s, u"contact"_s, this);
}

void MainWindow::updateStats() { }

void MainWindow::onAboutClicked()
{
    QMessageBox box(this);
    box.setWindowTitle(tr("About Sweepwise"));
    box.setTextFormat(Qt::RichText);
    box.setText(tr("<h3>Sweepwise - PC Cleaning Tool</h3><p>Version %1</p>"
                   "<p>Clean your PC with one click!<br>"
                   "Remove junk files, browser data, and registry issues.</p>"
                   "<p>© 2026 Norvak. All rights reserved.</p>")
                    .arg(appinfo::version));
    const QPixmap icon = svgPixmap(u":/icons/app.svg"_s, {64, 64}, devicePixelRatioF());
    if (!icon.isNull())
        box.setIconPixmap(icon);
    box.setStyleSheet(theme::aboutBox());
    box.exec();
}

void MainWindow::onDashboardScanRequested()
{
    const auto *application = Application::instance();
    const FullScan::Engines engines{application->junkCleaner(), application->browserCleaner(),
                                    application->registryCleaner()};
    // A scan would cancel the clean, and the user would not learn how much was removed.
    const bool isCleaning = std::any_of(engines.begin(), engines.end(), [](CleanEngine *engine) {
        return engine && engine->state() == CleanEngine::State::Cleaning;
    });
    if (isCleaning) {
        ask::notice(this, tr("Notice"),
                    tr("A clean is still running. Start the scan when it is over."));
        return;
    }
    m_dashboardPage->setScanning(true);
    m_fullScan->start(engines);
}

void MainWindow::onDashboardCleanRequested() { }

void MainWindow::onDashboardNavigate(int pageId)
{
    switchToPage(pageId);
}

void MainWindow::onTrayIconActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::DoubleClick || reason == QSystemTrayIcon::Trigger)
        onTrayShowWindow();
}

void MainWindow::onTrayShowWindow()
{
    show();
    raise();
    activateWindow();
    if (isMinimized())
        showNormal();
}

void MainWindow::onTrayExit()
{
    m_trayIcon->hide();
    QCoreApplication::quit();
}

void MainWindow::onLanguageChanged(QString language)
{
    qDebug() << "[MainWindow] 语言已切换为:" << language;
}

bool MainWindow::isTrayShown() const
{
    return m_trayIcon && m_trayIcon->isVisible() && QSystemTrayIcon::isSystemTrayAvailable();
}

void MainWindow::showTrayMessage(const QString &title, const QString &text, int milliseconds)
{
    m_trayIcon->showMessage(title, text, QSystemTrayIcon::Information, milliseconds);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const bool minimizesToTray =
        options::isOn(*Application::instance()->settings(), options::minimizeToTray);
    if (minimizesToTray && isTrayShown()) {
        hide();
        showTrayMessage(tr("Sweepwise"),
                        tr("Program minimized to system tray. Double-click the icon to restore."),
                        2000);
        event->ignore();
        return;
    }
    m_trayIcon->hide();
    event->accept();
}

void MainWindow::changeEvent(QEvent *event)
{
    // The desktop can also maximise and restore the window, by a key or a gesture.
    if (event->type() == QEvent::WindowStateChange && m_titleBar)
        m_titleBar->setMaximized(isMaximized());
    QWidget::changeEvent(event);
}

bool MainWindow::isInside(const QWidget *part, QPoint position) const
{
    return QRect(part->mapTo(this, QPoint(0, 0)), part->size()).contains(position);
}

bool MainWindow::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next) && scrollToFocus(this);
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (!pressButtonByEnter(this, *event))
        QWidget::keyPressEvent(event);
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (isInside(m_titleBar, position) || isInside(m_navWidget, position))
        m_drag.press(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent *event)
{
    m_drag.move(event);
}

void MainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    m_drag.release(event);
}
