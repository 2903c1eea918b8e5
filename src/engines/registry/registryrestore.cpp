#include "registryrestore.h"

#include "registrybackup.h"

#include <QCoreApplication>
#include <QtEndian>

#include <utility>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;
using platform::RegistryValue;

namespace {

/// Gives the texts of this file the context of RegistryRestore.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(RegistryRestore)
};

// Reads the text once from start to end. The first part that cannot be in a backup ends it with an
// error.
class Parser
{
public:
    explicit Parser(const QString &text)
        : m_text(text)
    {
    }

    std::optional<QList<RestoredKey>> parse(QString &error)
    {
        if (!takeLine("Windows Registry Editor Version 5.00"_L1))
            fail(Text::tr("this is not a registry backup"));
        while (m_error.isEmpty() && !isAtEnd())
            readLine();
        // Every backup ends in an empty line.
        if (!m_text.endsWith("\n\n"_L1) && !m_text.endsWith("\n\r\n"_L1))
            fail(Text::tr("the file breaks off here"));
        if (m_error.isEmpty())
            return std::move(m_keys);
        error = Text::tr("line %1: %2").arg(QString::number(m_line), m_error);
        return std::nullopt;
    }

private:
    [[nodiscard]] bool isAtEnd() const { return m_position >= m_text.size(); }
    [[nodiscard]] QChar current() const { return isAtEnd() ? QChar() : m_text.at(m_position); }
    void fail(const QString &message)
    {
        if (m_error.isEmpty())
            m_error = message;
    }
    bool take(QLatin1StringView wanted)
    {
        if (!QStringView(m_text).sliced(m_position).startsWith(wanted))
            return false;
        m_position += wanted.size();
        return true;
    }
    // Skips the end of a line. Also true at the end of the text.
    bool takeLineEnd()
    {
        const qsizetype start = m_position;
        take("\r"_L1);
        if (isAtEnd())
            return true;
        if (take("\n"_L1)) {
            ++m_line;
            return true;
        }
        m_position = start;
        return false;
    }
    bool takeLine(QLatin1StringView wanted) { return take(wanted) && takeLineEnd(); }
    [[nodiscard]] QString restOfLine()
    {
        qsizetype end = m_text.indexOf(u'\n', m_position);
        if (end < 0)
            end = m_text.size();
        const qsizetype start = m_position;
        m_position = end;
        if (end > start && m_text.at(end - 1) == u'\r')
            --end;
        return m_text.sliced(start, end - start);
    }

    void readLine()
    {
        if (takeLineEnd())
            return;
        if (current() == u';')
            m_isUserClass = restOfLine() == RegistryBackup::userClassMark;
        else if (current() == u'[')
            readKey();
        else
            readValue();
        if (m_error.isEmpty() && !takeLineEnd())
            fail(Text::tr("the line does not end where it should"));
    }

    void readKey()
    {
        const QString line = restOfLine();
        if (!line.endsWith(u']'))
            return fail(Text::tr("the key has no end"));
        const QString name = line.sliced(1, line.size() - 2);
        const Hive classHive =
            std::exchange(m_isUserClass, false) ? Hive::CurrentUser : Hive::LocalMachine;
        const std::optional<platform::HivePath> path = platform::hivePath(name);
        if (!path)
            return fail(Text::tr("the key lies in no known hive"));
        if (!Registry::isKeyPath(path->key))
            return fail(Text::tr("the key's path is not complete"));
        if (path->hive == Hive::ClassesRoot)
            m_keys.append({classHive, Registry::classPath(path->key), name, {}});
        else
            m_keys.append({path->hive, path->key, name, {}});
    }

    void readValue()
    {
        if (m_keys.isEmpty())
            return fail(Text::tr("there is no key before this line"));
        RegistryValue value;
        if (!take("@"_L1)) {
            if (!take("\""_L1))
                return fail(Text::tr("this is neither a key nor a value"));
            value.name = readString();
        }
        if (!take("="_L1))
            return fail(Text::tr("a value's name has no value"));
        if (take("\""_L1))
            readText(value);
        else if (take("dword:"_L1))
            readDword(value);
        else if (take("hex"_L1))
            readBytes(value);
        else
            fail(Text::tr("the kind of the value is not known"));
        if (m_error.isEmpty())
            m_keys.last().values.append(value);
    }

    // Reads the text after an opening quote, including the closing quote.
    QString readString()
    {
        QString string;
        const int firstLine = m_line;
        while (!isAtEnd()) {
            QChar c = m_text.at(m_position++);
            if (c == u'"')
                return string;
            if (c == u'\\') {
                if (isAtEnd())
                    break;
                c = m_text.at(m_position++);
                if (c != u'\\' && c != u'"') {
                    fail(Text::tr("a backslash stands before something else than a quote or a "
                                  "backslash"));
                    return {};
                }
            }
            if (c == u'\n')
                ++m_line;
            string.append(c);
        }
        m_line = firstLine;
        fail(Text::tr("the text has no closing quote"));
        return {};
    }

    void readText(RegistryValue &value)
    {
        value.type = platform::RegistryText;
        const QString text = readString() + QChar(u'\0');
        value.data.resize(text.size() * 2);
        qToLittleEndian<char16_t>(text.utf16(), text.size(), value.data.data());
    }

    void readDword(RegistryValue &value)
    {
        value.type = platform::RegistryDword;
        constexpr qsizetype digits = 8;
        const std::optional<quint32> number = readHex(digits, digits);
        if (!number)
            return fail(Text::tr("eight hexadecimal digits are wanted here"));
        value.data.resize(4);
        qToLittleEndian(*number, value.data.data());
    }

    // Reads what follows "hex": the type in brackets unless it is binary, and the list of bytes.
    void readBytes(RegistryValue &value)
    {
        value.type = platform::RegistryBinary;
        if (take("("_L1)) {
            const std::optional<quint32> type = readHex(1, 8);
            if (!type || !take(")"_L1))
                return fail(Text::tr("the type of the value is not a number"));
            value.type = *type;
        }
        if (!take(":"_L1))
            return fail(Text::tr("the kind of the value is not known"));
        if (isAtEnd() || current() == u'\r' || current() == u'\n')
            return;
        for (;;) {
            const std::optional<quint32> byte = readHex(2, 2);
            if (!byte)
                return fail(Text::tr("a byte of two hexadecimal digits is wanted here"));
            value.data.append(static_cast<char>(*byte));
            if (!take(","_L1))
                return;
            if (take("\\"_L1) && (!takeLineEnd() || !take("  "_L1)))
                return fail(Text::tr("the list of bytes breaks off"));
        }
    }

    std::optional<quint32> readHex(qsizetype minimum, qsizetype maximum)
    {
        quint32 number = 0;
        qsizetype count = 0;
        for (; count < maximum && !isAtEnd(); ++count, ++m_position) {
            const char16_t c = current().unicode();
            if (c >= u'0' && c <= u'9')
                number = number * 16 + (c - u'0');
            else if (c >= u'a' && c <= u'f')
                number = number * 16 + (c - u'a' + 10);
            else
                break;
        }
        return count < minimum ? std::nullopt : std::optional(number);
    }

    const QString m_text;
    qsizetype m_position = 0;
    int m_line = 1;
    bool m_isUserClass = false; ///< the comment before the next key is userClassMark
    QString m_error;
    QList<RestoredKey> m_keys;
};

} // namespace

std::optional<QList<RestoredKey>> RegistryRestore::parse(const QString &text, QString &error)
{
    return Parser(text).parse(error);
}

QList<RegistryRestore::Outcome> RegistryRestore::restore(Registry &registry,
                                                         const QList<RestoredKey> &keys,
                                                         const std::atomic_bool &stopRequested)
{
    QList<Outcome> outcomes;
    QList<platform::Hive> hives; // the hive of each outcome
    const auto add = [&](const RestoredKey &key, const QString &entry, const auto &restoreEntry) {
        const bool isStopped = stopRequested;
        const bool isRestored = !isStopped && restoreEntry();
        const QString error =
            isStopped ? Text::tr("The restoring was cancelled") : registry.errorString();
        outcomes.append({entry, isRestored, isRestored ? QString() : error, isStopped});
        hives.append(key.hive);
        return isRestored;
    };
    for (const RestoredKey &key : keys) {
        const bool isKeyMade =
            add(key, key.name, [&] { return registry.createKey(key.hive, key.path); });
        for (const RegistryValue &value : key.values)
            add(key, key.name + u' ' + (value.name.isEmpty() ? u"@"_s : value.name),
                [&] { return isKeyMade && registry.setValue(key.hive, key.path, value); });
    }
    if (registry.save())
        return outcomes;
    for (qsizetype i = 0; i < outcomes.size(); ++i) {
        if (outcomes.at(i).isRestored && !registry.isSaved(hives.at(i)))
            outcomes[i] = {outcomes.at(i).entry, false, registry.errorString()};
    }
    return outcomes;
}
