#include "jsonwriter.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace cli {

namespace {

constexpr QByteArrayView step("    ");

bool isPlain(QChar c)
{
    return c >= u' ' && c <= u'~' && c != u'"' && c != u'\\';
}

// Most texts need no escapes. The toolkit makes documents of arrays and objects only.
QByteArray textOf(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? "true" : "false";
    if (value.isString()) {
        const QString text = value.toString();
        if (std::all_of(text.begin(), text.end(), isPlain))
            return '"' + text.toLatin1() + '"';
    }
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return text.sliced(1, text.size() - 2);
}

} // namespace

JsonWriter::JsonWriter(QIODevice &device)
    : m_device(device)
    , m_indent(step.toByteArray())
{
    m_device.write("{");
}

void JsonWriter::member(QLatin1StringView name, const QJsonValue &value)
{
    beginMember(name);
    m_device.write(textOf(value));
}

void JsonWriter::members(const QJsonObject &object)
{
    for (auto member = object.begin(); member != object.end(); ++member)
        this->member(QLatin1StringView(member.key().toLatin1()), member.value());
}

void JsonWriter::finish()
{
    m_device.write("\n}\n");
}

void JsonWriter::beginMember(QLatin1StringView name)
{
    writeLine('"' + QByteArray(name.data(), name.size()) + "\": ");
}

void JsonWriter::beginArray(QLatin1StringView name)
{
    beginMember(name);
    m_device.write("[");
    m_indent += step;
    m_isFirst = true;
}

void JsonWriter::beginElement()
{
    writeLine("{");
    m_indent += step;
    m_isFirst = true;
}

void JsonWriter::endElement()
{
    m_indent.chop(step.size());
    m_isFirst = true;
    writeLine("}");
}

void JsonWriter::endArray()
{
    m_indent.chop(step.size());
    m_isFirst = true;
    writeLine("]");
}

void JsonWriter::writeLine(QByteArrayView text)
{
    if (!m_isFirst)
        m_device.write(",");
    m_device.write("\n" + m_indent);
    m_device.write(text.data(), text.size());
    m_isFirst = false;
}

} // namespace cli
