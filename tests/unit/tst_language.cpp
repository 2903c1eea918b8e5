#include "language.h"

#include "appinfo.h"
#include "browsercleaner.h"
#include "languages.h"
#include "logcapture.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

class TestLanguage : public QObject
{
    Q_OBJECT
public:
    explicit TestLanguage(const TestHome &) { }

private Q_SLOTS:
    void init() { QSettings(appinfo::organisation, appinfo::name).clear(); }

    void choosesByStoreThenSystem_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("expected");
        for (const languages::Language &language : languages::all)
            QTest::addRow("system %s", language.code.data())
                << QString() << language.code + "_XX"_L1 << QString(language.code);
        QTest::newRow("Brazilian") << QString() << u"pt_BR"_s << u"pt"_s;
        QTest::newRow("simplified Chinese") << QString() << u"zh_CN"_s << u"zh_TW"_s;
        QTest::newRow("traditional Chinese") << QString() << u"zh_TW"_s << u"zh_TW"_s;
        QTest::newRow("Swedish") << QString() << u"sv_SE"_s << u"en"_s;
        QTest::newRow("C") << QString() << u"C"_s << u"en"_s;
        QTest::newRow("no locale") << QString() << QString() << u"en"_s;
        QTest::newRow("stored wins") << u"ko"_s << u"de_DE"_s << u"ko"_s;
        QTest::newRow("stored is used as it is") << u"tlh"_s << u"de_DE"_s << u"tlh"_s;
    }

    void choosesByStoreThenSystem()
    {
        QFETCH(QString, stored);
        QFETCH(QString, system);
        QFETCH(QString, expected);
        const LogCapture log;
        QCOMPARE(language::choose(stored, system), expected);
        if (stored.isEmpty()) {
            QVERIFY(log.contains(u"[Main] System language: \"%1\""_s.arg(system.left(2))));
            QVERIFY(log.contains(u"[Main] Auto-detected: \"%1\""_s.arg(expected)));
        } else {
            QVERIFY(log.contains(u"[Main] Using user language: \"%1\""_s.arg(stored)));
        }
    }

    void aStoredLanguageWithoutCatalogueLeavesTheSourceTexts()
    {
        QSettings(appinfo::organisation, appinfo::name).setValue("language"_L1, u"tlh"_s);
        const LogCapture log;
        QTranslator translator;
        language::install(translator);
        QVERIFY(translator.isEmpty());
        QVERIFY(log.contains(u"[Main] User language from settings: \"tlh\""_s));
        QVERIFY(log.contains(u"[Main] Translation file: \":/translations/Sweepwise_tlh.qm\""_s));
        QVERIFY(log.contains(u"[Main] File exists: false"_s));
        QVERIFY(log.contains(
            u"[Main] ✗ Failed to load translation file: \":/translations/Sweepwise_tlh.qm\""_s));
        QCOMPARE(log.lines().constFirst(), u"========== Translation Init =========="_s);
        QCOMPARE(log.lines().constLast(), QString(39, u'='));
    }

    void aChineseSystemAsksForACatalogueThatIsNotThere()
    {
        const QString code = language::choose(QString(), u"zh_CN"_s);
        QTranslator translator;
        QVERIFY(!translator.load(u":/translations/Sweepwise_%1.qm"_s.arg(code)));
    }

    void everyCatalogueTranslatesProgramRulesAndToolkit_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("clean");
        QTest::addColumn<QString>("exit");
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("yes"); // Qt's own, without its mnemonic
        QTest::newRow("en") << u"en"_s << u"Clean Now"_s << u"Exit"_s << u"Cookies"_s << u"Yes"_s;
        QTest::newRow("fr") << u"fr"_s << u"Nettoyer"_s << u"Quitter"_s << u"Cookies"_s << u"Oui"_s;
        QTest::newRow("de") << u"de"_s << u"Jetzt bereinigen"_s << u"Beenden"_s << u"Cookies"_s
                            << u"Ja"_s;
        QTest::newRow("ja") << u"ja"_s << u"今すぐ掃除"_s << u"終了"_s << u"Cookie"_s
                            << u"はい(Y)"_s;
        QTest::newRow("es") << u"es"_s << u"Limpiar ahora"_s << u"Salir"_s << u"Cookies"_s
                            << u"Sí"_s;
        QTest::newRow("ko") << u"ko"_s << u"지금 정리"_s << u"종료"_s << u"쿠키"_s << u"예(Y)"_s;
        QTest::newRow("nl") << u"nl"_s << u"Nu opruimen"_s << u"Afsluiten"_s << u"Cookies"_s
                            << u"Ja"_s;
        QTest::newRow("pt") << u"pt"_s << u"Limpar agora"_s << u"Sair"_s << u"Cookies"_s
                            << u"Sim"_s;
        QTest::newRow("it") << u"it"_s << u"Pulisci ora"_s << u"Esci"_s << u"Cookie"_s << u"Sì"_s;
    }

    void everyCatalogueTranslatesProgramRulesAndToolkit()
    {
        QFETCH(QString, code);
        QSettings(appinfo::organisation, appinfo::name).setValue("language"_L1, code);
        QTranslator translator;
        language::install(translator);
        QVERIFY(!translator.isEmpty());
        QTEST(QCoreApplication::translate("BasePage", "Clean Now"), "clean");
        QTEST(QCoreApplication::translate("MainWindow", "退出"), "exit");
        QTEST(QCoreApplication::translate("QPlatformTheme", "&Yes").remove(u'&'), "yes");
        // As the engines load them.
        BrowserCleaner cleaner;
        cleaner.loadRules(u":/rules/browser_rules.json"_s);
        const auto &rules = cleaner.rules();
        const auto cookies = std::find_if(rules.begin(), rules.end(), [](const BrowserRule &rule) {
            return rule.id == "cookies"_L1;
        });
        QVERIFY(cookies != rules.end());
        QTEST(cookies->name, "rule");
    }

    void theLanguageIsNeverReadFromTheApplicationsSettings()
    {
        QSettings ini(QSettings::IniFormat, QSettings::UserScope, appinfo::organisation,
                      appinfo::name);
        ini.setValue("language"_L1, u"tlh"_s);
        ini.sync();
        const LogCapture log;
        QTranslator translator;
        language::install(translator);
        QVERIFY(log.contains(u"[Main] User language from settings: \"\""_s));
        QVERIFY(!log.contains(u"tlh"_s));
    }
};

SWEEPWISE_TEST_MAIN(TestLanguage, QCoreApplication)
#include "tst_language.moc"
