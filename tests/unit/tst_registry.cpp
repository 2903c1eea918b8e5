#include "appinfo.h"
#include "registry.h"
#include "registryfixture.h"
#include "testhome.h"
#include "testtree.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;
using platform::RegistryValue;

namespace {

const QString software = u"Software\\Sweepwise Test"_s;
const QString userKey = u"HKEY_CURRENT_USER\\Software\\Sweepwise Test"_s;

QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

} // namespace

/// The registry as the engines read and change it: on Windows the live one, on Linux that of a
/// prefix.
class TestRegistry : public QObject
{
    Q_OBJECT
public:
    explicit TestRegistry(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(m_home); }
    void cleanup() { m_fixture.reset(); }

    void keysAndValuesAreFoundIgnoringCase()
    {
        m_fixture->addText(userKey + "\\Sub"_L1, u"Name"_s, u"text \u4e2d"_s);
        m_fixture->addText(userKey, {}, u"default"_s);
        m_fixture->write();
        const Registry registry;
        QVERIFY(registry.hasKey(Hive::CurrentUser, u"SOFTWARE\\sweepwise test"_s));
        QCOMPARE(registry.subkeys(Hive::CurrentUser, software), QStringList{u"Sub"_s});
        QCOMPARE(registry.valueNames(Hive::CurrentUser, software), QStringList{QString()});
        QCOMPARE(registry.text(Hive::CurrentUser, software, {}), u"default"_s);
        QCOMPARE(registry.text(Hive::CurrentUser, software + "\\SUB"_L1, u"NAME"_s),
                 u"text \u4e2d"_s);
        QVERIFY(registry.subkeys(Hive::CurrentUser, {}).contains(u"Software"_s));
    }

    void missingKeysAndValuesYieldNothing()
    {
        m_fixture->addKey(userKey);
        m_fixture->write();
        const Registry registry;
        const QString missing = software + "\\Missing"_L1;
        QVERIFY(!registry.hasKey(Hive::CurrentUser, missing));
        QVERIFY(registry.subkeys(Hive::CurrentUser, missing).isEmpty());
        QVERIFY(registry.valueNames(Hive::CurrentUser, missing).isEmpty());
        QVERIFY(registry.text(Hive::CurrentUser, software, u"missing"_s).isEmpty());
        QVERIFY(!registry.value(Hive::CurrentUser, software, u"missing"_s));
        QVERIFY(!registry.values(Hive::CurrentUser, missing, 100));
        QCOMPARE(registry.values(Hive::CurrentUser, software, 100)->size(), 0);
    }

    void textOfEveryKind_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("text");
        QTest::newRow("text") << 1U << utf16(u"abc\0"_s) << u"abc"_s;
        QTest::newRow("text without a terminator") << 1U << utf16(u"abc"_s) << u"abc"_s;
        QTest::newRow("text of odd length") << 1U << QByteArray("a\0b\0c", 5) << u"ab"_s;
        QTest::newRow("text to the first NUL") << 1U << utf16(u"ab\0cd\0"_s) << u"ab"_s;
        QTest::newRow("empty") << 1U << QByteArray() << QString();
        QTest::newRow("one byte") << 1U << QByteArray("a") << QString();
        QTest::newRow("expandable") << 2U << utf16(u"%x%\0"_s) << u"%x%"_s;
        QTest::newRow("number") << 4U << QByteArray("\1\2\0\0", 4) << u"513"_s;
        QTest::newRow("number of three bytes") << 4U << QByteArray("\1\2\3") << QString();
        QTest::newRow("long number") << 11U << QByteArray("\1\0\0\0\1\0\0\0", 8) << u"4294967297"_s;
        QTest::newRow("long number of four bytes") << 11U << QByteArray("\1\2\3\4") << QString();
        QTest::newRow("binary") << 3U << utf16(u"abc\0"_s) << QString();
        QTest::newRow("unknown type") << 99U << utf16(u"abc\0"_s) << QString();
    }
    void textOfEveryKind()
    {
        QFETCH(quint32, type);
        QFETCH(QByteArray, data);
        QFETCH(QString, text);
        m_fixture->addKey(userKey);
        m_fixture->write();
        Registry registry;
        QVERIFY(registry.setValue(Hive::CurrentUser, software, {u"v"_s, type, data}));
        QVERIFY(registry.save());
        QCOMPARE(registry.text(Hive::CurrentUser, software, u"v"_s), text);
    }

    void valuesAreReadWholeAndLongOnesLeftOut()
    {
        const QByteArray big(65'537, 'x');
        m_fixture->addBytes(userKey, u"a"_s, 3, big);
        m_fixture->addBytes(userKey, u"b"_s, 3, big.first(65'536));
        m_fixture->addBytes(userKey, u"c"_s, 99, "y");
        m_fixture->write();
        const Registry registry;
        QCOMPARE(registry.value(Hive::CurrentUser, software, u"a"_s)->data, big);
        const auto values = registry.values(Hive::CurrentUser, software, 65'536);
        QVERIFY(values);
        QCOMPARE(values->size(), 2);
        QCOMPARE(values->at(0).data, big.first(65'536));
        QCOMPARE(values->at(1).name, u"c"_s);
        QCOMPARE(values->at(1).type, 99U);
    }

    void namesThatOnlyLookAlikeAreAllListed()
    {
        m_fixture->addText(userKey, u"k"_s, u"letter"_s);
        m_fixture->addText(userKey, u"\u212a"_s, u"kelvin"_s);
        m_fixture->write();
        const Registry registry;
        QCOMPARE(registry.valueNames(Hive::CurrentUser, software).size(), 2);
        QCOMPARE(registry.values(Hive::CurrentUser, software, 100)->size(), 2);
        QCOMPARE(registry.text(Hive::CurrentUser, software, u"K"_s), u"letter"_s);
        QCOMPARE(registry.text(Hive::CurrentUser, software, u"\u212a"_s), u"kelvin"_s);
    }

    void changesAreMadeAndNothingElse()
    {
        for (const QString &name : {u"a"_s, u"b"_s, QString()})
            m_fixture->addText(userKey, name, u"x"_s);
        m_fixture->addText(userKey + "\\Gone\\Below"_L1, u"a"_s, u"x"_s);
        m_fixture->addText(userKey + "\\Gone too"_L1, u"a"_s, u"x"_s);
        m_fixture->addText(userKey + "\\Stays\\Below"_L1, u"a"_s, u"x"_s);
        m_fixture->write();

        Registry registry;
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"A"_s));
        QVERIFY(!registry.deleteValue(Hive::CurrentUser, software, u"missing"_s));
        QVERIFY(!registry.errorString().isEmpty());
        QVERIFY(registry.deleteTree(Hive::CurrentUser, software + "\\gone"_L1));
        QVERIFY(registry.deleteKey(Hive::CurrentUser, software + "\\Gone too"_L1));
        QVERIFY(!registry.deleteKey(Hive::CurrentUser, software + "\\Stays"_L1));
        QVERIFY(!registry.deleteTree(Hive::CurrentUser, software + "\\Missing"_L1));
        QVERIFY(registry.createKey(Hive::CurrentUser, software + "\\New\\Key"_L1));
        QVERIFY(registry.createKey(Hive::CurrentUser, software));
        QVERIFY(registry.setValue(Hive::CurrentUser, software + "\\New\\Key"_L1,
                                  {u"n"_s, 4, QByteArray("\1\0\0\0", 4)}));
        QVERIFY(!registry.setValue(Hive::CurrentUser, software + "\\Missing"_L1, {u"n"_s, 4, {}}));
        QVERIFY(registry.save());

        QVERIFY(!m_fixture->hasValue(userKey, u"a"_s));
        QVERIFY(m_fixture->hasValue(userKey, u"b"_s));
        QVERIFY(m_fixture->hasValue(userKey, {}));
        QVERIFY(!m_fixture->hasKey(userKey + "\\Gone"_L1));
        QVERIFY(!m_fixture->hasKey(userKey + "\\Gone too"_L1));
        QVERIFY(m_fixture->hasValue(userKey + "\\Stays\\Below"_L1, u"a"_s));
        QVERIFY(m_fixture->hasValue(userKey + "\\New\\Key"_L1, u"n"_s));
    }

    void aPathThatIsNoKeyIsRefusedBeforeAnyCall_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << QString();
        QTest::newRow("one backslash") << u"\\"_s;
        QTest::newRow("backslashes") << u"\\\\\\"_s;
        QTest::newRow("backslash before") << u"\\Software"_s;
        QTest::newRow("backslash behind") << u"Software\\Sweepwise Test\\"_s;
        QTest::newRow("empty name inside") << u"Software\\\\Sweepwise Test"_s;
    }
    void aPathThatIsNoKeyIsRefusedBeforeAnyCall()
    {
        QFETCH(QString, path);
        m_fixture->addText(userKey, u"a"_s, u"x"_s);
        m_fixture->write();
        Registry registry;
        QVERIFY(!registry.deleteTree(Hive::CurrentUser, path));
        QVERIFY(!registry.errorString().isEmpty());
        QVERIFY(!registry.deleteKey(Hive::CurrentUser, path));
        QVERIFY(!registry.deleteValue(Hive::CurrentUser, path, u"a"_s));
        QVERIFY(!registry.createKey(Hive::CurrentUser, path));
        QVERIFY(!registry.setValue(Hive::CurrentUser, path, {u"n"_s, 1, {}}));
        QVERIFY(registry.save());
        QVERIFY(m_fixture->hasValue(userKey, u"a"_s));
    }

    void classesOfTheUserComeFirst()
    {
        const QString inMachine = u"HKEY_LOCAL_MACHINE\\Software\\Classes\\.sweepwise"_s;
        const QString inUser = u"HKEY_CURRENT_USER\\Software\\Classes\\.sweepwise"_s;
        m_fixture->addText(inMachine + u'a', {}, u"machine"_s);
        m_fixture->addText(inMachine + u'b', {}, u"machine"_s);
        m_fixture->addText(inMachine + u'b', u"m"_s, u"machine"_s);
        m_fixture->addText(inUser + u'B', {}, u"user"_s);
        m_fixture->addText(inUser + u'c', {}, u"user"_s);
        m_fixture->write();
        const Registry registry;
        QStringList own = registry.subkeys(Hive::ClassesRoot, {});
        own.removeIf([](const QString &key) { return !key.startsWith(".sweepwise"_L1); });
        QCOMPARE(own, (QStringList{u".sweepwisea"_s, u".sweepwiseb"_s, u".sweepwisec"_s}));
        QCOMPARE(registry.text(Hive::ClassesRoot, u".sweepwiseb"_s, {}), u"user"_s);
        QCOMPARE(registry.text(Hive::ClassesRoot, u".sweepwiseb"_s, u"m"_s), u"machine"_s);
        QCOMPARE(registry.valueNames(Hive::ClassesRoot, u".sweepwiseb"_s).size(), 2);
        QVERIFY(registry.hasKey(Hive::ClassesRoot, u".sweepwisec"_s));
        QVERIFY(!registry.hasKey(Hive::ClassesRoot, u".sweepwised"_s));

        const auto text = [&registry](const QString &key, const QString &name) {
            const Registry::ClassText found = registry.classText(key, name);
            return std::pair(found.text, found.hive);
        };
        QCOMPARE(text(u".sweepwisea"_s, {}), std::pair(u"machine"_s, Hive::LocalMachine));
        QCOMPARE(text(u".sweepwiseb"_s, {}), std::pair(u"user"_s, Hive::CurrentUser));
        QCOMPARE(text(u".sweepwiseb"_s, u"m"_s), std::pair(u"machine"_s, Hive::LocalMachine));
        QCOMPARE(text(u".sweepwisec"_s, {}), std::pair(u"user"_s, Hive::CurrentUser));
        QCOMPARE(text(u".sweepwised"_s, {}).first, QString());
    }

    void theMergedClassesAreNotChanged()
    {
        m_fixture->addText(u"HKEY_CURRENT_USER\\Software\\Classes\\.sweepwise"_s, u"v"_s, u"x"_s);
        m_fixture->write();
        Registry registry;
        const QString key = u".sweepwise"_s;
        QVERIFY(!registry.deleteTree(Hive::ClassesRoot, key));
        QVERIFY(!registry.errorString().isEmpty());
        QVERIFY(!registry.deleteKey(Hive::ClassesRoot, key));
        QVERIFY(!registry.deleteValue(Hive::ClassesRoot, key, u"v"_s));
        QVERIFY(!registry.createKey(Hive::ClassesRoot, key + "\\new"_L1));
        QVERIFY(!registry.setValue(Hive::ClassesRoot, key, {u"n"_s, 4, {}}));
        QVERIFY(registry.save());
        QCOMPARE(m_fixture->exported(u"HKEY_CURRENT_USER\\Software\\Classes\\.sweepwise"_s).size(),
                 2);
    }

#ifndef Q_OS_WIN
    void aFileThatChangedMeanwhileIsNotWritten()
    {
        m_fixture->addText(userKey, u"a"_s, u"x"_s);
        m_fixture->write();
        Registry registry;
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"a"_s));
        m_fixture->addText(userKey, u"b"_s, u"y"_s);
        m_fixture->write();
        QVERIFY(!registry.save());
        QVERIFY(registry.errorString().contains(m_fixture->file(u"HKEY_CURRENT_USER"_s)));
        QVERIFY(m_fixture->hasValue(userKey, u"a"_s));
        QVERIFY(m_fixture->hasValue(userKey, u"b"_s));
        // After the failure the files are read again.
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"a"_s));
        QVERIFY(registry.save());
        QVERIFY(!m_fixture->hasValue(userKey, u"a"_s));
    }

    // Two runs at once: the second would put its older content over what the first has saved.
    void whileAnotherRunSavesNothingIsWritten()
    {
        m_fixture->addText(userKey, u"a"_s, u"x"_s);
        m_fixture->write();
        const QString prefix = m_home.folder(u"prefix"_s);
        const int other = ::open(QFile::encodeName(prefix).constData(), O_RDONLY | O_DIRECTORY);
        QCOMPARE(::flock(other, LOCK_EX), 0);
        Registry registry;
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"a"_s));
        QVERIFY(!registry.save());
        QVERIFY2(registry.errorString().contains(prefix), qPrintable(registry.errorString()));
        QVERIFY(m_fixture->hasValue(userKey, u"a"_s));
        ::close(other);
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"a"_s));
        QVERIFY(registry.save());
        QVERIFY(!m_fixture->hasValue(userKey, u"a"_s));
    }

    void aFileOfAnotherKindIsReadAsNothingAndNotWritten()
    {
        const QString path = m_fixture->file(u"HKEY_CURRENT_USER"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("something else\n");
        file.close();
        Registry registry;
        QVERIFY(registry.subkeys(Hive::CurrentUser, {}).isEmpty());
        QVERIFY(!registry.createKey(Hive::CurrentUser, software));
        QVERIFY(registry.errorString().contains(path));
        QVERIFY(registry.save());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("something else\n"));
    }

    void aPrefixInUseIsReadButNotWritten()
    {
        m_fixture->addText(userKey, u"a"_s, u"x"_s);
        m_fixture->write();
        // Wine's server works in a folder with the prefix's device and file number in its name.
        struct stat data {
        };
        const QString prefix = m_home.folder(u"prefix"_s);
        QCOMPARE(::stat(QFile::encodeName(prefix).constData(), &data), 0);
        QProcess server;
        server.setWorkingDirectory(m_home.folder(u"run/server-%1-%2"_s.arg(
            QString::number(data.st_dev, 16), QString::number(data.st_ino, 16))));
        server.start(u"sleep"_s, {u"60"_s});
        QVERIFY(server.waitForStarted());

        Registry registry;
        QCOMPARE(registry.text(Hive::CurrentUser, software, u"a"_s), u"x"_s);
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"a"_s));
        QVERIFY(!registry.save());
        QVERIFY(registry.errorString().contains(prefix));
        QVERIFY(m_fixture->hasValue(userKey, u"a"_s));

        server.kill();
        QVERIFY(server.waitForFinished());
        QVERIFY(registry.deleteValue(Hive::CurrentUser, software, u"a"_s));
        QVERIFY(registry.save());
        QVERIFY(!m_fixture->hasValue(userKey, u"a"_s));
    }

    void aLinkIsNeitherFollowedNorRemoved()
    {
        QFile file(m_fixture->file(u"HKEY_CURRENT_USER"_s));
        QVERIFY(file.open(QIODevice::Append));
        file.write("\n[Software\\\\Link] 1\n#link\n\"SymbolicLinkValue\"=hex(6):5c,00\n"
                   "\n[Software\\\\Target] 1\n\"v\"=\"x\"\n");
        file.close();
        Registry registry;
        const QString link = u"Software\\Link"_s;
        QVERIFY(registry.subkeys(Hive::CurrentUser, u"Software"_s).contains(u"Link"_s));
        QVERIFY(!registry.deleteTree(Hive::CurrentUser, link));
        QVERIFY(!registry.deleteKey(Hive::CurrentUser, link));
        QVERIFY(!registry.deleteValue(Hive::CurrentUser, link, u"SymbolicLinkValue"_s));
        QVERIFY(!registry.setValue(Hive::CurrentUser, link, {u"v"_s, 1, {}}));
        QVERIFY(!registry.createKey(Hive::CurrentUser, link + "\\Below"_L1));
        QVERIFY(registry.save());
        QVERIFY(m_fixture->hasKey(u"HKEY_CURRENT_USER\\Software\\Link"_s));
    }

    void aFileThatMayNotBeReplacedStaysAsItWas()
    {
        m_fixture->addText(userKey, u"a"_s, u"x"_s);
        m_fixture->write();
        QFile::setPermissions(m_home.path(),
                              QFile::permissions(m_home.path()) | QFile::ReadGroup | QFile::ExeGroup
                                  | QFile::ReadOther | QFile::ExeOther);
        Registry registry;
        bool isSaved = true;
        {
            const OrdinaryUser user;
            QVERIFY2(registry.deleteValue(Hive::CurrentUser, software, u"a"_s),
                     qPrintable(registry.errorString()));
            isSaved = registry.save();
        }
        QVERIFY(!isSaved);
        QVERIFY(registry.errorString().contains("cannot be written"_L1));
        QVERIFY(m_fixture->hasValue(userKey, u"a"_s));
    }

    void withoutAPrefixTheRegistryIsEmpty()
    {
        const QByteArray before = qgetenv("WINEPREFIX");
        qputenv("WINEPREFIX", "/nowhere");
        Registry registry;
        QVERIFY(registry.subkeys(Hive::LocalMachine, {}).isEmpty());
        QVERIFY(!registry.createKey(Hive::CurrentUser, software));
        QVERIFY(!registry.errorString().isEmpty());
        QVERIFY(registry.save());
        qputenv("WINEPREFIX", before);
    }
#endif

private:
    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
};

SWEEPWISE_TEST_MAIN(TestRegistry, QCoreApplication)
#include "tst_registry.moc"
