#include "titlebar.h"

#include "appinfo.h"
#include "linkmanager.h"
#include "signalspy.h"
#include "testhome.h"
#include "uisupport.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A TitleBar that records the programs instead of starting them.
class RecordingTitleBar final : public TitleBar
{
public:
    using TitleBar::TitleBar;
    QStringList started;
    bool canStart = true;

protected:
    bool startDetached(const QString &program, const QStringList &arguments) override
    {
        started.append(program + u' ' + arguments.join(u' '));
        return canStart;
    }
};

QString storedLanguage()
{
    return QSettings(appinfo::organisation, appinfo::name).value("language"_L1).toString();
}

/// The actions of the language menu, as when it is opened.
QList<QAction *> languages(const TitleBar &bar)
{
    auto *menu = bar.menu()->findChild<QMenu *>();
    Q_EMIT menu->aboutToShow();
    return menu->actions();
}

QAction *language(const TitleBar &bar, const QString &code)
{
    for (QAction *action : languages(bar)) {
        if (action->data().toString() == code)
            return action;
    }
    return nullptr;
}

WinButton *button(const TitleBar &bar, WinButton::Type type)
{
    for (auto *candidate : bar.findChildren<WinButton *>()) {
        if (candidate->type() == type)
            return candidate;
    }
    return nullptr;
}

} // namespace

class TestTitleBar : public QObject
{
    Q_OBJECT
public:
    explicit TestTitleBar(const TestHome &) { }

private Q_SLOTS:
    void init() { QSettings(appinfo::organisation, appinfo::name).clear(); }

    void theButtonsStandInOrderWithTheirTips()
    {
        const RecordingTitleBar bar;
        QCOMPARE(bar.objectName(), u"titleBar"_s);
        QCOMPARE(bar.minimumHeight(), 48);
        QCOMPARE(bar.maximumHeight(), 48);
        QStringList tips;
        for (const auto *candidate : bar.findChildren<WinButton *>()) {
            tips.append(candidate->toolTip());
            QCOMPARE(candidate->accessibleName(), candidate->toolTip());
            QCOMPARE(candidate->size(), QSize(46, 32));
            QCOMPARE(candidate->cursor().shape(), Qt::PointingHandCursor);
        }
        QCOMPARE(tips, (QStringList{u"Menu"_s, u"Minimize"_s, u"Maximize"_s, u"Close"_s}));
        for (const QLatin1StringView name : {"titleIcon"_L1, "titleLabel"_L1})
            QVERIFY(bar.findChild<QLabel *>(name)->isHidden());
    }

    void theButtonsEmitTheirSignals()
    {
        RecordingTitleBar bar;
        SignalSpy minimize(&bar, &TitleBar::minimizeClicked);
        SignalSpy maximize(&bar, &TitleBar::maximizeClicked);
        SignalSpy close(&bar, &TitleBar::closeClicked);
        for (const WinButton::Type type :
             {WinButton::Minimize, WinButton::Maximize, WinButton::Close})
            QTest::mouseClick(button(bar, type), Qt::LeftButton);
        QCOMPARE(minimize.size(), 1);
        QCOMPARE(maximize.size(), 1);
        QCOMPARE(close.size(), 1);
    }

    void aMaximizedWindowOffersToRestore()
    {
        RecordingTitleBar bar;
        WinButton *maximize = button(bar, WinButton::Maximize);
        bar.setMaximized(true);
        QCOMPARE(maximize->type(), WinButton::Restore);
        QCOMPARE(maximize->toolTip(), u"Restore"_s);
        bar.setMaximized(false);
        QCOMPARE(maximize->type(), WinButton::Maximize);
        QCOMPARE(maximize->toolTip(), u"Maximize"_s);
    }

    void eachSymbolIsDrawnAndDiffers()
    {
        QList<QImage> pictures;
        for (const WinButton::Type type : {WinButton::Minimize, WinButton::Maximize,
                                           WinButton::Restore, WinButton::Close, WinButton::Menu}) {
            WinButton one(type);
            const QImage picture = one.grab().toImage();
            QVERIFY(!pictures.contains(picture));
            pictures.append(picture);
        }
    }

    void theMenuHasItsEntriesInOrder()
    {
        const RecordingTitleBar bar;
        QStringList texts;
        for (const QAction *action : bar.menu()->actions())
            texts.append(action->isSeparator() ? u"-"_s : action->text());
        QCOMPARE(texts,
                 (QStringList{u"About"_s, u"-"_s, u"Language"_s, u"-"_s, u"Help"_s, u"Support"_s}));
    }

    void theMenuEntriesEmitTheirSignals()
    {
        RecordingTitleBar bar;
        SignalSpy about(&bar, &TitleBar::aboutClicked);
        SignalSpy help(&bar, &TitleBar::helpClicked);
        SignalSpy support(&bar, &TitleBar::supportClicked);
        bar.menu()->actions().at(0)->trigger();
        bar.menu()->actions().at(4)->trigger();
        bar.menu()->actions().at(5)->trigger();
        QCOMPARE(about.size(), 1);
        QCOMPARE(help.size(), 1);
        QCOMPARE(support.size(), 1);
    }

    void theMenuOpensBelowItsButton()
    {
        QWidget window;
        window.resize(600, 400);
        RecordingTitleBar bar(&window);
        bar.setGeometry(0, 0, 600, 48);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        WinButton *menu = button(bar, WinButton::Menu);
        QTest::mouseClick(menu, Qt::LeftButton);
        QTRY_VERIFY(bar.menu()->isVisible());
        QCOMPARE(bar.menu()->pos(), menu->mapToGlobal(menu->rect().bottomLeft()));
        bar.menu()->close();
    }

    void thereAreNineLanguages()
    {
        const RecordingTitleBar bar;
        QStringList codes;
        QStringList texts;
        for (const QAction *action : languages(bar)) {
            QVERIFY(action->isCheckable());
            codes.append(action->data().toString());
            texts.append(action->text());
        }
        QCOMPARE(codes,
                 (QStringList{u"en"_s, u"fr"_s, u"de"_s, u"ja"_s, u"es"_s, u"ko"_s, u"nl"_s,
                              u"pt"_s, u"it"_s}));
        QCOMPARE(texts,
                 (QStringList{u"🇺🇸  English"_s, u"🇫🇷  Français"_s, u"🇩🇪  Deutsch"_s,
                              u"🇯🇵  日本語"_s, u"🇪🇸  Español"_s, u"🇰🇷  한국어"_s,
                              u"🇳🇱  Nederlands"_s, u"🇵🇹  Português"_s, u"🇮🇹  Italiano"_s}));
    }

    // Their names need the fonts of many scripts, which takes time and memory at the start.
    void theLanguagesAreAddedOnceWhenTheirMenuOpens()
    {
        const RecordingTitleBar bar;
        auto *menu = bar.menu()->findChild<QMenu *>();
        QVERIFY(menu->isEmpty());
        bar.menu()->popup({});
        for (int i = 0; i < 2; ++i) {
            menu->popup({});
            QCOMPARE(menu->actions().size(), 9);
            QVERIFY(menu->height() > 9 * menu->fontMetrics().height());
            menu->close();
        }
        bar.menu()->close();
    }

    void theStoredLanguageIsChecked()
    {
        QVERIFY(language(RecordingTitleBar(), u"en"_s)->isChecked());
        QSettings(appinfo::organisation, appinfo::name).setValue("language"_L1, u"ko"_s);
        const RecordingTitleBar bar;
        QCOMPARE(bar.currentLanguage(), u"ko"_s);
        QVERIFY(language(bar, u"ko"_s)->isChecked());
        QVERIFY(!language(bar, u"en"_s)->isChecked());
    }

    void choosingALanguageStoresItAndRestarts()
    {
        RecordingTitleBar bar;
        SignalSpy changed(&bar, &TitleBar::languageChanged);
        const MessageBoxes boxes(QMessageBox::Ok);
        QTimer::singleShot(0, &bar, [&bar] { language(bar, u"de"_s)->trigger(); });
        QTimer::singleShot(10'000, &bar, [] { QCoreApplication::exit(7); });
        QCOMPARE(QCoreApplication::exec(), 0); // the program ends
        QCOMPARE(storedLanguage(), u"de"_s);
        QCOMPARE(LinkManager::instance()->currentLanguage(), u"de"_s);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.constFirst().constFirst().toString(), u"de"_s);
        QCOMPARE(
            boxes.seen(),
            QStringList{
                u"Language Changed|Language has been changed.\n\nThe application will restart now."_s});
        // It starts its own executable with its own arguments.
        QCOMPARE(bar.started,
                 QStringList{QCoreApplication::applicationFilePath() + u' '
                             + QCoreApplication::arguments().mid(1).join(u' ')});
    }

    void aFailedRestartIsReportedAndDoesNotQuit()
    {
        RecordingTitleBar bar;
        bar.canStart = false;
        const MessageBoxes boxes(QMessageBox::Ok);
        bool quit = false;
        const auto connection =
            connect(qApp, &QCoreApplication::aboutToQuit, this, [&quit] { quit = true; });
        language(bar, u"fr"_s)->trigger();
        QTest::qWait(30);
        disconnect(connection);
        QVERIFY(!quit);
        QCOMPARE(boxes.seen().size(), 2);
        QVERIFY(boxes.seen().constLast().contains(u"could not be restarted"_s));
        QCOMPARE(storedLanguage(), u"fr"_s);
    }

#ifdef Q_OS_UNIX
    void aLanguageThatCannotBeStoredChangesNothing()
    {
        RecordingTitleBar bar;
        SignalSpy changed(&bar, &TitleBar::languageChanged);
        const QString linkLanguage = LinkManager::instance()->currentLanguage();
        const QString path = QSettings(appinfo::organisation, appinfo::name).fileName();
        QFile::remove(path);
        // A file in the place of the folder of the settings.
        const QString folder = QFileInfo(path).path();
        QVERIFY(QDir().rename(folder, folder + ".away"_L1));
        QFile file(folder);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const MessageBoxes boxes(QMessageBox::Ok);
        language(bar, u"de"_s)->trigger();
        QTest::qWait(30);
        QVERIFY(file.remove());
        QVERIFY(QDir().rename(folder + ".away"_L1, folder));
        QCOMPARE(boxes.seen(),
                 QStringList{u"Language|The language could not be saved and does not change:\n"_s
                             + path});
        QCOMPARE(boxes.icons(), QList<QMessageBox::Icon>{QMessageBox::Warning});
        QVERIFY(language(bar, u"en"_s)->isChecked());
        QCOMPARE(bar.currentLanguage(), u"en"_s);
        QCOMPARE(LinkManager::instance()->currentLanguage(), linkLanguage);
        QCOMPARE(changed.size(), 0);
        QVERIFY(bar.started.isEmpty());
        QCOMPARE(storedLanguage(), QString());
    }
#endif

    void theActiveLanguageNeitherWritesNorRestarts()
    {
        RecordingTitleBar bar;
        SignalSpy changed(&bar, &TitleBar::languageChanged);
        const MessageBoxes boxes(QMessageBox::Ok);
        language(bar, u"en"_s)->trigger();
        QTest::qWait(30);
        QCOMPARE(storedLanguage(), QString());
        QCOMPARE(changed.size(), 0);
        QVERIFY(boxes.seen().isEmpty());
        QVERIFY(bar.started.isEmpty());
        QVERIFY(language(bar, u"en"_s)->isChecked());
    }
};

SWEEPWISE_TEST_MAIN(TestTitleBar, QApplication)
#include "tst_titlebar.moc"
