#pragma once

#include "registry.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The notation of the registry files of a Wine prefix.
namespace platform::registrytext {

/// Decodes a name or string. @p text begins after the opening character, and the result ends before
/// the unescaped @p end. @p length becomes the number of bytes before @p end. Nothing when there is
/// no end.
///
/// An escape is a backslash and one of these: a letter of abefnrtv, x with up to four hexadecimal
/// digits, up to three octal digits, or the character itself.
[[nodiscard]] std::optional<QString> decodeName(QByteArrayView text, char end, qsizetype &length);

/// @p text with all characters escaped that are not printable ASCII or are in @p special.
[[nodiscard]] QByteArray encodeName(const QString &text, QByteArrayView special);

/// The type and bytes of a value's data, such as "dword:0000000a". The name is left empty. Nothing
/// when the data are malformed.
[[nodiscard]] std::optional<RegistryValue> decodeData(QByteArrayView text);

/// The complete line or lines of the value.
[[nodiscard]] QByteArray encodeValue(const RegistryValue &value);

/// @p name in the form in which names are compared.
[[nodiscard]] QString folded(const QString &name);

} // namespace platform::registrytext
