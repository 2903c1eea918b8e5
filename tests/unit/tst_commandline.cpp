#include "appinfo.h"
#include "companion.h"
#include "registrybackup.h"
#include "registryfixture.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaType>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using companion::Run;
using companion::run;

/// The change that a use of the companion would make in the registry.
struct RegistryEffect {
    QString key; ///< empty for none
    QString value; ///< the value that is added or removed; empty for the default value
    bool isThere = false; ///< before the use
};

/// A complete use of one command that does something, and every option that the command accepts.
struct Use {
    QString command;
    QStringList line; ///< after the command's name
    QStringList options; ///< with values that fit
    RegistryEffect effect;
};

// "--browser" of "--browser=chrome".
QString nameOf(const QString &option)
{
    return option.section(u'=', 0, 0);
}

const QString currentVersion =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"_s;
const QString deadProgram =
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\"
    "Sweepwise use.exe"_s;
const QString restoredKey = u"HKEY_CURRENT_USER\\Software\\Sweepwise use"_s;

} // namespace

Q_DECLARE_METATYPE(Use)

/// Which commands and options the companion accepts, and which it refuses.
class TestCommandLine : public QObject
{
    Q_OBJECT
public:
    explicit TestCommandLine(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_temp = companion::fillTemporaryFolder(m_home);
        companion::writeFile(m_home.folder(u"big"_s), u"film.mp4"_s, 9);
#ifdef Q_OS_UNIX
        m_home.setFolderVariable("LOCALAPPDATA", u"local"_s);
#endif
        const QString cache = m_home.folder(u"local/Google/Chrome/User Data/Default/GPUCache"_s);
        companion::writeFile(cache, u"data_0"_s, 2);
        m_files = {m_temp + "/a.tmp"_L1, m_temp + "/sub/b"_L1, cache + "/data_0"_L1};
    }

    void anOptionOfOtherCommandsIsRefused_data()
    {
        QTest::addColumn<Use>("use");
        QTest::addColumn<QString>("option");
        const QStringList all{u"--items"_s,
                              u"--json"_s,
                              u"--yes"_s,
                              u"--category=temp_files"_s,
                              u"--backup="_s + backupToWrite(),
                              u"--no-backup"_s,
                              u"--browser=chrome"_s,
                              u"--min-size=1M"_s};
        for (const Use &use : uses()) {
            for (const QString &option : all) {
                const bool isOwn = std::any_of(
                    use.options.begin(), use.options.end(),
                    [&option](const QString &own) { return nameOf(own) == nameOf(option); });
                if (!isOwn)
                    QTest::addRow("%s %s", qPrintable(use.command), qPrintable(nameOf(option)))
                        << use << option;
            }
        }
    }

    void anOptionOfOtherCommandsIsRefused()
    {
        QFETCH(Use, use);
        QFETCH(QString, option);
        expectRefused(use, use.line + QStringList{option}, nameOf(option));
    }

    void noCleanStartsWithoutAYes_data()
    {
        QTest::addColumn<Use>("use");
        for (const Use &use : uses()) {
            if (use.options.contains("--yes"_L1))
                QTest::newRow(qPrintable(use.command)) << use;
        }
    }

    void noCleanStartsWithoutAYes()
    {
        QFETCH(Use, use);
        QStringList line = use.line;
        QCOMPARE(line.removeAll("--yes"_L1), 1);
        expectRefused(use, line, u"--yes"_s);
    }

    void anOptionOfItsOwnIsTaken_data()
    {
        QTest::addColumn<Use>("use");
        QTest::addColumn<QString>("option");
        for (const Use &use : uses()) {
            for (const QString &option : use.options)
                QTest::addRow("%s %s", qPrintable(use.command), qPrintable(nameOf(option)))
                    << use << option;
        }
    }

    void anOptionOfItsOwnIsTaken()
    {
        QFETCH(Use, use);
        QFETCH(QString, option);
        const auto fixture = registryFor(use);
        const auto remove = qScopeGuard([this] { QFile::remove(backupToWrite()); });
        QStringList line = use.line;
        // --backup and --no-backup exclude each other.
        if (nameOf(option) == "--backup"_L1)
            line.removeAll("--no-backup"_L1);
        if (!line.contains(option))
            line.append(option);
        const Run taken = run(use.command.split(u' ') + line);
        QVERIFY2(taken.exitCode == 0 || taken.exitCode == 1, taken.error.constData());
        QVERIFY2(taken.error.isEmpty(), taken.error.constData());
        QCOMPARE(taken.output.startsWith('{'), option == "--json"_L1);
    }

    void wrongUseIsRefused_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::newRow("nothing") << QString();
        QTest::newRow("no engine") << u"scan"_s;
        QTest::newRow("unknown command") << u"burn junk"_s;
        QTest::newRow("unknown engine") << u"scan attic"_s;
        QTest::newRow("unknown option") << u"scan junk --now"_s;
        QTest::newRow("unknown category") << u"clean junk --yes --category attic"_s;
        QTest::newRow("too many words") << u"scan junk junk"_s;
        QTest::newRow("scan does not delete") << u"scan junk --yes"_s;
        QTest::newRow("clean lists no items") << u"clean junk --yes --items"_s;
        QTest::newRow("registry without a word on a backup") << u"clean registry --yes"_s;
        QTest::newRow("registry with two words on it")
            << u"clean registry --yes --no-backup --backup b.reg"_s;
        QTest::newRow("registry with a backup of no name") << u"clean registry --yes --backup="_s;
        QTest::newRow("registry without a yes") << u"clean registry --no-backup"_s;
        QTest::newRow("unknown registry category")
            << u"clean registry --yes --no-backup --category temp_files"_s;
        QTest::newRow("browser without a yes") << u"clean browser"_s;
        QTest::newRow("unknown browser") << u"scan browser --browser netscape"_s;
        QTest::newRow("unknown browser category") << u"clean browser --yes --category temp_files"_s;
        QTest::newRow("browser of junk") << u"scan junk --browser chrome"_s;
        QTest::newRow("backup of junk") << u"clean junk --yes --backup b.reg"_s;
        QTest::newRow("startup alone") << u"startup"_s;
        QTest::newRow("startup with an unknown word") << u"startup fly x"_s;
        QTest::newRow("startup of nothing") << u"startup enable"_s;
        QTest::newRow("startup list with a name") << u"startup list x"_s;
        QTest::newRow("startup says no yes") << u"startup list --yes"_s;
        QTest::newRow("no file to restore") << u"restore"_s;
        QTest::newRow("missing file to restore") << u"restore missing.reg"_s;
        QTest::newRow("restore says no yes") << u"restore missing.reg --yes"_s;
    }

    void wrongUseIsRefused()
    {
        QFETCH(QString, arguments);
        const Run refused = run(arguments.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.output.isEmpty());
        QVERIFY(refused.error.startsWith("sweepwise-cli: "));
        QVERIFY(QFile::exists(m_temp + "/a.tmp"_L1));
    }

    void aHelpOptionPrintsTheHelpAndDoesNothing_data()
    {
        QTest::addColumn<Use>("use");
        QTest::addColumn<QString>("option");
        for (const Use &use : uses()) {
            for (const QString &option : {u"--help"_s, u"--help-all"_s})
                QTest::addRow("%s %s", qPrintable(use.command), qPrintable(option))
                    << use << option;
        }
    }

    void aHelpOptionPrintsTheHelpAndDoesNothing()
    {
        QFETCH(Use, use);
        QFETCH(QString, option);
        Run help;
        runWithoutEffect(use, use.line + QStringList{option}, help);
        QCOMPARE(help.exitCode, 0);
        QVERIFY2(help.error.isEmpty(), help.error.constData());
        QVERIFY2(help.output.startsWith("Usage: "), help.output.constData());
    }

    void helpNamesTheExitStatuses()
    {
        const Run help = run({u"--help"_s});
        QCOMPARE(help.exitCode, 0);
        for (const char *word :
             {"scan ENGINE", "clean ENGINE", "restore FILE", "Engines: junk, browser", "--browser",
              "--items", "--json", "--yes", "--category", "--backup", "--no-backup", "Exit status"})
            QVERIFY2(help.output.contains(word), word);
    }

    void helpNamesEveryCommandAndOption()
    {
        const Run help = run({u"--help"_s});
        for (const char *text :
             {"\n  scan ENGINE ", "\n  clean ENGINE ", "\n  restore FILE ", "\n  startup list ",
              "\n  startup enable NAME ", "\n  startup disable NAME ", "\n  large-files PATH... ",
              "Engines: junk, browser, registry.", "\n  --items ", "\n  --json ", "\n  --yes ",
              "\n  --category <ID> ", "\n  --backup <FILE> ", "\n  --no-backup ",
              "\n  --browser <NAME> ", "\n  --min-size <SIZE> ",
              " clean registry: ", " scan browser, clean browser: ", " large-files: "})
            QVERIFY2(help.output.contains(text), text);
        const QList<QByteArray> lines = help.output.split('\n').sliced(1); // after the path
        for (const QByteArray &line : lines)
            QVERIFY2(line.size() <= 84, line.constData());
    }

    void theVersionIsTheProgramsOwn()
    {
        const Run version = run({u"--version"_s});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.output.contains(QString(appinfo::version).toUtf8()));
    }

    void largeFilesRefusesWhatItCannotUse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no folder") << QStringList{u"large-files"_s};
        QTest::newRow("a missing folder") << QStringList{u"large-files"_s, u"/no/such/folder"_s};
        for (const QString &size : {u"0"_s, u"-1"_s, u"M"_s, u"1.5G"_s, u"1T"_s, u"9999999999G"_s,
                                    u"99999999999999999999"_s})
            QTest::newRow(qPrintable("size "_L1 + size))
                << QStringList{u"large-files"_s, m_home.path(), u"--min-size="_s + size};
        QTest::newRow("an option of the others")
            << QStringList{u"large-files"_s, m_home.path(), u"--yes"_s};
        QTest::newRow("a size for the others")
            << QStringList{u"scan"_s, u"junk"_s, u"--min-size=5M"_s};
    }

    void largeFilesRefusesWhatItCannotUse()
    {
        QFETCH(QStringList, arguments);
        const Run refused = run(arguments);
        QCOMPARE(refused.exitCode, 2);
        QVERIFY(refused.output.isEmpty());
        QVERIFY(refused.error.startsWith("sweepwise-cli: "));
    }

private:
    /// Every command with the options that it accepts. Written down independently of the tables.
    [[nodiscard]] QList<Use> uses() const
    {
        const QString run = currentVersion + "Run"_L1;
        const RegistryEffect none;
        return {
            {u"scan junk"_s, {}, {u"--items"_s, u"--json"_s}, none},
            {u"scan browser"_s, {}, {u"--items"_s, u"--json"_s, u"--browser=chrome"_s}, none},
            {u"scan registry"_s, {}, {u"--items"_s, u"--json"_s}, none},
            {u"clean junk"_s,
             {u"--yes"_s},
             {u"--json"_s, u"--yes"_s, u"--category=temp_files"_s},
             none},
            {u"clean browser"_s,
             {u"--yes"_s},
             {u"--json"_s, u"--yes"_s, u"--category=google_chrome_gpu_cache"_s,
              u"--browser=chrome"_s},
             none},
            {u"clean registry"_s,
             {u"--yes"_s, u"--no-backup"_s, u"--category=invalid_software"_s},
             {u"--json"_s, u"--yes"_s, u"--category=invalid_software"_s,
              u"--backup="_s + backupToWrite(), u"--no-backup"_s},
             {deadProgram, {}, true}},
            {u"restore"_s, {backupToRestore()}, {u"--json"_s}, {restoredKey, u"back"_s, false}},
            {u"startup list"_s, {}, {u"--json"_s}, none},
            {u"startup enable"_s,
             {u"Sweepwise Player"_s},
             {u"--json"_s},
             {run, u"Sweepwise Player"_s, false}},
            {u"startup disable"_s,
             {u"Sweepwise Radio"_s},
             {u"--json"_s},
             {run, u"Sweepwise Radio"_s, true}},
            {u"large-files"_s, {m_home.folder(u"big"_s)}, {u"--json"_s, u"--min-size=1"_s}, none},
        };
    }

    [[nodiscard]] QString backupToWrite() const
    {
        return m_home.folder(u"backups"_s) + "/new.reg"_L1;
    }

    /// Also writes the file.
    [[nodiscard]] QString backupToRestore() const
    {
        const QString path = m_home.folder(u"backups"_s) + "/kept.reg"_L1;
        QString error;
        if (!RegistryBackup::write(path,
                                   u"Windows Registry Editor Version 5.00\r\n\r\n[%1]\r\n"
                                   "\"back\"=\"again\"\r\n\r\n"_s.arg(restoredKey),
                                   error))
            qFatal("%s", qPrintable(error));
        return path;
    }

    /// A registry in which the use has something to do.
    [[nodiscard]] std::unique_ptr<RegistryFixture> registryFor(const Use &use) const
    {
        if (use.effect.key.isEmpty())
            return nullptr;
#ifdef Q_OS_WIN
        // A use that took effect may have left it in the live registry. This removes it again.
        if (!use.effect.isThere) {
            RegistryFixture leftover(m_home);
            leftover.addText(use.effect.key, use.effect.value, u"left over"_s);
            leftover.write();
        }
#endif
        auto fixture = std::make_unique<RegistryFixture>(m_home);
        fixture->addText(deadProgram, {}, u"C:\\Sweepwise Missing\\use.exe"_s);
        fixture->addText(restoredKey, u"here"_s, u"before"_s);
        companion::addProgram(*fixture, m_home, u"Sweepwise Player"_s);
        const QString radio = companion::addProgram(*fixture, m_home, u"Sweepwise Radio"_s);
        fixture->addText(currentVersion + "Run"_L1, u"Sweepwise Radio"_s, radio);
        fixture->write();
        return fixture;
    }

    /// Runs the command with @p line and requires that it is refused with a message that has
    /// @p word in it, and that it changes nothing.
    void expectRefused(const Use &use, const QStringList &line, const QString &word) const
    {
        Run refused;
        runWithoutEffect(use, line, refused);
        QCOMPARE(refused.exitCode, 2);
        QVERIFY2(refused.output.isEmpty(), refused.output.constData());
        QVERIFY(refused.error.startsWith("sweepwise-cli: "));
        QVERIFY2(refused.error.contains(word.toUtf8()), refused.error.constData());
    }

    /// Runs the command with @p line and requires that it changes nothing.
    void runWithoutEffect(const Use &use, const QStringList &line, Run &outcome) const
    {
        const auto fixture = registryFor(use);
        outcome = run(use.command.split(u' ') + line);
        for (const QString &file : m_files)
            QVERIFY2(QFile::exists(file), qPrintable(file));
        QVERIFY(!QFile::exists(backupToWrite()));
        if (fixture)
            QCOMPARE(fixture->hasValue(use.effect.key, use.effect.value), use.effect.isThere);
    }

    const TestHome &m_home;
    QString m_temp;
    QStringList m_files; ///< the files that only a clean removes
};

SWEEPWISE_TEST_MAIN(TestCommandLine, QCoreApplication)
#include "tst_commandline.moc"
