#pragma once

#include <QString>

#include <optional>

namespace cli {

/// The bytes of a size such as "2048", "64K", "100M" or "2G", in powers of 1024. Nothing when the
/// text is not a size, is less than one byte, or is too large for the type.
[[nodiscard]] std::optional<qint64> parseSize(const QString &text);

} // namespace cli
