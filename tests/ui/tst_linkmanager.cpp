#include "linkmanager.h"

#include "appinfo.h"
#include "logcapture.h"
#include "signalspy.h"
#include "testhome.h"
#include "testtree.h"
#include "uisupport.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString shipped = u":/rules/links.json"_s;

/// A LinkManager that records the addresses instead of opening them.
class RecordingLinkManager final : public LinkManager
{
public:
    using LinkManager::LinkManager;
    QList<QUrl> opened;
    bool hasBrowser = true;

protected:
    bool openUrl(const QUrl &url) override
    {
        opened.append(url);
        return hasBrowser;
    }
};

QString storedLanguage()
{
    return QSettings(appinfo::organisation, appinfo::name).value("language"_L1).toString();
}

void storeLanguage(const QString &language)
{
    QSettings(appinfo::organisation, appinfo::name).setValue("language"_L1, language);
}

} // namespace

class TestLinkManager : public QObject
{
    Q_OBJECT
public:
    explicit TestLinkManager(const TestHome &) { }

private Q_SLOTS:
    void init() { QSettings(appinfo::organisation, appinfo::name).clear(); }

    void theTableNamesTheLanguageToFallBackOn()
    {
        const TestTree tree;
        const QString path =
            tree.file(u"links.json"_s,
                      "{\"metadata\": {\"supported_languages\": [\"de\", \"fr\"],"
                      " \"fallback_language\": \"fr\"},"
                      " \"website\": {\"home\": {\"fr\": \"https://fr.example/\"}}}");
        const LogCapture log;
        const LinkManager swedish(path, u"sv_SE"_s);
        QCOMPARE(swedish.currentLanguage(), u"fr"_s);
        QVERIFY(log.contains(u"不支持的语言，使用回退语言: \"fr\""_s));
        const LinkManager german(path, u"de_DE"_s);
        QCOMPARE(german.currentLanguage(), u"de"_s);
        QCOMPARE(german.getLink(u"website"_s, u"home"_s), u"https://fr.example/"_s);
    }

    void everyPageHasAnAddressInEveryLanguage()
    {
        const LinkManager manager(shipped, u"en_US"_s);
        const QStringList languages{u"en"_s, u"fr"_s,    u"de"_s, u"ja"_s, u"es"_s,
                                    u"ko"_s, u"zh_TW"_s, u"nl"_s, u"pt"_s, u"it"_s};
        QCOMPARE(manager.supportedLanguages(), languages);
        QFile file(shipped);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject table = QJsonDocument::fromJson(file.readAll()).object();
        const QList<std::pair<QString, QStringList>> pages{
            {u"support"_s, {u"help"_s, u"contact"_s, u"tutorial"_s, u"faq"_s}},
            {u"menu"_s, {u"about"_s, u"support"_s, u"updates"_s}},
            {u"website"_s, {u"home"_s}},
        };
        QStringList addresses;
        for (const auto &[category, keys] : pages) {
            for (const QString &key : keys) {
                for (const QString &language : languages) {
                    const QUrl url(table[category][key][language].toString(), QUrl::StrictMode);
                    QVERIFY2(url.isValid() && url.scheme() == "https"_L1, qPrintable(key));
                    // A reserved host name: it can never belong to somebody else.
                    QCOMPARE(url.host(), u"sweepwise.example"_s);
                    addresses.append(url.toString());
                }
            }
        }
        QCOMPARE(addresses.removeDuplicates(), 0);
        QCOMPARE(table.keys(), (QStringList{u"menu"_s, u"metadata"_s, u"support"_s, u"website"_s}));
        for (const auto &[category, keys] : pages)
            QCOMPARE(table[category].toObject().size(), keys.size());
        const QJsonObject metadata = table["metadata"_L1].toObject();
        QCOMPARE(metadata["fallback_language"_L1], QJsonValue(u"en"_s));
        QVERIFY(QDate::fromString(metadata["last_updated"_L1].toString(), Qt::ISODate).isValid());
    }

    void theStoredLanguageWinsOverTheSystems_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("expected");
        for (const char *code : {"en", "fr", "de", "ja", "es", "ko", "nl", "pt", "it"}) {
            const QString language = QString::fromLatin1(code);
            QTest::addRow("system %s", code) << QString() << language + "_XX"_L1 << language;
            QTest::addRow("stored %s", code) << language << u"zh_TW"_s << language;
        }
        QTest::newRow("Hong Kong") << QString() << u"zh_HK"_s << u"zh_TW"_s;
        QTest::newRow("Taiwan") << QString() << u"zh_TW"_s << u"zh_TW"_s;
        QTest::newRow("simplified Chinese gets English") << QString() << u"zh_CN"_s << u"en"_s;
        QTest::newRow("Chinese of Singapore") << QString() << u"zh_SG"_s << u"en"_s;
        QTest::newRow("Chinese alone") << QString() << u"zh"_s << u"en"_s;
        QTest::newRow("Chinese in another case") << QString() << u"zh_tw"_s << u"en"_s;
        QTest::newRow("Chinese with a hyphen") << QString() << u"zh-TW"_s << u"en"_s;
        QTest::newRow("C") << QString() << u"C"_s << u"en"_s;
        QTest::newRow("three letters") << QString() << u"deu_DE"_s << u"de"_s;
        QTest::newRow("Filipino") << QString() << u"fil_PH"_s << u"en"_s;
        QTest::newRow("Brazilian") << QString() << u"pt_BR"_s << u"pt"_s;
        QTest::newRow("capitals") << QString() << u"DE_DE"_s << u"de"_s;
        QTest::newRow("Swedish") << QString() << u"sv_SE"_s << u"en"_s;
        QTest::newRow("no locale") << QString() << QString() << u"en"_s;
        QTest::newRow("stored wins") << u"zh_TW"_s << u"fr_FR"_s << u"zh_TW"_s;
        QTest::newRow("stored but not in the table") << u"tlh"_s << u"sv_SE"_s << u"en"_s;
        QTest::newRow("stored in another case") << u"FR"_s << u"it_IT"_s << u"it"_s;
        QTest::newRow("stored with its country") << u"fr_FR"_s << u"it_IT"_s << u"it"_s;
        QTest::newRow("stored Chinese in another case") << u"zh_tw"_s << u"it_IT"_s << u"it"_s;
    }

    void theStoredLanguageWinsOverTheSystems()
    {
        QFETCH(QString, language);
        QFETCH(QString, system);
        QFETCH(QString, expected);
        if (!language.isEmpty())
            storeLanguage(language);
        const LogCapture log;
        const LinkManager manager(shipped, system);
        QCOMPARE(manager.currentLanguage(), expected);
        QVERIFY(manager.getLink(u"support"_s, u"help"_s)
                    .contains(u'/' + expected.toLower().replace(u'_', u'-') + u'/'));
        if (language == expected)
            QVERIFY(log.contains(u"[LinkManager] 使用用户设置的语言: \"%1\""_s.arg(language)));
        else
            QVERIFY(log.contains(
                u"[LinkManager] 系统语言: \"%1\" -> 映射为: \"%2\""_s.arg(system, expected)));
        QVERIFY(log.contains(u"[LinkManager] 版本: \"1.0.0\""_s));
        QVERIFY(log.contains(u"[LinkManager] 当前语言: \"%1\""_s.arg(expected)));
        QCOMPARE(log.count(u"[LinkManager] 初始化完成"_s), 1);
    }

    void aPageMissingInTheLanguageIsOpenedInEnglish()
    {
        const TestTree tree;
        const LinkManager manager(table(tree), u"de_DE"_s);
        const LogCapture log;
        QCOMPARE(manager.getLink(u"support"_s, u"help"_s), u"https://a.example/en"_s);
        QVERIFY(log.contains(u"[LinkManager] 语言 \"de\" 不存在，使用回退语言: \"en\""_s));
        QVERIFY(log.contains(u"[LinkManager] ✓ 获取链接成功 [de]: https://a.example/en"_s));
    }

    void aPageEmptyInTheLanguageIsOpenedInEnglish()
    {
        const TestTree tree;
        const LinkManager manager(table(tree), u"de_DE"_s);
        const LogCapture log;
        QCOMPARE(manager.getLink(u"support"_s, u"hollow"_s), u"https://b.example/en"_s);
        QVERIFY(log.contains(u"[LinkManager] ⚠ 无法获取 \"de\" 的 版本，降级到 \"en\""_s));
        QVERIFY(log.contains(u"[LinkManager] ✓ 使用回退语言 [en]: https://b.example/en"_s));
    }

    void anUnknownPageHasNoAddress_data()
    {
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("line");
        QTest::newRow("category") << u"nothing"_s << u"help"_s
                                  << u"[LinkManager] 类别不存在: \"nothing\""_s;
        QTest::newRow("key") << u"support"_s << u"nothing"_s
                             << u"[LinkManager] 键不存在: \"nothing\" in category: \"support\""_s;
        QTest::newRow("neither language")
            << u"support"_s << u"french"_s
            << u"[LinkManager] 无法找到链接: \"support\" \"french\""_s;
    }

    void anUnknownPageHasNoAddress()
    {
        QFETCH(QString, category);
        QFETCH(QString, key);
        QFETCH(QString, line);
        const TestTree tree;
        const LinkManager manager(table(tree), u"de_DE"_s);
        const LogCapture log;
        QCOMPARE(manager.getLink(category, key), QString());
        QCOMPARE(log.count(line), 2); // in the language and in the fallback language
        QVERIFY(log.contains(u"[LinkManager] ✗ 无法获取链接: \"%1\" \"%2\""_s.arg(category, key)));
        QVERIFY(log.contains(u"[LinkManager] ✗ 请检查 links.json 配置文件！"_s));
    }

    void aTableThatCannotBeReadLeavesNoLinks_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("line");
        QTest::newRow("missing") << QByteArray() << u"[LinkManager] 无法打开 links.json:"_s;
        QTest::newRow("no JSON") << QByteArray("{") << u"[LinkManager] JSON 格式错误"_s;
        QTest::newRow("a list") << QByteArray("[1]") << u"[LinkManager] JSON 格式错误"_s;
    }

    void aTableThatCannotBeReadLeavesNoLinks()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, line);
        const TestTree tree;
        const QString path =
            content.isEmpty() ? tree.path(u"none"_s) : tree.file(u"links.json"_s, content);
        const LogCapture log;
        const LinkManager manager(path, u"fr_FR"_s);
        QVERIFY(log.contains(line));
        QVERIFY(log.contains(u"[LinkManager] 加载链接配置失败！"_s));
        QVERIFY(log.contains(u"[LinkManager] 不支持的语言，使用回退语言: \"en\""_s));
        QCOMPARE(manager.currentLanguage(), u"en"_s);
        QCOMPARE(manager.getLink(u"support"_s, u"help"_s), QString());
        QCOMPARE(log.count(u"[LinkManager] 类别不存在: \"support\""_s), 2);
    }

    void anotherLanguageIsStoredAndSignalledOnce()
    {
        LinkManager manager(shipped, u"en_US"_s);
        const SignalSpy changed(&manager, &LinkManager::languageChanged);
        manager.setLanguage(u"zh_TW"_s);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.constFirst().constFirst().toString(), u"zh_TW"_s);
        QCOMPARE(storedLanguage(), u"zh_TW"_s);
        QVERIFY(manager.getLink(u"website"_s, u"home"_s).contains("/zh-tw/"_L1));
    }

    void theCurrentLanguageIsNotSignalledAgain()
    {
        LinkManager manager(shipped, u"fr_FR"_s);
        const SignalSpy changed(&manager, &LinkManager::languageChanged);
        manager.setLanguage(u"fr"_s);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(storedLanguage(), QString());
    }

    void aLanguageWithoutPagesIsRefused()
    {
        LinkManager manager(shipped, u"fr_FR"_s);
        const SignalSpy changed(&manager, &LinkManager::languageChanged);
        const LogCapture log;
        manager.setLanguage(u"sv"_s);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(manager.currentLanguage(), u"fr"_s);
        QCOMPARE(storedLanguage(), QString());
        QVERIFY(log.contains(u"[LinkManager] 不支持的语言: \"sv\""_s));
    }

    void theAddressIsOpened()
    {
        RecordingLinkManager manager(shipped, u"nl_NL"_s);
        QWidget parent;
        const MessageBoxes boxes(QMessageBox::Ok);
        const LogCapture log;
        QVERIFY(manager.openLink(u"support"_s, u"help"_s, &parent));
        QCOMPARE(manager.opened, QList<QUrl>{QUrl(u"https://sweepwise.example/nl/help"_s)});
        QVERIFY(boxes.seen().isEmpty());
        QVERIFY(
            log.contains(u"[LinkManager] ✓ 成功打开链接: \"https://sweepwise.example/nl/help\""_s));
    }

    void theSystemIsAskedToOpenIt()
    {
        QDesktopServices::setUrlHandler(u"https"_s, this, "onUrl");
        LinkManager manager(shipped, u"it_IT"_s);
        const bool isOpened = manager.openLink(u"support"_s, u"contact"_s);
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QVERIFY(isOpened);
        QCOMPARE(m_handled, QList<QUrl>{QUrl(u"https://sweepwise.example/it/contact"_s)});
    }

    void withoutABrowserTheAddressIsShown()
    {
        RecordingLinkManager manager(shipped, u"en_US"_s);
        manager.hasBrowser = false;
        QWidget parent;
        const MessageBoxes boxes(QMessageBox::Ok);
        QVERIFY(!manager.openLink(u"support"_s, u"help"_s, &parent));
        QCOMPARE(boxes.seen(),
                 QStringList{u"无法打开浏览器|无法打开默认浏览器。\n\n请手动复制链接访问：\n"
                             "https://sweepwise.example/en/help"_s});
    }

    void withoutAnAddressTheUserIsTold()
    {
        RecordingLinkManager manager(shipped, u"en_US"_s);
        QWidget parent;
        const MessageBoxes boxes(QMessageBox::Ok);
        QVERIFY(!manager.openLink(u"support"_s, u"none"_s, &parent));
        QCOMPARE(boxes.seen(),
                 QStringList{u"配置错误|无法加载页面链接。\n\n请联系技术支持或重新安装软件。"_s});
        QVERIFY(manager.opened.isEmpty());
    }

    void withoutAParentNoBoxIsShown()
    {
        RecordingLinkManager manager(shipped, u"en_US"_s);
        manager.hasBrowser = false;
        const MessageBoxes boxes(QMessageBox::Ok);
        QVERIFY(!manager.openLink(u"support"_s, u"none"_s));
        QVERIFY(!manager.openLink(u"support"_s, u"help"_s));
        QVERIFY(boxes.seen().isEmpty());
    }

public Q_SLOTS:
    void onUrl(const QUrl &url) { m_handled.append(url); }

private:
    // A table with two languages. Each page lacks one of them, or both.
    static QString table(const TestTree &tree)
    {
        return tree.file(u"links.json"_s,
                         "{\"metadata\": {\"supported_languages\": [\"en\", \"de\"]},"
                         " \"support\": {"
                         "  \"help\": {\"en\": \"https://a.example/en\"},"
                         "  \"hollow\": {\"en\": \"https://b.example/en\", \"de\": \"\"},"
                         "  \"french\": {\"fr\": \"https://c.example/fr\"}}}");
    }

    QList<QUrl> m_handled;
};

SWEEPWISE_TEST_MAIN(TestLinkManager, QApplication)
#include "tst_linkmanager.moc"
