#include "settingsdialog.h"

#include "aboutdialog.h"
#include "appinfo.h"
#include "application.h"
#include "autostart.h"
#include "logcapture.h"
#include "registryfixture.h"
#include "testhome.h"
#include "testtree.h"
#include "uisupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <optional>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
bool refusesValues = false;

LSTATUS WINAPI setValue(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE *data,
                        DWORD size)
{
    if (refusesValues)
        return ERROR_ACCESS_DENIED;
    static const auto systemFunction =
        reinterpret_cast<decltype(&setValue)>(reinterpret_cast<void *>(
            ::GetProcAddress(::GetModuleHandleW(L"advapi32.dll"), "RegSetValueExW")));
    return systemFunction(key, name, reserved, type, data, size);
}
#endif

/// Makes the registry refuse every change as long as the object exists.
class RefusingRegistry final
{
    Q_DISABLE_COPY_MOVE(RefusingRegistry)
public:
#ifdef Q_OS_WIN
    explicit RefusingRegistry(const TestHome &)
    {
        refusesValues = true;
    }
    ~RefusingRegistry()
    {
        refusesValues = false;
    }
#else
    explicit RefusingRegistry(const TestHome &home)
        : m_prefix(home.folder(u"prefix"_s))
    {
        // The user who runs the dialog may read the prefix and write the settings.
        for (const QString &folder : {home.path(), m_prefix})
            QFile::setPermissions(folder, readable);
        const QString settings = QSettings(QSettings::IniFormat, QSettings::UserScope,
                                           appinfo::organisation, appinfo::name)
                                     .fileName();
        QDir().mkpath(QFileInfo(settings).path());
        for (const QString &path : {settings, QFileInfo(settings).path()})
            QFile::setPermissions(path, readable | QFile::WriteGroup | QFile::WriteOther);
        m_user.emplace();
    }
    ~RefusingRegistry()
    {
        m_user.reset();
        QFile::setPermissions(m_prefix, readable | QFile::WriteOwner);
    }

private:
    static constexpr QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner
        | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QString m_prefix;
    std::optional<OrdinaryUser> m_user;
#endif
};

const QString runKey = u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString valueName = u"Sweepwise"_s;

QCheckBox *box(const SettingsDialog &dialog, const QString &name)
{
    return dialog.findChild<QCheckBox *>(name + "Check"_L1);
}

void click(const QWidget &dialog, const QString &name)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
}

QList<bool> checks(const SettingsDialog &dialog)
{
    QList<bool> list;
    for (const QCheckBox *check : dialog.findChildren<QCheckBox *>())
        list.append(check->isChecked());
    return list;
}

// Runs when a test starts a copy of this program as the installed one: saves the option.
int saveAutoStart(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    Application::instance()->initialize();
    SettingsDialog dialog;
    box(dialog, u"autoStart"_s)->setChecked(qstrcmp(argv[2], "on") == 0);
    dialog.onSaveClicked();
    return 0;
}

} // namespace

#ifdef Q_OS_WIN
// The linker takes this entry of the program's import table instead of the system's.
extern "C" {
extern decltype(&setValue) const importedSetValue asm("__imp_RegSetValueExW");
decltype(&setValue) const importedSetValue = setValue;
}
#endif

class TestSettingsDialog : public QObject
{
    Q_OBJECT
public:
    explicit TestSettingsDialog(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void initTestCase() { Application::instance()->initialize(); }

    void init()
    {
        settings()->clear();
        settings()->sync();
        m_fixture = std::make_unique<RegistryFixture>(m_home);
        m_fixture->addText(runKey, u"Sweepwise neighbour"_s, u"C:\\neighbour.exe"_s);
        m_fixture->write();
    }
    // No test may change the value of another program.
    void cleanup()
    {
        QVERIFY(m_fixture->hasValue(runKey, u"Sweepwise neighbour"_s));
        QVERIFY(autostart::set(false));
        m_fixture.reset();
    }

    void theDialogHasItsFlagsSizeAndTexts()
    {
        const SettingsDialog dialog;
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(dialog.size(), QSize(450, 400));
        QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
        QStringList texts;
        for (const auto *group : dialog.findChildren<QGroupBox *>()) {
            texts.append(group->title());
            for (const auto *check : group->findChildren<QCheckBox *>())
                texts.append(check->text());
        }
        QCOMPARE(texts,
                 (QStringList{u"General"_s, u"Start with Windows"_s, u"Minimize to tray on close"_s,
                              u"Cleaning"_s, u"Confirm before cleaning"_s,
                              u"Auto backup before registry cleaning"_s}));
        for (const auto *button : dialog.findChildren<QPushButton *>())
            QCOMPARE(button->size(), QSize(80, 36));
        // Nothing is cut off.
        QVERIFY(dialog.layout()->minimumSize().height() <= dialog.height() - 8);
    }

    void theFirstOpeningShowsTheDefaults()
    {
        const SettingsDialog dialog;
        QCOMPARE(checks(dialog), (QList<bool>{false, false, true, true}));
    }

    void savingWritesAllFourOptions()
    {
        SettingsDialog dialog;
        dialog.show();
        for (QCheckBox *check : dialog.findChildren<QCheckBox *>())
            QTest::mouseClick(check, Qt::LeftButton, {}, {8, check->height() / 2});
        click(dialog, u"saveBtn"_s);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        QFile file(settings()->fileName());
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QByteArrayList lines = file.readAll().split('\n');
        for (const char *line : {"autoStart=true", "minimizeToTray=true", "confirmClean=false",
                                 "backupRegistry=false"})
            QCOMPARE(lines.count(line), 1);
        const SettingsDialog next;
        QCOMPARE(checks(next), (QList<bool>{true, true, false, false}));
    }

    /// Another process reads the options and saves them in the same place again.
    void anotherProcessReadsTheSavedOptions()
    {
        for (const bool on : {true, false}) {
            const QString program = QCoreApplication::applicationFilePath();
            QCOMPARE(QProcess::execute(program, {u"--save-auto-start"_s, on ? u"on"_s : u"off"_s}),
                     0);
            Application::instance()->initialize();
            const SettingsDialog dialog;
            QCOMPARE(checks(dialog), (QList<bool>{on, false, true, true}));
        }
        QFile file(settings()->fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count("autoStart"), 1);
    }

    void cancellingWritesNothing_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }

    void cancellingWritesNothing()
    {
        QFETCH(bool, byKey);
        SettingsDialog dialog;
        dialog.show();
        box(dialog, u"autoStart"_s)->setChecked(true);
        if (byKey)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            click(dialog, u"cancelBtn"_s);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(settings()->allKeys().isEmpty());
        QVERIFY(!m_fixture->hasValue(runKey, valueName));
        // The tick stays when the same dialog opens again, although saving was cancelled.
        dialog.show();
        QVERIFY(box(dialog, u"autoStart"_s)->isChecked());
    }

    void returnSaves()
    {
        SettingsDialog dialog;
        dialog.show();
        QTest::keyClick(box(dialog, u"autoStart"_s), Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void theCommandIsQuotedOnlyWithABlank_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("command");
        const QString plain = QDir::toNativeSeparators(u"C:/Sweepwise/sweepwise.exe"_s);
        const QString blank = QDir::toNativeSeparators(u"C:/Program Files/sweepwise.exe"_s);
        QTest::newRow("without a blank") << u"C:/Sweepwise/sweepwise.exe"_s << plain;
        QTest::newRow("with a blank") << u"C:/Program Files/sweepwise.exe"_s << u'"' + blank + u'"';
    }

    void theCommandIsQuotedOnlyWithABlank()
    {
        QFETCH(QString, path);
        QFETCH(QString, command);
        QCOMPARE(autostart::command(path), command);
    }

    /// From a copy of the program in an installation folder to the value that the system reads.
    void theRunValueIsThePathOfTheProgram_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("isQuoted");
        QTest::newRow("without a blank") << u"installed"_s << false;
        QTest::newRow("with a blank") << u"Program Files"_s << true;
    }

    void theRunValueIsThePathOfTheProgram()
    {
        QFETCH(QString, folder);
        QFETCH(bool, isQuoted);
        const QString program = m_home.folder(folder) + u'/'
            + QFileInfo(QCoreApplication::applicationFilePath()).fileName();
        QVERIFY(QFile::exists(program)
                || QFile::copy(QCoreApplication::applicationFilePath(), program));
        QVERIFY(!QDir(m_home.path()).path().contains(u' '));
        QCOMPARE(QProcess::execute(program, {u"--save-auto-start"_s, u"on"_s}), 0);
        QString expected = QDir::toNativeSeparators(program);
        if (isQuoted)
            expected = u'"' + expected + u'"';
        QCOMPARE(runValue(), expected);
        QCOMPARE(QProcess::execute(program, {u"--save-auto-start"_s, u"off"_s}), 0);
        QVERIFY(!m_fixture->hasValue(runKey, valueName));
    }

    void savingWithAutoStartUnchangedLeavesTheRunKeyAlone_data()
    {
        QTest::addColumn<bool>("on");
        QTest::newRow("on, the entry removed by hand") << true;
        QTest::newRow("off, an entry made by hand") << false;
    }

    void savingWithAutoStartUnchangedLeavesTheRunKeyAlone()
    {
        QFETCH(bool, on);
        settings()->setValue("general/autoStart"_L1, on);
        if (!on) {
            m_fixture->addText(runKey, valueName, u"C:\\by hand.exe"_s);
            m_fixture->write();
        }
        const QStringList before = m_fixture->exported(runKey);
        SettingsDialog dialog;
        QCOMPARE(box(dialog, u"autoStart"_s)->isChecked(), on);
        box(dialog, u"minimizeToTray"_s)->setChecked(true);
        dialog.onSaveClicked();
        QCOMPARE(m_fixture->exported(runKey), before);
        QCOMPARE(m_fixture->hasValue(runKey, valueName), !on);
    }

    void settingsThatCannotBeSavedAreReported()
    {
        SettingsDialog dialog;
        dialog.show();
        const QString path = settings()->fileName();
        QFile::remove(path);
        // A folder in the place of the settings, and no name to set it aside.
        QStringList taken{path, path + ".damaged"_L1};
        for (int number = 2; number <= 100; ++number)
            taken.append(path + ".damaged"_L1 + QString::number(number));
        for (const QString &name : std::as_const(taken))
            QVERIFY(QDir().mkpath(name));
        const MessageBoxes boxes(QMessageBox::Ok);
        const LogCapture log;
        box(dialog, u"confirmClean"_s)->click();
        click(dialog, u"saveBtn"_s);
        for (const QString &name : std::as_const(taken))
            QVERIFY(QDir().rmdir(name));
        QCOMPARE(boxes.seen(),
                 QStringList{u"Settings|The settings could not be saved:\n"_s
                             + QDir::toNativeSeparators(path)});
        QCOMPARE(boxes.icons(), QList<QMessageBox::Icon>{QMessageBox::Warning});
        QCOMPARE(log.count("[ERROR] The settings cannot be saved: "_L1 + path), 1);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        // The next save succeeds, and then nothing is said.
        dialog.onSaveClicked();
        QCOMPARE(boxes.seen().size(), 1);
        QVERIFY(QFileInfo(path).isFile());
    }

    // The dialog keeps what the user has chosen and says nothing. The log says what went wrong.
    void aStartThatCannotBeStoredIsLogged()
    {
        SettingsDialog dialog;
        dialog.show();
        const MessageBoxes boxes(QMessageBox::Ok);
        const LogCapture log;
        {
            const RefusingRegistry registry(m_home);
            box(dialog, u"autoStart"_s)->click();
            click(dialog, u"saveBtn"_s);
        }
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(box(dialog, u"autoStart"_s)->isChecked());
        QVERIFY(boxes.seen().isEmpty());
        QVERIFY(runValue().isEmpty());
        const QString start = u"[ERROR] The start with the session cannot be turned on: "_s;
        const QStringList lines = log.lines().filter(start);
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.constFirst().section(start, 1).size() > 5); // the reason
    }

    void turningAutoStartOffRemovesTheRunValue()
    {
        settings()->setValue("general/autoStart"_L1, true);
        m_fixture->addText(runKey, valueName, u"C:\\Sweepwise\\sweepwise.exe"_s);
        m_fixture->write();
        SettingsDialog dialog;
        box(dialog, u"autoStart"_s)->setChecked(false);
        dialog.onSaveClicked();
        QVERIFY(!m_fixture->hasValue(runKey, valueName));
    }

    void turningAutoStartOffWithoutAnEntryChangesNothing()
    {
        settings()->setValue("general/autoStart"_L1, true);
        const QStringList before = m_fixture->exported(runKey);
        SettingsDialog dialog;
        box(dialog, u"autoStart"_s)->setChecked(false);
        dialog.onSaveClicked();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(m_fixture->exported(runKey), before);
    }

    void theAboutButtonOpensTheCard()
    {
        SettingsDialog dialog;
        dialog.show();
        bool wasShown = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&] {
            auto *about = qobject_cast<AboutDialog *>(QApplication::activeModalWidget());
            if (!about)
                return;
            wasShown = about->parentWidget() == &dialog;
            click(*about, u"okBtn"_s);
        });
        timer.start(10);
        click(dialog, u"aboutBtn"_s);
        QVERIFY(wasShown);
        QVERIFY(!dialog.findChild<AboutDialog *>());
        QVERIFY(dialog.isVisible());
    }

    void theCardShowsNameVersionAndFunctions()
    {
        AboutDialog dialog;
        dialog.show();
        QCOMPARE(dialog.size(), QSize(400, 380));
        QVERIFY(dialog.isModal());
        QStringList texts;
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            texts.append(label->text());
            // No line of a text may be cut off.
            const int needed = label->wordWrap() ? label->heightForWidth(label->width())
                                                 : label->sizeHint().height();
            QVERIFY2(label->height() >= needed || label->text() == u"🧹"_s,
                     qPrintable(label->text()));
        }
        QCOMPARE(texts.first(4),
                 (QStringList{u"🧹"_s, u"Sweepwise"_s, u"Version 1.0.0"_s,
                              u"Your Personal System Butler\n\n"
                              "🧹 Junk Cleaner - Free up valuable disk space\n"
                              "🌐 Browser Cleaner - Protect your privacy\n"
                              "🔧 Registry Cleaner - Boost system performance\n"
                              "⚡ Startup Manager - Speed up boot time"_s}));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

private:
    static QSettings *settings() { return Application::instance()->settings(); }

    // The value as an export of the registry has it.
    QString runValue() const
    {
        const QStringList lines = m_fixture->exported(runKey);
        const QString start = u"\"Sweepwise\"="_s;
        for (const QString &line : lines) {
            if (!line.startsWith(start))
                continue;
            QString text = line.mid(start.size() + 1).chopped(1);
            return text.replace("\\\""_L1, "\""_L1).replace("\\\\"_L1, "\\"_L1);
        }
        return {};
    }

    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
};

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--save-auto-start") == 0)
        return saveAutoStart(argc, argv);
    const TestHome home;
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(appinfo::name);
    QCoreApplication::setApplicationVersion(appinfo::version);
    QCoreApplication::setOrganizationName(appinfo::organisation);
    TestSettingsDialog test(home);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_settingsdialog.moc"
