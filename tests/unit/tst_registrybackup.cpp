#include "appinfo.h"
#include "registrybackup.h"
#include "registryfixture.h"
#include "registryrestore.h"
#include "testhome.h"
#include "testtree.h"

#include <QDir>
#include <QFile>
#include <QTest>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;
using platform::RegistryValue;

namespace {

const std::atomic_bool notStopped = false;

const QString testKey = u"HKEY_CURRENT_USER\\Software\\Sweepwise Test"_s;
const QString testPath = u"Software\\Sweepwise Test"_s;
const QDateTime created(QDate(2026, 11, 5), QTime(9, 8, 7));
const QString header = u"Windows Registry Editor Version 5.00\r\n\r\n"
                       "; Sweepwise Registry Backup\r\n"
                       "; Created: 2026-11-05 09:08:07\r\n"
                       "; This file can be double-clicked to restore deleted registry "
                       "entries\r\n\r\n"_s;

QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

CleanItem item(const QString &name, const QString &root, const QString &key)
{
    CleanItem made(name, root + u'\\' + key, 0);
    made.registryRoot = root;
    made.registryKey = key;
    return made;
}

ScanResult resultOf(const QList<CleanItem> &items)
{
    CleanCategory category(u"id"_s, u"Some Kind"_s, {});
    category.items = items;
    ScanResult result;
    result.categories.append(category);
    return result;
}

const QString categoryLine = u"; === Category: Some Kind ===\r\n\r\n"_s;

// How many damaged texts are tried. The environment may ask for a longer run.
int fuzzRounds()
{
    bool isNumber = false;
    const int rounds = qEnvironmentVariableIntValue("SWEEPWISE_FUZZ_ROUNDS", &isNumber);
    return isNumber ? rounds : 20'000;
}

} // namespace

/// The text of the backup, byte for byte, and how the file is written and read.
class TestRegistryBackup : public QObject
{
    Q_OBJECT
public:
    explicit TestRegistryBackup(const TestHome &home)
        : m_home(home)
    {
    }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RegistryFixture>(m_home); }
    void cleanup() { m_fixture.reset(); }

    void nothingCheckedYieldsTheHeaderAlone()
    {
        QCOMPARE(RegistryBackup::text({}, Registry(), created), header);
        ScanResult unchecked = resultOf({item(u"a"_s, u"HKCU"_s, testPath + "\\a"_L1)});
        unchecked.categories[0].checked = false;
        QCOMPARE(RegistryBackup::text(unchecked, Registry(), created), header);
    }

    void aCategoryWithoutCheckedItemsYieldsItsLineOnly()
    {
        ScanResult result = resultOf({item(u"a"_s, u"HKCU"_s, testPath + "\\a"_L1)});
        result.categories[0].items[0].checked = false;
        QCOMPARE(RegistryBackup::text(result, Registry(), created), header + categoryLine);
    }

    void aKeyWithoutValuesIsItsLineAndAnEmptyOne()
    {
        m_fixture->addKey(testKey + "\\Empty"_L1);
        m_fixture->write();
        const ScanResult result = resultOf({item(u"Empty"_s, u"HKCU"_s, testPath + "\\Empty"_L1)});
        QCOMPARE(RegistryBackup::text(result, Registry(), created),
                 header + categoryLine + "; Empty\r\n["_L1 + testKey + "\\Empty]\r\n\r\n"_L1);
    }

    void aValueAndAKeyAreToldApartByWhatIsThere()
    {
        m_fixture->addText(testKey, u"Value"_s, u"v"_s);
        m_fixture->addText(testKey, u"Other"_s, u"o"_s);
        m_fixture->addText(testKey + "\\Key"_L1, {}, u"d"_s);
        m_fixture->addText(testKey + "\\Key"_L1, u"x"_s, u"y"_s);
        m_fixture->addText(testKey + "\\Key\\Below"_L1, u"not"_s, u"exported"_s);
        m_fixture->write();
        const ScanResult result =
            resultOf({item(u"one"_s, u"HKCU"_s, testPath + "\\Value"_L1),
                      item(u"two"_s, u"HKEY_CURRENT_USER"_s, testPath + "\\Key"_L1)});
        QCOMPARE(RegistryBackup::text(result, Registry(), created),
                 header + categoryLine + "; one\r\n["_L1 + testKey
                     + "]\r\n\"Value\"=\"v\"\r\n\r\n"_L1 + "; two\r\n["_L1 + testKey
                     + "\\Key]\r\n@=\"d\"\r\n\"x\"=\"y\"\r\n\r\n"_L1);
    }

    void whatCannotBeReadIsWarnedAbout()
    {
        const ScanResult result =
            resultOf({item(u"entry"_s, u"HKLM"_s, u"SOFTWARE\\Sweepwise Missing\\v"_s),
                      item(u"key"_s, u"HKCR"_s, u".sweepwise missing"_s),
                      item(u"other hive"_s, u"anything"_s, u"Sweepwise Missing"_s)});
        QCOMPARE(RegistryBackup::text(result, Registry(), created),
                 header + categoryLine
                     + "; entry\r\n; WARNING: Could not read registry entry: "
                       "HKEY_LOCAL_MACHINE\\SOFTWARE\\Sweepwise Missing\\v\r\n\r\n"
                       "; key\r\n; WARNING: Could not read registry key: "
                       "HKEY_CLASSES_ROOT\\.sweepwise missing\r\n\r\n"
                       "; other hive\r\n; WARNING: Could not read registry key: "
                       "HKEY_LOCAL_MACHINE\\Sweepwise Missing\r\n\r\n"_L1);
    }

    void aValueNameWithABackslashIsWarnedAbout()
    {
        m_fixture->addText(testKey, u"C:\\Folder\\file.dll"_s, u"1"_s);
        m_fixture->write();
        const ScanResult result =
            resultOf({item(u"file.dll"_s, u"HKCU"_s, testPath + "\\C:\\Folder\\file.dll"_L1)});
        QVERIFY(RegistryBackup::text(result, Registry(), created)
                    .endsWith("; file.dll\r\n; WARNING: Could not read registry entry: "_L1
                              + testKey + "\\C:\\Folder\\file.dll\r\n\r\n"_L1));
    }

    void namesCannotWriteLinesOfTheirOwn()
    {
        const QString evil = u"x\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Evil]\r\n@=\"y\""_s;
        m_fixture->addKey(testKey);
        m_fixture->write();
        Registry registry;
        ScanResult result = resultOf({item(evil, u"HKCU"_s, testPath + u'\\' + evil)});
        result.categories[0].name = evil;
        QVERIFY(!RegistryBackup::text(result, registry, created).contains("\n["_L1));
        // The same holds when such a key really exists.
        QVERIFY(registry.createKey(Hive::CurrentUser, testPath + "\\x\r\n[y]"_L1));
        result = resultOf({item(u"n"_s, u"HKCU"_s, testPath + "\\x\r\n[y]"_L1)});
        const QString text = RegistryBackup::text(result, registry, created);
        QVERIFY(!text.contains("\n["_L1));
        QVERIFY(text.contains("; WARNING: Could not read registry entry: "_L1));
        QVERIFY(registry.deleteTree(Hive::CurrentUser, testPath));
    }

    void aValueNameWithALineBreakIsWarnedAboutAndTheOthersAreKept()
    {
        m_fixture->addText(testKey, u"good"_s, u"v"_s);
        m_fixture->write();
        Registry registry;
        const QString evil = u"x\"=\"y\"\r\n[HKEY_LOCAL_MACHINE/SOFTWARE]\r\n\"z"_s;
        QVERIFY(registry.setValue(Hive::CurrentUser, testPath, {evil, 1, utf16(u"v\0"_s)}));
        QVERIFY(registry.save());
        const ScanResult result = resultOf({item(u"key"_s, u"HKCU"_s, testPath)});
        const QString text = RegistryBackup::text(result, registry, created);
        QVERIFY(text.contains("\"good\"=\"v\"\r\n"_L1));
        QVERIFY(text.contains("; WARNING: Could not read registry entry: "_L1 + testKey));
        QVERIFY(!text.contains("\n[HKEY_LOCAL"_L1));
        QString error;
        QVERIFY2(RegistryRestore::parse(text, error), qPrintable(error));
    }

    void aVanishedDefaultValueDoesNotExportItsKey()
    {
        m_fixture->addText(testKey, u"other"_s, u"v"_s);
        m_fixture->write();
        const ScanResult result = resultOf({item(u"default"_s, u"HKCU"_s, testPath + u'\\')});
        const QString text = RegistryBackup::text(result, Registry(), created);
        QVERIFY(text.contains("; WARNING: Could not read registry entry: "_L1 + testKey + u'\\'));
        QVERIFY(!text.contains("other"_L1));
        QString error;
        QVERIFY2(RegistryRestore::parse(text, error), qPrintable(error));
    }

    void valueLines_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *title, const QString &name, quint32 type,
                            const QByteArray &data, const QString &line) {
            QTest::newRow(title) << name << type << data << line + "\r\n"_L1;
        };
        row("none", u"n"_s, 0, "ab", u"\"n\"=hex(0):61,62"_s);
        row("text", u"n"_s, 1, utf16(u"abc\0"_s), u"\"n\"=\"abc\""_s);
        row("default value", {}, 1, utf16(u"abc\0"_s), u"@=\"abc\""_s);
        row("quotes and backslashes", u"a\\b\"c"_s, 1, utf16(u"\\\"\0"_s),
            u"\"a\\\\b\\\"c\"=\"\\\\\\\"\""_s);
        row("text without terminator loses a character", u"n"_s, 1, utf16(u"abc"_s),
            u"\"n\"=\"ab\""_s);
        row("line breaks stay", u"n"_s, 1, utf16(u"a\r\nb\0"_s), u"\"n\"=\"a\r\nb\""_s);
        row("text of five bytes", u"n"_s, 1, QByteArray("a\0b\0c", 5), u"\"n\"=\"a\""_s);
        row("text without a byte", u"n"_s, 1, {}, u"\"n\"=hex(1):"_s);
        row("expandable", u"n"_s, 2, utf16(u"a\0"_s), u"\"n\"=hex(2):61,00,00,00"_s);
        row("binary", u"n"_s, 3, QByteArray("\0\xff", 2), u"\"n\"=hex:00,ff"_s);
        row("empty binary", u"n"_s, 3, {}, u"\"n\"=hex:"_s);
        row("number", u"n"_s, 4, QByteArray("\x0a\0\xbc\0", 4), u"\"n\"=dword:00bc000a"_s);
        row("number of three bytes", u"n"_s, 4, "\1\2\3", u"\"n\"=hex(4):01,02,03"_s);
        row("number of five bytes", u"n"_s, 4, QByteArray("\1\0\0\0\5", 5),
            u"\"n\"=dword:00000001"_s);
        row("big-endian number", u"n"_s, 5, "\1\2\3\4", u"\"n\"=hex(5):01,02,03,04"_s);
        row("link", u"n"_s, 6, "a", u"\"n\"=hex(6):61"_s);
        row("multi", u"n"_s, 7, utf16(u"a\0\0"_s), u"\"n\"=hex(7):61,00,00,00,00,00"_s);
        row("type 8", u"n"_s, 8, "a", u"\"n\"=hex(8):61"_s);
        row("type 9", u"n"_s, 9, "a", u"\"n\"=hex(9):61"_s);
        row("type 10", u"n"_s, 10, "a", u"\"n\"=hex(a):61"_s);
        row("long number", u"n"_s, 11, "\1\2\3\4\5\6\7\x8",
            u"\"n\"=hex(b):01,02,03,04,05,06,07,08"_s);
        row("type 12", u"n"_s, 12, "a", u"\"n\"=hex(c):61"_s);
        row("unknown type", u"n"_s, 0xdeadbeef, "a", u"\"n\"=hex(deadbeef):61"_s);
        const QString first = u"61,"_s.repeated(24);
        row("24 bytes", u"n"_s, 3, QByteArray(24, 'a'), u"\"n\"=hex:"_s + first.chopped(1));
        row("25 bytes wrap once", u"n"_s, 3, QByteArray(25, 'a'),
            u"\"n\"=hex:"_s + first + "\\\r\n  61"_L1);
        row("48 bytes wrap twice", u"a long name does not count"_s, 3, QByteArray(48, 'a'),
            u"\"a long name does not count\"=hex:"_s + first + "\\\r\n  "_L1 + u"61,"_s.repeated(23)
                + "\\\r\n  61"_L1);
    }
    void valueLines()
    {
        QFETCH(QString, name);
        QFETCH(quint32, type);
        QFETCH(QByteArray, data);
        QFETCH(QString, line);
        QCOMPARE(RegistryBackup::valueLine({name, type, data}), line);
    }

    void everyLineIsReadBack()
    {
        QString text = header + '['_L1 + testKey + "]\r\n"_L1;
        QList<RegistryValue> values;
        for (quint32 type = 0; type <= 13; ++type) {
            for (const QByteArray &data : {QByteArray(), QByteArray("a"), QByteArray("\1\2\3"),
                                           QByteArray(25, '\xfe'), QByteArray(65'536, 'z')}) {
                if ((type == 1 && data.size() > 1) || (type == 4 && data.size() > 3))
                    continue; // not what the type means; see below
                values.append({u"v%1-%2 \" \\ [x]\r\n;="_s.arg(QString::number(type),
                                                               QString::number(data.size())),
                               type, data});
            }
        }
        values.append({{}, 1, utf16(u"\"quoted\" \\ and\r\nbroken\n\u4e2d\U0001F600\0"_s)});
        values.append({u"d"_s, 4, QByteArray("\xff\xee\xdd\xcc")});
        for (const RegistryValue &value : std::as_const(values))
            text += RegistryBackup::valueLine(value);
        QString error;
        const auto keys = RegistryRestore::parse(text + "\r\n"_L1, error);
        QVERIFY2(keys, qPrintable(error));
        QCOMPARE(keys->size(), 1);
        QCOMPARE(keys->at(0).path, testPath);
        QCOMPARE(keys->at(0).values.size(), values.size());
        for (qsizetype i = 0; i < values.size(); ++i) {
            QCOMPARE(keys->at(0).values.at(i).name, values.at(i).name);
            QCOMPARE(keys->at(0).values.at(i).type, values.at(i).type);
            QCOMPARE(keys->at(0).values.at(i).data, values.at(i).data);
        }
    }

    void theFileIsUtf16WithAMarkAndItsOwnLineEnds()
    {
        const QString file = m_home.folder(u"backups"_s) + u"/\u5907\u4efd.reg"_s;
        QString error;
        QVERIFY(RegistryBackup::write(file, u"a\r\nb\n\u4e2d"_s, error));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(),
                 QByteArray("\xff\xfe"
                            "a\0\r\0\n\0b\0\n\0\x2d\x4e",
                            14));
    }

#ifdef Q_OS_UNIX
    void theFileIsForTheUserAlone()
    {
        const FileMask none;
        const QString path = m_home.folder(u"backups"_s) + "/mine.reg"_L1;
        QFile::remove(path);
        const QFile::Permissions own =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QString error;
        QVERIFY(RegistryBackup::write(path, u"x"_s, error));
        QCOMPARE(QFile::permissions(path), own);
        // An older one may be open to everybody.
        QVERIFY(QFile::setPermissions(path, own | QFile::ReadGroup | QFile::ReadOther));
        QVERIFY(RegistryBackup::write(path, u"y"_s, error));
        QCOMPARE(QFile::permissions(path), own);
    }
#endif

    void anUnwritablePlaceIsAnError()
    {
        QString error;
        QVERIFY(!RegistryBackup::write(m_home.path() + "/no such folder/b.reg"_L1, u"x"_s, error));
        QVERIFY(!error.isEmpty());
        error.clear();
        QVERIFY(!RegistryBackup::write(m_home.folder(u"a folder"_s), u"x"_s, error));
        QVERIFY(!error.isEmpty());
    }

    void aFullDiskLeavesTheOldFile()
    {
#ifdef Q_OS_LINUX
        const QString folder = m_home.folder(u"small disk"_s);
        if (::mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("making a small disk takes the administrator's rights");
        const QString path = folder + "/b.reg"_L1;
        QString error;
        const bool isFirst = RegistryBackup::write(path, u"old"_s, error);
        const bool isSecond = RegistryBackup::write(path, QString(100'000, u'x'), error);
        QFile file(path);
        const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        file.close();
        const QStringList entries = QDir(folder).entryList(QDir::Files);
        ::umount(QFile::encodeName(folder).constData());
        QVERIFY(isFirst);
        QVERIFY(!isSecond);
        QVERIFY(!error.isEmpty());
        QCOMPARE(content, QByteArray("\xff\xfeo\0l\0d\0", 8));
        QCOMPARE(entries, QStringList{u"b.reg"_s});
#else
        QSKIP("a small disk cannot be made here");
#endif
    }

    void marksAndLineEndsAreTolerated_data()
    {
        QTest::addColumn<QByteArray>("data");
        const QString text = u"h\r\nv=\"a\r\nb\n\"\r\n"_s;
        QTest::newRow("without a mark") << utf16(text);
        QTest::newRow("with a mark") << utf16(QChar(QChar::ByteOrderMark) + text);
        QTest::newRow("through text mode") << utf16(QString(text).replace("\n"_L1, "\r\n"_L1));
    }
    void marksAndLineEndsAreTolerated()
    {
        QFETCH(QByteArray, data);
        QCOMPARE(RegistryBackup::decode(data), std::optional(u"h\r\nv=\"a\r\nb\n\"\r\n"_s));
        QVERIFY(!RegistryBackup::decode(data.chopped(1)));
    }

    void aDamagedFileRestoresNothingAndSaysWhere_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("place");
        const QString start = header + u'[' + testKey + "]\r\n"_L1; // seven lines
        const auto row = [](const char *title, const QString &text, int line) {
            QTest::newRow(title) << text << u"line %1:"_s.arg(line);
        };
        row("empty", {}, 1);
        row("another version", u"REGEDIT4\r\n"_s, 1);
        row("value without a key", header + "\"a\"=\"b\"\r\n"_L1, 7);
        row("key without an end", header + '['_L1 + testKey + "\r\n"_L1, 7);
        row("key with something behind", start + '['_L1 + testKey + "] x\r\n"_L1, 8);
        row("deleting key", header + "[-"_L1 + testKey + "]\r\n"_L1, 7);
        row("hive alone", header + "[HKEY_CURRENT_USER]\r\n"_L1, 7);
        row("hive and backslash", header + "[HKEY_CURRENT_USER\\]\r\n"_L1, 7);
        row("empty name in the path", header + "[HKEY_CURRENT_USER\\a\\\\b]\r\n"_L1, 7);
        row("unknown hive", header + "[HKEY_USERS\\a]\r\n"_L1, 7);
        row("cut in a name", start + "\"a"_L1, 8);
        row("cut behind a name", start + "\"a\""_L1, 8);
        row("cut in a text", start + "\"a\"=\"b"_L1, 8);
        row("cut behind a backslash", start + "\"a\"=\"b\\"_L1, 8);
        row("wrong escape", start + "\"a\"=\"\\n\"\r\n"_L1, 8);
        row("deleting value", start + "\"a\"=-\r\n"_L1, 8);
        row("something behind a text", start + "\"a\"=\"b\" c\r\n"_L1, 8);
        row("short number", start + "\"a\"=dword:123\r\n"_L1, 8);
        row("long number", start + "\"a\"=dword:123456789\r\n"_L1, 8);
        row("half a byte", start + "\"a\"=hex:1\r\n"_L1, 8);
        row("three digits", start + "\"a\"=hex:012\r\n"_L1, 8);
        row("comma at the end", start + "\"a\"=hex:01,\r\n"_L1, 8);
        row("cut in a wrapped list", start + "\"a\"=hex:01,\\\r\n"_L1, 9);
        row("wrapped without indent", start + "\"a\"=hex:01,\\\r\n02\r\n"_L1, 9);
        row("no type", start + "\"a\"=hex():01\r\n"_L1, 8);
        row("type of nine digits", start + "\"a\"=hex(123456789):01\r\n"_L1, 8);
        row("cut between two values", start + "\"a\"=\"b\"\r\n"_L1, 9);
        row("cut behind a byte", start + "\"a\"=hex:61,62"_L1, 8);
        row("cut behind a key", start, 8);
        row("cut in the empty line", start + "\"a\"=\"b\"\r\n\r"_L1, 9);
        row("unknown kind", start + "\"a\"=qword:01\r\n"_L1, 8);
        row("damage at the end", start + "\"a\"=\"b\"\r\n\r\n; c\r\nx\r\n"_L1, 11);
        row("damage behind a broken text", start + "\"a\"=\"b\r\nc\"\r\nx\r\n"_L1, 10);
    }
    void aDamagedFileRestoresNothingAndSaysWhere()
    {
        QFETCH(QString, text);
        QFETCH(QString, place);
        QString error;
        QVERIFY(!RegistryRestore::parse(text, error));
        QVERIFY2(error.startsWith(place), qPrintable(error));
    }

    void damagedTextCausesNoCrash()
    {
        const QString good = header + '['_L1 + testKey
            + "]\r\n@=\"a\\\\b\\\"c\r\n\"\r\n\"n\"=hex(7):01,02,\\\r\n  03\r\n\"d\"=dword:0000000a\r\n\r\n; x\r\n"_L1;
        quint32 seed = 20'261'121;
        const auto next = [&seed](qsizetype below) {
            seed = seed * 1'664'525U + 1'013'904'223U;
            return static_cast<qsizetype>((seed >> 8U) % static_cast<quint32>(below));
        };
        const QString alphabet = u"[]\\\"=@:,x0f \n\r\t\0\uffff(-;"_s;
        for (int round = fuzzRounds(); round > 0; --round) {
            QString text = good;
            for (qsizetype edits = 1 + next(4); edits > 0; --edits) {
                const qsizetype at = next(text.size());
                switch (next(3)) {
                case 0:
                    text.truncate(at + 1);
                    break;
                case 1:
                    text[at] = alphabet.at(next(alphabet.size()));
                    break;
                default:
                    text.insert(at, alphabet.at(next(alphabet.size())));
                }
            }
            QString error;
            const auto keys = RegistryRestore::parse(text, error);
            QCOMPARE(error.isEmpty(), keys.has_value());
            for (const RestoredKey &key : keys.value_or(QList<RestoredKey>()))
                QVERIFY(!key.path.isEmpty() && !key.path.startsWith(u'\\'));
        }
    }

    void restoringWritesKeysAndValuesAndReportsEach()
    {
        m_fixture->addText(testKey, u"stays"_s, u"x"_s);
        m_fixture->write();
        const QString text = header + '['_L1 + testKey
            + "\\New]\r\n@=\"d\"\r\n\"n\"=dword:00000001\r\n\r\n["_L1 + testKey + "]\r\n\r\n"_L1;
        QString error;
        const auto keys = RegistryRestore::parse(text, error);
        QVERIFY(keys);
        Registry registry;
        const QList<RegistryRestore::Outcome> outcomes =
            RegistryRestore::restore(registry, *keys, notStopped);
        QCOMPARE(outcomes.size(), 4);
        for (const RegistryRestore::Outcome &outcome : outcomes)
            QVERIFY2(outcome.isRestored, qPrintable(outcome.error));
        QCOMPARE(outcomes.at(0).entry, testKey + "\\New"_L1);
        QCOMPARE(outcomes.at(1).entry, testKey + "\\New @"_L1);
        QCOMPARE(outcomes.at(2).entry, testKey + "\\New n"_L1);
        QVERIFY(m_fixture->hasValue(testKey + "\\New"_L1, {}));
        QVERIFY(m_fixture->hasValue(testKey + "\\New"_L1, u"n"_s));
        QVERIFY(m_fixture->hasValue(testKey, u"stays"_s));
    }

private:
    const TestHome &m_home;
    std::unique_ptr<RegistryFixture> m_fixture;
};

SWEEPWISE_TEST_MAIN(TestRegistryBackup, QCoreApplication)
#include "tst_registrybackup.moc"
