#include "unix/registrytext.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace platform::registrytext {

namespace {

constexpr QByteArrayView escapeLetters = "abefnrtv";
constexpr QByteArrayView escapedCharacters = "\a\b\x1b\f\n\r\t\v";

int digitValue(char c, int base)
{
    const int value = c >= '0' && c <= '9' ? c - '0'
        : c >= 'a' && c <= 'f'             ? c - 'a' + 10
        : c >= 'A' && c <= 'F'             ? c - 'A' + 10
                                           : base;
    return value < base ? value : -1;
}

// Reads the number at the start of text. Returns how many digits it has.
qsizetype readNumber(QByteArrayView text, int base, qsizetype maximumDigits, quint64 &number)
{
    number = 0;
    qsizetype count = 0;
    while (count < maximumDigits && count < text.size()) {
        const int digit = digitValue(text[count], base);
        if (digit < 0)
            break;
        number = number * static_cast<quint64>(base) + static_cast<quint64>(digit);
        ++count;
    }
    return count;
}

// Reads the escape after a backslash. Returns how many bytes it has.
qsizetype readEscape(QByteArrayView text, QChar &character)
{
    const char first = text.front();
    quint64 number = 0;
    if (first == 'x') {
        const qsizetype digits = readNumber(text.sliced(1), 16, 4, number);
        character = digits > 0 ? QChar(static_cast<char16_t>(number)) : QChar(u'x');
        return 1 + digits;
    }
    if (const qsizetype digits = readNumber(text, 8, 3, number); digits > 0) {
        character = QChar(static_cast<char16_t>(number));
        return digits;
    }
    const qsizetype letter = escapeLetters.indexOf(first);
    character = QChar(QLatin1Char(letter >= 0 ? escapedCharacters[letter] : first));
    return 1;
}

std::optional<QByteArray> decodeHex(QByteArrayView text)
{
    QByteArray bytes;
    bytes.reserve(text.size() / 3 + 1);
    bool wantsByte = true; // there must be a comma between two bytes
    for (qsizetype at = 0; at < text.size();) {
        const char c = text[at];
        quint64 number = 0;
        if (c == ',' && !wantsByte) {
            wantsByte = true;
            ++at;
        } else if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\\') {
            ++at;
        } else if (const qsizetype digits = readNumber(text.sliced(at), 16, 3, number);
                   wantsByte && digits > 0 && digits < 3) {
            bytes.append(static_cast<char>(number));
            wantsByte = false;
            at += digits;
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

QByteArray littleEndian(const QString &text)
{
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

// A string is written as text only if it ends in a NUL, because a decoded text always has one.
bool isTerminatedText(const RegistryValue &value)
{
    return (value.type == RegistryText || value.type == RegistryExpandText
            || value.type == RegistryMultiText)
        && value.data.size() >= 2 && value.data.size() % 2 == 0
        && value.data.last(2) == QByteArrayView("\0\0", 2);
}

std::optional<RegistryValue> decodeString(QByteArrayView text, quint32 type)
{
    if (!text.startsWith('"'))
        return std::nullopt;
    qsizetype length = 0;
    const std::optional<QString> string = decodeName(text.sliced(1), '"', length);
    if (!string || !text.sliced(length + 2).trimmed().isEmpty())
        return std::nullopt;
    return RegistryValue{{}, type, littleEndian(*string + QChar(u'\0'))};
}

} // namespace

std::optional<QString> decodeName(QByteArrayView text, char end, qsizetype &length)
{
    QString name;
    qsizetype at = 0;
    while (at < text.size() && text[at] != end) {
        if (text[at] == '\\') {
            if (at + 1 == text.size())
                return std::nullopt;
            QChar character;
            at += 1 + readEscape(text.sliced(at + 1), character);
            name.append(character);
            continue;
        }
        const qsizetype begin = at;
        while (at < text.size() && text[at] != end && text[at] != '\\')
            ++at;
        name.append(QLatin1StringView(text.sliced(begin, at - begin)));
    }
    if (at == text.size())
        return std::nullopt;
    length = at;
    return name;
}

QByteArray encodeName(const QString &text, QByteArrayView special)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        const char ascii = static_cast<char>(c);
        if (c > 0x7f) {
            bytes += "\\x" + QByteArray::number(c, 16).rightJustified(4, '0');
        } else if (c < 0x20) {
            const qsizetype letter = escapedCharacters.indexOf(ascii);
            if (letter >= 0)
                bytes.append('\\').append(escapeLetters[letter]);
            else
                bytes += '\\' + QByteArray::number(c, 8).rightJustified(3, '0');
        } else {
            if (c == u'\\' || special.contains(ascii))
                bytes += '\\';
            bytes += ascii;
        }
    }
    return bytes;
}

std::optional<RegistryValue> decodeData(QByteArrayView text)
{
    text = text.trimmed();
    if (text.startsWith('"'))
        return decodeString(text, RegistryText);
    const qsizetype colon = text.indexOf(':');
    if (colon < 0)
        return std::nullopt;
    const QByteArrayView kind = text.first(colon);
    const QByteArrayView data = text.sliced(colon + 1);
    quint64 number = 0;
    if (kind == "dword") {
        if (data.isEmpty() || readNumber(data, 16, 8, number) != data.size())
            return std::nullopt;
        RegistryValue value{{}, RegistryDword, QByteArray(4, Qt::Uninitialized)};
        qToLittleEndian(static_cast<quint32>(number), value.data.data());
        return value;
    }
    // "str", "str(2)", "hex" or "hex(7)"
    const bool isString = kind.startsWith("str");
    if (!isString && !kind.startsWith("hex"))
        return std::nullopt;
    quint32 type = isString ? RegistryText : RegistryBinary;
    if (kind.size() > 3) {
        const QByteArrayView digits = kind.sliced(4, std::max<qsizetype>(kind.size() - 5, 0));
        if (kind[3] != '(' || !kind.endsWith(')') || digits.isEmpty()
            || readNumber(digits, 16, 8, number) != digits.size())
            return std::nullopt;
        type = static_cast<quint32>(number);
    }
    if (isString)
        return decodeString(data, type);
    std::optional<QByteArray> bytes = decodeHex(data);
    if (!bytes)
        return std::nullopt;
    return RegistryValue{{}, type, *bytes};
}

QByteArray encodeValue(const RegistryValue &value)
{
    QByteArray line =
        value.name.isEmpty() ? QByteArray("@=") : '"' + encodeName(value.name, "\"") + "\"=";
    if (isTerminatedText(value)) {
        QString string(value.data.size() / 2 - 1, Qt::Uninitialized);
        qFromLittleEndian<char16_t>(value.data.constData(), string.size(),
                                    reinterpret_cast<char16_t *>(string.data()));
        if (value.type != RegistryText)
            line += "str(" + QByteArray::number(value.type, 16) + "):";
        return line + '"' + encodeName(string, "\"") + "\"\n";
    }
    if (value.type == RegistryDword && value.data.size() == 4) {
        const auto number = qFromLittleEndian<quint32>(value.data.constData());
        return line + "dword:" + QByteArray::number(number, 16).rightJustified(8, '0') + '\n';
    }
    line += value.type == RegistryBinary ? QByteArray("hex:")
                                         : "hex(" + QByteArray::number(value.type, 16) + "):";
    constexpr qsizetype longestLine = 76;
    qsizetype column = line.size();
    for (qsizetype i = 0; i < value.data.size(); ++i) {
        line += value.data.sliced(i, 1).toHex();
        column += 3;
        if (i + 1 == value.data.size())
            break;
        line += ',';
        if (column > longestLine) {
            line += "\\\n  ";
            column = 2;
        }
    }
    return line + '\n';
}

// Folds a name as Windows does before it compares: each character becomes upper case. A non-ASCII
// character never becomes an ASCII one.
QString folded(const QString &name)
{
    constexpr char16_t microSign = u'\u00b5';
    QString result = name;
    for (QChar &character : result) {
        if (character.unicode() < 0x80) {
            if (character >= u'a' && character <= u'z')
                character = QChar(character.unicode() - (u'a' - u'A'));
            continue;
        }
        const QChar upper = character.toUpper();
        if (upper.unicode() >= 0x80 && character != microSign)
            character = upper;
    }
    return result;
}

} // namespace platform::registrytext
