#pragma once

#include "registry.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The notation of the registry files of a Wine prefix.
namespace platform::registrytext {

/// Reads the text of a name or string from @p text, which begins after the opening character, up to
/// the unescaped @p end; @p length becomes the number of bytes before it. Nothing when there is no
/// end. Escapes: backslash and one of abefnrtv, x and up to four hexadecimal digits, up to three
/// octal digits, or the character itself.
[[nodiscard]] std::optional<QString> decodeName(QByteArrayView text, char end, qsizetype &length);

/// @p text with all but printable ASCII escaped, and what is in @p special too.
[[nodiscard]] QByteArray encodeName(const QString &text, QByteArrayView special);

/// Type and bytes of a value's data, such as "dword:0000000a"; the name is left empty. Nothing when
/// they are malformed.
[[nodiscard]] std::optional<RegistryValue> decodeData(QByteArrayView text);

/// The value's whole line or lines.
[[nodiscard]] QByteArray encodeValue(const RegistryValue &value);

/// @p name as names are compared.
[[nodiscard]] QString folded(const QString &name);

} // namespace platform::registrytext
