#include "registrypage.h"

#include "appinfo.h"
#include "application.h"
#include "categorywidget.h"
#include "logcapture.h"
#include "progressdialog.h"
#include "registrybackupdialog.h"
#include "registrycleaner.h"
#include "registryfixture.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"
#include "uisupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QDate>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSemaphore>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <memory>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000;
const QString runKey = u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

QStringList texts(const QWidget &widget)
{
    QStringList list;
    for (const QLabel *label : widget.findChildren<QLabel *>())
        list.append(label->text());
    return list;
}

QPushButton *button(const QWidget &widget, const QString &name)
{
    return widget.findChild<QPushButton *>(name);
}

QCheckBox *check(const RegistryBackupDialog &dialog)
{
    return dialog.findChild<QCheckBox *>(u"backupCheck"_s);
}

QLineEdit *edit(const RegistryBackupDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(u"backupPathEdit"_s);
}

/// Waits for the backup dialog and calls @p act with it once, as a user would act.
class BackupDialogUser final
{
    Q_DISABLE_COPY_MOVE(BackupDialogUser)
public:
    explicit BackupDialogUser(const std::function<void(RegistryBackupDialog &)> &act)
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act] {
            if (auto *dialog =
                    qobject_cast<RegistryBackupDialog *>(QApplication::activeModalWidget())) {
                m_timer.stop();
                m_hasSeenDialog = true;
                act(*dialog);
            }
        });
        m_timer.start();
    }

    [[nodiscard]] bool hasSeenDialog() const { return m_hasSeenDialog; }

private:
    QTimer m_timer;
    bool m_hasSeenDialog = false;
};

} // namespace

class TestRegistryPage : public QObject
{
    Q_OBJECT
public:
    explicit TestRegistryPage(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }

    void init()
    {
        m_fixture = std::make_unique<RegistryFixture>(m_home);
        m_fixture->addText(runKey, u"Sweepwise a"_s, u"C:\\Sweepwise\\a.exe"_s);
        m_fixture->addText(runKey, u"Sweepwise b"_s, u"C:\\Sweepwise\\b.exe"_s);
        m_fixture->write();
    }
    void cleanup() { m_fixture.reset(); }

    void thePageShowsItsTitlesAndCounts()
    {
        RegistryPage page;
        page.show();
        const QStringList shown = texts(page);
        for (const QString &text : {u"Registry Cleaner"_s, u"Clean invalid registry entries"_s,
                                    u"Issues Found"_s, u"选中: --"_s})
            QVERIFY2(shown.contains(text), qPrintable(text));
        QVERIFY(!page.showsSizes());
        QCOMPARE(page.engine(), Application::instance()->registryCleaner());

        scan(page);
        QVERIFY(page.findChild<QLabel *>(u"selectionLabel"_s)->text().startsWith("Selected: "_L1));
        QVERIFY(!page.findChild<QLabel *>(u"selectionLabel"_s)->text().contains(u','));
        QVERIFY(page.findChild<QLabel *>(u"statisticValue"_s)->text().endsWith(" items"_L1));
    }

    void withNothingTickedOnlyTheNoticeAppears()
    {
        RegistryPage page;
        page.show();
        scan(page);
        tick({});
        const BackupDialogUser user([](RegistryBackupDialog &dialog) { dialog.reject(); });
        const MessageBoxes boxes(QMessageBox::Ok);
        page.startClean();
        QCOMPARE(boxes.seen(), QStringList{u"提示|没有选中任何项目"_s});
        QVERIFY(!user.hasSeenDialog());
    }

    void aRejectedDialogChangesNothing()
    {
        RegistryPage page;
        page.show();
        scan(page);
        tick({u"Sweepwise a"_s});
        const BackupDialogUser user(
            [](RegistryBackupDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        page.startClean();
        QVERIFY(user.hasSeenDialog());
        QCOMPARE(Application::instance()->registryCleaner()->state(), CleanEngine::State::Finished);
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise a"_s));
    }

    void whatIsTickedIsBackedUpAndCleaned()
    {
        RegistryPage page;
        page.show();
        scan(page);
        tick({u"Sweepwise a"_s});
        const QString path = m_home.folder(u"backups"_s) + "/mine"_L1;
        QStringList shown;
        const BackupDialogUser user([&](RegistryBackupDialog &dialog) {
            shown = texts(dialog);
            edit(dialog)->setText(path);
            QTest::mouseClick(button(dialog, u"startCleanBtn"_s), Qt::LeftButton);
        });
        auto *engine = Application::instance()->registryCleaner();
        const SignalSpy cleaned(engine, &CleanEngine::cleanFinished);
        page.startClean();
        QVERIFY(!button(page, u"scanBtn"_s)->isEnabled());
        QVERIFY(!button(page, u"cleanBtn"_s)->isEnabled());
        QVERIFY(cleaned.size() == 1 || cleaned.wait(patience));
        QVERIFY(user.hasSeenDialog());
        QVERIFY(shown.contains("About to clean <b>1</b> invalid registry entries"_L1));
        QCOMPARE(cleaned.constFirst().at(1).toInt(), 1);
        QVERIFY(QFile::exists(path + ".reg"_L1));
        QVERIFY(!m_fixture->hasValue(runKey, u"Sweepwise a"_s));
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise b"_s));
        QVERIFY(texts(page).contains(u"选中: --"_s));
        page.findChild<ProgressDialog *>()->accept();
    }

    void withoutTheTickNoBackupIsWritten()
    {
        RegistryPage page;
        page.show();
        scan(page);
        tick({u"Sweepwise a"_s});
        Application::instance()->registryCleaner()->setBackupPath(m_home.path() + "/old.reg"_L1);
        const BackupDialogUser user([](RegistryBackupDialog &dialog) {
            check(dialog)->click();
            QTest::mouseClick(button(dialog, u"startCleanBtn"_s), Qt::LeftButton);
        });
        const LogCapture log;
        const SignalSpy cleaned(Application::instance()->registryCleaner(),
                                &CleanEngine::cleanFinished);
        page.startClean();
        QVERIFY(cleaned.size() == 1 || cleaned.wait(patience));
        QVERIFY(log.contains(u"Registry backup skipped (no backup path specified)"_s));
        QVERIFY(!QFile::exists(m_home.path() + "/old.reg"_L1));
        page.findChild<ProgressDialog *>()->accept();
    }

    void aCancelledCleanKeepsItsBackupPathUntilItEnds()
    {
        RegistryPage page;
        page.show();
        scan(page);
        tick({u"Sweepwise a"_s});
        auto *engine = Application::instance()->registryCleaner();
        const QString folder = m_home.folder(u"backups"_s);
        const auto makeAcceptor = [&folder](const QString &name) {
            return [path = folder + u'/' + name](RegistryBackupDialog &dialog) {
                edit(dialog)->setText(path);
                QTest::mouseClick(button(dialog, u"startCleanBtn"_s), Qt::LeftButton);
            };
        };
        QSemaphore reached;
        QSemaphore held;
        const auto hold = connect(
            engine, &CleanEngine::cleanProgress, engine,
            [&] {
                reached.release();
                held.acquire();
            },
            Qt::DirectConnection);
        const auto release = qScopeGuard([&] {
            disconnect(hold);
            held.release(1000);
        });
        const SignalSpy cleaned(&page, &BasePage::cleanFinished);
        {
            const BackupDialogUser user(makeAcceptor(u"first.reg"_s));
            page.startClean();
            QVERIFY(user.hasSeenDialog());
        }
        QVERIFY(reached.tryAcquire(1, patience));
        page.cancelOperation();
        {
            const BackupDialogUser user(makeAcceptor(u"second.reg"_s));
            page.startClean(); // a wait for the held clean would never end
            QVERIFY(!user.hasSeenDialog()); // its list will be emptied
        }
        QCOMPARE(engine->backupPath(), folder + "/first.reg"_L1);
        held.release(1000);
        QVERIFY(cleaned.wait(patience));
        QVERIFY(!QFile::exists(folder + "/second.reg"_L1));
        QCOMPARE(engine->state(), CleanEngine::State::Cancelled);
    }

    void aMissingBackupIsSaidAfterTheClean_data()
    {
        QTest::addColumn<int>("cancelAt");
        QTest::addColumn<bool>("changesRegistry");
        QTest::addColumn<QString>("details");
        QTest::newRow("all removed") << 0 << false << u"Entries removed without a backup: 2"_s;
        QTest::newRow("cancelled after one")
            << 1 << false << u"Entries removed without a backup: 1"_s;
#ifndef Q_OS_WIN // Windows has no registry file that another program could have written
        QTest::newRow("nothing removed") << 0 << true << u"No entries were removed."_s;
#endif
    }

    void aMissingBackupIsSaidAfterTheClean()
    {
        QFETCH(int, cancelAt);
        QFETCH(bool, changesRegistry);
        QFETCH(QString, details);
        RegistryPage page;
        page.show();
        scan(page);
        tick({u"Sweepwise a"_s, u"Sweepwise b"_s});
        auto *engine = Application::instance()->registryCleaner();
        const TestTree tree;
        const QString path = tree.path(u"lost.reg"_s);
        const BackupDialogUser user([&path](RegistryBackupDialog &dialog) {
            edit(dialog)->setText(path);
            QTest::mouseClick(button(dialog, u"startCleanBtn"_s), Qt::LeftButton);
        });
        // The path becomes unusable after the dialog has checked it.
        QObject context;
        connect(engine, &CleanEngine::stateChanged, &context, [&](CleanEngine::State state) {
            if (state == CleanEngine::State::Cleaning)
                tree.folder(u"lost.reg"_s);
        });
        connect(
            engine, &CleanEngine::cleanProgress, &context,
            [&](int current) {
                if (current == cancelAt)
                    engine->cancel();
                if (changesRegistry && current == 1) {
                    QFile file(m_fixture->file(u"HKEY_CURRENT_USER"_s));
                    if (!file.open(QIODevice::Append) || file.write("\n") < 0)
                        qFatal("cannot change the registry");
                }
            },
            Qt::DirectConnection);
        const LogCapture log;
        const MessageBoxes boxes(QMessageBox::Ok);
        page.startClean();
        QVERIFY(user.hasSeenDialog());
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 1, patience);
        QCOMPARE(boxes.seen().constFirst(),
                 u"Registry Cleaner|The registry backup could not be written:\n%1\n\n%2"_s.arg(
                     QDir::toNativeSeparators(path), u"A folder stands there"_s));
        QCOMPARE(boxes.details(), QStringList{details});
        QCOMPARE(boxes.icons(), QList<QMessageBox::Icon>{QMessageBox::Warning});
        QCOMPARE(log.count(u"[ERROR] Failed to create registry backup"_s), 1);
        // The result itself stays on the screen.
        if (auto *result = page.findChild<ProgressDialog *>()) {
            QVERIFY(result->isVisible());
            result->accept();
        }
    }

    void aScanThatOvertakesTheCleanIsNotHeldUpByTheBox()
    {
        RegistryPage page;
        page.show();
        scan(page);
        tick({u"Sweepwise a"_s});
        auto *engine = Application::instance()->registryCleaner();
        const TestTree tree;
        const QString path = tree.path(u"lost.reg"_s);
        const BackupDialogUser user([&path](RegistryBackupDialog &dialog) {
            edit(dialog)->setText(path);
            QTest::mouseClick(button(dialog, u"startCleanBtn"_s), Qt::LeftButton);
        });
        QObject context;
        connect(engine, &CleanEngine::stateChanged, &context, [&](CleanEngine::State state) {
            if (state == CleanEngine::State::Cleaning)
                tree.folder(u"lost.reg"_s);
        });
        const LogCapture log;
        page.startClean();
        QVERIFY(user.hasSeenDialog());
        // Without the event loop, so that the page does not hear of the end of the clean.
        const QDeadlineTimer deadline(patience);
        while (!log.contains(u"Failed to create registry backup"_s) && !deadline.hasExpired())
            QTest::qSleep(1);
        const MessageBoxes boxes(QMessageBox::Ok);
        engine->startScan();
        QVERIFY(boxes.seen().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(boxes.seen().size(), 1, patience);
        QTRY_COMPARE_WITH_TIMEOUT(engine->state(), CleanEngine::State::Finished, patience);
    }

    // --- the dialog

    void theDialogHasItsSizeAndTexts()
    {
        const RegistryBackupDialog dialog(12);
        QCOMPARE(dialog.size(), QSize(450, 280));
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
        for (const QString &text :
             {u"Clean Registry"_s, u"About to clean <b>12</b> invalid registry entries"_s,
              u"Save to:"_s,
              u"⚠️ Backup file can be used to restore accidentally deleted registry entries"_s})
            QVERIFY2(texts(dialog).contains(text), qPrintable(text));
        QCOMPARE(check(dialog)->text(), u"Backup registry before cleaning (Recommended)"_s);
        QVERIFY(check(dialog)->isChecked());
        QCOMPARE(button(dialog, u"browseBtn"_s)->size(), QSize(70, 34));
        QCOMPARE(button(dialog, u"cancelBtn"_s)->minimumSize(), QSize(90, 38));
        QCOMPARE(button(dialog, u"startCleanBtn"_s)->minimumSize(), QSize(100, 38));
        QCOMPARE(edit(dialog)->text(),
                 QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)
                     + "/registry_backup_"_L1 + QDate::currentDate().toString(u"yyyyMMdd"_s)
                     + ".reg"_L1);
    }

    void theBackupPath_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("path");
        QTest::newRow("whole") << u"/a/backup.reg"_s << u"/a/backup.reg"_s;
        QTest::newRow("capitals are kept") << u"backup.REG"_s << u"backup.REG"_s;
        QTest::newRow("suffix is added") << u"backup"_s << u"backup.reg"_s;
        QTest::newRow("another suffix stays") << u"backup.txt"_s << u"backup.txt.reg"_s;
        QTest::newRow("blanks around are cut") << u"  a b.reg "_s << u"a b.reg"_s;
        QTest::newRow("blanks only mean none") << u"   "_s << QString();
        QTest::newRow("nothing means none") << QString() << QString();
    }
    void theBackupPath()
    {
        QFETCH(QString, typed);
        QFETCH(QString, path);
        const RegistryBackupDialog dialog(1);
        edit(dialog)->setText(typed);
        QCOMPARE(dialog.backupPath(), path);
    }

    void uncheckingDisablesThePathAndTheBackup()
    {
        const RegistryBackupDialog dialog(1);
        check(dialog)->click();
        QVERIFY(!edit(dialog)->isEnabled());
        QVERIFY(!button(dialog, u"browseBtn"_s)->isEnabled());
        QVERIFY(dialog.backupPath().isEmpty());
        check(dialog)->click();
        QVERIFY(edit(dialog)->isEnabled());
        QVERIFY(button(dialog, u"browseBtn"_s)->isEnabled());
        QVERIFY(!dialog.backupPath().isEmpty());
    }

    void browsingTakesTheChosenFile()
    {
        RegistryBackupDialog dialog(1);
        dialog.show();
        edit(dialog)->setText(m_home.folder(u"chosen"_s) + "/start.reg"_L1);
        QString caption;
        QStringList filters;
        QTimer::singleShot(100, &dialog, [&] {
            auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!chooser)
                return;
            caption = chooser->windowTitle();
            filters = chooser->nameFilters();
            chooser->selectFile(m_home.folder(u"chosen"_s) + "/other"_L1);
            chooser->findChild<QLineEdit *>()->setText(u"other"_s);
            QMetaObject::invokeMethod(chooser, "accept");
        });
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        dialog.browse();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
        QCOMPARE(caption, u"Select backup location"_s);
        QCOMPARE(filters, QStringList{u"Registry files (*.reg)"_s});
        QCOMPARE(edit(dialog)->text(), m_home.folder(u"chosen"_s) + "/other.reg"_L1);
    }

    // --- the check of the backup path, before anything is removed

    void aMissingFolderIsMade()
    {
        const TestTree tree;
        RegistryBackupDialog dialog(1);
        dialog.show();
        edit(dialog)->setText(tree.path(u"not/yet/there/one"_s));
        button(dialog, u"startCleanBtn"_s)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(QFileInfo(tree.path(u"not/yet/there"_s)).isDir());
        QVERIFY(QDir(tree.path(u"not/yet/there"_s)).isEmpty());
    }

    void aFileIsReplacedOnlyAfterAQuestion_data()
    {
        QTest::addColumn<bool>("agrees");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }
    void aFileIsReplacedOnlyAfterAQuestion()
    {
        QFETCH(bool, agrees);
        const TestTree tree;
        const QString path = tree.file(u"one.reg"_s, "old");
        RegistryBackupDialog dialog(1);
        dialog.show();
        edit(dialog)->setText(tree.path(u"one"_s));
        const MessageBoxes boxes(agrees ? QMessageBox::Yes : QMessageBox::No);
        button(dialog, u"startCleanBtn"_s)->click();
        QCOMPARE(boxes.seen(),
                 QStringList{u"Clean Registry|There is a file of this name already:\n%1\n\n"
                             "Replace it?"_s.arg(QDir::toNativeSeparators(path))});
        QCOMPARE(dialog.isVisible(), !agrees);
        QCOMPARE(tree.snapshot().size(), 1); // nothing is written yet
        dialog.reject();
    }

    void theChoosersQuestionIsNotRepeated()
    {
        const TestTree tree;
        const QString path = tree.file(u"one.reg"_s, "old");
        RegistryBackupDialog dialog(1);
        dialog.show();
        edit(dialog)->setText(path);
        QTimer::singleShot(100, &dialog, [&] {
            auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            chooser->setOption(QFileDialog::DontConfirmOverwrite);
            chooser->findChild<QLineEdit *>()->setText(u"one.reg"_s);
            QMetaObject::invokeMethod(chooser, "accept");
        });
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        dialog.browse();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
        const MessageBoxes boxes(QMessageBox::No);
        button(dialog, u"startCleanBtn"_s)->click();
        QVERIFY(boxes.seen().isEmpty());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void anUnusableBackupPathIsExplained_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("reason");
        QTest::newRow("below a file") << u"file/one.reg"_s << u"The folder cannot be made."_s;
        QTest::newRow("a folder") << u"folder.reg"_s << u"A folder stands there"_s;
#ifndef Q_OS_WIN
        QTest::newRow("a link") << u"link.reg"_s << u"A link stands there, which leads elsewhere"_s;
        QTest::newRow("a pipe") << u"pipe.reg"_s << u"What stands there is not a file"_s;
        QTest::newRow("the registry") << u"user.reg"_s << u"It is a file of the registry itself"_s;
        QTest::newRow("a closed folder") << u"closed/one.reg"_s << u"Permission denied"_s;
#else
        QTest::newRow("a write-protected file")
            << u"protected.reg"_s << u"The file is write-protected."_s;
#endif
    }
    void anUnusableBackupPathIsExplained()
    {
        QFETCH(QString, place);
        QFETCH(QString, reason);
        const TestTree tree;
        tree.file(u"file"_s);
        tree.folder(u"folder.reg"_s);
        QString path = tree.path(place);
#ifndef Q_OS_WIN
        tree.link(tree.path(u"file"_s), u"link.reg"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(tree.path(u"pipe.reg"_s)).constData(), 0600), 0);
        tree.folder(u"closed"_s);
        QCOMPARE(::chmod(QFile::encodeName(tree.path(u"closed"_s)).constData(), 0555), 0);
        QCOMPARE(::chmod(QFile::encodeName(tree.path()).constData(), 0777), 0);
        if (place == "user.reg"_L1)
            path = m_fixture->file(u"HKEY_CURRENT_USER"_s);
#else
        QVERIFY(QFile::setPermissions(tree.file(u"protected.reg"_s),
                                      QFile::ReadOwner | QFile::ReadUser));
#endif
        const auto before = tree.snapshot();
        RegistryBackupDialog dialog(1);
        dialog.show();
        edit(dialog)->setText(path);
        const MessageBoxes boxes(QMessageBox::Ok);
        {
            const bool needsOrdinaryUser = place.startsWith("closed"_L1);
            const std::unique_ptr<OrdinaryUser> user(needsOrdinaryUser ? new OrdinaryUser
                                                                       : nullptr);
            button(dialog, u"startCleanBtn"_s)->click();
        }
        QCOMPARE(boxes.seen(),
                 QStringList{u"Clean Registry|The backup cannot be written here:\n%1\n\n%2"_s.arg(
                     QDir::toNativeSeparators(path), reason)});
        QVERIFY(dialog.isVisible());
        QCOMPARE(tree.snapshot(), before);
        // Without a backup the path does not matter.
        check(dialog)->setChecked(false);
        button(dialog, u"startCleanBtn"_s)->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void theDialogIsDraggedWithTheMouse()
    {
        RegistryBackupDialog dialog(1);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QPoint before = dialog.pos();
        drag(dialog, Qt::LeftButton, {30, 20});
        QCOMPARE(dialog.pos(), before + QPoint(30, 20));
        drag(dialog, Qt::RightButton, {30, 20});
        QCOMPARE(dialog.pos(), before + QPoint(30, 20));
    }

    void theKeyboardReachesEverythingInOrder()
    {
        RegistryBackupDialog dialog(1);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QWidget *widget = check(dialog);
        for (QWidget *next : {static_cast<QWidget *>(edit(dialog)),
                              static_cast<QWidget *>(button(dialog, u"browseBtn"_s)),
                              static_cast<QWidget *>(button(dialog, u"cancelBtn"_s)),
                              static_cast<QWidget *>(button(dialog, u"startCleanBtn"_s))}) {
            QCOMPARE(nextByTab(widget), next);
            widget = next;
        }
        // Return in the field does not start to delete.
        edit(dialog)->setFocus();
        const SignalSpy accepted(&dialog, &QDialog::accepted);
        QTest::keyClick(edit(dialog), Qt::Key_Return);
        QCOMPARE(accepted.size(), 0);
    }

private:
    static void drag(QWidget &widget, Qt::MouseButton pressed, QPoint distance)
    {
        const QPointF start(10, 10);
        const auto send = [&](QEvent::Type type, QPointF global, Qt::MouseButton which,
                              Qt::MouseButtons held) {
            QMouseEvent event(type, widget.mapFromGlobal(global), global, which, held, {});
            QApplication::sendEvent(&widget, &event);
        };
        const QPointF global = widget.mapToGlobal(start);
        send(QEvent::MouseButtonPress, global, pressed, pressed);
        send(QEvent::MouseMove, global + distance, Qt::NoButton, pressed);
        send(QEvent::MouseButtonRelease, global + distance, pressed, Qt::NoButton);
    }

    static void scan(RegistryPage &page)
    {
        const SignalSpy scanned(&page, &BasePage::scanFinished);
        page.startScan();
        QVERIFY(scanned.wait(patience));
    }

    // Ticks only these items.
    static void tick(const QStringList &names)
    {
        for (CleanCategory &category :
             Application::instance()->registryCleaner()->result().categories) {
            category.checked = true;
            for (CleanItem &item : category.items)
                item.checked = names.contains(item.name);
        }
    }

    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
};

SWEEPWISE_TEST_MAIN(TestRegistryPage, QApplication)
#include "tst_registrypage.moc"
