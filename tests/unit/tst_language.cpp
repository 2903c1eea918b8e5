#include "language.h"

#include "appinfo.h"
#include "logcapture.h"
#include "testhome.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QTest>
#include <QTranslator>

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
        for (const char *code : {"en", "fr", "de", "ja", "es", "ko", "nl", "pt", "it"})
            QTest::addRow("system %s", code)
                << QString() << QString::fromLatin1(code) + "_XX"_L1 << QString::fromLatin1(code);
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
