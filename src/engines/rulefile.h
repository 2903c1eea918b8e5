#pragma once

#include <QJsonValue>
#include <QStringList>

/// What the rules of every rule file have in common.
namespace rulefile {

/// The array's elements as text; one that is no string becomes an empty one and is kept.
[[nodiscard]] QStringList stringList(const QJsonValue &value);

/// Whether file-name wildcards leave out hardly any name; no wildcards leave out none.
[[nodiscard]] bool takesNearlyAll(const QStringList &patterns);

} // namespace rulefile
