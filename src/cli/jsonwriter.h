#pragma once

#include <QJsonObject>
#include <QLatin1StringView>

#include <type_traits>

class QIODevice;

namespace cli {

/// Writes one JSON object to a device as it grows, with a line for each member. A long list takes
/// no memory this way. The object ends with finish(). Errors stay with the device.
class JsonWriter final
{
    Q_DISABLE_COPY_MOVE(JsonWriter)
public:
    /// The device outlives the writer.
    explicit JsonWriter(QIODevice &device);

    /// The name is plain text. The value is neither an object nor an array.
    void member(QLatin1StringView name, const QJsonValue &value);
    void members(const QJsonObject &object);
    /// An array of objects, one for each entry of @p list. @p asObject returns it for an entry, or
    /// takes this writer and the entry and writes its members.
    template<typename List, typename AsObject>
    void array(QLatin1StringView name, const List &list, AsObject asObject)
    {
        beginArray(name);
        for (const auto &entry : list) {
            beginElement();
            if constexpr (std::is_invocable_v<AsObject, JsonWriter &, decltype(entry)>)
                asObject(*this, entry);
            else
                members(asObject(entry));
            endElement();
        }
        endArray();
    }

    void finish();

private:
    void beginMember(QLatin1StringView name);
    void beginArray(QLatin1StringView name);
    void beginElement();
    void endElement();
    void endArray();
    void writeLine(QByteArrayView text);

    QIODevice &m_device;
    QByteArray m_indent; ///< of the members that are written now
    bool m_isFirst = true; ///< nothing was written yet in the innermost object or array
};

} // namespace cli
