#include "unix/registryfile.h"
#include "unix/registrytext.h"

#include <QMap>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using platform::RegistryFile;
using platform::RegistryValue;

namespace {

const QByteArray head =
    "WINE REGISTRY Version 2\n;; All keys relative to REGISTRY\\\\Machine\n\n#arch=win64\n\n";

RegistryFile parsed(const QByteArray &text)
{
    std::optional<RegistryFile> file = RegistryFile::parse(text);
    if (!file)
        qFatal("not a registry file");
    return *std::move(file);
}

QByteArray utf16(const QString &text)
{
    return {reinterpret_cast<const char *>(text.utf16()), text.size() * 2};
}

// The number of damaged inputs. The environment can ask for a longer run.
int fuzzRounds()
{
    bool isNumber = false;
    const int rounds = qEnvironmentVariableIntValue("SWEEPWISE_FUZZ_ROUNDS", &isNumber);
    return isNumber ? rounds : 20'000;
}

} // namespace

/// The registry files of a Wine prefix, as Wine 8 writes them.
class TestRegistryFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void valuesOfEveryKind_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("text") << QByteArray("\"v\"=\"abc\"\n") << 1U << utf16(u"abc\0"_s);
        QTest::newRow("empty text") << QByteArray("\"v\"=\"\"\n") << 1U << utf16(u"\0"_s);
        QTest::newRow("text with a NUL inside")
            << QByteArray("\"v\"=\"a\\0b7\"\n") << 1U << utf16(u"a\0b7\0"_s);
        QTest::newRow("escapes") << QByteArray(
            "\"v\"=\"\\\\\\\"[]\\n\\r\\t\\0015\\37g\\x4e2da\\x80\\xff\"\n")
                                 << 1U
                                 << utf16(u"\\\"[]\n\r\t\u00015\u001fg\u4e2da\u0080\u00ff\0"_s);
        QTest::newRow("surrogates")
            << QByteArray("\"v\"=\"\\xd83d\\xde00\"\n") << 1U << utf16(u"\U0001F600\0"_s);
        QTest::newRow("no text at all") << QByteArray("\"v\"=hex(1):\n") << 1U << QByteArray();
        QTest::newRow("text of odd length")
            << QByteArray("\"v\"=hex(1):61,62,63,00,64\n") << 1U << QByteArray("abc\0d", 5);
        QTest::newRow("expandable")
            << QByteArray("\"v\"=str(2):\"%a%\"\n") << 2U << utf16(u"%a%\0"_s);
        QTest::newRow("multi") << QByteArray("\"v\"=str(7):\"a\\0b\\0\"\n") << 7U
                               << utf16(u"a\0b\0\0"_s);
        QTest::newRow("none") << QByteArray("\"v\"=hex(0):61,62\n") << 0U << QByteArray("ab");
        QTest::newRow("binary") << QByteArray("\"v\"=hex:00,ff\n") << 3U << QByteArray("\0\xff", 2);
        QTest::newRow("wrapped binary")
            << QByteArray("\"v\"=hex:01,02,\\\n  03\n") << 3U << QByteArray("\1\2\3");
        QTest::newRow("number") << QByteArray("\"v\"=dword:04030201\n") << 4U
                                << QByteArray("\1\2\3\4");
        QTest::newRow("number of three bytes")
            << QByteArray("\"v\"=hex(4):01,02,03\n") << 4U << QByteArray("\1\2\3");
        QTest::newRow("big-endian number")
            << QByteArray("\"v\"=hex(5):01,02,03,04\n") << 5U << QByteArray("\1\2\3\4");
        QTest::newRow("long number") << QByteArray("\"v\"=hex(b):01,02,03,04,05,06,07,08\n") << 11U
                                     << QByteArray("\1\2\3\4\5\6\7\10");
        QTest::newRow("unknown type")
            << QByteArray("\"v\"=hex(deadbeef):01\n") << 0xdeadbeefU << QByteArray("\1");
    }
    void valuesOfEveryKind()
    {
        QFETCH(QByteArray, line);
        QFETCH(quint32, type);
        QFETCH(QByteArray, data);
        RegistryFile file = parsed(head + "[K] 1\n" + line);
        const std::optional<RegistryValue> value = file.value(file.find(u"k"_s), u"V"_s);
        QVERIFY(value);
        QCOMPARE(value->name, u"v"_s);
        QCOMPARE(value->type, type);
        QCOMPARE(value->data, data);

        // A written value is read as the same value.
        file.setValue(file.find(u"K"_s), {u"copy"_s, type, data});
        const RegistryFile again = parsed(file.text());
        const std::optional<RegistryValue> copy = again.value(again.find(u"K"_s), u"copy"_s);
        QVERIFY(copy);
        QCOMPARE(copy->type, type);
        QCOMPARE(copy->data, data);
    }

    void malformedValuesAreLeftOutAndKept_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("open text") << QByteArray("\"v\"=\"abc\n");
        QTest::newRow("text after the end") << QByteArray("\"v\"=\"abc\"x\n");
        QTest::newRow("ends in a backslash") << QByteArray("\"v\"=\"abc\\\n");
        QTest::newRow("open name") << QByteArray("\"v=\"abc\n");
        QTest::newRow("number of nine digits") << QByteArray("\"v\"=dword:012345678\n");
        QTest::newRow("number without digits") << QByteArray("\"v\"=dword:\n");
        QTest::newRow("no hexadecimal digits") << QByteArray("\"v\"=hex:0g\n");
        QTest::newRow("three digits") << QByteArray("\"v\"=hex:012\n");
        QTest::newRow("no comma") << QByteArray("\"v\"=hex:01 02\n");
        QTest::newRow("type without end") << QByteArray("\"v\"=hex(7:01\n");
        QTest::newRow("empty type") << QByteArray("\"v\"=hex():01\n");
        QTest::newRow("unknown kind") << QByteArray("\"v\"=float:1\n");
        QTest::newRow("nothing") << QByteArray("\"v\"=\n");
    }
    void malformedValuesAreLeftOutAndKept()
    {
        QFETCH(QByteArray, line);
        RegistryFile file = parsed(head + "[K] 1\n" + line + "\"other\"=\"x\"\n");
        const RegistryFile::Key key = file.find(u"K"_s);
        QVERIFY(!file.value(key, u"v"_s));
        QCOMPARE(file.valueNames(key), QStringList{u"other"_s});
        file.setValue(key, {u"new"_s, 4, QByteArray("\0\0\0\0", 4)});
        QVERIFY(file.text().contains('\n' + line));
    }

    void keyNamesWithEscapes()
    {
        const RegistryFile file =
            parsed(head + "[A\\\\a\\[b\\]c\\x4e2d\"q\\nx\\0017\x7f\\x80z\\\\end] 1\n\"v\"=\"x\"\n");
        const QString name = u"a[b]c\u4e2d\"q\nx\u00017\u007f\u0080z"_s;
        QCOMPARE(file.subkeys(file.find(u"A"_s)), QStringList{name});
        QVERIFY(file.find("a\\"_L1 + name.toUpper() + "\\END"_L1) != RegistryFile::none);
    }

    void keysAboveASectionExist()
    {
        const RegistryFile file = parsed(head + "[A\\\\B\\\\C] 1\n[A\\\\b\\\\D] 1\n[E] 1\n");
        QCOMPARE(file.subkeys(RegistryFile::root), (QStringList{u"A"_s, u"E"_s}));
        QCOMPARE(file.subkeys(file.find(u"a\\B"_s)), (QStringList{u"C"_s, u"D"_s}));
        for (const QString &path : {u"X"_s, u"A\\X"_s, u"\\A"_s, u"A\\"_s, u"A\\\\B"_s})
            QCOMPARE(file.find(path), RegistryFile::none);
    }

    void namesAreComparedLikeWindowsDoes()
    {
        const RegistryFile file =
            parsed(head
                   + "[K] 1\n\"\\xe9\"=\"e\"\n\"stra\\xdfe\"=\"s\"\n"
                     "\"k\"=\"k\"\n\"\\x212a\"=\"kelvin\"\n\"\\x131\"=\"i\"\n");
        const RegistryFile::Key key = file.find(u"K"_s);
        QVERIFY(file.value(key, u"\u00c9"_s));
        QVERIFY(!file.value(key, u"STRASSE"_s));
        QCOMPARE(file.value(key, u"K"_s)->data, utf16(u"k\0"_s));
        QVERIFY(!file.value(key, u"I"_s));
        QCOMPARE(file.valueNames(key).size(), 5);
    }

    void unchangedPartsAreWrittenAsRead()
    {
        const QByteArray text = head
            + "[A] 1 \n#time=1\n#class=\"x\"\nodd line\n\"v\"=\"1\"\n\"w\"=hex:01,\\\n  02\n\n"
              "[B] 1\r\n\"v\"=\"crlf\"\r\n\n[broken\n\"z\"=\"1\"\n\n[B] 2\n\"v\"=\"later\"\n";
        QCOMPARE(parsed(text).text(), text);

        RegistryFile file = parsed(text);
        QVERIFY(file.removeValue(file.find(u"A"_s), u"V"_s));
        QCOMPARE(file.text(), QByteArray(text).replace("\"v\"=\"1\"\n", ""));

        // A key with two sections is one key, and its later value counts.
        RegistryFile twice = parsed(text);
        const RegistryFile::Key key = twice.find(u"B"_s);
        QCOMPARE(twice.value(key, u"v"_s)->data, utf16(u"later\0"_s));
        QVERIFY(twice.removeValue(key, u"v"_s));
        QVERIFY(!twice.value(key, u"v"_s));
        const RegistryFile again = parsed(twice.text());
        QVERIFY(!again.value(again.find(u"B"_s), u"v"_s));
        QVERIFY(twice.text().contains("[broken\n\"z\"=\"1\"\n"));
    }

    void removingATreeRemovesNothingElse()
    {
        RegistryFile file = parsed(head
                                   + "[A\\\\B] 1\n\"v\"=\"1\"\n[A\\\\B\\\\C\\\\D] 1\n[A\\\\BB] 1\n"
                                     "[A\\\\B\\\\E] 1\n[F] 1\n");
        file.removeTree(file.find(u"a\\b"_s));
        QCOMPARE(file.text(), head + "[A\\\\BB] 1\n[F] 1\n");
        QCOMPARE(file.find(u"A\\B\\C"_s), RegistryFile::none);
        // A stays, although it has no section of its own and only the removed key implied it.
        file.removeTree(file.find(u"A\\BB"_s));
        const RegistryFile again = parsed(file.text());
        QVERIFY(again.find(u"A"_s) != RegistryFile::none);
        QVERIFY(again.subkeys(again.find(u"A"_s)).isEmpty());
    }

    void newKeysAndValues()
    {
        RegistryFile file = parsed(head + "[A\\\\Z] 1\n\"old\"=\"x\"\n\n[M] 1\n");
        const RegistryFile::Key key = file.create(u"A\\m\u4e2d[\"]"_s);
        file.setValue(key, {{}, 1, utf16(u"default\0"_s)});
        file.setValue(file.find(u"a\\z"_s), {u"OLD"_s, 4, QByteArray("\1\0\0\0", 4)});
        file.setValue(file.find(u"a\\z"_s), {u"n\\a\"m\ne"_s, 3, QByteArray(70, '\xab')});
        const RegistryFile again = parsed(file.text());
        for (const auto *each : {&std::as_const(file), &again})
            QCOMPARE(each->subkeys(each->find(u"A"_s)), (QStringList{u"Z"_s, u"m\u4e2d[\"]"_s}));
        QCOMPARE(again.value(again.find(u"A\\M\u4e2d[\"]"_s), {})->data, utf16(u"default\0"_s));
        const RegistryFile::Key old = again.find(u"A\\Z"_s);
        QCOMPARE(again.value(old, u"old"_s)->type, 4U);
        QCOMPARE(again.value(old, u"old"_s)->name, u"old"_s);
        QCOMPARE(again.value(old, u"n\\a\"m\ne"_s)->data, QByteArray(70, '\xab'));
        QCOMPARE(again.valueNames(old).size(), 2);
    }

    void aRemovedKeyCanBeMadeAgain()
    {
        RegistryFile file = parsed(head + "[A\\\\B] 1\n\"v\"=\"1\"\n");
        file.removeTree(file.find(u"A\\B"_s));
        file.setValue(file.create(u"A\\B"_s), {u"w"_s, 1, utf16(u"2\0"_s)});
        const RegistryFile again = parsed(file.text());
        QCOMPARE(again.valueNames(again.find(u"A\\B"_s)), QStringList{u"w"_s});
    }

    void aNameThatOccursTwiceIsOneValue()
    {
        const QByteArray text = head + "[A] 1\n\"x\"=\"1\"\n\"y\"=\"2\"\n\"X\"=\"3\"\n";
        RegistryFile removed = parsed(text);
        QVERIFY(removed.removeValue(removed.find(u"A"_s), u"x"_s));
        QVERIFY(!removed.removeValue(removed.find(u"A"_s), u"x"_s));
        QCOMPARE(removed.text(), head + "[A] 1\n\"y\"=\"2\"\n");
        RegistryFile changed = parsed(text);
        changed.setValue(changed.find(u"A"_s), {u"X"_s, 4, QByteArray("\1\0\0\0", 4)});
        QCOMPARE(changed.text(), head + "[A] 1\n\"x\"=dword:00000001\n\"y\"=\"2\"\n");
    }

    void newValuesComeInTheirOrder()
    {
        RegistryFile file = parsed(head + "[A] 1\n#time=1\n\"x\"=\"1\"\n\"broken\n");
        for (const char *name : {"b", "a"})
            file.setValue(file.find(u"A"_s), {QString::fromLatin1(name), 1, utf16(u"2\0"_s)});
        QCOMPARE(file.text(),
                 head + "[A] 1\n#time=1\n\"b\"=\"2\"\n\"a\"=\"2\"\n\"x\"=\"1\"\n\"broken\n");
    }

    // Against a plain map of the keys and their values, and again after each writing.
    void randomChangesGiveWhatAPlainMapGives()
    {
        using Values = QMap<QString, QByteArray>; // by lower-case name
        QMap<QString, Values> model; // by lower-case path; each key above another one is in it
        QRandomGenerator dice(20'261'122);
        RegistryFile file = parsed(head
                                   + "[k0\\\\k1] 1\n#time=1\n\"v0\"=\"a\"\n\"V1\"=\"b\"\n"
                                     "\"v0\"=\"c\"\n\n[K2] 1\n\"v2\"=\"d\"\n");
        model = {{u"k0"_s, {}},
                 {u"k0\\k1"_s, {{u"v0"_s, utf16(u"c\0"_s)}, {u"v1"_s, utf16(u"b\0"_s)}}},
                 {u"k2"_s, {{u"v2"_s, utf16(u"d\0"_s)}}}};
        const auto verify = [&model](const RegistryFile &checked) {
            for (auto key = model.cbegin(); key != model.cend(); ++key) {
                const RegistryFile::Key found = checked.find(key.key());
                QVERIFY2(found != RegistryFile::none, qPrintable(key.key()));
                QCOMPARE(checked.valueNames(found).size(), key->size());
                for (auto value = key->cbegin(); value != key->cend(); ++value)
                    QCOMPARE(checked.value(found, value.key().toUpper())->data, *value);
                const auto below =
                    std::count_if(model.keyBegin(), model.keyEnd(), [&key](const QString &path) {
                        return path.startsWith(key.key() + u'\\')
                            && path.count(u'\\') == key.key().count(u'\\') + 1;
                    });
                QCOMPARE(checked.subkeys(found).size(), below);
                QCOMPARE(checked.hasSubkeys(found), below > 0);
            }
        };
        verify(file);
        for (int step = 0; step < 3'000 && !QTest::currentTestFailed(); ++step) {
            QStringList names;
            for (quint32 depth = dice.bounded(1U, 4U); depth > 0; --depth)
                names.append(u'k' + QString::number(dice.bounded(4)));
            const QString path = names.join(u'\\');
            const QString name = u'v' + QString::number(dice.bounded(4));
            const bool exists = model.contains(path);
            QCOMPARE(file.find(path.toUpper()) != RegistryFile::none, exists);
            switch (dice.bounded(5)) {
            case 0:
                for (; !names.isEmpty(); names.removeLast())
                    model[names.join(u'\\')];
                file.create(path);
                break;
            case 1:
                if (!exists)
                    break;
                file.removeTree(file.find(path));
                model.removeIf([&path](const auto &key) {
                    return key.key() == path || key.key().startsWith(path + u'\\');
                });
                break;
            case 2:
                if (exists)
                    QCOMPARE(file.removeValue(file.find(path), name),
                             model[path].remove(name) == 1);
                break;
            default:
                if (!exists)
                    break;
                model[path].insert(name, QByteArray::number(step));
                file.setValue(file.find(path), {name, 3, QByteArray::number(step)});
            }
            verify(file);
            if (step % 50 == 0)
                file = parsed(file.text());
        }
    }

    void linksAreRecognized()
    {
        const RegistryFile file =
            parsed(head
                   + "[L] 1\n#time=1\n#link\n\"SymbolicLinkValue\"=hex(6):5c,00\n\n[K] "
                     "1\n\"#link\"=\"x\"\n");
        QVERIFY(file.isLink(file.find(u"L"_s)));
        QVERIFY(!file.isLink(file.find(u"K"_s)));
        const RegistryFile below = parsed(head + "[L] 1\n\"x\"=\"1\"\n#link\n\"y\"=\"2\"\n");
        QVERIFY(below.isLink(below.find(u"L"_s)));
    }

    // It would take the line that is written behind it for its continuation.
    void aValueWithoutItsContinuationIsDamage_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("isDamaged");
        QTest::newRow("whole") << QByteArray("\"x\"=hex:01,\\\n  02\n\"y\"=\"1\"\n") << false;
        QTest::newRow("at the end") << QByteArray("\"x\"=hex:01,\\\n") << true;
        QTest::newRow("before an empty line") << QByteArray("\"x\"=hex:01,\\\n\n") << true;
        QTest::newRow("after a part") << QByteArray("@=hex(7):01,\\\n  02,\\\n") << true;
        QTest::newRow("before a value") << QByteArray("\"x\"=hex:01,\\\n\"y\"=\"1\"\n") << true;
        QTest::newRow("before a remark") << QByteArray("\"x\"=hex:01,\\\n#time=1\n") << true;
        QTest::newRow("remark") << QByteArray("; hex \\\n\"y\"=\"1\"\n") << false;
        QTest::newRow("text") << QByteArray("\"x\"=\"C:\\\\=hex\\\\\"\n") << false;
    }

    void aValueWithoutItsContinuationIsDamage()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, isDamaged);
        QCOMPARE(parsed(head + "[A] 1\n" + body).isDamaged(), isDamaged);
        QCOMPARE(parsed(head + "[A] 1\n" + body + "[A] 2\n\"z\"=\"1\"\n").isDamaged(), isDamaged);
    }

    void otherFilesAreNotParsed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("other version") << QByteArray("WINE REGISTRY Version 1\n[K]\n");
        QTest::newRow("registry export") << QByteArray("Windows Registry Editor Version 5.00\n");
    }
    void otherFilesAreNotParsed()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!RegistryFile::parse(text));
    }

    // Random damage from a fixed seed: cuts, and inserted, exchanged and doubled bytes.
    void damagedTextIsParsedWithoutLoss()
    {
        const QByteArray intact = head
            + "[Soft\\\\A\\[x\\]] "
              "17\n#time=1dd\n#link\n@=\"d\"\n\"a\\\\b\"=str(7):\"q\\x4e2d\\0\"\n"
              "\"h\"=hex(b):01,02,\\\n  03,04\n\"d\"=dword:0000000a\n\n[Soft] 1\n\"e\"=\"\"\n";
        quint32 seed = 20'261'121;
        const auto next = [&seed](qsizetype below) {
            seed = seed * 1'664'525U + 1'013'904'223U;
            return static_cast<qsizetype>((seed >> 8U) % static_cast<quint32>(below));
        };
        const QByteArray alphabet("[]\\\"=#@:,x0f \n\r\t\0\xff(", 20);
        for (int round = fuzzRounds(); round > 0; --round) {
            QByteArray text = intact;
            for (qsizetype edits = 1 + next(6); edits > 0; --edits) {
                const qsizetype at = 23 + next(text.size() - 23);
                switch (next(4)) {
                case 0:
                    text.truncate(at + 1);
                    break;
                case 1:
                    text[at] = alphabet.at(next(alphabet.size()));
                    break;
                case 2:
                    text.insert(at, alphabet.at(next(alphabet.size())));
                    break;
                default:
                    text.insert(at, text.mid(23 + next(text.size() - 23), next(60)));
                }
            }
            RegistryFile file = parsed(text);
            QCOMPARE(file.text(), text);
            const RegistryFile::Key key = file.create(u"Soft\\A[x]"_s);
            const QStringList names = file.valueNames(key);
            for (const QString &name : names)
                QVERIFY(file.value(key, name));
            file.setValue(key, {u"new"_s, 4, QByteArray("\1\0\0\0", 4)});
            const RegistryFile again = parsed(file.text());
            QVERIFY2(again.value(again.find(u"Soft\\A[x]"_s), u"new"_s),
                     file.text().toPercentEncoding(" \n[]\"=").constData());
        }
    }
};

QTEST_GUILESS_MAIN(TestRegistryFile)
#include "tst_registryfile.moc"
