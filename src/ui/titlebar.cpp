#include "titlebar.h"

#include "appinfo.h"
#include "ask.h"
#include "languages.h"
#include "linkmanager.h"
#include "logger.h"
#include "options.h"
#include "settingsfile.h"
#include "text.h"
#include "theme.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QSettings>

using namespace Qt::StringLiterals;

TitleBar::TitleBar(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("titleBar"_L1);
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(48);
    m_currentLanguage = settingsfile::openLanguage()->value(options::language, u"en"_s).toString();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 1, 0);
    layout->setSpacing(0);
    for (const QLatin1StringView name : {"titleIcon"_L1, "titleLabel"_L1}) {
        auto *label = new QLabel(this);
        label->setObjectName(name);
        label->hide();
        layout->addWidget(label);
    }
    layout->addStretch();
    layout->addSpacing(8);

    m_menuButton = addButton(WinButton::Menu, tr("Menu"));
    connect(m_menuButton, &QPushButton::clicked, this, &TitleBar::showMenu);
    connect(addButton(WinButton::Minimize, tr("Minimize")), &QPushButton::clicked, this,
            &TitleBar::minimizeClicked);
    m_maximizeButton = addButton(WinButton::Maximize, tr("Maximize"));
    connect(m_maximizeButton, &QPushButton::clicked, this, &TitleBar::maximizeClicked);
    connect(addButton(WinButton::Close, tr("Close")), &QPushButton::clicked, this,
            &TitleBar::closeClicked);
    buildMenu();
}

WinButton *TitleBar::addButton(WinButton::Type type, const QString &name)
{
    auto *button = new WinButton(type, this);
    button->setToolTip(name);
    button->setAccessibleName(name);
    layout()->addWidget(button);
    return button;
}

void TitleBar::setMaximized(bool maximized)
{
    m_isMaximized = maximized;
    m_maximizeButton->setType(maximized ? WinButton::Restore : WinButton::Maximize);
    const QString name = maximized ? tr("Restore") : tr("Maximize");
    m_maximizeButton->setToolTip(name);
    m_maximizeButton->setAccessibleName(name);
}

void TitleBar::showMenu()
{
    m_menu->popup(m_menuButton->mapToGlobal(m_menuButton->rect().bottomLeft()));
}

void TitleBar::buildMenu()
{
    m_menu = new QMenu(this);
    m_menu->setStyleSheet(theme::menu());
    m_menu->addAction(tr("About"), this, &TitleBar::aboutClicked);
    m_menu->addSeparator();

    QMenu *languageMenu = m_menu->addMenu(tr("Language"));
    languageMenu->setStyleSheet(theme::menu());
    // Even a closed menu is measured with the window, and the names need the fonts of many scripts.
    connect(languageMenu, &QMenu::aboutToShow, this, [this, languageMenu] {
        if (!m_languages)
            addLanguages(languageMenu);
    });

    m_menu->addSeparator();
    m_menu->addAction(tr("Help"), this, &TitleBar::helpClicked);
    m_menu->addAction(tr("Support"), this, &TitleBar::supportClicked);
}

void TitleBar::addLanguages(QMenu *menu)
{
    m_languages = new QActionGroup(this);
    m_languages->setExclusive(true);
    for (const languages::Language &language : languages::all) {
        QAction *action = menu->addAction(language.menuText.toString());
        action->setCheckable(true);
        action->setData(QString(language.code));
        m_languages->addAction(action);
    }
    checkLanguage();
    connect(m_languages, &QActionGroup::triggered, this,
            [this](QAction *action) { changeLanguage(action->data().toString()); });
}

void TitleBar::checkLanguage()
{
    for (QAction *action : m_languages->actions())
        action->setChecked(action->data().toString() == m_currentLanguage);
}

void TitleBar::changeLanguage(const QString &code)
{
    if (code == m_currentLanguage)
        return;
    const std::unique_ptr<QSettings> opened = settingsfile::openLanguage();
    QSettings &store = *opened;
    const QVariant before = store.value(options::language);
    store.setValue(options::language, code);
    store.sync();
    if (store.status() != QSettings::NoError) {
        // Other readers of the settings would get the new code until the end of the program.
        if (before.isValid())
            store.setValue(options::language, before);
        else
            store.remove(options::language);
        checkLanguage();
        Logger::instance().error("The language cannot be saved: "_L1 + store.fileName());
        ask::notice(window(), tr("Language"),
                    tr("The language could not be saved and does not change:\n%1")
                        .arg(singleLine(QDir::toNativeSeparators(store.fileName()))),
                    QMessageBox::Warning);
        return;
    }
    m_currentLanguage = code;
    LinkManager::instance()->setLanguage(code);
    Q_EMIT languageChanged(code);

    ask::notice(window(), tr("Language Changed"),
                tr("Language has been changed.\n\nThe application will restart now."));
    restartProgram();
}

void TitleBar::restartProgram()
{
    if (!startDetached(QCoreApplication::applicationFilePath(),
                       QCoreApplication::arguments().mid(1))) {
        ask::notice(window(), tr("Language Changed"),
                    tr("The application could not be restarted. Please start it again yourself."),
                    QMessageBox::Warning);
        return;
    }
    // quit() asks the window first, and the window may hide in the tray instead. exit() ends the
    // program.
    QCoreApplication::exit();
}

bool TitleBar::startDetached(const QString &program, const QStringList &arguments)
{
    return QProcess::startDetached(program, arguments);
}
